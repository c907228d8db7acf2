// The rules of the icon family, read from the drawings themselves.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace orvane {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Drawings() {
  std::vector<fs::path> drawings;
  for (const auto& entry : fs::directory_iterator(fs::path(ORVANE_SOURCE_DIR) / "resources/art")) {
    drawings.push_back(entry.path());
  }
  return drawings;
}

std::string Read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::set<std::string> Matches(const std::string& text, const std::string& pattern) {
  const std::regex regex(pattern);
  std::set<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), regex), end; it != end; ++it) found.insert((*it)[1]);
  return found;
}

TEST(Artwork, IsDrawnInThePalette) {
  const std::set<std::string> palette{"#00428a", "#0079ff", "#9cc4ee", "#e6f2ff",
                                      "#fff",    "#d9482b", "#f5b52e", "#b97d0a"};
  int drawings = 0;
  for (const fs::path& path : Drawings()) {
    const std::string name = path.stem().string();
    // The application icon shows the table's own colours, the backgrounds are tones of one blue.
    if (name.starts_with("application") || name == "title-strip" || name == "separator-line") continue;
    ++drawings;
    for (const std::string& colour : Matches(Read(path), "(#[0-9a-fA-F]+)")) {
      EXPECT_TRUE(palette.contains(colour)) << name << " uses " << colour;
    }
  }
  EXPECT_EQ(drawings, 39);
}

// A font is whatever the building machine has, so a drawing holds no text.
TEST(Artwork, IsMadeOfShapesAlone) {
  const std::set<std::string> shapes{"svg", "path", "circle", "rect", "g", "linearGradient", "stop"};
  for (const fs::path& path : Drawings()) {
    EXPECT_EQ(path.extension(), ".svg");
    for (const std::string& element : Matches(Read(path), "<([A-Za-z]+)")) {
      EXPECT_TRUE(shapes.contains(element)) << path.filename() << " has " << element;
    }
  }
}

}  // namespace
}  // namespace orvane
