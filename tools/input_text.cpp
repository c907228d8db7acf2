#include "tools/input_text.h"

#include <algorithm>

namespace orvane {

namespace {

bool SplitsPair(TextView text, int index) {
  return index > 0 && IsSurrogatePairAt(text, static_cast<std::size_t>(index - 1));
}

}  // namespace

TextView FittingPart(TextView text, int room) {
  text = text.substr(0, text.find(u'\0'));
  int length = std::clamp(room, 0, static_cast<int>(std::min<std::size_t>(text.size(), kLongestInput)));
  if (SplitsPair(text, length)) --length;
  return text.substr(0, static_cast<std::size_t>(length));
}

TextView InputText::Selected() const {
  return TextView(text_).substr(static_cast<std::size_t>(selectionStart_),
                                static_cast<std::size_t>(selectionLength_));
}

void InputText::SetLongest(int longest) {
  longest_ = std::clamp(longest, 0, kLongestInput);
  Replace(Text(text_));
}

void InputText::Replace(TextView text) {
  text_ = FittingPart(text, longest_);
  KeepInText();
}

void InputText::KeepInText() {
  caret_ = Bounded(caret_);
  const int start = Bounded(selectionStart_);
  const int end = Bounded(selectionStart_ + selectionLength_);
  Select(start, end);
}

int InputText::Bounded(int index) const {
  index = std::clamp(index, 0, Length());
  return SplitsPair(text_, index) ? index - 1 : index;
}

int InputText::Before() const { return Bounded(caret_ - 1); }

int InputText::Behind() const {
  const bool pair = IsSurrogatePairAt(text_, static_cast<std::size_t>(caret_));
  return Bounded(caret_ + (pair ? 2 : 1));
}

void InputText::MoveCaret(int index, bool extend) {
  index = Bounded(index);
  if (!extend) {
    ClearSelection();
  } else {
    const int end = selectionStart_ + selectionLength_;
    const int anchor = !HasSelection() ? caret_ : caret_ == end ? selectionStart_ : end;
    Select(std::min(anchor, index), std::max(anchor, index));
  }
  caret_ = index;
}

void InputText::SelectAll() {
  Select(0, Length());
  caret_ = Length();
}

void InputText::ClearSelection() { selectionStart_ = selectionLength_ = 0; }

void InputText::Select(int from, int to) {
  if (from >= to) return ClearSelection();
  selectionStart_ = from;
  selectionLength_ = to - from;
}

void InputText::DeleteSelection() {
  if (!HasSelection()) return;
  text_.erase(static_cast<std::size_t>(selectionStart_), static_cast<std::size_t>(selectionLength_));
  caret_ = selectionStart_;
  ClearSelection();
}

void InputText::Insert(TextView text) {
  DeleteSelection();
  const TextView part = FittingPart(text, longest_ - Length());
  text_.insert(static_cast<std::size_t>(caret_), part);
  // A half that came from outside may have made a pair with its neighbour.
  caret_ = Bounded(caret_ + static_cast<int>(part.size()));
}

bool InputText::DeleteBackward() {
  if (!HasSelection()) Select(Before(), caret_);
  if (!HasSelection()) return false;
  DeleteSelection();
  caret_ = Bounded(caret_);
  return true;
}

bool InputText::DeleteForward() {
  if (!HasSelection()) Select(caret_, Behind());
  if (!HasSelection()) return false;
  DeleteSelection();
  caret_ = Bounded(caret_);
  return true;
}

}  // namespace orvane
