// The open pop-up menu: drawing, pen and keys around the model.
#include <algorithm>
#include <optional>
#include <utility>

#include "platform/chrome.h"
#include "platform/chrome_drawing.h"
#include "platform/chrome_style.h"
#include "platform/device.h"
#include "platform/popup_model.h"

namespace orvane {
namespace {

constexpr int kWheelRows = 3;  // rows that one notch of the wheel scrolls

class PopupMenu final : public PopupLayer {
 public:
  explicit PopupMenu(Device& device) : device_(device) {}

  // PopupMenus
  void Track(const Menu& menu, Point bottomLeft, WindowHandle owner) override;
  void Close() override;
  bool Open() const override { return model_.has_value(); }
  const Menu& Current() const override { return model_ ? model_->Root() : none_; }
  Point Anchor() const override { return anchor_; }
  bool ChooseLabel(TextView label) override;
  void SelectFirst() override;
  void FollowPen(Point point) override;
  void LiftPen(Point point) override;

  // Layer
  std::string_view Name() const override { return "menu"; }
  bool Visible() const override { return Open(); }
  bool Modal() const override { return Open(); }
  Rect Bounds() const override { return model_ ? model_->Bounds() : Rect{}; }
  void Paint(Canvas& canvas) override;
  void PenDown(Point point) override;
  void PenMove(Point point) override;
  void PenUp(Point point) override;
  void Wheel(Point point, int notches) override;
  bool KeyDown(int key, Modifiers modifiers) override;
  bool Character(Char) override { return Open(); }
  bool Behind() const override { return OwnerGone(); }
  void CatchUp() override {
    if (OwnerGone()) Close();
  }

 private:
  bool OwnerGone() const { return Open() && owner_ != kNoWindow && !device_.IsWindow(owner_); }
  void Changed() { device_.LayerChanged(*this); }
  void PointAt(Point point);
  void Choose(int row);
  bool EnterSubmenu();
  void ChooseByKey();
  bool NavigationKey(int key);
  void PaintRow(Canvas& canvas, int row, const Rect& rect, const Font& font) const;
  void PaintZone(Canvas& canvas, int direction) const;

  Device& device_;
  std::optional<PopupModel> model_;
  Menu none_;
  Point anchor_;
  WindowHandle owner_ = kNoWindow;
  bool penInMenu_ = false;  // this stroke has been in the menu
};

void PopupMenu::Track(const Menu& menu, Point bottomLeft, WindowHandle owner) {
  // The menu may be Current() itself, so the new one is made before the old one goes.
  const Font& font = device_.Fonts().GetFont(TextFont(kMenuPixels));
  std::optional<PopupModel> next;
  if (menu.Count() > 0) {
    next.emplace(menu, bottomLeft, kScreenSize, [&font](TextView label) { return font.TextWidth(label); });
  }
  Close();
  if (!next) return;
  model_ = std::move(next);
  anchor_ = bottomLeft;
  owner_ = owner;
  penInMenu_ = false;
  Changed();
}

void PopupMenu::Close() {
  if (!Open()) return;
  model_.reset();
  anchor_ = {};
  owner_ = kNoWindow;
  Changed();
  device_.Bars().MenuClosed();
}

void PopupMenu::SelectFirst() {
  if (!Open()) return;
  model_->SelectEnd(false);
  Changed();
}

bool PopupMenu::ChooseLabel(TextView label) {
  // A message box above the menu has all input.
  if (!Open() || device_.Boxes().Open()) return false;
  const int row = model_->FindLabel(label);
  if (row == kNoRow) return false;
  Choose(row);
  return true;
}

// Ends with the menu closed for a command; the command comes after all that is queued already.
void PopupMenu::Choose(int row) {
  if (!model_->Selectable(row)) return;
  if (model_->Enter(row)) return Changed();
  const int id = model_->Items()[static_cast<std::size_t>(row)].id;
  const WindowHandle owner = owner_;
  Close();
  device_.Post(owner, WM_COMMAND, PackCommand(id, 0));
}

// Opens the selected entry's sub-menu at its first row; false when the selection has none.
bool PopupMenu::EnterSubmenu() {
  if (model_->Selected() < 0 || !model_->Enter(model_->Selected())) return false;
  model_->SelectEnd(false);
  return true;
}

void PopupMenu::ChooseByKey() {
  if (!EnterSubmenu()) Choose(model_->Selected());
}

// --- Pen

// What is under the pen is selected; an arrow zone scrolls by a row for every move in it.
void PopupMenu::PointAt(Point point) {
  if (const int zone = model_->ScrollZoneAt(point); zone != 0) {
    model_->ScrollBy(zone * kMenuRowHeight);
    model_->Select(kNoRow);
    return Changed();
  }
  const int row = model_->RowAt(point);
  const int wanted = model_->Selectable(row) ? row : kNoRow;
  if (wanted == model_->Selected()) return;
  model_->Select(wanted);
  Changed();
}

void PopupMenu::FollowPen(Point point) {
  if (!Open()) return;
  if (model_->Bounds().Contains(point)) penInMenu_ = true;
  if (penInMenu_) PointAt(point);
}

// Lifted on the button that opened the menu: it stays open. Lifted elsewhere after a way through it: it
// closes.
void PopupMenu::LiftPen(Point point) {
  if (!Open() || !penInMenu_) return;
  penInMenu_ = false;
  if (!model_->Bounds().Contains(point)) return Close();
  PenUp(point);
}

void PopupMenu::PenDown(Point point) {
  if (!Open()) return;
  if (!model_->Bounds().Contains(point)) return Close();
  if (const int zone = model_->ScrollZoneAt(point); zone != 0) {
    // A tap on an arrow turns the page and keeps one row of it.
    model_->ScrollBy(zone * (model_->RowsArea().Height() - kMenuRowHeight));
    model_->Select(kNoRow);
    return Changed();
  }
  PointAt(point);
}

void PopupMenu::PenMove(Point point) {
  if (Open()) PointAt(point);
}

void PopupMenu::PenUp(Point point) {
  if (!Open()) return;
  const int row = model_->RowAt(point);
  if (row != kNoRow && row == model_->Selected()) return Choose(row);
  if (model_->Selected() == kNoRow) return;
  model_->Select(kNoRow);
  Changed();
}

void PopupMenu::Wheel(Point point, int notches) {
  if (!Open() || !model_->Bounds().Contains(point)) return;
  model_->ScrollBy(-std::clamp(notches, -100, 100) * kWheelRows * kMenuRowHeight);
  Changed();
}

// --- Keys: all of them are the menu's while it is open.

bool PopupMenu::KeyDown(int key, Modifiers) {
  if (!Open()) return false;
  if (NavigationKey(key)) {
    Changed();
    return true;
  }
  switch (key) {
    case VK_RETURN:
    case VK_SPACE:
      ChooseByKey();
      break;
    case VK_ESCAPE:
      if (!model_->Back()) Close();
      break;
    case VK_F10:  // opens the bar's menu and closes it again
      Close();
      break;
    case VK_RIGHT:
      if (!EnterSubmenu()) device_.Bars().StepMenu(1);
      break;
    case VK_LEFT:
      if (!model_->Back()) device_.Bars().StepMenu(-1);
      break;
    default:
      if (key >= 'A' && key <= 'Z') model_->JumpTo(static_cast<Char>(key));
      break;
  }
  if (Open()) Changed();
  return true;
}

bool PopupMenu::NavigationKey(int key) {
  switch (key) {
    case VK_UP:
      model_->SelectNext(-1);
      return true;
    case VK_DOWN:
      model_->SelectNext(1);
      return true;
    case VK_HOME:
      model_->SelectEnd(false);
      return true;
    case VK_END:
      model_->SelectEnd(true);
      return true;
    case VK_PRIOR:
      model_->SelectPage(-1);
      return true;
    case VK_NEXT:
      model_->SelectPage(1);
      return true;
    default:
      return false;
  }
}

// --- Drawing

void PopupMenu::Paint(Canvas& canvas) {
  if (!Open()) return;
  const Rect bounds = model_->Bounds();
  const Rect whole = Rect::At({0, 0}, bounds.GetSize());
  canvas.Rectangle(whole, kOutline, kBarFill);
  const Font& font = device_.Fonts().GetFont(TextFont(kMenuPixels));
  const Rect area = model_->RowsArea().Offset(-bounds.left, -bounds.top);
  canvas.PushClip(area);
  const int count = static_cast<int>(model_->Items().size());
  for (int row = model_->InSubmenu() ? kBackRow : 0; row < count; ++row) {
    if (row == kNoRow) continue;
    const Rect rect = model_->RowRect(row).Offset(-bounds.left, -bounds.top);
    if (rect.bottom > area.top && rect.top < area.bottom) PaintRow(canvas, row, rect, font);
  }
  canvas.PopClip();
  if (model_->Scrolls()) {
    PaintZone(canvas, -1);
    PaintZone(canvas, 1);
  }
}

void PopupMenu::PaintRow(Canvas& canvas, int row, const Rect& rect, const Font& font) const {
  const bool back = row == kBackRow;
  const MenuItem* item = back ? nullptr : &model_->Items()[static_cast<std::size_t>(row)];
  const int middle = (rect.top + rect.bottom) / 2;
  if (item != nullptr && item->separator) {
    canvas.FillRect({rect.left + 6, middle, rect.right - 6, middle + 1}, kHairline);
    return;
  }
  const bool selected = row == model_->Selected();
  const bool enabled = back || item->enabled;
  if (selected) canvas.FillRect(rect, kDeepBlue);
  const Colour ink = selected ? kWhite : enabled ? kText : kDimText;
  const Colour mark = selected ? kWhite : enabled ? kAccent : kDimText;
  const Rect label{rect.left + kMenuMarkColumn - 1, rect.top, rect.right - 6, rect.bottom};
  if (back) {
    DrawArrow(canvas, Direction::kLeft, {rect.left + 9, middle - 4}, 4, mark);
    DrawLine(canvas, model_->SubmenuLabel(), label, font, selected ? kWhite : kDeepBlue);
    canvas.FillRect({rect.left, rect.bottom - 1, rect.right, rect.bottom}, kHairline);
    return;
  }
  if (item->checked && item->radio) canvas.Ellipse(Rect::At(rect.left + 8, middle - 3, 6, 6), mark, mark);
  if (item->checked && !item->radio) DrawTick(canvas, {rect.left + 6, middle - 3}, mark);
  if (!item->submenu.empty()) DrawArrow(canvas, Direction::kRight, {rect.right - 9, middle - 4}, 4, mark);
  DrawLine(canvas, item->label, label, font, ink);
}

void PopupMenu::PaintZone(Canvas& canvas, int direction) const {
  constexpr int kReach = 5;
  const Rect bounds = model_->Bounds();
  const Rect area = model_->RowsArea().Offset(-bounds.left, -bounds.top);
  const bool up = direction < 0;
  const int line = up ? area.top - 1 : area.bottom;
  canvas.FillRect({area.left, line, area.right, line + 1}, kHairline);
  const int middle = up ? (1 + line) / 2 : (line + 1 + bounds.Height()) / 2;
  DrawArrow(canvas, up ? Direction::kUp : Direction::kDown, {bounds.Width() / 2 - kReach, middle - 3}, kReach,
            model_->CanScroll(direction) ? kAccent : kHairline);
}

}  // namespace

std::unique_ptr<PopupLayer> MakePopupLayer(Device& device) { return std::make_unique<PopupMenu>(device); }

}  // namespace orvane
