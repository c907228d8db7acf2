#include "platform/png_image.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace orvane {
namespace {

struct SurfaceCloser {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct ContextCloser {
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};
using CairoSurface = std::unique_ptr<cairo_surface_t, SurfaceCloser>;

constexpr int kLargestSide = 4096;  // logical pixels

cairo_status_t ReadBytes(void* closure, unsigned char* to, unsigned int length) {
  auto& rest = *static_cast<std::span<const unsigned char>*>(closure);
  if (length > rest.size()) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(to, rest.data(), length);
  rest = rest.subspan(length);
  return CAIRO_STATUS_SUCCESS;
}

// The data nearest to the scale: the smallest at or above it, else the largest below.
std::span<const unsigned char> ChooseData(const EncodedImage& encoded, double scale) {
  std::span<const unsigned char> chosen;
  for (std::size_t i = encoded.png.size(); i-- > 0;) {
    if (encoded.png[i].empty()) continue;
    if (chosen.empty() || static_cast<double>(i + 1) >= scale) chosen = encoded.png[i];
  }
  return chosen;
}

CairoSurface Decode(std::span<const unsigned char> data) {
  if (data.empty()) return nullptr;
  CairoSurface surface(cairo_image_surface_create_from_png_stream(ReadBytes, &data));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  return surface;
}

// The surface with 8 bits a channel, alpha and this size in device pixels, scaled with good filtering when
// it has another one.
CairoSurface Fitted(CairoSurface source, int width, int height) {
  const int w = cairo_image_surface_get_width(source.get());
  const int h = cairo_image_surface_get_height(source.get());
  const cairo_format_t format = cairo_image_surface_get_format(source.get());
  if (w < 1 || h < 1) return nullptr;
  if (w == width && h == height && (format == CAIRO_FORMAT_ARGB32 || format == CAIRO_FORMAT_RGB24)) {
    return source;
  }
  CairoSurface fitted(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  const std::unique_ptr<cairo_t, ContextCloser> cairo(cairo_create(fitted.get()));
  cairo_scale(cairo.get(), static_cast<double>(width) / w, static_cast<double>(height) / h);
  cairo_set_source_surface(cairo.get(), source.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cairo.get()), CAIRO_FILTER_BEST);
  cairo_pattern_set_extend(cairo_get_source(cairo.get()), CAIRO_EXTEND_PAD);  // edges stay opaque
  cairo_set_operator(cairo.get(), CAIRO_OPERATOR_SOURCE);
  cairo_paint(cairo.get());
  if (cairo_status(cairo.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  return fitted;
}

PixelBuffer PixelsOf(cairo_surface_t* surface) {
  cairo_surface_flush(surface);
  PixelBuffer pixels(cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface));
  const unsigned char* data = cairo_image_surface_get_data(surface);
  const int stride = cairo_image_surface_get_stride(surface);
  const bool hasAlpha = cairo_image_surface_get_format(surface) == CAIRO_FORMAT_ARGB32;
  for (int y = 0; y < pixels.height; ++y) {
    std::uint32_t* row = pixels.Row(y);
    std::memcpy(row, data + static_cast<std::ptrdiff_t>(y) * stride,
                static_cast<std::size_t>(pixels.width) * sizeof(std::uint32_t));
    if (!hasAlpha) std::for_each(row, row + pixels.width, [](std::uint32_t& p) { p |= 0xFF000000u; });
  }
  return pixels;
}

std::unique_ptr<ScaledPicture> MakePicture(const EncodedImage& encoded, double scale) {
  const Size size = encoded.size;
  if (size.width < 1 || size.height < 1 || size.width > kLargestSide || size.height > kLargestSide)
    return nullptr;
  const DeviceGrid grid(size, scale);
  CairoSurface surface = Decode(ChooseData(encoded, scale));
  if (surface != nullptr) surface = Fitted(std::move(surface), grid.DeviceWidth(), grid.DeviceHeight());
  if (surface == nullptr) return nullptr;
  auto picture = std::make_unique<ScaledPicture>();
  picture->grid = grid;
  picture->pixels = PixelsOf(surface.get());
  picture->opaque = std::all_of(picture->pixels.pixels.begin(), picture->pixels.pixels.end(),
                                [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; });
  return picture;
}

}  // namespace

std::optional<PixelBuffer> DecodePng(std::span<const unsigned char> data) {
  CairoSurface surface = Decode(data);
  if (surface == nullptr) return std::nullopt;
  const int width = cairo_image_surface_get_width(surface.get());
  const int height = cairo_image_surface_get_height(surface.get());
  surface = Fitted(std::move(surface), width, height);
  if (surface == nullptr) return std::nullopt;
  return PixelsOf(surface.get());
}

const ScaledPicture* PngImage::At(double scale) const {
  if (scale != triedScale_) {
    triedScale_ = scale;
    picture_.reset();
    picture_ = MakePicture(encoded_, scale);
  }
  return picture_.get();
}

}  // namespace orvane
