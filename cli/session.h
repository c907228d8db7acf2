// What the commands of orvane-calc have in common: where the data files lie, where problems come from, where
// answers and errors go, and the exit status.
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <string_view>

namespace orvane {

// The exit status is part of the program's interface.
inline constexpr int kAllAnswered = 0;
inline constexpr int kSomeUnanswered = 1;
inline constexpr int kWrongUsage = 2;

struct Session {
  std::string dataFolder;  // ends with its separator
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  int status = kAllAnswered;

  // Tells a person why a problem has no answer; the program goes on with the next one.
  void Fail(std::string_view message) {
    err << "orvane-calc: " << message << '\n';
    status = kSomeUnanswered;
  }
};

}  // namespace orvane
