// The dialogs. The one shown last is drawn and has the input; when it closes the one below stands there
// again.
#include <algorithm>
#include <map>

#include "platform/chrome.h"
#include "platform/chrome_drawing.h"
#include "platform/chrome_style.h"
#include "platform/device.h"

namespace orvane {
namespace {

struct OpenDialog {
  DialogTemplate shape;
  bool modal = false;
};

class DialogArea final : public DialogLayer {
 public:
  explicit DialogArea(Device& device) : device_(device) {}

  // Dialogs
  DialogHandle Create(const DialogTemplate& shape) override { return Add(shape, false); }
  void Show(DialogHandle dialog, bool visible) override;
  void Destroy(DialogHandle dialog) override;
  DialogHandle ShowModal(const DialogTemplate& shape) override;
  std::string FrontName() const override { return Front() == nullptr ? std::string() : Front()->shape.name; }
  bool ModalOpen() const override { return Modal(); }
  bool DismissFront() override;

  // Layer
  std::string_view Name() const override { return "dialog"; }
  bool Visible() const override { return Front() != nullptr; }
  bool Modal() const override { return Front() != nullptr && Front()->modal; }
  Rect Bounds() const override { return Front() == nullptr ? Rect{} : Front()->shape.rect; }
  void Paint(Canvas& canvas) override;
  void PenDown(Point point) override;
  void PenMove(Point point) override;
  void PenUp(Point point) override;
  bool KeyDown(int key, Modifiers modifiers) override;
  bool Character(Char) override { return Modal(); }

 private:
  static constexpr int kNoButton = -1;

  DialogHandle Add(const DialogTemplate& shape, bool modal);
  const OpenDialog* Front() const;
  int ButtonAt(Point screenPoint) const;
  void FrontMayHaveChanged();
  void PaintLabel(Canvas& canvas, const DialogLabel& label) const;

  Device& device_;
  std::map<DialogHandle, OpenDialog> dialogs_;
  std::vector<DialogHandle> shown_;  // the last one is in front
  DialogHandle last_ = kNoDialog;    // handles are never used twice
  int down_ = kNoButton;             // the front dialog's button that the pen went down on
  bool inside_ = false;
};

DialogHandle DialogArea::Add(const DialogTemplate& shape, bool modal) {
  dialogs_.emplace(++last_, OpenDialog{shape, modal});
  return last_;
}

const OpenDialog* DialogArea::Front() const {
  return shown_.empty() ? nullptr : &dialogs_.find(shown_.back())->second;
}

void DialogArea::FrontMayHaveChanged() {
  down_ = kNoButton;
  device_.LayerChanged(*this);
}

void DialogArea::Show(DialogHandle dialog, bool visible) {
  if (!dialogs_.contains(dialog)) return;
  std::erase(shown_, dialog);
  if (visible) shown_.push_back(dialog);
  FrontMayHaveChanged();
}

void DialogArea::Destroy(DialogHandle dialog) {
  if (dialogs_.erase(dialog) == 0) return;
  std::erase(shown_, dialog);
  FrontMayHaveChanged();
}

DialogHandle DialogArea::ShowModal(const DialogTemplate& shape) {
  const DialogHandle dialog = Add(shape, true);
  Show(dialog, true);
  return dialog;
}

// A message box above the dialog has all input.
bool DialogArea::DismissFront() {
  if (!Modal() || device_.Boxes().Open()) return false;
  Destroy(shown_.back());
  return true;
}

// --- Pen and keys

int DialogArea::ButtonAt(Point screenPoint) const {
  const OpenDialog* front = Front();
  if (front == nullptr) return kNoButton;
  const Point p{screenPoint.x - front->shape.rect.left, screenPoint.y - front->shape.rect.top};
  const std::vector<DialogPush>& buttons = front->shape.buttons;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    if (buttons[i].rect.Contains(p)) return static_cast<int>(i);
  }
  return kNoButton;
}

void DialogArea::PenDown(Point point) {
  down_ = ButtonAt(point);
  inside_ = true;
  if (down_ != kNoButton) device_.LayerChanged(*this);
}

void DialogArea::PenMove(Point point) {
  if (down_ == kNoButton || inside_ == (ButtonAt(point) == down_)) return;
  inside_ = !inside_;
  device_.LayerChanged(*this);
}

void DialogArea::PenUp(Point point) {
  const int button = down_;
  if (button == kNoButton) return;
  down_ = kNoButton;
  device_.LayerChanged(*this);
  if (ButtonAt(point) == button) DismissFront();
}

bool DialogArea::KeyDown(int key, Modifiers) {
  if (!Modal()) return false;
  if (key == VK_RETURN || key == VK_ESCAPE) DismissFront();
  return true;
}

// --- Drawing

void DialogArea::Paint(Canvas& canvas) {
  const OpenDialog* front = Front();
  if (front == nullptr) return;
  const DialogTemplate& shape = front->shape;
  canvas.Rectangle(Rect::At({0, 0}, shape.rect.GetSize()), kOutline, shape.background);
  for (const DialogPicture& picture : shape.pictures) {
    if (picture.image == nullptr) continue;
    canvas.DrawImage(*picture.image, picture.rect.TopLeft(), Rect::At({0, 0}, picture.image->GetSize()));
  }
  for (const DialogLabel& label : shape.labels) PaintLabel(canvas, label);
  const Font& font = device_.Fonts().GetFont(TextFont(kBodyPixels, true));
  for (std::size_t i = 0; i < shape.buttons.size(); ++i) {
    const PushLook look{.pressed = down_ == static_cast<int>(i) && inside_, .preferred = i == 0};
    DrawPush(canvas, shape.buttons[i].rect, shape.buttons[i].label, font, look);
  }
}

// One line from the top of its rectangle, clipped to its sides. Descenders and underscores may reach out
// below.
void DialogArea::PaintLabel(Canvas& canvas, const DialogLabel& label) const {
  if (label.text.empty()) return;
  const FontSpec spec{label.face, PixelsFromPoints(label.points), label.bold, false, false};
  const Font& font = device_.Fonts().GetFont(spec);
  const int x = AlignedLeft(label.rect, font.TextWidth(label.text), label.align);
  canvas.PushClip({label.rect.left, label.rect.top, label.rect.right, label.rect.bottom + font.Descent()});
  canvas.DrawRun(label.text, {x, label.rect.top}, font, label.colour, canvas.NextTextLine());
  canvas.PopClip();
}

}  // namespace

std::unique_ptr<DialogLayer> MakeDialogLayer(Device& device) { return std::make_unique<DialogArea>(device); }

}  // namespace orvane
