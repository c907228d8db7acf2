// The font files that stand for the hand-held's faces, and where they are found.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "platform/font.h"

namespace orvane {

struct FaceFile {
  std::string_view name;
  std::string_view package;  // Debian's
};

inline constexpr std::size_t kFaceFiles = 8;

// "Tahoma" is drawn with DejaVu Sans Condensed: the same proportions, with real bold, Greek and symbols.
// Index: family × 4 + bold × 2 + italic, the family being 1 for "Courier New" and 0 for any other name.
inline constexpr std::array<FaceFile, kFaceFiles> kFaces{{
    {"DejaVuSansCondensed.ttf", "fonts-dejavu-extra"},
    {"DejaVuSansCondensed-Oblique.ttf", "fonts-dejavu-extra"},
    {"DejaVuSansCondensed-Bold.ttf", "fonts-dejavu-extra"},
    {"DejaVuSansCondensed-BoldOblique.ttf", "fonts-dejavu-extra"},
    {"LiberationMono-Regular.ttf", "fonts-liberation2"},
    {"LiberationMono-Italic.ttf", "fonts-liberation2"},
    {"LiberationMono-Bold.ttf", "fonts-liberation2"},
    {"LiberationMono-BoldItalic.ttf", "fonts-liberation2"},
}};

bool IsMonospaced(const FontSpec& spec);  // "Courier New"
std::size_t FaceIndex(const FontSpec& spec);

// Where distributions put these fonts.
std::vector<std::string> SystemFontFolders();

// The path of the file in the first folder that has it; empty when none has.
std::string FindFaceFile(std::size_t face, const std::vector<std::string>& folders);

// A sentence for the user that names these faces' files and packages; empty when there are none.
Text MissingFacesMessage(const std::vector<std::size_t>& faces);

}  // namespace orvane
