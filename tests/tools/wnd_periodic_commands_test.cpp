#include "tests/tools/wnd_periodic_fixture.h"

namespace orvane {
namespace {

using testing::WndPeriodicTest;

class WndPeriodicCommandTest : public WndPeriodicTest {
 protected:
  // From the wide form with all texts and block colours, scrolled; what the command leaves.
  void Expect(int command, const std::string& look, bool startsOver) {
    SCOPED_TRACE(command);
    tool_.reset();
    for (const TextView name : {u"ModeWide", u"ShowNum", u"ShowName", u"ShowMass"}) {
      Store(Text(u"wnd_periodic.").append(name), true);
    }
    Store(u"wnd_periodic.ColorType", false);
    MakeAndShow();
    ASSERT_EQ(Look(), "11110");
    ScrollTo(150, 60);
    GetDevice().SetFocus(shell_.MainWindow());
    shell_.Settle();
    shell_.Trace().messages.clear();
    Command(command);
    EXPECT_EQ(Look(), look);
    EXPECT_EQ(Scroll(), startsOver ? (Point{0, 0}) : (Point{150, 60}));
    EXPECT_EQ(GetDevice().Focus(), Panel().Handle());
    EXPECT_GE(CountOf(Panel().Handle(), WM_PAINT), 1);
    EXPECT_EQ((Size{Panel().contentWidth, Panel().contentHeight}), Panel().Layout().content);
    EXPECT_EQ((Size{Panel().bufferWidth, Panel().bufferHeight}), Panel().Layout().content);
    EXPECT_FALSE(GetDevice().Boxes().Open());
  }
};

TEST_F(WndPeriodicCommandTest, ChangeTheLookAndLayTheTableOut) {
  Expect(40049, "01110", true);
  Expect(40050, "11110", true);  // even when nothing changes
  Expect(40054, "10110", true);
  Expect(40052, "11010", true);
  Expect(40053, "11100", true);
  Expect(40016, "11110", false);  // colours keep the place
  Expect(40018, "11111", false);
  Expect(40199, "00000", true);
  Expect(40200, "11001", true);
  Expect(40201, "11101", true);
}

TEST_F(WndPeriodicTest, EveryCommandWorksFromBothValues) {
  MakeAndShow();
  const std::pair<int, const char*> steps[] = {{40050, "10000"}, {40049, "00000"}, {40054, "01000"},
                                               {40054, "00000"}, {40052, "00100"}, {40052, "00000"},
                                               {40053, "00010"}, {40053, "00000"}, {40018, "00001"},
                                               {40018, "00001"}, {40016, "00000"}, {40016, "00000"}};
  for (const auto& [command, look] : steps) {
    Command(command);
    EXPECT_EQ(Look(), look) << command;
  }
}

TEST_F(WndPeriodicTest, ThePrivateCommandDoesTheSame) {
  MakeAndShow();
  GetDevice().Send(tool_->Handle(), kToolCommand, 40050, kFromMenu);
  EXPECT_EQ(Look(), "10000");
}

TEST_F(WndPeriodicTest, NotificationsAndUnknownCommandsDoNothing) {
  MakeAndShow();
  ScrollTo(0, 0);
  for (const int code : {1, 0x300, 0xFFFF}) {
    GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(40050, code));
  }
  for (const int command : {0, 40017, 40051, 40195, 40202, 8866, 8870}) Command(command);
  EXPECT_EQ(Look(), "00000");
  EXPECT_FALSE(GetDevice().Popups().Open());
  EXPECT_EQ(CountOf(Panel().Handle(), WM_PAINT), 0);
}

TEST_F(WndPeriodicTest, ColoursChangeOnTheScreenAtOnce) {
  MakeAndShow();
  const Rect iron = Panel().Layout().cells[25].rect;
  const Point corner{iron.left + 1, iron.top + 26 + 1};
  EXPECT_EQ(shell_.Pixel(corner), 0x9BCDFFu);
  Command(40018);
  shell_.Settle();
  EXPECT_EQ(shell_.Pixel(corner), 0xBE7DFFu);
}

TEST_F(WndPeriodicTest, LoadingThePresetThatIsShownStartsOver) {
  MakeAndShow();
  Command(40200);
  ScrollTo(100, 0);
  shell_.Settle();
  shell_.Trace().messages.clear();
  Command(40200);
  EXPECT_EQ(Look(), "11001");
  EXPECT_EQ(Scroll(), (Point{0, 0}));
  EXPECT_EQ(CountOf(Panel().Handle(), WM_PAINT), 1);
}

TEST_F(WndPeriodicTest, SavingTellsWhereAndRedrawsNothing) {
  MakeAndShow();
  Command(40050);
  Command(40054);
  ScrollTo(100, 0);
  shell_.Settle();
  for (int preset = 0; preset < 3; ++preset) {
    shell_.Trace().messages.clear();
    Command(40196 + preset);
    shell_.Settle();
    ASSERT_TRUE(GetDevice().Boxes().Open());
    const MessageBoxText box = GetDevice().Boxes().Front();
    EXPECT_EQ(box.caption, u"Orvane");
    EXPECT_EQ(ToUtf8(box.text), "Settings saved as preset " + std::to_string(preset + 1) + ".");
    EXPECT_EQ(box.icon, MessageIcon::kInformation);
    EXPECT_EQ(GetDevice().Boxes().Waiting(), 0);
    GetDevice().Boxes().Dismiss();
    shell_.Settle();
    EXPECT_EQ(CountOf(Panel().Handle(), WM_PAINT), 0);
    EXPECT_EQ(Scroll(), (Point{100, 0}));
    EXPECT_EQ(Look(), "11000");
    const PeriodicPreset& saved = tool_->Presets()[static_cast<std::size_t>(preset)];
    EXPECT_TRUE(saved.modeWide);
    EXPECT_TRUE(saved.colorType);           // took the number
    EXPECT_EQ(saved.showNum, preset != 0);  // as it was
    EXPECT_FALSE(saved.showName || saved.showMass);
  }
  Command(40196);
  Command(40196 + 3);  // loads the first
  EXPECT_EQ(Look(), "11001");
}

}  // namespace
}  // namespace orvane
