// The manual for the web and for paper.
#include "content/help_source.h"

namespace orvane {

namespace {

constexpr const char* kIndex = "README.md";

std::string MadeFrom(const std::string& file) {
  return "<!-- Made from content/help/" + file + ". Edit that, then build the target \"manual\". -->\n";
}

std::string ListOf(const std::vector<HelpLine>& lines) {
  std::string out;
  for (const HelpLine& line : lines) out += "- " + MarkdownText(line) + "\n";
  return out;
}

std::string BlockMarkdown(const HelpBlock& block) {
  switch (block.kind) {
    case HelpBlock::Kind::kHeading:
      return "## " + MarkdownText(block.lines.front()) + "\n";
    case HelpBlock::Kind::kParagraph:
      return MarkdownText(block.lines.front()) + "\n";
    default:
      return ListOf(block.lines);
  }
}

std::string LinkTo(const HelpPageSource& page) { return MarkdownText({{page.title, {}, false, page.file}}); }

std::string Navigation(const HelpSource& source, std::size_t index) {
  std::string out;
  if (index > 0) out += "Previous: " + LinkTo(source.pages[index - 1]) + " · ";
  out += std::string("[Contents](") + kIndex + ")";
  if (index + 1 < source.pages.size()) out += " · Next: " + LinkTo(source.pages[index + 1]);
  return out + "\n";
}

std::string PageMarkdown(const HelpSource& source, std::size_t index) {
  const HelpPageSource& page = source.pages[index];
  std::string out = MadeFrom(page.file) + "\n# " + MarkdownText({{page.title, {}, false, {}}}) + "\n";
  for (const HelpBlock& block : page.blocks) out += "\n" + BlockMarkdown(block);
  return out + "\n---\n\n" + Navigation(source, index);
}

std::string ContentsMarkdown(const HelpSource& source) {
  std::string out = MadeFrom(std::string(kHelpContentsFile)) + "\n# The manual\n";
  bool inList = false;
  for (const HelpContentsLine& line : source.contents) {
    if (line.page < 0) {
      out += "\n" + std::string(static_cast<std::size_t>(line.level) + 2, '#') + " " + ToUtf8(line.heading) +
             "\n";
    } else {
      out += (inList ? "- " : "\n- ") + LinkTo(source.pages[static_cast<std::size_t>(line.page)]) + "\n";
    }
    inList = line.page >= 0;
  }
  return out;
}

}  // namespace

std::map<std::string, std::string> WriteManual(const HelpSource& source) {
  std::map<std::string, std::string> files;
  files[kIndex] = ContentsMarkdown(source);
  for (std::size_t i = 0; i < source.pages.size(); ++i) files[source.pages[i].file] = PageMarkdown(source, i);
  return files;
}

}  // namespace orvane
