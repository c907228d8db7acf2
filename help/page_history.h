// The pages that led to the present one: a ring of 100 places, of which 99 can be gone back to.
#pragma once

#include <array>

namespace orvane {

class HelpHistory {
 public:
  static constexpr int kPlaces = 100;

  // The page (by its index) that is being left. When the ring is full the oldest one is forgotten.
  void Record(int page) {
    pages_[static_cast<std::size_t>(write_)] = page;
    write_ = Next(write_);
    if (write_ == oldest_) oldest_ = Next(oldest_);
  }
  bool CanGoBack() const { return write_ != oldest_; }
  // Takes the page that was left last; only while CanGoBack.
  int GoBack() {
    write_ = (write_ + kPlaces - 1) % kPlaces;
    return pages_[static_cast<std::size_t>(write_)];
  }

 private:
  static constexpr int Next(int place) { return (place + 1) % kPlaces; }

  std::array<int, kPlaces> pages_{};
  int write_ = 0;   // where the next page goes
  int oldest_ = 0;  // the ring is empty when both are equal
};

}  // namespace orvane
