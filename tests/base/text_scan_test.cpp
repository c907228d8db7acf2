#include "base/text_scan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "base/program_folder.h"

namespace orvane {
namespace {

struct Message {
  Text text;
  Text caption;
  MessageIcon icon;
  friend bool operator==(const Message&, const Message&) = default;
};

class Collecting : public MessageReporter {
 public:
  void Report(TextView text, TextView caption, MessageIcon icon) override {
    messages.push_back({Text(text), Text(caption), icon});
  }
  std::vector<Message> messages;
};

TEST(ToIntegerTest, StopsAtTheFirstOtherCharacter) {
  const struct {
    TextView text;
    std::int32_t value;
  } cases[] = {
      {u"12abc", 12}, {u"abc", 0},    {u"", 0},       {u"007", 7},     {u"-5", -5},     {u"+5", 5},
      {u" \t42", 42}, {u"-", 0},      {u"--5", 0},    {u"- 5", 0},     {u"1.9", 1},     {u"1 2", 1},
      {u"x1", 0},     {u"\u0661", 0}, {u"\uFF11", 0}, {u"1\u00B2", 1}, {u"\u22125", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(ToInteger(c.text), c.value) << ToUtf8(c.text);
}

TEST(ToIntegerTest, WrapsAtThirtyTwoBits) {
  EXPECT_EQ(ToInteger(u"2147483647"), 2147483647);
  EXPECT_EQ(ToInteger(u"2147483648"), -2147483647 - 1);
  EXPECT_EQ(ToInteger(u"-2147483648"), -2147483647 - 1);
  EXPECT_EQ(ToInteger(u"4294967296"), 0);
  EXPECT_EQ(ToInteger(u"4294967301"), 5);
  EXPECT_EQ(ToInteger(Text(1000, u'0') + u"9"), 9);
}

TEST(ToRealTest, ReadsDigitsPointsAndMinusSigns) {
  const struct {
    TextView text;
    double value;
  } cases[] = {
      {u"-2.5", -2.5},   {u"2-5", -25},   {u"", 0},     {u"0", 0},  {u"25", 25},     {u"2.5-", -2.5},
      {u"--3", 3},       {u"-1-2-", -12}, {u".5", 0.5}, {u"5.", 5}, {u"1a2b", 12},   {u"[98]", 98},
      {u" 1 000", 1000}, {u"1,5", 15},    {u"1e3", 13}, {u"+7", 7}, {u"\u22127", 7}, {u"abc", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(ToReal(c.text), c.value) << ToUtf8(c.text);
}

TEST(ToRealTest, DecimalDigitsAddTenthsOfTenths) {
  EXPECT_EQ(ToReal(u"0.25"), 2 * 0.1 + 5 * (0.1 * 0.1));
  EXPECT_EQ(ToReal(u"0.01"), 0.1 * 0.1);  // which is not quite 0.01
  EXPECT_NEAR(ToReal(u"18.01528"), 18.01528, 1e-12);
  EXPECT_EQ(ToReal(u"1.2.5"), ToReal(u"1.25"));  // a second point is skipped
  EXPECT_TRUE(std::isinf(ToReal(Text(400, u'9'))));
  EXPECT_NEAR(ToReal(u"0." + Text(400, u'3')), 1.0 / 3, 1e-12);
}

TEST(FirstLineTest, IsTheTextBeforeTheFirstLineFeed) {
  EXPECT_EQ(FirstLine(u"one\ntwo\nthree"), u"one");
  EXPECT_EQ(FirstLine(u"one"), u"one");
  EXPECT_EQ(FirstLine(u"\ntwo"), u"");
  EXPECT_EQ(FirstLine(u""), u"");
  EXPECT_EQ(FirstLine(u"one\r\ntwo"), u"one\r");  // only the line feed ends it
}

TEST(TakeTextFieldTest, StopsAtDelimitersAndStepsOverThem) {
  const Text buffer = Text(u"one\ttwo\r\nthree\n3\r\r\t\nfour") + u'\0' + u"\nlast";
  const TextView fields[] = {u"one", u"two", u"three\n3", u"", u"", u"four", u"last", u"", u""};
  Collecting reporter;
  std::size_t position = 0;
  std::vector<std::size_t> positions;
  for (const TextView field : fields) {
    EXPECT_EQ(TakeTextField(buffer, position, 100, reporter), field);
    positions.push_back(position);
  }
  EXPECT_EQ(positions, (std::vector<std::size_t>{4, 9, 17, 18, 20, 26, 30, 30, 30}));
  EXPECT_TRUE(reporter.messages.empty());
}

TEST(TakeTextFieldTest, APositionBehindTheBufferIsItsEnd) {
  Collecting reporter;
  std::size_t position = 99;
  EXPECT_EQ(TakeTextField(u"abc", position, 100, reporter), u"");
  EXPECT_EQ(position, 3u);
}

TEST(TakeTextFieldTest, AFieldThatIsTooLongIsReportedAndKeepsItsEnd) {
  const auto message = [](TextView text) { return Message{Text(text), u"Orvane", MessageIcon::kError}; };
  Collecting reporter;
  const auto take = [&](TextView buffer, std::size_t maximum) {
    std::size_t position = 0;
    reporter.messages.clear();
    return TakeTextField(buffer, position, maximum, reporter);
  };
  EXPECT_EQ(take(u"abcd\te", 5), u"abcd");
  EXPECT_TRUE(reporter.messages.empty());
  EXPECT_EQ(take(u"abcde\tf", 5), u"bcde");
  EXPECT_EQ(reporter.messages,
            std::vector{message(u"ReadFile: max length exceeded. Max length: 5, actual length: 5")});
  EXPECT_EQ(take(u"abcdefgh", 5), u"efgh");
  EXPECT_EQ(reporter.messages,
            std::vector{message(u"ReadFile: max length exceeded. Max length: 5, actual length: 8")});
  EXPECT_EQ(take(u"abc", 1), u"");
  EXPECT_EQ(take(u"abc", 0), u"");
  EXPECT_EQ(reporter.messages,
            std::vector{message(u"ReadFile: max length exceeded. Max length: 0, actual length: 3")});
}

TEST(ProgramFolderTest, EndsWithTheLastSeparator) {
  EXPECT_EQ(ProgramFolder("/usr/lib/orvane/orvane", '/'), "/usr/lib/orvane/");
  EXPECT_EQ(ProgramFolder("\\Program Files\\Orvane\\orvane.exe", '\\'), "\\Program Files\\Orvane\\");
  EXPECT_EQ(ProgramFolder("/orvane", '/'), "/");
  EXPECT_EQ(ProgramFolder("/a/", '/'), "/a/");
  EXPECT_EQ(ProgramFolder("a\\b", '/'), "/");  // the other system's separator is a character
}

TEST(ProgramFolderTest, WithoutASeparatorItIsTheRoot) {
  EXPECT_EQ(ProgramFolder("orvane", '/'), "/");
  EXPECT_EQ(ProgramFolder("orvane.exe", '\\'), "\\");
  EXPECT_EQ(ProgramFolder("", '/'), "/");
}

TEST(ProgramFolderTest, ALongPathIsNotCut) {
  const std::string folder = "/" + std::string(300, 'd') + "/";
  EXPECT_EQ(ProgramFolder(folder + "orvane", '/'), folder);
}

}  // namespace
}  // namespace orvane
