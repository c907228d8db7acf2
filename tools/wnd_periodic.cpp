#include "tools/wnd_periodic.h"

#include "data/zel_registry.h"
#include "resources/commands.h"
#include "resources/menus.h"

namespace orvane {

namespace {

// Menu-bar buttons: command, cell of the bar images.
constexpr int kSizeButton = 8867;
constexpr int kShowButton = 8868;
constexpr int kPresetsButton = 8869;
constexpr int kSizeImage = 5;
constexpr int kShowImage = 6;
constexpr int kPresetsImage = 21;

// The screen points at which the menus' bottom left corners stand.
constexpr Point kSizeAnchor{30, 295};
constexpr Point kShowAnchor{65, 295};
constexpr Point kPresetsAnchor{70, 295};

constexpr int kWidth = 240;
constexpr int kHeight = 268;

}  // namespace

wnd_periodic::wnd_periodic(Shell& shell, const ElementsDatabase& elements, Navigator& navigator)
    : ZelToolWindow(shell, shell.MainWindow(), true) {
  SetStyle(0, 0);
  Move(0, 0, kWidth, kHeight);
  SetText(u"Periodic table");
  ReadPeriodicSettings(shell.Settings(), settings_, presets_);
  panel_ = MakeWindow<PeriodicPanel>(shell, Handle(), elements, navigator, settings_);
  panel_->Move(0, 0, kWidth, kHeight);
  panel_->LayOut();
  panel_->Show();
}

wnd_periodic::~wnd_periodic() { WritePeriodicSettings(GetShell().Settings(), settings_, presets_); }

Result wnd_periodic::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      GetDevice().SetFocus(panel_ ? panel_->Handle() : kNoWindow);
      GetShell().SetCurrentTool(Handle());
      return 0;
    case WM_LBUTTONDOWN:
      GetDevice().SetFocus(Handle());
      return 0;
    case kBeforeShow:
      OnBeforeShow();
      return 0;
    case kAfterHide:
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void wnd_periodic::OnBeforeShow() {
  Shell& shell = GetShell();
  GetDevice().Panel().Request(false);
  shell.AddBarButton(kSizeButton, kSizeImage, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  shell.AddBarButton(kShowButton, kShowImage, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  shell.AddBarButton(kPresetsButton, kPresetsImage, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  shell.SetCurrentTool(Handle());
}

void wnd_periodic::OnCommand(int command) {
  switch (command) {
    case kSizeButton:
      return OpenSizeMenu();
    case kShowButton:
      return OpenShowMenu();
    case kPresetsButton:
      return OpenPresetsMenu();
    case kCommandNarrowMode:
      return SetMode(false);
    case kCommandWideMode:
      return SetMode(true);
    case kCommandColourByBlock:
      return SetColouring(false);
    case kCommandColourByFamily:
      return SetColouring(true);
    case kCommandShowNumber:
      return Toggle(settings_.showNum);
    case kCommandShowName:
      return Toggle(settings_.showName);
    case kCommandShowMass:
      return Toggle(settings_.showMass);
    case kCommandFirstSave:
    case kCommandFirstSave + 1:
    case kCommandFirstSave + 2:
      return SaveToPreset(command - kCommandFirstSave);
    case kCommandFirstLoad:
    case kCommandFirstLoad + 1:
    case kCommandFirstLoad + 2:
      return LoadFromPreset(command - kCommandFirstLoad);
    default:
      return;
  }
}

void wnd_periodic::OpenSizeMenu() {
  Menu& menu = GetShell().PopupMenu(kPteSizeMenu);
  menu.CheckRadio(kCommandNarrowMode, kCommandWideMode,
                  settings_.modeWide ? kCommandWideMode : kCommandNarrowMode);
  menu.CheckRadio(kCommandColourByBlock, kCommandColourByFamily,
                  settings_.colorType ? kCommandColourByFamily : kCommandColourByBlock);
  GetDevice().Popups().Track(menu, kSizeAnchor, Handle());
}

void wnd_periodic::OpenShowMenu() {
  Menu& menu = GetShell().PopupMenu(kShowWhatMenu);
  menu.CheckAt(0, settings_.showNum);
  menu.CheckAt(1, settings_.showName);
  menu.CheckAt(2, settings_.showMass);
  GetDevice().Popups().Track(menu, kShowAnchor, Handle());
}

void wnd_periodic::OpenPresetsMenu() {
  Menu& menu = GetShell().PopupMenu(kPresetsMenu);
  const int match = MatchingPreset(presets_, settings_);
  const int last = kCommandFirstLoad + kPeriodicPresets - 1;
  menu.CheckRadio(kCommandFirstLoad, last, match >= 0 ? kCommandFirstLoad + match : 0);
  GetDevice().Popups().Track(menu, kPresetsAnchor, Handle());
}

void wnd_periodic::SetMode(bool wide) {
  settings_.modeWide = wide;
  StartOver();
}

void wnd_periodic::Toggle(bool& shown) {
  shown = !shown;
  StartOver();
}

// Cells keep their places, so the view stays where it is.
void wnd_periodic::SetColouring(bool byFamily) {
  settings_.colorType = byFamily;
  panel_->LayOut();
}

// Nothing that shows has changed, so nothing is drawn.
void wnd_periodic::SaveToPreset(int preset) {
  SavePreset(settings_, presets_[static_cast<std::size_t>(preset)]);
  GetShell().Tell(WithNumber(u"Settings saved as preset %d.", preset + 1), MessageIcon::kInformation);
}

void wnd_periodic::LoadFromPreset(int preset) {
  LoadPreset(presets_[static_cast<std::size_t>(preset)], settings_);
  StartOver();
}

void wnd_periodic::StartOver() {
  panel_->scrollX = 0;
  panel_->scrollY = 0;
  panel_->LayOut();
}

void wnd_periodic::Paint(Canvas& canvas, int width, int height) {
  canvas.FillRect(Rect::At(0, 0, width, height), kWhite);
}

}  // namespace orvane
