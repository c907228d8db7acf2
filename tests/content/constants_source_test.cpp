#include "content/constants_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/cli/run_program.h"
#include "tests/content/constants_builder.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string kGroup = "group\tVacuum\tfolds\n";
const std::string kLight = "speed of light\tc\t299 792 458\tm s^{–1}\texact\tbook\t";
const std::string kLightFact = "c\t299792458\texact\tm s^-1\n";

TEST(ConstantsTable, IsSound) {
  EXPECT_THAT(ConstantProblems(kGroup + kLight + "c\n", kLightFact), IsEmpty());
  EXPECT_THAT(ConstantProblems("group\tOpen\topen\n# a note\n" + kLight + "-\n"), IsEmpty());
}

// Lines count from 1; the header takes two, so that the first of these is line 3.
TEST(ConstantsTable, MistakesAreNamedWithTheirPlace) {
  const struct {
    std::string lines;
    const char* message;
  } cases[] = {
      {"", "c.tsv: a category needs at least one group"},
      {kLight + "-\n", "c.tsv:3:1: a constant before the first group"},
      {"group\tVacuum\tyes\n", "c.tsv:3:3: expected folds or open"},
      {"group\tVacuum\n", "c.tsv:3:3: 2 columns where 3 are due"},
      {kGroup + "a\tb\n", "c.tsv:4:3: 2 columns where 7 are due"},
      {kGroup + "a\t\t1\t-\t-\tbook\t-\n", "c.tsv:4:2: an empty cell (write - for no value)"},
      {kGroup + "a\tb\t12345\t-\t-\tbook\t-\n",
       "c.tsv:4:3: \"12345\" is not a figure as the screens show it"},
      {kGroup + "a\tb\t-\t-\t-\tbook\t-\n", "c.tsv:4:3: \"-\" is not a figure as the screens show it"},
      {kGroup + "a\tb\t1\t-\t-\tmagazine\t-\n", "c.tsv:4:6: no source \"magazine\" is described"},
      {kGroup + kLight + "-\n" + kLight + "-\n",
       "c.tsv:5:1: the group already has a constant \"speed of light\""},
      {kGroup + "a\tm^{2\t1\t-\t-\tbook\t-\n", "c.tsv:4:2: a ^{ or _{ is not closed by }"},
      {kGroup + std::string(255, 'x') + "\tb\t1\t-\t-\tbook\t-\n",
       "c.tsv:4:1: 255 characters where at most 254 fit"},
  };
  for (const auto& c : cases) {
    const std::vector<std::string> problems = ConstantProblems(c.lines);
    ASSERT_THAT(problems, ::testing::Not(IsEmpty())) << c.lines;
    EXPECT_EQ(problems.front(), c.message);
  }
}

TEST(ConstantsTable, HeadersAreDue) {
  const auto problems = [](const std::string& content) {
    std::vector<TableProblem> found;
    ReadConstants({ReadTable("c.tsv", content)}, {}, found);
    return found.empty() ? std::string() : ProblemText(found[0]);
  };
  EXPECT_EQ(problems(""), "c.tsv: the file ends too early: a table has two header lines");
  EXPECT_EQ(problems("kategory\tA\nname\n"), "c.tsv:1:1: expected the header line \"category\"");
  EXPECT_EQ(problems("category\tA\tB\nname\n"), "c.tsv:1:3: 3 columns where 2 are due");
  EXPECT_EQ(problems("category\tA\nname\tsymbol\n"),
            "c.tsv:2:1: expected the columns name, symbol, value, units, remark, source, figure");
}

TEST(ConstantsTable, ARangeOfTwoFiguresIsAValue) {
  EXPECT_THAT(ConstantProblems(kGroup + "a\tb\t3.1–4.4\t-\t-\tbook\t-\n"), IsEmpty());
  EXPECT_THAT(ConstantProblems(kGroup + "a\tb\t–3–4×10^{5}\t-\t-\tbook\t-\n"), IsEmpty());
  EXPECT_THAT(ConstantProblems(kGroup + "a\tb\t3.1–4.4\t-\t-\tbook\t= 3\n"),
              ElementsAre("c.tsv:4: a: a range cannot be checked"));
}

// --- Facts

TEST(FactTable, MistakesAreNamedWithTheirPlace) {
  const struct {
    const char* line;
    const char* message;
  } cases[] = {
      {"c\t1\texact\n", "f.tsv:3:4: 3 columns where 4 are due"},
      {"c\tone\texact\tm\n", "f.tsv:3:2: \"one\" is not a decimal number"},
      {"c\t1\tabout\tm\n", "f.tsv:3:3: expected exact, - or a decimal number"},
      {"c\t1\texact\t\n", "f.tsv:3:4: an empty cell (write - for no value)"},
      {"c\t1\texact\tm\nc\t2\texact\tm\n", "f.tsv:4:1: a second fact \"c\""},
  };
  for (const auto& c : cases) {
    EXPECT_THAT(ConstantProblems(kGroup, c.line), ElementsAre(c.message)) << c.line;
  }
  std::vector<TableProblem> problems;
  Facts facts;
  facts.Read(ReadTable("f", "facts\tmagazine\nname\tvalue\n"), {"book"}, problems);
  ASSERT_EQ(problems.size(), 2u);
  EXPECT_EQ(ProblemText(problems[0]), "f:1:2: no source \"magazine\" is described");
  EXPECT_EQ(ProblemText(problems[1]), "f:2:1: expected the columns name, value, uncertainty, unit");
}

// --- Checking

TEST(CheckFigures, EveryDigitUnitAndUncertaintyIsHeldToTheFact) {
  const std::string fact = "m\t9.1093837139e-31\t0.0000000028e-31\tkg\n";
  const auto problems = [&fact](const std::string& cells) {
    return ConstantProblems(kGroup + "mass\tm\t" + cells + "\tbook\tm\n", fact);
  };
  const std::string value = "9.109 383 7139×10^{–31}\t";
  EXPECT_THAT(problems(value + "kg\t± 0.000 000 0028×10^{–31}"), IsEmpty());
  EXPECT_THAT(problems(value + "kg\t± 0.000 000 0028×10^{–31}; measured"), IsEmpty());
  const std::string due = "c.tsv:4: mass: the remark must begin with \"± 0.000 000 0028×10–31\"";
  EXPECT_THAT(problems(value + "kg\t± 0.000 000 0029×10^{–31}"), ElementsAre(due));
  EXPECT_THAT(problems(value + "kg\t-"), ElementsAre(due));
  EXPECT_THAT(problems(value + "kg\texact"), ElementsAre(due));
  EXPECT_THAT(problems(value + "g\t± 0.000 000 0028×10^{–31}"),
              ElementsAre("c.tsv:4: mass: the units are \"g\", those of the fact \"kg\""));
  const std::string digits = "c.tsv:4: mass: the digits are not those of the fact";
  EXPECT_THAT(problems("9.109 383 7138×10^{–31}\tkg\t± 0.000 000 0028×10^{–31}"), ElementsAre(digits));
  EXPECT_THAT(problems("9.109 383 714×10^{–31}\tkg\t± 0.000 000 0028×10^{–31}"), ElementsAre(digits));
  EXPECT_THAT(problems("–9.109 383 7139×10^{–31}\tkg\t± 0.000 000 0028×10^{–31}"), ElementsAre(digits));
}

TEST(CheckFigures, ExactFactsAreCalledExact) {
  EXPECT_THAT(ConstantProblems(kGroup + "light\tc\t299 792 458\tm s^{–1}\t-\tbook\tc\n", kLightFact),
              ElementsAre("c.tsv:4: light: the remark must begin with \"exact\""));
  EXPECT_THAT(ConstantProblems(kGroup + kLight + "d\n", kLightFact),
              ElementsAre("c.tsv:4: speed of light: no fact \"d\""));
}

TEST(CheckFigures, AFormulaGivesTheRoundedValue) {
  const auto problems = [](const std::string& value, const std::string& figure) {
    return ConstantProblems(kGroup + "a\tb\t" + value + "\t-\texact\tbook\t" + figure + "\n",
                            "third\t0.3333...\texact\t-\n");
  };
  EXPECT_THAT(problems("0.666 667", "= 2/3"), IsEmpty());
  EXPECT_THAT(problems("0.666 666", "= 2/3"), ElementsAre("c.tsv:4: a: the formula gives another value"));
  EXPECT_THAT(problems("0.333 333 33", "third = 1/3"), IsEmpty());
  EXPECT_THAT(problems("0.33", "third = 1/3"), IsEmpty());
  EXPECT_THAT(problems("0.3333", "third"), ElementsAre("c.tsv:4: a: the digits are not those of the fact"));
  EXPECT_THAT(problems("0.5", "third = 1/2"),
              ElementsAre("c.tsv:4: a: the digits are not those of the fact"));
  EXPECT_THAT(problems("0.5", "= {unknown}"), ElementsAre("c.tsv:4: a: no fact \"unknown\""));
}

TEST(PlainUnits, AreWrittenAsTablesOfFactsDo) {
  EXPECT_EQ(PlainUnits(u"J mol\u0001\u00A0\u20131\u0001  K\u0001\u00A0\u20131\u0001 "), "J mol^-1 K^-1");
  EXPECT_EQ(PlainUnits(u"E\u0001`h\u0001 "), "E_h");
  EXPECT_EQ(PlainUnits(u"\u03A9"), "ohm");
  EXPECT_EQ(PlainUnits(u""), "");
}

// --- The compiled form

TEST(EncodeConstants, WritesTheExampleOfTheFormatsPage) {
  std::vector<TableProblem> problems;
  const ConstantsSource source =
      ReadConstants({ReadTable("c",
                               "category\tC\nname\tsymbol\tvalue\tunits\tremark\tsource\tfigure\n"
                               "group\tG\tfolds\nc\tc\t1\tm\tx\tbook\t-\n")},
                    {"book"}, problems);
  ASSERT_THAT(problems, IsEmpty());
  const unsigned char bytes[] = {0x01, 0x00, 0x06, 0x00, 0x00, 0x00, 0x01, 0x00, 0x43,
                                 0x01, 0x00, 0x01, 0x00, 0x47, 0x54, 0x01, 0x00, 0x63,
                                 0x00, 0x63, 0x00, 0x31, 0x00, 0x6D, 0x00, 0x78, 0x00};
  EXPECT_EQ(EncodeConstants(source), std::string(reinterpret_cast<const char*>(bytes), sizeof bytes));
}

TEST(EncodeConstants, RoundTripsStylesAndWideCharacters) {
  std::vector<TableProblem> problems;
  const ConstantsSource source = ReadConstants(
      {ReadTable("a", kConstantsHead + "group\tG_{2} Ω\topen\nαβ\tk_{B}\t6.022×10^{23}\t-\t-\tbook\t-\n"),
       ReadTable("b",
                 "category\tSecond\nname\tsymbol\tvalue\tunits\tremark\tsource\tfigure\ngroup\tH\tfolds\n")},
      {"book"}, problems);
  ASSERT_THAT(problems, IsEmpty());
  const TempFolder folder;
  WriteBytes(folder.File("constants.dat"), EncodeConstants(source));
  CollectingReporter reporter;
  ConstantsDatabase database(folder.File("constants.dat"));
  ASSERT_TRUE(database.ReadCategories(reporter));
  ASSERT_EQ(database.CategoryCount(), 2);
  EXPECT_EQ(database.Categories()[1].name, u"Second");
  const auto groups = database.LoadCategory(0, reporter);
  ASSERT_TRUE(groups);
  EXPECT_EQ((*groups)[0].title, u"G\u0001`2\u0001  Ω");
  EXPECT_FALSE((*groups)[0].collapsible);
  EXPECT_EQ((*groups)[0].constants[0].name, u"αβ");
  EXPECT_EQ((*groups)[0].constants[0].value, u"6.022×10\u0001\u00A023\u0001 ");
  EXPECT_EQ((*groups)[0].constants[0].units, u"");
  EXPECT_TRUE((*database.LoadCategory(1, reporter))[0].collapsible);
  EXPECT_THAT(reporter.texts, IsEmpty());
}

// --- The program

TEST(ConstantsCompiler, WritesNothingUnlessAllIsSound) {
  const TempFolder folder;
  WriteBytes(folder.File("SOURCES.md"), "## book\n");
  WriteBytes(folder.File("facts.tsv"), kFactsHead + kLightFact);
  const auto compile = [&folder](const std::string& figure) {
    WriteBytes(folder.File("c.tsv"), kConstantsHead + kGroup + kLight + figure + "\n");
    return RunProgram(ORVANE_CONTENT_COMPILER,
                      {"constants", folder.File("out.dat"), folder.File("SOURCES.md"), folder.File("c.tsv"),
                       folder.File("facts.tsv")});
  };
  const ProgramResult wrong = compile("c = 3");
  EXPECT_EQ(wrong.status, 1);
  EXPECT_THAT(wrong.err, HasSubstr("c.tsv:4: speed of light: the formula gives another value"));
  EXPECT_FALSE(std::filesystem::exists(folder.File("out.dat")));
  const ProgramResult right = compile("c");
  EXPECT_EQ(right.status, 0) << right.err;
  EXPECT_TRUE(std::filesystem::exists(folder.File("out.dat")));
}

}  // namespace
}  // namespace orvane::testing
