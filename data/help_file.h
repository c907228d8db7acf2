// The pages of the manual and their table of contents, from "help.dat". Opening the file reads the contents
// and the directory of the pages; the body of a page is read when the page is to be shown and freed when
// another one takes its place.
//
// The file: the bytes DE EB FF 00; Short number of contents entries; per entry Bool is a page, Short level,
// and for a page Short page id, for a heading its text (counted string); Short number of pages; per page
// Short id, Long offset of its body, title (counted string). A body: Shorts with the ids of the two
// neighbours, 10000 for none; Short number of paragraphs and the paragraphs (counted strings); Short number
// of links and a Short page id for each.
//
// The file is not trusted. An offset may point anywhere, a count may lie: negative ones are 0, and none costs
// memory before what it counts has been read. A file that ends early leaves what was read of it, with the
// reader's message for each read that failed.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/message_reporter.h"
#include "base/text.h"

namespace orvane {

class ZelBinary;

// The name of the file in the folder of the data files.
inline constexpr const char* kHelpFile = "help.dat";

inline constexpr int kNoPage = -1;

// One line of the contents: a heading with a text of its own, or a page that is shown by its title.
struct ContentsEntry {
  bool isPage = false;
  std::int32_t level = 0;  // depth in the tree, as the file has it: a damaged one may be negative
  std::int32_t pageId = kNoPage;
  int page = kNoPage;  // index of the page with that id; kNoPage when there is none
  Text heading;
};

struct HelpPageBody {
  std::int32_t neighbour1 = kNoPage;  // page ids, or kNoPage; no page need have such an id
  std::int32_t neighbour2 = kNoPage;
  std::vector<Text> paragraphs;  // with style codes
  std::vector<int> links;        // page indices, kNoPage for a link that leads nowhere
};

struct HelpPage {
  std::int32_t id = 0;
  std::uint32_t offset = 0;  // of the body in the file
  Text title;
  // Null unless loaded. Whoever shows the page keeps a reference of its own, so that freeing the body does
  // not take it away from under the painting.
  std::shared_ptr<const HelpPageBody> body;
};

class HelpFile {
 public:
  // With these bytes every file begins.
  static constexpr unsigned char kMagic[4] = {0xDE, 0xEB, 0xFF, 0x00};
  // The neighbour that stands for none, in the file.
  static constexpr std::int32_t kNoNeighbour = 10000;

  // Reads contents and directory in place of what was held. False, with one message, when the file cannot be
  // opened, holds fewer than four bytes or does not begin as it must.
  bool Open(const std::string& path, MessageReporter& reporter);

  const std::vector<ContentsEntry>& Contents() const { return contents_; }
  const std::vector<HelpPage>& Pages() const { return pages_; }

  // The index of the first page with this id, or kNoPage.
  int FindPage(std::int32_t id) const;
  // A heading's own text or a page's title; empty for a page that is not there.
  TextView EntryText(const ContentsEntry& entry) const;

  // Reads the body of the first page with this id from the file; nothing for an unknown id.
  void LoadBody(std::int32_t id, MessageReporter& reporter);
  // Frees it; nothing for an unknown id or a body that is not loaded.
  void FreeBody(std::int32_t id);
  // Back to empty.
  void FreeAll();

 private:
  bool CheckMagic(const std::string& path, MessageReporter& reporter) const;
  void ReadContents(ZelBinary& file);
  void ReadDirectory(ZelBinary& file);

  std::string path_;
  std::vector<ContentsEntry> contents_;
  std::vector<HelpPage> pages_;
  std::unordered_map<std::int32_t, int> firstWithId_;
};

}  // namespace orvane
