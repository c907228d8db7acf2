// "orvane-calc constant" and "orvane-calc dump constants", as a script uses them.
#include "cli/constant_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/cli/run_program.h"
#include "tests/data/dat_builder.h"

namespace orvane::testing {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string kProgram = ORVANE_BIN_DIR "/orvane-calc";

ProgramResult Calc(const std::vector<std::string>& words) { return RunProgram(kProgram, words); }

std::vector<json> Lines(const ProgramResult& result) {
  std::vector<json> lines;
  std::istringstream in(result.out);
  for (std::string line; std::getline(in, line);) lines.push_back(json::parse(line));
  return lines;
}

std::vector<std::string> Names(const std::vector<std::string>& queries) {
  std::vector<std::string> words = {"constant", "--json"};
  words.insert(words.end(), queries.begin(), queries.end());
  std::vector<std::string> names;
  for (const json& line : Lines(Calc(words))) names.push_back(line["name"]);
  return names;
}

TEST(ConstantCommand, GivesOneJsonObjectALine) {
  const ProgramResult result = Calc({"constant", "--json", "c"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "{\"category\":\"Universal and mathematical\",\"group\":\"Vacuum\",\"name\":\"speed of light in "
            "vacuum\",\"symbol\":\"c\",\"value\":\"299 792 458\",\"units\":\"m s\\u0001\u00A0–1\\u0001 \","
            "\"remark\":\"exact\"}\n");
}

TEST(ConstantCommand, FindsByNameAndBySymbol) {
  EXPECT_THAT(Names({"speed of light in vacuum"}), ElementsAre("speed of light in vacuum"));
  EXPECT_THAT(Names({"Electron Mass"}), ElementsAre("electron mass"));
  EXPECT_THAT(Names({"Faraday"}), ElementsAre("Faraday constant"));
  EXPECT_THAT(Names({"light speed"}), ElementsAre("speed of light in vacuum"));
  EXPECT_THAT(Names({"NA"}), ElementsAre("Avogadro constant"));
  EXPECT_THAT(Names({"N_A"}), ElementsAre("Avogadro constant"));
  EXPECT_THAT(Names({"G"}), ElementsAre("Newtonian constant of gravitation"));
  EXPECT_THAT(Names({"Å*"}), ElementsAre("ångström star"));
  EXPECT_THAT(Names({"ÅNGSTRÖM"}), ElementsAre("ångström"));
}

TEST(ConstantCommand, SymbolsAreToldApartByCase) {
  EXPECT_THAT(Names({"k"}), ElementsAre("Boltzmann constant", "k in eV, Boltzmann constant"));
  EXPECT_THAT(Names({"h"}), ElementsAre("Planck constant", "Planck constant in eV"));
  // In no name and no symbol's own case: any case will do.
  EXPECT_THAT(Names({"KCD"}), ElementsAre("luminous efficacy at 540 THz"));
}

TEST(ConstantCommand, AnswersEachQueryInTurnAndFailsForThoseItCannot) {
  const ProgramResult result = Calc({"constant", "--json", "nonsense", "c", ""});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.err, HasSubstr("no constant \"nonsense\""));
  EXPECT_THAT(result.err, HasSubstr("no constant \"\""));
  EXPECT_EQ(Lines(result).size(), 1u);
}

TEST(ConstantCommand, ShowsPeopleTheConstantInOneLine) {
  const ProgramResult result = Calc({"constant", " electron mass ", "pi"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.out,
              HasSubstr("Atomic and nuclear, Electron\n"
                        "  electron mass: m_e = 9.109 383 7139×10⁻³¹ kg (± 0.000 000 0028×10⁻³¹)\n"));
  EXPECT_THAT(result.out, HasSubstr("  pi: π = 3.141 592 653 589 793 (exact, rounded to 16 digits)\n"));
}

TEST(ConstantCommand, NeedsAQueryAndItsFile) {
  EXPECT_EQ(Calc({"constant"}).status, 2);
  const TempFolder folder;
  const ProgramResult result = Calc({"--data", folder.Path().string(), "constant", "c"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err,
              HasSubstr("Failed to open the constants file.\nFile: " + folder.File("constants.dat")));
  EXPECT_THAT(result.err, Not(HasSubstr("no constant")));
}

TEST(ConstantCommand, FindsNothingInAFileWithoutConstants) {
  const TempFolder folder;
  DatWriter().Short(0).Save(folder.File("constants.dat"));
  const ProgramResult result = Calc({"--data", folder.Path().string(), "constant", "c"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, "orvane-calc: no constant \"c\"\n");
}

TEST(MatchConstant, PrefersExactNamesAndSymbols) {
  const ConstEntry mass{u"electron mass in u", u"m\u0001`e\u0001 ", u"1", u"", u""};
  EXPECT_EQ(MatchConstant(mass, u"electron mass in u"), ConstantMatch::kExact);
  EXPECT_EQ(MatchConstant(mass, u"me"), ConstantMatch::kExact);
  EXPECT_EQ(MatchConstant(mass, u"m_e"), ConstantMatch::kExact);
  EXPECT_EQ(MatchConstant(mass, u"ME"), ConstantMatch::kSymbolInOtherCase);
  EXPECT_EQ(MatchConstant(mass, u"mass"), ConstantMatch::kPartOfName);
  EXPECT_EQ(MatchConstant(mass, u"u electron"), ConstantMatch::kPartOfName);
  EXPECT_EQ(MatchConstant(mass, u"proton mass"), ConstantMatch::kNone);
  EXPECT_EQ(MatchConstant(mass, u""), ConstantMatch::kNone);
}

// --- dump

TEST(DumpConstants, ShowsAWholeFileInFileOrder) {
  const TempFolder folder;
  const std::string path = folder.File("small.dat");
  DatWriter()
      .Short(1)
      .Long(6)
      .Counted(u"C")
      .Short(1)
      .Counted(u"G")
      .Bool(true)
      .Short(1)
      .ZeroTerminated(u"n")
      .ZeroTerminated(u"s")
      .ZeroTerminated(u"v\u0001\u00A02")
      .ZeroTerminated(u"")
      .ZeroTerminated(u"r")
      .Save(path);
  const ProgramResult result = Calc({"dump", "constants", path});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            R"({"file":")" + path +
                R"(","ok":true,"messages":[],"data":{"categories":[{"name":"C","offset":6,"groups":[)"
                R"({"title":"G","collapsible":true,"constants":[{"name":"n","symbol":"s",)"
                "\"value\":\"v\\u0001\u00A02\""
                R"(,"units":"","remark":"r"}]}]}]}})"
                "\n");
}

TEST(DumpConstants, ShowsTheFileOfTheProgram) {
  const ProgramResult result = Calc({"dump", "constants", ORVANE_BIN_DIR "/constants.dat"});
  EXPECT_EQ(result.status, 0);
  const json dump = json::parse(result.out);
  EXPECT_TRUE(dump["ok"]);
  EXPECT_THAT(dump["messages"], IsEmpty());
  std::size_t constants = 0;
  for (const json& category : dump["data"]["categories"]) {
    for (const json& group : category["groups"]) constants += group["constants"].size();
  }
  EXPECT_EQ(dump["data"]["categories"].size(), 9u);
  EXPECT_GE(constants, 350u);
}

TEST(DumpConstants, ReportsAMissingFileAndDamage) {
  const TempFolder folder;
  const ProgramResult missing = Calc({"dump", "constants", folder.File("missing.dat")});
  EXPECT_EQ(missing.status, 1);
  EXPECT_THAT(missing.err, HasSubstr("not a readable constants file"));
  const json dump = json::parse(missing.out);
  EXPECT_FALSE(dump["ok"]);
  EXPECT_THAT(dump["messages"],
              ElementsAre("Failed to open the constants file.\nFile: " + folder.File("missing.dat")));
  EXPECT_THAT(dump["data"]["categories"], IsEmpty());

  DatWriter().Short(1).Long(6).Counted(u"C").Short(1).Counted(u"G").Bool(true).Save(folder.File("cut.dat"));
  const ProgramResult cut = Calc({"dump", "constants", folder.File("cut.dat")});
  EXPECT_EQ(cut.status, 0);
  EXPECT_THAT(json::parse(cut.out)["messages"],
              ElementsAre("ZelBinary::ReadShort() - attempted to read beyond end of file"));
}

// A thousand categories share one block, which one honest category could hold as well.
TEST(DumpConstants, EndsWhenCategoriesHoldFarMoreThanTheFile) {
  constexpr int kCategories = 1000;
  const TempFolder folder;
  const std::string path = folder.File("constants.dat");
  DatWriter file;
  file.Short(kCategories);
  for (int i = 0; i < kCategories; ++i) file.Long(2 + 4 * kCategories);
  file.Counted(u"C").Short(1).Counted(u"G").Bool(true).Short(32767);
  file.Raw(std::string(32767 * 5, '\0')).Save(path);
  const std::string kLeftOut =
      path + ": its categories hold far more than the file; the last ones are left out\n";

  const ProgramResult dumped = Calc({"dump", "constants", path});
  EXPECT_EQ(dumped.status, 1);
  EXPECT_EQ(dumped.err, "orvane-calc: " + kLeftOut);
  const json categories = json::parse(dumped.out)["data"]["categories"];
  ASSERT_EQ(categories.size(), 1000u);
  EXPECT_EQ(categories[0]["groups"][0]["constants"].size(), 32767u);
  EXPECT_EQ(categories[999]["name"], "C");
  EXPECT_FALSE(categories[999].contains("groups"));

  const ProgramResult asked = Calc({"--data", folder.Path().string(), "constant", "c"});
  EXPECT_EQ(asked.status, 1);
  EXPECT_EQ(asked.err, "orvane-calc: " + kLeftOut + "orvane-calc: no constant \"c\"\n");
}

}  // namespace
}  // namespace orvane::testing
