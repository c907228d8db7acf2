// The texts about the elements: complete, short, in one voice and one spelling. Each rule of the voice is a
// function of its own that is held to a text that breaks it, so that no rule passes because it cannot fail.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "data/property_address.h"
#include "tests/content/element_facts.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {
namespace {

using ::testing::IsEmpty;

constexpr int kElements = 112;

// Positions in the category "General", "Electronic and chemical", "Occurrence and use" and "Safety".
constexpr PropertyAddress kAppearance{1, 3};
constexpr PropertyAddress kReferenceForm{1, 5};
constexpr PropertyAddress kDiscoveryYear{1, 7};
constexpr PropertyAddress kDiscoverer{1, 8};
constexpr PropertyAddress kOriginOfName{1, 9};
constexpr PropertyAddress kIonsAndOxides{3, 7};
constexpr PropertyAddress kSources{8, 2};
constexpr PropertyAddress kUses{8, 3};
constexpr PropertyAddress kHazard{9, 0};
constexpr PropertyAddress kRole{9, 1};
constexpr PropertyAddress kLimit{9, 2};
constexpr PropertyAddress kIarcGroup{9, 3};
constexpr PropertyAddress kProse[] = {kAppearance, kReferenceForm, kDiscoverer, kOriginOfName,
                                      kSources,    kUses,          kHazard,     kRole};

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::string LowerCase(std::string text) {
  for (char& c : text) c = static_cast<char>(AsciiLower(static_cast<unsigned char>(c)));
  return text;
}

// Letters of any script count as letters: no byte above 127 ends a word.
std::vector<std::string> WordsOf(const std::string& text) {
  std::vector<std::string> words(1);
  for (const char c : LowerCase(text)) {
    const bool letter = (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) > 127;
    if (letter) {
      words.back() += c;
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  return words;
}

// What breaks the voice of the texts, as a clause, or nothing. A text is a fragment: it begins with a
// capital, a number or a formula, and has no full stop at its end.
std::string Blemish(const std::string& text) {
  if (text.empty()) return "empty";
  if (text.front() >= 'a' && text.front() <= 'z') return "begins with a small letter";
  if (Contains(".,;:", std::string(1, text.back()))) return "ends in punctuation";
  if (text.front() == ' ' || text.back() == ' ') return "a blank at an end";
  if (Contains(text, ". ")) return "more than one sentence";
  for (const char* bad : {"  ", " ,", " ;", " .", "( ", " )", ",,", ";;"}) {
    if (Contains(text, bad)) return std::string("has \"") + bad + "\"";
  }
  for (const char* quote : {"'", "\"", "“", "”", "`"}) {
    if (Contains(text, quote)) return std::string("has the quote ") + quote;
  }
  if (std::count(text.begin(), text.end(), '(') != std::count(text.begin(), text.end(), ')')) {
    return "has an open bracket";
  }
  return {};
}

// Words that a British text spells another way, and names that IUPAC spells another way.
std::string Misspelling(const std::string& text) {
  static const std::set<std::string> kOther = {
      "color",      "colored",   "colorless",  "odor",        "odorless",    "vapor",
      "vapors",     "gray",      "grays",      "armor",       "tumor",       "honor",
      "neighbor",   "fiber",     "fibers",     "meter",       "liter",       "center",
      "mold",       "jewelry",   "aluminum",   "cesium",      "sulphur",     "sulphide",
      "sulphate",   "sulphuric", "hemoglobin", "leukemia",    "anesthesia",  "hematite",
      "ionisation", "oxidised",  "oxidises",   "galvanising", "vulcanising", "fertilisers"};
  for (const std::string& word : WordsOf(text)) {
    if (kOther.count(word) == 1) return word;
  }
  return {};
}

// What is wrong with the form of a year, as a clause, or nothing. Phosphorus, of 1669, is the first element
// with a known discoverer; 2011 is past the last one here.
std::string YearProblem(const std::string& text) {
  if (text.size() != 4 || text.find_first_not_of("0123456789") != std::string::npos) return "not a bare year";
  const int year = std::stoi(text);
  if (year < 1660) return "earlier than any discoverer who is known";
  if (year > 2011) return "later than the last element";
  return {};
}

class ElementsProse : public ::testing::Test {
 protected:
  void SetUp() override {
    CollectingReporter reporter;
    ASSERT_EQ(database_.Load(ORVANE_BIN_DIR "/periodic.dat", reporter), 1);
    ASSERT_THAT(reporter.texts, IsEmpty());
  }

  const ElementProperty& At(PropertyAddress address) const {
    return *database_.FindProperty(address.category, address.property);
  }
  // Without style codes; empty when there is no value.
  std::string Read(PropertyAddress address, int number) const {
    const ElementProperty& property = At(address);
    return property.HasValue(number - 1) ? PlainText(property.Value(number - 1)) : "";
  }
  std::vector<int> ElementsWithout(PropertyAddress address) const {
    std::vector<int> numbers;
    for (int z = 1; z <= kElements; ++z) {
      if (!At(address).HasValue(z - 1)) numbers.push_back(z);
    }
    return numbers;
  }

  ElementsDatabase database_;
};

std::vector<int> Range(int first, int last) {
  std::vector<int> numbers;
  for (int z = first; z <= last; ++z) numbers.push_back(z);
  return numbers;
}

TEST(Blemish, NamesEachBreachOfTheVoice) {
  EXPECT_EQ(Blemish("Soft silvery metal"), "");
  EXPECT_EQ(Blemish("2B as carbon black"), "");
  EXPECT_EQ(Blemish("Latin sulfur ‘brimstone’"), "");
  EXPECT_EQ(Blemish(""), "empty");
  EXPECT_EQ(Blemish("soft metal"), "begins with a small letter");
  EXPECT_EQ(Blemish("Soft metal."), "ends in punctuation");
  EXPECT_EQ(Blemish("Soft metal;"), "ends in punctuation");
  EXPECT_EQ(Blemish("Soft  metal"), "has \"  \"");
  EXPECT_EQ(Blemish("Soft. Hard"), "more than one sentence");
  EXPECT_EQ(Blemish("Soft , hard"), "has \" ,\"");
  EXPECT_EQ(Blemish("Soft metal "), "a blank at an end");
  EXPECT_EQ(Blemish("Goblin's copper"), "has the quote '");
  EXPECT_EQ(Blemish("A \"white\" metal"), "has the quote \"");
  EXPECT_EQ(Blemish("Metal (soft"), "has an open bracket");
}

TEST(Misspelling, FindsTheWordWhereverItStands) {
  EXPECT_EQ(Misspelling("Grey, colourless sulfur and caesium"), "");
  EXPECT_EQ(Misspelling("Soft gray metal"), "gray");
  EXPECT_EQ(Misspelling("Cesium, in traces"), "cesium");
  EXPECT_EQ(Misspelling("Ores of sulphur"), "sulphur");
  EXPECT_EQ(Misspelling("Foil (aluminum)"), "aluminum");
}

TEST(YearProblem, WantsABareYearOfModernTimes) {
  EXPECT_EQ(YearProblem("1669"), "");
  EXPECT_EQ(YearProblem("1996"), "");
  EXPECT_EQ(YearProblem("1250"), "earlier than any discoverer who is known");
  EXPECT_EQ(YearProblem("2019"), "later than the last element");
  EXPECT_EQ(YearProblem("c1800"), "not a bare year");
  EXPECT_EQ(YearProblem("900"), "not a bare year");
}

TEST_F(ElementsProse, DescribesWhatHasBeenSeen) {
  // Never seen in bulk: astatine and francium decay too fast, from fermium on there are single atoms.
  std::vector<int> unseen = {85, 87};
  for (const int z : Range(100, 112)) unseen.push_back(z);
  EXPECT_EQ(ElementsWithout(kAppearance), unseen);
  std::vector<int> withoutForm;
  for (int z = 1; z <= kElements; ++z) {
    if (Read(kReferenceForm, z) == "None: never seen in bulk") withoutForm.push_back(z);
  }
  EXPECT_EQ(withoutForm, unseen);
}

TEST_F(ElementsProse, HasATextForEveryElementWhereOneCanBeGiven) {
  for (const PropertyAddress address :
       {kReferenceForm, kDiscoverer, kOriginOfName, kSources, kUses, kHazard, kRole}) {
    EXPECT_THAT(ElementsWithout(address), IsEmpty()) << ToUtf8(At(address).Name());
  }
}

TEST_F(ElementsProse, KeepsOneVoiceAndOneSpelling) {
  for (const PropertyAddress address : {kAppearance, kReferenceForm, kDiscoverer, kOriginOfName, kSources,
                                        kUses, kHazard, kRole, kIonsAndOxides}) {
    for (int z = 1; z <= kElements; ++z) {
      const std::string text = Read(address, z);
      if (text.empty()) continue;
      EXPECT_EQ(Blemish(text), "") << z << ": " << text;
      EXPECT_EQ(Misspelling(text), "") << z << ": " << text;
    }
  }
  for (const PropertyAddress address : {kLimit, kIarcGroup}) {
    for (int z = 1; z <= kElements; ++z) EXPECT_EQ(Misspelling(Read(address, z)), "") << z;
  }
}

// One thing has one name in all the texts.
TEST_F(ElementsProse, UsesOneTermForOneThing) {
  const char* others[] = {"silvery-white", "silvery white", "rare earth metal", "steelmaking", "by-products",
                          "byproduct",     "seawater",      "radio-active",     "poisonous"};
  for (const PropertyAddress address : kProse) {
    for (int z = 1; z <= kElements; ++z) {
      for (const char* other : others)
        EXPECT_FALSE(Contains(LowerCase(Read(address, z)), other)) << other << z;
    }
  }
}

// Lists cut a text at 255 characters; prose stays far below.
TEST_F(ElementsProse, IsShort) {
  constexpr std::size_t kLongest = 254;
  constexpr std::size_t kShort = 120;
  for (const ElementCategory& category : database_.Categories()) {
    for (const ElementProperty& property : category.Properties()) {
      for (int e = 0; e < kElements; ++e) {
        if (!property.HasValue(e)) continue;
        EXPECT_LE(property.Value(e).size(), kLongest) << ToUtf8(property.Name()) << " of " << e + 1;
      }
    }
  }
  for (const PropertyAddress address : kProse) {
    for (int z = 1; z <= kElements; ++z) {
      if (Read(address, z).empty()) continue;
      EXPECT_LE(At(address).Value(z - 1).size(), kShort) << z << ": " << Read(address, z);
      EXPECT_GE(Read(address, z).size(), 3u) << z;
    }
  }
}

TEST_F(ElementsProse, HasPlausibleDiscoveryYears) {
  for (int z = 1; z <= kElements; ++z) {
    if (!At(kDiscoveryYear).HasValue(z - 1)) continue;
    EXPECT_EQ(YearProblem(Read(kDiscoveryYear, z)), "") << z;
  }
  // What antiquity and the Middle Ages knew.
  EXPECT_EQ(ElementsWithout(kDiscoveryYear), (std::vector<int>{6, 16, 26, 29, 33, 47, 50, 51, 79, 80, 82}));
  for (const int z : ElementsWithout(kDiscoveryYear)) {
    EXPECT_TRUE(Contains(LowerCase(Read(kDiscoverer, z)), "known since antiquity")) << z;
  }
}

// An element found by what another made possible is not older than that.
TEST_F(ElementsProse, OrdersDiscoveriesAsTheyDependOnOneAnother) {
  const auto year = [&](int z) { return std::stoi(Read(kDiscoveryYear, z)); };
  const std::pair<int, int> laterAndEarlier[] = {
      {37, 55},  // rubidium: the spectroscope that found caesium
      {89, 84},  // actinium: in pitchblende, after polonium
      {69, 68},  // thulium came out of erbia
      {67, 68},  // and so did holmium
      {66, 67},  // dysprosium out of holmia
      {71, 70},  // lutetium out of ytterbia
      {60, 57},  // neodymium out of what lanthanum had left
      {36, 18},  // krypton out of the remainder of argon
      {94, 93},  // plutonium grows from neptunium
      {96, 94},  // targets that are bombarded: plutonium, curium, einsteinium
      {98, 96}, {101, 99},
  };
  for (const auto& [later, earlier] : laterAndEarlier) EXPECT_GE(year(later), year(earlier)) << later;
  // From neptunium on, no accelerator reached an element before the one below it by more than four years.
  for (int z = 94; z <= kElements; ++z) EXPECT_GE(year(z) + 5, year(z - 1)) << z;
}

// Contested years, decided in content/facts.
TEST_F(ElementsProse, KeepsTheDecidedYears) {
  const std::map<int, std::string> decided = {{2, "1868"},  {9, "1886"},   {14, "1824"},  {23, "1801"},
                                              {27, "1735"}, {30, "1746"},  {76, "1803"},  {86, "1900"},
                                              {91, "1913"}, {102, "1966"}, {104, "1969"}, {105, "1970"}};
  for (const auto& [z, year] : decided) EXPECT_EQ(Read(kDiscoveryYear, z), year) << z;
}

// "Na+; Na2O, Na2O2 (basic)": formulas of known elements, each list with the element itself, and a character
// behind each run of oxides. The minus of a charge is an en dash.
TEST_F(ElementsProse, GivesIonsAndOxidesTheirCharacter) {
  std::set<std::string> symbols;
  for (int z = 1; z <= kElements; ++z) symbols.insert(ToUtf8(database_.Symbol()->Value(z - 1)));
  const std::regex formula("(?:[A-Z][a-z]?[0-9]*|\\((?:OH|CN)\\)[0-9]*)+(?:[0-9]?(?:\\+|–))?");
  const std::regex symbol("[A-Z][a-z]?");
  const std::regex character(" \\((acidic|basic|amphoteric|neutral)\\)$");
  // Lists that hold words as well.
  const std::set<int> withWords = {1, 9, 14, 35};
  for (int z = 1; z <= kElements; ++z) {
    const std::string text = Read(kIonsAndOxides, z);
    EXPECT_FALSE(Contains(text, "-")) << text;
    if (text.empty() || withWords.count(z) == 1) continue;
    std::string last;
    for (std::size_t begin = 0; begin < text.size();) {
      const std::size_t end = std::min(text.find_first_of(",;", begin), text.size());
      last = text.substr(begin, end - begin);
      begin = end + 2;
      const std::string bare = std::regex_replace(last, character, "");
      EXPECT_TRUE(std::regex_match(bare, formula)) << z << ": " << bare;
      bool hasItself = false;
      for (std::sregex_iterator it(bare.begin(), bare.end(), symbol); it != std::sregex_iterator(); ++it) {
        EXPECT_EQ(symbols.count(it->str()), 1u) << z << ": " << bare;
        hasItself = hasItself || it->str() == ToUtf8(database_.Symbol()->Value(z - 1));
      }
      EXPECT_TRUE(hasItself) << z << ": " << bare;
    }
    const bool endsInIon = last.ends_with('+') || std::regex_search(last, std::regex("–$"));
    EXPECT_NE(std::regex_search(last, character), endsInIon) << z << ": " << text;
  }
  EXPECT_EQ(Read(kIonsAndOxides, 13), "Al3+, Al(OH)4–; Al2O3 (amphoteric)");
}

// What decays away has no ore, and what is made atom by atom has no use.
TEST_F(ElementsProse, SaysOfMadeElementsHowTheyAreMade) {
  for (int z = 101; z <= kElements; ++z) {
    EXPECT_EQ(Read(kSources, z), "Made in accelerators, atom by atom") << z;
    EXPECT_EQ(Read(kUses, z), "Research only") << z;
  }
  for (const int z : {43, 61, 93, 94, 95, 96, 97, 98, 99, 100}) {
    EXPECT_TRUE(Contains(LowerCase(Read(kSources, z)), "reactors")) << z;
  }
}

TEST_F(ElementsProse, WarnsOfEveryRadioactiveElement) {
  for (int z = 1; z <= kElements; ++z) {
    if (z != 43 && z != 61 && z < 84) continue;
    EXPECT_TRUE(Contains(LowerCase(Read(kHazard, z)), "radioactive")) << z;
  }
}

// A limit is a number and its unit, and says for which form when it is not the element's.
TEST_F(ElementsProse, WritesLimitsAndGroupsInOneForm) {
  const std::regex part("(ceiling )?[0-9]+(\\.[0-9]+)? (mg/m3|ppm)( \\([a-z ]+(\\([IV]+\\))?\\))?");
  const std::regex group("(1|2A|2B|3)( as [a-z0-9(), IV-]+)?");
  for (int z = 1; z <= kElements; ++z) {
    const std::string limit = Read(kLimit, z);
    if (!limit.empty()) {
      for (std::size_t begin = 0; begin < limit.size();) {
        const std::size_t end = std::min(limit.find("; ", begin), limit.size());
        EXPECT_TRUE(std::regex_match(limit.substr(begin, end - begin), part)) << z << ": " << limit;
        begin = end + 2;
      }
    }
    const std::string iarc = Read(kIarcGroup, z);
    for (std::size_t begin = 0; begin < iarc.size();) {
      const std::size_t end = std::min(iarc.find("; ", begin), iarc.size());
      EXPECT_TRUE(std::regex_match(iarc.substr(begin, end - begin), group)) << z << ": " << iarc;
      begin = end + 2;
    }
  }
}

// The shares of all elements make up the whole: a kilogram of rock, and a litre of water taken for a
// kilogram. kg.
TEST_F(ElementsProse, HasAbundancesThatAddUp) {
  double crust = 0;
  double sea = 0;
  for (int z = 1; z <= kElements; ++z) {
    const auto number = [&](PropertyAddress address) {
      return At(address).HasValue(z - 1) ? NumberOf(Read(address, z)) : 0.0;
    };
    crust += number({8, 0});
    sea += number({8, 1});
  }
  EXPECT_NEAR(crust, 1e6, 1e4);
  EXPECT_NEAR(sea, 1.0e6, 0.05e6);
}

}  // namespace
}  // namespace orvane::testing
