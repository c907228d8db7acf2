#include "tests/project/layers.h"

#include <algorithm>
#include <array>

namespace orvane::project {
namespace {

constexpr std::string_view kStandardHeaders =
    " algorithm any array atomic barrier bit bitset cassert ccomplex cctype cerrno cfenv cfloat charconv "
    "chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine "
    "csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque "
    "exception execution filesystem forward_list fstream functional future initializer_list iomanip ios "
    "iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new numbers "
    "numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex "
    "source_location span sstream stack stdexcept stop_token streambuf string string_view syncstream "
    "system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray "
    "variant vector version ";

// Which library a header belongs to, by the beginning of its name.
constexpr std::array<std::array<std::string_view, 2>, 24> kLibraryHeaders = {{
    {"SDL", "sdl"},           {"cairo", "cairo"},       {"ft2build.h", "freetype"},  {"freetype", "freetype"},
    {"png.h", "png"},         {"nlohmann/", "json"},    {"CLI/", "cli11"},           {"gmp", "gmp"},
    {"gtest/", "googletest"}, {"gmock/", "googletest"}, {"benchmark/", "benchmark"}, {"dirent.h", "posix"},
    {"fcntl.h", "posix"},     {"poll.h", "posix"},      {"pwd.h", "posix"},          {"signal.h", "posix"},
    {"spawn.h", "posix"},     {"sys/", "posix"},        {"time.h", "posix"},         {"unistd.h", "posix"},
    {"arpa/", "posix"},       {"netinet/", "posix"},    {"termios.h", "posix"},      {"dlfcn.h", "posix"},
}};

// The library of a header: "" for the standard library, "?" for a header that nobody listed.
std::string LibraryOf(const std::string& header) {
  if (kStandardHeaders.find(" " + header + " ") != std::string_view::npos) return "";
  for (const auto& [start, library] : kLibraryHeaders) {
    if (StartsWith(header, start)) return std::string(library);
  }
  return "?";
}

std::set<std::string> SetOf(const std::vector<std::string>& words) {
  std::set<std::string> all(words.begin(), words.end());
  all.erase("-");
  return all;
}

std::string Joined(const std::set<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text.empty() ? "nothing" : text;
}

std::string At(const std::string& path, int line) { return path + ":" + std::to_string(line); }

// A screen's units are named after it; "wnd_plot_axes" belongs to wnd_plot, "wnd_plotset" does not.
bool IsScreen(const std::string& stem) { return StartsWith(stem, "wnd_") || StartsWith(stem, "help"); }

bool SameScreen(const std::string& a, const std::string& b) {
  const auto belongs = [](const std::string& part, const std::string& whole) {
    return StartsWith(part, whole) && (part.size() == whole.size() || part[whole.size()] == '_');
  };
  return belongs(a, b) || belongs(b, a);
}

bool IsScreenFolder(const std::string& folder) { return folder == "tools" || folder == "help"; }

void CheckInclude(const std::string& path, const Include& include, const Layers& layers,
                  const std::set<std::string>& reach, Findings& findings) {
  const std::string room = FirstFolder(path);
  const std::string target = FirstFolder(include.target);
  const std::string where = At(path, include.line) + " includes \"" + include.target + "\"";
  if (!layers.contains(target)) {
    findings.push_back(where + ": a quoted include begins with the name of a room");
  } else if (!reach.contains(target)) {
    findings.push_back(where + ": " + room + "/ may include " + Joined(reach));
  }
  if (target == "platform" && room != "platform" && StartsWith(Stem(include.target), "host_") &&
      path != "app/main.cpp") {
    findings.push_back(where + ": hosts are seen by the program's main file alone");
  }
  if (IsScreenFolder(room) && IsScreenFolder(target) && IsScreen(Stem(path)) &&
      IsScreen(Stem(include.target)) && !SameScreen(Stem(path), Stem(include.target))) {
    findings.push_back(where + ": screens never include each other");
  }
}

// The words of every call NAME(...) in a build file, without its comments.
std::vector<std::vector<std::string>> Calls(const std::string& cmake, const std::string& name) {
  std::string text;
  for (const std::string& line : Lines(cmake)) text += line.substr(0, line.find('#')) + "\n";
  std::vector<std::vector<std::string>> calls;
  for (std::size_t at = text.find(name + "("); at != std::string::npos; at = text.find(name + "(", at + 1)) {
    const std::size_t open = at + name.size() + 1;
    const std::size_t close = std::min(text.find(')', open), text.size());
    calls.push_back(Words(std::string_view(text).substr(open, close - open)));
  }
  return calls;
}

std::set<std::string> AfterKeyword(const std::vector<std::string>& words, const std::string& keyword) {
  std::set<std::string> found;
  auto it = std::find(words.begin(), words.end(), keyword);
  if (it != words.end()) ++it;
  for (; it != words.end() && *it != "EXCLUDE"; ++it) found.insert(*it);
  return found;
}

void CheckBuildFile(const std::string& path, const std::string& cmake, const Layers& layers,
                    Findings& findings) {
  const std::string room = FirstFolder(path);
  const std::set<std::string> reach = Reach(layers, room);
  for (const auto& call : Calls(cmake, "orvane_room")) {
    const std::set<std::string> depends = AfterKeyword(call, "DEPENDS");
    if (call.empty() || call[0] != room) {
      findings.push_back(path + ": the room is named after its folder");
    }
    if (depends != layers.at(room).mayInclude) {
      findings.push_back(path + ": DEPENDS is " + Joined(depends) + ", the table says " +
                         Joined(layers.at(room).mayInclude));
    }
  }
  for (const auto& call : Calls(cmake, "target_link_libraries")) {
    for (const std::string& word : call) {
      const std::string linked = StartsWith(word, "orvane_") ? word.substr(7) : std::string();
      if (layers.contains(linked) && !reach.contains(linked)) {
        findings.push_back(path + ": links " + linked + "; " + room + "/ may link " + Joined(reach));
      }
    }
  }
}

// The words of a table cell; "-" and "–" stand for none, backticks and slashes are decoration.
std::set<std::string> Cell(const std::string& cell) {
  std::set<std::string> words;
  for (const std::string& word : Words(cell, " \t,`/")) {
    if (word != "-" && word != "–") words.insert(word);
  }
  return words;
}

}  // namespace

Layers ParseLayers(std::string_view table, Findings& findings) {
  Layers layers;
  for (const std::string& line : Lines(table)) {
    const std::vector<std::string> words = Words(line);
    if (words.empty() || words[0][0] == '#') continue;
    if (words.size() < 3) {
      findings.push_back("layers: a row has a room, what it may include, and libraries: " + line);
      continue;
    }
    Room& room = layers[words[0]];
    room.mayInclude = SetOf(Words(words[1], ","));
    room.libraries = SetOf({words.begin() + 2, words.end()});
  }
  for (const auto& [name, room] : layers) {
    for (const std::string& other : room.mayInclude) {
      if (!layers.contains(other)) findings.push_back("layers: " + name + " names no room: " + other);
    }
  }
  return layers;
}

std::set<std::string> Reach(const Layers& layers, const std::string& room) {
  std::set<std::string> reached;
  std::vector<std::string> open = {room};
  while (!open.empty()) {
    const std::string next = open.back();
    open.pop_back();
    const auto row = layers.find(next);
    if (row == layers.end() || !reached.insert(next).second) continue;
    open.insert(open.end(), row->second.mayInclude.begin(), row->second.mayInclude.end());
  }
  return reached;
}

Findings CheckIncludes(const FileMap& files, const Layers& layers) {
  Findings findings;
  for (const auto& [path, code] : files) {
    const std::string room = FirstFolder(path);
    if (!layers.contains(room) || !IsSource(path)) continue;
    const std::set<std::string> reach = Reach(layers, room);
    for (const Include& include : Includes(code)) {
      if (include.quoted) CheckInclude(path, include, layers, reach, findings);
    }
  }
  return findings;
}

Findings CheckLibraries(const FileMap& files, const Layers& layers) {
  Findings findings;
  for (const auto& [path, code] : files) {
    const auto row = layers.find(FirstFolder(path));
    if (row == layers.end() || !IsSource(path)) continue;
    for (const Include& include : Includes(code)) {
      if (include.quoted) continue;
      const std::string library = LibraryOf(include.target);
      if (library.empty() || row->second.libraries.contains(library)) continue;
      findings.push_back(At(path, include.line) + " includes <" + include.target + ">: " + row->first +
                         "/ may use, beside the standard library, " + Joined(row->second.libraries));
    }
  }
  return findings;
}

Findings CheckBuildFiles(const FileMap& files, const Layers& layers) {
  Findings findings;
  for (const auto& [room, row] : layers) {
    const auto file = files.find(room + "/CMakeLists.txt");
    if (file == files.end()) {
      findings.push_back(room + "/CMakeLists.txt is missing");
    } else {
      CheckBuildFile(file->first, file->second, layers, findings);
    }
  }
  return findings;
}

Findings CheckArchitecturePage(const FileMap& files, const Layers& layers) {
  const auto page = files.find("docs/architecture.md");
  if (page == files.end()) return {"docs/architecture.md is missing"};
  Findings findings;
  std::set<std::string> seen;
  for (const std::string& line : Lines(page->second)) {
    const std::vector<std::string> cells = Words(line, "|");
    if (!StartsWith(line, "|") || cells.size() != 5) continue;
    const std::set<std::string> name = Cell(cells[1]);
    if (name.size() != 1 || !layers.contains(*name.begin())) continue;
    const Room& room = layers.at(*name.begin());
    seen.insert(*name.begin());
    if (Cell(cells[3]) != room.mayInclude || Cell(cells[4]) != room.libraries) {
      findings.push_back("docs/architecture.md: the row of " + *name.begin() + " differs from layers.txt");
    }
  }
  for (const auto& [name, room] : layers) {
    if (!seen.contains(name)) findings.push_back("docs/architecture.md: no row for " + name);
  }
  return findings;
}

}  // namespace orvane::project
