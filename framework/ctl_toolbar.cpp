#include "framework/ctl_toolbar.h"

#include "framework/resource_loader.h"
#include "resources/images.h"
#include "resources/menus.h"

namespace orvane {

ctlToolbar::ctlToolbar(Shell& shell, WindowHandle owner, bool visible) : shell_(&shell), owner_(owner) {
  const int flags = visible ? kBarHidden : kBarHidden | kBarWithoutPanelButton;
  hwndBar_ = Bars().Create(owner, flags, LoadResourceBar(kToolBar));
  if (hwndBar_ == kNoBar) {
    shell.Tell(u"ctlToolbar::ctlToolbar - failed to create toolbar.", MessageIcon::kError);
    return;
  }
  Bars().SetImages(hwndBar_, LoadResourceStrip(shell.GetDevice(), kBarImages));
  Bars().Delete(hwndBar_, 0);  // the resource's placeholder: a bar cannot be made without a button
}

ctlToolbar::~ctlToolbar() { Destroy(); }

void ctlToolbar::AddButton(int commandId, int imageIndex, int state, ButtonStyle style) {
  BarButton button;
  button.id = commandId;
  button.image = imageIndex;
  button.state = state;
  button.style = style;
  Bars().Insert(hwndBar_, Bars().Count(hwndBar_), std::move(button));
}

void ctlToolbar::EnableButton(int commandId, bool enable) { Bars().Enable(hwndBar_, commandId, enable); }

void ctlToolbar::CheckButton(int commandId, bool checked) { Bars().Check(hwndBar_, commandId, checked); }

void ctlToolbar::Show() { Bars().Show(hwndBar_, true); }

void ctlToolbar::Hide() { Bars().Show(hwndBar_, false); }

void ctlToolbar::Destroy() {
  if (hwndBar_ != kNoBar) Bars().Destroy(hwndBar_);
  hwndBar_ = kNoBar;
}

}  // namespace orvane
