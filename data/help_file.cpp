#include "data/help_file.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>

#include "data/zel_binary.h"

namespace orvane {

namespace {

constexpr std::int32_t kDirectoryStart = 4;

// The reader moves by signed 32-bit steps, so the upper half of the offsets takes three of them.
void SeekToOffset(ZelBinary& file, std::uint32_t offset) {
  constexpr std::uint32_t kFar = std::numeric_limits<std::int32_t>::max();
  file.SeekTo(static_cast<std::int32_t>(std::min(offset, kFar)));
  if (offset > kFar && file.IsOpen()) {
    const std::uint32_t rest = offset - kFar;
    file.SeekBy(static_cast<std::int32_t>(rest / 2));
    file.SeekBy(static_cast<std::int32_t>(rest - rest / 2));
  }
}

std::int32_t ReadNeighbour(ZelBinary& file) {
  const std::int32_t id = file.ReadShort();
  return id == HelpFile::kNoNeighbour ? kNoPage : id;
}

}  // namespace

bool HelpFile::CheckMagic(const std::string& path, MessageReporter& reporter) const {
  const auto fail = [&reporter](TextView message) {
    reporter.Report(message, kProgramName, MessageIcon::kError);
    return false;
  };
  std::error_code ignored;
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open() || std::filesystem::is_directory(path, ignored)) {
    return fail(WithText(u"The help file cannot be opened. File name:\n%s", FromUtf8(path)));
  }
  std::array<char, std::size(kMagic)> bytes{};
  file.read(bytes.data(), bytes.size());
  if (file.gcount() < static_cast<std::streamsize>(bytes.size())) {
    return fail(u"The help file is corrupt (1).");
  }
  const bool isHelp = std::equal(bytes.begin(), bytes.end(), std::begin(kMagic),
                                 [](char a, unsigned char b) { return static_cast<unsigned char>(a) == b; });
  return isHelp || fail(u"The help file is corrupt (2).");
}

bool HelpFile::Open(const std::string& path, MessageReporter& reporter) {
  FreeAll();
  if (!CheckMagic(path, reporter)) return false;
  path_ = path;
  ZelBinary file(reporter);
  file.Open(path);
  file.SeekTo(kDirectoryStart);
  ReadContents(file);
  ReadDirectory(file);
  for (ContentsEntry& entry : contents_) {
    if (entry.isPage) entry.page = FindPage(entry.pageId);
  }
  return true;
}

void HelpFile::ReadContents(ZelBinary& file) {
  const std::int32_t count = file.ReadShort();
  for (std::int32_t i = 0; i < count; ++i) {
    ContentsEntry& entry = contents_.emplace_back();
    entry.isPage = file.ReadBool();
    entry.level = file.ReadShort();
    if (entry.isPage) {
      entry.pageId = file.ReadShort();
    } else {
      file.ReadTCharFromChar_C(entry.heading);
    }
  }
}

void HelpFile::ReadDirectory(ZelBinary& file) {
  const std::int32_t count = file.ReadShort();
  for (std::int32_t i = 0; i < count; ++i) {
    HelpPage& page = pages_.emplace_back();
    page.id = file.ReadShort();
    page.offset = static_cast<std::uint32_t>(file.ReadLong());
    file.ReadTCharFromChar_C(page.title);
    firstWithId_.try_emplace(page.id, static_cast<int>(i));
  }
}

int HelpFile::FindPage(std::int32_t id) const {
  const auto found = firstWithId_.find(id);
  return found == firstWithId_.end() ? kNoPage : found->second;
}

TextView HelpFile::EntryText(const ContentsEntry& entry) const {
  if (!entry.isPage) return entry.heading;
  return entry.page == kNoPage ? TextView() : TextView(pages_[static_cast<std::size_t>(entry.page)].title);
}

void HelpFile::LoadBody(std::int32_t id, MessageReporter& reporter) {
  const int index = FindPage(id);
  if (index == kNoPage) return;
  HelpPage& page = pages_[static_cast<std::size_t>(index)];
  ZelBinary file(reporter);
  file.Open(path_);
  SeekToOffset(file, page.offset);
  auto body = std::make_shared<HelpPageBody>();
  body->neighbour1 = ReadNeighbour(file);
  body->neighbour2 = ReadNeighbour(file);
  const std::int32_t paragraphs = file.ReadShort();
  for (std::int32_t i = 0; i < paragraphs; ++i) file.ReadTCharFromChar_C(body->paragraphs.emplace_back());
  const std::int32_t links = file.ReadShort();
  for (std::int32_t i = 0; i < links; ++i) body->links.push_back(FindPage(file.ReadShort()));
  page.body = std::move(body);
}

void HelpFile::FreeBody(std::int32_t id) {
  const int index = FindPage(id);
  if (index != kNoPage) pages_[static_cast<std::size_t>(index)].body = nullptr;
}

void HelpFile::FreeAll() {
  path_.clear();
  contents_ = {};
  pages_ = {};
  firstWithId_.clear();
}

}  // namespace orvane
