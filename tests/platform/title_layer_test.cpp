#include <gtest/gtest.h>

#include "tests/platform/chrome_test_bed.h"

namespace orvane::chrome_test {
namespace {

constexpr Point kCloseBox{227, 13};

std::string TitleOf(const Bed& bed) {
  const std::vector<std::string> texts = bed.Shown("title");
  return texts.size() == 1 ? texts[0] : "not one text";
}

TEST(TitleArea, ShowsTheTitleOfTheToolInFront) {
  Bed bed;
  EXPECT_EQ(TitleOf(bed), "Periodic table");
  const WindowHandle second = bed.MakeTool(u"Find element");
  bed.Step();
  EXPECT_EQ(TitleOf(bed), "Find element");
  bed.Get().BringToTop(bed.tool);
  bed.Step();
  EXPECT_EQ(TitleOf(bed), "Periodic table");
  bed.Get().ShowWindow(bed.tool, false);
  bed.Step();
  EXPECT_EQ(TitleOf(bed), "Find element");
  bed.Get().SetTitle(second, u"Found");
  bed.Step();
  EXPECT_EQ(TitleOf(bed), "Found");
}

TEST(TitleArea, ShowsTheProgramWhereNoToolIs) {
  Bed bed;
  bed.Get().DestroyWindow(bed.tool);
  bed.Step();
  EXPECT_EQ(TitleOf(bed), "Orvane");
}

TEST(TitleArea, ChildrenAndToolsWithoutATitleDoNotCount) {
  Bed bed;
  bed.Get().CreateWindow({u"Test", u"A child", WS_VISIBLE | WS_CHILD, {0, 0, 50, 50}, bed.main});
  bed.MakeTool(u"");
  bed.Step();
  EXPECT_EQ(TitleOf(bed), "Periodic table");
  bed.Get().DestroyWindow(bed.tool);
  bed.Step();
  EXPECT_EQ(TitleOf(bed), "Orvane");
}

TEST(TitleArea, ALongTitleEndsBeforeTheCloseBox) {
  Bed bed;
  bed.Get().SetTitle(bed.tool, Text(200, u'm'));
  bed.Step();
  for (const ScreenRun& run : bed.Get().VisibleRuns()) {
    if (run.window != "title") continue;
    EXPECT_LE(run.run.rect.right, 214);
    EXPECT_EQ(run.run.text.substr(run.run.text.size() - 3), u"...");
  }
}

TEST(TitleArea, IsWhiteOnDeepBlue) {
  Bed bed;
  EXPECT_EQ(bed.host.Pixel(0, 0), 0x00428Au);
  EXPECT_EQ(bed.host.Pixel(150, 25), 0x00428Au);
  EXPECT_EQ(bed.host.Pixel(227, 13), 0xFFFFFFu);  // the middle of the cross
}

TEST(TitleArea, TheCloseBoxClosesTheProgramWhenThePenIsLiftedInIt) {
  Bed bed;
  bed.Tap(kCloseBox);
  ASSERT_EQ(bed.Of(WM_CLOSE).size(), 1u);
  EXPECT_EQ(bed.Of(WM_CLOSE)[0].window, bed.main);
}

TEST(TitleArea, ThePressedCloseBoxShowsItAndCanBeTakenBack) {
  Bed bed;
  bed.Get().PenDown(kCloseBox);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(216, 2), 0x0079FFu);
  bed.Get().PenMove({100, 100});
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(216, 2), 0x00428Au);
  bed.Get().PenUp({100, 100});
  bed.Step();
  EXPECT_TRUE(bed.Of(WM_CLOSE).empty());
}

TEST(TitleArea, APressBesideTheCloseBoxDoesNothing) {
  Bed bed;
  bed.Get().PenDown({100, 10});
  bed.Get().PenUp(kCloseBox);
  bed.Step();
  EXPECT_TRUE(bed.Of(WM_CLOSE).empty());
}

}  // namespace
}  // namespace orvane::chrome_test
