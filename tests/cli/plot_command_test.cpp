// orvane-calc plot, as a script uses it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli/run_program.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;

// Elements 1, 2, 3 and 5 have both values; a minus counts behind its digits only.
class PlotCommand : public ::testing::Test {
 protected:
  PlotCommand() {
    DatWriter file;
    file.PeriodicHeader(2);
    file.Category(u"Names", 1);
    file.Property(0, u"Symbol", false, u"", 5);
    const char16_t* const symbols[] = {u"H", u"He", u"Li", u"Be", u"B"};
    for (int i = 0; i < 5; ++i) file.Value(i + 1, symbols[i]);
    file.Category(u"Values", 2);
    file.Property(15, u"Size", true, u"", 5);
    for (int i = 0; i < 5; ++i) file.Value(i + 1, Text(1, static_cast<Char>(u'0' + 2 * i)));
    file.Property(20, u"Height", true, u"", 4);
    file.Value(1, u"10").Value(2, u"20-").Value(3, u"[30]").Value(5, u"40.5");
    file.Save(folder_.File("periodic.dat"));
  }

  ProgramResult Plot(std::vector<std::string> words) {
    words.insert(words.begin(), {"plot", "--data", folder_.Path().string()});
    return RunProgram(ORVANE_BIN_DIR "/orvane-calc", words);
  }

  TempFolder folder_;
};

TEST_F(PlotCommand, WritesATableOfThePoints) {
  const ProgramResult result = Plot({"size", "HEIGHT"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "1\tH\t0\t10\n2\tHe\t2\t-20\n3\tLi\t4\t30\n5\tB\t8\t40.5\n");
  EXPECT_EQ(result.err, "");
}

// x 0..8, 5 % of 8 on either side: −0.4..8.4, span 8.8. y −40.5..20, 8 % of 60.5: −45.34..24.84, span 70.18.
// Places in x: trunc(x / 8.8 × 240) + 10, 54.5 → 54 and so on; in y: trunc(y / 70.18 × 268) + 173.
TEST_F(PlotCommand, WritesRangesPlacesAndSegmentsAsJson) {
  const ProgramResult result = Plot({"--json", "Size", "Height"});
  EXPECT_EQ(result.status, 0);
  const json plot = json::parse(result.out);
  EXPECT_EQ(plot["x"]["min"], 0);
  EXPECT_EQ(plot["x"]["max"], 8);
  EXPECT_NEAR(plot["x"]["low"].get<double>(), -0.4, 1e-12);
  EXPECT_NEAR(plot["x"]["high"].get<double>(), 8.4, 1e-12);
  EXPECT_EQ(plot["y"]["min"], -40.5);
  EXPECT_EQ(plot["y"]["max"], 20);
  EXPECT_NEAR(plot["y"]["low"].get<double>(), -45.34, 1e-12);
  EXPECT_NEAR(plot["y"]["high"].get<double>(), 24.84, 1e-12);
  EXPECT_EQ(plot["points"],
            json::parse("[[1,0,-10,10,135],[2,2,20,64,249],[3,4,-30,119,59],[5,8,-40.5,228,19]]"));
  EXPECT_EQ(plot["segments"], json::parse("[1,2]"));
}

TEST_F(PlotCommand, FiltersByTheTrueSign) {
  EXPECT_EQ(Plot({"Size", "Height", "--y-filter", "-25--15"}).out, "2\tHe\t2\t-20\n");
  EXPECT_EQ(Plot({"Size", "Height", "--x-filter", "0-1;8-9"}).out, "1\tH\t0\t10\n5\tB\t8\t40.5\n");
  EXPECT_EQ(Plot({"--x-filter=3-9", "--y-filter=0-35", "Size", "Height"}).out, "3\tLi\t4\t30\n");
}

TEST_F(PlotCommand, WithoutPointsThereAreNoRanges) {
  const ProgramResult result = Plot({"--json", "Size", "Height", "--x-filter", "48-3"});
  EXPECT_EQ(result.status, 0);
  const json none = {{"min", nullptr}, {"max", nullptr}, {"low", nullptr}, {"high", nullptr}};
  EXPECT_EQ(json::parse(result.out),
            json({{"x", none}, {"y", none}, {"points", json::array()}, {"segments", json::array()}}));
}

TEST_F(PlotCommand, ASinglePointStandsInTheMiddle) {
  const json plot = json::parse(Plot({"--json", "Size", "Height", "--x-filter", "8-8"}).out);
  EXPECT_EQ(plot["x"], json({{"min", 8}, {"max", 8}, {"low", 7.5}, {"high", 8.5}}));
  EXPECT_EQ(plot["points"], json::parse("[[5,8,-40.5,120,134]]"));
}

TEST_F(PlotCommand, FindsPropertiesByAddressToo) {
  const std::string table = Plot({"Size", "Height"}).out;
  EXPECT_EQ(Plot({"1:0", "1:1"}).out, table);
  EXPECT_EQ(Plot({" values:0", "VALUES:1 "}).out, table);
}

TEST_F(PlotCommand, SaysWhatItDoesNotFind) {
  for (const char* word : {"Length", "2:0", "1:2", "1:", ":", "-1:0", "1:99999999999", ""}) {
    const ProgramResult result = Plot({"--json", "--", word, "Height"});
    EXPECT_EQ(result.status, 1) << word;
    EXPECT_EQ(result.out, "") << word;
    EXPECT_THAT(result.err, HasSubstr("no property \"" + std::string(word) + "\""));
  }
  const ProgramResult filter = Plot({"Size", "Height", "--y-filter", "5"});
  EXPECT_EQ(filter.status, 1);
  EXPECT_THAT(filter.err, HasSubstr("The filter string ended unexpectedly."));
}

TEST_F(PlotCommand, NeedsTwoProperties) {
  EXPECT_EQ(Plot({"Size"}).status, 2);
  EXPECT_EQ(Plot({}).status, 2);
  EXPECT_EQ(Plot({"Size", "Height", "Height"}).status, 2);
}

TEST_F(PlotCommand, TakesAnEmptyFilterInOneWord) {
  const ProgramResult unfiltered = Plot({"Size", "Height"});
  EXPECT_NE(unfiltered.out, "");
  for (const char* option : {"--x-filter=", "--y-filter="}) {
    const ProgramResult result = Plot({option, "Size", "Height"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, unfiltered.out) << option;
  }
  // Behind "--" it is a word as any other.
  EXPECT_THAT(Plot({"--", "Size", "--x-filter="}).err, HasSubstr("no property \"--x-filter=\""));
}

TEST(PlotCommandShipped, PlotsTheFirstIonizationEnergies) {
  const ProgramResult result =
      RunProgram(ORVANE_BIN_DIR "/orvane-calc",
                 {"plot", "Atomic number", "First ionization energy", "--x-filter", "3-4"});
  EXPECT_EQ(result.out, "3\tLi\t3\t520.2\n4\tBe\t4\t899.5\n");
}

}  // namespace
}  // namespace orvane::testing
