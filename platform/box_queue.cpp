#include "platform/box_queue.h"

namespace orvane {
namespace {

std::size_t Charge(const MessageBoxText& box) {
  return box.caption.size() + box.text.size() + kBoxEntryCharge;
}

bool Equal(const MessageBoxText& a, const MessageBoxText& b) {
  return a.icon == b.icon && a.caption == b.caption && a.text == b.text;
}

void Cut(Text& text) {
  if (text.size() <= kLongestBoxText) return;
  text.resize(kLongestBoxText);
  if (IsHighSurrogate(text.back())) text.pop_back();
  text += u"...";
}

}  // namespace

void BoxQueue::Add(MessageBoxText box) {
  Cut(box.caption);
  Cut(box.text);
  ++total_;
  if (!runs_.empty() && Equal(runs_.back().box, box)) {
    ++runs_.back().count;
    return;
  }
  if (!runs_.empty() && charge_ + Charge(box) > kBoxTextBudget) {
    box = {Text(kProgramName), Text(kLostBoxText), MessageIcon::kExclamation};
    if (Equal(runs_.back().box, box)) {
      ++runs_.back().count;
      return;
    }
  }
  charge_ += Charge(box);
  runs_.push_back({std::move(box), 1});
}

void BoxQueue::RemoveFront() {
  if (runs_.empty()) return;
  --total_;
  Run& front = runs_.front();
  if (--front.count > 0) return;
  charge_ -= Charge(front.box);
  runs_.pop_front();
}

void BoxQueue::Clear() {
  runs_.clear();
  total_ = 0;
  charge_ = 0;
}

}  // namespace orvane
