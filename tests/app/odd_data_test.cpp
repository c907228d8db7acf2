// What an odd or a hostile periodic.dat does to the whole program, from the file to the screen's report.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/program.h"
#include "tests/data/dat_builder.h"

namespace orvane::app_test {
namespace {

using ::testing::HasSubstr;

// The five properties that the screens know, each with a value for hydrogen.
testing::DatWriter WithSymbol(TextView symbol) {
  testing::DatWriter file;
  file.PeriodicHeader(1).Category(u"All", 5);
  const TextView values[] = {symbol, u"Hydrogen", u"1.008", u"A", u"S"};
  for (int id = 0; id < 5; ++id) file.Property(id, u"Name", false, u"", 1).Value(1, values[id]);
  return file;
}

// On the screen they are what the file says; the report, which is UTF-8, says that there is something that it
// cannot say.
TEST(OddData, LoneSurrogatesComeThroughToTheScreenAndItsReport) {
  struct Case {
    Text symbol;
    const char* expected;
    const char* reported;
  };
  const Case cases[] = {{Text{0xD800}, R"("\uD800")", "\"text\":\"\xEF\xBF\xBD\""},
                        {Text{0xDC00, 0xD800}, R"("\uDC00\uD800")", "\"text\":\"\xEF\xBF\xBD\xEF\xBF\xBD\""},
                        {Text{u'H', 0xDBFF, u'x'}, R"("H\uDBFFx")", "\"text\":\"H\xEF\xBF\xBDx\""}};
  for (const Case& one : cases) {
    const testing::TempFolder folder;
    WithSymbol(one.symbol).Save(folder.File("periodic.dat"));
    const Ended ended =
        RunScript("expect no-message\nreport\nshot odd.png\nexpect text " + std::string(one.expected) + "\n",
                  {"--data", folder.Path().string(), "--out", folder.File("out")});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_THAT(ended.out, HasSubstr(one.reported));
  }
}

TEST(OddData, PercentSignsAreCharactersLikeAnyOther) {
  const testing::TempFolder folder;
  WithSymbol(u"%s%n%d").Save(folder.File("periodic.dat"));
  const Ended ended = RunScript("expect text %s%n%d\n", {"--data", folder.Path().string()});
  EXPECT_EQ(ended.status, 0) << ended.errors;
}

// Behind the end of the file every category is still tried: a name and a count each, which fail with two
// different messages, so that no two that follow each other are equal.
TEST(OddData, TensOfThousandsOfDifferentMessagesAreCountedAndTheProgramGoesOn) {
  const testing::TempFolder folder;
  testing::DatWriter().PeriodicHeader(32767).Save(folder.File("periodic.dat"));
  const Ended ended = RunScript(
      "expect message \"Zero termination not found\"\nreport\nok\nexpect message ReadShort\nreport\n"
      "dismiss-all\nexpect no-message\nexpect tool wnd_periodic\n",
      {"--data", folder.Path().string()});
  EXPECT_EQ(ended.status, 0) << ended.errors;
  EXPECT_THAT(ended.out, HasSubstr("\"waiting\":65533"));
  EXPECT_THAT(ended.out, HasSubstr("\"waiting\":65532"));
}

}  // namespace
}  // namespace orvane::app_test
