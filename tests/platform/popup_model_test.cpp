#include "platform/popup_model.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr Size kScreen{240, 320};

int SixALetter(TextView label) { return static_cast<int>(label.size()) * 6; }

MenuItem Entry(int id, TextView label, bool enabled = true) {
  MenuItem item;
  item.id = id;
  item.label = label;
  item.enabled = enabled;
  return item;
}

MenuItem Separator() {
  MenuItem item;
  item.separator = true;
  return item;
}

PopupModel Model(std::vector<MenuItem> items, Point anchor = {30, 295}) {
  return PopupModel(Menu(std::move(items)), anchor, kScreen, SixALetter);
}

PopupModel LongModel() {
  std::vector<MenuItem> items;
  for (int i = 0; i < 40; ++i) items.push_back(Entry(i, u"Entry"));
  return Model(std::move(items));
}

TEST(PopupModel, ItsBottomLeftCornerStandsAtTheAnchor) {
  const PopupModel model = Model({Entry(1, u"Narrow mode"), Separator(), Entry(2, u"Wide mode")});
  EXPECT_EQ(model.Bounds().left, 30);
  EXPECT_EQ(model.Bounds().bottom, 295);
  EXPECT_EQ(model.Bounds().Height(), 2 * 22 + 7 + 2 * 3);
  EXPECT_EQ(model.Bounds().Width(), 22 + 11 * 6 + 14);
}

TEST(PopupModel, IsMovedOntoTheScreen) {
  const PopupModel right = Model({Entry(1, u"Narrow mode")}, {230, 295});
  EXPECT_EQ(right.Bounds().right, 240);
  const PopupModel left = Model({Entry(1, u"Narrow mode")}, {-50, 295});
  EXPECT_EQ(left.Bounds().left, 0);
  const PopupModel high = Model({Entry(1, u"Narrow mode")}, {30, 5});
  EXPECT_EQ(high.Bounds().top, 0);
  const PopupModel low = Model({Entry(1, u"Narrow mode")}, {30, 999});
  EXPECT_EQ(low.Bounds().bottom, 320);
}

TEST(PopupModel, AWideLabelEndsAtTheScreensWidth) {
  const PopupModel model = Model({Entry(1, Text(200, u'm'))});
  EXPECT_EQ(model.Bounds().left, 0);
  EXPECT_EQ(model.Bounds().right, 240);
}

TEST(PopupModel, FindsTheRowUnderAPoint) {
  const PopupModel model = Model({Entry(1, u"a"), Separator(), Entry(2, u"b")});
  for (int row = 0; row < 3; ++row) {
    const Rect rect = model.RowRect(row);
    EXPECT_EQ(model.RowAt({rect.left, rect.top}), row);
    EXPECT_EQ(model.RowAt({rect.right - 1, rect.bottom - 1}), row);
  }
  EXPECT_EQ(model.RowAt({0, 0}), kNoRow);
  EXPECT_EQ(model.RowAt(model.Bounds().TopLeft()), kNoRow);  // the frame
}

TEST(PopupModel, SelectionSkipsWhatCannotBeChosenAndGoesRoundTheEnds) {
  PopupModel model = Model({Entry(1, u"a", false), Entry(2, u"b"), Separator(), Entry(3, u"c")});
  model.SelectNext(1);
  EXPECT_EQ(model.Selected(), 1);
  model.SelectNext(1);
  EXPECT_EQ(model.Selected(), 3);
  model.SelectNext(1);
  EXPECT_EQ(model.Selected(), 1);
  model.SelectNext(-1);
  EXPECT_EQ(model.Selected(), 3);
  model.SelectEnd(false);
  EXPECT_EQ(model.Selected(), 1);
  model.SelectEnd(true);
  EXPECT_EQ(model.Selected(), 3);
  model.Select(0);
  EXPECT_EQ(model.Selected(), kNoRow);
}

TEST(PopupModel, AMenuWithNothingToChooseSelectsNothing) {
  PopupModel model = Model({Entry(1, u"a", false), Separator()});
  model.SelectNext(1);
  model.SelectNext(-1);
  model.SelectPage(1);
  EXPECT_EQ(model.Selected(), kNoRow);
}

TEST(PopupModel, LettersJumpToTheNextEntryThatStartsWithThem) {
  PopupModel model = Model({Entry(1, u"Show name"), Entry(2, u"mass"), Entry(3, u"show number")});
  EXPECT_TRUE(model.JumpTo(u'S'));
  EXPECT_EQ(model.Selected(), 0);
  EXPECT_TRUE(model.JumpTo(u's'));
  EXPECT_EQ(model.Selected(), 2);
  EXPECT_TRUE(model.JumpTo(u'S'));
  EXPECT_EQ(model.Selected(), 0);
  EXPECT_FALSE(model.JumpTo(u'X'));
  EXPECT_EQ(model.Selected(), 0);
}

TEST(PopupModel, AMenuTallerThanTheScreenScrolls) {
  PopupModel model = LongModel();
  EXPECT_EQ(model.Bounds().Height(), 320);
  EXPECT_TRUE(model.Scrolls());
  EXPECT_FALSE(model.CanScroll(-1));
  EXPECT_TRUE(model.CanScroll(1));
  EXPECT_EQ(model.ScrollZoneAt({40, 5}), -1);
  EXPECT_EQ(model.ScrollZoneAt({40, 315}), 1);
  EXPECT_EQ(model.ScrollZoneAt({40, 160}), 0);
  model.ScrollBy(1000000);
  EXPECT_FALSE(model.CanScroll(1));
  EXPECT_EQ(model.RowRect(39).bottom, model.RowsArea().bottom);
  model.ScrollBy(-1000000);
  EXPECT_EQ(model.RowRect(0).top, model.RowsArea().top);
}

TEST(PopupModel, TheSelectedRowIsScrolledIntoView) {
  PopupModel model = LongModel();
  model.SelectEnd(true);
  EXPECT_EQ(model.Selected(), 39);
  EXPECT_TRUE(model.RowsArea().Contains(model.RowRect(39)));
  model.SelectPage(-1);
  EXPECT_LT(model.Selected(), 30);
  EXPECT_TRUE(model.RowsArea().Contains(model.RowRect(model.Selected())));
  model.SelectEnd(false);
  model.SelectPage(-1);  // stops at the end, does not go round it
  EXPECT_EQ(model.Selected(), 0);
}

TEST(PopupModel, ASubmenuTakesThePlaceOfItsMenuUnderAWayBack) {
  MenuItem more = Entry(0, u"More");
  more.submenu = {Entry(7, u"First"), Entry(8, u"Second")};
  PopupModel model = Model({Entry(1, u"a"), more});
  EXPECT_FALSE(model.Enter(0));  // a command
  EXPECT_TRUE(model.Enter(1));
  EXPECT_TRUE(model.InSubmenu());
  EXPECT_EQ(model.SubmenuLabel(), u"More");
  EXPECT_EQ(model.Items()[1].id, 8);
  EXPECT_EQ(model.RowRect(kBackRow).bottom, model.RowRect(0).top);
  EXPECT_EQ(model.RowAt(model.RowRect(kBackRow).TopLeft()), kBackRow);
  EXPECT_EQ(model.RowAt(model.RowRect(1).TopLeft()), 1);
  EXPECT_EQ(model.Bounds().bottom, 295);
  model.SelectEnd(false);
  EXPECT_EQ(model.Selected(), 0);
  model.SelectNext(-1);
  EXPECT_EQ(model.Selected(), kBackRow);
  EXPECT_TRUE(model.Enter(kBackRow));
  EXPECT_FALSE(model.InSubmenu());
  EXPECT_EQ(model.Selected(), 1);
  EXPECT_FALSE(model.Back());
}

TEST(PopupModel, LabelsAreFoundWhereTheyCanBeChosen) {
  const PopupModel model = Model({Entry(1, u"a", false), Entry(2, u"b"), Entry(3, u"b")});
  EXPECT_EQ(model.FindLabel(u"b"), 1);
  EXPECT_EQ(model.FindLabel(u"a"), kNoRow);
  EXPECT_EQ(model.FindLabel(u"c"), kNoRow);
}

}  // namespace
}  // namespace orvane
