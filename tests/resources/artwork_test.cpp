// The rules of the icon family, read from the drawings themselves.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "base/text.h"

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

// The runs of letters and digits that follow each `mark` in the text.
std::set<std::string> WordsAfter(const std::string& text, char mark) {
  std::set<std::string> words;
  for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
    std::size_t end = at + 1;
    while (end < text.size() &&
           (IsAsciiLetter(static_cast<Char>(text[end])) || IsAsciiDigit(static_cast<Char>(text[end])))) {
      ++end;
    }
    if (end > at + 1) words.insert(text.substr(at + 1, end - at - 1));
  }
  return words;
}

TEST(Artwork, IsDrawnInThePalette) {
  const std::set<std::string> palette{"00428a", "0079ff", "9cc4ee", "e6f2ff",
                                      "fff",    "d9482b", "f5b52e", "b97d0a"};
  int drawings = 0;
  for (const fs::path& path : Drawings()) {
    const std::string name = path.stem().string();
    // The application icon shows the table's own colours, the backgrounds are tones of one blue.
    if (name.starts_with("application") || name == "title-strip" || name == "separator-line") continue;
    ++drawings;
    for (const std::string& colour : WordsAfter(Read(path), '#')) {
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
    for (const std::string& element : WordsAfter(Read(path), '<')) {
      EXPECT_TRUE(shapes.contains(element)) << path.filename() << " has " << element;
    }
  }
}

}  // namespace
}  // namespace orvane
