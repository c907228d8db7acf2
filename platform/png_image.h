// PNG data, and pictures from it that are decoded when they are first drawn.
#pragma once

#include <memory>
#include <optional>
#include <span>

#include "platform/canvas.h"
#include "platform/device_pixels.h"
#include "platform/pixel_ops.h"

namespace orvane {

// The pixels of a PNG picture as they are, premultiplied. Nothing when the data cannot be decoded.
std::optional<PixelBuffer> DecodePng(std::span<const unsigned char> data);

// The pixels of a picture at one scale.
struct ScaledPicture {
  DeviceGrid grid{{}, 1.0};
  PixelBuffer pixels;   // premultiplied
  bool opaque = false;  // no pixel lets anything show through
};

class PngImage final : public Image {
 public:
  explicit PngImage(const EncodedImage& encoded) : encoded_(encoded) {}

  Size GetSize() const override { return encoded_.size; }

  // The picture for a scale. Null when the data cannot be decoded, or the size is not positive. Only the
  // scale asked for last is kept.
  const ScaledPicture* At(double scale) const;

 private:
  EncodedImage encoded_;
  // Decoding on first use does not change what the picture is.
  mutable std::unique_ptr<ScaledPicture> picture_;
  mutable double triedScale_ = 0.0;
};

}  // namespace orvane
