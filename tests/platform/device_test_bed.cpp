#include "tests/platform/device_test_bed.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/screen_composer.h"

namespace orvane::device_test {

std::uint32_t PixelOf(Colour colour) {
  return (static_cast<std::uint32_t>(colour.red) << 16) | (static_cast<std::uint32_t>(colour.green) << 8) |
         colour.blue;
}

// --- Drawing.

void PlainCanvas::Reset() {
  origin_ = {};
  clips_.clear();
}

Size PlainCanvas::GetSize() const { return surface_.GetSize(); }
double PlainCanvas::Scale() const { return surface_.Scale(); }

Rect PlainCanvas::SurfaceClip() const {
  return clips_.empty() ? Rect::At({0, 0}, surface_.GetSize()) : clips_.back();
}

void PlainCanvas::PushClip(const Rect& clip) {
  clips_.push_back(Intersect(SurfaceClip(), clip.Offset(origin_.x, origin_.y)));
}

Rect PlainCanvas::ClipBounds() const { return SurfaceClip().Offset(-origin_.x, -origin_.y); }

void PlainCanvas::FillRect(const Rect& rect, Colour fill) {
  const Rect area =
      DevicePixelRect(Intersect(rect.Offset(origin_.x, origin_.y), SurfaceClip()), surface_.Scale());
  for (int y = area.top; y < area.bottom; ++y) {
    for (int x = area.left; x < area.right; ++x) surface_.SetPixel(x, y, PixelOf(fill));
  }
}

int PlainCanvas::DrawRun(TextView text, Point topLeft, const Font& font, Colour colour, std::uint32_t line) {
  const int width = font.TextWidth(text);
  TextRun run;
  run.rect = Rect::At(topLeft.x + origin_.x, topLeft.y + origin_.y, width, font.Height());
  run.text = Text(text);
  run.font = font.Spec();
  run.colour = colour;
  run.line = line;
  const Rect shown = Intersect(run.rect, SurfaceClip());
  if (!shown.Empty()) {
    run.shown.push_back(shown);
    surface_.runs.push_back(std::move(run));
  }
  return width;
}

void PlainCanvas::CopySurface(const Surface& source, const Rect& sourceRect, Point at) {
  const double scale = surface_.Scale();
  const Rect target =
      Intersect(Rect::At({at.x + origin_.x, at.y + origin_.y}, sourceRect.GetSize()), SurfaceClip());
  const Rect area = DevicePixelRect(target, scale);
  const int dx = DevicePixelEdge(sourceRect.left, scale) - DevicePixelEdge(at.x + origin_.x, scale);
  const int dy = DevicePixelEdge(sourceRect.top, scale) - DevicePixelEdge(at.y + origin_.y, scale);
  std::vector<std::uint32_t> copy;
  for (int y = area.top; y < area.bottom; ++y) {
    for (int x = area.left; x < area.right; ++x) copy.push_back(source.DevicePixel(x + dx, y + dy));
  }
  std::size_t next = 0;
  for (int y = area.top; y < area.bottom; ++y) {
    for (int x = area.left; x < area.right; ++x) surface_.SetPixel(x, y, copy[next++]);
  }
}

PlainSurface::PlainSurface(Size size, double scale, int& alive)
    : size_(size),
      scale_(scale),
      width_(static_cast<int>(std::ceil(size.width * scale))),
      height_(static_cast<int>(std::ceil(size.height * scale))),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)),
      canvas_(*this),
      alive_(alive) {
  ++alive_;
}

PlainSurface::~PlainSurface() { --alive_; }

Canvas& PlainSurface::GetCanvas() {
  canvas_.Reset();
  return canvas_;
}

std::uint32_t PlainSurface::DevicePixel(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return 0;
  return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                 static_cast<std::size_t>(x)];
}

void PlainSurface::SetPixel(int x, int y, std::uint32_t pixel) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
  pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)] =
      pixel;
}

std::unique_ptr<Surface> PlainGraphics::CreateSurface(Size size, double scale, bool) {
  return std::make_unique<PlainSurface>(size, scale, counts_.surfaces);
}

void PlainGraphics::CopyToFrame(const Surface& source, const Rect& pixels, std::uint32_t* frame,
                                int frameStride, Point at) {
  for (int y = 0; y < pixels.Height(); ++y) {
    for (int x = 0; x < pixels.Width(); ++x) {
      frame[static_cast<std::ptrdiff_t>(at.y + y) * frameStride + at.x + x] =
          source.DevicePixel(pixels.left + x, pixels.top + y);
      ++counts_.copiedPixels;
    }
  }
}

// --- Around the device.

namespace {

// A colour that nothing draws: where it stays, nothing has been composed.
constexpr std::uint32_t kUntouched = 0xABCDEF;

}  // namespace

FrameBuffer FrameHost::Frame(int wantedWidth, int wantedHeight) {
  if (wantedWidth != width || wantedHeight != height) {
    width = wantedWidth;
    height = wantedHeight;
    pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kUntouched);
  }
  return {shows ? pixels.data() : nullptr, width, height, width};
}

std::uint32_t FrameHost::Pixel(int x, int y) const {
  return pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                   static_cast<std::size_t>(x));
}

namespace {

// The part that all scripted layers have in common; `Base` is the kind of layer.
template <typename Base>
class ScriptedLayer : public Base {
 public:
  ScriptedLayer(LayerScript& script, std::string_view name, Device& device)
      : script_(script), name_(name), device_(device) {}

  std::string_view Name() const override { return name_; }
  bool Visible() const override { return script_.visible; }
  Rect Bounds() const override { return script_.bounds; }
  bool Modal() const override { return script_.modal; }
  void Paint(Canvas& canvas) override {
    ++script_.paints;
    canvas.FillRect(Rect::At({0, 0}, script_.bounds.GetSize()), script_.colour);
    if (!script_.text.empty()) {
      canvas.DrawRun(script_.text, {0, 0}, device_.Fonts().GetFont({}), kBlack, canvas.NextTextLine());
    }
  }
  void CatchUp() override {
    if (script_.onCatchUp) script_.onCatchUp();
  }
  bool Behind() const override { return script_.behind; }
  void PenDown(Point p) override {
    Note("down", p);
    if (script_.onPenDown) script_.onPenDown();
  }
  void PenMove(Point p) override { Note("move", p); }
  void PenUp(Point p) override { Note("up", p); }
  void Wheel(Point p, int notches) override { Note("wheel " + std::to_string(notches), p); }
  bool KeyDown(int key, Modifiers) override {
    script_.told.push_back("key " + std::to_string(key));
    return script_.usesKeys;
  }
  bool Character(Char character) override {
    script_.told.push_back("char " + std::to_string(static_cast<int>(character)));
    return script_.usesKeys;
  }

 private:
  void Note(const std::string& what, Point p) {
    script_.told.push_back(what + " " + std::to_string(p.x) + "," + std::to_string(p.y));
  }

  LayerScript& script_;
  std::string_view name_;
  Device& device_;
};

using ScriptedTitle = ScriptedLayer<TitleLayer>;

class ScriptedBar : public ScriptedLayer<BarLayer> {
 public:
  ScriptedBar(LayerScripts& scripts, Device& device)
      : ScriptedLayer(scripts.bar, "bar", device), scripts_(scripts) {}
  BarHandle Create(WindowHandle, int, std::vector<BarButton>) override { return kNoBar; }
  void Destroy(BarHandle) override {}
  void Show(BarHandle, bool) override {}
  void SetImages(BarHandle, std::vector<std::shared_ptr<const Image>>) override {}
  void Insert(BarHandle, int, BarButton) override {}
  void Delete(BarHandle, int) override {}
  void Enable(BarHandle, int, bool) override {}
  void Check(BarHandle, int, bool) override {}
  int Count(BarHandle bar) const override { return bar == 1 ? 3 : 0; }
  Menu* ButtonMenu(BarHandle, int) override { return nullptr; }
  BarHandle Shown() const override { return 1; }
  std::vector<BarButtonPlace> Places() const override { return {}; }
  bool HasPanelButton() const override { return false; }
  Rect PanelButtonRect() const override { return {}; }
  bool Press(int) override { return false; }
  bool PressPanelButton() override { return false; }
  bool OpenMenu(int position) override {
    if (position != scripts_.menuAt) return false;
    scripts_.openedMenus.push_back(position);
    return true;
  }

 private:
  LayerScripts& scripts_;
};

class ScriptedPanel : public ScriptedLayer<PanelLayer> {
 public:
  using ScriptedLayer::ScriptedLayer;
  bool Visible() const override { return ScriptedLayer::Visible(); }
  void Request(bool) override {}
  void Toggle() override {}
};

class ScriptedDialogs : public ScriptedLayer<DialogLayer> {
 public:
  using ScriptedLayer::ScriptedLayer;
  DialogHandle Create(const DialogTemplate&) override { return kNoDialog; }
  void Show(DialogHandle, bool) override {}
  void Destroy(DialogHandle) override {}
  DialogHandle ShowModal(const DialogTemplate&) override { return kNoDialog; }
  std::string FrontName() const override { return {}; }
  bool DismissFront() override { return false; }
};

class ScriptedPopup : public ScriptedLayer<PopupLayer> {
 public:
  using ScriptedLayer::ScriptedLayer;
  void Track(const Menu&, Point, WindowHandle) override {}
  void Close() override {}
  bool Open() const override { return false; }
  const Menu& Current() const override { return none_; }
  Point Anchor() const override { return {}; }
  bool ChooseLabel(TextView) override { return false; }

 private:
  Menu none_;
};

class ScriptedBoxes : public ScriptedLayer<MessageLayer> {
 public:
  ScriptedBoxes(LayerScripts& scripts, Device& device)
      : ScriptedLayer(scripts.message, "message", device), scripts_(scripts) {}
  void Show(WindowHandle, TextView, TextView, MessageIcon) override {}
  void WhenAllDismissed(std::function<void()>) override {}
  bool Open() const override { return false; }
  const MessageBoxText& Front() const override { return none_; }
  long long Waiting() const override { return 0; }
  bool OffersDismissAll() const override { return false; }
  void Dismiss() override {}
  void DismissAll() override { ++scripts_.dismissals; }

 private:
  LayerScripts& scripts_;
  MessageBoxText none_;
};

}  // namespace

// --- The whole.

TestBed::TestBed(double scale, bool recordRuns) {
  DeviceOptions options;
  options.scale = scale;
  options.recordRuns = recordRuns;
  options.trace = &trace;
  device = std::make_unique<Device>(host, options, Factories());
}

DeviceFactories TestBed::Factories() {
  LayerScripts& scripts = layers;
  DeviceFactories factories;
  factories.graphics = [this](const std::string&) { return std::make_unique<PlainGraphics>(counts); };
  factories.title = [&scripts](Device& made) {
    return std::make_unique<ScriptedTitle>(scripts.title, "title", made);
  };
  factories.bar = [&scripts](Device& made) { return std::make_unique<ScriptedBar>(scripts, made); };
  factories.panel = [&scripts](Device& made, PanelMode) {
    return std::make_unique<ScriptedPanel>(scripts.panel, "panel", made);
  };
  factories.dialog = [&scripts](Device& made) {
    return std::make_unique<ScriptedDialogs>(scripts.dialog, "dialog", made);
  };
  factories.popup = [&scripts](Device& made) {
    return std::make_unique<ScriptedPopup>(scripts.menu, "menu", made);
  };
  factories.message = [&scripts](Device& made) { return std::make_unique<ScriptedBoxes>(scripts, made); };
  return factories;
}

WindowHandle TestBed::Make(const std::string& name, const Rect& rect, WindowHandle parent,
                           std::uint32_t style, Colour colour) {
  const auto procedure = [this, name](WindowHandle window, std::uint32_t message, WParam w, LParam l) {
    const auto handler = handlers_.find(name);
    if (handler != handlers_.end()) {
      const Handler running = handler->second;
      if (const std::optional<Result> result = running(window, message, w, l)) return *result;
    }
    return device->DefaultProcedure(window, message, w, l);
  };
  device->RegisterWindowClass({FromUtf8(name), procedure, colour});
  return device->CreateWindow({FromUtf8(name), FromUtf8(name + " title"), style, rect, parent});
}

WindowHandle TestBed::MakeChild(const std::string& name, const Rect& rect, WindowHandle parent,
                                Colour colour) {
  return Make(name, rect, parent, WS_VISIBLE | WS_CHILD, colour);
}

void TestBed::On(const std::string& name, std::uint32_t message, std::function<void(WindowHandle)> action) {
  handlers_[name] = [message, action = std::move(action)](WindowHandle window, std::uint32_t arrived, WParam,
                                                          LParam) -> std::optional<Result> {
    if (arrived != message) return std::nullopt;
    action(window);
    return 0;
  };
}

int TestBed::Settle() {
  constexpr int kMostSteps = 100;
  for (int steps = 1; steps <= kMostSteps; ++steps) {
    device->Step(now);
    if (device->Quiescent()) return steps;
  }
  return -1;
}

std::vector<NotedMessage> TestBed::Messages(WindowHandle window) const {
  std::vector<NotedMessage> found;
  std::copy_if(trace.messages.begin(), trace.messages.end(), std::back_inserter(found),
               [window](const NotedMessage& noted) { return noted.window == window; });
  return found;
}

std::vector<NotedMessage> TestBed::MessagesOf(std::uint32_t message) const {
  std::vector<NotedMessage> found;
  std::copy_if(trace.messages.begin(), trace.messages.end(), std::back_inserter(found),
               [message](const NotedMessage& noted) { return noted.message == message; });
  return found;
}

int TestBed::CountOf(WindowHandle window, std::uint32_t message) const {
  return static_cast<int>(
      std::count_if(trace.messages.begin(), trace.messages.end(),
                    [=](const NotedMessage& n) { return n.window == window && n.message == message; }));
}

}  // namespace orvane::device_test
