#include "content/elements_source.h"
#include "content/table_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/cli/run_program.h"
#include "tests/content/table_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<std::string> Problems(const TableBuilder& first, const TableBuilder& second) {
  std::vector<TableProblem> problems;
  ReadElements({ReadTable("a.tsv", first.Content()), ReadTable("b.tsv", second.Content())}, {"book", "web"},
               problems);
  std::vector<std::string> texts;
  for (const TableProblem& problem : problems) texts.push_back(ProblemText(problem));
  return texts;
}

// One thing that is wrong with the first table, and the whole message it must give.
struct Mistake {
  const char* name;
  std::function<void(TableBuilder&)> make;
  const char* message;
};

class ElementsMistake : public ::testing::TestWithParam<Mistake> {};

TEST_P(ElementsMistake, IsNamedWithFileLineAndColumn) {
  TableBuilder table = TableBuilder::Identification();
  GetParam().make(table);
  EXPECT_THAT(Problems(table, TableBuilder::Extra()), ElementsAre(GetParam().message));
}

std::function<void(TableBuilder&)> Set(int line, int column, const std::string& cell) {
  return [=](TableBuilder& table) { table.Cell(line, column) = cell; };
}

std::string MistakeName(const ::testing::TestParamInfo<Mistake>& mistake) { return mistake.param.name; }

INSTANTIATE_TEST_SUITE_P(
    Values, ElementsMistake,
    ::testing::Values(
        Mistake{"TooFewColumns", [](TableBuilder& table) { table.Line(9).pop_back(); },
                "a.tsv:9:7: 6 columns where 7 are due"},
        Mistake{"TooManyColumns", [](TableBuilder& table) { table.Line(9).push_back("x"); },
                "a.tsv:9:8: 8 columns where 7 are due"},
        Mistake{"UnknownElement",
                [](TableBuilder& table) {
                  table.Rows().push_back({"113", "Nh", "Nh", "x", "1", "x", "x"});
                },
                "a.tsv:119:1: no element \"113\": atomic numbers run from 1 to 112"},
        Mistake{"ElementZero", [](TableBuilder& table) { table.Rows().push_back({"0"}); },
                "a.tsv:119:1: no element \"0\": atomic numbers run from 1 to 112"},
        Mistake{"ElementWord", [](TableBuilder& table) { table.Rows().push_back({"He"}); },
                "a.tsv:119:1: no element \"He\": atomic numbers run from 1 to 112"},
        Mistake{"ElementTwice", [](TableBuilder& table) { table.Rows().push_back(table.Line(8)); },
                "a.tsv:119:1: element 2 a second time"},
        Mistake{"ElementOrder", [](TableBuilder& table) { std::swap(table.Line(10), table.Line(11)); },
                "a.tsv:11:1: elements stand in the order of their atomic numbers"},
        Mistake{"ElementMissing", [](TableBuilder& table) { table.Rows().pop_back(); },
                "a.tsv: no row for element 112"},
        Mistake{"OtherSymbol", Set(8, 2, "Xx"), "a.tsv:8:2: element 2 has the symbol \"S2\", not \"Xx\""},
        Mistake{"EmptyCell", Set(8, 4, ""), "a.tsv:8:4: an empty cell (write - for no value)"},
        Mistake{"BlankBefore", Set(8, 4, " x"), "a.tsv:8:4: a blank at the edge of a cell"},
        Mistake{"BlankBehind", Set(8, 4, "x "), "a.tsv:8:4: a blank at the edge of a cell"},
        Mistake{"ControlCharacter", Set(8, 4, "a\rb"),
                "a.tsv:8:4: control character U+000D (write \\n or \\u000D)"},
        Mistake{"NotUtf8", Set(8, 4, "\xC3"), "a.tsv:8:4: bytes that are not UTF-8"},
        Mistake{"NotADecimal", Set(8, 5, "1,5"),
                "a.tsv:8:5: \"1,5\" is not a bare decimal, as a plottable value must be"},
        Mistake{"TooManyBytes", Set(8, 4, std::string(65536, 'x')),
                "a.tsv:8:4: a value of 65536 bytes; at most 65535 fit"},
        Mistake{"UnknownCellSource", Set(8, 4, "x @hearsay"),
                "a.tsv:8:4: no source \"hearsay\" is described"},
        Mistake{"SourceWithoutKey", Set(8, 4, "x @"), "a.tsv:8:4: no source \"\" is described"}),
    MistakeName);

INSTANTIATE_TEST_SUITE_P(
    Header, ElementsMistake,
    ::testing::Values(
        Mistake{"CategoryColumns", [](TableBuilder& table) { table.Line(1).push_back("x"); },
                "a.tsv:1:3: 3 columns where 2 are due"},
        Mistake{"CategoryName", Set(1, 2, std::string(256, 'c')),
                "a.tsv:1:2: 256 characters where at most 255 fit"},
        Mistake{"IdWord", Set(2, 6, "four"), "a.tsv:2:6: a property id is a number from 0 to 32767"},
        Mistake{"IdNegative", Set(2, 6, "-3"), "a.tsv:2:6: a property id is a number from 0 to 32767"},
        Mistake{"IdTooLarge", Set(2, 6, "32768"), "a.tsv:2:6: a property id is a number from 0 to 32767"},
        Mistake{"IdTwice", Set(2, 6, "7"), "b.tsv:2:3: property id 7 a second time"},
        Mistake{"NameColumns", [](TableBuilder& table) { table.Line(3).pop_back(); },
                "a.tsv:3:7: 6 columns where 7 are due"},
        Mistake{"NameTooLong", Set(3, 4, std::string(150, 'n')),
                "a.tsv:3:4: 150 characters where at most 149 fit"},
        Mistake{"NameTwice", Set(3, 4, "Symbol"),
                "a.tsv:3:4: the category already has a property \"Symbol\""},
        Mistake{"NameEmpty", Set(3, 4, ""), "a.tsv:3:4: an empty cell (write - for no value)"},
        Mistake{"UnitsTooLong", Set(4, 5, "\"" + std::string(51, 'u') + "\""),
                "a.tsv:4:5: 51 characters where at most 50 fit"},
        Mistake{"UnitsBare", Set(4, 5, "u"), "a.tsv:4:5: units stand in double quotes, \" pm\", or are -"},
        Mistake{"UnitsOneQuote", Set(4, 5, "\""),
                "a.tsv:4:5: units stand in double quotes, \" pm\", or are -"},
        Mistake{"UnitsEmpty", Set(4, 5, "\"\""), "a.tsv:4:5: an empty text"},
        Mistake{"UnitsWithDigit", Set(4, 5, "\" cm3\""),
                "a.tsv:5:5: the units of a plottable property cannot hold digits"},
        Mistake{"PlotWord", Set(5, 4, "maybe"), "a.tsv:5:4: expected yes or no"},
        Mistake{"SourceUnknown", Set(6, 4, "hearsay"), "a.tsv:6:4: no source \"hearsay\" is described"},
        Mistake{"OrientationColumn", Set(6, 2, "x"), "a.tsv:6:2: expected - above the symbols"}),
    MistakeName);

TEST(ElementsSource, TakesTheWidestTexts) {
  TableBuilder table = TableBuilder::Identification();
  table.Cell(1, 2) = std::string(255, 'c');
  table.Cell(3, 4) = std::string(149, 'n');
  table.Cell(4, 5) = "\"" + std::string(50, 'u') + "\"";
  table.Cell(8, 4) = std::string(65535, 'x');
  EXPECT_THAT(Problems(table, TableBuilder::Extra()), IsEmpty());
}

TEST(ElementsSource, NamesEveryMistakeAtOnce) {
  TableBuilder table = TableBuilder::Identification();
  table.Cell(8, 5) = "x";
  table.Cell(9, 5) = "1e3";
  TableBuilder extra = TableBuilder::Extra();
  extra.Cell(20, 3) = "1.5";
  EXPECT_THAT(Problems(table, extra),
              ElementsAre("a.tsv:8:5: \"x\" is not a bare decimal, as a plottable value must be",
                          "a.tsv:9:5: \"1e3\" is not a bare decimal, as a plottable value must be",
                          "b.tsv:20:3: a value without a source: neither its column nor the cell names one"));
}

TEST(ElementsSource, NeedsTheHeaderLinesInOrder) {
  TableBuilder table = TableBuilder::Identification();
  std::swap(table.Line(4), table.Line(5));
  EXPECT_THAT(Problems(table, TableBuilder::Extra()),
              ::testing::Contains("a.tsv:4:1: expected the header line \"units\""));
  table.Rows().resize(3);
  EXPECT_THAT(Problems(table, TableBuilder::Extra()),
              ::testing::Contains("a.tsv: the file ends too early: expected the header line \"units\""));
}

TEST(ElementsSource, NeedsAProperty) {
  TableBuilder table = TableBuilder::Identification();
  for (TableBuilder::Row& row : table.Rows()) row.resize(2);
  EXPECT_THAT(Problems(table, TableBuilder::Extra()),
              ::testing::Contains("a.tsv:2:1: a table needs at least one property"));
}

TEST(ElementsSource, NeedsTheFiveSpecialProperties) {
  TableBuilder table = TableBuilder::Identification();
  table.Cell(2, 6) = "33";
  EXPECT_THAT(Problems(table, TableBuilder::Extra()),
              ElementsAre("a.tsv: no column has id 3, which the program cannot do without"));
}

TEST(ElementsSource, KeepsTheSourceOfACell) {
  TableBuilder table = TableBuilder::Identification();
  table.Cell(7, 4) = "mail a\\@b @web";
  table.Cell(8, 4) = "-";
  std::vector<TableProblem> problems;
  const ElementsSource source =
      ReadElements({ReadTable("a.tsv", table.Content())}, {"book", "web"}, problems);
  EXPECT_THAT(problems, IsEmpty());
  const PropertySource& names = source.categories[0].properties[1];
  EXPECT_EQ(names.source, "book");
  EXPECT_EQ(names.values[0], u"mail a@b");
  EXPECT_EQ(names.valueSources[0], "web");
  EXPECT_FALSE(names.values[1].has_value());
  EXPECT_EQ(names.valueSources[2], "");
}

TEST(ElementsSource, SkipsNotesAndEmptyLines) {
  const Table table = ReadTable("t", "a\tb\n\n# a note\n#\n#no note\nlast");
  ASSERT_EQ(table.rows.size(), 3u);
  EXPECT_EQ(table.rows[0].line, 1);
  EXPECT_THAT(table.rows[0].cells, ElementsAre("a", "b"));
  EXPECT_EQ(table.rows[1].line, 5);
  EXPECT_EQ(table.rows[2].line, 6);
  EXPECT_THAT(table.rows[2].cells, ElementsAre("last"));
}

TEST(ElementsSource, ReadsKeysFromHeadings) {
  std::vector<TableProblem> problems;
  EXPECT_THAT(ReadSourceKeys("S.md", "# Title\n\n## one\n\ntext ## no\n### deeper\n## two", problems),
              ::testing::UnorderedElementsAre("one", "two"));
  EXPECT_THAT(problems, IsEmpty());
}

TEST(ElementsSource, RefusesASourceThatIsDescribedTwice) {
  std::vector<TableProblem> problems;
  EXPECT_THAT(ReadSourceKeys("S.md", "## one\n## two\n\n## one\n", problems),
              ::testing::UnorderedElementsAre("one", "two"));
  ASSERT_EQ(problems.size(), 1u);
  EXPECT_EQ(ProblemText(problems[0]), "S.md:4: \"one\" has a heading already");
}

TEST(PlottableValue, IsABareDecimal) {
  for (const TextView text : {u"0", u"7", u"10", u"0.5", u"1811", u"0.00008988", u"22.98976928", u"6.0"}) {
    EXPECT_TRUE(IsBareDecimal(text)) << ToUtf8(text);
  }
  for (const TextView text : {u"", u".", u".5", u"5.", u"05", u"-1", u"+1", u"–1", u"1e3", u"1,5", u"1.2.3",
                              u"1 ", u"1 2", u"~1", u"[97]", u"1 (est)", u"\u0661"}) {
    EXPECT_FALSE(IsBareDecimal(text)) << ToUtf8(text);
  }
  for (const TextView text : {u"[97]", u"[285]"}) EXPECT_TRUE(IsBracketedMassNumber(text));
  for (const TextView text : {u"[]", u"[", u"]", u"97", u"[97", u"97]", u"[9.7]", u"[x]", u"[097]"}) {
    EXPECT_FALSE(IsBracketedMassNumber(text)) << ToUtf8(text);
  }
}

TEST(PlottableValue, MayBeAMassNumberOnlyAsAMass) {
  TableBuilder table = TableBuilder::Identification();
  table.Cell(8, 5) = "[4]";
  EXPECT_THAT(Problems(table, TableBuilder::Extra()), IsEmpty());
  TableBuilder extra = TableBuilder::Extra();
  extra.Cell(8, 3) = "[4] @web";
  EXPECT_THAT(Problems(table, extra),
              ElementsAre("b.tsv:8:3: \"[4]\" is not a bare decimal, as a plottable value must be"));
}

// The compiler as the build calls it.
class Compiler : public ::testing::Test {
 protected:
  void SetUp() override {
    WriteBytes(folder_.File("S.md"), "## book\n");
    WriteBytes(folder_.File("a.tsv"), TableBuilder::Identification().Content());
  }
  ProgramResult Compile(const std::string& table) {
    return RunProgram(ORVANE_CONTENT_COMPILER,
                      {"elements", folder_.File("out.dat"), folder_.File("S.md"), folder_.File(table)});
  }
  TempFolder folder_;
};

TEST_F(Compiler, WritesTheFile) {
  EXPECT_EQ(Compile("a.tsv").status, 0);
  EXPECT_EQ(ReadBytes(folder_.File("out.dat")).substr(0, 6), "\xDE\xEB\xE8\xFF\x01" + std::string(1, '\0'));
}

TEST_F(Compiler, WritesNothingWhenASourceIsWrong) {
  TableBuilder table = TableBuilder::Identification();
  table.Cell(8, 5) = "x";
  WriteBytes(folder_.File("b.tsv"), table.Content());
  WriteBytes(folder_.File("out.dat"), "old");
  const ProgramResult result = Compile("b.tsv");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err,
            folder_.File("b.tsv") + ":8:5: \"x\" is not a bare decimal, as a plottable value must be\n");
  EXPECT_EQ(ReadBytes(folder_.File("out.dat")), "old");
}

TEST_F(Compiler, NamesAFileThatItCannotRead) {
  const ProgramResult result = Compile("missing.tsv");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, folder_.File("missing.tsv") + ": cannot be read\n");
}

TEST_F(Compiler, NamesAFolderInThePlaceOfATable) {
  std::filesystem::create_directory(folder_.File("folder"));
  const ProgramResult result = Compile("folder");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.err, HasSubstr("folder: cannot be read"));
  EXPECT_FALSE(std::filesystem::exists(folder_.File("out.dat")));
}

TEST_F(Compiler, NamesAFileThatItCannotWrite) {
  const ProgramResult result =
      RunProgram(ORVANE_CONTENT_COMPILER,
                 {"elements", folder_.File("a.tsv/out.dat"), folder_.File("S.md"), folder_.File("a.tsv")});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.err, HasSubstr("out.dat: cannot be written"));
}

TEST_F(Compiler, ExplainsItsUse) {
  EXPECT_EQ(RunProgram(ORVANE_CONTENT_COMPILER, {}).status, 2);
  EXPECT_EQ(RunProgram(ORVANE_CONTENT_COMPILER, {"elements", "out", "S.md"}).status, 2);
  EXPECT_EQ(RunProgram(ORVANE_CONTENT_COMPILER, {"other", "a", "b", "c"}).status, 2);
}

}  // namespace
}  // namespace orvane::testing
