// What the device itself costs: a drag step (content moved, uncovered part painted, screen composed), a full
// repaint and a step with nothing to do. The argument is the scale in percent.
#include <benchmark/benchmark.h>

#include <optional>
#include <vector>

#include "platform/device.h"

namespace orvane {
namespace {

class MemoryHost : public Host {
 public:
  FrameBuffer Frame(int width, int height) override {
    pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    return {pixels_.data(), width, height, width};
  }

 private:
  std::vector<std::uint32_t> pixels_;
};

DeviceOptions OptionsFor(const benchmark::State& state) {
  DeviceOptions options;
  options.scale = static_cast<double>(state.range(0)) / 100.0;
  return options;
}

// A main window, a tool over all of it and a panel that paints from a picture larger than itself.
class DraggedPanel {
 public:
  explicit DraggedPanel(const DeviceOptions& options) : device_(host_, options) {
    content_ = device_.CreateSurface({300, 320});
    Canvas& canvas = content_->GetCanvas();
    for (int y = 0; y < 320; y += 20) canvas.FillRect(Rect::At(0, y, 300, 10), Rgb(200, y % 256, 90));
    device_.RegisterWindowClass({u"plain", nullptr, kWhite, 0});
    device_.RegisterWindowClass({u"panel",
                                 [this](WindowHandle window, std::uint32_t message, WParam w, LParam l) {
                                   return message == WM_PAINT
                                              ? Paint(window)
                                              : device_.DefaultProcedure(window, message, w, l);
                                 },
                                 std::nullopt, 0});
    const WindowHandle main = device_.CreateWindow({u"plain", u"", WS_VISIBLE, kClientArea, kNoWindow});
    const WindowHandle tool =
        device_.CreateWindow({u"plain", u"", WS_VISIBLE, Rect::At(0, 0, 240, 268), main});
    panel_ = device_.CreateWindow({u"panel", u"", WS_VISIBLE | WS_CHILD, Rect::At(0, 0, 240, 268), tool});
    Step();
  }

  void Scroll(int dx, int dy) {
    offset_ = {offset_.x + dx, offset_.y + dy};
    device_.ScrollWindowRect(panel_, Rect::At(0, 0, 240, 268), -dx, -dy);
  }
  void Step() { device_.Step(0); }
  Device& GetDevice() { return device_; }

 private:
  Result Paint(WindowHandle window) {
    const Rect part = device_.InvalidRect(window);
    device_.WindowCanvas(window).CopySurface(*content_, part.Offset(offset_.x, offset_.y), part.TopLeft());
    device_.Validate(window);
    return 0;
  }

  MemoryHost host_;
  Device device_;
  std::unique_ptr<Surface> content_;
  WindowHandle panel_ = kNoWindow;
  Point offset_{20, 20};
};

void DragStep(benchmark::State& state) {
  DraggedPanel panel(OptionsFor(state));
  int direction = 1;
  for ([[maybe_unused]] auto _ : state) {
    panel.Scroll(5 * direction, 7 * direction);
    panel.Step();
    direction = -direction;
  }
}
BENCHMARK(DragStep)->Arg(100)->Arg(150)->Arg(200)->Arg(300)->Unit(benchmark::kMicrosecond);

void FullRepaint(benchmark::State& state) {
  DraggedPanel panel(OptionsFor(state));
  for ([[maybe_unused]] auto _ : state) panel.GetDevice().RepaintEverything();
}
BENCHMARK(FullRepaint)->Arg(100)->Arg(200)->Arg(300)->Unit(benchmark::kMicrosecond);

void IdleStep(benchmark::State& state) {
  DraggedPanel panel(OptionsFor(state));
  for ([[maybe_unused]] auto _ : state) panel.Step();
}
BENCHMARK(IdleStep)->Arg(200)->Unit(benchmark::kNanosecond);

}  // namespace
}  // namespace orvane
