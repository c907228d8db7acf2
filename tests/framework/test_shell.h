// A hand-held without a screen, with a main window, for tests of windows, controls and tools. Everything that
// a window asks of its shell is done on a real device and written down.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "data/memory_settings.h"
#include "data/zel_registry.h"
#include "framework/resource_loader.h"
#include "framework/zel_window.h"
#include "platform/device_factories.h"
#include "resources/images.h"
#include "resources/menus.h"

namespace orvane::testing {

// Keeps the frame as pixels.
class FakeHost : public Host {
 public:
  FrameBuffer Frame(int width, int height) override {
    if (width != width_ || height != height_) {
      pixels_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
      width_ = width;
      height_ = height;
    }
    return {pixels_.data(), width, height, width};
  }
  int Width() const { return width_; }
  int Height() const { return height_; }
  // Of a device pixel, 0xRRGGBB.
  std::uint32_t At(int x, int y) const {
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                   static_cast<std::size_t>(x)];
  }
  const std::vector<std::uint32_t>& Pixels() const { return pixels_; }

 private:
  std::vector<std::uint32_t> pixels_;
  int width_ = 0;
  int height_ = 0;
};

struct Dispatched {
  WindowHandle window = kNoWindow;
  std::uint32_t message = 0;
  WParam w = 0;
  LParam l = 0;
  friend bool operator==(const Dispatched&, const Dispatched&) = default;
};

class RecordingTrace : public TraceSink {
 public:
  void MessageDispatched(WindowHandle window, std::uint32_t message, WParam w, LParam l) override {
    messages.push_back({window, message, w, l});
    if (watch) watch(messages.back());
  }
  void CursorChanged(bool) override {}
  void BarCall(std::string_view call, int bar, int commandOrIndex, int value) override {
    barCalls.push_back(std::string(call) + " " + std::to_string(bar) + " " + std::to_string(commandOrIndex) +
                       " " + std::to_string(value));
  }
  void MessageBoxShown(TextView caption, TextView text, MessageIcon icon) override {
    boxes.push_back({Text(caption), Text(text), icon});
  }

  std::vector<Dispatched> messages;
  std::function<void(const Dispatched&)> watch;  // called before the window gets the message
  std::vector<std::string> barCalls;             // "create 1 2 6"
  std::vector<MessageBoxText> boxes;
};

// What a window asked its shell for.
struct AddedButton {
  int id = 0;
  int image = 0;
  int string = 0;
  int state = 0;
  ButtonStyle style = ButtonStyle::kPush;
  friend bool operator==(const AddedButton&, const AddedButton&) = default;
};
struct DrawnIcon {
  Point centre;
  int icon = 0;
  friend bool operator==(const DrawnIcon&, const DrawnIcon&) = default;
};
struct DrawnTitle {
  Text title;
  bool clearBelow = false;
  bool bold = false;
  friend bool operator==(const DrawnTitle&, const DrawnTitle&) = default;
};

struct TestShellOptions {
  double scale = 1.0;
  bool recordRuns = false;
  PanelMode panelMode = PanelMode::kAuto;
  DeviceFactories factories = StandardFactories();
};

// The main window fills the client area and forwards commands and drop-downs to the current tool.
class TestShell : public Shell {
 public:
  static constexpr TextView kMainClass = u"TestMainWindow";

  explicit TestShell(const TestShellOptions& options = {})
      : device_(host_, {options.scale, options.recordRuns, options.panelMode, "", &trace_},
                options.factories),
        registry_(store_),
        backBuffer_(device_),
        separator_(device_) {
    registry_.SetKey(u"Software\\Zel Software\\Orvane");
    backBuffer_.CreateBlank(kScreenSize.width, kScreenSize.height);
    separator_.Load(kSeparatorLine, kNoImage);
    device_.RegisterWindowClass({Text(kMainClass),
                                 [this](WindowHandle window, std::uint32_t message, WParam w, LParam l) {
                                   return OnMainMessage(window, message, w, l);
                                 },
                                 kWhite});
    mainWindow_ = device_.CreateWindow({Text(kMainClass), u"Orvane", WS_VISIBLE, kClientArea, kNoWindow});
    device_.SetMainWindow(mainWindow_);
    mainBar_ = device_.Bars().Create(mainWindow_, kBarHidden, LoadResourceBar(kMainMenu));
    mainBarStart_ = device_.Bars().Count(mainBar_);
    device_.Bars().SetImages(mainBar_, LoadResourceStrip(device_, kBarImages));
    device_.Bars().Show(mainBar_, true);
    const Menu popups = LoadResourceMenu(kPopupMenu);
    for (const MenuItem& item : popups.Items()) popups_.emplace_back(item.submenu);
  }

  // Shell
  Device& GetDevice() override { return device_; }
  ToolStack& Tools() override { return stack_; }
  TextEngine& Engine() override { return engine_; }
  ZelRegistry& Settings() override { return registry_; }
  WindowHandle MainWindow() const override { return mainWindow_; }
  Bitmap& BackBuffer() override { return backBuffer_; }
  const Bitmap& SeparatorBitmap() const override { return separator_; }
  void SetHelpTopic(int page) override { helpTopic = page; }
  int HelpTopic() const override { return helpTopic; }
  void SetCurrentTool(WindowHandle tool) override { currentTool = tool; }
  void AddBarButton(int id, int image, int string, int state, ButtonStyle style) override {
    buttons.push_back({id, image, string, state, style});
    BarButton button;
    button.id = id;
    button.image = image;
    button.state = state;
    button.style = style;
    device_.Bars().Insert(mainBar_, device_.Bars().Count(mainBar_), std::move(button));
  }
  void RemoveAddedButtons() override {
    buttons.clear();
    while (device_.Bars().Count(mainBar_) > mainBarStart_) device_.Bars().Delete(mainBar_, mainBarStart_);
  }
  void EnableBarButton(int id, bool enabled) override { device_.Bars().Enable(mainBar_, id, enabled); }
  void CheckBarButton(int id, bool checked) override { device_.Bars().Check(mainBar_, id, checked); }
  void DrawSharedIcon(Canvas&, int centreX, int centreY, int icon) override {
    icons.push_back({{centreX, centreY}, icon});
  }
  void DrawTitleStrip(Canvas& canvas, const FontFamily& family, TextView title, bool clearBelow,
                      bool bold) override {
    titles.push_back({Text(title), clearBelow, bold});
    canvas.FillRect({0, 0, kScreenSize.width, 23}, kWhite);
    engine_.SelectFontFamily(&family);
    engine_.SetTextColour(kBlack);
    engine_.SetTextStyle(bold, false);
    engine_.DrawText(canvas, title, (kScreenSize.width - engine_.MeasureText(title).width) / 2, 2);
    engine_.SetTextStyle(false, false);
    if (clearBelow) canvas.FillRect({0, 23, 240, 268}, Rgb(230, 242, 255));
  }
  Menu& PopupMenu(int position) override { return popups_.at(static_cast<std::size_t>(position)); }
  void Tell(TextView text, MessageIcon icon) override {
    device_.Boxes().Show(mainWindow_, text, kProgramName, icon);
  }

  // Handles all that is due, up to what waits for input or time.
  void Settle() {
    for (int i = 0; i < 100 && (i == 0 || !device_.Quiescent()); ++i) device_.Step(now);
  }
  // The point of the screen where a client point of a window stands.
  Point OnScreen(WindowHandle window, Point client) const {
    const Rect rect = device_.ScreenRect(window);
    return {rect.left + client.x, rect.top + client.y};
  }
  void Tap(WindowHandle window, Point client) {
    device_.PenDown(OnScreen(window, client));
    device_.PenUp(OnScreen(window, client));
  }
  // A stroke along client points, from the first to the last.
  void Stroke(WindowHandle window, const std::vector<Point>& points) {
    device_.PenDown(OnScreen(window, points.front()));
    for (std::size_t i = 1; i < points.size(); ++i) device_.PenMove(OnScreen(window, points[i]));
    device_.PenUp(OnScreen(window, points.back()));
  }
  // A logical pixel of the screen as it was last composed, at scale 1.
  std::uint32_t Pixel(Point screen) const { return host_.At(screen.x, screen.y); }
  BarHandle MainBar() const { return mainBar_; }

  const FakeHost& GetHost() const { return host_; }
  RecordingTrace& Trace() { return trace_; }
  MemorySettings& Store() { return store_; }

  std::int64_t now = 0;  // milliseconds, as the next step will see it
  int helpTopic = 0;
  WindowHandle currentTool = kNoWindow;
  std::vector<AddedButton> buttons;  // on the main bar now
  std::vector<DrawnIcon> icons;
  std::vector<DrawnTitle> titles;

 private:
  Result OnMainMessage(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
    if (message == WM_COMMAND) {
      return device_.Send(currentTool, kToolCommand, static_cast<WParam>(CommandId(w)), kFromMenu);
    }
    if (message == WM_NOTIFY && l != 0) {
      const auto& notification = *reinterpret_cast<const BarNotification*>(l);
      if (notification.code == TBN_DROPDOWN) {
        return device_.Send(currentTool, kToolCommand, static_cast<WParam>(notification.id), kFromDropDown);
      }
    }
    return device_.DefaultProcedure(window, message, w, l);
  }

  FakeHost host_;
  RecordingTrace trace_;
  Device device_;
  MemorySettings store_;
  ZelRegistry registry_;
  ToolStack stack_;
  TextEngine engine_;
  Bitmap backBuffer_;
  Bitmap separator_;
  std::vector<Menu> popups_;
  WindowHandle mainWindow_ = kNoWindow;
  BarHandle mainBar_ = kNoBar;
  int mainBarStart_ = 0;
};

}  // namespace orvane::testing
