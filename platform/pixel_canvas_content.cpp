// The part of PixelCanvas that draws text, pictures and other surfaces.
#include <algorithm>
#include <utility>

#include "platform/pixel_canvas.h"
#include "platform/pixel_surface.h"
#include "platform/png_image.h"

namespace orvane {
namespace {

// What is left of a part within its picture, and where it goes then.
struct Placed {
  Rect part;
  Point at;
};

Placed WithinSource(const Rect& part, Size source, Point at) {
  const Rect kept = Intersect(part, Rect::At({}, source));
  return {kept,
          {ClampFar(std::int64_t{at.x} + kept.left - part.left),
           ClampFar(std::int64_t{at.y} + kept.top - part.top)}};
}

}  // namespace

int PixelCanvas::DrawRun(TextView text, Point topLeft, const Font& font, Colour colour, std::uint32_t line) {
  const int advance = font.TextWidth(text);
  const Point at = OnSurface(topLeft);
  const Rect cell = Rect::At(at, {std::min(advance, kFarthest), font.Height()});
  const auto* drawable = dynamic_cast<const FreetypeFont*>(&font);
  if (drawable != nullptr) DrawGlyphs(text, at, *drawable, colour);
  if (font.Spec().underline && advance > 0) {
    const int thickness = 1 + font.Ascent() / 28;
    const int top = at.y + font.Ascent() + 1;
    FillDevice({cell.left, top, cell.right, top + thickness}, colour);
  }
  if (runs_ != nullptr) runs_->Add({cell, Text(text), font.Spec(), colour, line, {}}, Clip());
  return advance;
}

void PixelCanvas::DrawGlyphs(TextView text, Point topLeft, const FreetypeFont& font, Colour colour) {
  // Glyphs may reach out of their cells, by less than the cell's height on any side.
  const int reach = font.Height();
  const Rect near{Clip().left - 2 * reach, Clip().top - 2 * reach, Clip().right + reach,
                  Clip().bottom + reach};
  if (Clip().Empty() || topLeft.y < near.top || topLeft.y > near.bottom) return;
  const Rect clip = DeviceClip();
  const double scale = Scale();
  const int baseline = RoundHalfUp((topLeft.y + font.Ascent()) * scale);
  font.PlaceGlyphs(text, [&](const FreetypeFont::PlacedGlyph& placed) {
    const int pen = ClampFar(topLeft.x + placed.pen);
    if (pen < near.left) return true;
    if (pen > near.right) return false;
    const GlyphPicture picture = font.Glyph(placed.glyph, scale);
    const int x = RoundHalfUp(pen * scale) + RoundHalfUp(placed.lead * scale);
    BlendCoverage(pixels_, picture.coverage, {x + picture.offset.x, baseline + picture.offset.y}, clip,
                  colour);
    return true;
  });
}

Transfer PixelCanvas::TransferTo(Point at, const Rect& part, const DeviceGrid& sourceGrid) const {
  const Rect to = grid_.Device(Rect::At(at, part.GetSize()));
  return {to, sourceGrid.Device(part), Intersect(to, DeviceClip())};
}

void PixelCanvas::DrawImage(const Image& image, Point at, const Rect& source) {
  BlendImage(image, at, source, kFullStrength);
}

void PixelCanvas::DrawFaintImage(const Image& image, Point at, const Rect& source) {
  BlendImage(image, at, source, kFullStrength * 2 / 5);
}

void PixelCanvas::BlendImage(const Image& image, Point at, const Rect& source, int strength) {
  const auto* png = dynamic_cast<const PngImage*>(&image);
  const Placed placed = WithinSource(source, image.GetSize(), OnSurface(at));
  const Rect target = Intersect(Rect::At(placed.at, placed.part.GetSize()), Clip());
  if (png == nullptr || placed.part.Empty() || target.Empty()) return;
  const ScaledPicture* picture = png->At(Scale());
  if (picture == nullptr) return;
  BlendPicture(pixels_, picture->pixels, TransferTo(placed.at, placed.part, picture->grid), strength);
  if (picture->opaque && strength == kFullStrength) Cover(target);
}

void PixelCanvas::DrawMasked(const Image& image, const Image& mask, Point at) {
  const auto* pngImage = dynamic_cast<const PngImage*>(&image);
  const auto* pngMask = dynamic_cast<const PngImage*>(&mask);
  const Rect part = Intersect(Rect::At({}, image.GetSize()), Rect::At({}, mask.GetSize()));
  if (pngImage == nullptr || pngMask == nullptr || part.Empty()) return;
  const Point to = OnSurface(at);
  if (Intersect(Rect::At(to, part.GetSize()), Clip()).Empty()) return;
  const ScaledPicture* picture = pngImage->At(Scale());
  const ScaledPicture* amounts = pngMask->At(Scale());
  if (picture == nullptr || amounts == nullptr) return;
  BlendMasked(pixels_, picture->pixels, amounts->pixels,
              TransferTo(to, part, DeviceGrid(part.GetSize(), Scale())));
}

void PixelCanvas::CopySurface(const Surface& source, const Rect& sourceRect, Point at) {
  const auto* from = dynamic_cast<const PixelSurface*>(&source);
  if (from == nullptr || from->Scale() != Scale()) return;
  const Placed placed = WithinSource(sourceRect, source.GetSize(), OnSurface(at));
  if (placed.part.Empty()) return;
  const DeviceGrid sourceGrid(source.GetSize(), Scale());
  CopyPixels(pixels_, from->Pixels(), TransferTo(placed.at, placed.part, sourceGrid));
  if (runs_ != nullptr) runs_->Copy(source.Runs(), placed.part, placed.at, Clip());
}

}  // namespace orvane
