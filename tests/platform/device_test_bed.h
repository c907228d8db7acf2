// A device with nothing real around it: a host that keeps the frame, drawing that fills and copies exact
// pixels, layers that note what they are told. The windows' procedures note every message and then do what
// the test wants.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/device.h"
#include "platform/device_factories.h"

namespace orvane::device_test {

// --- Drawing. Only what the device itself draws with does anything, and text runs, which are kept.

class PlainSurface;

class PlainCanvas : public Canvas {
 public:
  explicit PlainCanvas(PlainSurface& surface) : surface_(surface) {}
  void Reset();

  Size GetSize() const override;
  double Scale() const override;
  void SetOrigin(Point origin) override { origin_ = origin; }
  Point Origin() const override { return origin_; }
  void PushClip(const Rect& clip) override;
  void PopClip() override { clips_.pop_back(); }
  Rect ClipBounds() const override;
  void FillRect(const Rect& rect, Colour fill) override;
  int DrawRun(TextView text, Point topLeft, const Font& font, Colour colour, std::uint32_t line) override;
  std::uint32_t NextTextLine() override { return ++lastLine_; }
  void CopySurface(const Surface& source, const Rect& sourceRect, Point at) override;

  void Rectangle(const Rect&, Colour, Colour) override {}
  void FrameRect(const Rect&, Colour) override {}
  void RoundRect(const Rect&, Size, Colour, Colour) override {}
  void Ellipse(const Rect&, Colour, Colour) override {}
  void Line(Point, Point, Colour, int) override {}
  void Polyline(std::span<const Point>, Colour, int) override {}
  void Polygon(std::span<const Point>, Colour) override {}
  void DrawImage(const Image&, Point, const Rect&) override {}
  void DrawMasked(const Image&, const Image&, Point) override {}

 private:
  Rect SurfaceClip() const;

  PlainSurface& surface_;
  Point origin_;
  std::vector<Rect> clips_;  // in surface coordinates
  std::uint32_t lastLine_ = 0;
};

class PlainSurface : public Surface {
 public:
  PlainSurface(Size size, double scale, int& alive);
  ~PlainSurface() override;
  Size GetSize() const override { return size_; }
  double Scale() const override { return scale_; }
  Canvas& GetCanvas() override;
  const std::vector<TextRun>& Runs() const override { return runs; }
  int DeviceWidth() const override { return width_; }
  int DeviceHeight() const override { return height_; }
  std::uint32_t DevicePixel(int x, int y) const override;
  void SetPixel(int x, int y, std::uint32_t pixel);

  std::vector<TextRun> runs;

 private:
  Size size_;
  double scale_;
  int width_;
  int height_;
  std::vector<std::uint32_t> pixels_;
  PlainCanvas canvas_;
  int& alive_;
};

class PlainFont : public Font {
 public:
  const FontSpec& Spec() const override { return spec_; }
  int Ascent() const override { return 10; }
  int Descent() const override { return 2; }
  void AppendWidths(TextView text, std::vector<int>& widths) const override {
    widths.insert(widths.end(), text.size(), 6);
  }
  int TextWidth(TextView text) const override { return static_cast<int>(text.size()) * 6; }

 private:
  FontSpec spec_;
};

class PlainFonts : public FontLibrary {
 public:
  const Font& GetFont(const FontSpec&) override { return font_; }
  Text MissingFaces() const override { return {}; }

 private:
  PlainFont font_;
};

// What a test can see of the drawing of its device: how many surfaces are alive, how many pixels were copied.
struct DrawingCounts {
  int surfaces = 0;
  long long copiedPixels = 0;
};

class PlainGraphics : public Graphics {
 public:
  explicit PlainGraphics(DrawingCounts& counts) : counts_(counts) {}
  FontLibrary& Fonts() override { return fonts_; }
  std::unique_ptr<Surface> CreateSurface(Size size, double scale, bool) override;
  std::shared_ptr<const Image> LoadImage(const EncodedImage&) override { return nullptr; }
  void CopyToFrame(const Surface& source, const Rect& sourceDevicePixels, std::uint32_t* frame,
                   int frameStride, Point at) override;

 private:
  DrawingCounts& counts_;
  PlainFonts fonts_;
};

// --- Around the device.

class FrameHost : public Host {
 public:
  FrameBuffer Frame(int width, int height) override;
  void FrameChanged(const Rect& devicePixels) override { changes.push_back(devicePixels); }
  bool SetClipboard(TextView text) override { return clipboardOpens && Host::SetClipboard(text); }
  void ShowWaitCursor(bool wait) override { waits.push_back(wait); }
  void SetTitle(TextView title) override { titles.emplace_back(title); }
  void ChangeScale(int step) override { scaleSteps.push_back(step); }

  std::uint32_t Pixel(int x, int y) const;

  bool shows = true;
  bool clipboardOpens = true;
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
  std::vector<Rect> changes;
  std::vector<bool> waits;
  std::vector<Text> titles;
  std::vector<int> scaleSteps;
};

struct NotedMessage {
  WindowHandle window = kNoWindow;
  std::uint32_t message = 0;
  WParam w = 0;
  LParam l = 0;
  friend bool operator==(const NotedMessage&, const NotedMessage&) = default;
};

class NotingTrace : public TraceSink {
 public:
  void MessageDispatched(WindowHandle window, std::uint32_t message, WParam w, LParam l) override {
    messages.push_back({window, message, w, l});
  }
  void CursorChanged(bool wait) override { cursors.push_back(wait); }
  void BarCall(std::string_view, int, int, int) override {}
  void MessageBoxShown(TextView, TextView, MessageIcon) override {}

  std::vector<NotedMessage> messages;
  std::vector<bool> cursors;
};

// What a test sets of one layer, and what the layer was told.
struct LayerScript {
  bool visible = false;
  bool modal = false;
  Rect bounds;
  Colour colour = Rgb(1, 2, 3);
  Text text;
  bool usesKeys = false;
  std::function<void()> onPenDown;
  std::function<void()> onCatchUp;
  bool behind = false;
  int paints = 0;
  std::vector<std::string> told;
};

struct LayerScripts {
  LayerScript title, bar, panel, dialog, menu, message;
  std::vector<int> openedMenus;
  int menuAt = 1;  // the bar's button that has a menu
  int dismissals = 0;
};

// --- The whole.

class TestBed {
 public:
  explicit TestBed(double scale = 1.0, bool recordRuns = false);

  // Makes a window of a class of its own named `name`, of one colour, visible unless said otherwise.
  WindowHandle Make(const std::string& name, const Rect& rect, WindowHandle parent = kNoWindow,
                    std::uint32_t style = WS_VISIBLE, Colour colour = Rgb(10, 20, 30));
  WindowHandle MakeChild(const std::string& name, const Rect& rect, WindowHandle parent,
                         Colour colour = Rgb(40, 50, 60));

  // What a window does with a message instead of the default; nothing: the default procedure.
  using Handler = std::function<std::optional<Result>(WindowHandle, std::uint32_t, WParam, LParam)>;
  void On(const std::string& name, std::uint32_t message, std::function<void(WindowHandle)> action);
  void SetHandler(const std::string& name, Handler handler) { handlers_[name] = std::move(handler); }

  // Steps until nothing is left to do; the number of steps, or −1 when a hundred do not get there.
  int Settle();
  std::vector<NotedMessage> Messages(WindowHandle window) const;
  std::vector<NotedMessage> MessagesOf(std::uint32_t message) const;
  int CountOf(WindowHandle window, std::uint32_t message) const;
  void ForgetMessages() { trace.messages.clear(); }

  FrameHost host;
  NotingTrace trace;
  DrawingCounts counts;
  LayerScripts layers;
  std::int64_t now = 0;
  std::unique_ptr<Device> device;

 private:
  DeviceFactories Factories();
  std::map<std::string, Handler> handlers_;
};

std::uint32_t PixelOf(Colour colour);

// A main window, a tool that fills it and a panel in the tool, at screen (10, 46) to (110, 146).
struct ThreeWindows : testing::Test {
  TestBed bed;
  Device& device = *bed.device;
  WindowHandle main = bed.Make("main", Rect::At(0, 26, 240, 268));
  WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 240, 268), main);
  WindowHandle panel = bed.MakeChild("panel", Rect::At(10, 20, 100, 100), tool);

  void SetUp() override {
    bed.Settle();
    bed.ForgetMessages();
  }
  LayerScript& ShowLayer(LayerScript& layer, const Rect& bounds, bool modal = false) {
    layer.visible = true;
    layer.modal = modal;
    layer.bounds = bounds;
    return layer;
  }
};

}  // namespace orvane::device_test
