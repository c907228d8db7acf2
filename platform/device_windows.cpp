// Making, showing, moving, stacking and destroying windows.
#include <utility>

#include "platform/device_parts.h"

namespace orvane {

// --- What several operations share.

void Device::Parts::Damage(const Window& window) {
  if (windows.IsVisible(window.handle)) composer.Damage(windows.ClippedScreenRect(window));
}

// Without a surface there is nothing right of a window any more, so all of it is invalid.
void Device::Parts::DropDescendantSurfaces(const Window& window) {
  for (const std::vector<WindowHandle>* list : {&window.children, &window.owned}) {
    for (const WindowHandle handle : *list) {
      if (Window* const record = windows.Find(handle)) {
        Blank(*record);
        DropDescendantSurfaces(*record);
      }
    }
  }
}

void Device::Parts::Blank(Window& window) {
  window.surface.reset();
  window.invalid = window.Client();
}

void Device::Parts::Destroy(WindowHandle handle) {
  Window* window = windows.Find(handle);
  if (window == nullptr || window->dying) return;
  window->dying = true;
  Damage(*window);
  window->shown = false;
  Blank(*window);
  DropDescendantSurfaces(*window);
  ReleaseInput(handle);
  for (WindowHandle inside = NextToDestroy(handle); inside != kNoWindow; inside = NextToDestroy(handle)) {
    Destroy(inside);
  }
  Send(handle, WM_DESTROY, 0, 0);
  queue.Forget(handle);
  timers.Forget(handle);
  if (mainWindow == handle) mainWindow = kNoWindow;
  windows.Remove(handle);
}

// The topmost window in this one whose destruction has not begun; asked anew after each, because every
// WM_DESTROY may change what there is.
WindowHandle Device::Parts::NextToDestroy(WindowHandle handle) const {
  const Window* const window = windows.Find(handle);
  if (window == nullptr) return kNoWindow;
  for (const std::vector<WindowHandle>* list : {&window->owned, &window->children}) {
    for (auto inside = list->rbegin(); inside != list->rend(); ++inside) {
      const Window* const record = windows.Find(*inside);
      if (record != nullptr && !record->dying) return *inside;
    }
  }
  return kNoWindow;
}

// --- The operations.

bool Device::RegisterWindowClass(WindowClass windowClass) {
  return parts_->windows.AddClass(std::move(windowClass));
}

WindowHandle Device::CreateWindow(const CreateParams& params) {
  const WindowClass* const windowClass = parts_->windows.FindClass(params.className);
  const Window* const parent = parts_->windows.Find(params.parent);
  const bool parentMissing = params.parent != kNoWindow && (parent == nullptr || parent->dying);
  const bool childOfNothing = (params.style & WS_CHILD) != 0 && params.parent == kNoWindow;
  if (windowClass == nullptr || parentMissing || childOfNothing) return kNoWindow;

  const WindowHandle window = parts_->windows.Add(*windowClass, params).handle;
  if (Send(window, WM_CREATE, 0, reinterpret_cast<LParam>(&params)) == -1) DestroyWindow(window);
  if ((params.style & WS_VISIBLE) != 0) ShowWindow(window, true);
  return IsWindow(window) ? window : kNoWindow;
}

void Device::DestroyWindow(WindowHandle window) { parts_->Destroy(window); }

bool Device::IsWindow(WindowHandle window) const { return parts_->windows.Find(window) != nullptr; }

WindowHandle Device::FindWindow(TextView className, TextView title) const {
  for (const WindowHandle handle : parts_->windows.TopFirst()) {
    const Window& window = *parts_->windows.Find(handle);
    if (window.windowClass->name == className && (title.empty() || window.title == title)) return handle;
  }
  return kNoWindow;
}

void Device::SetUserData(WindowHandle window, WindowObject* object) {
  if (Window* const record = parts_->windows.Find(window)) record->object = object;
}

WindowObject* Device::UserData(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  return record == nullptr ? nullptr : record->object;
}

void Device::SetStyle(WindowHandle window, std::uint32_t style) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr) return;
  parts_->windows.Restyle(*record, style);
  parts_->Damage(*record);
}

std::uint32_t Device::Style(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  if (record == nullptr) return 0;
  return record->style | (record->shown ? WS_VISIBLE : 0u);
}

void Device::SetTitle(WindowHandle window, TextView title) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr || record->title == title) return;
  record->title = Text(title);
  if (window == parts_->mainWindow) parts_->host.SetTitle(Text(title));
}

Text Device::Title(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  return record == nullptr ? Text() : record->title;
}

Text Device::ClassName(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  return record == nullptr ? Text() : record->windowClass->name;
}

int Device::ClassIcon(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  return record == nullptr ? 0 : record->windowClass->icon;
}

WindowHandle Device::Parent(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  return record == nullptr ? kNoWindow : record->parent;
}

std::vector<WindowHandle> Device::VisibleWindows() const {
  std::vector<WindowHandle> visible;
  for (const PlacedWindow& placed : parts_->windows.Placed()) visible.push_back(placed.handle);
  return visible;
}

void Device::ShowWindow(WindowHandle window, bool visible) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr || record->dying || record->shown == visible) return;
  if (!visible) parts_->Damage(*record);
  record->shown = visible;
  if (visible) parts_->Damage(*record);
  // A hidden window keeps no pixels: it is painted anew when it shows again.
  parts_->Blank(*record);
  parts_->DropDescendantSurfaces(*record);
  if (!visible) parts_->ReleaseInput(window);
  Send(window, WM_SHOWWINDOW, visible ? 1 : 0);
}

bool Device::IsVisible(WindowHandle window) const { return parts_->windows.IsVisible(window); }

void Device::MoveWindow(WindowHandle window, const Rect& rect) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr) return;
  parts_->Damage(*record);
  const Rect bounded = BoundedWindowRect(rect);
  if (bounded.GetSize() != record->rect.GetSize()) record->surface.reset();
  record->rect = bounded;
  record->invalid = record->Client();
  if (record->painting) record->invalidAgain = record->invalid;
  parts_->Damage(*record);
  Send(window, WM_MOVE, 0, PackPoint(bounded.TopLeft()));
  Send(window, WM_SIZE, 0, PackPoint({bounded.Width(), bounded.Height()}));
}

Rect Device::WindowRect(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  return record == nullptr ? Rect{} : record->rect;
}

Size Device::ClientSize(WindowHandle window) const { return WindowRect(window).GetSize(); }

Rect Device::ScreenRect(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  return record == nullptr ? Rect{} : parts_->windows.ScreenRect(*record);
}

void Device::BringToTop(WindowHandle window) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr || !parts_->windows.Raise(*record)) return;
  parts_->Damage(*record);
}

}  // namespace orvane
