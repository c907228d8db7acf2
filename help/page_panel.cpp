#include "help/page_panel.h"

#include <algorithm>
#include <cstdint>

#include "help/look.h"

namespace orvane {

namespace {

constexpr int kFirstTop = 5;  // of the first paragraph
constexpr int kGap = 10;      // below each paragraph, and below the last link
// A page without links ends this much nearer to its last paragraph than the gap.
constexpr int kNoLinksLess = 5;
constexpr Colour kLinkColour = Rgb(0, 0, 255);

// No page reaches down here. It keeps coordinates well inside an int, whatever a damaged file holds.
constexpr std::int64_t kFarthest = 1'000'000'000;
constexpr Rect kTextRect{kHelpTextLeft, 0, kHelpTextRight, static_cast<int>(kFarthest)};

int Clamped(std::int64_t y) { return static_cast<int>(std::min(y, kFarthest)); }

}  // namespace

HelpPagePanel::HelpPagePanel(Shell& shell, WindowHandle parent) : ZelPanel(shell, parent, false) {
  background = kHelpBackground;
  privateBuffer = true;
  contentHeight = 0;
  CreateHelpFont(GetDevice(), Handle(), textFont_, false);
  CreateHelpFont(GetDevice(), Handle(), linkFont_, true);
}

void HelpPagePanel::SetPage(const HelpFile& help, std::shared_ptr<const HelpPageBody> body) {
  body_ = std::move(body);
  LayOut(help);
  scrollX = scrollY = 0;
  contentWidth = bufferWidth = ClientSize().width;
  contentHeight = bufferHeight = layout_.height;
  ResetBuffer();
  Redraw();
}

// Long pages are measured here, once, and not at each painting.
void HelpPagePanel::LayOut(const HelpFile& help) {
  layout_ = {};
  if (!body_) return;
  TextEngine& engine = GetShell().Engine();
  std::int64_t y = kFirstTop;
  engine.SelectFontFamily(&textFont_);
  for (const Text& paragraph : body_->paragraphs) {
    layout_.paragraphTops.push_back(Clamped(y));
    y += engine.MeasureText(paragraph, &kTextRect).height;
    layout_.paragraphBottoms.push_back(Clamped(y));
    y += kGap;
  }
  engine.SelectFontFamily(&linkFont_);
  for (const int page : body_->links) {
    HelpLink link{page, {}, {}};
    if (page != kNoPage) link.title = help.Pages()[static_cast<std::size_t>(page)].title;
    const Size size = engine.MeasureText(link.title);
    if (page != kNoPage) link.rect = Rect::At(kHelpTextLeft, Clamped(y), size.width, size.height);
    y += size.height;
    layout_.links.push_back(std::move(link));
  }
  y += layout_.links.empty() ? -kNoLinksLess : kGap;
  layout_.height = Clamped(y);
}

Result HelpPagePanel::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case PN_TAP:
      OnTap(ContentPoint(penCurrent));
      return 0;
    case PN_KEYDOWN:
      OnKey(static_cast<int>(w));
      return 0;
    default:
      return ZelPanel::OnMessage(message, w, l);
  }
}

void HelpPagePanel::OnTap(Point content) {
  for (const HelpLink& link : layout_.links) {
    if (!link.rect.Contains(content)) continue;
    // The answer may replace the layout.
    const int page = link.page;
    if (linkTapped) linkTapped(page);
    return;
  }
}

// The arrows are the panel's own.
void HelpPagePanel::OnKey(int key) {
  // A screenful leaves the line that was last, or first, for the eye to find its place again.
  const int screenful = ClientSize().height - textFont_.lineHeight;
  switch (key) {
    case VK_PRIOR:
      return ScrollBy(0, -screenful);
    case VK_NEXT:
      return ScrollBy(0, screenful);
    case VK_HOME:
      return ScrollBy(0, -contentHeight);
    case VK_END:
      return ScrollBy(0, contentHeight);
    default:
      if (keyPressed) keyPressed(key);
  }
}

void HelpPagePanel::Paint(Canvas& canvas, int left, int top, int right, int bottom) {
  const Rect part{left, top, right, bottom};
  canvas.FillRect(part, kHelpBackground);
  TextEngine& engine = GetShell().Engine();
  engine.SetTextColour(kBlack);
  engine.SelectFontFamily(&textFont_);
  for (std::size_t i = 0; body_ && i < layout_.paragraphTops.size(); ++i) {
    if (layout_.paragraphBottoms[i] <= top || layout_.paragraphTops[i] >= bottom) continue;
    engine.DrawText(canvas, body_->paragraphs[i], kHelpTextLeft, layout_.paragraphTops[i], &kTextRect);
  }
  engine.SetTextColour(kLinkColour);
  engine.SelectFontFamily(&linkFont_);
  for (const HelpLink& link : layout_.links) {
    if (Intersect(link.rect, part).Empty()) continue;
    engine.DrawText(canvas, link.title, link.rect.left, link.rect.top);
  }
  engine.SetTextColour(kBlack);
}

}  // namespace orvane
