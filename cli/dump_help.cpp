// "orvane-calc dump help FILE".
#include <cstdint>
#include <filesystem>

#include "cli/dump_command.h"
#include "cli/dump_frame.h"
#include "data/help_file.h"

namespace orvane {

namespace {

void WriteContents(JsonWriter& json, const HelpFile& help) {
  json.Key("contents").BeginArray();
  for (const ContentsEntry& entry : help.Contents()) {
    json.BeginObject().Key("page").Bool(entry.isPage).Key("level").Number(entry.level);
    if (entry.isPage) json.Key("id").Number(entry.pageId);
    json.Key("text").String(help.EntryText(entry)).EndObject();
  }
  json.EndArray();
}

void WriteNeighbour(JsonWriter& json, std::int32_t neighbour) {
  neighbour == kNoPage ? json.Null() : json.Number(neighbour);
}

void WriteBody(JsonWriter& json, const HelpFile& help, const HelpPageBody& body) {
  json.Key("neighbours").BeginArray();
  WriteNeighbour(json, body.neighbour1);
  WriteNeighbour(json, body.neighbour2);
  json.EndArray().Key("paragraphs").BeginArray();
  for (const Text& paragraph : body.paragraphs) json.String(paragraph);
  json.EndArray().Key("links").BeginArray();
  for (const int link : body.links) {
    link == kNoPage ? json.Null() : json.Number(help.Pages()[static_cast<std::size_t>(link)].id);
  }
  json.EndArray();
}

std::uintmax_t SizeOf(const HelpPageBody& body) {
  std::uintmax_t size = body.paragraphs.size() + body.links.size();
  for (const Text& paragraph : body.paragraphs) size += paragraph.size();
  return size;
}

// How much the bodies may hold together, in characters, paragraphs and links. Those that have the file to
// themselves never hold more than its bytes; what is beyond that was read several times over, or is not there
// at all. Thirty thousand pages that share one body could otherwise ask for a thousand million reads.
std::uintmax_t MostOfBodies(const std::string& path) {
  constexpr std::uintmax_t kBeyondTheFile = 1'000'000;
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  return kBeyondTheFile + (error ? 0 : size);
}

// Loads the pages one after the other. Of several with one id only the first can be reached: the others are
// visited without a body, and so are all that follow when the bodies hold too much. False in that case.
template <typename Visit>
bool ForEachBody(HelpFile& help, std::uintmax_t most, MessageReporter& messages, Visit visit) {
  std::uintmax_t held = 0;
  bool complete = true;
  for (std::size_t i = 0; i < help.Pages().size(); ++i) {
    const HelpPage& page = help.Pages()[i];
    if (held > most) complete = false;
    const bool loaded = complete && help.FindPage(page.id) == static_cast<int>(i);
    if (loaded) help.LoadBody(page.id, messages);
    visit(page);
    if (!loaded) continue;
    held += SizeOf(*page.body);
    help.FreeBody(page.id);
  }
  return complete;
}

void WritePages(JsonWriter& json, HelpFile& help, std::uintmax_t most) {
  MessageCollector again;
  json.Key("pages").BeginArray();
  ForEachBody(help, most, again, [&](const HelpPage& page) {
    json.BeginObject().Key("id").Number(page.id).Key("offset").Number(page.offset);
    json.Key("title").String(page.title);
    if (page.body) WriteBody(json, help, *page.body);
    json.EndObject();
  });
  json.EndArray();
}

}  // namespace

// The messages stand before the data, so every body is read twice: once for what reading it says, once for
// what it holds. Only one is in memory at a time.
void DumpHelp(Session& session, const std::string& path) {
  MessageCollector messages;
  HelpFile help;
  const bool opened = help.Open(path, messages);
  const std::uintmax_t most = MostOfBodies(path);
  const bool complete = ForEachBody(help, most, messages, [](const HelpPage&) {});

  JsonWriter json(session.out);
  BeginDump(json, path, opened, messages);
  WriteContents(json, help);
  WritePages(json, help, most);
  EndDump(session, json, path, opened, "help file");
  if (!complete) session.Fail(path + ": its pages hold far more than the file; the last ones are left out");
}

}  // namespace orvane
