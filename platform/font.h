// Fonts and their metrics. Metrics are whole logical pixels and do not depend on the scale, so that a
// layout is the same at every scale; only the drawing of the glyphs gets finer.
#pragma once

#include <vector>

#include "base/text.h"

namespace orvane {

// What identifies a font: two equal specifications give the same Font object of a library.
struct FontSpec {
  Text face;       // "Tahoma" or "Courier New"; any other face is drawn as "Tahoma"
  int pixels = 0;  // the em size in logical pixels
  bool bold = false;
  bool italic = false;
  bool underline = false;
  friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

// The em size in logical pixels of a size in points, at the hand-held's 96 dots per inch, cut to a whole
// number: 7 -> 9, 8 -> 10, 9 -> 12, 10 -> 13, 11 -> 14, 12 -> 16, 21 -> 28.
constexpr int PixelsFromPoints(int points) { return points * 96 / 72; }

class Font {
 public:
  virtual ~Font() = default;
  virtual const FontSpec& Spec() const = 0;
  virtual int Ascent() const = 0;   // logical pixels above the baseline
  virtual int Descent() const = 0;  // logical pixels below it
  int Height() const { return Ascent() + Descent(); }

  // The advance of each 16-bit unit of the text, in whole logical pixels: the unhinted advance × em size ÷
  // units per em, rounded half up. A surrogate pair has its width on the first unit and 0 on the second; a
  // lone surrogate and a character that the face lacks have the width of the replacement glyph; control
  // characters below U+0020 have width 0. Appends text.size() numbers to `widths`.
  virtual void AppendWidths(TextView text, std::vector<int>& widths) const = 0;
  // The sum of those advances.
  virtual int TextWidth(TextView text) const = 0;
};

// Makes fonts and keeps them; each face file is opened once, each (face, size) measured once. The fonts live
// as long as the library.
class FontLibrary {
 public:
  virtual ~FontLibrary() = default;
  virtual const Font& GetFont(const FontSpec& spec) = 0;
  // Empty when every face file was found; otherwise a sentence that names the missing file and its package.
  virtual Text MissingFaces() const = 0;
};

}  // namespace orvane
