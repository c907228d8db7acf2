// Any bytes as "help.dat".
#pragma once

#include <fstream>
#include <string>
#include <string_view>

#include "data/help_file.h"
#include "fuzz/require.h"

namespace orvane::fuzz {

class HelpReporter : public MessageReporter {
 public:
  void Report(TextView text, TextView caption, MessageIcon icon) override {
    Require(!text.empty() && caption == kProgramName && icon == MessageIcon::kError);
    ++count;
  }
  long long count = 0;
};

// Every page is where its id is looked for, and a contents entry has the title of its page.
inline void CheckDirectory(const HelpFile& help) {
  const int pages = static_cast<int>(help.Pages().size());
  Require(pages <= 32767 && help.Contents().size() <= 32767);
  for (int i = 0; i < pages; ++i) {
    const int found = help.FindPage(help.Pages()[static_cast<std::size_t>(i)].id);
    Require(found >= 0 && found <= i);
    Require(help.Pages()[static_cast<std::size_t>(found)].id == help.Pages()[static_cast<std::size_t>(i)].id);
  }
  for (const ContentsEntry& entry : help.Contents()) {
    Require(entry.page >= kNoPage && entry.page < pages && (entry.isPage || entry.page == kNoPage));
    Require(help.EntryText(entry).size() <= 65535);
  }
}

inline void CheckBody(HelpFile& help, const HelpPage& page, HelpReporter& reporter) {
  help.LoadBody(page.id, reporter);
  const HelpPage& found = help.Pages()[static_cast<std::size_t>(help.FindPage(page.id))];
  Require(found.body != nullptr);
  const int pages = static_cast<int>(help.Pages().size());
  for (const Text& paragraph : found.body->paragraphs) Require(paragraph.size() <= 65535);
  for (const int link : found.body->links) Require(link >= kNoPage && link < pages);
  Require(found.body->neighbour1 != HelpFile::kNoNeighbour &&
          found.body->neighbour2 != HelpFile::kNoNeighbour);
  help.FreeBody(page.id);
  Require(found.body == nullptr);
}

// The bytes are written to the file of that name, which is read and left there.
inline void CheckHelp(std::string_view bytes, const std::string& path) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  HelpReporter reporter;
  HelpFile help;
  if (!help.Open(path, reporter)) {
    Require(reporter.count == 1 && help.Pages().empty() && help.Contents().empty());
    return;
  }
  CheckDirectory(help);
  // A short input can announce thousands of pages that are all alike; the first are enough. Where counts have
  // lied, each further body costs tens of thousands of failing reads and shows nothing new.
  constexpr std::size_t kMostChecked = 4;
  constexpr long long kManyFailures = 2000;
  for (std::size_t i = 0; i < help.Pages().size() && i < kMostChecked; ++i) {
    if (i > 0 && reporter.count > kManyFailures) break;
    CheckBody(help, help.Pages()[i], reporter);
  }
  help.FreeAll();
  Require(help.Pages().empty());
}

}  // namespace orvane::fuzz
