#include "data/constants_database.h"

#include "data/zel_binary.h"

namespace orvane {

namespace {

constexpr TextView kCannotOpen = u"Failed to open the constants file.\nFile: %s";

// A text's field has room for a terminator too.
constexpr std::size_t kField = ConstantsDatabase::kLongestText + 1;

// Passes messages on and remembers that there was one.
class WatchingReporter : public MessageReporter {
 public:
  explicit WatchingReporter(MessageReporter& reporter) : reporter_(reporter) {}
  void Report(TextView text, TextView caption, MessageIcon icon) override {
    reported_ = true;
    reporter_.Report(text, caption, icon);
  }
  bool Reported() const { return reported_; }

 private:
  MessageReporter& reporter_;
  bool reported_ = false;
};

// One reading of the file, from its opening to its end.
class ConstantsReader {
 public:
  explicit ConstantsReader(MessageReporter& reporter) : reporter_(reporter), file_(reporter_) {}

  bool Open(const std::string& path) {
    if (file_.Open(path) == 1) {
      size_ = file_.FileSize();
      return true;
    }
    reporter_.Report(WithText(kCannotOpen, FromUtf8(path)), kProgramName, MessageIcon::kError);
    return false;
  }

  std::vector<ConstCategory> Categories() {
    std::vector<ConstCategory> categories;
    const std::int32_t count = file_.ReadShort();
    for (std::int32_t i = 0; i < count && i < ConstantsDatabase::kMostCategories; ++i) {
      const std::int32_t offset = file_.ReadLong();
      if (Ended()) break;
      categories.push_back({{}, offset});
    }
    for (ConstCategory& category : categories) {
      GoTo(category.offset);
      file_.ReadTCharFromChar_C(category.name, kField);
    }
    return categories;
  }

  std::uint32_t FileSize() const { return size_; }
  std::uint32_t BytesRead() { return file_.FilePos() - start_; }

  std::vector<ConstGroup> Groups(std::int32_t offset) {
    GoTo(offset);
    start_ = file_.FilePos();
    Text skippedName;
    file_.ReadTCharFromChar_C(skippedName, kField);
    std::vector<ConstGroup> groups;
    const std::int32_t count = file_.ReadShort();
    for (std::int32_t i = 0; i < count && GoesOn(); ++i) {
      const bool nothingLeft = AtEnd();
      ReadGroup(groups.emplace_back());
      if (nothingLeft) groups.pop_back();
    }
    return groups;
  }

 private:
  // A position before the file's start leads to its end, where every read is reported.
  void GoTo(std::int32_t offset) {
    if (offset < 0) {
      file_.SeekEnd();
    } else {
      file_.SeekTo(offset);
    }
  }

  void ReadGroup(ConstGroup& group) {
    file_.ReadTCharFromChar_C(group.title, kField);
    group.collapsible = file_.ReadBool();
    const std::int32_t count = file_.ReadShort();
    for (std::int32_t i = 0; i < count && GoesOn(); ++i) {
      const bool nothingLeft = AtEnd();
      ReadConstant(group.constants.emplace_back());
      if (nothingLeft) group.constants.pop_back();
      ++constants_;
    }
  }

  void ReadConstant(ConstEntry& constant) {
    for (Text* text :
         {&constant.name, &constant.symbol, &constant.value, &constant.units, &constant.remark}) {
      file_.ReadTCharFromChar_Z(*text, kField);
    }
  }

  bool AtEnd() { return file_.FilePos() >= size_; }
  // A read has come to the end of the file before it had what it wanted.
  bool Ended() { return reporter_.Reported() && AtEnd(); }
  bool GoesOn() { return !Ended() && constants_ < ConstantsDatabase::kMostConstants; }

  WatchingReporter reporter_;
  ZelBinary file_;
  std::uint32_t size_ = 0;
  std::uint32_t start_ = 0;  // of the block that Groups reads
  std::size_t constants_ = 0;
};

}  // namespace

bool ConstantsDatabase::ReadCategories(MessageReporter& reporter) {
  categories_.clear();
  ConstantsReader reader(reporter);
  if (!reader.Open(path_)) return false;
  categories_ = reader.Categories();
  return true;
}

std::optional<std::vector<ConstGroup>> ConstantsDatabase::LoadCategory(int category,
                                                                       MessageReporter& reporter) const {
  if (category < 0 || category >= CategoryCount()) return std::nullopt;
  Reading ignored;
  return Load(category, reporter, ignored);
}

bool ConstantsDatabase::LoadAll(MessageReporter& reporter, const Visitor& visit) const {
  Reading reading;
  bool complete = true;
  for (int category = 0; category < CategoryCount(); ++category) {
    if (reading.bytes > reading.fileSize + kMostBeyondTheFile) complete = false;
    visit(category, complete ? Load(category, reporter, reading) : std::nullopt);
  }
  return complete;
}

std::optional<std::vector<ConstGroup>> ConstantsDatabase::Load(int category, MessageReporter& reporter,
                                                               Reading& reading) const {
  ConstantsReader reader(reporter);
  if (!reader.Open(path_)) return std::nullopt;
  std::vector<ConstGroup> groups = reader.Groups(categories_[static_cast<std::size_t>(category)].offset);
  reading.bytes += reader.BytesRead();
  reading.fileSize = reader.FileSize();
  return groups;
}

}  // namespace orvane
