// One line of text to type into, wholly drawn by itself: the box of the calculators, the search and the plot
// settings. The text is kept as tokens too, each drawn in the look of its kind; what is a token, how a kind
// looks and which characters can be typed is the variant's, a class derived from CInputBox. The box computes
// nothing from the text: it tells its owner of every change by the callback.
//
// It is a child window of the tool that owns it. Keys that are not its own go to that window as WM_KEYDOWN,
// so that a tool can use Tab or Enter while a box has the focus; it also gets kInputBoxFocused and
// kInputBoxBlurred (framework/control_messages.h).
#pragma once

#include <bitset>
#include <functional>
#include <vector>

#include "base/colour.h"
#include "framework/font_family.h"
#include "framework/shell.h"
#include "tools/input_layout.h"
#include "tools/input_text.h"

namespace orvane {

inline constexpr TextView kInputBoxClass = u"ZelFormulaBox";

// Typing stops at this many characters; pasting goes on to the length of the buffer.
inline constexpr int kLongestTyped = 250;

// What a variant of the box is, besides its way of cutting the text into tokens.
struct InputBoxVariant {
  // The characters that can be typed. Only the low 8 bits of a character are looked up, so that a keyboard
  // of another script can type what shares them with an ASCII letter; it then shows as unknown.
  std::bitset<256> typeable;
  std::vector<KindLook> looks;  // by kind; a kind beyond them looks as kind 0
};

class CInputBox : public WindowObject {
 public:
  // Empty, with the caret at 0, in the owner's client area. Without a window, after a message box, every
  // operation on the screen does nothing.
  CInputBox(Shell& shell, WindowHandle owner, int x, int y, int width, int height, InputBoxVariant variant);
  ~CInputBox() override;
  CInputBox(const CInputBox&) = delete;
  CInputBox& operator=(const CInputBox&) = delete;

  // What the owner sets. The callback comes after every edit by keys, pen or clipboard, also by one that
  // leaves the text as it was, and never after ReplaceText.
  std::function<void(CInputBox& box)> changed;
  Colour surround = kWhite;  // of the client area outside the rounded field
  Colour field = kWhite;
  Colour outline = kBlack;
  // Face and sizes in points of the normal, lowered and raised characters, and the two spacings, as for
  // CreateFontFamily. Without a font the text has no width and does not show.
  void SetFont(TextView face, int size0, int size1, int size2, int spacing1, int spacing2);
  void SetFont(TextView face, int size) { SetFont(face, size, size, size, 0, 0); }
  const FontFamily& Font() const { return font_; }
  // Never more than this many characters, however they come; 511 unless set.
  void SetLongest(int longest);

  const Text& GetText() const { return text_.Content(); }
  // The owner's own change of the text, cut to the limit and before a character 0. Follow it by retokenise
  // and Reset.
  void ReplaceText(TextView text);
  // Rebuilds the tokens from the text: a variant cuts GetText() and hands the tokens to SetTokens.
  virtual void retokenise() = 0;
  const std::vector<InputToken>& Tokens() const { return tokens_; }
  // The text came from the owner: nothing is selected, the caret is in the text and in view, all is redrawn.
  void Reset();
  void Redraw();

  void CopySelection();
  void Paste();
  void SelectAll();
  void TakeFocus();

  int Caret() const { return text_.Caret(); }
  int SelectionStart() const { return text_.SelectionStart(); }
  int SelectionLength() const { return text_.SelectionLength(); }
  int Offset() const { return offset_; }  // client x of the beginning of the text
  bool HasFocus() const { return focused_; }
  bool CaretVisible() const { return caretVisible_; }
  WindowHandle Handle() const { return hwnd_; }

  // WindowObject
  WindowReport Describe() const override;
  std::string UnitName() const override { return {}; }

 protected:
  void SetTokens(std::vector<InputToken> tokens);
  Shell& GetShell() const { return *shell_; }

 private:
  // Whether a move of the caret extends the selection.
  enum class Extend { kByKeys = 0, kAlways = 1, kNever = 2 };

  Device& GetDevice() const { return shell_->GetDevice(); }
  void RegisterClass();
  Result WndProc(std::uint32_t message, WParam w, LParam l);
  void OnKeyDown(int key);
  bool OnControlKey(int key);
  void OnCharacter(Char character);
  void OnPenDown(Point point);
  void OnPenMove(Point point);
  void OnPenUp();
  void OnFocus();
  void OnBlur();
  void OnBlink();

  void MoveCaret(int index, Extend extend);
  void MoveCaretAndRedraw(int index, Extend extend);
  void Delete(bool forward);
  void AfterEdit();
  void RestartBlink();
  void BringCaretIntoView();
  int IndexAt(int clientX) const;
  void Measure();
  KindLook LookOf(int kind) const;

  Size ClientSize() const { return GetDevice().ClientSize(hwnd_); }
  void Paint();
  void PaintField(Canvas& canvas, const Rect& client) const;
  void PaintTokens(Canvas& canvas, const Rect& client) const;

  Shell* shell_;
  WindowHandle owner_;
  WindowHandle hwnd_ = kNoWindow;
  InputBoxVariant variant_;
  InputText text_;
  std::vector<InputToken> tokens_;
  InputLayout layout_;  // of the tokens, in the font
  FontFamily font_;
  int offset_;
  bool focused_ = false;
  bool caretVisible_ = false;
  bool stroke_ = false;  // the pen went down in the box and has not been lifted
};

}  // namespace orvane
