// The menu bar that is drawn: its look, and what pen and keys do with it.
//
// Menus and drop-downs open when the pen goes down, so that one stroke can open a menu and choose from it; a
// push button works when the pen is lifted inside it, so that a press can still be taken back.
#include "platform/bar_layer.h"

#include "platform/bar_layout.h"
#include "platform/chrome_drawing.h"
#include "platform/chrome_style.h"

namespace orvane {
namespace {

constexpr int kTopHairline = 1;
constexpr Size kIcon{16, 16};
// A drop-down's picture moves left to make room for the arrow. The arrow points up: that is where the menu
// opens.
constexpr int kDropDownIconLeft = 1;
constexpr int kArrowReach = 3;
constexpr Point kArrow{17, 12};

// Menus open under the pen as it goes down; the other buttons act where it lifts.
bool WaitsForLift(ButtonStyle style) { return style == ButtonStyle::kPush || style == ButtonStyle::kCheck; }

}  // namespace

Rect MenuBarArea::PanelButtonRect() const {
  if (!HasPanelButton()) return {};
  return {kBarArea.right - kPanelButtonWidth, kBarArea.top, kBarArea.right, kBarArea.bottom};
}

std::vector<Rect> MenuBarArea::ButtonRects() const {
  const Bar* bar = bars_.Find(bars_.Shown());
  if (bar == nullptr) return {};
  const Font& font = device_.Fonts().GetFont(TextFont(kMenuPixels));
  const int right = bar->HasPanelButton() ? kBarArea.right - kPanelButtonWidth : kBarArea.right;
  return LayOutBar(bar->buttons, right, [&font](TextView label) { return font.TextWidth(label); });
}

std::vector<BarButtonPlace> MenuBarArea::Places() const {
  const Bar* bar = bars_.Find(bars_.Shown());
  std::vector<BarButtonPlace> places;
  if (bar == nullptr) return places;
  const std::vector<Rect> rects = ButtonRects();
  for (std::size_t i = 0; i < rects.size(); ++i) {
    if (rects[i].Empty()) continue;
    places.push_back({bar->buttons[i], rects[i], LooksPressed(static_cast<int>(i))});
  }
  return places;
}

bool MenuBarArea::LooksPressed(int position) const {
  return position == opened_ || (position == pressed_ && inside_);
}

// --- Pressing

const BarButton* MenuBarArea::ButtonAt(int position) const {
  const Bar* bar = bars_.Find(bars_.Shown());
  if (bar == nullptr || position < 0 || position >= static_cast<int>(bar->buttons.size())) return nullptr;
  return &bar->buttons[static_cast<std::size_t>(position)];
}

int MenuBarArea::PositionAt(Point point) const {
  const std::vector<Rect> rects = ButtonRects();
  for (std::size_t i = 0; i < rects.size(); ++i) {
    if (rects[i].Contains(point)) return static_cast<int>(i);
  }
  return kNone;
}

bool MenuBarArea::CanPress(int position) const {
  const BarButton* button = ButtonAt(position);
  return button != nullptr && button->style != ButtonStyle::kSeparator &&
         (button->state & TBSTATE_ENABLED) != 0;
}

// A message box or a modal dialog has all input: scripts cannot press what a pen could not.
bool MenuBarArea::Reachable() const { return !device_.Boxes().Open() && !device_.DialogBoxes().ModalOpen(); }

bool MenuBarArea::Press(int id) {
  const Bar* bar = bars_.Find(bars_.Shown());
  if (bar == nullptr || !Reachable()) return false;
  for (int position = 0; position < static_cast<int>(bar->buttons.size()); ++position) {
    if (!CanPress(position) || ButtonAt(position)->id != id) continue;
    device_.Popups().Close();
    Activate(position);
    return true;
  }
  return false;
}

bool MenuBarArea::PressPanelButton() {
  if (!HasPanelButton() || !Reachable()) return false;
  device_.Popups().Close();
  device_.Panel().Toggle();
  Changed();
  return true;
}

bool MenuBarArea::OpenMenu(int position) {
  if (!CanPress(position) || !Reachable()) return false;
  const BarButton* button = ButtonAt(position);
  if (button->style != ButtonStyle::kMenu || button->menu.Count() == 0) return false;
  const Rect rect = ButtonRects()[static_cast<std::size_t>(position)];
  device_.Popups().Track(button->menu, {rect.left, kBarArea.top}, bars_.Find(bars_.Shown())->owner);
  opened_ = position;
  Changed();
  return true;
}

void MenuBarArea::Activate(int position) {
  // Copies: whoever is told of the press may change or destroy the bar.
  const BarHandle handle = bars_.Shown();
  const WindowHandle owner = bars_.Find(handle)->owner;
  const BarButton* button = ButtonAt(position);
  const int id = button->id;
  switch (button->style) {
    case ButtonStyle::kSeparator:
      return;
    case ButtonStyle::kMenu:
      OpenMenu(position);
      return;
    case ButtonStyle::kPush:
    case ButtonStyle::kCheck:
      device_.Post(owner, WM_COMMAND, PackCommand(id, 0));
      return;
    case ButtonStyle::kDropDown:
      break;
  }
  // Sent, not posted: the notification lives for the call only. The owner opens its menu meanwhile.
  const BarNotification notification{handle, TBN_DROPDOWN, id};
  device_.Send(owner, WM_NOTIFY, static_cast<WParam>(id), reinterpret_cast<LParam>(&notification));
  const BarButton* still = bars_.Shown() == handle ? ButtonAt(position) : nullptr;
  if (device_.Popups().Open() && still != nullptr && still->id == id) opened_ = position;
  Changed();
}

// --- Pen

void MenuBarArea::PenDown(Point point) {
  pressed_ = kNone;
  panelPressed_ = PanelButtonRect().Contains(point);
  inside_ = true;
  if (!panelPressed_) {
    const int position = PositionAt(point);
    if (!CanPress(position)) return;
    pressed_ = position;
    if (!WaitsForLift(ButtonAt(position)->style)) Activate(position);
  }
  Changed();
}

void MenuBarArea::PenMove(Point point) {
  if (device_.Popups().Open()) device_.Popups().FollowPen(point);
  if (pressed_ == kNone && !panelPressed_) return;
  const bool inside = panelPressed_ ? PanelButtonRect().Contains(point) : PositionAt(point) == pressed_;
  if (inside == inside_) return;
  inside_ = inside;
  Changed();
}

void MenuBarArea::PenUp(Point point) {
  const int position = pressed_;
  const bool panel = panelPressed_;
  pressed_ = kNone;
  panelPressed_ = false;
  Changed();
  if (panel) {
    if (PanelButtonRect().Contains(point)) PressPanelButton();
    return;
  }
  if (device_.Popups().Open()) return device_.Popups().LiftPen(point);
  const bool waits = CanPress(position) && WaitsForLift(ButtonAt(position)->style);
  if (waits && PositionAt(point) == position) Activate(position);
}

// --- From the open menu

void MenuBarArea::MenuClosed() {
  if (opened_ == kNone) return;
  opened_ = kNone;
  Changed();
}

void MenuBarArea::StepMenu(int step) {
  const BarButton* from = ButtonAt(opened_);
  if (from == nullptr || from->style != ButtonStyle::kMenu || (step != 1 && step != -1)) return;
  const int count = Count(bars_.Shown());
  const int start = opened_;
  for (int i = 1; i < count; ++i) {
    if (!OpenMenu(((start + i * step) % count + count) % count)) continue;
    device_.Popups().SelectFirst();
    return;
  }
}

// --- Drawing

void MenuBarArea::Paint(Canvas& canvas) {
  const Rect whole = Rect::At({0, 0}, kBarArea.GetSize());
  canvas.FillRect(whole, kBarFill);
  canvas.FillRect({0, 0, whole.right, kTopHairline}, kHairline);
  const std::vector<Rect> rects = ButtonRects();
  for (std::size_t i = 0; i < rects.size(); ++i) {
    if (!rects[i].Empty()) PaintButton(canvas, static_cast<int>(i), rects[i].Offset(0, -kBarArea.top));
  }
  if (HasPanelButton()) PaintPanelButton(canvas, PanelButtonRect().Offset(0, -kBarArea.top));
}

void MenuBarArea::PaintButton(Canvas& canvas, int position, const Rect& rect) const {
  const BarButton& button = *ButtonAt(position);
  const Rect face{rect.left, rect.top + kTopHairline, rect.right, rect.bottom};
  const bool pressed = LooksPressed(position);
  const bool enabled = (button.state & TBSTATE_ENABLED) != 0;
  if (button.style == ButtonStyle::kSeparator) {
    canvas.FillRect({rect.left, rect.top + 6, rect.left + 1, rect.bottom - 5}, kHairline);
    return;
  }
  if (button.style == ButtonStyle::kMenu) {
    if (pressed) canvas.FillRect(face, kDeepBlue);
    const Font& font = device_.Fonts().GetFont(TextFont(kMenuPixels));
    const Rect label{rect.left + kBarLabelPadding, face.top, rect.right, rect.bottom};
    DrawLine(canvas, button.label, label, font, pressed ? kWhite : enabled ? kText : kDimText);
    return;
  }
  if (pressed) {
    canvas.FillRect(face, kPressed);
  } else if ((button.state & TBSTATE_CHECKED) != 0) {
    canvas.Rectangle({face.left + 1, face.top + 1, face.right - 1, face.bottom - 1}, kAccent, kChecked);
  }
  PaintPicture(canvas, button, face, enabled);
}

void MenuBarArea::PaintPicture(Canvas& canvas, const BarButton& button, const Rect& face,
                               bool enabled) const {
  const bool dropDown = button.style == ButtonStyle::kDropDown;
  const int left = face.left + (dropDown ? kDropDownIconLeft : (kBarButtonWidth - kIcon.width) / 2);
  const Point at{left, face.top + (face.Height() - kIcon.height) / 2};
  const Bar& bar = *bars_.Find(bars_.Shown());
  const bool hasImage = button.image >= 0 && button.image < static_cast<int>(bar.images.size()) &&
                        bar.images[static_cast<std::size_t>(button.image)] != nullptr;
  canvas.PushClip(face);
  if (hasImage) {
    const Image& image = *bar.images[static_cast<std::size_t>(button.image)];
    const Rect source = Rect::At({0, 0}, image.GetSize());
    enabled ? canvas.DrawImage(image, at, source) : canvas.DrawFaintImage(image, at, source);
  } else if (!button.label.empty()) {
    DrawLine(canvas, button.label, face, device_.Fonts().GetFont(TextFont(kBodyPixels)),
             enabled ? kText : kDimText, Align::kCentre);
  }
  if (dropDown) {
    DrawArrow(canvas, Direction::kUp, {face.left + kArrow.x, face.top + kArrow.y}, kArrowReach,
              enabled ? kDeepBlue : kDimText);
  }
  canvas.PopClip();
}

void MenuBarArea::PaintPanelButton(Canvas& canvas, const Rect& rect) const {
  const Rect face{rect.left, rect.top + kTopHairline, rect.right, rect.bottom};
  const bool up = device_.Panel().Visible();
  const bool pen = panelPressed_ && inside_;
  if (pen) {
    canvas.FillRect(face, kPressed);
  } else if (up) {
    canvas.Rectangle({face.left + 1, face.top + 1, face.right - 1, face.bottom - 1}, kAccent, kChecked);
  }
  // A keyboard of 18 × 11: outline, two rows of keys and the space bar.
  const Point p{rect.left + 4, rect.top + 8};
  canvas.RoundRect(Rect::At(p.x, p.y, 18, 11), {4, 4}, kDeepBlue, kWhite);
  for (int key = 0; key < 5; ++key) {
    canvas.FillRect(Rect::At(p.x + 2 + key * 3, p.y + 2, 2, 2), kDeepBlue);
    canvas.FillRect(Rect::At(p.x + 2 + key * 3, p.y + 5, 2, 1), kDeepBlue);
  }
  canvas.FillRect(Rect::At(p.x + 5, p.y + 8, 8, 1), kAccent);
}

std::unique_ptr<BarLayer> MakeBarLayer(Device& device) { return std::make_unique<MenuBarArea>(device); }

}  // namespace orvane
