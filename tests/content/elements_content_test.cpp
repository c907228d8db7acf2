// The content of the elements database itself: what every screen may rely on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "content/elements_source.h"
#include "data/elements_database.h"
#include "tests/content/expected_properties.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

constexpr int kElements = 112;

class ElementsContent : public ::testing::Test {
 protected:
  void SetUp() override {
    CollectingReporter reporter;
    ASSERT_EQ(database_.Load(ORVANE_BIN_DIR "/periodic.dat", reporter), 1);
    ASSERT_THAT(reporter.texts, IsEmpty());
  }

  std::string Value(const ElementProperty* property, int number) const {
    return ToUtf8(property->Value(number - 1));
  }
  const ElementProperty& At(int category, int property) const {
    return *database_.FindProperty(category, property);
  }

  ElementsDatabase database_;
};

std::vector<std::string> Words(const std::string& text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

// Atomic numbers in words such as "3 21-30".
std::vector<int> Numbers(const std::string& ranges) {
  std::vector<int> numbers;
  for (const std::string& word : Words(ranges)) {
    const std::size_t dash = word.find('-');
    const int first = std::stoi(word);
    const int last = dash == std::string::npos ? first : std::stoi(word.substr(dash + 1));
    for (int z = first; z <= last; ++z) numbers.push_back(z);
  }
  return numbers;
}

std::map<std::string, std::vector<int>> Groups(const ElementProperty& property) {
  std::map<std::string, std::vector<int>> groups;
  for (int z = 1; z <= kElements; ++z) groups[ToUtf8(property.Value(z - 1))].push_back(z);
  return groups;
}

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(AsciiLower(static_cast<unsigned char>(c)));
  return text;
}

double Decimal(const std::string& text) {
  std::istringstream in(text);
  in.imbue(std::locale::classic());
  double value = -1;
  in >> value;
  return value;
}

TEST_F(ElementsContent, HasEveryCategoryInItsPlace) {
  std::vector<std::string> names;
  for (const ElementCategory& category : database_.Categories()) names.push_back(ToUtf8(category.Name()));
  EXPECT_THAT(names, ElementsAreArray(kExpectedCategories));
}

// Ids run on from table to table, so that the id of a property follows from its place.
TEST_F(ElementsContent, HasEveryPropertyAtItsPlaceWithTheCoverageStated) {
  int nextId = 0;
  for (const ExpectedProperty& expected : kExpectedProperties) {
    SCOPED_TRACE(expected.name);
    EXPECT_EQ(expected.id, nextId++);
    const ElementProperty* property = database_.FindProperty(expected.category, expected.property);
    ASSERT_NE(property, nullptr);
    EXPECT_EQ(property->Id(), expected.id);
    EXPECT_EQ(ToUtf8(property->Name()), expected.name);
    EXPECT_EQ(ToUtf8(property->Units()), expected.units);
    EXPECT_EQ(property->IsPlottable(), expected.plottable);
    EXPECT_EQ(property->ValueCount(), expected.values);
  }
  int properties = 0;
  for (const ElementCategory& category : database_.Categories()) properties += category.PropertyCount();
  EXPECT_EQ(properties, nextId);
}

TEST_F(ElementsContent, HasThePlotsAxesWhereThePlotLooksForThem) {
  const ElementProperty& number = At(2, 0);
  EXPECT_EQ(number.Id(), 15);
  EXPECT_TRUE(number.IsPlottable());
  for (int z = 1; z <= kElements; ++z) EXPECT_EQ(Value(&number, z), std::to_string(z));
  const ElementProperty& energy = At(2, 5);
  EXPECT_EQ(energy.Id(), 20);
  EXPECT_TRUE(energy.IsPlottable());
  EXPECT_EQ(energy.Units(), u" kJ/mol");
}

TEST_F(ElementsContent, NamesEveryElementOnce) {
  std::set<std::string> symbols;
  std::set<std::string> names;
  for (int z = 1; z <= kElements; ++z) {
    symbols.insert(Lower(Value(database_.Symbol(), z)));
    names.insert(Lower(Value(database_.Name(), z)));
    EXPECT_NE(Value(database_.Name(), z), "");
  }
  EXPECT_EQ(symbols.size(), 112u);
  EXPECT_EQ(names.size(), 112u);
}

TEST_F(ElementsContent, HasTheSymbolsInOrder) {
  const std::vector<std::string> symbols = Words(
      "H He Li Be B C N O F Ne Na Mg Al Si P S Cl Ar K Ca Sc Ti V Cr Mn Fe Co Ni Cu Zn Ga Ge As Se Br Kr "
      "Rb Sr Y Zr Nb Mo Tc Ru Rh Pd Ag Cd In Sn Sb Te I Xe Cs Ba La Ce Pr Nd Pm Sm Eu Gd Tb Dy Ho Er Tm Yb "
      "Lu "
      "Hf Ta W Re Os Ir Pt Au Hg Tl Pb Bi Po At Rn Fr Ra Ac Th Pa U Np Pu Am Cm Bk Cf Es Fm Md No Lr "
      "Rf Db Sg Bh Hs Mt Ds Rg Uub");
  ASSERT_EQ(symbols.size(), 112u);
  for (int z = 1; z <= kElements; ++z) {
    EXPECT_EQ(Value(database_.Symbol(), z), symbols[static_cast<std::size_t>(z - 1)]);
  }
}

TEST_F(ElementsContent, SpellsNamesAsIupacDoes) {
  const std::map<int, std::string> names = {
      {1, "Hydrogen"},  {13, "Aluminium"}, {15, "Phosphorus"},    {16, "Sulfur"},           {55, "Caesium"},
      {74, "Tungsten"}, {80, "Mercury"},   {110, "Darmstadtium"}, {112, "Copernicium (Cn)"}};
  for (const auto& [z, name] : names) EXPECT_EQ(Value(database_.Name(), z), name);
}

// A cyanide typed in lower case must stay one.
TEST_F(ElementsContent, KeepsTheLettersCnForCarbonAndNitrogen) {
  for (int z = 1; z <= kElements; ++z) EXPECT_NE(Lower(Value(database_.Symbol(), z)), "cn");
}

TEST_F(ElementsContent, WritesMassesAsStandardAtomicWeightsOrMassNumbers) {
  const std::map<int, std::string> massNumbers = {
      {43, "[97]"},   {61, "[145]"},  {84, "[209]"},  {85, "[210]"},  {86, "[222]"},  {87, "[223]"},
      {88, "[226]"},  {89, "[227]"},  {93, "[237]"},  {94, "[244]"},  {95, "[243]"},  {96, "[247]"},
      {97, "[247]"},  {98, "[251]"},  {99, "[252]"},  {100, "[257]"}, {101, "[258]"}, {102, "[259]"},
      {103, "[262]"}, {104, "[267]"}, {105, "[268]"}, {106, "[269]"}, {107, "[270]"}, {108, "[269]"},
      {109, "[277]"}, {110, "[281]"}, {111, "[282]"}, {112, "[285]"}};
  ASSERT_EQ(massNumbers.size(), 28u);
  for (int z = 1; z <= kElements; ++z) {
    const std::string mass = Value(database_.AtomicMass(), z);
    const auto bracketed = massNumbers.find(z);
    if (bracketed != massNumbers.end()) {
      EXPECT_EQ(mass, bracketed->second) << z;
    } else {
      EXPECT_TRUE(IsBareDecimal(database_.AtomicMass()->Value(z - 1))) << mass;
      EXPECT_NE(mass.find('.'), std::string::npos) << mass;
    }
  }
}

TEST_F(ElementsContent, AbridgesIntervalsAndFollowsTheRevisionOf2024) {
  const std::map<int, std::string> masses = {{1, "1.008"},
                                             {3, "6.94"},
                                             {5, "10.81"},
                                             {6, "12.011"},
                                             {7, "14.007"},
                                             {8, "15.999"},
                                             {12, "24.305"},
                                             {14, "28.085"},
                                             {16, "32.06"},
                                             {17, "35.45"},
                                             {18, "39.95"},
                                             {35, "79.904"},
                                             {81, "204.38"},
                                             {82, "207.2"},
                                             {40, "91.222"},
                                             {64, "157.249"},
                                             {71, "174.96669"},
                                             // Significant zeros stay.
                                             {32, "72.630"},
                                             {50, "118.710"},
                                             {52, "127.60"},
                                             {66, "162.500"},
                                             {83, "208.98040"},
                                             // Long-lived elements with a standard atomic weight.
                                             {90, "232.0377"},
                                             {91, "231.03588"},
                                             {92, "238.02891"}};
  for (const auto& [z, mass] : masses) EXPECT_EQ(Value(database_.AtomicMass(), z), mass) << z;
}

TEST_F(ElementsContent, PutsEveryElementIntoItsFamily) {
  const std::map<std::string, std::string> families = {{"A", "3 11 19 37 55 87"},
                                                       {"B", "4 12 20 38 56 88"},
                                                       {"C", "21-30 39-48 72-80"},
                                                       {"D", "13 31 32 49-51 81-84"},
                                                       {"E", "1 5-8 14-16 33 34 52"},
                                                       {"F", "2 10 18 36 54 86"},
                                                       {"G", "89-103"},
                                                       {"H", "57-71"},
                                                       {"I", "9 17 35 53 85"},
                                                       {"J", "104-112"}};
  const std::map<std::string, std::size_t> counts = {{"A", 6}, {"B", 6},  {"C", 29}, {"D", 10}, {"E", 11},
                                                     {"F", 6}, {"G", 15}, {"H", 15}, {"I", 5},  {"J", 9}};
  const auto groups = Groups(*database_.Family());
  ASSERT_EQ(groups.size(), families.size());
  for (const auto& [letter, ranges] : families) {
    EXPECT_EQ(groups.at(letter), Numbers(ranges)) << letter;
    EXPECT_EQ(groups.at(letter).size(), counts.at(letter)) << letter;
  }
}

TEST_F(ElementsContent, PutsEveryElementIntoItsBlock) {
  const std::map<std::string, std::string> blocks = {{"S", "1-4 11 12 19 20 37 38 55 56 87 88"},
                                                     {"P", "5-10 13-18 31-36 49-54 81-86"},
                                                     {"D", "21-30 39-48 57 72-80 89 104-112"},
                                                     {"F", "58-71 90-103"}};
  const auto groups = Groups(*database_.Block());
  ASSERT_EQ(groups.size(), blocks.size());
  for (const auto& [letter, ranges] : blocks) EXPECT_EQ(groups.at(letter), Numbers(ranges)) << letter;
}

TEST_F(ElementsContent, GivesGroupsToAllButTheFBlock) {
  for (int z = 1; z <= kElements; ++z) {
    const bool inFBlock = Value(database_.Block(), z) == "F";
    EXPECT_EQ(At(1, 0).HasValue(z - 1), !inFBlock) << z;
  }
  EXPECT_EQ(Value(&At(1, 0), 2), "18");
  EXPECT_EQ(Value(&At(1, 0), 57), "3");
  EXPECT_EQ(Value(&At(1, 0), 112), "12");
  const int periodEnds[] = {2, 10, 18, 36, 54, 86, 112};
  for (int z = 1; z <= kElements; ++z) {
    const auto period =
        std::lower_bound(std::begin(periodEnds), std::end(periodEnds), z) - std::begin(periodEnds) + 1;
    EXPECT_EQ(Value(&At(1, 1), z), std::to_string(period)) << z;
  }
}

// The last digit of a CAS number is the sum of the others, each times its place from the right, modulo 10.
TEST_F(ElementsContent, HasCasNumbersWithSoundCheckDigits) {
  std::set<std::string> seen;
  for (int z = 1; z <= kElements; ++z) {
    const std::string cas = Value(&At(1, 2), z);
    EXPECT_TRUE(seen.insert(cas).second) << cas;
    std::string digits = cas;
    digits.erase(std::remove(digits.begin(), digits.end(), '-'), digits.end());
    ASSERT_GE(digits.size(), 5u) << z;
    EXPECT_EQ(cas, digits.substr(0, digits.size() - 3) + "-" + digits.substr(digits.size() - 3, 2) + "-" +
                       digits.back());
    int sum = 0;
    for (std::size_t place = 1; place < digits.size(); ++place) {
      sum += static_cast<int>(place) * (digits[digits.size() - 1 - place] - '0');
    }
    EXPECT_EQ(sum % 10, digits.back() - '0') << cas;
  }
}

TEST_F(ElementsContent, KnowsTheStateOfEveryElementButTheLast) {
  const auto groups = Groups(At(1, 4));
  EXPECT_EQ(groups.at("Gas"), Numbers("1 2 7-10 17 18 36 54 86"));
  EXPECT_EQ(groups.at("Liquid"), Numbers("35 80"));
  EXPECT_EQ(groups.at("Solid (predicted)"), Numbers("85 87 100-111"));
  EXPECT_EQ(groups.at(""), Numbers("112"));
  EXPECT_EQ(groups.at("Solid").size(), 112u - 11 - 2 - 14 - 1);
}

TEST_F(ElementsContent, GivesGasesGasDensities) {
  for (int z = 1; z <= kElements; ++z) {
    if (!At(1, 6).HasValue(z - 1)) continue;
    const double density = Decimal(Value(&At(1, 6), z));
    const bool isGas = Value(&At(1, 4), z) == "Gas";
    EXPECT_GT(density, isGas ? 0.00005 : 0.5) << z;
    EXPECT_LT(density, isGas ? 0.01 : 22.7) << z;
  }
}

TEST_F(ElementsContent, HasFirstIonizationEnergiesUpToLawrencium) {
  const ElementProperty& energy = At(2, 5);
  for (int z = 1; z <= 103; ++z) ASSERT_TRUE(energy.HasValue(z - 1)) << z;
  // Caesium's neighbour francium and helium bound the range.
  for (int z = 1; z <= 103; ++z) {
    EXPECT_GE(Decimal(Value(&energy, z)), 375.7) << z;
    EXPECT_LE(Decimal(Value(&energy, z)), 2372.3) << z;
  }
  // 13.598434599702 eV, 24.587389011 eV, 9.225554 eV, each times 96.48533212.
  EXPECT_EQ(Value(&energy, 1), "1312.0");
  EXPECT_EQ(Value(&energy, 2), "2372.3");
  EXPECT_EQ(Value(&energy, 79), "890.1");
  // Values that older collections have otherwise.
  EXPECT_EQ(Value(&energy, 73), "728.4");
  EXPECT_EQ(Value(&energy, 77), "865.2");
  EXPECT_EQ(Value(&energy, 43), "686.9");
}

TEST_F(ElementsContent, GivesRadii) {
  EXPECT_EQ(Value(&At(2, 2), 6), "76");
  EXPECT_EQ(Value(&At(2, 2), 26), "132");
  EXPECT_EQ(Value(&At(2, 4), 26),
            "+2: 78 (high spin) or 61 (low spin), +3: 64.5 (high spin) or 55 (low spin), +4: 58.5, +6: 25 "
            "(4-fold)");
  EXPECT_EQ(Value(&At(2, 4), 17), "–1: 181, +5: 12 (pyramid), +7: 27");
}

}  // namespace
}  // namespace orvane::testing
