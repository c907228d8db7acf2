#include "content/help_source.h"

#include <algorithm>
#include <set>

#include "content/dat_writer.h"
#include "data/help_file.h"

namespace orvane {

namespace {

constexpr std::string_view kIdStart = "<!-- page ";
constexpr std::string_view kIdEnd = " -->";
constexpr std::string_view kFence = "```";
constexpr std::string_view kListMark = "- ";
constexpr std::string_view kListIndent = "  ";
constexpr std::string_view kArrow = " → ";

bool StartsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

bool EndsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

bool IsLinkAlone(const HelpLine& line) {
  return !line.empty() && !line[0].link.empty() &&
         std::all_of(line.begin(), line.end(), [&](const HelpSpan& s) { return s.link == line[0].link; });
}

// Reads one file, block by block, reporting as it goes.
class PageReader {
 public:
  PageReader(std::string file, std::string_view content, std::vector<TableProblem>& problems)
      : lines_(LinesOf(content)), problems_(problems) {
    page_.file = std::move(file);
  }

  HelpPageSource Run() {
    ReadTitle();
    ReadId();
    while (at_ < lines_.size()) {
      if (lines_[at_].empty()) {
        ++at_;
      } else if (StartsWith(lines_[at_], kFence)) {
        ReadExample();
      } else if (StartsWith(lines_[at_], "#")) {
        ReadHeading();
      } else if (StartsWith(lines_[at_], kListMark)) {
        ReadList();
      } else {
        ReadParagraph();
      }
    }
    return std::move(page_);
  }

 private:
  void Add(std::size_t line, std::string message) {
    problems_.push_back({page_.file, static_cast<int>(line) + 1, 0, std::move(message)});
  }

  HelpLine Parse(std::size_t line, std::string_view text) {
    ParsedHelpLine parsed = ParseHelpLine(text);
    if (!parsed.problem.empty()) Add(line, parsed.problem);
    return std::move(parsed.line);
  }

  HelpBlock& NewBlock(HelpBlock::Kind kind) {
    HelpBlock& block = page_.blocks.emplace_back();
    block.kind = kind;
    block.sourceLine = static_cast<int>(at_) + 1;
    return block;
  }

  void ReadTitle() {
    if (lines_.empty() || !StartsWith(lines_[0], "# "))
      return Add(0, "a page begins with \"# \" and its title");
    page_.title = PlainLine(Parse(0, lines_[0].substr(2)));
    at_ = 1;
  }

  void ReadId() {
    while (at_ < lines_.size() && lines_[at_].empty()) ++at_;
    const std::string_view line = at_ < lines_.size() ? lines_[at_] : std::string_view();
    const bool stands = StartsWith(line, kIdStart) && EndsWith(line, kIdEnd);
    const int id =
        stands ? SmallNumber(line.substr(kIdStart.size(), line.size() - kIdStart.size() - kIdEnd.size()))
               : -1;
    if (id < 0 || id >= HelpFile::kNoNeighbour) {
      return Add(at_, "after the title comes \"<!-- page N -->\" with an id from 0 to 9999");
    }
    page_.id = id;
    ++at_;
  }

  void ReadHeading() {
    if (!StartsWith(lines_[at_], "## ")) {
      Add(at_, "a heading inside a page begins with \"## \"");
      ++at_;
      return;
    }
    HelpBlock& block = NewBlock(HelpBlock::Kind::kHeading);
    block.lines.push_back(Parse(at_, lines_[at_].substr(3)));
    ++at_;
  }

  // The lines of the source up to one that begins something else, joined by blanks.
  std::string Joined(std::string_view first, std::string_view indent) {
    std::string text(first);
    for (++at_; at_ < lines_.size() && !lines_[at_].empty(); ++at_) {
      if (!indent.empty() && !StartsWith(lines_[at_], indent)) break;
      text += ' ';
      text += lines_[at_].substr(indent.size());
    }
    return text;
  }

  void ReadParagraph() {
    const std::size_t start = at_;
    HelpBlock& block = NewBlock(HelpBlock::Kind::kParagraph);
    block.lines.push_back(Parse(start, Joined(lines_[start], "")));
  }

  void ReadList() {
    HelpBlock& block = NewBlock(HelpBlock::Kind::kList);
    while (at_ < lines_.size() && StartsWith(lines_[at_], kListMark)) {
      const std::size_t start = at_;
      block.lines.push_back(Parse(start, Joined(lines_[start].substr(kListMark.size()), kListIndent)));
    }
    if (at_ < lines_.size() && !lines_[at_].empty()) {
      Add(at_, "in a list every line begins with \"- \", or with two blanks to go on with its item");
      ++at_;
    }
    if (std::all_of(block.lines.begin(), block.lines.end(), IsLinkAlone)) {
      block.kind = HelpBlock::Kind::kLinks;
    }
  }

  void ReadExample() {
    HelpBlock& block = NewBlock(HelpBlock::Kind::kExample);
    block.example = std::string(lines_[at_].substr(kFence.size()));
    if (std::find(std::begin(kExampleKinds), std::end(kExampleKinds), block.example) ==
        std::end(kExampleKinds)) {
      Add(at_, "an example of \"" + block.example + "\", which answers none");
    }
    for (++at_; at_ < lines_.size() && lines_[at_] != kFence; ++at_) {
      const std::size_t arrow = lines_[at_].find(kArrow);
      if (arrow == std::string_view::npos) {
        Add(at_, "a line of an example is what is typed, \" → \" and the answer");
        continue;
      }
      HelpLine line = {{FromUtf8(lines_[at_].substr(0, arrow)), {}, true, {}},
                       {Text(kExampleArrow), {}, false, {}}};
      const HelpLine answer = Parse(at_, lines_[at_].substr(arrow + kArrow.size()));
      line.insert(line.end(), answer.begin(), answer.end());
      block.lines.push_back(std::move(line));
    }
    if (at_ >= lines_.size()) return Add(at_ - 1, "an example that is not closed by ```");
    ++at_;
  }

  std::vector<std::string_view> lines_;
  std::vector<TableProblem>& problems_;
  std::size_t at_ = 0;
  HelpPageSource page_;
};

// Reads contents.md and takes the pages in the order in which it lists them.
class ContentsReader {
 public:
  ContentsReader(std::map<std::string, HelpPageSource>& pages, std::vector<TableProblem>& problems)
      : pages_(pages), problems_(problems) {}

  HelpSource Run(std::string_view content) {
    const std::vector<std::string_view> lines = LinesOf(content);
    for (line_ = 0; line_ < lines.size(); ++line_) ReadLine(lines[line_]);
    for (const auto& [file, page] : pages_)
      problems_.push_back({file, 0, 0, "a page that the contents do not list"});
    return std::move(source_);
  }

 private:
  void Add(std::string message) {
    problems_.push_back({std::string(kHelpContentsFile), static_cast<int>(line_) + 1, 0, std::move(message)});
  }

  void ReadLine(std::string_view line) {
    const std::size_t marks = std::min(line.find_first_not_of('#'), line.size());
    if (line.empty() || StartsWith(line, "# ")) return;
    if (marks >= 2 && marks < line.size() && line[marks] == ' ') {
      const int level = static_cast<int>(marks) - 2;
      if (level > pageLevel_) Add("a heading that is more than one level below the one before");
      source_.contents.push_back({level, -1, FromUtf8(line.substr(marks + 1))});
      pageLevel_ = level + 1;
      return;
    }
    const ParsedHelpLine entry =
        ParseHelpLine(StartsWith(line, kListMark) ? line.substr(kListMark.size()) : std::string_view());
    if (!IsLinkAlone(entry.line)) return Add("expected \"## Heading\" or \"- [Title](page.md)\"");
    AddPage(entry.line);
  }

  void AddPage(const HelpLine& entry) {
    const auto found = pages_.find(entry[0].link);
    if (found == pages_.end()) {
      const bool listed = source_.FindFile(entry[0].link) >= 0;
      return Add((listed ? "a second time the page " : "no page ") + entry[0].link);
    }
    if (PlainLine(entry) != found->second.title) {
      Add("the title of " + entry[0].link + " is \"" + ToUtf8(found->second.title) + "\"");
    }
    source_.contents.push_back({pageLevel_, static_cast<int>(source_.pages.size()), {}});
    source_.pages.push_back(std::move(found->second));
    pages_.erase(found);
  }

  std::map<std::string, HelpPageSource>& pages_;  // those that have not been listed yet
  std::vector<TableProblem>& problems_;
  HelpSource source_;
  std::size_t line_ = 0;
  int pageLevel_ = 0;
};

void CheckIds(const HelpSource& source, std::vector<TableProblem>& problems) {
  std::set<int> ids;
  for (const HelpPageSource& page : source.pages) {
    if (ids.insert(page.id).second) continue;
    problems.push_back({page.file, 0, 0, "page id " + std::to_string(page.id) + " a second time"});
  }
}

void CheckLinks(const HelpSource& source, std::vector<TableProblem>& problems) {
  for (const HelpPageSource& page : source.pages) {
    for (const HelpBlock& block : page.blocks) {
      for (const HelpLine& line : block.lines) {
        for (const HelpSpan& span : line) {
          if (span.link.empty() || source.FindFile(span.link) >= 0) continue;
          problems.push_back(
              {page.file, block.sourceLine, 0, "a link to " + span.link + ", which is no page"});
        }
      }
    }
  }
}

void CheckSizes(const HelpSource& source, std::vector<TableProblem>& problems) {
  const auto check = [&problems](const std::string& file, TextView text) {
    if (DatWriter::EscapedSize(text) <= kMaxCountedBytes) return;
    problems.push_back({file, 0, 0, "a text of more than 65535 bytes"});
  };
  for (const HelpPageSource& page : source.pages) {
    if (page.title.empty()) problems.push_back({page.file, 1, 0, "an empty title"});
    check(page.file, page.title);
    for (const Text& paragraph : ParagraphsOf(page)) check(page.file, paragraph);
  }
  for (const HelpContentsLine& line : source.contents) check(std::string(kHelpContentsFile), line.heading);
}

}  // namespace

int HelpSource::FindFile(std::string_view file) const {
  const auto found = std::find_if(pages.begin(), pages.end(),
                                  [file](const HelpPageSource& page) { return page.file == file; });
  return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
}

std::vector<int> HelpSource::LinksOf(const HelpPageSource& page) const {
  std::vector<int> links;
  for (const HelpBlock& block : page.blocks) {
    for (const HelpLine& line : block.lines) {
      for (const HelpSpan& span : line) {
        const int target = span.link.empty() ? -1 : FindFile(span.link);
        if (target >= 0 && std::find(links.begin(), links.end(), target) == links.end())
          links.push_back(target);
      }
    }
  }
  return links;
}

HelpSource ReadHelp(const std::map<std::string, std::string>& files, std::vector<TableProblem>& problems) {
  const std::string contentsFile(kHelpContentsFile);
  std::map<std::string, HelpPageSource> pages;
  for (const auto& [name, content] : files) {
    if (name != contentsFile) pages[name] = PageReader(name, content, problems).Run();
  }
  const auto contents = files.find(contentsFile);
  if (contents == files.end()) {
    problems.push_back({contentsFile, 0, 0, "is missing"});
    return {};
  }
  HelpSource source = ContentsReader(pages, problems).Run(contents->second);
  CheckIds(source, problems);
  // While a page is missing, every link to it would be named as well.
  if (problems.empty()) CheckLinks(source, problems);
  CheckSizes(source, problems);
  return source;
}

}  // namespace orvane
