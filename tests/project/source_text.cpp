#include "tests/project/source_text.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

namespace orvane::project {
namespace {

namespace fs = std::filesystem;

// The paths that git lists, or none when it is absent or refuses.
std::vector<std::string> ListedByGit(const std::string& root) {
  const std::string command =
      "git -C '" + root + "' -c core.quotePath=off ls-files --cached --others --exclude-standard 2>/dev/null";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string output;
  char part[4096];
  for (std::size_t count = 1; pipe && count > 0;) {
    count = fread(part, 1, sizeof part, pipe.get());
    output.append(part, count);
  }
  return Lines(output);
}

std::vector<std::string> ListedByWalking(const std::string& root) {
  std::vector<std::string> paths;
  for (fs::recursive_directory_iterator it(root), end; it != end; ++it) {
    const std::string name = it->path().filename().string();
    if (it->is_directory() && (name == ".git" || (it.depth() == 0 && StartsWith(name, "build")))) {
      it.disable_recursion_pending();
    } else if (it->is_regular_file()) {
      paths.push_back(fs::relative(it->path(), root).generic_string());
    }
  }
  return paths;
}

// Blanks text[from, to) but for its line breaks.
void Blank(std::string& text, std::size_t from, std::size_t to) {
  for (std::size_t i = from; i < to && i < text.size(); ++i) {
    if (text[i] != '\n') text[i] = ' ';
  }
}

// The end of a literal that opens with the quote at `start`, just past its closing quote. Of one that is
// never closed it is one past the end of the code, so that its last character counts as inside.
std::size_t LiteralEnd(std::string_view code, std::size_t start) {
  const char quote = code[start];
  std::size_t i = start + 1;
  while (i < code.size() && code[i] != quote && code[i] != '\n') i += code[i] == '\\' ? 2 : 1;
  return i + 1;
}

// The end of R"tag(...)tag", whose opening quote is at `start`.
std::size_t RawLiteralEnd(std::string_view code, std::size_t start) {
  const std::size_t open = code.find('(', start);
  if (open == std::string_view::npos) return code.size() + 1;
  const std::string close = ")" + std::string(code.substr(start + 1, open - start - 1)) + "\"";
  const std::size_t end = code.find(close, open);
  return end == std::string_view::npos ? code.size() + 1 : end + close.size();
}

bool IsDigitSeparator(std::string_view code, std::size_t i) {
  return i > 0 && i + 1 < code.size() && IsWordCharacter(code[i - 1]) && IsWordCharacter(code[i + 1]) &&
         code[i - 1] != 'u' && code[i - 1] != 'U' && code[i - 1] != 'L';
}

}  // namespace

FileMap ReadProject(const std::string& root) {
  std::vector<std::string> paths = ListedByGit(root);
  if (paths.empty()) paths = ListedByWalking(root);
  FileMap files;
  for (const std::string& path : paths) {
    std::ifstream in(fs::path(root) / path, std::ios::binary);
    if (!in) continue;  // Listed, but deleted in the working tree.
    files[path] = std::string(std::istreambuf_iterator<char>(in), {});
  }
  return files;
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::vector<std::string> Words(std::string_view text, std::string_view separators) {
  std::vector<std::string> words;
  for (std::size_t start = text.find_first_not_of(separators); start != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
    words.emplace_back(text.substr(start, end - start));
    start = text.find_first_not_of(separators, end);
  }
  return words;
}

std::string AsciiLowered(std::string_view text) {
  std::string lowered(text);
  for (char& c : lowered) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lowered;
}

bool IsWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool EndsWith(std::string_view text, std::string_view end) { return text.ends_with(end); }
bool StartsWith(std::string_view text, std::string_view start) { return text.starts_with(start); }

std::string FirstFolder(std::string_view path) {
  const std::size_t slash = path.find('/');
  return slash == std::string_view::npos ? std::string() : std::string(path.substr(0, slash));
}

std::string Stem(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  return std::string(name.substr(0, name.rfind('.')));
}

bool IsSource(std::string_view path) { return EndsWith(path, ".h") || EndsWith(path, ".cpp"); }

std::string WithoutCommentsAndLiterals(std::string_view code) {
  std::string plain(code);
  for (std::size_t i = 0; i < code.size();) {
    const char c = code[i];
    if (c == '/' && code.substr(i, 2) == "//") {
      const std::size_t end = std::min(code.find('\n', i), code.size());
      Blank(plain, i, end);
      i = end;
    } else if (c == '/' && code.substr(i, 2) == "/*") {
      const std::size_t close = code.find("*/", i + 2);
      const std::size_t end = close == std::string_view::npos ? code.size() : close + 2;
      Blank(plain, i, end);
      i = end;
    } else if (c == '"' || (c == '\'' && !IsDigitSeparator(code, i))) {
      const bool raw = c == '"' && i > 0 && code[i - 1] == 'R';
      const std::size_t end = raw ? RawLiteralEnd(code, i) : LiteralEnd(code, i);
      Blank(plain, i + 1, end - 1);
      i = end;
    } else {
      ++i;
    }
  }
  return plain;
}

std::vector<Include> Includes(std::string_view code) {
  std::vector<Include> includes;
  int number = 0;
  for (const std::string& line : Lines(code)) {
    ++number;
    const std::size_t hash = line.find_first_not_of(" \t");
    if (hash == std::string::npos || line[hash] != '#') continue;
    const std::size_t word = line.find_first_not_of(" \t", hash + 1);
    if (word == std::string::npos || line.compare(word, 7, "include") != 0) continue;
    const std::size_t open = line.find_first_of("\"<", word);
    if (open == std::string::npos) continue;
    const bool quoted = line[open] == '"';
    const std::size_t close = line.find(quoted ? '"' : '>', open + 1);
    if (close == std::string::npos) continue;
    includes.push_back({line.substr(open + 1, close - open - 1), quoted, number});
  }
  return includes;
}

}  // namespace orvane::project
