// One open font file: its advances in font units and its glyphs as coverage, kept once drawn.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/geometry.h"
#include "platform/pixel_ops.h"

struct FT_FaceRec_;
struct FT_LibraryRec_;

namespace orvane {

struct FreetypeLibraryCloser {
  void operator()(FT_LibraryRec_* library) const;
};
using FreetypeLibrary = std::unique_ptr<FT_LibraryRec_, FreetypeLibraryCloser>;

// Null when the library could not be started.
FreetypeLibrary OpenFreetype();

// A glyph as drawn: what it covers, and where that lies from the pen on the baseline.
struct GlyphPicture {
  Coverage coverage;  // valid until the next glyph is asked for
  Point offset;       // of its top left device pixel; y grows downward
};

// A character of a face, in font units.
struct FaceCharacter {
  std::uint32_t glyph = 0;
  int advance = 0;
};

class FreetypeFace {
 public:
  // Null when the file cannot be read as a scalable font.
  static std::unique_ptr<FreetypeFace> Open(FT_LibraryRec_* library, const std::string& path);

  int UnitsPerEm() const { return unitsPerEm_; }
  int AscentUnits() const { return ascent_; }    // of the hhea table
  int DescentUnits() const { return descent_; }  // positive below the baseline

  // The glyph of a code point; the replacement glyph for a surrogate and for what the face lacks.
  FaceCharacter Character(char32_t codePoint);

  // The glyph at an em size in 1/64 device pixels.
  GlyphPicture Glyph(std::uint32_t glyph, int emSize);

  // The memory that the kept glyphs' pictures take; never more than kMostStoredBytes and one glyph.
  static constexpr std::size_t kMostStoredBytes = 2u << 20;
  std::size_t StoredBytes() const { return storedBytes_; }

 private:
  struct FaceCloser {
    void operator()(FT_FaceRec_* face) const;
  };
  struct StoredGlyph {
    std::uint32_t begin = 0;  // in SizedGlyphs::bytes
    std::uint16_t width = 0;
    std::uint16_t height = 0;
    std::int16_t left = 0;
    std::int16_t top = 0;
  };
  // What was drawn at one size, packed: slots[glyph] is 1 + its index in `glyphs`, or 0.
  struct SizedGlyphs {
    std::vector<std::uint16_t> slots;
    std::vector<StoredGlyph> glyphs;
    std::vector<std::uint8_t> bytes;
  };

  explicit FreetypeFace(FT_FaceRec_* face);
  FaceCharacter LookUp(char32_t codePoint) const;
  FaceCharacter GlyphAdvance(std::uint32_t glyph) const;
  StoredGlyph Render(std::uint32_t glyph, int emSize, SizedGlyphs& sized);
  void LimitMemory();

  std::unique_ptr<FT_FaceRec_, FaceCloser> face_;
  int unitsPerEm_;
  int ascent_;
  int descent_;
  int currentEmSize_ = 0;
  FaceCharacter replacement_;
  std::array<FaceCharacter, 256> latin_{};
  std::array<bool, 256> latinKnown_{};
  std::unordered_map<char32_t, FaceCharacter> others_;
  std::map<int, SizedGlyphs> sizes_;
  std::size_t storedBytes_ = 0;
};

}  // namespace orvane
