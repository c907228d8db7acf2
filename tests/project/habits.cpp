#include "tests/project/habits.h"

#include <algorithm>
#include <array>

namespace orvane::project {
namespace {

constexpr std::array<std::string_view, 10> kVagueFolders = {
    "util", "utils", "utility", "utilities", "common", "shared", "misc", "helper", "helpers", "stuff"};

constexpr std::array<std::string_view, 4> kForeignNames = {"cairo_", "FT_", "SDL_", "PangoLayout"};

bool InCheckedRoom(const std::string& path, const std::set<std::string>& rooms) {
  return IsSource(path) && rooms.contains(FirstFolder(path));
}

// The text without what stands between < and > or ( and ); an operator such as << or -> is kept.
std::string WithoutBrackets(std::string_view text, char open, char close) {
  std::string outside;
  int depth = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool arrow = text[i] == '>' && i > 0 && text[i - 1] == '-';
    if (text[i] == open) {
      ++depth;
    } else if (text[i] == close && depth > 0 && !arrow) {
      --depth;
    } else if (depth == 0) {
      outside += text[i];
    }
  }
  return outside;
}

bool Has(const std::vector<std::string>& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

// What a statement declares before its first initialiser: up to = or {, but not inside parentheses.
std::string Declarator(std::string_view statement) {
  int depth = 0;
  for (std::size_t i = 0; i < statement.size(); ++i) {
    if (statement[i] == '(') ++depth;
    if (statement[i] == ')') --depth;
    if (depth == 0 && (statement[i] == '=' || statement[i] == '{'))
      return std::string(statement.substr(0, i));
  }
  return std::string(statement);
}

bool DeclaresFunctionPointer(const std::string& declarator) {
  const std::size_t at = declarator.find("(*");
  return at != std::string::npos && declarator.find(")(", at) != std::string::npos &&
         declarator.find('(') == at && declarator.find("const", at) == std::string::npos;
}

// Whether one statement of namespace scope (or one that begins with `static`) declares a variable whose
// value can change. `statement` comes without comments, literals and the final semicolon.
bool DeclaresMutableVariable(std::string_view statement) {
  const std::vector<std::string> words = Words(WithoutBrackets(statement, '<', '>'), " \t\r\n,;&*()[]{}=");
  if (words.empty() || statement[statement.find_first_not_of(" \t\r\n")] == ',') return false;
  for (const std::string_view word : {"using", "typedef", "template", "friend", "namespace", "static_assert",
                                      "concept", "requires", "operator", "constexpr", "asm"}) {
    if (Has(words, word)) return false;
  }
  std::string declarator = WithoutBrackets(Declarator(statement), '<', '>');
  if (DeclaresFunctionPointer(declarator)) return true;
  if (declarator.find('(') != std::string::npos) return false;  // A function.
  const std::vector<std::string> declared = Words(declarator, " \t\r\n&*[]");
  if (declared.size() < 2) return false;
  for (const std::string_view type : {"class", "struct", "enum", "union"}) {
    // A definition or a declaration of a type; with a variable after its body it is both.
    if (!Has(declared, type)) continue;
    const std::size_t close = statement.rfind('}');
    return close != std::string_view::npos && !Words(statement.substr(close + 1)).empty();
  }
  const std::size_t star = declarator.rfind('*');
  if (star != std::string::npos) declarator = declarator.substr(star);
  return !Has(Words(declarator, " \t\r\n&*[]"), "const");
}

enum class Scope { kNamespace, kInitialiser, kOther };

// Reads a source once and collects the statements that DeclaresMutableVariable objects to.
class GlobalFinder {
 public:
  std::vector<std::string> Find(std::string_view code) {
    scopes_ = {{Scope::kNamespace, ""}};
    for (const char c : code) {
      if (c == '{') {
        Open();
      } else if (c == '}') {
        Close();
      } else if (c == ';') {
        EndStatement();
      } else {
        scopes_.back().statement += c;
      }
    }
    return std::move(found_);
  }

 private:
  struct Level {
    Scope scope;
    std::string statement;  // since the last ; { or } of this level
  };

  void Open() {
    const std::string& before = scopes_.back().statement;
    const std::vector<std::string> words = Words(before);
    const bool isNamespace =
        !words.empty() && (words[0] == "namespace" || words[0] == "extern" ||
                           (words[0] == "inline" && words.size() > 1 && words[1] == "namespace"));
    scopes_.push_back({isNamespace ? Scope::kNamespace : Scope::kOther, ""});
  }

  void Close() {
    if (scopes_.size() < 2) return;  // More } than {: nothing sensible follows.
    const Scope closed = scopes_.back().scope;
    scopes_.pop_back();
    std::string& statement = scopes_.back().statement;
    if (closed == Scope::kNamespace || (IsFunctionHead(statement) && !IsMemberInitialiser(statement))) {
      statement.clear();
    } else {
      statement += "{}";
    }
  }

  // Parentheses before the first = or { are those of a function's parameters.
  static bool IsFunctionHead(const std::string& statement) {
    return WithoutBrackets(Declarator(statement), '<', '>').find('(') != std::string::npos;
  }

  // `Name::Name(int a) : first_` or `..., second_`, whose braces hold a value and not the body.
  static bool IsMemberInitialiser(const std::string& statement) {
    std::size_t i = statement.find_last_not_of(" \t\r\n");
    if (i == std::string::npos || !IsWordCharacter(statement[i])) return false;
    while (i > 0 && IsWordCharacter(statement[i])) --i;
    i = statement.find_last_not_of(" \t\r\n", i);
    if (i == std::string::npos || (statement[i] != ',' && statement[i] != ':')) return false;
    return i == 0 || statement[i - 1] != ':';
  }

  void EndStatement() {
    Level& level = scopes_.back();
    const std::vector<std::string> words = Words(level.statement);
    const bool judged =
        level.scope == Scope::kNamespace ||
        (!words.empty() && (words[0] == "static" || words[0] == "thread_local" ||
                            (words[0] == "inline" && words.size() > 1 && words[1] == "static")));
    if (judged && DeclaresMutableVariable(level.statement)) {
      std::string text;
      for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
      found_.push_back(text);
    }
    level.statement.clear();
  }

  std::vector<Level> scopes_;
  std::vector<std::string> found_;
};

// Blanks preprocessor lines with their continuations, and the labels of access sections.
std::string WithoutDirectives(const std::string& code) {
  std::string plain;
  bool directive = false;
  for (const std::string& line : Lines(code)) {
    const std::vector<std::string> words = Words(line);
    directive = directive || (!words.empty() && words[0][0] == '#');
    const bool label =
        words.size() == 1 && (words[0] == "public:" || words[0] == "private:" || words[0] == "protected:");
    if (!directive && !label) plain += line;
    plain += '\n';
    directive = directive && EndsWith(line, "\\");
  }
  return plain;
}

bool HasWordStart(std::string_view code, std::string_view name) {
  for (std::size_t at = code.find(name); at != std::string_view::npos; at = code.find(name, at + 1)) {
    if (at == 0 || !IsWordCharacter(code[at - 1])) return true;
  }
  return false;
}

}  // namespace

Findings CheckForeignTypes(const FileMap& files, const std::set<std::string>& rooms) {
  Findings findings;
  for (const auto& [path, code] : files) {
    if (!InCheckedRoom(path, rooms) || FirstFolder(path) == "platform") continue;
    const std::string plain = WithoutCommentsAndLiterals(code);
    for (const std::string_view name : kForeignNames) {
      if (HasWordStart(plain, name)) {
        findings.push_back(path + ": names of the drawing libraries (" + std::string(name) +
                           ") stand in platform/ alone");
      }
    }
  }
  return findings;
}

Findings CheckConditionals(const FileMap& files, const std::set<std::string>& rooms) {
  Findings findings;
  for (const auto& [path, code] : files) {
    if (!InCheckedRoom(path, rooms) || FirstFolder(path) == "platform") continue;
    for (const std::string& line : Lines(WithoutCommentsAndLiterals(code))) {
      const std::vector<std::string> words = Words(line);
      if (words.empty() || words[0][0] != '#') continue;
      const std::string directive = words[0] == "#" && words.size() > 1 ? words[1] : words[0].substr(1);
      if (StartsWith(directive, "if") || StartsWith(directive, "elif")) {
        findings.push_back(path + ": conditional compilation outside platform/: " + line);
      }
    }
  }
  return findings;
}

std::vector<std::string> MutableGlobals(std::string_view code) {
  return GlobalFinder().Find(WithoutDirectives(WithoutCommentsAndLiterals(code)));
}

Findings CheckMutableGlobals(const FileMap& files, const std::set<std::string>& rooms) {
  Findings findings;
  for (const auto& [path, code] : files) {
    if (!InCheckedRoom(path, rooms)) continue;
    for (const std::string& statement : MutableGlobals(code)) {
      findings.push_back(path + ": a variable that outlives its owner: " + statement);
    }
  }
  return findings;
}

Findings CheckFileLengths(const FileMap& files) {
  Findings findings;
  for (const auto& [path, code] : files) {
    const std::ptrdiff_t lines = std::count(code.begin(), code.end(), '\n');
    if (IsSource(path) && lines > kLongestFile) {
      findings.push_back(path + ": " + std::to_string(lines) + " lines; " + std::to_string(kLongestFile) +
                         " are the most");
    }
  }
  return findings;
}

Findings CheckFolderNames(const FileMap& files) {
  std::set<std::string> vague;
  for (const auto& [path, code] : files) {
    std::vector<std::string> parts = Words(path, "/");
    if (parts.empty()) continue;
    parts.pop_back();
    for (const std::string& part : parts) {
      if (std::find(kVagueFolders.begin(), kVagueFolders.end(), AsciiLowered(part)) != kVagueFolders.end()) {
        vague.insert(path + ": the folder name " + part + " says nothing of its contents");
      }
    }
  }
  return {vague.begin(), vague.end()};
}

}  // namespace orvane::project
