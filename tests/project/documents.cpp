#include "tests/project/documents.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>

namespace orvane::project {
namespace {

struct ForbiddenWord {
  std::string_view text;  // lower case
  std::string_view reason;
};

constexpr std::string_view kUnfinished = "finish it, or say in plain words what is not there";
constexpr std::string_view kOwnMachine = "a path of one machine means nothing on another";

// Each counts as a whole word: no letter, digit or underscore may touch its ends, except where the text
// itself begins or ends with another character.
constexpr std::array<ForbiddenWord, 9> kForbidden = {{
    {"todo", kUnfinished},
    {"fixme", kUnfinished},
    {"xxx", kUnfinished},
    {"hack", kUnfinished},
    {"/tmp/", kOwnMachine},
    {"/root/", kOwnMachine},
    {"/home/", kOwnMachine},
    {"/users/", kOwnMachine},
    {"/mnt/", kOwnMachine},
}};

// The two files that must name the words, and the one that lists the world's paths for git to ignore.
bool MayNameThem(const std::string& path) {
  return path == "tests/project/documents.cpp" || path == "tests/project/documents_test.cpp";
}

bool IsBinary(std::string_view contents) { return contents.find('\0') != std::string_view::npos; }

bool FoundAt(std::string_view line, std::size_t at, std::string_view word) {
  const bool startsInside =
      at > 0 && IsWordCharacter(line[at - 1]) && (IsWordCharacter(word[0]) || word[0] == '/');
  const std::size_t end = at + word.size();
  const bool endsInside = end < line.size() && IsWordCharacter(line[end]) && IsWordCharacter(word.back());
  return !startsInside && !endsInside;
}

bool Contains(std::string_view line, std::string_view word) {
  for (std::size_t at = line.find(word); at != std::string_view::npos; at = line.find(word, at + 1)) {
    if (FoundAt(line, at, word)) return true;
  }
  return false;
}

// A page's lines with fenced and inline code blanked.
std::vector<std::string> ProseLines(std::string_view page) {
  std::vector<std::string> lines = Lines(page);
  bool fenced = false;
  for (std::string& line : lines) {
    const bool fence = StartsWith(line.substr(std::min(line.find_first_not_of(' '), line.size())), "```");
    if (fence) fenced = !fenced;
    if (fence || fenced) {
      line.clear();
      continue;
    }
    bool code = false;
    for (char& c : line) {
      if (c == '`') {
        code = !code;
      } else if (code) {
        c = ' ';
      }
    }
  }
  return lines;
}

std::set<std::string> Anchors(std::string_view page) {
  std::set<std::string> anchors;
  bool fenced = false;
  for (const std::string& line : Lines(page)) {
    if (StartsWith(line, "```")) fenced = !fenced;
    if (!fenced && StartsWith(line, "#")) anchors.insert(HeadingAnchor(line));
  }
  return anchors;
}

bool IsFolder(const FileMap& files, const std::string& path) {
  const std::string start = path + (EndsWith(path, "/") ? "" : "/");
  const auto it = files.lower_bound(start);
  return it != files.end() && StartsWith(it->first, start);
}

// The path that a link from a page stands for, without its anchor; empty for other sites.
std::string PathOfLink(const std::string& page, std::string_view target) {
  for (const std::string_view site : {"http://", "https://", "mailto:"}) {
    if (StartsWith(target, site)) return "";
  }
  target = target.substr(0, target.find('#'));
  if (target.empty()) return page;
  return (std::filesystem::path(page).parent_path() / target).lexically_normal().generic_string();
}

// An empty text when the link leads somewhere, else what is wrong with it.
std::string FaultOfLink(const FileMap& files, const std::string& page, const std::string& target) {
  if (target.empty()) return "a link to nothing";
  const std::string path = PathOfLink(page, target);
  if (path.empty()) return "";
  const auto file = files.find(path);
  if (file == files.end()) return path == "." || IsFolder(files, path) ? "" : "no such file: " + path;
  const std::size_t hash = target.find('#');
  if (hash == std::string::npos || Anchors(file->second).contains(target.substr(hash + 1))) return "";
  return path + " has no heading " + target.substr(hash);
}

struct Link {
  std::string target;  // as written, without a title
  int line = 0;        // from 1
};

std::vector<Link> LinksOf(std::string_view page) {
  std::vector<Link> links;
  int number = 0;
  for (const std::string& line : ProseLines(page)) {
    ++number;
    for (std::size_t at = line.find("]("); at != std::string::npos; at = line.find("](", at + 1)) {
      const std::size_t close = line.find(')', at);
      if (close == std::string::npos) break;
      const std::vector<std::string> words = Words(line.substr(at + 2, close - at - 2));
      links.push_back({words.empty() ? std::string() : words[0], number});
    }
  }
  return links;
}

bool IsPage(std::string_view path) { return EndsWith(path, ".md"); }

}  // namespace

std::string HeadingAnchor(std::string_view heading) {
  std::string anchor;
  heading.remove_prefix(std::min(heading.find_first_not_of("# "), heading.size()));
  for (const char c : AsciiLowered(heading)) {
    if (c == ' ') {
      anchor += '-';
    } else if (IsWordCharacter(c) || c == '-' || static_cast<unsigned char>(c) >= 0x80) {
      anchor += c;
    }
  }
  return anchor;
}

Findings CheckLinks(const FileMap& files) {
  Findings findings;
  for (const auto& [page, contents] : files) {
    if (!IsPage(page)) continue;
    for (const Link& link : LinksOf(contents)) {
      const std::string fault = FaultOfLink(files, page, link.target);
      if (!fault.empty()) findings.push_back(page + ":" + std::to_string(link.line) + ": " + fault);
    }
  }
  return findings;
}

Findings CheckIndex(const FileMap& files) {
  std::set<std::string> linked;
  for (const auto& [page, contents] : files) {
    if (!IsPage(page)) continue;
    for (const Link& link : LinksOf(contents)) {
      const std::string path = PathOfLink(page, link.target);
      if (path != page) linked.insert(path);
    }
  }
  Findings findings;
  for (const auto& [page, contents] : files) {
    if (IsPage(page) && FirstFolder(page) == "docs" && !linked.contains(page)) {
      findings.push_back(page + ": no other page links to it; docs/README.md is the index");
    }
  }
  return findings;
}

Findings CheckMentions(const FileMap& files) {
  Findings findings;
  for (const auto& [path, contents] : files) {
    if (IsPage(path) || IsBinary(contents) || FirstFolder(path) == "tests") continue;
    for (std::size_t at = contents.find("docs/"); at != std::string::npos;
         at = contents.find("docs/", at + 1)) {
      if (at > 0 && (IsWordCharacter(contents[at - 1]) || contents[at - 1] == '/')) continue;
      std::size_t end = at;
      while (end < contents.size() && (IsWordCharacter(contents[end]) ||
                                       std::string_view("/.-").find(contents[end]) != std::string_view::npos))
        ++end;
      std::string page = contents.substr(at, end - at);
      while (EndsWith(page, ".")) page.pop_back();
      if (IsPage(page) && !files.contains(page)) findings.push_back(path + ": there is no " + page);
    }
  }
  return findings;
}

Findings CheckWords(const FileMap& files) {
  Findings findings;
  for (const auto& [path, contents] : files) {
    if (IsBinary(contents) || MayNameThem(path)) continue;
    int number = 0;
    for (const std::string& line : Lines(AsciiLowered(contents))) {
      ++number;
      const std::string where = path + ":" + std::to_string(number);
      for (const auto& [word, reason] : kForbidden) {
        if (Contains(line, word)) {
          findings.push_back(where + ": \"" + std::string(word) + "\": " + std::string(reason));
        }
      }
    }
  }
  return findings;
}

}  // namespace orvane::project
