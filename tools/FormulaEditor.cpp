#include "tools/FormulaEditor.h"

#include <utility>

#include "framework/control_messages.h"

namespace orvane {

namespace {

constexpr int kBlinkTimer = 8840;
constexpr int kBlinkMilliseconds = 500;

constexpr int kMargin = 4;       // from the left edge to a text that fits
constexpr int kKeepInside = 20;  // between the caret of a scrolled text and the edges

}  // namespace

CInputBox::CInputBox(Shell& shell, WindowHandle owner, int x, int y, int width, int height,
                     InputBoxVariant variant)
    : shell_(&shell), owner_(owner), variant_(std::move(variant)), offset_(kMargin) {
  RegisterClass();
  Device& device = GetDevice();
  CreateParams params;
  params.className = Text(kInputBoxClass);
  params.title = u"Caption";
  params.style = WS_CHILD;
  params.rect = Rect::At(x, y, width, height);
  params.parent = owner;
  hwnd_ = device.CreateWindow(params);
  if (hwnd_ == kNoWindow) {
    shell.Tell(u"FormulaEditor::CInputBox - CreateWindow failed.", MessageIcon::kError);
    return;
  }
  device.SetUserData(hwnd_, this);
  device.SetTimer(hwnd_, kBlinkTimer, kBlinkMilliseconds);
  device.ShowWindow(hwnd_, true);
  device.Update(hwnd_);
}

CInputBox::~CInputBox() {
  Device& device = GetDevice();
  if (focused_) device.Panel().Request(false);
  device.KillTimer(hwnd_, kBlinkTimer);
  device.SetUserData(hwnd_, nullptr);
  device.DestroyWindow(hwnd_);
}

// The class is registered with the first box of a device; later calls find the name taken.
void CInputBox::RegisterClass() {
  Device& device = GetDevice();
  WindowClass windowClass;
  windowClass.name = Text(kInputBoxClass);
  windowClass.background = kWhite;
  windowClass.procedure = [&device](WindowHandle window, std::uint32_t message, WParam w, LParam l) {
    // Only boxes bind objects to windows of this class.
    auto* box = static_cast<CInputBox*>(device.UserData(window));
    return box ? box->WndProc(message, w, l) : device.DefaultProcedure(window, message, w, l);
  };
  device.RegisterWindowClass(std::move(windowClass));
}

Result CInputBox::WndProc(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_KEYDOWN:
      OnKeyDown(static_cast<int>(w));
      return 0;
    case WM_CHAR:
      OnCharacter(static_cast<Char>(w));
      return 0;
    case WM_LBUTTONDOWN:
      OnPenDown(UnpackPoint(l));
      return 0;
    case WM_MOUSEMOVE:
      OnPenMove(UnpackPoint(l));
      return 0;
    case WM_LBUTTONUP:
      OnPenUp();
      return 0;
    case WM_SETFOCUS:
      OnFocus();
      return 0;
    case WM_KILLFOCUS:
      OnBlur();
      return 0;
    case WM_TIMER:
      if (static_cast<int>(w) == kBlinkTimer) OnBlink();
      return 0;
    default:
      return GetDevice().DefaultProcedure(hwnd_, message, w, l);
  }
}

// --- What the owner does

void CInputBox::SetFont(TextView face, int size0, int size1, int size2, int spacing1, int spacing2) {
  DestroyFontFamily(font_);
  CreateFontFamily(GetDevice(), hwnd_, font_, face, size0, size1, size2, spacing1, spacing2, false, false);
  Measure();
}

void CInputBox::SetLongest(int longest) { text_.SetLongest(longest); }

void CInputBox::ReplaceText(TextView text) { text_.Replace(text); }

void CInputBox::SetTokens(std::vector<InputToken> tokens) {
  tokens_ = std::move(tokens);
  Measure();
}

void CInputBox::Measure() {
  TextEngine& engine = shell_->Engine();
  engine.SelectFontFamily(&font_);
  layout_ = InputLayout(engine, tokens_, text_.Length(), [this](int kind) { return LookOf(kind); });
}

void CInputBox::Reset() {
  text_.ClearSelection();
  BringCaretIntoView();
  Redraw();
}

void CInputBox::Redraw() {
  GetDevice().Invalidate(hwnd_);
  GetDevice().Update(hwnd_);
}

void CInputBox::CopySelection() {
  if (text_.HasSelection()) GetDevice().SetClipboardText(text_.Selected());
}

void CInputBox::Paste() {
  const std::optional<Text> pasted = GetDevice().ClipboardText();
  if (!pasted) return;
  text_.Insert(*pasted);
  AfterEdit();
}

void CInputBox::SelectAll() {
  text_.SelectAll();
  RestartBlink();
  BringCaretIntoView();
  Redraw();
}

void CInputBox::TakeFocus() { GetDevice().SetFocus(hwnd_); }

WindowReport CInputBox::Describe() const {
  WindowReport report;
  report.className = ToUtf8(kInputBoxClass);
  report.text = GetText();
  report.caret = Caret();
  report.selection = {SelectionStart(), SelectionLength()};
  return report;
}

// --- Keys

void CInputBox::OnKeyDown(int key) {
  switch (key) {
    case VK_END:
      return MoveCaretAndRedraw(text_.Length(), Extend::kByKeys);
    case VK_HOME:
      return MoveCaretAndRedraw(0, Extend::kByKeys);
    case VK_LEFT:
      return MoveCaretAndRedraw(text_.Before(), Extend::kByKeys);
    case VK_RIGHT:
      return MoveCaretAndRedraw(text_.Behind(), Extend::kByKeys);
    case VK_BACK:
      return Delete(false);
    case VK_DELETE:
      return Delete(true);
    default:
      if (!OnControlKey(key)) GetDevice().Send(owner_, WM_KEYDOWN, static_cast<WParam>(key), 0);
      return;
  }
}

bool CInputBox::OnControlKey(int key) {
  if (GetDevice().CurrentModifiers() != Modifiers{.shift = false, .control = true, .alt = false})
    return false;
  if (key != 'A') return false;
  SelectAll();
  return true;
}

void CInputBox::OnCharacter(Char character) {
  if (!variant_.typeable.test(character & 0xFFu)) return;
  // A full text refuses the character even when it would take the place of a selection.
  if (text_.Length() >= kLongestTyped) return;
  text_.Insert(TextView(&character, 1));
  AfterEdit();
}

void CInputBox::Delete(bool forward) {
  if (forward ? text_.DeleteForward() : text_.DeleteBackward()) AfterEdit();
}

// The text and the caret have changed. The owner is told before the box is drawn, as it may change the text
// once more.
void CInputBox::AfterEdit() {
  retokenise();
  RestartBlink();
  BringCaretIntoView();
  if (changed) changed(*this);
  Redraw();
}

// --- Pen

void CInputBox::OnPenDown(Point point) {
  // Whoever taps wants to type: the panel comes up even when the box has the focus already.
  if (focused_) GetDevice().Panel().Request(true);
  GetDevice().SetFocus(hwnd_);
  stroke_ = true;
  MoveCaretAndRedraw(IndexAt(point.x), Extend::kNever);
  GetDevice().SetCapture(hwnd_);
}

// A box that was hidden during a stroke has lost the pen, and with it the stroke.
void CInputBox::OnPenMove(Point point) {
  stroke_ = stroke_ && GetDevice().Capture() == hwnd_;
  if (stroke_) MoveCaretAndRedraw(IndexAt(point.x), Extend::kAlways);
}

void CInputBox::OnPenUp() {
  stroke_ = false;
  if (GetDevice().Capture() == hwnd_) GetDevice().ReleaseCapture();
}

// --- Focus and caret

void CInputBox::OnFocus() {
  GetDevice().Panel().Request(true);
  GetDevice().Send(owner_, kInputBoxFocused, PackSender(hwnd_), 0);
  focused_ = true;
  RestartBlink();
  Redraw();
}

void CInputBox::OnBlur() {
  GetDevice().Panel().Request(false);
  GetDevice().Send(owner_, kInputBoxBlurred, PackSender(hwnd_), 0);
  focused_ = false;
  Redraw();
}

// Without the focus there is nothing to blink, and the hand-held may sleep; the focus starts the timer again.
void CInputBox::OnBlink() {
  if (!focused_) return GetDevice().KillTimer(hwnd_, kBlinkTimer);
  caretVisible_ = !caretVisible_;
  Redraw();
}

void CInputBox::RestartBlink() {
  GetDevice().SetTimer(hwnd_, kBlinkTimer, kBlinkMilliseconds);
  caretVisible_ = true;
}

void CInputBox::MoveCaret(int index, Extend extend) {
  const bool held = GetDevice().IsKeyDown(VK_SHIFT) || GetDevice().IsKeyDown(VK_LBUTTON);
  text_.MoveCaret(index, extend == Extend::kAlways || (extend == Extend::kByKeys && held));
  RestartBlink();
  BringCaretIntoView();
}

void CInputBox::MoveCaretAndRedraw(int index, Extend extend) {
  MoveCaret(index, extend);
  Redraw();
}

// A text that fits stands at the margin. A longer one follows the caret, which keeps its distance from the
// edges, except that the text never begins right of the margin.
void CInputBox::BringCaretIntoView() {
  const int caret = layout_.CaretX(Caret());
  const int width = ClientSize().width;
  if (layout_.Width() + kMargin < width - kKeepInside) {
    offset_ = kMargin;
  } else if (caret + offset_ <= kKeepInside) {
    offset_ = std::min(kKeepInside - caret, kMargin);
  } else if (caret + offset_ >= width - kKeepInside) {
    offset_ = width - caret - kKeepInside;
  }
}

int CInputBox::IndexAt(int clientX) const {
  const int x = clientX - offset_;
  return x < 0 ? 0 : layout_.IndexAt(x);
}

KindLook CInputBox::LookOf(int kind) const {
  const std::vector<KindLook>& looks = variant_.looks;
  if (looks.empty()) return {};
  const bool known = kind >= 0 && static_cast<std::size_t>(kind) < looks.size();
  return looks[known ? static_cast<std::size_t>(kind) : 0];
}

}  // namespace orvane
