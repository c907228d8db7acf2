// The content of the constants file itself: complete, checked figure by figure, and fit for the screen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "tests/content/constants_fixture.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kCodata = (kContent / "facts" / "codata_2022.tsv").string();

TEST_F(ConstantsContent, HasItsNineCategoriesInOrder) {
  std::vector<std::string> names;
  std::size_t constants = 0;
  for (const ConstCategorySource& category : source_) {
    names.push_back(ToUtf8(category.name));
    for (const ConstGroupSource& group : category.groups) {
      EXPECT_FALSE(group.constants.empty()) << ToUtf8(group.title);
      EXPECT_TRUE(group.collapsible) << ToUtf8(group.title);
      constants += group.constants.size();
    }
  }
  EXPECT_THAT(names, ElementsAre("Universal and mathematical", "Electromagnetic", "Atomic and nuclear",
                                 "Physico-chemical", "Energy equivalents, atomic units", "Conversion factors",
                                 "Astronomical and Earth", "Aqueous chemistry", "Solvents"));
  EXPECT_EQ(constants, 1011u);
}

TEST_F(ConstantsContent, AgreesWithItsFactsAndFormulasFigureByFigure) {
  CheckFigures(source_, facts_, problems_);
  EXPECT_THAT(Problems(), IsEmpty());
}

// Nothing slips past the check: only what comes from no file, and a few by definition, names nothing that it
// is checked against.
TEST_F(ConstantsContent, EveryFigureThatCanBeCheckedIsChecked) {
  const std::set<std::string> unchecked = {"textbook", "iapws", "orvane", "si-2019", "iau"};
  std::map<std::string, int> checked;
  ForEach([&](const ConstCategorySource& category, const ConstantSource& constant) {
    const bool named = !constant.fact.empty() || !constant.formula.empty();
    EXPECT_TRUE(named || unchecked.count(constant.source) == 1);
    EXPECT_TRUE(category.name != u"Conversion factors" || !constant.formula.empty());
    if (named) ++checked[constant.source];
  });
  EXPECT_GE(checked["codata-2022"], 300);
  EXPECT_GE(checked["units-2.24"], 75);
  EXPECT_GE(checked["minteq-4"], 100);
  EXPECT_GE(checked["obigt"], 15);
  EXPECT_GE(checked["crc-95"], 50);
  EXPECT_GE(checked["marcus-1997"], 60);
  EXPECT_GE(checked["crc-permittivity"], 90);
}

TEST_F(ConstantsContent, HasTheWholeTableOfFundamentalConstants) {
  EXPECT_EQ(ReadTable(kCodata, ReadBytes(kCodata)).rows.size() - 2, 355u);
}

// What is left out says what another constant says: masses in u are relative masses, wavenumbers are per
// centimetre, and the natural units of particle physics are the electron's own figures.
TEST_F(ConstantsContent, EveryFundamentalConstantIsShownOrSaidInOtherWords) {
  std::set<std::string> shown;
  ForEach(
      [&shown](const ConstCategorySource&, const ConstantSource& constant) { shown.insert(constant.fact); });
  const std::vector<std::string> otherWords = {"relative atomic mass", "natural unit",
                                               "inverse meter",        "-kilogram relationship",
                                               "over h-bar c",         "unified atomic mass unit"};
  const std::vector<TableRow> rows = ReadTable(kCodata, ReadBytes(kCodata)).rows;
  for (std::size_t row = 2; row < rows.size(); ++row) {
    const std::string& name = rows[row].cells[0];
    const bool inOtherWords =
        name == "electron volt" ||
        std::any_of(otherWords.begin(), otherWords.end(),
                    [&name](const std::string& part) { return name.find(part) != std::string::npos; });
    EXPECT_TRUE(shown.count(name) == 1 || inOtherWords) << name;
  }
}

// Typed from the published adjustment, not from the tables.
TEST_F(ConstantsContent, ShowsTheBestKnownConstantsAsPublished) {
  const struct {
    TextView name;
    TextView symbol;
    const char* value;
    const char* units;
    const char* remark;
  } cases[] = {
      {u"speed of light in vacuum", u"c", "299 792 458", "m s^-1", "exact"},
      {u"Planck constant", u"h", "6.626 070 15×10–34", "J Hz^-1", "exact"},
      {u"elementary charge", u"e", "1.602 176 634×10–19", "C", "exact"},
      {u"Boltzmann constant", u"k", "1.380 649×10–23", "J K^-1", "exact"},
      {u"Avogadro constant", u"NA", "6.022 140 76×1023", "mol^-1", "exact"},
      {u"electron mass", u"me", "9.109 383 7139×10–31", "kg", "± 0.000 000 0028×10–31"},
      {u"molar gas constant", u"R", "8.314 462 618 153", "J mol^-1 K^-1", "exact, rounded to 13 digits"},
      {u"Faraday constant", u"F", "96 485.332 123 31", "C mol^-1", "exact, rounded to 13 digits"},
      {u"Newtonian constant of gravitation", u"G", "6.674 30×10–11", "m^3 kg^-1 s^-2", "± 0.000 15×10–11"},
      {u"inverse fine-structure constant", u"α–1", "137.035 999 177", "", "± 0.000 000 021"},
      {u"Rydberg constant", u"R∞", "10 973 731.568 157", "m^-1", "± 0.000 012"},
      {u"proton mass in u", u"mp", "1.007 276 466 5789", "u", "± 0.000 000 000 0083"},
      // Published per metre: 2.194 746 313 6314(24)e7, 4.556 335 252 9132(50)e-8, 1.331 025 048 24(41)e-15,
      // 7.513 006 6209(23)e14.
      {u"wavenumbers in a hartree", u"1 Eh", "219 474.631 363 14", "cm^-1", "± 0.000 000 24"},
      {u"hartrees in a wavenumber", u"1 cm–1", "4.556 335 252 9132×10–6", "E_h", "± 0.000 000 000 0050×10–6"},
      {u"daltons in a wavenumber", u"1 cm–1", "1.331 025 048 24×10–13", "u", "± 0.000 000 000 41×10–13"},
      {u"wavenumbers in a dalton", u"1 u", "7.513 006 6209×1012", "cm^-1", "± 0.000 000 0023×1012"},
      // From the permittivity, whose relative uncertainty is 1.6e-10.
      {u"Coulomb constant", u"ke", "8.987 551 7862×109", "N m^2 C^-2", "± 0.000 000 0014×109; 1/(4πε0)"},
  };
  for (const auto& c : cases) {
    const ConstEntry& entry = Named(c.name);
    EXPECT_EQ(ToUtf8(WithoutCodes(entry.symbol)), ToUtf8(c.symbol)) << ToUtf8(c.name);
    EXPECT_EQ(ToUtf8(WithoutCodes(entry.value)), c.value);
    EXPECT_EQ(PlainUnits(entry.units), c.units);
    EXPECT_EQ(ToUtf8(WithoutCodes(entry.remark)), c.remark);
  }
}

// A unit is known symbols, each perhaps with a whole power, with one blank between.
TEST_F(ConstantsContent, UnitsAreWellFormed) {
  const std::set<std::string> known = {
      "m",  "kg", "s", "A",   "K",   "mol",  "J",   "C",    "V",   "W",   "N",   "Pa",  "Hz",  "T", "Wb",
      "S",  "F",  "H", "ohm", "lm",  "sr",   "u",   "eV",   "MeV", "GeV", "E_h", "°C",  "rad", "g", "Gy",
      "Sv", "Bq", "L", "bar", "atm", "Torr", "cal", "kcal", "kJ",  "cm",  "mV",  "MHz", "fm"};
  ForEach([&](const ConstCategorySource&, const ConstantSource& constant) {
    std::string rest = PlainUnits(constant.entry.units);
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find(' '), rest.size());
      const std::string token = rest.substr(0, end);
      const std::size_t power = token.find('^');
      EXPECT_EQ(known.count(token.substr(0, power)), 1u) << token;
      if (power != std::string::npos) {
        const std::string exponent = token.substr(power + 1);
        const std::optional<Decimal> parsed = ParseDecimal(exponent);
        EXPECT_TRUE(parsed && parsed->exponent == 0 && exponent != "0" && exponent != "1") << token;
      }
      EXPECT_NE(end + 1, rest.size()) << "a blank at the end";
      rest.erase(0, end + 1);
    }
  });
}

// Codes come in pairs: what is raised or lowered ends in plain, and nothing else is used.
TEST_F(ConstantsContent, StylesAreRaisedOrLoweredAndEnd) {
  ForEach([](const ConstCategorySource&, const ConstantSource& constant) {
    const ConstEntry& entry = constant.entry;
    for (const Text* text : {&entry.name, &entry.symbol, &entry.value, &entry.units, &entry.remark}) {
      bool open = false;
      TextView rest = *text;
      for (StyledStep step = FirstStep(rest); step.kind != StyledStep::Kind::kEnd; step = FirstStep(rest)) {
        rest.remove_prefix(step.length);
        if (step.kind != StyledStep::Kind::kCode) continue;
        const bool shifted = step.value == kRaisedFlags || step.value == kLoweredFlags;
        EXPECT_TRUE(shifted != open && (shifted || step.value == kPlainFlags)) << ToUtf8(*text);
        open = shifted;
      }
      EXPECT_FALSE(open);
      EXPECT_EQ(text->find(u'\n'), Text::npos);
      // A minus is an en dash; hyphens join words.
      EXPECT_EQ(text->find(u" -"), Text::npos) << ToUtf8(*text);
    }
  });
}

TEST_F(ConstantsContent, SymbolsAndRemarksAreWellFormed) {
  ForEach([](const ConstCategorySource&, const ConstantSource& constant) {
    const ConstEntry& entry = constant.entry;
    EXPECT_FALSE(entry.symbol.empty());
    EXPECT_EQ(WithoutCodes(entry.symbol).find(u"  "), Text::npos);
    const Text remark = WithoutCodes(entry.remark);
    const bool measured = remark.find(u'±') != Text::npos;
    EXPECT_TRUE(!measured || remark.find(u"± ") == 0) << ToUtf8(remark);
    EXPECT_FALSE(measured && remark.find(u"exact") == 0);
  });
}

// What the build compiled is what the tables say.
TEST_F(ConstantsContent, TheBuiltFileSaysWhatTheTablesSay) {
  CollectingReporter reporter;
  ConstantsDatabase database(ORVANE_BIN_DIR "/constants.dat");
  ASSERT_TRUE(database.ReadCategories(reporter));
  ASSERT_EQ(database.Categories().size(), source_.size());
  for (std::size_t c = 0; c < source_.size(); ++c) {
    EXPECT_EQ(database.Categories()[c].name, source_[c].name);
    const auto groups = database.LoadCategory(static_cast<int>(c), reporter);
    ASSERT_TRUE(groups && groups->size() == source_[c].groups.size());
    for (std::size_t g = 0; g < groups->size(); ++g) {
      const ConstGroupSource& written = source_[c].groups[g];
      EXPECT_EQ((*groups)[g].title, written.title);
      EXPECT_EQ((*groups)[g].collapsible, written.collapsible);
      ASSERT_EQ((*groups)[g].constants.size(), written.constants.size());
      for (std::size_t k = 0; k < written.constants.size(); ++k) {
        const ConstEntry& expected = written.constants[k].entry;
        const ConstEntry& actual = (*groups)[g].constants[k];
        EXPECT_EQ(actual.name, expected.name);
        EXPECT_EQ(actual.symbol, expected.symbol);
        EXPECT_EQ(actual.value, expected.value);
        EXPECT_EQ(actual.units, expected.units);
        EXPECT_EQ(actual.remark, expected.remark);
      }
    }
  }
  EXPECT_THAT(reporter.texts, IsEmpty());
}

}  // namespace
}  // namespace orvane::testing
