#include "tests/tools/wnd_const_fixture.h"

namespace orvane {
namespace {

using testing::AddedButton;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::WndConstTest;

constexpr char kMissing[] = "Failed to open the constants file.\nFile: ";

// --- How it is made and shown

TEST_F(WndConstTest, IsMadeHiddenAndReadsNothingYet) {
  RemoveFile();
  Make();
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_TRUE(tool_->IsTopLevel());
  EXPECT_EQ(tool_->ClassName(), "wnd_const");
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Constants database");
  EXPECT_EQ(GetDevice().WindowRect(tool_->Handle()), (Rect{0, 0, 240, 268}));
  EXPECT_THAT(Boxes(), IsEmpty());
  EXPECT_EQ(shell_.PopupMenu(kConstCategMenu).Count(), 6);
  EXPECT_EQ(List().background, Rgb(232, 232, 232));
  EXPECT_EQ(List().margin, 3);
  EXPECT_EQ(List().minimumColumnWidth, 15);
  // "Tahoma" 10 is 13 + 3 pixels high, "Tahoma" 8 is 10 + 2.
  EXPECT_EQ(List().titleHeight, 16 + 3);
  EXPECT_EQ(List().rowHeight, 12);
  for (const ListColumn& column : List().columns) EXPECT_TRUE(column.plain);
}

TEST_F(WndConstTest, ShowingAddsTheButtonsSetsTheTopicAndLowersTheInputPanel) {
  Make();
  GetDevice().Panel().Request(true);
  tool_->Show();
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(shell_.buttons, (std::vector<AddedButton>{{8820, 20, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown},
                                                      {0, 0, -1, TBSTATE_ENABLED, ButtonStyle::kSeparator},
                                                      {8821, 12, -1, TBSTATE_ENABLED, ButtonStyle::kCheck},
                                                      {8822, 13, -1, TBSTATE_ENABLED, ButtonStyle::kCheck},
                                                      {8823, 14, -1, TBSTATE_ENABLED, ButtonStyle::kPush},
                                                      {0, 0, -1, TBSTATE_ENABLED, ButtonStyle::kSeparator},
                                                      {8824, 15, -1, TBSTATE_ENABLED, ButtonStyle::kPush}}));
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(shell_.helpTopic, 1300);
  EXPECT_EQ(GetDevice().Focus(), List().Handle());
}

TEST_F(WndConstTest, TheFirstShowingListsTheFirstCategory) {
  MakeAndShow();
  EXPECT_EQ(Title(), "First");
  EXPECT_TRUE(shell_.titles.back().clearBelow);
  EXPECT_TRUE(shell_.titles.back().bold);
  EXPECT_TRUE(ListShown());
  EXPECT_FALSE(StripShown());
  ASSERT_EQ(List().groups.size(), 3u);
  EXPECT_EQ(List().groups[0].title, u"Numbers");
  EXPECT_TRUE(List().groups[0].hasTitle);
  EXPECT_TRUE(List().groups[0].expanded);
  EXPECT_FALSE(List().groups[1].hasTitle);
  ASSERT_EQ(List().groups[0].rows.size(), 3u);
  EXPECT_THAT(List().groups[0].rows[0], ElementsAre(u"Avogadro", u"N\u0001`A", u"6.022\u00D710\u0001\u00A023",
                                                    u"mol\u0001\u00A0\u20131"));
  EXPECT_EQ(List().selectedGroup, -1);
  EXPECT_EQ(List().selectedRow, -1);
}

TEST_F(WndConstTest, TheFileIsReadOnceHoweverOftenTheScreenIsShown) {
  Make();
  tool_->LoadOnce();
  tool_->LoadOnce();
  tool_->Show();
  tool_->HideOnly();
  tool_->Show();
  EXPECT_EQ(shell_.PopupMenu(kConstCategMenu).Count(), 8);
}

TEST_F(WndConstTest, AStoredCategoryIsShownAgainAndOneThatIsGoneIsTheFirst) {
  StoreLong(u"wnd_const.curCateg", 1);
  MakeAndShow();
  EXPECT_EQ(Title(), "Second");
  tool_.reset();
  for (const std::int32_t gone : {2, -1, 2147483647, -2147483647}) {
    StoreLong(u"wnd_const.curCateg", gone);
    Restart();
    EXPECT_EQ(tool_->Category(), 0) << gone;
    EXPECT_EQ(Title(), "First");
  }
}

TEST_F(WndConstTest, WithoutCategoriesTheListIsEmpty) {
  Write({});
  MakeAndShow();
  EXPECT_EQ(Title(), "Constants database");
  EXPECT_THAT(List().groups, IsEmpty());
  EXPECT_TRUE(ListShown());
  EXPECT_FALSE(tool_->LoadFailed());
  DropDown(8820);
  EXPECT_EQ(Labels().size(), 6u);
  EXPECT_THAT(Boxes(), IsEmpty());
}

// --- The file is missing

TEST_F(WndConstTest, AMissingFileIsToldAndShownInItsPlace) {
  RemoveFile();
  MakeAndShow();
  ASSERT_EQ(shell_.Trace().boxes.size(), 1u);
  EXPECT_EQ(shell_.Trace().boxes[0].caption, u"Orvane");
  EXPECT_EQ(shell_.Trace().boxes[0].icon, MessageIcon::kError);
  EXPECT_THAT(Boxes(), ElementsAre(kMissing + Path()));
  EXPECT_TRUE(tool_->LoadFailed());
  EXPECT_FALSE(ListShown());
  EXPECT_THAT(shell_.buttons, IsEmpty());
  EXPECT_EQ(Title(), "Constants database");
  EXPECT_EQ(shell_.helpTopic, 1300);

  std::string text;
  Rect extent;
  for (const ScreenRun& run : GetDevice().VisibleRuns()) {
    if (run.window != "wnd_const" || run.run.rect.top < 26 + 24) continue;
    text += ToUtf8(run.run.text);
    extent = Unite(extent, run.run.rect);
  }
  text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
  EXPECT_EQ(
      text,
      "Thefile'constants.dat'hasnotbeenfoundintheapplicationfolder.Allconstantsarestoredinthatfile,soitis"
      "impossibletoviewconstantsnow.Youcantrytoreinstalltheapplicationtofixtheproblem.");
  // The box (8, 30)-(224, 260) of the tool, which stands 26 below the screen's top.
  EXPECT_EQ(extent.left, 8);
  EXPECT_EQ(extent.top, 26 + 30);
  EXPECT_LE(extent.right, 224);
}

TEST_F(WndConstTest, WithoutTheFileNoCommandTouchesData) {
  RemoveFile();
  MakeAndShow();
  Boxes();
  DropDown(8820);
  EXPECT_FALSE(GetDevice().Popups().Open());
  for (const int command : {8822, 8823, 1000, 40153}) Command(command);
  EXPECT_FALSE(StripShown());
  EXPECT_FALSE(ListShown());
  EXPECT_EQ(OwnCommand(StandardCommand::kCopy), 0);
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(WndConstTest, AFileThatGoesAwayLaterFailsForTheRestOfTheRun) {
  MakeAndShow();
  TapRow(0, 0);
  ASSERT_TRUE(StripShown());
  RemoveFile();
  Choose(1001);
  EXPECT_THAT(Boxes(), ElementsAre(kMissing + Path()));
  EXPECT_TRUE(tool_->LoadFailed());
  EXPECT_FALSE(ListShown());
  EXPECT_FALSE(StripShown());
  EXPECT_EQ(Title(), "Constants database");
  EXPECT_EQ(tool_->Category(), 1);
  DropDown(8820);
  EXPECT_FALSE(GetDevice().Popups().Open());
  Write(testing::SmallConstants());
  Choose(1000);
  EXPECT_TRUE(tool_->LoadFailed());
  EXPECT_FALSE(ListShown());
}

TEST_F(WndConstTest, AnUnreadableMenuIsToldForEachCategory) {
  Make();
  shell_.PopupMenu(kConstCategMenu).Items().clear();
  tool_->Show();
  EXPECT_THAT(Boxes(), ElementsAre("wnd_const::cReadCategories - AppendMenu failed!",
                                   "wnd_const::cReadCategories - AppendMenu failed!"));
  EXPECT_EQ(List().groups.size(), 3u);
}

TEST_F(WndConstTest, ADamagedFileGivesTheReadersMessagesAndWhatItHas) {
  std::string bytes = testing::BytesOf(testing::SmallConstants());
  testing::WriteBytes(Path(), std::string_view(bytes).substr(0, bytes.size() - 20));
  StoreLong(u"wnd_const.curCateg", 1);
  MakeAndShow();
  const std::vector<std::string> boxes = Boxes();
  ASSERT_FALSE(boxes.empty());
  EXPECT_EQ(
      boxes[0],
      "ZelBinary::ReadTCharFromChar_Z() - attempted to read beyond end of file. Zero termination not found");
  EXPECT_FALSE(tool_->LoadFailed());
  EXPECT_GE(List().groups[0].rows.size(), 20u);
}

// --- Settings

TEST_F(WndConstTest, KeepsCategoryTitleAndColumnsOverARestart) {
  MakeAndShow();
  Choose(1001);
  Command(8821);
  Choose(40154);
  List().columns[0].width = 77;
  List().columns[1].autoSize = false;
  List().columns[1].width = 33;
  Restart();
  EXPECT_EQ(tool_->Category(), 1);
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), (Rect{0, 0, 240, 268}));
  EXPECT_EQ(List().columns[0].width, 77);
  EXPECT_FALSE(List().columns[0].autoSize);
  EXPECT_EQ(List().columns[1].width, 33);
  EXPECT_FALSE(List().columns[1].autoSize);
  EXPECT_FALSE(List().columns[2].visible);
  EXPECT_TRUE(List().columns[3].autoSize);
  EXPECT_FALSE(StripShown());
}

TEST_F(WndConstTest, StoresEverySettingUnderItsName) {
  Make();
  tool_.reset();
  EXPECT_EQ(StoredLong(u"wnd_const.curCateg", -9), 0);
  EXPECT_EQ(StoredLong(u"wnd_const.ShowTitle", -9), 1);
  const struct {
    TextView name;
    std::int32_t value;
  } cases[] = {
      {u"wnd_const.Col[0].AutoSize", 0}, {u"wnd_const.Col[0].Visible", 1}, {u"wnd_const.Col[0].Width", 100},
      {u"wnd_const.Col[1].AutoSize", 1}, {u"wnd_const.Col[1].Visible", 1}, {u"wnd_const.Col[1].Width", 10},
      {u"wnd_const.Col[2].AutoSize", 1}, {u"wnd_const.Col[2].Visible", 1}, {u"wnd_const.Col[2].Width", 10},
      {u"wnd_const.Col[3].AutoSize", 1}, {u"wnd_const.Col[3].Visible", 1}, {u"wnd_const.Col[3].Width", 10},
  };
  for (const auto& c : cases) EXPECT_EQ(StoredLong(c.name, -9), c.value) << ToUtf8(c.name);
}

TEST_F(WndConstTest, AbsurdStoredWidthsDoNoHarm) {
  StoreLong(u"wnd_const.Col[0].Width", -2147483647);
  StoreLong(u"wnd_const.Col[1].AutoSize", 0);
  StoreLong(u"wnd_const.Col[1].Width", 2147483647);
  MakeAndShow();
  EXPECT_GT(List().contentWidth, 0);
  EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace orvane
