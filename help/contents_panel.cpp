#include "help/contents_panel.h"

#include <algorithm>

#include "framework/resource_loader.h"
#include "help/look.h"
#include "resources/images.h"

namespace orvane {

namespace {

constexpr int kRowHeight = 18;
constexpr int kFirstRow = 2;
constexpr int kIndent = 17;  // a level

// Offsets from a row's indent.
constexpr int kMarkerLeft = 2;
constexpr int kImageLeft = 20;
constexpr int kTextLeft = 44;
constexpr int kHighlightLeft = 40;
constexpr int kHighlightRight = 48;  // and the width of the text
constexpr int kWidthBeyondText = 50;
constexpr int kHighlightHeight = 17;
constexpr int kImageTop = 1;  // centres an image of 16 in its row

constexpr Rect kImageSource{0, 0, 16, 16};

// Where a tap begins to mean something else, from the indent too.
constexpr int kHeadingSelects = 34;
constexpr int kPageSelects = 19;

// Cells of the strip of images.
constexpr std::size_t kClosedHeading = 0;
constexpr std::size_t kOpenHeading = 1;
constexpr std::size_t kPage = 2;
constexpr std::size_t kOpenMarker = 3;
constexpr std::size_t kClosedMarker = 4;

constexpr Colour kHighlight = Rgb(0, 66, 138);

// A view that stands this far down shows the first row at its very top; it moves up to show the margin too.
constexpr int kMarginOnly = kFirstRow;

constexpr int TopOf(int row) { return kFirstRow + kRowHeight * row; }

}  // namespace

ContentsPanel::ContentsPanel(Shell& shell, WindowHandle parent, const HelpFile& help)
    : ZelPanel(shell, parent, false), help_(help), tree_(help.Contents()) {
  background = kWhite;
  privateBuffer = true;
  arrowStep = kRowHeight;
  CreateHelpFont(GetDevice(), Handle(), font_, false);
  images_ = LoadResourceStrip(GetDevice(), kContentsImages);
  TextEngine& engine = shell.Engine();
  engine.SelectFontFamily(&font_);
  for (const ContentsEntry& entry : help.Contents()) {
    textWidths_.push_back(engine.MeasureText(help.EntryText(entry)).width);
  }
}

int ContentsPanel::IndentOf(int entry) const { return kIndent * tree_.Level(entry); }

void ContentsPanel::StartAt(int pageId) {
  tree_.CloseAll();
  const std::vector<ContentsEntry>& entries = help_.Contents();
  const auto found = std::find_if(entries.begin(), entries.end(), [pageId](const ContentsEntry& entry) {
    return entry.isPage && entry.pageId == pageId;
  });
  tree_.Select(found == entries.end() ? 0 : static_cast<int>(found - entries.begin()));
  scrollX = scrollY = 0;
  Changed();
}

Result ContentsPanel::WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  if (message != WM_KEYDOWN) return ZelPanel::WndProc(window, message, w, l);
  if (OnKey(static_cast<int>(w))) Changed();
  return 0;
}

Result ContentsPanel::OnMessage(std::uint32_t message, WParam w, LParam l) {
  if (message != PN_TAP) return ZelPanel::OnMessage(message, w, l);
  OnTap(ContentPoint(penCurrent));
  return 0;
}

void ContentsPanel::OnTap(Point content) {
  const int row = content.y < kFirstRow ? -1 : (content.y - kFirstRow) / kRowHeight;
  if (row < 0 || row >= static_cast<int>(tree_.Rows().size())) return;
  const int entry = tree_.Rows()[static_cast<std::size_t>(row)];
  const int x = content.x - IndentOf(entry);
  if (x < 0) return;
  const bool heading = tree_.IsHeading(entry);
  if (heading && x < kHeadingSelects) {
    tree_.Toggle(entry);
    LayOut();
    if (selectionChanged) selectionChanged();
  } else if (heading || x >= kPageSelects) {
    tree_.Select(entry);
    Changed();
  }
}

// Says whether the tree has changed.
bool ContentsPanel::OnKey(int key) {
  const int rowsOnScreen = ClientSize().height / kRowHeight;
  switch (key) {
    case VK_UP:
      return tree_.Up();
    case VK_DOWN:
      return tree_.Down();
    case VK_LEFT:
      return tree_.Left();
    case VK_RIGHT:
      return tree_.Right();
    case VK_PRIOR:
      return tree_.MoveBy(1 - rowsOnScreen);
    case VK_NEXT:
      return tree_.MoveBy(rowsOnScreen - 1);
    case VK_HOME:
      return tree_.MoveBy(-tree_.Count());
    case VK_END:
      return tree_.MoveBy(tree_.Count());
    case VK_RETURN:
      return OnEnter();
    default:
      return false;
  }
}

bool ContentsPanel::OnEnter() {
  const int selected = tree_.Selected();
  if (selected < 0) return false;
  if (tree_.IsHeading(selected)) {
    tree_.Toggle(selected);
    return true;
  }
  if (entered) entered();
  return false;
}

void ContentsPanel::Changed() {
  LayOut();
  RevealSelected();
  if (selectionChanged) selectionChanged();
}

void ContentsPanel::LayOut() {
  int width = 0;
  for (const int entry : tree_.Rows()) {
    width = std::max(width, IndentOf(entry) + TextWidth(entry) + kWidthBeyondText);
  }
  contentWidth = bufferWidth = width;
  contentHeight = bufferHeight = TopOf(static_cast<int>(tree_.Rows().size()));
  // Closing a heading may leave the view below the end of the tree.
  const Size client = ClientSize();
  scrollX = std::clamp(scrollX, 0, std::max(contentWidth - client.width, 0));
  scrollY = std::clamp(scrollY, 0, std::max(contentHeight - client.height, 0));
  ResetBuffer();
  Redraw();
}

void ContentsPanel::RevealSelected() {
  const int row = tree_.RowOf(tree_.Selected());
  if (row < 0) return;
  const int top = TopOf(row);
  const int bottom = top + kRowHeight;
  const int height = ClientSize().height;
  if (top < scrollY) scrollY = top;
  if (bottom >= scrollY + height) scrollY = bottom - height;
  if (scrollY == kMarginOnly) scrollY = 0;
  Invalidate();
}

void ContentsPanel::Paint(Canvas& canvas, int left, int top, int right, int bottom) {
  canvas.FillRect({left, top, right, bottom}, kWhite);
  const int rows = static_cast<int>(tree_.Rows().size());
  const int first = std::max(top - kFirstRow, 0) / kRowHeight;
  for (int row = first; row < rows && TopOf(row) < bottom; ++row) {
    DrawRow(canvas, tree_.Rows()[static_cast<std::size_t>(row)], TopOf(row));
  }
}

void ContentsPanel::DrawRow(Canvas& canvas, int entry, int y) const {
  const int indent = IndentOf(entry);
  const auto draw = [&](std::size_t cell, int x) {
    if (cell < images_.size() && images_[cell])
      canvas.DrawImage(*images_[cell], {indent + x, y + kImageTop}, kImageSource);
  };
  const bool open = tree_.IsOpen(entry);
  if (tree_.IsHeading(entry)) {
    draw(open ? kOpenMarker : kClosedMarker, kMarkerLeft);
    draw(open ? kOpenHeading : kClosedHeading, kImageLeft);
  } else {
    draw(kPage, kImageLeft);
  }
  const bool selected = entry == tree_.Selected();
  if (selected) {
    canvas.FillRect(
        {indent + kHighlightLeft, y, indent + kHighlightRight + TextWidth(entry), y + kHighlightHeight},
        kHighlight);
  }
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&font_);
  engine.SetTextColour(selected ? kWhite : kBlack);
  engine.DrawText(canvas, help_.EntryText(help_.Contents()[static_cast<std::size_t>(entry)]),
                  indent + kTextLeft, y);
  engine.SetTextColour(kBlack);
}

}  // namespace orvane
