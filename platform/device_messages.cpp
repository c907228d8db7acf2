// Sending, posting and default handling of messages; timers; the step.
#include <utility>

#include "platform/device_parts.h"

namespace orvane {

namespace {

// How many messages one step handles beyond those that waited when it began: enough for every chain that
// ends, while one that does not end leaves the step in a few milliseconds.
constexpr std::size_t kMostFollowUps = 1000;

Point ParentPoint(const Window& window, LParam packed) {
  const Point point = UnpackPoint(packed);
  return {point.x + window.rect.left, point.y + window.rect.top};
}

}  // namespace

Result Device::Parts::Send(WindowHandle handle, std::uint32_t message, WParam w, LParam l) {
  const Window* const window = windows.Find(handle);
  if (window == nullptr) return 0;
  const WindowClass& windowClass = *window->windowClass;  // classes outlive their windows
  if (trace != nullptr) trace->MessageDispatched(handle, message, w, l);
  ++busy;
  const Result result = windowClass.procedure ? windowClass.procedure(handle, message, w, l)
                                              : device.DefaultProcedure(handle, message, w, l);
  --busy;
  return result;
}

void Device::Parts::HandleQueue() {
  for (std::size_t left = queue.Count() + kMostFollowUps; left > 0; --left) {
    std::optional<QueueEntry> entry = queue.Take();
    if (!entry) return;
    if (const auto* const posted = std::get_if<PostedMessage>(&*entry)) {
      Send(posted->window, posted->message, posted->w, posted->l);
    } else if (const auto* const quit = std::get_if<QuitMessage>(&*entry)) {
      Quit(quit->code);
    } else {
      ++busy;
      std::get<QueuedAction> (*entry)();
      --busy;
    }
  }
}

void Device::Parts::CatchUpLayers() {
  ++busy;
  layers.CatchUp();
  --busy;
}

void Device::Parts::Quit(int code) {
  quitCode = code;
  queue.Clear();
  timers.Clear();
}

void Device::Parts::HandleTimers(std::int64_t now) {
  for (const TimerKey& key : timers.Due(now)) {
    if (timers.Answer(key, now)) {
      Send(key.window, WM_TIMER, static_cast<WParam>(static_cast<std::uint32_t>(key.id)), 0);
    }
  }
}

Result Device::Send(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  return parts_->Send(window, message, w, l);
}

void Device::Post(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  if (!parts_->quitCode && IsWindow(window)) parts_->queue.Post({window, message, w, l});
}

void Device::AtNextStep(std::function<void()> action) {
  if (action) parts_->queue.Add(std::move(action));
}

Result Device::DefaultProcedure(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  const Window* const record = parts_->windows.Find(window);
  if (record == nullptr) return 0;
  switch (message) {
    case WM_CLOSE:
      DestroyWindow(window);
      return 0;
    case WM_PAINT:
      if (const std::optional<Colour> background = record->windowClass->background) {
        WindowCanvas(window).FillRect(record->Client(), *background);
      }
      Validate(window);
      return 0;
    case WM_MOUSEWHEEL:
      if (!record->IsChild()) return 0;
      return Send(record->parent, message, w, PackPoint(ParentPoint(*record, l)));
    default:
      return 0;
  }
}

void Device::PostQuit(int code) {
  if (!parts_->quitCode) parts_->queue.Add(QuitMessage{code});
}

std::optional<int> Device::QuitCode() const { return parts_->quitCode; }

void Device::SetTimer(WindowHandle window, int id, int milliseconds) {
  if (!parts_->quitCode && IsWindow(window)) parts_->timers.Set({window, id}, milliseconds);
}

void Device::KillTimer(WindowHandle window, int id) { parts_->timers.Kill({window, id}); }

// After the program has quit its windows hear nothing more, but what asks the user something still lives.
std::optional<std::int64_t> Device::Step(std::int64_t now) {
  if (parts_->busy != 0 || parts_->stepping) return now;
  parts_->stepping = true;
  parts_->timers.StartCounting(now);
  parts_->HandleQueue();
  if (!parts_->quitCode) parts_->HandleTimers(now);
  parts_->CatchUpLayers();
  if (!parts_->quitCode) parts_->PaintInvalid();
  parts_->Compose();
  parts_->timers.StartCounting(now);
  parts_->stepping = false;
  if (!Quiescent()) return now;
  return parts_->timers.Next();
}

}  // namespace orvane
