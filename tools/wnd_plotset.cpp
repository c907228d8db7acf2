#include "tools/wnd_plotset.h"

#include "chemistry/value_filter.h"
#include "resources/help_pages.h"

namespace orvane {

namespace {

// Buttons of the tool's own bar: command, cell of the bar images.
constexpr int kAccept = 8820;
constexpr int kCancel = 8821;
constexpr int kHelp = 8822;
constexpr int kAcceptImage = 0;
constexpr int kCancelImage = 1;
constexpr int kHelpImage = 2;
// The box's copy and paste. No button stands for them: the keys run them.
constexpr int kCopy = 8823;
constexpr int kPaste = 8824;

constexpr Point kBoxCaption{8, 28};
constexpr Point kListCaption{8, 76};
constexpr Rect kBox = Rect::At(8, 44, 224, 24);
constexpr Colour kBoxSurround = Rgb(230, 242, 255);
constexpr Point kList{7, 92};
// The one column, and the frame around it.
constexpr int kColumnWidth = 224;
constexpr int kListWidth = 226;
constexpr int kListAlone = 165;
constexpr int kListAbovePanel = 77;

}  // namespace

Result AxisList::WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  if (message == WM_KEYDOWN && keyPressed && keyPressed(static_cast<int>(w))) return 0;
  return ctlGroupedList::WndProc(window, message, w, l);
}

wnd_plotset::wnd_plotset(Shell& shell, const ElementsDatabase& elements, Navigator& navigator)
    : InputTool(shell, u"Plot settings", {.copy = kCopy, .paste = kPaste, .close = kCancel}),
      navigator_(navigator) {
  CreateFontFamily(GetDevice(), Handle(), large_, u"Tahoma", 10, false, false);
  CreateFontFamily(GetDevice(), Handle(), small_, u"Tahoma", 8, false, false);
  MakeBar();
  MakeBox();
  MakeList();
  FillList(elements);
}

void wnd_plotset::MakeBar() {
  bar_ = std::make_unique<ctlToolbar>(GetShell(), Handle(), true);
  bar_->AddButton(kAccept, kAcceptImage, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar_->AddButton(kCancel, kCancelImage, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar_->AddButton(0, 0, TBSTATE_ENABLED, ButtonStyle::kSeparator);
  bar_->AddButton(kHelp, kHelpImage, TBSTATE_ENABLED, ButtonStyle::kPush);
}

void wnd_plotset::MakeBox() {
  box_ = std::make_unique<PlainBox>(GetShell(), Handle(), kBox.left, kBox.top, kBox.Width(), kBox.Height());
  box_->SetFont(u"Tahoma", 10);
  box_->SetLongest(static_cast<int>(kLongestFilter));
  box_->surround = kBoxSurround;
}

void wnd_plotset::MakeList() {
  list_ = MakeWindow<AxisList>(GetShell(), Handle());
  list_->UseFonts(large_, large_);
  list_->bordered = true;
  list_->keyPressed = [this](int key) { return OnListKey(key); };
  list_->columns.push_back({true, false, false, kColumnWidth});
  list_->Move(kList.x, kList.y, kListWidth, kListAlone);
  list_->Show();
}

// The addresses are made together with the rows, so that the two never part.
void wnd_plotset::FillList(const ElementsDatabase& elements) {
  std::int32_t categoryIndex = 0;
  for (const ElementCategory& category : elements.Categories()) {
    ListGroup group{Text(category.Name()), true, true, {}};
    std::vector<PropertyAddress> addresses;
    std::int32_t propertyIndex = 0;
    for (const ElementProperty& property : category.Properties()) {
      if (property.IsPlottable()) {
        group.rows.push_back({Text(property.Name())});
        addresses.push_back({categoryIndex, propertyIndex});
      }
      ++propertyIndex;
    }
    if (!addresses.empty()) {
      list_->groups.push_back(std::move(group));
      addresses_.push_back(std::move(addresses));
    }
    ++categoryIndex;
  }
  list_->Relayout();
}

void wnd_plotset::Open(const AxisRequest& request) {
  request_ = request;
  box_->ReplaceText(request.filter);
  box_->retokenise();
  box_->Reset();
  list_->scrollX = 0;
  list_->scrollY = 0;
  list_->ClearSelection();
  list_->Move(kList.x, kList.y, kListWidth, kListAlone);
  Select(request.property);
  Invalidate();
  Show();
}

// The group of the selected row is unfolded, so that the row can be seen.
void wnd_plotset::Select(const PropertyAddress& address) {
  for (std::size_t g = 0; g < addresses_.size(); ++g) {
    for (std::size_t r = 0; r < addresses_[g].size(); ++r) {
      if (addresses_[g][r] != address) continue;
      list_->selectedGroup = static_cast<int>(g);
      list_->selectedRow = static_cast<int>(r);
      list_->groups[g].expanded = true;
      list_->Relayout();
      list_->BringIntoView(list_->selectedGroup, list_->selectedRow);
      return;
    }
  }
  list_->Relayout();
}

std::optional<PropertyAddress> wnd_plotset::Selected() const {
  if (!list_->HasRow(list_->selectedGroup, list_->selectedRow)) return std::nullopt;
  return addresses_[static_cast<std::size_t>(list_->selectedGroup)]
                   [static_cast<std::size_t>(list_->selectedRow)];
}

Result wnd_plotset::OnMessage(std::uint32_t message, WParam w, LParam l) {
  if (message == kBeforeHide) {
    bar_->Hide();
    return 0;
  }
  return InputTool::OnMessage(message, w, l);
}

// As the current tool it hears of the input panel, under which its list must not lie.
void wnd_plotset::OnFocus() {
  GetShell().SetCurrentTool(Handle());
  GetShell().SetHelpTopic(kHelpAxisSetup);
  GetDevice().Panel().Request(false);
  if (list_) GetDevice().SetFocus(list_->Handle());
}

void wnd_plotset::OnCommand(int command) {
  switch (command) {
    case kAccept:
      return Accept();
    case kCancel:
      return Cancel();
    case kHelp:
      return navigator_.ShowHelp(kHelpAxisSetup);
    default:
      return InputTool::OnCommand(command);
  }
}

void wnd_plotset::OnKeyDown(int key) {
  switch (key) {
    case VK_TAB:
      return ToggleFocus(*box_, list_->Handle());
    case VK_RETURN:
      return Accept();
    default:
      return;
  }
}

// Enter takes the row under the cursor first, and accepts when that is selected already.
bool wnd_plotset::OnListKey(int key) {
  if (key == VK_TAB) {
    ToggleFocus(*box_, list_->Handle());
    return true;
  }
  const ListRow cursor = list_->Cursor();
  const ListRow selected{list_->selectedGroup, list_->selectedRow};
  if (key != VK_RETURN || (cursor != ListRow() && cursor != selected)) return false;
  Accept();
  return true;
}

void wnd_plotset::FitList() {
  const int height = GetDevice().Panel().Visible() ? kListAbovePanel : kListAlone;
  if (GetDevice().ClientSize(list_->Handle()).height == height) return;
  list_->Move(kList.x, kList.y, kListWidth, height);
  list_->Relayout();
}

// Where the filter cannot be used the user has been told, and goes on here.
void wnd_plotset::Accept() {
  if (!request_.accept || !request_.accept(box_->GetText(), Selected())) return;
  Hide();
  GetDevice().Panel().Request(false);
}

void wnd_plotset::Cancel() { Hide(); }

void wnd_plotset::Paint(Canvas& canvas, int, int) {
  const TextView title = request_.isXAxis ? u"Axis setup - X axis" : u"Axis setup - Y axis";
  GetShell().DrawTitleStrip(canvas, large_, title, true, true);
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&small_);
  engine.SetTextColour(kBlack);
  engine.DrawText(canvas, u"Enter value filter (see help for format):", kBoxCaption.x, kBoxCaption.y);
  engine.DrawText(canvas, u"Select value to be plotted:", kListCaption.x, kListCaption.y);
}

}  // namespace orvane
