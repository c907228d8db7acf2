#include "cli/problem_source.h"

#include <algorithm>

#include "cli/plain_text.h"

namespace orvane {

namespace {

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

bool LineReader::Fill() {
  constexpr std::size_t kBufferSize = 4 * kLongestLine;
  if (buffer_.empty()) buffer_.resize(kBufferSize);
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
  end_ -= begin_;
  begin_ = 0;
  // What has been answered is shown before anybody waits for more.
  std::streambuf& source = *in_.rdbuf();
  if (source.in_avail() <= 0) idle_.flush();
  // Asked through the stream, which keeps a failure of the system (a folder, a closed descriptor) to itself.
  if (std::istream::traits_type::eq_int_type(in_.peek(), std::istream::traits_type::eof())) return false;
  const std::streamsize room = static_cast<std::streamsize>(kBufferSize - end_);
  const std::streamsize ready = std::clamp<std::streamsize>(source.in_avail(), 1, room);
  const std::streamsize got = source.sgetn(buffer_.data() + end_, ready);
  end_ += static_cast<std::size_t>(std::max<std::streamsize>(got, 0));
  return got > 0;
}

bool LineReader::Next(std::string_view& line, bool& tooLong) {
  tooLong = false;
  std::size_t searched = begin_;
  for (;;) {
    const auto from = buffer_.begin() + static_cast<std::ptrdiff_t>(searched);
    const auto to = buffer_.begin() + static_cast<std::ptrdiff_t>(end_);
    const auto feed = std::find(from, to, '\n');
    const std::size_t length = static_cast<std::size_t>(feed - buffer_.begin()) - begin_;
    tooLong = tooLong || length > kLongestLine;
    if (feed != to) {
      line = tooLong ? std::string_view() : std::string_view(buffer_.data() + begin_, length);
      begin_ += length + 1;
      return true;
    }
    if (tooLong) begin_ = end_;
    searched = end_ - begin_;
    if (Fill()) continue;
    if (begin_ == end_ && !tooLong) return false;
    line = std::string_view(buffer_.data() + begin_, end_ - begin_);
    begin_ = end_;
    return true;
  }
}

bool ProblemSource::Next(Problem& problem) {
  if (!session_.out) return false;
  std::string_view bytes;
  bool tooLong = false;
  if (!words_.empty()) {
    if (nextWord_ == words_.size()) return false;
    bytes = words_[nextWord_++];
  } else {
    if (!lines_.Next(bytes, tooLong)) {
      if (lines_.Failed()) session_.Fail("standard input could not be read");
      return false;
    }
    problem.line = ++lineNumber_;
  }
  problem.error = {};
  if (IsAscii(bytes)) {
    problem.text.assign(bytes.begin(), bytes.end());
  } else {
    problem.text = FromUtf8(bytes);
    if (!IsValidUtf8(bytes)) problem.error = "not UTF-8";
  }
  if (tooLong) problem.error = kTooLong;
  return true;
}

void Fail(Session& session, const Problem& problem, std::string_view what) {
  // A long text says nothing that its beginning does not.
  constexpr std::size_t kShown = 60;
  std::string message;
  if (problem.line > 0) message += "line " + std::to_string(problem.line) + ": ";
  if (!problem.text.empty()) {
    message += '"' + PlainText(TextView(problem.text).substr(0, kShown));
    message += problem.text.size() > kShown ? "...\": " : "\": ";
  }
  session.Fail(message.append(what));
}

std::string OnOneLine(TextView styled) {
  std::string line;
  for (const char c : PlainText(styled)) {
    if (c != '\n') {
      line += c;
    } else if (!line.empty() && line.back() != ' ') {
      line += ' ';
    }
  }
  return line;
}

}  // namespace orvane
