#include "cli/notation.h"

#include <gtest/gtest.h>

#include "tests/chemistry/case_table.h"

namespace orvane::testing {
namespace {

TEST(Notation, IsReadAsTheTableSays) {
  for (const TableLine& line : ReadTable("../cli/notations.txt")) {
    const std::vector<std::string> columns = Columns(line.text);
    ASSERT_EQ(columns.size(), 2u) << Where(line);
    const Reading reading = ReadFormula(Unescaped(columns[0]));
    if (columns[1].substr(0, 2) == "! ") {
      EXPECT_EQ(reading.error.substr(0, columns[1].size() - 2), columns[1].substr(2)) << Where(line);
      EXPECT_EQ(reading.text, u"") << Where(line);
    } else {
      EXPECT_EQ(reading.error, "") << Where(line);
      EXPECT_EQ(ToUtf8(reading.text), ToUtf8(Unescaped(columns[1]))) << Where(line);
    }
  }
}

TEST(Notation, ReadsSidesTermByTerm) {
  EXPECT_EQ(ReadSide(u" h2 + o2 ").text, u"h2+o2");
  EXPECT_EQ(ReadSide(u"2 h2+ 3o2").text, u"2h2+3o2");
  EXPECT_EQ(ReadSide(u"2 CuSO4·5H2O + [h]2").text, u"2CuSO4(H2O)5+(h)2");
  EXPECT_EQ(ReadSide(u"").text, u"");
  EXPECT_EQ(ReadSide(u" + ").text, u"+");
  EXPECT_EQ(ReadSide(u"h++o").text, u"h++o");
  EXPECT_EQ(ReadSide(u"h + 2").text, u"h+2");
  EXPECT_EQ(ReadSide(u"(h + o)").text, u"(h+o)");
  EXPECT_EQ(ReadSide(u"h + o.5h").error.substr(0, 11), "a full stop");
  EXPECT_EQ(ReadSide(u"h + 2·h").error, "nothing stands before the dot");
}

TEST(Notation, ACoefficientIsAWholeNumber) {
  for (const TextView side : {u"h2 + 1.5o2", u"1.5 o2", u"h + 1 .5"}) {
    EXPECT_EQ(ReadSide(side).error,
              "a full stop could be a hydrate dot or a decimal point; 1.5 cannot be meant as a coefficient, "
              "since coefficients are whole numbers");
  }
  EXPECT_EQ(ReadSide(u"1.o2").error,
            "a full stop could be a hydrate dot or a decimal point; as a decimal point it would make a "
            "coefficient that is no whole number");
}

TEST(Notation, PartsAnEquationAtItsSign) {
  for (const TextView text : {u"h2 + o2 = h2o", u"h2+o2->h2o", u"h2+o2 \u2192 h2o", u" h2 +o2= h2o\r"}) {
    const EquationReading reading = ReadEquation(text);
    EXPECT_EQ(reading.error, "");
    EXPECT_EQ(reading.left, u"h2+o2");
    EXPECT_EQ(reading.right, u"h2o");
  }
  EXPECT_EQ(ReadEquation(u"=").error, "");
  EXPECT_NE(ReadEquation(u"h2+o2").error, "");
  EXPECT_NE(ReadEquation(u"").error, "");
  EXPECT_NE(ReadEquation(u"h=h=h").error, "");
  EXPECT_NE(ReadEquation(u"h->h=h").error, "");
  EXPECT_NE(ReadEquation(u"h.5=h").error, "");
  EXPECT_NE(ReadEquation(u"h=h.5").error, "");
}

}  // namespace
}  // namespace orvane::testing
