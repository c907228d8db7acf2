// The problems that a command is to solve, one after the other: its words, or without any the lines of
// standard input. However long the input is, one line of it is held at a time.
#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "cli/session.h"

namespace orvane {

// Cuts a stream into lines. A last line without a line feed is one.
class LineReader {
 public:
  // More than any problem takes; what is longer is no problem but an accident.
  static constexpr std::size_t kLongestLine = 16384;

  // `idle` is called before the stream is asked for more, which may take as long as a person takes to type.
  LineReader(std::istream& in, std::ostream& idle) : in_(in), idle_(idle) {}

  // The next line, without its line feed, or false at the end. The line stays valid until the next call. A
  // line that is too long is read over: it comes back empty, with `tooLong` set.
  bool Next(std::string_view& line, bool& tooLong);

  // Whether the end came because the stream could not be read.
  bool Failed() const { return in_.bad(); }

 private:
  // Gets more of the stream behind what is left in the buffer; false at the end.
  bool Fill();

  std::istream& in_;
  std::ostream& idle_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

struct Problem {
  Text text;
  // Why the text cannot even be read ("not UTF-8"); empty when it can.
  std::string_view error;
  // The line of standard input that it is, 0 for a word of the command line.
  std::size_t line = 0;
};

class ProblemSource {
 public:
  // The words outlive the source.
  ProblemSource(Session& session, const std::vector<std::string>& words)
      : session_(session), words_(words), lines_(session.in, session.out) {}

  // False when there are no more, or when answers can no longer be written: an input without an end would
  // otherwise be read for nobody. An input that cannot be read is told, and has no more. The problem's memory
  // is used again.
  bool Next(Problem& problem);

 private:
  Session& session_;
  const std::vector<std::string>& words_;
  std::size_t nextWord_ = 0;
  LineReader lines_;
  std::size_t lineNumber_ = 0;
};

// The longest side of an equation and the longest formula, in characters: what the hand-held's boxes hold.
inline constexpr std::size_t kLongestSide = 511;
inline constexpr std::string_view kTooLong = "more than 511 characters";

// Tells a person what went wrong with a problem.
void Fail(Session& session, const Problem& problem, std::string_view what);

// A message of several lines as one.
std::string OnOneLine(TextView styled);

}  // namespace orvane
