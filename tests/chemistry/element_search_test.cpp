#include "chemistry/element_search.h"

#include <gtest/gtest.h>

#include <numeric>

namespace orvane {
namespace {

using Found = std::vector<int>;

// A few elements by name; the others have their number alone.
NamesOfElements SomeNames() {
  NamesOfElements names;
  names[5] = {u"C", u"Carbon"};
  names[10] = {u"Na", u"Sodium"};
  names[16] = {u"Cl", u"Chlorine"};
  names[18] = {u"K", u"Potassium"};
  names[25] = {u"Fe", u"Iron"};
  names[52] = {u"I", u"Iodine"};
  names[110] = {u"Uuu", u"Unununium"};
  return names;
}

Found Range(int first, int last) {
  Found found(static_cast<std::size_t>(last - first + 1));
  std::iota(found.begin(), found.end(), first);
  return found;
}

TEST(BeginsWith, ComparesWithoutRegardToCase) {
  EXPECT_TRUE(BeginsWith(u"Sodium", u""));
  EXPECT_TRUE(BeginsWith(u"", u""));
  EXPECT_TRUE(BeginsWith(u"Sodium", u"s"));
  EXPECT_TRUE(BeginsWith(u"Sodium", u"SOD"));
  EXPECT_TRUE(BeginsWith(u"sodium", u"SODIUM"));
  EXPECT_FALSE(BeginsWith(u"Sodium", u"Sodiums"));
  EXPECT_FALSE(BeginsWith(u"Sodium", u"od"));
  EXPECT_FALSE(BeginsWith(u"", u"a"));
}

// Only the letters of ASCII have two cases: "[" and "{" differ by the same bit as "A" and "a".
TEST(BeginsWith, TellsOtherCharactersApart) {
  EXPECT_FALSE(BeginsWith(u"[98]", u"{"));
  EXPECT_FALSE(BeginsWith(u"@", u"`"));
  EXPECT_FALSE(BeginsWith(u"\u00C9", u"\u00E9"));
  EXPECT_TRUE(BeginsWith(u"\u00C9t", u"\u00C9"));
}

TEST(FindElements, AnEmptyTextFindsThemAll) {
  EXPECT_EQ(FindElements(u"", SomeNames()), Range(0, 111));
  EXPECT_EQ(FindElements(u"", {}), Range(0, 111));
}

TEST(FindElements, OneBeginsTwentyFourNumbers) {
  Found expected{0};
  for (int i = 9; i <= 18; ++i) expected.push_back(i);
  for (int i = 99; i <= 111; ++i) expected.push_back(i);
  ASSERT_EQ(expected.size(), 24u);
  EXPECT_EQ(FindElements(u"1", {}), expected);
}

TEST(FindElements, EveryNumberFindsWhatItBegins) {
  for (int number = 1; number <= 112; ++number) {
    Found expected;
    for (int other = 1; other <= 112; ++other) {
      const bool begins = other == number || other / 10 == number || other / 100 == number;
      if (begins) expected.push_back(other - 1);
    }
    EXPECT_EQ(FindElements(DecimalText(number), SomeNames()), expected) << number;
  }
}

TEST(FindElements, NumbersThatNoElementHas) {
  for (const TextView text : {u"0", u"113", u"1000", u"01", u"-1", u" 1", u"1 ", u"1.0"}) {
    EXPECT_EQ(FindElements(text, SomeNames()), Found{}) << ToUtf8(text);
  }
}

TEST(FindElements, SymbolsAndNamesByTheirBeginningInAnyCase) {
  for (const TextView text : {u"c", u"C"}) EXPECT_EQ(FindElements(text, SomeNames()), (Found{5, 16}));
  for (const TextView text : {u"na", u"NA", u"Na", u"nA"}) {
    EXPECT_EQ(FindElements(text, SomeNames()), (Found{10})) << ToUtf8(text);
  }
  EXPECT_EQ(FindElements(u"i", SomeNames()), (Found{25, 52}));  // iron by its name, iodine by both
  EXPECT_EQ(FindElements(u"POTASSIUM", SomeNames()), (Found{18}));
  EXPECT_EQ(FindElements(u"uuu", SomeNames()), (Found{110}));
  EXPECT_EQ(FindElements(u"potassiums", SomeNames()), Found{});
  EXPECT_EQ(FindElements(u"xyz", SomeNames()), Found{});
}

TEST(FindElements, WithoutNamesThereAreStillNumbers) {
  EXPECT_EQ(FindElements(u"11", {}), (Found{10, 109, 110, 111}));
  EXPECT_EQ(FindElements(u"h", {}), Found{});
}

}  // namespace
}  // namespace orvane
