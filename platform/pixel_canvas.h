// Draws into the pixels of one surface, and keeps its text runs in step.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "platform/cairo_shapes.h"
#include "platform/canvas.h"
#include "platform/device_pixels.h"
#include "platform/freetype_fonts.h"
#include "platform/pixel_ops.h"
#include "platform/text_runs.h"

namespace orvane {

class PngImage;
struct ScaledPicture;

class PixelCanvas final : public Canvas {
 public:
  // `runs` is null when nothing records.
  PixelCanvas(const DeviceGrid& grid, PixelBuffer& pixels, TextRuns* runs,
              std::shared_ptr<std::uint32_t> lineNumbers);

  void Reset();  // origin (0, 0), no clip but the surface's bounds

  Size GetSize() const override { return grid_.Logical(); }
  double Scale() const override { return grid_.Scale(); }
  void SetOrigin(Point origin) override;
  Point Origin() const override { return origin_; }
  void PushClip(const Rect& clip) override;
  void PopClip() override;
  Rect ClipBounds() const override;

  void FillRect(const Rect& rect, Colour fill) override;
  void Rectangle(const Rect& rect, Colour outline, Colour fill) override;
  void FrameRect(const Rect& rect, Colour outline) override;
  void RoundRect(const Rect& rect, Size cornerEllipse, Colour outline, Colour fill) override;
  void Ellipse(const Rect& rect, Colour outline, Colour fill) override;
  void Line(Point from, Point to, Colour colour, int width) override;
  void Polyline(std::span<const Point> points, Colour colour, int width) override;
  void Polygon(std::span<const Point> points, Colour fill) override;

  int DrawRun(TextView text, Point topLeft, const Font& font, Colour colour, std::uint32_t line) override;
  std::uint32_t NextTextLine() override { return ++*lineNumbers_; }

  void DrawImage(const Image& image, Point at, const Rect& source) override;
  void DrawFaintImage(const Image& image, Point at, const Rect& source) override;
  void DrawMasked(const Image& image, const Image& mask, Point at) override;
  void CopySurface(const Surface& source, const Rect& sourceRect, Point at) override;

 private:
  void BlendImage(const Image& image, Point at, const Rect& source, int strength);
  Rect Clip() const { return clips_.back(); }  // in coordinates of the surface
  Rect DeviceClip() const { return grid_.Device(Clip()); }
  Rect OnSurface(const Rect& r) const { return MovedSafely(r, origin_); }
  Point OnSurface(Point p) const;
  DevicePoint PixelCentre(Point onSurface) const;

  // These take coordinates of the surface.
  void FillDevice(const Rect& rect, Colour fill);
  void Cover(const Rect& rect);
  void DrawRoundRect(const Rect& rect, double radiusX, double radiusY, Colour outline, Colour fill);
  void StraightLine(Point from, Point to, Colour colour, int width);
  void FreeLine(std::span<const Point> points, Colour colour, int width);
  void DrawGlyphs(TextView text, Point topLeft, const FreetypeFont& font, Colour colour);
  Transfer TransferTo(Point at, const Rect& part, const DeviceGrid& sourceGrid) const;

  const DeviceGrid& grid_;
  PixelBuffer& pixels_;
  TextRuns* runs_;
  std::shared_ptr<std::uint32_t> lineNumbers_;
  Point origin_;
  std::vector<Rect> clips_;
};

}  // namespace orvane
