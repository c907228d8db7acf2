// Fonts over FreeType faces: the metrics in logical pixels, and the way from characters to glyphs.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/face_files.h"
#include "platform/font.h"
#include "platform/freetype_face.h"

namespace orvane {

// The face files of one library, opened when a first character is measured.
class FaceSet {
 public:
  explicit FaceSet(std::vector<std::string> folders) : folders_(std::move(folders)) {}

  // Null when the file is absent or broken.
  FreetypeFace* Face(std::size_t index);
  std::vector<std::size_t> Missing() const;

 private:
  enum class State { kUntried, kOpen, kFailed };

  std::vector<std::string> folders_;
  FreetypeLibrary library_;  // outlives the faces
  std::array<std::unique_ptr<FreetypeFace>, kFaceFiles> faces_;
  std::array<State, kFaceFiles> states_{};
};

class FreetypeFont final : public Font {
 public:
  // One glyph of a run. `lead` is half of what rounding added to its advance, in logical pixels: glyphs
  // stand in the middle of their rounded widths, so that the gaps between them stay even.
  struct PlacedGlyph {
    std::uint32_t glyph = 0;
    long long pen = 0;  // logical, from the run's left
    double lead = 0.0;
  };

  FreetypeFont(FontSpec spec, FaceSet& faces);

  const FontSpec& Spec() const override { return spec_; }
  int Ascent() const override;
  int Descent() const override;
  void AppendWidths(TextView text, std::vector<int>& widths) const override;
  int TextWidth(TextView text) const override;

  // The glyphs of a text from the left until `place` returns false.
  void PlaceGlyphs(TextView text, const std::function<bool(const PlacedGlyph&)>& place) const;

  // A glyph at a scale.
  GlyphPicture Glyph(std::uint32_t glyph, double scale) const;

 private:
  FreetypeFace* Face() const { return faces_.Face(face_); }
  int Scaled(int units) const;  // font units to logical pixels, rounded half up

  FontSpec spec_;
  FaceSet& faces_;
  std::size_t face_;
  int pixels_;  // the em size used: the one asked for, within sensible bounds
};

// Fonts whose files are searched in these folders, in this order.
std::unique_ptr<FontLibrary> MakeFontLibrary(std::vector<std::string> folders);

}  // namespace orvane
