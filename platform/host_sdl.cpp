#include "platform/host_sdl.h"

#include <SDL.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/device.h"
#include "platform/device_pixels.h"
#include "platform/host_sdl_input.h"
#include "platform/pixel_ops.h"
#include "platform/png_image.h"
#include "platform/window_scale.h"

namespace orvane {
namespace {

constexpr Size kUnknownDesktop{1024, 768};

std::int64_t Now() { return static_cast<std::int64_t>(SDL_GetTicks64()); }

void SetHints() {
  // A frame in plain memory: an accelerated one would load the machine's whole graphics stack.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
  SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, "0");
  SDL_SetHint(SDL_HINT_MOUSE_TOUCH_EVENTS, "0");
  SDL_SetHint(SDL_HINT_APP_NAME, "Orvane");
  SDL_SetHint("SDL_VIDEO_X11_WMCLASS", "orvane");
  SDL_SetHint("SDL_VIDEO_WAYLAND_WMCLASS", "orvane");
  // Where no session bus runs, one would be started just to find no input method on it: some 15 ms.
  setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 0);
}

Size DesktopSize() {
  SDL_Rect usable;
  if (SDL_GetDisplayUsableBounds(0, &usable) != 0) return kUnknownDesktop;
  return {usable.w, usable.h};
}

// Four bytes a pixel, 0x00RRGGBB in each: the frame's own layout.
bool IsFrameFormat(const SDL_PixelFormat& format) {
  return format.BytesPerPixel == 4 && format.Rmask == 0xFF0000u && format.Gmask == 0xFF00u &&
         format.Bmask == 0xFFu;
}

// Where nothing can be shown the library falls back on drivers without a screen. Only who asks for one of
// them by name wants it.
bool HasScreen() {
  if (SDL_getenv("SDL_VIDEODRIVER") != nullptr) return true;
  const std::string_view driver = SDL_GetCurrentVideoDriver();
  return driver != "offscreen" && driver != "dummy" && driver != "evdev";
}

struct SurfaceCloser {
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using OwnSurface = std::unique_ptr<SDL_Surface, SurfaceCloser>;

struct WindowCloser {
  // The key or click that ends the program has the library send its own window a word, over a connection of
  // its own. Were the window gone before that is delivered, the window system's complaint would end the
  // process with a wrong status: so two questions come first, whose answers are waited for.
  void operator()(SDL_Window* window) const {
    SDL_HideWindow(window);
    int top = 0;
    SDL_GetWindowBordersSize(window, &top, nullptr, nullptr, nullptr);
    SDL_PumpEvents();
    SDL_DestroyWindow(window);
  }
};

struct CursorCloser {
  void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
};
using Cursor = std::unique_ptr<SDL_Cursor, CursorCloser>;

void SetIcon(SDL_Window* window, std::span<const unsigned char> png) {
  std::optional<PixelBuffer> picture = DecodePng(png);
  if (!picture) return;
  for (std::uint32_t& pixel : picture->pixels)
    pixel = Unpremultiplied(pixel);  // as the window system wants it
  const int stride = picture->width * static_cast<int>(sizeof(std::uint32_t));
  const OwnSurface icon(SDL_CreateRGBSurfaceWithFormatFrom(
      picture->pixels.data(), picture->width, picture->height, 32, stride, SDL_PIXELFORMAT_ARGB8888));
  if (icon) SDL_SetWindowIcon(window, icon.get());
}

// The video subsystem lives as long as this.
struct Video {
  bool open = false;
  Video() {
    SDL_SetMainReady();
    SetHints();
    open = SDL_Init(SDL_INIT_VIDEO) == 0;
  }
  ~Video() { SDL_Quit(); }
  Video(const Video&) = delete;
  Video& operator=(const Video&) = delete;
};

}  // namespace

struct SdlHost::Window {
  explicit Window(SdlHostOptions given) : options(std::move(given)) {}

  bool Open(std::string& error);
  void FitToSurface();
  Placement GetPlacement() const;
  void PrepareFrame(int width, int height);
  void Show(const Rect& devicePixels);
  bool HandleWindow(const SDL_Event& event, Device& device);
  void Follow(Device& device, DesktopInput& input);

  SdlHostOptions options;
  Video video;  // before everything that belongs to it
  std::unique_ptr<SDL_Window, WindowCloser> window;
  Cursor arrow;
  Cursor wait;
  OwnSurface shadow;  // the frame when the window's surface cannot hold it: other pixels, or too small
  SDL_Surface* surface = nullptr;  // the window's, owned by the library
  Point origin;                    // of the frame in the surface
  double scale = 1;
  std::uint32_t raiseEvent = 0;
  bool resized = false;
  bool marginsChanged = false;  // what surrounds the frame has not been shown yet
};

bool SdlHost::Window::Open(std::string& error) {
  if (video.open && !HasScreen()) {
    error = "no window system was found";
    return false;
  }
  if (video.open) {
    scale = RememberedScale(options.scale, DesktopSize());
    const Size size = FrameSize(scale);
    window.reset(SDL_CreateWindow(options.title.c_str(), SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED,
                                  size.width, size.height, SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI));
    if (window) surface = SDL_GetWindowSurface(window.get());
  }
  if (surface == nullptr) {
    error = SDL_GetError();
    return false;
  }
  SDL_SetWindowMinimumSize(window.get(), kScreenSize.width, kScreenSize.height);
  raiseEvent = SDL_RegisterEvents(1);
  FitToSurface();
  return true;
}

// Takes the window's surface as it is now, black, with the largest screen that fits.
void SdlHost::Window::FitToSurface() {
  surface = SDL_GetWindowSurface(window.get());
  if (surface == nullptr) return;
  SDL_FillRect(surface, nullptr, 0);
  marginsChanged = true;
  scale = ScaleForWindow({surface->w, surface->h});
}

Placement SdlHost::Window::GetPlacement() const {
  Placement placement;
  SDL_GetWindowSize(window.get(), &placement.window.width, &placement.window.height);
  if (surface != nullptr && placement.window.width > 0) {
    placement.pixelsPerUnit = static_cast<double>(surface->w) / placement.window.width;
  }
  placement.frame = origin;
  placement.scale = scale;
  return placement;
}

// Centres a frame of this size in the surface; a window that is too small shows its middle.
void SdlHost::Window::PrepareFrame(int width, int height) {
  surface = SDL_GetWindowSurface(window.get());
  if (surface == nullptr) return;
  origin = {(surface->w - width) / 2, (surface->h - height) / 2};
  if (IsFrameFormat(*surface->format) && !SDL_MUSTLOCK(surface) && origin.x >= 0 && origin.y >= 0 &&
      surface->w >= width && surface->h >= height) {
    shadow.reset();
  } else if (!shadow || shadow->w != width || shadow->h != height) {
    shadow.reset(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_RGB888));
  }
}

void SdlHost::Window::Show(const Rect& devicePixels) {
  if (surface == nullptr) return;
  SDL_Rect source{devicePixels.left, devicePixels.top, devicePixels.Width(), devicePixels.Height()};
  SDL_Rect target{source.x + origin.x, source.y + origin.y, source.w, source.h};
  if (shadow) SDL_BlitSurface(shadow.get(), &source, surface, &target);
  const SDL_Rect whole{0, 0, surface->w, surface->h};
  SDL_Rect visible;
  if (marginsChanged) {
    marginsChanged = false;
    SDL_UpdateWindowSurface(window.get());
  } else if (SDL_IntersectRect(&target, &whole, &visible) == SDL_TRUE) {
    SDL_UpdateWindowSurfaceRects(window.get(), &visible, 1);
  }
}

// Events of the window itself; false for those of input.
bool SdlHost::Window::HandleWindow(const SDL_Event& event, Device& device) {
  if (event.type == SDL_QUIT) {
    device.CloseFromOutside();
  } else if (event.type == SDL_WINDOWEVENT) {
    if (event.window.event == SDL_WINDOWEVENT_SIZE_CHANGED) resized = true;
    // The surface keeps its content; what the window system lost is shown again from it.
    if (event.window.event == SDL_WINDOWEVENT_EXPOSED) SDL_UpdateWindowSurface(window.get());
  } else if (event.type != raiseEvent) {
    return false;
  }
  return true;
}

// Brings the device to the size that the window has now. A drag of the window's edge sends many sizes; only
// the last of those that wait counts.
void SdlHost::Window::Follow(Device& device, DesktopInput& input) {
  if (!resized) return;
  resized = false;
  FitToSurface();
  if (scale != device.Scale()) {
    device.SetScale(scale);
    if (options.scaleChanged) options.scaleChanged(scale);
  }
  const Size size = FrameSize(scale);
  PrepareFrame(size.width, size.height);
  device.InvalidateScreen();
  input.SetPlacement(GetPlacement());
}

SdlHost::SdlHost(std::unique_ptr<Window> window) : window_(std::move(window)) {}
SdlHost::~SdlHost() = default;

std::unique_ptr<SdlHost> SdlHost::Open(SdlHostOptions options, std::string& error) {
  auto window = std::make_unique<Window>(std::move(options));
  if (!window->Open(error)) return nullptr;
  return std::unique_ptr<SdlHost>(new SdlHost(std::move(window)));
}

double SdlHost::Scale() const { return window_->scale; }

void SdlHost::Run(Device& device, const std::function<bool()>& ended) {
  DesktopInput input(device);
  const Size size = FrameSize(device.Scale());
  window_->PrepareFrame(size.width, size.height);
  input.SetPlacement(window_->GetPlacement());
  for (bool first = true;; first = false) {
    const std::optional<std::int64_t> next = device.Step(Now());
    if (ended()) return;
    if (first) SetIcon(window_->window.get(), window_->options.iconPng);
    SDL_Event event;
    bool pending = false;
    if (!device.Quiescent()) {
      pending = SDL_PollEvent(&event) != 0;
    } else if (next) {
      const std::int64_t delay = std::clamp<std::int64_t>(*next - Now(), 0, std::numeric_limits<int>::max());
      pending = SDL_WaitEventTimeout(&event, static_cast<int>(delay)) != 0;
    } else {
      pending = SDL_WaitEvent(&event) != 0;
    }
    for (; pending; pending = SDL_PollEvent(&event) != 0) {
      if (event.type == window_->raiseEvent) Raise();
      if (!window_->HandleWindow(event, device)) input.Handle(event);
    }
    window_->Follow(device, input);
  }
}

void SdlHost::Raise() {
  SDL_Window* window = window_->window.get();
  if ((SDL_GetWindowFlags(window) & SDL_WINDOW_MINIMIZED) != 0) SDL_RestoreWindow(window);
  SDL_RaiseWindow(window);
}

void SdlHost::RaiseFromAnyThread() {
  SDL_Event event{};
  event.type = window_->raiseEvent;
  SDL_PushEvent(&event);
}

FrameBuffer SdlHost::Frame(int width, int height) {
  window_->PrepareFrame(width, height);
  SDL_Surface* surface = window_->shadow ? window_->shadow.get() : window_->surface;
  if (surface == nullptr || (!window_->shadow && !IsFrameFormat(*surface->format))) return {};
  const int stride = surface->pitch / static_cast<int>(sizeof(std::uint32_t));
  auto* pixels = static_cast<std::uint32_t*>(surface->pixels);
  if (!window_->shadow) pixels += static_cast<std::ptrdiff_t>(window_->origin.y) * stride + window_->origin.x;
  return {pixels, width, height, stride};
}

void SdlHost::FrameChanged(const Rect& devicePixels) { window_->Show(devicePixels); }

bool SdlHost::SetClipboard(TextView text) { return SDL_SetClipboardText(ToUtf8(text).c_str()) == 0; }

std::optional<Text> SdlHost::GetClipboard() {
  if (SDL_HasClipboardText() == SDL_FALSE) return std::nullopt;
  char* utf8 = SDL_GetClipboardText();
  if (utf8 == nullptr) return std::nullopt;
  Text text = FromUtf8(utf8);
  SDL_free(utf8);
  return text;
}

// The cursors are made when the first wait begins: a start does without them.
void SdlHost::ShowWaitCursor(bool wait) {
  if (!window_->wait) {
    if (!wait) return;
    window_->wait.reset(SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_WAIT));
    window_->arrow.reset(SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_ARROW));
  }
  SDL_SetCursor(wait ? window_->wait.get() : window_->arrow.get());
}

void SdlHost::SetTitle(TextView title) { SDL_SetWindowTitle(window_->window.get(), ToUtf8(title).c_str()); }

// The window takes the new size; its event brings the device along.
void SdlHost::ChangeScale(int step) {
  const Size desktop = DesktopSize();
  const double scale = std::min(SteppedScale(window_->scale, step, ComfortableScale(desktop)),
                                std::max(window_->scale, RememberedScale(kGreatestScale, desktop)));
  const Size frame = FrameSize(scale);
  const double pixelsPerUnit = window_->GetPlacement().pixelsPerUnit;
  SDL_SetWindowSize(window_->window.get(), static_cast<int>(std::lround(frame.width / pixelsPerUnit)),
                    static_cast<int>(std::lround(frame.height / pixelsPerUnit)));
}

}  // namespace orvane
