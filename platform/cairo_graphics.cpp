// The drawing of today's hand-held: pixels in main memory, glyphs from FreeType, antialiased shapes and PNG
// decoding from Cairo. No font configuration library is ever started.
#include <cstring>
#include <memory>
#include <utility>

#include "platform/face_files.h"
#include "platform/freetype_fonts.h"
#include "platform/graphics.h"
#include "platform/pixel_surface.h"
#include "platform/png_image.h"

namespace orvane {
namespace {

class CairoGraphics final : public Graphics {
 public:
  explicit CairoGraphics(std::vector<std::string> fontFolders)
      : fonts_(MakeFontLibrary(std::move(fontFolders))) {}

  FontLibrary& Fonts() override { return *fonts_; }

  std::unique_ptr<Surface> CreateSurface(Size size, double scale, bool recordRuns) override {
    return std::make_unique<PixelSurface>(size, scale, recordRuns, lineNumbers_);
  }

  std::shared_ptr<const Image> LoadImage(const EncodedImage& image) override {
    return std::make_shared<PngImage>(image);
  }

  void CopyToFrame(const Surface& source, const Rect& sourceDevicePixels, std::uint32_t* frame,
                   int frameStride, Point at) override {
    const auto* surface = dynamic_cast<const PixelSurface*>(&source);
    if (surface == nullptr || frame == nullptr) return;
    const Rect part = Intersect(sourceDevicePixels, surface->Pixels().Bounds());
    const std::ptrdiff_t left = std::ptrdiff_t{at.x} + part.left - sourceDevicePixels.left;
    const std::ptrdiff_t top = std::ptrdiff_t{at.y} + part.top - sourceDevicePixels.top;
    const auto bytes = static_cast<std::size_t>(part.Width()) * sizeof(std::uint32_t);
    for (int y = part.top; y < part.bottom; ++y) {
      std::uint32_t* row = frame + (top + y - part.top) * frameStride + left;
      std::memcpy(row, surface->Pixels().Row(y) + part.left, bytes);
    }
  }

 private:
  std::unique_ptr<FontLibrary> fonts_;
  std::shared_ptr<std::uint32_t> lineNumbers_ = std::make_shared<std::uint32_t>(0);
};

}  // namespace

std::unique_ptr<Graphics> MakeGraphics(const std::string& fontFolder) {
  std::vector<std::string> folders = SystemFontFolders();
  if (!fontFolder.empty()) folders.push_back(fontFolder);
  return std::make_unique<CairoGraphics>(std::move(folders));
}

}  // namespace orvane
