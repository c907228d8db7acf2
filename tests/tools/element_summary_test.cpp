// The summary list in the database: order, positions, texts.
#include "tools/element_summary.h"

#include <limits>

#include "tests/tools/wnd_element_fixture.h"

namespace orvane {
namespace {

class ElementSummaryTest : public ::testing::Test {
 protected:
  ElementSummaryTest() { testing::LoadElementViewData(elements_); }
  ElementProperty& At(int category, int property) { return *elements_.FindProperty(category, property); }
  void Set(const PropertyList& list) { SetSummary(elements_, list); }
  PropertyList Of(int element) { return SummaryOf(elements_, element); }
  ElementsDatabase elements_;
};

TEST_F(ElementSummaryTest, TheBuiltInListHasSevenProperties) {
  const PropertyList expected{{3, 5}, {3, 1}, {3, 2}, {4, 0}, {4, 1}, {1, 4}, {1, 6}};
  EXPECT_EQ(PropertyList(BuiltInSummary().begin(), BuiltInSummary().end()), expected);
}

TEST_F(ElementSummaryTest, EntryKComesToPositionK) {
  Set({{1, 2}, {3, 0}, {0, 1}});
  EXPECT_TRUE(At(1, 2).inSummary);
  EXPECT_EQ(At(1, 2).summaryPosition, 0);
  EXPECT_EQ(At(3, 0).summaryPosition, 1);
  EXPECT_EQ(At(0, 1).summaryPosition, 2);
  EXPECT_EQ(Of(5), (PropertyList{{1, 2}, {3, 0}, {0, 1}}));
}

TEST_F(ElementSummaryTest, SettingReplacesWhatWasThere) {
  Set({{1, 2}, {3, 0}});
  Set({{1, 3}});
  EXPECT_FALSE(At(1, 2).inSummary);
  EXPECT_EQ(Of(0), (PropertyList{{1, 3}}));
  Set({});
  EXPECT_EQ(Of(0), PropertyList{});
}

TEST_F(ElementSummaryTest, AddressesOutsideTheDatabaseAreLeftOut) {
  Set({{99, 0}, {1, 2}, {-1, 0}, {1, 77}, {3, 0}, {2'000'000'000, -2'000'000'000}});
  EXPECT_EQ(Of(0), (PropertyList{{1, 2}, {3, 0}}));
  EXPECT_EQ(At(1, 2).summaryPosition, 1);
  EXPECT_EQ(At(3, 0).summaryPosition, 4);
}

TEST_F(ElementSummaryTest, OfARepeatedEntryTheLastPositionCounts) {
  Set({{1, 2}, {3, 0}, {1, 2}});
  EXPECT_EQ(Of(0), (PropertyList{{3, 0}, {1, 2}}));
}

TEST_F(ElementSummaryTest, PropertiesWithoutAValueAreOmitted) {
  Set({{4, 1}, {2, 0}, {1, 0}});
  EXPECT_EQ(Of(0), (PropertyList{{4, 1}, {1, 0}}));
  EXPECT_EQ(Of(1), (PropertyList{{2, 0}, {1, 0}}));
  EXPECT_EQ(Of(2), (PropertyList{{1, 0}}));
  EXPECT_EQ(Of(-1), PropertyList{});
}

TEST_F(ElementSummaryTest, OfSeveralAtOnePositionOnlyTheFirstInTheDatabaseShows) {
  Set({{3, 4}, {1, 1}, {0, 1}});
  At(3, 4).summaryPosition = 1;
  EXPECT_EQ(Of(0), (PropertyList{{1, 1}, {0, 1}}));
  // One without a value for the element does not count.
  Set({{2, 0}, {3, 4}});
  At(3, 4).summaryPosition = 0;
  EXPECT_EQ(Of(0), (PropertyList{{3, 4}}));
  EXPECT_EQ(Of(1), (PropertyList{{2, 0}}));
}

TEST_F(ElementSummaryTest, AddingPutsAPropertyBehindAllOthers) {
  AddToSummary(elements_, {3, 2});
  EXPECT_EQ(At(3, 2).summaryPosition, 0);
  AddToSummary(elements_, {1, 0});
  EXPECT_EQ(At(1, 0).summaryPosition, 1);
  AddToSummary(elements_, {3, 2});
  EXPECT_EQ(At(3, 2).summaryPosition, 2);
  EXPECT_EQ(Of(0), (PropertyList{{1, 0}, {3, 2}}));
  AddToSummary(elements_, {77, 0});
  EXPECT_EQ(Of(0).size(), 2u);
}

// Also behind those that this element has no value for.
TEST_F(ElementSummaryTest, AddingCountsWhatDoesNotShow) {
  Set({{1, 0}, {2, 0}});
  AddToSummary(elements_, {1, 1});
  EXPECT_EQ(At(1, 1).summaryPosition, 2);
}

TEST_F(ElementSummaryTest, PositionsAtTheEndOfTheNumbersStartAgain) {
  Set({{1, 0}, {3, 3}, {1, 1}});
  At(3, 3).summaryPosition = std::numeric_limits<std::int32_t>::max();
  AddToSummary(elements_, {1, 2});
  EXPECT_EQ(Of(0), (PropertyList{{1, 0}, {1, 1}, {3, 3}, {1, 2}}));
  EXPECT_EQ(At(1, 2).summaryPosition, 3);
}

TEST_F(ElementSummaryTest, RemovingAndExchanging) {
  Set({{1, 0}, {1, 1}, {1, 2}});
  ExchangePositions(elements_, {1, 0}, {1, 2});
  EXPECT_EQ(Of(0), (PropertyList{{1, 2}, {1, 1}, {1, 0}}));
  RemoveFromSummary(elements_, {1, 1});
  EXPECT_EQ(Of(0), (PropertyList{{1, 2}, {1, 0}}));
  EXPECT_FALSE(IsInSummary(elements_, {1, 1}));
  EXPECT_TRUE(IsInSummary(elements_, {1, 2}));
  EXPECT_FALSE(IsInSummary(elements_, {50, 50}));
  RemoveFromSummary(elements_, {50, 50});
  ExchangePositions(elements_, {1, 0}, {50, 50});
  EXPECT_EQ(Of(0), (PropertyList{{1, 2}, {1, 0}}));
}

TEST_F(ElementSummaryTest, FamiliesAndBlocksAreShownAsTexts) {
  EXPECT_EQ(ShownValue(At(0, 3), 0), u"Alkali metal");
  EXPECT_EQ(ShownValue(At(0, 3), 1), u"Halogen");
  EXPECT_EQ(ShownValue(At(0, 4), 0), u"s-block");
  EXPECT_EQ(ShownValue(At(0, 4), 1), u"p-block");
  EXPECT_EQ(ShownValue(At(0, 2), 0), u"1.008");
  EXPECT_EQ(FamilyLineText(elements_, 0), u"Alkali metal");
  EXPECT_EQ(BlockLineText(elements_, 1), u"p-block");
}

TEST_F(ElementSummaryTest, UnknownCodes) {
  testing::LoadElementViewData(elements_, {.family = u"Q", .block = u"G"});
  EXPECT_EQ(ShownValue(At(0, 3), 0), u"");
  EXPECT_EQ(ShownValue(At(0, 4), 0), u"G");
  EXPECT_EQ(FamilyLineText(elements_, 0), u"");
  EXPECT_EQ(BlockLineText(elements_, 0), u"s-block");
  elements_.Free();
  EXPECT_EQ(FamilyLineText(elements_, 0), u"");
  EXPECT_EQ(BlockLineText(elements_, 0), u"s-block");
}

TEST_F(ElementSummaryTest, ARowIsABoldNameAndAPlainValue) {
  EXPECT_EQ(SummaryRowText(At(3, 5), 0), u"\x0001!P35: \x0001  3.5 U35");
  EXPECT_EQ(SummaryRowText(At(0, 3), 0), u"\x0001!Family: \x0001  Alkali metal");
}

TEST_F(ElementSummaryTest, CopiesHaveNoCodesAndAreBounded) {
  EXPECT_EQ(CopyText(u"10\x0001\x00A0"
                     u"5\x0001 ",
                     u" m\x0001\x00A0"
                     u"3"),
            u"105 m3");
  EXPECT_EQ(CopyText(u"", u""), u"");
  EXPECT_EQ(CopyText(Text(300, u'x'), u" g"), Text(254, u'x'));
  EXPECT_EQ(CopyText(Text(253, u'x'), u" g"), Text(253, u'x') + u" ");
  EXPECT_EQ(CopyText(Text(253, u'x'), u"\xD83D\xDE00"), Text(253, u'x'));
}

TEST_F(ElementSummaryTest, CountsItsProperties) {
  EXPECT_EQ(PropertyCount(elements_), 5 + 7 + 1 + 6 + 2);
  elements_.Free();
  EXPECT_EQ(PropertyCount(elements_), 0);
}

}  // namespace
}  // namespace orvane
