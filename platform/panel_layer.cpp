// The input panel: an on-screen keyboard. A key works when the pen is lifted; until then the key under the
// pen is the marked one, so that a slip can be corrected by moving on.
#include "platform/chrome.h"
#include "platform/chrome_drawing.h"
#include "platform/chrome_style.h"
#include "platform/device.h"
#include "platform/keyboard_layout.h"

namespace orvane {
namespace {

constexpr int kNoKey = -1;

class KeyboardPanel final : public PanelLayer {
 public:
  KeyboardPanel(Device& device, PanelMode mode) : device_(device), mode_(mode) {}

  bool Visible() const override { return raised_; }  // of the panel and of the layer

  // InputPanel
  void Request(bool raised) override;
  void Toggle() override { Raise(!raised_); }

  // Layer
  std::string_view Name() const override { return "panel"; }
  Rect Bounds() const override { return kPanelArea; }
  void Paint(Canvas& canvas) override;
  void PenDown(Point point) override { Mark(KeyAtScreen(point), true); }
  void PenMove(Point point) override {
    if (penDown_) Mark(KeyAtScreen(point), true);
  }
  void PenUp(Point point) override;

 private:
  static int KeyAtScreen(Point p) { return PanelKeyAt({p.x - kPanelArea.left, p.y - kPanelArea.top}); }
  void Raise(bool raised);
  void Mark(int key, bool penDown);
  void PressKey(const PanelKey& key);
  void SendKey(int virtualKey, Char character);
  KeySet Set() const { return symbols_ ? KeySet::kSymbols : shift_ ? KeySet::kShifted : KeySet::kPlain; }
  bool SwitchedOn(const PanelKey& key) const;
  void PaintKey(Canvas& canvas, const PanelKey& key, bool pressed) const;
  void PaintSign(Canvas& canvas, const PanelKey& key, Colour ink) const;
  void PaintArrowKey(Canvas& canvas, const PanelKey& key, Colour ink) const;

  Device& device_;
  PanelMode mode_;
  bool raised_ = false;
  bool shift_ = false;
  bool caps_ = false;
  bool symbols_ = false;
  bool penDown_ = false;
  int marked_ = kNoKey;
};

// --- Raising and lowering

void KeyboardPanel::Request(bool raised) {
  const bool wanted =
      mode_ == PanelMode::kAlways || (mode_ == PanelMode::kAuto && device_.LastPressWasTouch());
  if (!raised || wanted) Raise(raised);
}

void KeyboardPanel::Raise(bool raised) {
  if (raised == raised_) return;
  raised_ = raised;
  shift_ = false;
  caps_ = false;
  symbols_ = false;
  Mark(kNoKey, false);
  device_.LayerChanged(*this);
  // Posted: the asking often comes from the middle of a change of focus.
  device_.Post(device_.MainWindow(), WM_SETTINGCHANGE);
}

// --- Keys

void KeyboardPanel::Mark(int key, bool penDown) {
  penDown_ = penDown;
  if (key == marked_) return;
  marked_ = key;
  device_.LayerChanged(*this);
}

void KeyboardPanel::PenUp(Point point) {
  if (!penDown_) return;
  const int key = KeyAtScreen(point);
  Mark(kNoKey, false);
  if (raised_ && key != kNoKey) PressKey(PanelKeys()[static_cast<std::size_t>(key)]);
}

void KeyboardPanel::PressKey(const PanelKey& key) {
  switch (key.action) {
    case KeyAction::kShift:
      shift_ = !shift_;
      break;
    case KeyAction::kCaps:
      caps_ = !caps_;
      break;
    case KeyAction::kSymbols:
      symbols_ = !symbols_;
      shift_ = false;
      break;
    case KeyAction::kPress:
      SendKey(key.virtualKey, key.plain);
      break;
    case KeyAction::kCharacter: {
      const Char character = KeyCharacter(key, Set(), caps_);
      SendKey(VirtualKeyOf(character), character);
      break;
    }
  }
  device_.LayerChanged(*this);
}

void KeyboardPanel::SendKey(int virtualKey, Char character) {
  const bool shifted = shift_;
  shift_ = false;
  Modifiers modifiers;
  modifiers.shift = shifted;
  if (shifted) device_.KeyDown(VK_SHIFT, modifiers);
  device_.KeyDown(virtualKey, modifiers);
  if (character != 0) device_.Character(character);
  device_.KeyUp(virtualKey, modifiers);
  if (shifted) device_.KeyUp(VK_SHIFT, {});
}

// --- Drawing

bool KeyboardPanel::SwitchedOn(const PanelKey& key) const {
  return (key.action == KeyAction::kShift && shift_) || (key.action == KeyAction::kCaps && caps_) ||
         (key.action == KeyAction::kSymbols && symbols_);
}

void KeyboardPanel::Paint(Canvas& canvas) {
  const Rect whole = Rect::At({0, 0}, kPanelArea.GetSize());
  canvas.FillRect(whole, kHairline);
  const std::span<const PanelKey> keys = PanelKeys();
  for (std::size_t i = 0; i < keys.size(); ++i) PaintKey(canvas, keys[i], static_cast<int>(i) == marked_);
  canvas.FillRect({0, 0, whole.right, 1}, kOutline);
}

void KeyboardPanel::PaintKey(Canvas& canvas, const PanelKey& key, bool pressed) const {
  // The hairline between two keys is the left and upper edge of each.
  const Rect face{key.rect.left + (key.rect.left > 0 ? 1 : 0), key.rect.top + 1, key.rect.right,
                  key.rect.bottom};
  const bool on = SwitchedOn(key);
  const bool character = key.action == KeyAction::kCharacter || key.virtualKey == VK_SPACE;
  canvas.FillRect(face, pressed ? kDeepBlue : on ? kAccent : character ? kWhite : kPanelFill);
  const Colour ink = pressed || on ? kWhite : character ? kText : kDeepBlue;
  if (key.action != KeyAction::kCharacter) return PaintSign(canvas, key, ink);
  const Char label = KeyCharacter(key, Set(), caps_);
  // Set a little high, so that descenders keep clear of the hairline below.
  const Rect line{face.left, face.top - 2, face.right, face.bottom};
  DrawLine(canvas, TextView(&label, 1), line, device_.Fonts().GetFont(TextFont(kTitlePixels)), ink,
           Align::kCentre);
}

void KeyboardPanel::PaintSign(Canvas& canvas, const PanelKey& key, Colour ink) const {
  const Rect face{key.rect.left + 1, key.rect.top + 1, key.rect.right, key.rect.bottom};
  const Font& font = device_.Fonts().GetFont(TextFont(kSmallPixels));
  if (key.action == KeyAction::kShift) return DrawLine(canvas, u"Shift", face, font, ink, Align::kCentre);
  if (key.action == KeyAction::kCaps) return DrawLine(canvas, u"Caps", face, font, ink, Align::kCentre);
  if (key.action == KeyAction::kSymbols) {
    return DrawLine(canvas, symbols_ ? u"abc" : u"°±α", face, font, ink, Align::kCentre);
  }
  const Point middle{(face.left + face.right) / 2, (face.top + face.bottom) / 2};
  switch (key.virtualKey) {
    case VK_BACK:
      canvas.FillRect({middle.x - 2, middle.y - 1, middle.x + 6, middle.y + 1}, ink);
      DrawArrow(canvas, Direction::kLeft, {middle.x - 6, middle.y - 4}, 4, ink);
      break;
    case VK_RETURN:
      canvas.FillRect({middle.x + 5, middle.y - 5, middle.x + 7, middle.y + 1}, ink);
      canvas.FillRect({middle.x - 3, middle.y - 1, middle.x + 5, middle.y + 1}, ink);
      DrawArrow(canvas, Direction::kLeft, {middle.x - 7, middle.y - 4}, 4, ink);
      break;
    case VK_SPACE:
      canvas.FillRect({middle.x - 20, middle.y + 3, middle.x + 20, middle.y + 4}, kHairline);
      break;
    default:
      PaintArrowKey(canvas, key, ink);
      break;
  }
}

void KeyboardPanel::PaintArrowKey(Canvas& canvas, const PanelKey& key, Colour ink) const {
  const Point middle{(key.rect.left + key.rect.right + 1) / 2, (key.rect.top + key.rect.bottom + 1) / 2};
  switch (key.virtualKey) {
    case VK_LEFT:
      DrawArrow(canvas, Direction::kLeft, {middle.x - 2, middle.y - 4}, 4, ink);
      break;
    case VK_RIGHT:
      DrawArrow(canvas, Direction::kRight, {middle.x - 2, middle.y - 4}, 4, ink);
      break;
    case VK_UP:
      DrawArrow(canvas, Direction::kUp, {middle.x - 4, middle.y - 2}, 4, ink);
      break;
    case VK_DOWN:
      DrawArrow(canvas, Direction::kDown, {middle.x - 4, middle.y - 2}, 4, ink);
      break;
    default:
      break;
  }
}

}  // namespace

std::unique_ptr<PanelLayer> MakePanelLayer(Device& device, PanelMode mode) {
  return std::make_unique<KeyboardPanel>(device, mode);
}

}  // namespace orvane
