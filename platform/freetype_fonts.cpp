#include "platform/freetype_fonts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace orvane {
namespace {

constexpr int kSmallestEm = 1;
constexpr int kLargestEm = 1000;

// One character of a text: a code point, and how many 16-bit units it took.
struct Decoded {
  char32_t codePoint = 0;
  std::size_t units = 1;
};

// A lone surrogate stands for itself; no face has it, so that it is drawn as the replacement glyph.
Decoded DecodeAt(TextView text, std::size_t i) {
  if (!IsSurrogatePairAt(text, i)) return {text[i], 1};
  const char32_t high = text[i] - 0xD800u;
  const char32_t low = text[i + 1] - 0xDC00u;
  return {0x10000u + (high << 10) + low, 2};
}

constexpr bool IsControl(char32_t c) { return c < 0x20; }

int ClampToInt(long long v) {
  return static_cast<int>(std::min<long long>(v, std::numeric_limits<int>::max()));
}

}  // namespace

FreetypeFace* FaceSet::Face(std::size_t index) {
  if (states_.at(index) == State::kUntried) {
    if (library_ == nullptr) library_ = OpenFreetype();
    const std::string path = FindFaceFile(index, folders_);
    if (!path.empty()) faces_.at(index) = FreetypeFace::Open(library_.get(), path);
    states_.at(index) = faces_.at(index) != nullptr ? State::kOpen : State::kFailed;
  }
  return faces_.at(index).get();
}

std::vector<std::size_t> FaceSet::Missing() const {
  std::vector<std::size_t> missing;
  for (std::size_t i = 0; i < kFaceFiles; ++i) {
    const bool untried = states_.at(i) == State::kUntried;
    if (states_.at(i) == State::kFailed || (untried && FindFaceFile(i, folders_).empty()))
      missing.push_back(i);
  }
  return missing;
}

FreetypeFont::FreetypeFont(FontSpec spec, FaceSet& faces)
    : spec_(std::move(spec)),
      faces_(faces),
      face_(FaceIndex(spec_)),
      pixels_(std::clamp(spec_.pixels, kSmallestEm, kLargestEm)) {}

int FreetypeFont::Scaled(int units) const {
  const FreetypeFace* face = Face();
  const long long perEm = face->UnitsPerEm();
  return static_cast<int>((2LL * units * pixels_ + perEm) / (2 * perEm));
}

// Tahoma's own vertical metrics, to the pixel: an ascent of one em and a descent of 0.207 em.
int FreetypeFont::Ascent() const {
  return IsMonospaced(spec_) && Face() != nullptr ? Scaled(Face()->AscentUnits()) : pixels_;
}

int FreetypeFont::Descent() const {
  if (IsMonospaced(spec_) && Face() != nullptr) return Scaled(Face()->DescentUnits());
  return (207 * pixels_ + 500) / 1000;
}

// Without its file a face measures half an em a character and draws nothing, so that the message that names
// the missing package can still be laid out.
void FreetypeFont::AppendWidths(TextView text, std::vector<int>& widths) const {
  FreetypeFace* face = Face();
  widths.reserve(widths.size() + text.size());
  for (std::size_t i = 0; i < text.size();) {
    const Decoded c = DecodeAt(text, i);
    int width = (pixels_ + 1) / 2;
    if (IsControl(c.codePoint)) {
      width = 0;
    } else if (face != nullptr) {
      width = Scaled(face->Character(c.codePoint).advance);
    }
    widths.push_back(width);
    if (c.units == 2) widths.push_back(0);
    i += c.units;
  }
}

int FreetypeFont::TextWidth(TextView text) const {
  FreetypeFace* face = Face();
  long long width = 0;
  for (std::size_t i = 0; i < text.size();) {
    const Decoded c = DecodeAt(text, i);
    if (!IsControl(c.codePoint)) {
      width += face != nullptr ? Scaled(face->Character(c.codePoint).advance) : (pixels_ + 1) / 2;
    }
    i += c.units;
  }
  return ClampToInt(width);
}

void FreetypeFont::PlaceGlyphs(TextView text, const std::function<bool(const PlacedGlyph&)>& place) const {
  FreetypeFace* face = Face();
  if (face == nullptr) return;
  long long pen = 0;
  for (std::size_t i = 0; i < text.size();) {
    const Decoded c = DecodeAt(text, i);
    i += c.units;
    if (IsControl(c.codePoint)) continue;
    const FaceCharacter character = face->Character(c.codePoint);
    const int width = Scaled(character.advance);
    const double designed = static_cast<double>(character.advance) * pixels_ / face->UnitsPerEm();
    if (!place({character.glyph, pen, (width - designed) / 2})) return;
    pen += width;
  }
}

GlyphPicture FreetypeFont::Glyph(std::uint32_t glyph, double scale) const {
  constexpr double kUnits = 64.0;  // FreeType counts sizes in 1/64 pixels
  FreetypeFace* face = Face();
  if (face == nullptr) return {};
  return face->Glyph(glyph, static_cast<int>(std::lround(pixels_ * scale * kUnits)));
}

namespace {

class FreetypeFontLibrary final : public FontLibrary {
 public:
  explicit FreetypeFontLibrary(std::vector<std::string> folders) : faces_(std::move(folders)) {}

  const Font& GetFont(const FontSpec& spec) override {
    for (const auto& font : fonts_) {
      if (font->Spec() == spec) return *font;
    }
    fonts_.push_back(std::make_unique<FreetypeFont>(spec, faces_));
    return *fonts_.back();
  }

  Text MissingFaces() const override { return MissingFacesMessage(faces_.Missing()); }

 private:
  FaceSet faces_;
  std::vector<std::unique_ptr<FreetypeFont>> fonts_;
};

}  // namespace

std::unique_ptr<FontLibrary> MakeFontLibrary(std::vector<std::string> folders) {
  return std::make_unique<FreetypeFontLibrary>(std::move(folders));
}

}  // namespace orvane
