// The calls that make and change menu bars. A call that names no bar does nothing and is not traced.
#include "platform/bar_layer.h"

namespace orvane {

void MenuBarArea::Trace(std::string_view call, BarHandle bar, int commandOrIndex, int value) const {
  if (device_.Trace() != nullptr) device_.Trace()->BarCall(call, bar, commandOrIndex, value);
}

// Buttons from `position` on stand elsewhere now, or are gone: a press of one of them no longer counts.
void MenuBarArea::ForgetPressesFrom(BarHandle bar, int position) {
  if (bar != bars_.Shown()) return;
  if (pressed_ >= position) pressed_ = kNone;
  if (opened_ >= position) opened_ = kNone;
  Changed();
}

// Another bar is drawn: neither a press nor an open menu of the former one has a button any more.
void MenuBarArea::DrawnBarMayHaveChanged(BarHandle before) {
  if (before == bars_.Shown()) return;
  pressed_ = kNone;
  panelPressed_ = false;
  if (opened_ != kNone) device_.Popups().Close();
  opened_ = kNone;
  Changed();
}

BarHandle MenuBarArea::Create(WindowHandle owner, int flags, std::vector<BarButton> buttons) {
  const int count = static_cast<int>(buttons.size());
  const BarHandle bar = bars_.Create(owner, flags, std::move(buttons));
  Trace("create", bar, count, flags);
  return bar;
}

void MenuBarArea::Destroy(BarHandle bar) {
  const BarHandle before = bars_.Shown();
  if (!bars_.Destroy(bar)) return;
  Trace("destroy", bar, 0, 0);
  DrawnBarMayHaveChanged(before);
}

void MenuBarArea::Show(BarHandle bar, bool visible) {
  if (bars_.Find(bar) == nullptr) return;
  Trace(visible ? "show" : "hide", bar, 0, 0);
  const BarHandle before = bars_.Shown();
  bars_.Show(bar, visible);
  DrawnBarMayHaveChanged(before);
}

void MenuBarArea::SetImages(BarHandle bar, std::vector<std::shared_ptr<const Image>> cells) {
  Bar* found = bars_.Find(bar);
  if (found == nullptr) return;
  Trace("images", bar, static_cast<int>(cells.size()), 0);
  found->images = std::move(cells);
  if (bar == bars_.Shown()) Changed();
}

void MenuBarArea::Insert(BarHandle bar, int position, BarButton button) {
  Bar* found = bars_.Find(bar);
  if (found == nullptr) return;
  const int count = static_cast<int>(found->buttons.size());
  const int place = position < 0 || position > count ? count : position;
  Trace(place == count ? "add" : "insert", bar, button.id, place);
  found->buttons.insert(found->buttons.begin() + place, std::move(button));
  ForgetPressesFrom(bar, place);
}

void MenuBarArea::Delete(BarHandle bar, int position) {
  Bar* found = bars_.Find(bar);
  if (found == nullptr) return;
  Trace("delete", bar, position, 0);
  if (position < 0 || position >= static_cast<int>(found->buttons.size())) return;
  found->buttons.erase(found->buttons.begin() + position);
  ForgetPressesFrom(bar, position);
}

void MenuBarArea::SetState(BarHandle bar, int id, int bit, bool on, std::string_view call) {
  Bar* found = bars_.Find(bar);
  if (found == nullptr) return;
  Trace(call, bar, id, on ? 1 : 0);
  BarButton* button = found->Find(id);
  if (button == nullptr) return;
  button->state = on ? button->state | bit : button->state & ~bit;
  if (bar == bars_.Shown()) Changed();
}

void MenuBarArea::Enable(BarHandle bar, int id, bool enabled) {
  SetState(bar, id, TBSTATE_ENABLED, enabled, "enable");
}

void MenuBarArea::Check(BarHandle bar, int id, bool checked) {
  SetState(bar, id, TBSTATE_CHECKED, checked, "check");
}

int MenuBarArea::Count(BarHandle bar) const {
  const Bar* found = bars_.Find(bar);
  return found == nullptr ? 0 : static_cast<int>(found->buttons.size());
}

Menu* MenuBarArea::ButtonMenu(BarHandle bar, int position) {
  Bar* found = bars_.Find(bar);
  if (found == nullptr || position < 0 || position >= Count(bar)) return nullptr;
  BarButton& button = found->buttons[static_cast<std::size_t>(position)];
  return button.style == ButtonStyle::kMenu ? &button.menu : nullptr;
}

bool MenuBarArea::HasPanelButton() const {
  const Bar* bar = bars_.Find(bars_.Shown());
  return bar != nullptr && bar->HasPanelButton();
}

// The input-panel button shows whether the panel is up.
void MenuBarArea::CatchUp() {
  if (!Behind()) return;
  panelShown_ = device_.Panel().Visible();
  Changed();
}

}  // namespace orvane
