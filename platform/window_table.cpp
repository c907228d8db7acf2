#include "platform/window_table.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr int kFarthestEdge = 32767;

int Bounded(int value, int low) { return std::clamp(value, low, kFarthestEdge); }

// The size of an axis from `low` to `high`, whatever the two are.
int BoundedLength(int low, int high) {
  const std::int64_t length = static_cast<std::int64_t>(high) - low;
  return static_cast<int>(std::clamp<std::int64_t>(length, 0, kFarthestEdge));
}

void Erase(std::vector<WindowHandle>& list, WindowHandle window) {
  list.erase(std::remove(list.begin(), list.end(), window), list.end());
}

}  // namespace

Rect BoundedWindowRect(const Rect& rect) {
  return Rect::At(Bounded(rect.left, -kFarthestEdge), Bounded(rect.top, -kFarthestEdge),
                  BoundedLength(rect.left, rect.right), BoundedLength(rect.top, rect.bottom));
}

bool WindowTable::AddClass(WindowClass windowClass) {
  auto entry = std::make_unique<WindowClass>(std::move(windowClass));
  Text name = entry->name;
  return classes_.emplace(std::move(name), std::move(entry)).second;
}

const WindowClass* WindowTable::FindClass(TextView name) const {
  const auto found = classes_.find(name);
  return found == classes_.end() ? nullptr : found->second.get();
}

Window& WindowTable::Add(const WindowClass& windowClass, const CreateParams& params) {
  auto record = std::make_unique<Window>();
  Window& window = *record;
  window.handle = ++lastHandle_;
  window.windowClass = &windowClass;
  window.title = params.title;
  window.style = params.style & ~WS_VISIBLE;
  window.rect = BoundedWindowRect(params.rect);
  window.parent = params.parent;
  window.invalid = window.Client();
  windows_.emplace(window.handle, std::move(record));
  Siblings(window).push_back(window.handle);
  return window;
}

void WindowTable::Remove(WindowHandle handle) {
  Window* const window = Find(handle);
  if (window == nullptr) return;
  Erase(Siblings(*window), handle);
  // What is still in here is being destroyed further up the call stack; it stays hidden until that is done.
  for (const std::vector<WindowHandle>* list : {&window->children, &window->owned}) {
    for (const WindowHandle orphan : *list) {
      if (Window* const record = Find(orphan)) {
        record->parent = kNoWindow;
        roots_.push_back(orphan);
      }
    }
  }
  windows_.erase(handle);
}

Window* WindowTable::Find(WindowHandle window) {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : found->second.get();
}

const Window* WindowTable::Find(WindowHandle window) const {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : found->second.get();
}

std::vector<WindowHandle> WindowTable::All() const {
  std::vector<WindowHandle> all;
  all.reserve(windows_.size());
  for (const auto& [handle, record] : windows_) all.push_back(handle);
  return all;
}

std::vector<WindowHandle> WindowTable::TopFirst() const {
  std::vector<WindowHandle> order;
  for (const WindowHandle root : roots_) AppendStack(root, order);
  std::reverse(order.begin(), order.end());
  return order;
}

void WindowTable::AppendStack(WindowHandle handle, std::vector<WindowHandle>& bottomFirst) const {
  const Window* const window = Find(handle);
  if (window == nullptr) return;
  bottomFirst.push_back(handle);
  for (const WindowHandle child : window->children) AppendStack(child, bottomFirst);
  for (const WindowHandle owned : window->owned) AppendStack(owned, bottomFirst);
}

std::vector<PlacedWindow> WindowTable::Placed() const {
  std::vector<PlacedWindow> placed;
  placed.reserve(windows_.size());
  for (const WindowHandle root : roots_) AppendPlaced(root, {0, 0}, kScreenArea, placed);
  return placed;
}

void WindowTable::AppendPlaced(WindowHandle handle, Point origin, const Rect& clip,
                               std::vector<PlacedWindow>& out) const {
  const Window* const window = Find(handle);
  if (window == nullptr || !window->shown) return;
  const Rect screen = window->rect.Offset(origin.x, origin.y);
  const Rect visible = Intersect(screen, clip);
  out.push_back({handle, screen, visible});
  for (const WindowHandle child : window->children) AppendPlaced(child, screen.TopLeft(), visible, out);
  for (const WindowHandle owned : window->owned) AppendPlaced(owned, screen.TopLeft(), visible, out);
}

bool WindowTable::IsVisible(WindowHandle handle) const {
  const Window* window = Find(handle);
  if (window == nullptr) return false;
  for (; window != nullptr; window = Find(window->parent)) {
    if (!window->shown) return false;
  }
  return true;
}

bool WindowTable::IsWithin(WindowHandle handle, WindowHandle ancestor) const {
  for (const Window* window = Find(handle); window != nullptr; window = Find(window->parent)) {
    if (window->handle == ancestor) return true;
  }
  return false;
}

WindowHandle WindowTable::TopLevelOf(WindowHandle handle) const {
  const Window* window = Find(handle);
  while (window != nullptr && window->IsChild() && window->parent != kNoWindow) window = Find(window->parent);
  return window == nullptr ? kNoWindow : window->handle;
}

Rect WindowTable::ScreenRect(const Window& window) const {
  Rect rect = window.rect;
  for (const Window* parent = Find(window.parent); parent != nullptr; parent = Find(parent->parent)) {
    rect = rect.Offset(parent->rect.left, parent->rect.top);
  }
  return rect;
}

Rect WindowTable::ClippedScreenRect(const Window& window) const {
  Rect rect = Intersect(ScreenRect(window), kScreenArea);
  for (const Window* parent = Find(window.parent); parent != nullptr; parent = Find(parent->parent)) {
    rect = Intersect(rect, ScreenRect(*parent));
  }
  return rect;
}

std::vector<WindowHandle>& WindowTable::Siblings(const Window& window) {
  Window* const parent = Find(window.parent);
  if (parent == nullptr) return roots_;
  return window.IsChild() ? parent->children : parent->owned;
}

void WindowTable::Restyle(Window& window, std::uint32_t style) {
  const std::uint32_t kept = style & ~WS_VISIBLE;
  if (((kept ^ window.style) & WS_CHILD) == 0) {
    window.style = kept;
    return;
  }
  Erase(Siblings(window), window.handle);
  window.style = kept;
  Siblings(window).push_back(window.handle);
}

bool WindowTable::Raise(Window& window) {
  std::vector<WindowHandle>& siblings = Siblings(window);
  if (siblings.empty() || siblings.back() == window.handle) return false;
  Erase(siblings, window.handle);
  siblings.push_back(window.handle);
  return true;
}

}  // namespace orvane
