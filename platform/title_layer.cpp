// The title area: the title of the tool in front, and the box that closes the program.
#include "base/message_reporter.h"
#include "platform/chrome.h"
#include "platform/chrome_drawing.h"
#include "platform/chrome_style.h"
#include "platform/device.h"
#include "platform/front_title.h"

namespace orvane {
namespace {

constexpr int kTextLeft = 8;
constexpr int kBoxWidth = 26;  // a square at the right end: the whole of it takes the pen
constexpr int kCrossSize = 10;
constexpr Rect kCloseBox{kTitleArea.right - kBoxWidth, kTitleArea.top, kTitleArea.right, kTitleArea.bottom};

class TitleArea final : public TitleLayer {
 public:
  explicit TitleArea(Device& device) : device_(device) {}

  std::string_view Name() const override { return "title"; }
  bool Visible() const override { return true; }
  Rect Bounds() const override { return kTitleArea; }

  void Paint(Canvas& canvas) override {
    canvas.FillRect(Rect::At({0, 0}, kTitleArea.GetSize()), kDeepBlue);
    const Font& font = device_.Fonts().GetFont(TextFont(kTitlePixels, true));
    const Rect line{kTextLeft, 0, kCloseBox.left - 4, kTitleArea.Height()};
    DrawLine(canvas, shown_, line, font, kWhite);

    const bool pressed = armed_ && inside_;
    if (pressed) canvas.FillRect(kCloseBox, kAccent);
    const int inset = (kBoxWidth - kCrossSize) / 2;
    DrawCross(canvas, kCloseBox.Inset(inset), kWhite, 2);
  }

  void PenDown(Point point) override {
    armed_ = kCloseBox.Contains(point);
    inside_ = armed_;
    if (armed_) device_.LayerChanged(*this);
  }

  void PenMove(Point point) override {
    if (!armed_ || inside_ == kCloseBox.Contains(point)) return;
    inside_ = !inside_;
    device_.LayerChanged(*this);
  }

  void PenUp(Point point) override {
    if (!armed_) return;
    armed_ = false;
    device_.LayerChanged(*this);
    if (kCloseBox.Contains(point)) device_.CloseFromOutside();
  }

  bool Behind() const override { return FrontTitle(device_) != shown_; }

  void CatchUp() override {
    Text title = FrontTitle(device_);
    if (title == shown_) return;
    shown_ = std::move(title);
    device_.LayerChanged(*this);
  }

 private:
  Device& device_;
  Text shown_{kProgramName};
  bool armed_ = false;   // the pen went down in the close box and is still down
  bool inside_ = false;  // and is in it now
};

}  // namespace

std::unique_ptr<TitleLayer> MakeTitleLayer(Device& device) { return std::make_unique<TitleArea>(device); }

}  // namespace orvane
