// Drawing in logical pixels. One convention: rectangles are half-open (right and bottom edges excluded), a
// line's last point is excluded. Logical pixel x covers the device pixels round(x·s) up to round((x+1)·s) at
// scale s, so that edges and hairlines stay crisp at every scale.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "base/colour.h"
#include "base/geometry.h"
#include "base/text.h"
#include "platform/font.h"

namespace orvane {

// A picture as it is stored in the program: PNG data at 1, 2, 3 and 4 device pixels a logical pixel.
struct EncodedImage {
  Size size;  // logical
  std::array<std::span<const unsigned char>, 4> png;
};

// A decoded picture. It decodes on first use, the nearest size at or above the scale it is drawn at, and
// keeps that one only. Its pixels have alpha.
class Image {
 public:
  virtual ~Image() = default;
  virtual Size GetSize() const = 0;  // logical
};

// One run of text as it was drawn: one font, one colour, one line. Coordinates are those of the surface (or
// of the screen, in Device::VisibleRuns).
struct TextRun {
  Rect rect;  // pen position, advance width, ascent + descent
  Text text;
  FontSpec font;
  Colour colour;
  std::uint32_t line = 0;   // equal for the runs of one drawing call and one visual line
  std::vector<Rect> shown;  // the parts of rect that nothing has clipped or covered; never empty
};

class Canvas;

// Pixels of a logical size at a device scale, and, when the device records, the text runs drawn into them.
// A run that is covered wholly by a later fill or picture is forgotten.
class Surface {
 public:
  virtual ~Surface() = default;
  virtual Size GetSize() const = 0;  // logical
  virtual double Scale() const = 0;  // device pixels a logical pixel
  virtual Canvas& GetCanvas() = 0;   // one canvas a surface: its origin and clips start reset at each call
  virtual const std::vector<TextRun>& Runs() const = 0;
  virtual int DeviceWidth() const = 0;  // ceil(width × scale)
  virtual int DeviceHeight() const = 0;
  virtual std::uint32_t DevicePixel(int x, int y) const = 0;  // 0xRRGGBB; outside: 0
};

class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual Size GetSize() const = 0;
  virtual double Scale() const = 0;

  // Moves the point (0, 0) of all later coordinates, clip rectangles included, to `origin` of the surface.
  virtual void SetOrigin(Point origin) = 0;
  virtual Point Origin() const = 0;

  // Narrows the clip to its common part with the rectangle, until the matching PopClip.
  virtual void PushClip(const Rect& clip) = 0;
  virtual void PopClip() = 0;
  virtual Rect ClipBounds() const = 0;  // in current coordinates; empty when nothing can be drawn

  virtual void FillRect(const Rect& rect, Colour fill) = 0;
  // A rectangle with a one-pixel outline just inside its edges.
  virtual void Rectangle(const Rect& rect, Colour outline, Colour fill) = 0;
  virtual void FrameRect(const Rect& rect, Colour outline) = 0;
  // Corners are quarters of an ellipse of the given size (width and height of the whole ellipse).
  virtual void RoundRect(const Rect& rect, Size cornerEllipse, Colour outline, Colour fill) = 0;
  virtual void Ellipse(const Rect& rect, Colour outline, Colour fill) = 0;
  virtual void Line(Point from, Point to, Colour colour, int width = 1) = 0;
  virtual void Polyline(std::span<const Point> points, Colour colour, int width = 1) = 0;
  virtual void Polygon(std::span<const Point> points, Colour fill) = 0;

  // One run of plain text; `top` is the top of its line cell (baseline − ascent). Runs drawn with the same
  // line number belong to one visual line; take a fresh number from NextTextLine. Returns the advance.
  virtual int DrawRun(TextView text, Point topLeft, const Font& font, Colour colour, std::uint32_t line) = 0;
  virtual std::uint32_t NextTextLine() = 0;

  // Copies a part of a picture, blending by its alpha.
  virtual void DrawImage(const Image& image, Point at, const Rect& source) = 0;
  // The same for what is disabled: at two fifths of its strength, where the implementation can.
  virtual void DrawFaintImage(const Image& image, Point at, const Rect& source) {
    DrawImage(image, at, source);
  }
  // Copies the image where the mask is white; where it is black the destination becomes its bitwise AND with
  // the image; between the two in proportion.
  virtual void DrawMasked(const Image& image, const Image& mask, Point at) = 0;
  // Copies pixels and runs of another surface of the same scale (or of this one: overlapping moves are safe).
  virtual void CopySurface(const Surface& source, const Rect& sourceRect, Point at) = 0;
};

}  // namespace orvane
