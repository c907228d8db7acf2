// The constants of solutions: what two collections say of them, and how they hang together.
#include <cmath>
#include <map>

#include "tests/content/constants_fixture.h"

namespace orvane::testing {
namespace {

// "{name}" behind any factor: the name of the fact that a formula rests on.
std::string FactIn(const std::string& formula) {
  const std::size_t open = formula.find('{');
  return open == std::string::npos ? "" : formula.substr(open + 1, formula.find('}') - open - 1);
}

class AqueousContent : public ConstantsContent {
 protected:
  long double ValueOfFact(const std::string& name) const {
    const Fact* fact = facts_.Find(name);
    const std::optional<Decimal> figure = fact == nullptr ? std::nullopt : ParseDecimal(fact->value);
    return figure ? ValueOf(*figure) : std::nanl("");
  }
};

// A number as the tables write it, an en dash for its minus; what stands behind it is not read.
long double Volts(std::string text) {
  if (const std::size_t dash = text.find("–"); dash == 0) text.replace(0, std::string("–").size(), "-");
  if (!text.empty() && text[0] == '+') text.erase(0, 1);
  const std::optional<Decimal> figure = ParseDecimal(text.substr(0, text.find(' ')));
  return figure ? ValueOf(*figure) : std::nanl("");
}

// "Fe^{3+}/Fe^{2+}" of "Fe^{3+} + e^{–} → Fe^{2+}"; nothing where more than electrons comes in.
std::string CoupleOf(const std::string& reduction) {
  const std::size_t plus = reduction.find(" + ");
  const std::size_t arrow = reduction.find("e^{–} → ");
  if (plus == std::string::npos || arrow == std::string::npos || arrow > plus + 5) return "";
  return reduction.substr(0, plus) + "/" + reduction.substr(arrow + std::string("e^{–} → ").size());
}

// A solubility product and its negative logarithm say the same.
TEST_F(AqueousContent, SolubilityProductsAgreeWithTheirLogarithms) {
  int products = 0;
  ForEach([&products](const ConstCategorySource&, const ConstantSource& constant) {
    if (WithoutCodes(constant.entry.symbol) != u"Ksp") return;
    const std::string remark = ToUtf8(WithoutCodes(constant.entry.remark));
    ASSERT_EQ(remark.rfind("pKsp = ", 0), 0u);
    const std::optional<Decimal> logarithm = ParseDecimal(remark.substr(7, remark.find(';') - 7));
    const std::optional<Decimal> shown = ParseShownFigure(constant.entry.value);
    ASSERT_TRUE(logarithm && shown);
    const long double product = std::pow(10.0L, -ValueOf(*logarithm));
    EXPECT_LE(std::fabs(product - ValueOf(*shown)), 0.501L * LastPlace(*shown));
    ++products;
  });
  EXPECT_EQ(products, 57);
}

// The series runs from the strongest reducing agent to the strongest oxidising one.
TEST_F(AqueousContent, PotentialsRise) {
  long double last = -10;
  int potentials = 0;
  ForEach([&](const ConstCategorySource&, const ConstantSource& constant) {
    if (constant.entry.symbol != u"E°") return;
    const std::optional<Decimal> shown = ParseShownFigure(constant.entry.value);
    ASSERT_TRUE(shown);
    EXPECT_GE(ValueOf(*shown), last - 0.006L);
    last = ValueOf(*shown);
    ++potentials;
  });
  EXPECT_GE(potentials, 85);
}

// Decimals are as many as two collections of free energies bear: three when they agree within 2 mV, two
// within 10 mV, and beyond that a computed value is not shown at all.
TEST_F(AqueousContent, PotentialsAreAsExactAsTwoCollectionsAgree) {
  int compared = 0;
  ForEach([&](const ConstCategorySource&, const ConstantSource& constant) {
    if (constant.entry.symbol != u"E°" || constant.source != "crc-95") return;
    const std::string name = FactIn(constant.formula);
    const long double difference = std::fabs(ValueOfFact(name) - ValueOfFact(name + " (second)"));
    if (std::isnan(difference)) return;
    EXPECT_LE(difference, 0.010L);
    const std::optional<Decimal> shown = ParseShownFigure(constant.entry.value);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->exponent, difference > 0.002L ? -2 : -3);
    ++compared;
  });
  EXPECT_GE(compared, 40);
}

// The periodic table tells the same potentials, rounded to a hundredth.
TEST_F(AqueousContent, TheElementsTellTheSamePotentials) {
  std::map<std::string, long double> series;
  const std::string constants = (kContent / "constants" / "7_aqueous.tsv").string();
  for (const TableRow& row : ReadTable(constants, ReadBytes(constants)).rows) {
    if (row.cells.size() > 2 && row.cells[1] == "E°") series[CoupleOf(row.cells[0])] = Volts(row.cells[2]);
  }
  const std::string elements = (kContent / "elements" / "3_electronic_and_chemical.tsv").string();
  const std::vector<TableRow> rows = ReadTable(elements, ReadBytes(elements)).rows;
  const std::vector<std::string>& names = rows[2].cells;
  const auto column = std::find(names.begin(), names.end(), "Standard electrode potential") - names.begin();
  int compared = 0;
  for (std::size_t row = 6; row < rows.size(); ++row) {
    std::string rest = rows[row].cells.at(static_cast<std::size_t>(column));
    while (!rest.empty()) {
      const std::string couple = rest.substr(0, rest.find(", "));
      rest.erase(0, couple.size() + 2);
      const std::size_t colon = couple.find(": ");
      const auto found = series.find(couple.substr(0, colon));
      if (colon == std::string::npos || found == series.end()) continue;
      EXPECT_NEAR(static_cast<double>(Volts(couple.substr(colon + 2))), static_cast<double>(found->second),
                  0.00501)
          << couple;
      ++compared;
    }
  }
  EXPECT_GE(compared, 30);
}

// A conductivity on which two collections differ by more than three hundredths says so.
TEST_F(AqueousContent, ConductivitiesSayWhereCollectionsDiffer) {
  int compared = 0;
  ForEach([&](const ConstCategorySource&, const ConstantSource& constant) {
    const std::string name = FactIn(constant.formula);
    if (constant.source != "marcus-1997") return;
    const std::size_t sign = name.find_last_of("+-");
    ASSERT_NE(sign, std::string::npos);
    const int charge = sign + 1 < name.size() ? name[sign + 1] - '0' : 1;
    const long double second = charge * ValueOfFact("equivalent " + name);
    if (std::isnan(second)) return;
    const bool differ = std::fabs(second / ValueOfFact(name) - 1) > 0.03L;
    EXPECT_EQ(constant.entry.remark == u"collections differ", differ);
    ++compared;
  });
  EXPECT_GE(compared, 50);
}

// The remark begins with the temperature of the fact, which is in kelvin, in degrees Celsius.
TEST_F(AqueousContent, PermittivitiesAreAtTheTemperatureOfTheirRemark) {
  int permittivities = 0;
  ForEach([&](const ConstCategorySource&, const ConstantSource& constant) {
    if (constant.source != "crc-permittivity") return;
    const std::string name = FactIn(constant.formula);
    const std::size_t at = name.rfind(" at ");
    ASSERT_NE(at, std::string::npos);
    const std::string kelvins = name.substr(at + 4, name.size() - at - 6);
    const std::string remark = ToUtf8(constant.entry.remark);
    const std::optional<Decimal> celsius = ParseDecimal(remark.substr(0, remark.find(" °C")));
    ASSERT_TRUE(celsius) << remark;
    const long double difference = ValueOf(*ParseDecimal(kelvins)) - 273.15L - ValueOf(*celsius);
    EXPECT_LE(std::fabs(difference), kelvins.find('.') == std::string::npos ? 0.5L : 0.06L) << name;
    ++permittivities;
  });
  EXPECT_GE(permittivities, 90);
}

// Each step of an acid is weaker than the one before.
TEST_F(AqueousContent, LaterProtonsLeaveLessEasily) {
  for (const ConstCategorySource& category : source_) {
    for (const ConstGroupSource& group : category.groups) {
      int lastStep = 0;
      long double lastValue = 0;
      for (const ConstantSource& constant : group.constants) {
        const Text symbol = WithoutCodes(constant.entry.symbol);
        const int step = symbol.rfind(u"pKa", 0) == 0 && symbol.size() == 4 ? symbol[3] - u'0' : 0;
        const std::optional<Decimal> shown = ParseShownFigure(constant.entry.value);
        if (step > 1 && step == lastStep + 1) {
          ASSERT_TRUE(shown);
          EXPECT_GT(ValueOf(*shown), lastValue) << ToUtf8(constant.entry.name);
        }
        lastStep = step;
        lastValue = shown ? ValueOf(*shown) : 0;
      }
    }
  }
}

}  // namespace
}  // namespace orvane::testing
