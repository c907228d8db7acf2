#include "platform/freetype_face.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H

#include <algorithm>
#include <limits>

namespace orvane {
namespace {

// Light hinting snaps heights and baselines to the pixels and leaves shapes and widths as designed: crisp at
// 1×, faithful at 2× and 3×.
constexpr FT_Int32 kLoadFlags = FT_LOAD_TARGET_LIGHT | FT_LOAD_NO_BITMAP;

constexpr char32_t kReplacementCharacter = 0xFFFD;

template <typename To>
bool Fits(long long v) {
  return v >= std::numeric_limits<To>::min() && v <= std::numeric_limits<To>::max();
}

}  // namespace

void FreetypeLibraryCloser::operator()(FT_LibraryRec_* library) const { FT_Done_FreeType(library); }

FreetypeLibrary OpenFreetype() {
  FT_Library library = nullptr;
  if (FT_Init_FreeType(&library) != 0) return nullptr;
  return FreetypeLibrary(library);
}

void FreetypeFace::FaceCloser::operator()(FT_FaceRec_* face) const { FT_Done_Face(face); }

std::unique_ptr<FreetypeFace> FreetypeFace::Open(FT_LibraryRec_* library, const std::string& path) {
  FT_Face face = nullptr;
  if (library == nullptr || FT_New_Face(library, path.c_str(), 0, &face) != 0) return nullptr;
  std::unique_ptr<FreetypeFace> opened(new FreetypeFace(face));  // NOLINT(modernize-make-unique): private
  if (!FT_IS_SCALABLE(face) || face->units_per_EM == 0) return nullptr;
  return opened;
}

FreetypeFace::FreetypeFace(FT_FaceRec_* face)
    : face_(face), unitsPerEm_(face->units_per_EM), ascent_(face->ascender), descent_(-face->descender) {
  const FT_UInt replacement = FT_Get_Char_Index(face, kReplacementCharacter);
  replacement_ = GlyphAdvance(replacement);  // glyph 0, the face's own sign for "missing", where it has none
}

FaceCharacter FreetypeFace::GlyphAdvance(std::uint32_t glyph) const {
  FT_Fixed advance = 0;
  if (FT_Get_Advance(face_.get(), glyph, FT_LOAD_NO_SCALE, &advance) != 0) advance = 0;
  return {glyph,
          static_cast<int>(std::clamp<FT_Fixed>(advance, 0, std::numeric_limits<std::int16_t>::max()))};
}

FaceCharacter FreetypeFace::LookUp(char32_t codePoint) const {
  const FT_UInt glyph = FT_Get_Char_Index(face_.get(), codePoint);
  return glyph == 0 ? replacement_ : GlyphAdvance(glyph);
}

FaceCharacter FreetypeFace::Character(char32_t codePoint) {
  if (codePoint < latin_.size()) {
    if (!latinKnown_[codePoint]) {
      latin_[codePoint] = LookUp(codePoint);
      latinKnown_[codePoint] = true;
    }
    return latin_[codePoint];
  }
  const auto known = others_.find(codePoint);
  if (known != others_.end()) return known->second;
  return others_.emplace(codePoint, LookUp(codePoint)).first->second;
}

GlyphPicture FreetypeFace::Glyph(std::uint32_t glyph, int emSize) {
  LimitMemory();
  SizedGlyphs& sized = sizes_[emSize];
  if (glyph >= sized.slots.size()) sized.slots.resize(glyph + 1);
  if (sized.slots[glyph] == 0) {
    sized.glyphs.push_back(Render(glyph, emSize, sized));
    sized.slots[glyph] = static_cast<std::uint16_t>(sized.glyphs.size());
  }
  const StoredGlyph& stored = sized.glyphs[sized.slots[glyph] - 1u];
  return {{sized.bytes.data() + stored.begin, stored.width, stored.height}, {stored.left, stored.top}};
}

// A glyph that cannot be drawn, or whose picture would be absurdly large, is empty.
FreetypeFace::StoredGlyph FreetypeFace::Render(std::uint32_t glyph, int emSize, SizedGlyphs& sized) {
  constexpr FT_UInt kPointsPerInch = 72;  // makes the em size one of pixels
  if (currentEmSize_ != emSize) {
    currentEmSize_ = 0;
    if (FT_Set_Char_Size(face_.get(), emSize, emSize, kPointsPerInch, kPointsPerInch) != 0) return {};
    currentEmSize_ = emSize;
  }
  if (FT_Load_Glyph(face_.get(), glyph, kLoadFlags | FT_LOAD_RENDER) != 0) return {};
  const FT_GlyphSlot slot = face_->glyph;
  const FT_Bitmap& bitmap = slot->bitmap;
  if (bitmap.pixel_mode != FT_PIXEL_MODE_GRAY || bitmap.width == 0 || bitmap.rows == 0) return {};
  if (!Fits<std::int16_t>(bitmap.width) || !Fits<std::int16_t>(bitmap.rows) ||
      !Fits<std::int16_t>(slot->bitmap_left) || !Fits<std::int16_t>(-slot->bitmap_top)) {
    return {};
  }
  const StoredGlyph stored{static_cast<std::uint32_t>(sized.bytes.size()),
                           static_cast<std::uint16_t>(bitmap.width), static_cast<std::uint16_t>(bitmap.rows),
                           static_cast<std::int16_t>(slot->bitmap_left),
                           static_cast<std::int16_t>(-slot->bitmap_top)};
  for (unsigned row = 0; row < bitmap.rows; ++row) {
    const unsigned char* begin = bitmap.buffer + static_cast<std::ptrdiff_t>(row) * bitmap.pitch;
    sized.bytes.insert(sized.bytes.end(), begin, begin + bitmap.width);
  }
  storedBytes_ += static_cast<std::size_t>(bitmap.width) * bitmap.rows;
  return stored;
}

// Beyond its limit everything is forgotten and drawn anew; the program's screens need some tens of kilobytes.
void FreetypeFace::LimitMemory() {
  constexpr std::size_t kMostOthers = 20000;
  if (others_.size() > kMostOthers) others_.clear();
  if (storedBytes_ <= kMostStoredBytes) return;
  sizes_.clear();
  storedBytes_ = 0;
}

}  // namespace orvane
