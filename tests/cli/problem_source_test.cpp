#include "cli/problem_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> Lines(const std::string& input) {
  std::istringstream in(input);
  std::ostringstream out;
  LineReader reader(in, out);
  std::vector<std::string> lines;
  std::string_view line;
  bool tooLong = false;
  while (reader.Next(line, tooLong)) lines.push_back(tooLong ? "(too long)" : std::string(line));
  return lines;
}

TEST(LineReader, CutsAtLineFeeds) {
  EXPECT_THAT(Lines(""), ElementsAre());
  EXPECT_THAT(Lines("\n"), ElementsAre(""));
  EXPECT_THAT(Lines("a"), ElementsAre("a"));
  EXPECT_THAT(Lines("a\n"), ElementsAre("a"));
  EXPECT_THAT(Lines("a\n\nb\r\n c"), ElementsAre("a", "", "b\r", " c"));
  EXPECT_THAT(Lines(std::string("a\0b\n", 4)), ElementsAre(std::string("a\0b", 3)));
}

TEST(LineReader, ReadsOverWhatIsTooLong) {
  const std::string longest(LineReader::kLongestLine, 'x');
  EXPECT_THAT(Lines(longest + "\na"), ElementsAre(longest, "a"));
  EXPECT_THAT(Lines(longest + "x\na"), ElementsAre("(too long)", "a"));
  EXPECT_THAT(Lines("a\n" + longest + "x"), ElementsAre("a", "(too long)"));
  EXPECT_THAT(Lines(std::string(1000000, 'x') + "\na\n" + std::string(200000, 'y') + "\n"),
              ElementsAre("(too long)", "a", "(too long)"));
}

TEST(LineReader, KeepsLinesWholeWhereverTheBufferEnds) {
  std::string input;
  std::vector<std::string> expected;
  for (std::size_t i = 0; i < 30000; ++i) {
    expected.push_back(std::string(i % 97, static_cast<char>('a' + i % 26)) + std::to_string(i));
    input += expected.back() + "\n";
  }
  EXPECT_EQ(Lines(input), expected);
}

TEST(ProblemSource, TakesWordsBeforeLines) {
  std::istringstream in("h\no\n");
  std::ostringstream out;
  Session session{"", in, out, out};
  const std::vector<std::string> words{"fe", "\xC3\xA9", "\xFF"};
  ProblemSource fromWords(session, words);
  Problem problem;
  ASSERT_TRUE(fromWords.Next(problem));
  EXPECT_EQ(problem.text, u"fe");
  EXPECT_EQ(problem.line, 0u);
  ASSERT_TRUE(fromWords.Next(problem));
  EXPECT_EQ(problem.text, u"\u00E9");
  EXPECT_EQ(problem.error, "");
  ASSERT_TRUE(fromWords.Next(problem));
  EXPECT_EQ(problem.text, u"\uFFFD");
  EXPECT_EQ(problem.error, "not UTF-8");
  EXPECT_FALSE(fromWords.Next(problem));

  const std::vector<std::string> none;
  ProblemSource fromLines(session, none);
  ASSERT_TRUE(fromLines.Next(problem));
  EXPECT_EQ(problem.text, u"h");
  EXPECT_EQ(problem.error, "");
  ASSERT_TRUE(fromLines.Next(problem));
  EXPECT_EQ(problem.text, u"o");
  EXPECT_EQ(problem.line, 2u);
  EXPECT_FALSE(fromLines.Next(problem));
}

TEST(ProblemSource, EndsWhenAnswersCanNoLongerBeWritten) {
  std::istringstream in("h\no\n");
  std::ostringstream out;
  std::ostringstream err;
  Session session{"", in, out, err};
  const std::vector<std::string> none;
  ProblemSource source(session, none);
  Problem problem;
  ASSERT_TRUE(source.Next(problem));
  out.setstate(std::ios::badbit);
  EXPECT_FALSE(source.Next(problem));
}

// A stream whose reading fails, as that of a folder does.
class BrokenBuffer : public std::streambuf {
 protected:
  int_type underflow() override { throw std::ios_base::failure("the stream cannot be read"); }
};

TEST(ProblemSource, TellsThatTheInputCannotBeRead) {
  BrokenBuffer broken;
  std::istream in(&broken);
  std::ostringstream out;
  std::ostringstream err;
  Session session{"", in, out, err};
  const std::vector<std::string> none;
  ProblemSource source(session, none);
  Problem problem;
  EXPECT_FALSE(source.Next(problem));
  EXPECT_EQ(err.str(), "orvane-calc: standard input could not be read\n");
  EXPECT_EQ(session.status, kSomeUnanswered);
}

TEST(ProblemSource, TakesTheEndOfTheInputForNoFailure) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  Session session{"", in, out, err};
  const std::vector<std::string> none;
  ProblemSource source(session, none);
  Problem problem;
  EXPECT_FALSE(source.Next(problem));
  EXPECT_EQ(err.str(), "");
  EXPECT_EQ(session.status, kAllAnswered);
}

// Types two lines, each when it is asked for more.
class Typist : public std::streambuf {
 public:
  int asked = 0;

 protected:
  int_type underflow() override {
    if (++asked > 2) return traits_type::eof();
    line_ = asked == 1 ? "h\n" : "o\n";
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_[0]);
  }

 private:
  std::string line_;
};

// Counts how often it is flushed.
class CountingBuffer : public std::stringbuf {
 public:
  int flushes = 0;

 protected:
  int sync() override {
    ++flushes;
    return 0;
  }
};

TEST(LineReader, AnswersLineByLineToAPersonWhoTypes) {
  Typist typist;
  std::istream in(&typist);
  CountingBuffer answers;
  std::ostream out(&answers);
  LineReader reader(in, out);
  std::string_view line;
  bool tooLong = false;
  ASSERT_TRUE(reader.Next(line, tooLong));
  EXPECT_EQ(line, "h");
  EXPECT_EQ(typist.asked, 1);
  ASSERT_TRUE(reader.Next(line, tooLong));
  EXPECT_EQ(line, "o");
  EXPECT_EQ(answers.flushes, 2);
  EXPECT_FALSE(reader.Next(line, tooLong));
}

}  // namespace
}  // namespace orvane::testing
