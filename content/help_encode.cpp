#include "content/dat_writer.h"
#include "content/help_source.h"
#include "data/help_file.h"

namespace orvane {

namespace {

constexpr Char kBullet = u'•';

std::uint16_t Short(std::size_t value) { return static_cast<std::uint16_t>(value); }

Text BlockText(const HelpBlock& block) {
  Text text;
  for (const HelpLine& line : block.lines) {
    if (!text.empty()) text.push_back(kNewLine);
    if (block.kind == HelpBlock::Kind::kList) text += {kBullet, u' '};
    text += StyledText(line);
  }
  return text;
}

Text HeadingText(const HelpBlock& block) {
  HelpLine line = block.lines.front();
  for (HelpSpan& span : line) span.style.bold = true;
  return StyledText(line);
}

std::string EncodeBody(const HelpSource& source, std::size_t index) {
  const HelpPageSource& page = source.pages[index];
  const bool last = index + 1 == source.pages.size();
  DatWriter out;
  out.Short(
      Short(static_cast<std::size_t>(index == 0 ? HelpFile::kNoNeighbour : source.pages[index - 1].id)));
  out.Short(Short(static_cast<std::size_t>(last ? HelpFile::kNoNeighbour : source.pages[index + 1].id)));
  const std::vector<Text> paragraphs = ParagraphsOf(page);
  out.Short(Short(paragraphs.size()));
  for (const Text& paragraph : paragraphs) out.CountedString(paragraph);
  const std::vector<int> links = source.LinksOf(page);
  out.Short(Short(links.size()));
  for (const int link : links)
    out.Short(Short(static_cast<std::size_t>(source.pages[static_cast<std::size_t>(link)].id)));
  return out.Bytes();
}

void EncodeContents(DatWriter& out, const HelpSource& source) {
  for (const unsigned char byte : HelpFile::kMagic) out.Byte(byte);
  out.Short(Short(source.contents.size()));
  for (const HelpContentsLine& line : source.contents) {
    out.Bool(line.page >= 0);
    out.Short(Short(static_cast<std::size_t>(line.level)));
    if (line.page >= 0) {
      out.Short(Short(static_cast<std::size_t>(source.pages[static_cast<std::size_t>(line.page)].id)));
    } else {
      out.CountedString(line.heading);
    }
  }
}

}  // namespace

// A heading stands on the line above its text, without the gap that parts paragraphs. One above a list of
// links is for the web and for paper: on the screen every page offers its links below the text, underlined
// and blue.
std::vector<Text> ParagraphsOf(const HelpPageSource& page) {
  std::vector<Text> paragraphs;
  Text heading;
  for (const HelpBlock& block : page.blocks) {
    if (block.kind == HelpBlock::Kind::kHeading) {
      if (!heading.empty()) paragraphs.push_back(heading);
      heading = HeadingText(block);
      continue;
    }
    if (block.kind != HelpBlock::Kind::kLinks) {
      if (!heading.empty()) heading.push_back(kNewLine);
      paragraphs.push_back(heading + BlockText(block));
    }
    heading.clear();
  }
  if (!heading.empty()) paragraphs.push_back(heading);
  return paragraphs;
}

std::string EncodeHelp(const HelpSource& source) {
  std::vector<std::string> bodies;
  std::size_t directorySize = 2;
  for (std::size_t i = 0; i < source.pages.size(); ++i) {
    bodies.push_back(EncodeBody(source, i));
    directorySize += 2 + 4 + 2 + DatWriter::EscapedSize(source.pages[i].title);
  }
  DatWriter out;
  EncodeContents(out, source);
  std::size_t offset = out.Bytes().size() + directorySize;
  out.Short(Short(source.pages.size()));
  for (std::size_t i = 0; i < source.pages.size(); ++i) {
    out.Short(Short(static_cast<std::size_t>(source.pages[i].id)));
    out.Long(static_cast<std::uint32_t>(offset));
    out.CountedString(source.pages[i].title);
    offset += bodies[i].size();
  }
  std::string bytes = out.Bytes();
  for (const std::string& body : bodies) bytes += body;
  return bytes;
}

}  // namespace orvane
