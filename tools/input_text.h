// The text of an input box with its caret and its selection: what keys, pen and clipboard do to it, without a
// window. Positions count 16-bit units; a position between the halves of a surrogate pair is never taken.
#pragma once

#include "base/text.h"

namespace orvane {

// The buffer of an input box holds this much.
inline constexpr int kLongestInput = 511;

class InputText {
 public:
  explicit InputText(int longest = kLongestInput) : longest_(longest) {}

  const Text& Content() const { return text_; }
  int Length() const { return static_cast<int>(text_.size()); }
  int Caret() const { return caret_; }
  // Start 0 when nothing is selected.
  int SelectionStart() const { return selectionStart_; }
  int SelectionLength() const { return selectionLength_; }
  bool HasSelection() const { return selectionLength_ > 0; }
  TextView Selected() const;

  // At most `longest` units from now on; what the text has beyond that is cut off.
  void SetLongest(int longest);
  // Another text, cut to the limit and before a character 0. Caret and selection stay where they are as far
  // as the new text goes.
  void Replace(TextView text);

  // The nearest position that a caret may take, from any number.
  int Bounded(int index) const;
  // The caret goes to a bounded position. Without `extend` nothing is selected then; with it the selection
  // reaches from its end that was not at the caret, or from the caret, to the new position.
  void MoveCaret(int index, bool extend);
  void SelectAll();
  void ClearSelection();

  // The selection is replaced by as much of the text as the limit allows; the caret stands behind it.
  void Insert(TextView text);
  // Removes the selection; without one the character before or at the caret. False when there is none.
  bool DeleteBackward();
  bool DeleteForward();

  // The positions one character before and behind the caret, bounded.
  int Before() const;
  int Behind() const;

 private:
  void Select(int from, int to);
  void DeleteSelection();
  void KeepInText();

  Text text_;
  int longest_;
  int caret_ = 0;
  int selectionStart_ = 0;
  int selectionLength_ = 0;
};

// As much of the text as fits into `room` units and stands before a character 0, never half a pair at its
// end.
TextView FittingPart(TextView text, int room);

}  // namespace orvane
