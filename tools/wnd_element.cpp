#include "tools/wnd_element.h"

#include <algorithm>

#include "data/zel_registry.h"
#include "framework/standard_commands.h"
#include "resources/commands.h"
#include "resources/help_pages.h"
#include "resources/menus.h"

namespace orvane {

namespace {

// Buttons of the tool's bar: command, cell of the bar images.
constexpr int kCloseButton = 8350;
constexpr int kHelpButton = 8351;
constexpr int kSetupButton = 8352;
constexpr int kToggleButton = 8354;
constexpr int kPresetsButton = 8355;
constexpr int kCloseImage = 0;
constexpr int kHelpImage = 2;
constexpr int kSetupImage = 20;
constexpr int kPresetsImage = 21;
constexpr int kToggleImage = 22;

// The screen points at which the menus' bottom left corners stand.
constexpr Point kSetupAnchor{30, 295};
constexpr Point kPresetsAnchor{40, 295};

constexpr int kWidth = 240;
constexpr int kHeight = 268;
// The strip with the title; both views stand below it.
constexpr int kStripHeight = 23;

constexpr TextView kTitle = u"Element properties";

// The list's columns. The names' is as wide as nearly all names are; the user may drag it.
enum ListColumnIndex { kNameColumn, kValueColumn, kUnitsColumn };
constexpr int kNameWidth = 112;

constexpr TextView kSelectFirst = u"Select a property first by tapping it.";

}  // namespace

wnd_element::wnd_element(Shell& shell, ElementsDatabase& elements, Navigator& navigator)
    : ZelToolWindow(shell, shell.MainWindow(), true), elements_(elements), navigator_(navigator) {
  SetStyle(0, 0);
  Move(0, 0, kWidth, kHeight);
  SetText(kTitle);
  LoadSettings();
  CreateFontFamily(GetDevice(), Handle(), titleFont_, u"Tahoma", 10, false, false);
  summary_ = MakeWindow<ElementSummaryPanel>(shell, Handle(), elements_, settings_);
  summary_->Move(0, kStripHeight, kWidth, kHeight - kStripHeight);
  MakeList();
  MakeBar();
  ShowChosenView();
}

wnd_element::~wnd_element() { SaveSettings(); }

void wnd_element::MakeList() {
  list_ = MakeWindow<ctlGroupedList>(GetShell(), Handle());
  list_->Move(0, kStripHeight, kWidth, kHeight - kStripHeight);
  list_->UseFonts(titleFont_, summary_->RowFont());
  list_->columns.resize(3);
  list_->columns[kNameColumn].width = kNameWidth;
  list_->columns[kValueColumn].autoSize = true;
  list_->columns[kUnitsColumn].autoSize = true;
}

void wnd_element::MakeBar() {
  bar_ = std::make_unique<ctlToolbar>(GetShell(), Handle(), false);
  bar_->AddButton(kCloseButton, kCloseImage, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar_->AddButton(kHelpButton, kHelpImage, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar_->AddButton(kSetupButton, kSetupImage, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  bar_->AddButton(kPresetsButton, kPresetsImage, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  bar_->AddButton(kToggleButton, kToggleImage, TBSTATE_ENABLED, ButtonStyle::kPush);
}

void wnd_element::LoadSettings() {
  std::optional<PropertyList> last;
  ReadElementSettings(GetShell().Settings(), PropertyCount(elements_), settings_, last);
  listStored_ = last.has_value();
  if (last) {
    SetSummary(elements_, *last);
  } else {
    SetSummary(elements_, BuiltInSummary());
  }
}

// A list that was stored and never shown is left as it stands in the store.
void wnd_element::SaveSettings() {
  std::optional<PropertyList> last;
  if (summary_->LaidOut()) {
    last = ShownRows();
  } else if (!listStored_) {
    last.emplace(BuiltInSummary().begin(), BuiltInSummary().end());
  }
  WriteElementSettings(GetShell().Settings(), settings_, elements_.CategoryCount() > 0, last);
}

void wnd_element::ShowElement(int element) {
  if (element < 0 || element >= ElementsDatabase::kElementCount) return;
  GetDevice().SetWaitCursor(true);
  if (element != element_) summary_->scrollY = list_->scrollX = list_->scrollY = 0;
  element_ = element;
  navigator_.SelectElement(element);
  BuildList();
  summary_->Select(-1);
  summary_->LayOut(element_);
  if (settings_.initialView == kStartWithSummary) settings_.doSummary = true;
  if (settings_.initialView == kStartWithFullInfo) settings_.doSummary = false;
  ShowChosenView();
  Show();
  GetDevice().SetWaitCursor(false);
}

void wnd_element::BuildList() {
  list_->ClearGroups();
  listed_.clear();
  std::int32_t c = 0;
  for (const ElementCategory& category : elements_.Categories()) {
    ListGroup group{Text(category.Name()), true, true, {}};
    PropertyList addresses;
    std::int32_t p = 0;
    for (const ElementProperty& property : category.Properties()) {
      if (property.HasValue(element_)) {
        group.rows.push_back(
            {Text(property.Name()), Text(ShownValue(property, element_)), Text(property.Units())});
        addresses.push_back({c, p});
      }
      ++p;
    }
    if (!group.rows.empty()) {
      list_->groups.push_back(std::move(group));
      listed_.push_back(std::move(addresses));
    }
    ++c;
  }
  list_->Relayout();
}

ZelPanel& wnd_element::ChosenView() {
  if (settings_.doSummary) return *summary_;
  return *list_;
}

// A child of a hidden tool counts as hidden, so Hide would leave it as it is.
void wnd_element::ShowChosenView() {
  Device& device = GetDevice();
  const bool summary = settings_.doSummary;
  ChosenView().Show();
  device.ShowWindow(summary ? list_->Handle() : summary_->Handle(), false);
  bar_->CheckButton(kToggleButton, summary);
  bar_->EnableButton(kPresetsButton, summary);
  if (IsVisible()) device.SetFocus(ChosenView().Handle());
}

Result wnd_element::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      if (list_) GetDevice().SetFocus(ChosenView().Handle());
      GetShell().SetCurrentTool(Handle());
      return 0;
    case kAskStandardCommand:
      return StandardCommandFor(w);
    case kBeforeShow:
      OnBeforeShow();
      return 0;
    case kBeforeHide:
      OnBeforeHide();
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void wnd_element::OnBeforeShow() {
  Shell& shell = GetShell();
  GetDevice().Panel().Request(false);
  topicBefore_ = shell.HelpTopic();
  shell.SetHelpTopic(kHelpElement);
  shell.SetCurrentTool(Handle());
  bar_->Show();
}

// The tool underneath was never hidden, so it does not set its topic again.
void wnd_element::OnBeforeHide() {
  Shell& shell = GetShell();
  if (shell.HelpTopic() == kHelpElement) shell.SetHelpTopic(topicBefore_);
  bar_->Hide();
}

Result wnd_element::StandardCommandFor(WParam w) const {
  switch (StandardCommandOf(w)) {
    case StandardCommand::kCopy:
      return settings_.doSummary ? kCommandCopyFromSummary : kCommandCopyFromList;
    case StandardCommand::kClose:
      return kCloseButton;
    default:
      return 0;
  }
}

void wnd_element::OnCommand(int command) {
  if (OnSummaryCommand(command)) return;
  switch (command) {
    case kCloseButton:
      return Hide();
    case kHelpButton:
      return navigator_.ShowHelp(kHelpElement);
    case kSetupButton:
      return OpenSetupMenu();
    case kPresetsButton:
      return OpenPresetsMenu();
    case kToggleButton:
      return ToggleView();
    case kCommandCopyFromList:
      return CopyFromList();
    case kCommandCopyFromSummary:
      return CopyFromSummary();
    case kCommandFirstInitialView:
    case kCommandFirstInitialView + 1:
    case kCommandFirstInitialView + 2:
      return SetInitialView(command - kCommandFirstInitialView);
    default:
      return;
  }
}

// What changes the summary or keeps it.
bool wnd_element::OnSummaryCommand(int command) {
  switch (command) {
    case kCommandAddToSummary:
      return AddSelected(), true;
    case kCommandRemoveFromSummary:
      return RemoveSelected(), true;
    case kCommandMoveUp:
      return MoveSelected(-1), true;
    case kCommandMoveDown:
      return MoveSelected(+1), true;
    case kCommandShowMain:
      return ToggleShown(settings_.showMainProperties), true;
    case kCommandShowFamily:
      return ToggleShown(settings_.showFamilyAndBlock), true;
    case kCommandFirstSave:
    case kCommandFirstSave + 1:
    case kCommandFirstSave + 2:
      return SavePreset(command - kCommandFirstSave), true;
    case kCommandFirstLoad:
    case kCommandFirstLoad + 1:
    case kCommandFirstLoad + 2:
      return ApplyPreset(command - kCommandFirstLoad), true;
    default:
      return false;
  }
}

void wnd_element::ToggleView() {
  settings_.doSummary = !settings_.doSummary;
  ShowChosenView();
}

void wnd_element::OpenSetupMenu() {
  Menu& menu = GetShell().PopupMenu(settings_.doSummary ? kElSetupSumMenu : kElSetupFullMenu);
  if (settings_.doSummary) {
    menu.Check(kCommandShowMain, settings_.showMainProperties);
    menu.Check(kCommandShowFamily, settings_.showFamilyAndBlock);
  }
  const bool known = settings_.initialView >= kStartWithSummary && settings_.initialView <= kRememberLastUsed;
  menu.CheckRadio(kCommandFirstInitialView, kCommandFirstInitialView + kRememberLastUsed,
                  known ? kCommandFirstInitialView + settings_.initialView : 0);
  GetDevice().Popups().Track(menu, kSetupAnchor, Handle());
}

void wnd_element::OpenPresetsMenu() {
  Menu& menu = GetShell().PopupMenu(kPresetsMenu);
  menu.CheckRadio(kCommandFirstLoad, kCommandFirstLoad + kElementPresets - 1,
                  currentPreset_ >= 0 ? kCommandFirstLoad + currentPreset_ : 0);
  GetDevice().Popups().Track(menu, kPresetsAnchor, Handle());
}

void wnd_element::ToggleShown(bool& shown) {
  shown = !shown;
  Edited(summary_->SelectedRow());
}

// The summary equals no preset any more.
void wnd_element::Edited(int selectedRow) {
  currentPreset_ = -1;
  if (element_ < 0) return;  // nothing has been laid out yet
  summary_->LayOut(element_);
  summary_->Select(selectedRow);
}

void wnd_element::AddSelected() {
  if (!list_->HasRow(list_->selectedGroup, list_->selectedRow)) return Inform(kSelectFirst);
  const PropertyAddress address =
      listed_[static_cast<std::size_t>(list_->selectedGroup)][static_cast<std::size_t>(list_->selectedRow)];
  if (IsInSummary(elements_, address)) {
    Inform(u"This property is already in the summary view. It will be moved to the bottom of the list.");
  }
  const PropertyList before = ShownRows();
  const int selected = summary_->SelectedRow();
  AddToSummary(elements_, address);
  Edited(selected);
  if (selected < 0) return;
  // The selected property keeps its mark though it may have moved.
  const PropertyList after = ShownRows();
  const auto moved = std::find(after.begin(), after.end(), before[static_cast<std::size_t>(selected)]);
  summary_->Select(static_cast<int>(moved - after.begin()));
}

void wnd_element::RemoveSelected() {
  const int row = summary_->SelectedRow();
  if (row < 0) return Inform(kSelectFirst);
  const int last = static_cast<int>(summary_->Rows().size()) - 1;
  RemoveFromSummary(elements_, summary_->Rows()[static_cast<std::size_t>(row)].address);
  Edited(row == last ? row - 1 : row);
  summary_->BringIntoView(summary_->SelectedRow());
}

void wnd_element::MoveSelected(int step) {
  const std::vector<ElementSummaryPanel::Row>& rows = summary_->Rows();
  const int row = summary_->SelectedRow();
  if (row < 0) return Inform(kSelectFirst);
  const int other = row + step;
  if (other < 0) return Inform(u"Cannot move property up any further.");
  if (other >= static_cast<int>(rows.size())) return Inform(u"Cannot move property down any further.");
  ExchangePositions(elements_, rows[static_cast<std::size_t>(row)].address,
                    rows[static_cast<std::size_t>(other)].address);
  Edited(other);
  summary_->BringIntoView(other);
}

PropertyList wnd_element::ShownRows() const {
  PropertyList list;
  for (const ElementSummaryPanel::Row& row : summary_->Rows()) list.push_back(row.address);
  return list;
}

void wnd_element::SavePreset(int preset) {
  settings_.presets[static_cast<std::size_t>(preset)] = {settings_.showMainProperties,
                                                         settings_.showFamilyAndBlock, ShownRows()};
  currentPreset_ = preset;
  Inform(WithNumber(u"Summary settings saved as preset %d.", preset + 1));
}

void wnd_element::ApplyPreset(int preset) {
  const ElementPreset& applied = settings_.presets[static_cast<std::size_t>(preset)];
  settings_.showMainProperties = applied.showMain;
  settings_.showFamilyAndBlock = applied.showFamily;
  SetSummary(elements_, applied.list);
  Edited(-1);
  currentPreset_ = preset;
}

void wnd_element::CopyFromList() {
  if (!list_->HasRow(list_->selectedGroup, list_->selectedRow)) return Inform(kSelectFirst);
  const std::vector<Text>& cells = list_->groups[static_cast<std::size_t>(list_->selectedGroup)]
                                       .rows[static_cast<std::size_t>(list_->selectedRow)];
  GetDevice().SetClipboardText(CopyText(cells[kValueColumn], cells[kUnitsColumn]));
}

void wnd_element::CopyFromSummary() {
  const int row = summary_->SelectedRow();
  if (row < 0) return Inform(kSelectFirst);
  const ElementProperty* property =
      FindProperty(elements_, summary_->Rows()[static_cast<std::size_t>(row)].address);
  if (property) GetDevice().SetClipboardText(CopyText(ShownValue(*property, element_), property->Units()));
}

void wnd_element::Inform(TextView text) { GetShell().Tell(text, MessageIcon::kInformation); }

void wnd_element::Paint(Canvas& canvas, int width, int height) {
  canvas.FillRect(Rect::At(0, 0, width, height), kWhite);
  GetShell().DrawTitleStrip(canvas, titleFont_, kTitle, false, true);
}

}  // namespace orvane
