// The constants of physics and chemistry, read from "constants.dat": categories of groups of constants. The
// names of all categories are read at once, the constants of one category whenever it is asked for, from the
// file as it is then.
//
// The file: Short number of categories; per category Long the position of its block. A block: name (counted
// string), Short number of groups; per group its title (counted string), Bool collapsible, Short number of
// constants; per constant its name, symbol, value, units and remark (Z strings).
//
// The file is not trusted. Texts are cut at their limit while the reader stays in step, negative counts are
// 0, and whatever a count announces, reading stops where the file ends: a record that is cut short is the
// last one, and is kept as far as it goes.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/message_reporter.h"
#include "base/text.h"

namespace orvane {

// The name of the file in the folder of the data files.
inline constexpr const char* kConstantsFile = "constants.dat";

// Texts may hold style codes (base/styled_text.h). Only the name and the value are never empty in a sound
// file.
struct ConstEntry {
  Text name;
  Text symbol;
  Text value;
  Text units;
  Text remark;
};

struct ConstGroup {
  Text title;
  bool collapsible = false;  // has a title row, which folds it
  std::vector<ConstEntry> constants;
};

struct ConstCategory {
  Text name;
  std::int32_t offset = 0;  // of its block in the file
};

class ConstantsDatabase {
 public:
  // Menus number the categories from 1000 on, and this many fit below the smallest command of a screen, 8120.
  static constexpr int kMostCategories = 7119;
  // In characters, of every text of the file.
  static constexpr std::size_t kLongestText = 254;
  // Of one category; what an absurd file holds beyond is not read.
  static constexpr std::size_t kMostConstants = 65536;
  // In bytes. Categories that have the file to themselves are read together in no more than its size; LoadAll
  // reads this much beyond, then the file is absurd.
  static constexpr std::uint64_t kMostBeyondTheFile = 1'000'000;

  // A path as the system takes it; nothing is opened yet.
  explicit ConstantsDatabase(std::string path) : path_(std::move(path)) {}

  // Reads the names of all categories in place of those known. False, with a message, when the file cannot be
  // opened; a damaged file gives the reader's messages and what can be read of it.
  bool ReadCategories(MessageReporter& reporter);
  const std::vector<ConstCategory>& Categories() const { return categories_; }
  int CategoryCount() const { return static_cast<int>(categories_.size()); }

  // The groups of a category. Nothing when there is no such category, or, with a message, when the file
  // cannot be opened any more.
  std::optional<std::vector<ConstGroup>> LoadCategory(int category, MessageReporter& reporter) const;

  using Visitor = std::function<void(int category, std::optional<std::vector<ConstGroup>> groups)>;
  // Loads the categories one after the other and hands each over. Thousands of categories may share a block:
  // once more has been read than the file can honestly hold, the others are handed over as nothing. False in
  // that case.
  bool LoadAll(MessageReporter& reporter, const Visitor& visit) const;

 private:
  struct Reading {
    std::uint64_t bytes = 0;  // of all blocks together
    std::uint64_t fileSize = 0;
  };

  std::optional<std::vector<ConstGroup>> Load(int category, MessageReporter& reporter,
                                              Reading& reading) const;

  std::string path_;
  std::vector<ConstCategory> categories_;
};

}  // namespace orvane
