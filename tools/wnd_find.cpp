#include "tools/wnd_find.h"

#include "framework/page_keys.h"
#include "resources/help_pages.h"

namespace orvane {

namespace {

constexpr TextView kTitle = u"Find element";

constexpr Rect kBox = Rect::At(8, 48, 224, 24);
constexpr Colour kBoxSurround = Rgb(230, 242, 255);
constexpr Point kList{7, 96};
constexpr int kListWidth = 225;
constexpr int kListAbovePanel = 73;
constexpr int kListAlone = 163;
constexpr Point kBoxLabel{8, 30};
constexpr Point kListLabel{8, 76};

// The box's copy and paste. No button stands for them: the keys run them.
constexpr int kCopy = 8820;
constexpr int kPaste = 8821;

NamesOfElements NamesIn(const ElementsDatabase& elements) {
  NamesOfElements names;
  for (int element = 0; element < kSearchedElements; ++element) {
    names[static_cast<std::size_t>(element)] = {ValueOf(elements.Symbol(), element),
                                                ValueOf(elements.Name(), element)};
  }
  return names;
}

}  // namespace

wnd_find::wnd_find(Shell& shell, const ElementsDatabase& elements, Navigator& navigator)
    : InputTool(shell, kTitle, {.copy = kCopy, .paste = kPaste, .close = 0}), names_(NamesIn(elements)) {
  CreateFontFamily(GetDevice(), Handle(), title_, u"Tahoma", 10, false, false);
  CreateFontFamily(GetDevice(), Handle(), labels_, u"Tahoma", 9, false, false);

  box_ = std::make_unique<PlainBox>(shell, Handle(), kBox.left, kBox.top, kBox.Width(), kBox.Height());
  box_->SetFont(u"Tahoma", 10);
  box_->surround = kBoxSurround;
  box_->changed = [this](CInputBox&) { Search(); };

  list_ = MakeWindow<FindList>(shell, Handle(), names_, navigator);
  list_->focused = [this] { OnListFocused(); };
  SetListHeight(kListAbovePanel);
  list_->Show();
  Search();
}

void wnd_find::OnBeforeShow() {
  GetShell().SetHelpTopic(kHelpFind);
  GetShell().SetCurrentTool(Handle());
}

void wnd_find::OnFocus() {
  if (box_) box_->TakeFocus();
  GetShell().SetCurrentTool(Handle());
  // What lay over the search was current while it lowered the panel, and was told of it in its place.
  if (list_) FitList();
}

// From the box, which has no use for them, and Tab also from the list.
void wnd_find::OnKeyDown(int key) {
  switch (key) {
    case VK_TAB:
      return ToggleFocus(*box_, list_->Handle());
    case VK_RETURN:
      return OpenFirstMatch();
    case VK_UP:
    case VK_DOWN:
      if (GetDevice().CurrentModifiers().control) list_->MoveCursor(key == VK_UP ? -1 : 1);
      return;
    case VK_PRIOR:
    case VK_NEXT:
      ScrollByPageKey(*list_, GetDevice(), key, FindList::kRowHeight);
      return;
    default:
      return;
  }
}

// Or the row that the cursor stands on.
void wnd_find::OpenFirstMatch() { list_->Open(list_->Cursor() == FindList::kNoRow ? 0 : list_->Cursor()); }

void wnd_find::OnListFocused() {
  GetDevice().Panel().Request(false);
  SetListHeight(kListAlone);
}

void wnd_find::Search() { list_->SetMatches(FindElements(box_->GetText(), names_)); }

void wnd_find::FitList() { SetListHeight(GetDevice().Panel().Visible() ? kListAbovePanel : kListAlone); }

void wnd_find::SetListHeight(int height) {
  if (list_->IsVisible() && GetDevice().ClientSize(list_->Handle()).height == height) return;
  const bool shorter = height < GetDevice().ClientSize(list_->Handle()).height;
  list_->Move(kList.x, kList.y, kListWidth, height);
  if (shorter) list_->BringCursorIntoView();
}

void wnd_find::Paint(Canvas& canvas, int, int) {
  GetShell().DrawTitleStrip(canvas, title_, kTitle, true, true);
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&labels_);
  engine.SetTextColour(kBlack);
  engine.DrawText(canvas, u"Enter element number, symbol or name:", kBoxLabel.x, kBoxLabel.y);
  engine.DrawText(canvas, u"Tap element to view info:", kListLabel.x, kListLabel.y);
}

}  // namespace orvane
