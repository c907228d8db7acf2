// orvane-calc filter, as a script uses it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli/run_program.h"

namespace orvane::testing {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;

ProgramResult Filter(std::vector<std::string> words) {
  words.insert(words.begin(), "filter");
  return RunProgram(ORVANE_BIN_DIR "/orvane-calc", words);
}

TEST(FilterCommand, ShowsRangesAndWhatPasses) {
  const ProgramResult result = Filter({"--json", "1-2;5-7.5", "1", "3"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            R"({"filter":"1-2;5-7.5","ok":true,"error":null,"ranges":[[1,2],[5,7.5]],"passes":[true,false]})"
            "\n");
  EXPECT_EQ(result.err, "");
}

TEST(FilterCommand, TakesWordsBehindTheFilterAsTheyAre) {
  EXPECT_EQ(json::parse(Filter({"--json", "1-2", "-4", "1.5e0", "2"}).out)["passes"],
            json({false, true, true}));
  EXPECT_EQ(json::parse(Filter({"--json", "-5--3", "-4", "4"}).out)["passes"], json({true, false}));
  EXPECT_EQ(json::parse(Filter({"--json", "--", "-5--3", "-3", "-2.9"}).out)["passes"], json({true, false}));
  EXPECT_EQ(json::parse(Filter({"--json", "--3", "2"}).out)["ranges"], json({{0, 3}}));
  EXPECT_EQ(json::parse(Filter({"--json", "--;1"}).out)["filter"], "--;1");
  EXPECT_EQ(json::parse(Filter({"--json", "1-2", "%%", "++"}).out)["passes"], json({nullptr, nullptr}));
  const ProgramResult odd = Filter({"--json", "", "--json", "2"});
  EXPECT_EQ(json::parse(odd.out)["passes"], json({nullptr, true}));
  EXPECT_THAT(odd.err, HasSubstr("\"--json\" is no number"));
  EXPECT_EQ(odd.status, 1);
}

TEST(FilterCommand, KeepsTheTextAndNeedsNoValues) {
  const json spaces = json::parse(Filter({"--json", " 3 - 48 "}).out);
  EXPECT_EQ(spaces["filter"], " 3 - 48 ");
  EXPECT_EQ(spaces["ranges"], json({{3, 48}}));
  EXPECT_EQ(spaces["passes"], json::array());
  EXPECT_EQ(json::parse(Filter({"--json", "   ", "9"}).out)["passes"], json({true}));
}

TEST(FilterCommand, WholeBoundsWrapAndRealOnesDoNot) {
  EXPECT_EQ(json::parse(Filter({"--json", "2147483648-4294967301.5"}).out)["ranges"],
            json::parse("[[-2147483648,4294967301.5]]"));
}

TEST(FilterCommand, SaysWhatIsWrong) {
  const ProgramResult result = Filter({"--json", "1-2x", "1"});
  EXPECT_EQ(result.status, 1);
  const std::string message = "Unexpected character in filter string (2). See help for more info.";
  EXPECT_EQ(json::parse(result.out), json({{"filter", "1-2x"},
                                           {"ok", false},
                                           {"error", message},
                                           {"ranges", json::array()},
                                           {"passes", json::array()}}));
  EXPECT_EQ(result.err, "orvane-calc: " + message + "\n");
  const ProgramResult forPeople = Filter({"5"});
  EXPECT_EQ(forPeople.status, 1);
  EXPECT_EQ(forPeople.out, "");
  EXPECT_THAT(forPeople.err, HasSubstr("The filter string ended unexpectedly."));
}

TEST(FilterCommand, SpeaksToPeople) {
  EXPECT_EQ(Filter({"3-48", "4", "50"}).out, "4\tyes\n50\tno\n");
  EXPECT_EQ(Filter({"1-2;5-7.5"}).out, "1 to 2\n5 to 7.5\n");
  EXPECT_EQ(Filter({""}).out, "every value\n");
}

TEST(FilterCommand, NeedsAFilter) {
  EXPECT_EQ(Filter({}).status, 2);
  EXPECT_EQ(Filter({"--json"}).status, 2);
  EXPECT_EQ(Filter({"--jsn", "1-2"}).status, 2);
}

}  // namespace
}  // namespace orvane::testing
