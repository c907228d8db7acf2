// The text that can be seen now, for reports.
#include <algorithm>
#include <map>
#include <utility>

#include "platform/device_parts.h"

namespace orvane {

namespace {

// One surface on the screen with the part of it that nothing covers.
struct RunSource {
  const Surface* surface = nullptr;
  Point origin;
  Area visible;  // screen
  std::string name;
  WindowHandle handle = kNoWindow;
};

// A line that was painted in two pieces is in the surface twice, each piece showing its own part; to a reader
// it is one.
bool IsSameText(const TextRun& a, const TextRun& b) {
  return a.rect == b.rect && a.text == b.text && a.font == b.font && a.colour == b.colour;
}

std::vector<Rect> VisibleParts(const TextRun& run, const RunSource& source) {
  std::vector<Rect> parts;
  for (const Rect& shown : run.shown) {
    const Area visible = source.visible.CommonWith(shown.Offset(source.origin.x, source.origin.y));
    parts.insert(parts.end(), visible.Rects().begin(), visible.Rects().end());
  }
  return parts;
}

// Line numbers are a surface's own; on the screen each line gets the next free one.
void AppendRuns(const RunSource& source, std::uint32_t& lastLine, std::vector<ScreenRun>& out) {
  const std::size_t first = out.size();
  std::map<std::uint32_t, std::uint32_t> lines;
  for (const TextRun& run : source.surface->Runs()) {
    std::vector<Rect> parts = VisibleParts(run, source);
    if (parts.empty()) continue;
    ScreenRun shown{run, source.name, source.handle};
    shown.run.rect = run.rect.Offset(source.origin.x, source.origin.y);
    const auto begin = out.begin() + static_cast<std::ptrdiff_t>(first);
    const auto same = std::find_if(
        begin, out.end(), [&shown](const ScreenRun& other) { return IsSameText(other.run, shown.run); });
    if (same != out.end()) {
      same->run.shown.insert(same->run.shown.end(), parts.begin(), parts.end());
      continue;
    }
    shown.run.shown = std::move(parts);
    const auto [line, isNew] = lines.try_emplace(run.line, lastLine + 1);
    if (isNew) ++lastLine;
    shown.run.line = line->second;
    out.push_back(std::move(shown));
  }
}

// The unit that shows the window's text: its own name, or that of the nearest window it lies in that has one.
std::string UnitOf(const WindowTable& windows, WindowHandle handle) {
  for (const Window* window = windows.Find(handle); window != nullptr;
       window = windows.Find(window->parent)) {
    if (window->object == nullptr) return ToUtf8(window->windowClass->name);
    std::string name = window->object->UnitName();
    if (!name.empty()) return name;
  }
  const Window* const window = windows.Find(handle);
  return window == nullptr ? std::string() : ToUtf8(window->windowClass->name);
}

}  // namespace

std::vector<ScreenRun> Device::VisibleRuns() const {
  if (!parts_->recordRuns) return {};
  std::vector<RunSource> sources;
  for (const PlacedWindow& placed : parts_->windows.Placed()) {
    const Window& window = *parts_->windows.Find(placed.handle);
    sources.push_back({window.surface.get(), placed.screen.TopLeft(), Area(placed.clip),
                       UnitOf(parts_->windows, placed.handle), placed.handle});
  }
  for (const LayerStack::Slot& slot : parts_->layers.Slots()) {
    if (slot.surface == nullptr) continue;
    sources.push_back({slot.surface.get(), slot.shown.TopLeft(), Area(slot.shown),
                       std::string(slot.layer->Name()), kNoWindow});
  }
  Area free(kScreenArea);
  for (auto source = sources.rbegin(); source != sources.rend(); ++source) {
    const Rect whole = source->visible.Bounds();
    source->visible = free.CommonWith(whole);
    free.Subtract(whole);
  }
  std::vector<ScreenRun> runs;
  std::uint32_t lastLine = 0;
  for (const RunSource& source : sources) {
    if (source.surface != nullptr) AppendRuns(source, lastLine, runs);
  }
  return runs;
}

}  // namespace orvane
