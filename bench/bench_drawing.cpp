// How long the drawing operations take on a screen-sized surface. The argument is the scale.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "platform/graphics.h"

namespace orvane {
namespace {

constexpr Size kScreen{240, 320};
constexpr Size kClient{240, 268};

void FillClient(benchmark::State& state) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface(kScreen, static_cast<double>(state.range(0)), false);
  Canvas& canvas = surface->GetCanvas();
  for ([[maybe_unused]] auto _ : state) canvas.FillRect(Rect::At({}, kClient), Rgb(204, 255, 222));
}

void CopyClient(benchmark::State& state) {
  const auto graphics = MakeGraphics("");
  const auto scale = static_cast<double>(state.range(0));
  const auto source = graphics->CreateSurface(kClient, scale, false);
  const auto target = graphics->CreateSurface(kScreen, scale, false);
  Canvas& canvas = target->GetCanvas();
  for ([[maybe_unused]] auto _ : state) canvas.CopySurface(*source, Rect::At({}, kClient), {0, 26});
}

void ScrollClient(benchmark::State& state) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface(kClient, static_cast<double>(state.range(0)), false);
  Canvas& canvas = surface->GetCanvas();
  for ([[maybe_unused]] auto _ : state) canvas.CopySurface(*surface, {7, 5, 240, 268}, {0, 0});
}

void CopyScreenToFrame(benchmark::State& state) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface(kScreen, static_cast<double>(state.range(0)), false);
  const Rect all{0, 0, surface->DeviceWidth(), surface->DeviceHeight()};
  std::vector<std::uint32_t> frame(static_cast<std::size_t>(all.Width()) *
                                   static_cast<std::size_t>(all.Height()));
  for ([[maybe_unused]] auto _ : state) {
    graphics->CopyToFrame(*surface, all, frame.data(), all.Width(), {0, 0});
    benchmark::DoNotOptimize(frame.data());
  }
}

// 500 runs of three sizes, as a table of elements shows them.
void DrawTable(Graphics& graphics, Canvas& canvas) {
  const Font& symbol = graphics.Fonts().GetFont({u"Tahoma", 14, true});
  const Font& number = graphics.Fonts().GetFont({u"Tahoma", 9});
  const Font& name = graphics.Fonts().GetFont({u"Tahoma", 10});
  for (int i = 0; i < 167; ++i) {
    const Point at{i % 18 * 13, i / 18 * 30};
    canvas.DrawRun(u"118", at, number, kBlack, 1);
    canvas.DrawRun(u"Og", {at.x, at.y + 8}, symbol, kBlack, 2);
    canvas.DrawRun(u"Oganesson", {at.x, at.y + 20}, name, kBlack, 3);
  }
}

void FiveHundredRuns(benchmark::State& state) {
  const auto graphics = MakeGraphics("");
  const auto surface =
      graphics->CreateSurface(kScreen, static_cast<double>(state.range(0)), state.range(1) != 0);
  for ([[maybe_unused]] auto _ : state) {
    Canvas& canvas = surface->GetCanvas();
    canvas.FillRect(Rect::At({}, kScreen), kWhite);
    DrawTable(*graphics, canvas);
  }
}

// With faces opened and glyphs drawn for the first time.
void FirstFiveHundredRuns(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    const auto graphics = MakeGraphics("");
    const auto surface = graphics->CreateSurface(kScreen, static_cast<double>(state.range(0)), false);
    DrawTable(*graphics, surface->GetCanvas());
  }
}

void HundredRoundRects(benchmark::State& state) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface(kScreen, static_cast<double>(state.range(0)), false);
  Canvas& canvas = surface->GetCanvas();
  for ([[maybe_unused]] auto _ : state) {
    for (int i = 0; i < 100; ++i) {
      canvas.RoundRect(Rect::At(i % 10 * 24, i / 10 * 26, 22, 24), {8, 8}, kBlack, Rgb(230, 242, 255));
    }
  }
}

void HundredDiagonals(benchmark::State& state) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface(kScreen, static_cast<double>(state.range(0)), false);
  Canvas& canvas = surface->GetCanvas();
  std::vector<Point> path;
  for (int i = 0; i <= 100; ++i) path.push_back({i * 2, i * 37 % 260});
  for ([[maybe_unused]] auto _ : state) canvas.Polyline(path, kBlack);
}

BENCHMARK(FillClient)->DenseRange(1, 3);
BENCHMARK(CopyClient)->DenseRange(1, 3);
BENCHMARK(ScrollClient)->DenseRange(1, 3);
BENCHMARK(CopyScreenToFrame)->DenseRange(1, 3);
BENCHMARK(FiveHundredRuns)->ArgsProduct({{1, 2, 3}, {0, 1}})->Unit(benchmark::kMicrosecond);
BENCHMARK(FirstFiveHundredRuns)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(HundredRoundRects)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(HundredDiagonals)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvane
