// The manual as its authors write it: one Markdown file a page, and contents.md, which gives the order of
// reading. content/help/README.md describes the form, docs/formats/help.md the compiled one.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "content/help_markup.h"
#include "content/table.h"

namespace orvane {

// What stands between two empty lines of a page.
struct HelpBlock {
  enum class Kind {
    kHeading,    // one line
    kParagraph,  // one line, however the source breaks it
    kList,       // a line an item
    kLinks,      // a list of nothing but links: it is no text of the page, only its links
    kExample,    // a line each: what is typed, " → ", and the answer
  };
  Kind kind = Kind::kParagraph;
  std::vector<HelpLine> lines;
  std::string example;  // which part of the program the examples are put to: "mass", "balance" ...
  int sourceLine = 0;
};

struct HelpPageSource {
  std::string file;  // its name in the folder
  int id = 0;
  Text title;
  std::vector<HelpBlock> blocks;
};

struct HelpContentsLine {
  int level = 0;
  int page = -1;  // index in the pages, −1 for a heading
  Text heading;
};

struct HelpSource {
  std::vector<HelpPageSource> pages;  // in the order of reading
  std::vector<HelpContentsLine> contents;

  // The index of the page with this source file, −1 when there is none.
  int FindFile(std::string_view file) const;
  // The pages that a page links to, by index, each once, in the order of its text.
  std::vector<int> LinksOf(const HelpPageSource& page) const;
};

inline constexpr std::string_view kHelpContentsFile = "contents.md";
// What the pages may call the parts of the program that answer examples.
inline constexpr std::string_view kExampleKinds[] = {"mass",   "balance", "solution",
                                                     "filter", "element", "constant"};
// Between what is typed and the answer.
inline constexpr TextView kExampleArrow = u" → ";

// Reads the files of the folder, by name. Whatever is wrong is added to `problems`: a page without title or
// id, an id a second time, a page that the contents do not list or list twice, a link that leads nowhere, a
// text that no field can hold. The result is complete only when nothing was.
HelpSource ReadHelp(const std::map<std::string, std::string>& files, std::vector<TableProblem>& problems);

// The bytes of help.dat.
std::string EncodeHelp(const HelpSource& source);
// The texts of a page as help.dat holds them.
std::vector<Text> ParagraphsOf(const HelpPageSource& page);

// The manual as plain Markdown, a file for each page and README.md with the contents, by name.
std::map<std::string, std::string> WriteManual(const HelpSource& source);

}  // namespace orvane
