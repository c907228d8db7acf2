// A host without a screen: the clock stands still until it is told to move, the frame is memory, and the
// clipboard is its own.
#pragma once

#include <string>
#include <vector>

#include "base/colour.h"
#include "platform/host.h"

namespace orvane {

class Device;

class HeadlessHost : public Host {
 public:
  // `standardScale` is what the scale goes back to when the user asks for the standard one.
  explicit HeadlessHost(double standardScale = 1.0) : standardScale_(standardScale) {}

  FrameBuffer Frame(int width, int height) override;
  void ShowWaitCursor(bool wait) override { waitCursor_ = wait; }
  void SetTitle(TextView title) override { title_ = title; }
  void ChangeScale(int step) override;

  std::int64_t Now() const { return now_; }  // milliseconds
  void SetNow(std::int64_t now) { now_ = now; }
  bool WaitCursor() const { return waitCursor_; }
  const Text& Title() const { return title_; }

  // Gives the device the scale that the user asked for since the last call; true when there was one.
  bool ApplyScale(Device& device);

  const std::vector<std::uint32_t>& Pixels() const { return pixels_; }  // row by row, 0x00RRGGBB
  // The device pixel at the centre of a logical pixel; black outside the frame.
  Colour PixelAt(Point logical, double scale) const;
  // Writes the frame; false when there is none yet or the file cannot be written.
  bool WritePng(const std::string& path) const;

 private:
  std::vector<std::uint32_t> pixels_;
  int width_ = 0;
  int height_ = 0;
  std::int64_t now_ = 0;
  bool waitCursor_ = false;
  Text title_;
  double standardScale_;
  std::vector<int> scaleSteps_;
};

}  // namespace orvane
