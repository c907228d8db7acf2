#include "tests/scenarios/stage.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>

namespace orvane {

namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const fs::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

// The real program folder, or a folder with a file that is damaged in the way of the name.
std::string DataFolder(const std::string& name, const fs::path& work) {
  if (name.empty()) return ORVANE_BIN_DIR "/";
  if (name == "none") return "/nowhere/orvane/";  // the path is in the picture, so it is the same everywhere
  const fs::path folder = work / "data";
  fs::create_directories(folder);
  const fs::path file = folder / "periodic.dat";
  const std::string whole = ReadFile(ORVANE_BIN_DIR "/periodic.dat");
  using namespace std::string_view_literals;
  using namespace std::string_literals;
  if (name == "no-help") WriteFile(file, whole);
  if (name == "wrong-magic") WriteFile(file, "\xFF\xE8\xEB\xDE\0\0"sv);
  if (name == "no-categories") WriteFile(file, "\xDE\xEB\xE8\xFF\0\0"sv);
  // Cut inside the names: their category and the one before are there, what comes later is not. Three
  // categories are announced, so that the number of messages stays the same however many the program has.
  if (name == "truncated") WriteFile(file, whole.substr(0, 4) + "\3\0"s + whole.substr(6, 1494));
  // The elements are whole, and the constants are not there, or cut inside the atomic ones.
  if (name == "no-constants" || name == "constants-truncated") WriteFile(file, whole);
  if (name == "constants-truncated")
    WriteFile(folder / "constants.dat", ReadFile(ORVANE_BIN_DIR "/constants.dat").substr(0, 6000));
  return folder.string() + "/";
}

std::optional<std::string> Comment(const std::string& line, std::string_view key) {
  const std::string start = "# " + std::string(key) + ": ";
  if (line.rfind(start, 0) != 0) return std::nullopt;
  return line.substr(start.size());
}

}  // namespace

Stage SetStage(const std::string& scriptPath, const std::string& workFolder) {
  Stage stage;
  stage.script = ReadFile(scriptPath);
  std::string data;
  std::istringstream lines(stage.script);
  for (std::string line; std::getline(lines, line) && line.starts_with('#');) {
    if (const auto value = Comment(line, "data")) data = *value;
    if (const auto value = Comment(line, "exit")) stage.exit = std::stoi(*value);
    if (const auto value = Comment(line, "scale")) stage.scale = std::stoi(*value);
    if (const auto value = Comment(line, "settings")) {
      const fs::path copy = fs::path(workFolder) / "settings.reg";
      fs::copy_file(ORVANE_SOURCE_DIR "/tests/scenarios/settings/" + *value, copy,
                    fs::copy_options::overwrite_existing);
      stage.settings = copy.string();
    }
    if (line == "# wrong on purpose") stage.wrongOnPurpose = true;
  }
  stage.dataFolder = DataFolder(data, workFolder);
  return stage;
}

}  // namespace orvane
