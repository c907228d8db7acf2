// The hand-held as a window on the desktop.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>

#include "platform/host.h"

namespace orvane {

class Device;

struct SdlHostOptions {
  double scale = 0;  // device pixels a logical pixel; 0: the largest whole one that fits comfortably
  std::string title = "Orvane";            // until the device sets one
  std::span<const unsigned char> iconPng;  // of the window; none when empty
  // Called with the new scale after the user has resized the window or pressed a scale key.
  std::function<void(double)> scaleChanged;
};

// One window with a software frame: the device composites straight into the memory that the window system
// shows. With nothing to do the host waits in the system, with no polling and no wake-ups of its own.
class SdlHost : public Host {
 public:
  // Opens the window. Null when no display can be opened; `error` then says why, in words of the system.
  static std::unique_ptr<SdlHost> Open(SdlHostOptions options, std::string& error);
  ~SdlHost() override;
  SdlHost(const SdlHost&) = delete;
  SdlHost& operator=(const SdlHost&) = delete;

  // The scale that the device is to be made with.
  double Scale() const;

  // Feeds input to the device and steps it until `ended` says so; it is asked after every step. The window
  // stays open until the host is destroyed.
  void Run(Device& device, const std::function<bool()>& ended);

  // Brings the window to the front, out of an icon if need be. RaiseFromAnyThread may be called on another
  // thread than Run's; the window is then raised by Run.
  void Raise();
  void RaiseFromAnyThread();

  FrameBuffer Frame(int width, int height) override;
  void FrameChanged(const Rect& devicePixels) override;
  bool SetClipboard(TextView text) override;
  std::optional<Text> GetClipboard() override;
  void ShowWaitCursor(bool wait) override;
  void SetTitle(TextView title) override;
  void ChangeScale(int step) override;

 private:
  struct Window;
  explicit SdlHost(std::unique_ptr<Window> window);
  std::unique_ptr<Window> window_;
};

}  // namespace orvane
