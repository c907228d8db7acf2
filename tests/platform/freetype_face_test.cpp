#include "platform/freetype_face.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "platform/face_files.h"
#include "platform/freetype_fonts.h"

namespace orvane {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

class OpenFace : public testing::Test {
 protected:
  FreetypeLibrary library_ = OpenFreetype();
  std::unique_ptr<FreetypeFace> face_ =
      FreetypeFace::Open(library_.get(), FindFaceFile(0, SystemFontFolders()));
};

TEST_F(OpenFace, GlyphsThatAreKeptTakeLittleMemory) {
  ASSERT_NE(face_, nullptr);
  constexpr int kUnits = 64;
  std::size_t largest = 0;
  bool forgot = false;
  for (int pixels = 300; pixels < 320; ++pixels) {
    for (char32_t c = U'A'; c <= U'Z'; ++c) {
      const std::size_t before = face_->StoredBytes();
      const Coverage drawn = face_->Glyph(face_->Character(c).glyph, pixels * kUnits).coverage;
      const auto bytes = static_cast<std::size_t>(drawn.width) * static_cast<std::size_t>(drawn.height);
      ASSERT_GT(bytes, 0u);
      largest = std::max(largest, bytes);
      forgot = forgot || face_->StoredBytes() < before;
      ASSERT_LE(face_->StoredBytes(), FreetypeFace::kMostStoredBytes + largest);
    }
  }
  EXPECT_TRUE(forgot);
}

TEST_F(OpenFace, AGlyphIsDrawnOnce) {
  ASSERT_NE(face_, nullptr);
  const std::uint32_t glyph = face_->Character(U'A').glyph;
  face_->Glyph(glyph, 13 * 64);
  const std::size_t stored = face_->StoredBytes();
  EXPECT_GT(stored, 0u);
  face_->Glyph(glyph, 13 * 64);
  EXPECT_EQ(face_->StoredBytes(), stored);
  face_->Glyph(glyph, 26 * 64);
  EXPECT_GT(face_->StoredBytes(), stored);
}

TEST_F(OpenFace, OddGlyphsAndSizesAreEmpty) {
  ASSERT_NE(face_, nullptr);
  EXPECT_EQ(face_->Glyph(60000, 13 * 64).coverage.width, 0);
  EXPECT_EQ(face_->Glyph(face_->Character(U' ').glyph, 13 * 64).coverage.width, 0);
}

TEST_F(OpenFace, WhatIsNoFontFileIsRefused) {
  EXPECT_EQ(FreetypeFace::Open(library_.get(), "/nowhere/face.ttf"), nullptr);
  EXPECT_EQ(FreetypeFace::Open(library_.get(), ORVANE_SOURCE_DIR "/CMakeLists.txt"), nullptr);
  EXPECT_EQ(FreetypeFace::Open(nullptr, FindFaceFile(0, SystemFontFolders())), nullptr);
}

// A at 9 pixels is 1260 × 9 ÷ 2048 = 5.537 wide and gets 6, i 2.25 and gets 2: half of the difference each.
TEST_F(OpenFace, GlyphsStandInTheMiddleOfTheirWidths) {
  const auto library = MakeFontLibrary(SystemFontFolders());
  const auto& font = dynamic_cast<const FreetypeFont&>(library->GetFont({u"Tahoma", 9}));
  std::vector<double> leads;
  std::vector<long long> pens;
  font.PlaceGlyphs(u"A\niA", [&](const FreetypeFont::PlacedGlyph& placed) {
    leads.push_back(placed.lead);
    pens.push_back(placed.pen);
    return true;
  });
  EXPECT_THAT(leads,
              ElementsAre(DoubleNear(0.2314, 1e-4), DoubleNear(-0.125, 1e-9), DoubleNear(0.2314, 1e-4)));
  EXPECT_THAT(pens, ElementsAre(0, 6, 8));
  int placed = 0;
  font.PlaceGlyphs(u"AAAA", [&](const FreetypeFont::PlacedGlyph&) { return ++placed < 2; });
  EXPECT_EQ(placed, 2);  // it ends when it is told so
}

}  // namespace
}  // namespace orvane
