// The message box that is shown now: drawing, pen and keys around the queue.
#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/box_queue.h"
#include "platform/chrome.h"
#include "platform/chrome_drawing.h"
#include "platform/chrome_style.h"
#include "platform/device.h"
#include "platform/message_layout.h"
#include "platform/text_wrap.h"

namespace orvane {
namespace {

constexpr int kLineGap = 2;
constexpr int kWheelLines = 3;  // a notch of the wheel is three arrow steps

enum class BoxPart { kNothing, kText, kOk, kDismissAll };

class MessageBoxArea final : public MessageLayer {
 public:
  explicit MessageBoxArea(Device& device) : device_(device) {}

  // MessageBoxes
  void Show(WindowHandle owner, TextView text, TextView caption, MessageIcon icon) override;
  void WhenAllDismissed(std::function<void()> action) override;
  bool Open() const override { return !queue_.Empty(); }
  const MessageBoxText& Front() const override { return queue_.Front(); }
  long long Waiting() const override { return queue_.Waiting(); }
  bool OffersDismissAll() const override { return Waiting() > kPatience; }
  void Dismiss() override;
  void DismissAll() override;

  // Layer
  std::string_view Name() const override { return "message"; }
  bool Visible() const override { return Open(); }
  bool Modal() const override { return Open(); }
  Rect Bounds() const override { return Open() ? layout_.bounds : Rect{}; }
  void Paint(Canvas& canvas) override;
  void PenDown(Point point) override;
  void PenMove(Point point) override;
  void PenUp(Point point) override;
  void Wheel(Point point, int notches) override;
  bool KeyDown(int key, Modifiers modifiers) override;
  bool Character(Char) override { return Open(); }
  bool Behind() const override { return !Open() && !actions_.empty(); }
  void CatchUp() override;

 private:
  const Font& BodyFont() const { return device_.Fonts().GetFont(TextFont(kBodyPixels)); }
  const Font& BoldFont() const { return device_.Fonts().GetFont(TextFont(kTitlePixels, true)); }
  int LineHeight() const { return BodyFont().Height() + kLineGap; }
  void FrontChanged();
  void LayOut();
  void ScrollTo(std::int64_t offset);
  BoxPart PartAt(Point screenPoint) const;
  void PressPart(BoxPart part);
  void PaintCaption(Canvas& canvas) const;
  void PaintText(Canvas& canvas) const;
  void PaintButtons(Canvas& canvas) const;

  Device& device_;
  BoxQueue queue_;
  std::vector<std::function<void()>> actions_;  // for the moment when no box is left
  std::vector<WrappedLine> lines_;              // of the front box's text
  MessageLayout layout_;
  int scroll_ = 0;
  BoxPart down_ = BoxPart::kNothing;  // where the pen went down
  bool inside_ = false;               // and whether it is there now
  int lastPenY_ = 0;
  BoxPart preferred_ = BoxPart::kOk;  // what Enter and Space press
};

// --- The queue

void MessageBoxArea::Show(WindowHandle, TextView text, TextView caption, MessageIcon icon) {
  const bool first = queue_.Empty();
  queue_.Add({Text(caption), Text(text), icon});
  if (first) return FrontChanged();
  LayOut();  // "Dismiss all" may be offered now
  device_.LayerChanged(*this);
}

void MessageBoxArea::Dismiss() {
  if (!Open()) return;
  queue_.RemoveFront();
  FrontChanged();
}

void MessageBoxArea::DismissAll() {
  if (!Open()) return;
  queue_.Clear();
  FrontChanged();
}

void MessageBoxArea::FrontChanged() {
  scroll_ = 0;
  down_ = BoxPart::kNothing;
  preferred_ = BoxPart::kOk;
  lines_.clear();
  if (Open()) {
    const MessageBoxText& box = queue_.Front();
    std::vector<int> widths;
    widths.reserve(box.text.size());
    BodyFont().AppendWidths(box.text, widths);
    lines_ = WrapText(box.text, widths, MessageTextWidth(box.icon != MessageIcon::kNone));
    LayOut();
    if (device_.Trace() != nullptr) device_.Trace()->MessageBoxShown(box.caption, box.text, box.icon);
  }
  device_.LayerChanged(*this);
}

void MessageBoxArea::LayOut() {
  const int textHeight = static_cast<int>(lines_.size()) * LineHeight();
  layout_ =
      LayOutMessage(kScreenSize, textHeight, queue_.Front().icon != MessageIcon::kNone, OffersDismissAll());
  if (!OffersDismissAll()) preferred_ = BoxPart::kOk;
}

void MessageBoxArea::WhenAllDismissed(std::function<void()> action) { actions_.push_back(std::move(action)); }

// The actions run in a step, not inside the dismissal: they may end the program.
void MessageBoxArea::CatchUp() {
  if (Open() || actions_.empty()) return;
  std::vector<std::function<void()>> due;
  due.swap(actions_);
  for (const std::function<void()>& action : due) action();
}

// --- Pen

BoxPart MessageBoxArea::PartAt(Point screenPoint) const {
  const Point p{screenPoint.x - layout_.bounds.left, screenPoint.y - layout_.bounds.top};
  if (layout_.ok.Contains(p)) return BoxPart::kOk;
  if (layout_.dismissAll.Contains(p)) return BoxPart::kDismissAll;
  const Rect text{0, layout_.text.top, kBoxWidth, layout_.text.bottom};
  return text.Contains(p) ? BoxPart::kText : BoxPart::kNothing;
}

void MessageBoxArea::PenDown(Point point) {
  if (!Open()) return;
  down_ = PartAt(point);
  inside_ = true;
  lastPenY_ = point.y;
  device_.LayerChanged(*this);
}

void MessageBoxArea::PenMove(Point point) {
  if (!Open() || down_ == BoxPart::kNothing) return;
  if (down_ == BoxPart::kText) {
    ScrollTo(std::int64_t{scroll_} + lastPenY_ - point.y);
    lastPenY_ = point.y;
    return;
  }
  if (inside_ == (PartAt(point) == down_)) return;
  inside_ = !inside_;
  device_.LayerChanged(*this);
}

void MessageBoxArea::PenUp(Point point) {
  if (!Open() || down_ == BoxPart::kNothing) return;
  const BoxPart part = down_;
  down_ = BoxPart::kNothing;
  device_.LayerChanged(*this);
  if (PartAt(point) == part) PressPart(part);
}

void MessageBoxArea::PressPart(BoxPart part) {
  if (part == BoxPart::kOk) Dismiss();
  if (part == BoxPart::kDismissAll) DismissAll();
}

void MessageBoxArea::Wheel(Point, int notches) {
  if (Open()) ScrollTo(scroll_ - std::int64_t{notches} * kWheelLines * LineHeight());
}

void MessageBoxArea::ScrollTo(std::int64_t offset) {
  const int wanted = static_cast<int>(std::clamp<std::int64_t>(offset, 0, layout_.scrollLimit));
  if (wanted == scroll_) return;
  scroll_ = wanted;
  device_.LayerChanged(*this);
}

// --- Keys: all of them are the box's while it is open.

bool MessageBoxArea::KeyDown(int key, Modifiers) {
  if (!Open()) return false;
  const std::int64_t line = LineHeight();
  const std::int64_t page = layout_.text.Height() - line;
  switch (key) {
    case VK_RETURN:
    case VK_SPACE:
      PressPart(preferred_);
      break;
    case VK_ESCAPE:
      Dismiss();
      break;
    case VK_UP:
      ScrollTo(scroll_ - line);
      break;
    case VK_DOWN:
      ScrollTo(scroll_ + line);
      break;
    case VK_PRIOR:
      ScrollTo(scroll_ - page);
      break;
    case VK_NEXT:
      ScrollTo(scroll_ + page);
      break;
    case VK_HOME:
      ScrollTo(0);
      break;
    case VK_END:
      ScrollTo(layout_.scrollLimit);
      break;
    case VK_TAB:
    case VK_LEFT:
    case VK_RIGHT:
      if (!OffersDismissAll()) break;
      preferred_ = preferred_ == BoxPart::kOk ? BoxPart::kDismissAll : BoxPart::kOk;
      device_.LayerChanged(*this);
      break;
    default:
      break;
  }
  return true;
}

// --- Drawing

void MessageBoxArea::Paint(Canvas& canvas) {
  if (!Open()) return;
  const Rect whole = Rect::At({0, 0}, layout_.bounds.GetSize());
  canvas.FillRect(whole, kBarFill);
  PaintCaption(canvas);
  canvas.FrameRect(whole, kOutline);  // also sets the caption off from the title area
  DrawMessageSign(canvas, queue_.Front().icon, layout_.sign.TopLeft());
  PaintText(canvas);
  PaintButtons(canvas);
}

void MessageBoxArea::PaintCaption(Canvas& canvas) const {
  canvas.FillRect(layout_.caption, kDeepBlue);
  Rect line{kBoxPadding, 0, kBoxWidth - kBoxPadding, kBoxCaptionHeight};
  if (Waiting() > 0) {
    const Font& small = device_.Fonts().GetFont(TextFont(kBodyPixels));
    const Text hint = DecimalText(Waiting()) + u" more";
    DrawLine(canvas, hint, line, small, kCaptionHint, Align::kRight);
    line.right -= small.TextWidth(hint) + kBoxPadding;
  }
  DrawLine(canvas, queue_.Front().caption, line, BoldFont(), kWhite);
}

void MessageBoxArea::PaintText(Canvas& canvas) const {
  const TextView text = queue_.Front().text;
  const Font& font = BodyFont();
  const int lineHeight = LineHeight();
  canvas.PushClip(layout_.text);
  const auto first = static_cast<std::size_t>(scroll_ / lineHeight);
  int y = layout_.text.top - scroll_ % lineHeight + kLineGap / 2;
  for (std::size_t i = first; i < lines_.size() && y < layout_.text.bottom; ++i, y += lineHeight) {
    const TextView line = text.substr(lines_[i].first, lines_[i].last - lines_[i].first);
    if (!line.empty()) canvas.DrawRun(line, {layout_.text.left, y}, font, kText, canvas.NextTextLine());
  }
  canvas.PopClip();

  if (layout_.scrollLimit == 0) return;
  const Rect track{kBoxWidth - kBoxPadding - 3, layout_.text.top, kBoxWidth - kBoxPadding,
                   layout_.text.bottom};
  const std::int64_t whole = std::int64_t{layout_.scrollLimit} + track.Height();
  const int thumb = std::max(12, static_cast<int>(std::int64_t{track.Height()} * track.Height() / whole));
  const int top = static_cast<int>(std::int64_t{track.Height() - thumb} * scroll_ / layout_.scrollLimit);
  canvas.FillRect(track, kHairline);
  canvas.FillRect(Rect::At(track.left, track.top + top, track.Width(), thumb), kAccent);
}

void MessageBoxArea::PaintButtons(Canvas& canvas) const {
  const auto look = [this](BoxPart part) {
    return PushLook{.pressed = down_ == part && inside_, .preferred = preferred_ == part};
  };
  const Font& font = device_.Fonts().GetFont(TextFont(kBodyPixels, true));
  DrawPush(canvas, layout_.ok, u"OK", font, look(BoxPart::kOk));
  if (layout_.dismissAll.Empty()) return;
  DrawPush(canvas, layout_.dismissAll, u"Dismiss all", font, look(BoxPart::kDismissAll));
}

}  // namespace

std::unique_ptr<MessageLayer> MakeMessageLayer(Device& device) {
  return std::make_unique<MessageBoxArea>(device);
}

}  // namespace orvane
