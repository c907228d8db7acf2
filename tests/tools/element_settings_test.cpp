// What the element view reads at the start and writes at the end.
#include "tests/tools/wnd_element_fixture.h"

namespace orvane {
namespace {

using testing::kBuiltInRows;
using testing::WndElementTest;
using Strings = std::vector<std::string>;

const char* const kBuiltInList = "3.5 3.1 3.2 4.0 4.1 1.4 1.6";

TEST_F(WndElementTest, DefaultsOfAFirstRun) {
  Make();
  const ElementSettings& settings = tool_->Settings();
  EXPECT_TRUE(settings.doSummary);
  EXPECT_EQ(settings.initialView, 0);
  EXPECT_TRUE(settings.showMainProperties);
  EXPECT_TRUE(settings.showFamilyAndBlock);
  for (const ElementPreset& preset : settings.presets) {
    EXPECT_TRUE(preset.showMain);
    EXPECT_TRUE(preset.showFamily);
    EXPECT_EQ(preset.list, PropertyList(BuiltInSummary().begin(), BuiltInSummary().end()));
  }
  int position = 0;
  for (const PropertyAddress& address : BuiltInSummary()) {
    const ElementProperty* property = FindProperty(elements_, address);
    EXPECT_TRUE(property->inSummary);
    EXPECT_EQ(property->summaryPosition, position++);
  }
}

TEST_F(WndElementTest, AStoredValueWinsOverItsDefault) {
  for (const char* name : {"DoSummary", "ShowMainProperties", "ShowFamilyAndBlock", "Preset[0].ShowMain",
                           "Preset[1].ShowFamily"}) {
    StoreLong(name, 0);
  }
  StoreLong("InitialView", 2);
  StoreLong("Preset[2].Count", 2);
  StoreLong("Preset[2].Cat[0]", 1);
  StoreLong("Preset[2].Val[0]", 3);
  StoreLong("Preset[2].Val[1]", 2);  // without a category: 0
  Make();
  const ElementSettings& settings = tool_->Settings();
  EXPECT_FALSE(settings.doSummary);
  EXPECT_EQ(settings.initialView, 2);
  EXPECT_FALSE(settings.showMainProperties);
  EXPECT_FALSE(settings.showFamilyAndBlock);
  EXPECT_FALSE(settings.presets[0].showMain);
  EXPECT_TRUE(settings.presets[0].showFamily);
  EXPECT_FALSE(settings.presets[1].showFamily);
  EXPECT_EQ(settings.presets[2].list, (PropertyList{{1, 3}, {0, 2}}));
  EXPECT_EQ(settings.presets[1].list.size(), 7u);
}

TEST_F(WndElementTest, AStoredCountOfZeroIsAnEmptyList) {
  StoreLong("Last.Count", 0);
  StoreLong("Preset[0].Count", 0);
  MakeAndShow();
  EXPECT_EQ(Rows(), Strings{});
  EXPECT_TRUE(tool_->Settings().presets[0].list.empty());
}

TEST_F(WndElementTest, AStoredListReplacesTheMarks) {
  elements_.FindProperty(1, 1)->inSummary = true;
  StoreLong("Last.Count", 1);
  StoreLong("Last.Cat[0]", 3);
  StoreLong("Last.Val[0]", 3);
  MakeAndShow();
  EXPECT_EQ(Rows(), Strings{"3.3"});
}

TEST_F(WndElementTest, AbsurdCountsAreBounded) {
  StoreLong("Last.Count", 2'000'000'000);
  StoreLong("Preset[0].Count", -5);
  StoreLong("Preset[1].Count", 0x7FFFFFFF);
  StoreLong("Last.Cat[0]", 1);
  StoreLong("Last.Val[0]", 2);
  StoreLong("Last.Cat[1]", -9);
  StoreLong("Last.Cat[2]", 4);
  StoreLong("Last.Val[2]", 1'000'000);
  MakeAndShow();
  EXPECT_TRUE(tool_->Settings().presets[0].list.empty());
  EXPECT_EQ(tool_->Settings().presets[1].list.size(), 21u);  // as many as there are properties
  // The entries that are missing name property (0, 0).
  EXPECT_EQ(Rows(), (Strings{"1.2", "0.0"}));
  Command(40200);
  EXPECT_EQ(Rows(), Strings{"0.0"});
}

// --- Writing

TEST_F(WndElementTest, AFirstRunThatNeverShowedAnElementWritesTheDefaults) {
  Make();
  tool_.reset();
  EXPECT_EQ(Stored("DoSummary"), 1);
  EXPECT_EQ(Stored("InitialView"), 0);
  EXPECT_EQ(Stored("ShowMainProperties"), 1);
  EXPECT_EQ(Stored("ShowFamilyAndBlock"), 1);
  for (const std::string preset : {"Preset[0].", "Preset[1].", "Preset[2]."}) {
    EXPECT_EQ(Stored(preset + "ShowMain"), 1);
    EXPECT_EQ(Stored(preset + "ShowFamily"), 1);
    EXPECT_EQ(StoredList(preset), kBuiltInList);
  }
  EXPECT_EQ(StoredList("Last."), kBuiltInList);
}

TEST_F(WndElementTest, AListThatWasNeverShownStaysAsItWasStored) {
  StoreLong("Last.Count", 3);
  StoreLong("Last.Cat[0]", 3);
  StoreLong("Last.Val[0]", 3);
  StoreLong("Last.Cat[1]", 77);  // of a larger database
  StoreLong("Last.Val[1]", 1);
  StoreLong("Last.Cat[2]", 1);
  StoreLong("Last.Val[2]", 0);
  Make();
  tool_.reset();
  EXPECT_EQ(StoredList("Last."), "3.3 77.1 1.0");
  // Commands that reach it before the first element leave the list too.
  Make();
  for (const int command : {40180, 40181, 40176, 40177, 40178, 40179, 40199}) {
    Command(command);
    Message();
  }
  EXPECT_FALSE(Summary().LaidOut());
  tool_.reset();
  EXPECT_EQ(StoredList("Last."), "3.3 77.1 1.0");
}

TEST_F(WndElementTest, TheListThatIsWrittenIsThatOfTheRowsShownLast) {
  MakeAndShow(0);
  TapRow(0);
  Command(40177);
  SelectListed(u"P33");
  Command(40176);
  tool_.reset();
  EXPECT_EQ(StoredList("Last."), "3.1 3.2 4.0 4.1 1.4 1.6 3.3");
}

TEST_F(WndElementTest, WhatTheLastElementHasNoValueForIsNotWritten) {
  MakeAndShow(0);
  MakeAndShow(1);
  tool_.reset();
  EXPECT_EQ(StoredList("Last."), "3.5 3.1 3.2 4.0 1.4 1.6");
}

TEST_F(WndElementTest, EverythingComesBackAfterARestart) {
  MakeAndShow(0);
  TapRow(6);
  Command(40178);
  Command(40180);
  Command(40198);
  Command(40181);
  Command(40192);
  Command(8354);
  Restart();
  EXPECT_EQ(tool_->CurrentPreset(), -1);
  MakeAndShow(0);
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.1", "3.2", "4.0", "4.1", "1.6", "1.4"}));
  EXPECT_FALSE(tool_->Settings().doSummary);
  EXPECT_EQ(tool_->Settings().initialView, 2);
  EXPECT_FALSE(tool_->Settings().showMainProperties);
  EXPECT_FALSE(tool_->Settings().showFamilyAndBlock);
  const ElementPreset& third = tool_->Settings().presets[2];
  EXPECT_FALSE(third.showMain);
  EXPECT_TRUE(third.showFamily);
  EXPECT_EQ(third.list.back(), (PropertyAddress{1, 4}));
  Command(8354);
  Command(40199);
  EXPECT_EQ(Rows(), kBuiltInRows);
}

TEST_F(WndElementTest, TheViewUsedLastIsRemembered) {
  StoreLong("InitialView", 2);
  MakeAndShow(0);
  EXPECT_TRUE(tool_->Settings().doSummary);
  Command(8354);
  MakeAndShow(1);
  EXPECT_FALSE(tool_->Settings().doSummary);
  Restart();
  MakeAndShow(0);
  EXPECT_FALSE(tool_->Settings().doSummary);
  EXPECT_TRUE(List().IsVisible());
}

// A program that could not load its elements has nothing to check the lists by.
TEST_F(WndElementTest, WithoutElementsTheListsStayAsTheyWereStored) {
  MakeAndShow(0);
  TapRow(0);
  Command(40177);
  Command(40196);
  tool_.reset();
  elements_.Free();
  Make();
  tool_->ShowElement(0);
  Command(40190);
  tool_.reset();
  EXPECT_EQ(StoredList("Last."), "3.1 3.2 4.0 4.1 1.4 1.6");
  EXPECT_EQ(StoredList("Preset[0]."), "3.1 3.2 4.0 4.1 1.4 1.6");
  EXPECT_EQ(StoredList("Preset[1]."), kBuiltInList);
}

}  // namespace
}  // namespace orvane
