#include "tools/wnd_const.h"

#include "framework/shell_reporter.h"
#include "framework/standard_commands.h"
#include "framework/wait_cursor.h"
#include "resources/commands.h"
#include "resources/help_pages.h"
#include "resources/menus.h"
#include "tools/const_text.h"

namespace orvane {

namespace {

// Menu-bar buttons: command, cell of the bar images.
constexpr int kCategoryButton = 8820;
constexpr int kTitleButton = 8821;
constexpr int kStripButton = 8822;
constexpr int kFoldButton = 8823;
constexpr int kHelpButton = 8824;
constexpr int kCategoryImage = 20;
constexpr int kTitleImage = 12;
constexpr int kStripImage = 13;
constexpr int kFoldImage = 14;
constexpr int kHelpImage = 15;

// The menu's commands for the categories have the numbers from this one on.
constexpr int kFirstCategory = 1000;

// Columns of the list.
constexpr std::size_t kSymbolColumn = 1;
constexpr std::size_t kValueColumn = 2;
constexpr std::size_t kUnitsColumn = 3;

// The screen point at which the menu's bottom left corner stands.
constexpr Point kMenuAnchor{30, 295};

// Sizes in points. Raised and lowered text is smaller, so that it stands apart within the line's height.
constexpr int kTitlePoints = 10;
constexpr int kShiftedTitlePoints = 7;
constexpr int kTextPoints = 8;
constexpr int kShiftedTextPoints = 6;

constexpr int kWidth = 240;
constexpr int kHeight = 268;
constexpr int kTitleHeight = 23;
constexpr int kStripTop = 240;
constexpr Rect kMissingTextBox{8, 30, 224, 260};
constexpr Colour kToolBackground = Rgb(230, 242, 255);
constexpr int kListMargin = 3;
constexpr int kLeastColumnWidth = 15;

constexpr TextView kTitle = u"Constants database";
constexpr TextView kMissingText =
    u"The file 'constants.dat' has not been found in the application folder.\n\n"
    u"All constants are stored in that file, so it is impossible to view constants now. You can try to "
    u"reinstall the application to fix the problem.";
constexpr TextView kAppendFailed = u"wnd_const::cReadCategories - AppendMenu failed!";
constexpr TextView kSelectFirst =
    u"Please select the constant that you want to copy before using this command.";

}  // namespace

wnd_const::wnd_const(Shell& shell, Navigator& navigator, const std::string& dataFolder)
    : ZelToolWindow(shell, shell.MainWindow(), true),
      navigator_(navigator),
      database_(dataFolder + kConstantsFile),
      settings_(ReadConstSettings(shell.Settings())) {
  SetStyle(0, 0);
  Move(0, 0, kWidth, kHeight);
  SetText(kTitle);
  CreateFontFamily(GetDevice(), Handle(), titleFont_, u"Tahoma", kTitlePoints, kShiftedTitlePoints,
                   kShiftedTitlePoints, 0, 0, false, false);
  CreateFontFamily(GetDevice(), Handle(), textFont_, u"Tahoma", kTextPoints, kShiftedTextPoints,
                   kShiftedTextPoints, 0, 0, false, false);
  list_ = MakeWindow<ctlGroupedList>(shell, Handle());
  list_->UseFonts(titleFont_, textFont_);
  list_->margin = kListMargin;
  list_->minimumColumnWidth = kLeastColumnWidth;
  for (const ConstColumn& column : settings_.columns) {
    list_->columns.push_back({column.visible, true, column.autoSize, column.width});
  }
  strip_ = MakeWindow<ConstStrip>(shell, Handle(), kStripButton);
  strip_->Move(0, kStripTop, kWidth, kHeight - kStripTop);
  Layout();
}

wnd_const::~wnd_const() {
  for (std::size_t i = 0; i < kConstColumns; ++i) {
    const ListColumn& column = list_->columns[i];
    settings_.columns[i] = {column.visible, column.autoSize, column.width};
  }
  WriteConstSettings(GetShell().Settings(), settings_);
}

Result wnd_const::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case kBeforeShow:
      OnBeforeShow();
      return 0;
    case WM_SETFOCUS:
      GetShell().SetCurrentTool(Handle());
      FocusList();
      return 0;
    case kAskStandardCommand:
      return OwnCommandFor(w);
    case kListRowTapped:
      OnRowTapped(TappedRow(w, l));
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

// --- Loading

void wnd_const::LoadOnce() {
  if (loadedOnce_) return;
  loadedOnce_ = true;
  if (!ReadCategories()) return FailLoading();
  // The category of the last run may be gone from the file.
  if (settings_.category < 0 || settings_.category >= database_.CategoryCount()) settings_.category = 0;
  list_->Show();
  LoadCategory(settings_.category);
}

bool wnd_const::ReadCategories() {
  ShellReporter reporter(GetShell());
  if (!database_.ReadCategories(reporter)) return false;
  for (int category = 0; category < database_.CategoryCount(); ++category) AppendToMenu(category);
  return true;
}

// A menu that could not be made is empty; this one has entries of its own.
void wnd_const::AppendToMenu(int category) {
  Menu& menu = GetShell().PopupMenu(kConstCategMenu);
  if (menu.Count() == 0) return GetShell().Tell(kAppendFailed, MessageIcon::kError);
  MenuItem item;
  item.id = kFirstCategory + category;
  item.label = WithoutCodes(database_.Categories()[static_cast<std::size_t>(category)].name);
  menu.Append(std::move(item));
}

void wnd_const::LoadCategory(int category) {
  if (category < 0 || category >= database_.CategoryCount()) return;
  if (category != settings_.category) list_->scrollX = list_->scrollY = 0;
  settings_.category = category;
  strip_->SetContent({});
  list_->ClearGroups();
  ShellReporter reporter(GetShell());
  auto groups = database_.LoadCategory(category, reporter);
  if (!groups) return FailLoading();
  groups_ = std::move(*groups);
  FillList();
  Redraw();
}

void wnd_const::FillList() {
  for (const ConstGroup& group : groups_) {
    ListGroup& shown = list_->groups.emplace_back();
    shown.title = group.title;
    shown.hasTitle = group.collapsible;
    for (const ConstEntry& constant : group.constants) {
      shown.rows.push_back({constant.name, constant.symbol, constant.value, constant.units});
    }
  }
  list_->Relayout();
}

void wnd_const::FailLoading() {
  loadFailed_ = true;
  groups_.clear();
  list_->Hide();
  stripShown_ = false;
  Layout();
}

// --- Activation

void wnd_const::OnBeforeShow() {
  LoadOnce();
  Shell& shell = GetShell();
  GetDevice().Panel().Request(false);
  shell.SetHelpTopic(kHelpConstants);
  shell.SetCurrentTool(Handle());
  if (loadFailed_) return;
  shell.AddBarButton(kCategoryButton, kCategoryImage, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  shell.AddBarButton(0, 0, -1, TBSTATE_ENABLED, ButtonStyle::kSeparator);
  shell.AddBarButton(kTitleButton, kTitleImage, -1, TBSTATE_ENABLED, ButtonStyle::kCheck);
  shell.AddBarButton(kStripButton, kStripImage, -1, TBSTATE_ENABLED, ButtonStyle::kCheck);
  shell.AddBarButton(kFoldButton, kFoldImage, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  shell.AddBarButton(0, 0, -1, TBSTATE_ENABLED, ButtonStyle::kSeparator);
  shell.AddBarButton(kHelpButton, kHelpImage, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  Layout();
}

void wnd_const::FocusList() {
  if (!loadFailed_) GetDevice().SetFocus(list_->Handle());
}

// Escape closes the strip.
int wnd_const::OwnCommandFor(WParam standard) const {
  switch (StandardCommandOf(standard)) {
    case StandardCommand::kCopy:
      return loadFailed_ ? 0 : kCommandCopyConstant;
    case StandardCommand::kClose:
      return stripShown_ ? kStripButton : 0;
    default:
      return 0;
  }
}

// --- Commands

void wnd_const::OnCommand(int command) {
  switch (command) {
    case kCategoryButton:
      return OpenCategoryMenu();
    case kTitleButton:
      return ToggleTitle();
    case kStripButton:
      return ToggleStrip();
    case kFoldButton:
      return FoldOrUnfold();
    case kHelpButton:
      return navigator_.ShowHelp(kHelpConstantsColumns);
    case kCommandShowSymbol:
      return ToggleColumn(kSymbolColumn);
    case kCommandShowValue:
      return ToggleColumn(kValueColumn);
    case kCommandShowUnits:
      return ToggleColumn(kUnitsColumn);
    case kCommandCopyConstant:
      return Copy();
    default:
      return ChooseCategory(command - kFirstCategory);
  }
}

void wnd_const::OpenCategoryMenu() {
  if (loadFailed_) return;
  Menu& menu = GetShell().PopupMenu(kConstCategMenu);
  menu.Check(kCommandShowSymbol, list_->columns[kSymbolColumn].visible);
  menu.Check(kCommandShowValue, list_->columns[kValueColumn].visible);
  menu.Check(kCommandShowUnits, list_->columns[kUnitsColumn].visible);
  const int last = kFirstCategory + database_.CategoryCount() - 1;
  menu.CheckRadio(kFirstCategory, last, kFirstCategory + settings_.category);
  GetDevice().Popups().Track(menu, kMenuAnchor, Handle());
}

void wnd_const::ToggleTitle() {
  settings_.showTitle = !settings_.showTitle;
  Layout();
}

void wnd_const::ToggleStrip() {
  if (loadFailed_) return;
  stripShown_ = !stripShown_;
  Layout();
}

void wnd_const::FoldOrUnfold() {
  if (!loadFailed_) list_->ToggleAll();
}

void wnd_const::ToggleColumn(std::size_t column) {
  list_->columns[column].visible = !list_->columns[column].visible;
  if (!loadFailed_) list_->Relayout();
}

void wnd_const::ChooseCategory(int category) {
  if (loadFailed_ || category < 0 || category >= database_.CategoryCount()) return;
  const WaitCursor wait(GetDevice());
  LoadCategory(category);
}

void wnd_const::Copy() {
  const ConstEntry* constant = At({list_->selectedGroup, list_->selectedRow});
  if (constant == nullptr) return GetShell().Tell(kSelectFirst, MessageIcon::kExclamation);
  GetDevice().SetClipboardText(ValueForClipboard(constant->value));
}

// The strip may come to lie over the row.
void wnd_const::OnRowTapped(const ListRow& row) {
  const ConstEntry* constant = At(row);
  if (constant == nullptr) return;
  strip_->SetContent(ConstantInFull(*constant));
  if (stripShown_) return;
  stripShown_ = true;
  Layout();
  list_->BringIntoView(row.group, row.row);
}

// --- Looks

void wnd_const::Layout() {
  const int top = settings_.showTitle ? kTitleHeight : 0;
  const int bottom = stripShown_ ? kStripTop : kHeight;
  const bool hadFocus = GetDevice().Focus() == strip_->Handle();
  list_->Move(0, top, kWidth, bottom - top);
  if (stripShown_) {
    strip_->Show();
  } else {
    strip_->Hide();
    if (hadFocus) FocusList();
  }
  GetShell().CheckBarButton(kTitleButton, settings_.showTitle);
  GetShell().CheckBarButton(kStripButton, stripShown_);
  Redraw();
}

TextView wnd_const::Caption() const {
  if (loadFailed_ || settings_.category >= database_.CategoryCount()) return kTitle;
  return database_.Categories()[static_cast<std::size_t>(settings_.category)].name;
}

const ConstEntry* wnd_const::At(const ListRow& row) const {
  if (!list_->HasRow(row.group, row.row)) return nullptr;
  return &groups_[static_cast<std::size_t>(row.group)].constants[static_cast<std::size_t>(row.row)];
}

void wnd_const::Paint(Canvas& canvas, int width, int height) {
  if (settings_.showTitle) {
    GetShell().DrawTitleStrip(canvas, titleFont_, Caption(), true, true);
  } else {
    canvas.FillRect(Rect::At(0, 0, width, height), kToolBackground);
  }
  if (!loadFailed_) return;
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&textFont_);
  engine.SetTextColour(kBlack);
  engine.DrawText(canvas, kMissingText, kMissingTextBox.left, kMissingTextBox.top, &kMissingTextBox);
}

}  // namespace orvane
