#include "framework/zel_window.h"

namespace orvane {

namespace {

// Messages before the object is bound and after it is gone go to the default procedure.
WindowClass MakeClass(Device& device) {
  WindowClass windowClass;
  windowClass.name = Text(kZelWindowClass);
  windowClass.background = kWhite;
  windowClass.procedure = [&device](WindowHandle window, std::uint32_t message, WParam w, LParam l) {
    // Only ZelWindow binds objects to windows of this class.
    auto* object = static_cast<ZelWindow*>(device.UserData(window));
    return object ? object->WndProc(window, message, w, l) : device.DefaultProcedure(window, message, w, l);
  };
  return windowClass;
}

}  // namespace

ZelWindow::ZelWindow(Shell& shell, WindowHandle parent, bool topLevel)
    : topLevel_(topLevel), parent_(parent), shell_(&shell) {
  Device& device = GetDevice();
  // The class is registered with the first window of a device; later calls find the name taken.
  device.RegisterWindowClass(MakeClass(device));
  CreateParams params;
  params.className = Text(kZelWindowClass);
  params.style = topLevel ? 0 : WS_CHILD;
  params.parent = parent;
  hwnd_ = device.CreateWindow(params);
  if (hwnd_ == kNoWindow) {
    ReportFailure();
  } else {
    device.SetUserData(hwnd_, this);
  }
}

ZelWindow::~ZelWindow() {
  Hide();
  shell_->Tools().Remove(this);  // the window may have gone before its object
  GetDevice().SetUserData(hwnd_, nullptr);
  GetDevice().DestroyWindow(hwnd_);
}

// The message always names the root class: when a window is made no other class is known yet.
void ZelWindow::ReportFailure() {
  GetDevice().Boxes().Show(shell_->MainWindow(), u"Failed to create window: 'ZelWindow'",
                           u"Error in ZelWindow", MessageIcon::kNone);
}

void ZelWindow::Created() {
  if (hwnd_ == kNoWindow) return;
  const CreationRecord record{parent_, GetDevice().Style(hwnd_), GetDevice().WindowRect(hwnd_),
                              kZelWindowClass};
  GetDevice().Send(hwnd_, WM_CREATE, 0, reinterpret_cast<LParam>(&record));
}

Result ZelWindow::WndProc(WindowHandle, std::uint32_t message, WParam w, LParam l) {
  return OnMessage(message, w, l);
}

Result ZelWindow::OnMessage(std::uint32_t message, WParam w, LParam l) {
  return GetDevice().DefaultProcedure(hwnd_, message, w, l);
}

void ZelWindow::Move(int x, int y, int width, int height) {
  GetDevice().MoveWindow(hwnd_, Rect::At(x, y, width, height));
}

void ZelWindow::Redraw() {
  Invalidate();
  GetDevice().Update(hwnd_);
}

void ZelWindow::Invalidate() { GetDevice().Invalidate(hwnd_); }

// The hand-held knows no extended styles; the parameter stays so that callers read as they are meant.
void ZelWindow::SetStyle(std::uint32_t style, std::uint32_t /*extendedStyle*/) {
  GetDevice().SetStyle(hwnd_, style);
}

void ZelWindow::SetText(TextView title) { GetDevice().SetTitle(hwnd_, title); }

bool ZelWindow::IsVisible() const { return GetDevice().IsVisible(hwnd_); }

void ZelWindow::Show() {
  if (hwnd_ == kNoWindow) return;
  Device& device = GetDevice();
  if (!IsVisible()) {
    if (topLevel_) shell_->Tools().Push(this);
    device.Send(hwnd_, kBeforeShow);
    device.ShowWindow(hwnd_, true);
    if (topLevel_) device.BringToTop(hwnd_);
    device.Update(hwnd_);
    if (topLevel_) device.SetFocus(hwnd_);
    device.Send(hwnd_, kAfterShow);
    return;
  }
  if (topLevel_) shell_->Tools().MoveToTop(this);
  device.BringToTop(hwnd_);
  device.Update(hwnd_);
  if (topLevel_) device.SetFocus(hwnd_);
}

void ZelWindow::Hide() {
  if (!IsVisible()) return;
  ToolStack& stack = shell_->Tools();
  HideOnly();
  if (!topLevel_) return;
  if (ZelWindow* top = stack.Top()) top->Show();
}

void ZelWindow::HideOnly() {
  if (!IsVisible()) return;
  Device& device = GetDevice();
  if (topLevel_) shell_->Tools().Remove(this);
  device.Send(hwnd_, kBeforeHide);
  device.ShowWindow(hwnd_, false);
  device.Send(hwnd_, kAfterHide);
}

WindowReport ZelWindow::Describe() const {
  WindowReport report;
  report.className = ClassName();
  return report;
}

std::string ZelWindow::UnitName() const { return topLevel_ ? ClassName() : std::string(); }

}  // namespace orvane
