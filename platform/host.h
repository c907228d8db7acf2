// What surrounds the device: where its pixels go and where clock, clipboard and folders come from. Every
// operation has a working default, so that a new host is small. Input travels the other way: the host calls
// the device's Pen…, Key… and Character operations and then Device::Step.
#pragma once

#include <cstdint>
#include <optional>

#include "base/geometry.h"
#include "base/text.h"

namespace orvane {

// Pixels that the device composites into, 0x00RRGGBB each. A null `pixels` means that nothing is shown now.
struct FrameBuffer {
  std::uint32_t* pixels = nullptr;
  int width = 0;  // device pixels
  int height = 0;
  int stride = 0;  // in pixels
};

class Host {
 public:
  virtual ~Host() = default;

  // The buffer for a screen of this many device pixels. The content must persist from call to call; a host
  // that lost it calls Device::InvalidateScreen.
  virtual FrameBuffer Frame(int width, int height) = 0;
  // The part of the frame (device pixels) that has changed; called once a step with damage.
  virtual void FrameChanged(const Rect& /*devicePixels*/) {}

  // Clipboard: false or nothing when it cannot be opened or holds no text.
  virtual bool SetClipboard(TextView text);
  virtual std::optional<Text> GetClipboard();

  virtual void ShowWaitCursor(bool /*wait*/) {}
  virtual void SetTitle(TextView /*title*/) {}
  // The user asked for another scale by key (steps: +1, −1, 0 = the standard one); the host resizes its
  // window and calls Device::SetScale.
  virtual void ChangeScale(int /*step*/) {}

 private:
  Text clipboard_;
  bool clipboardHasText_ = false;
};

}  // namespace orvane
