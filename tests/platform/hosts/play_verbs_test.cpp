// Every verb of a play script, where it works and where it is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/platform/hosts/fake_program.h"

namespace orvane::hosts_test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

// Plays a script in which nothing may fail and gives what the program saw.
std::vector<std::string> LogOf(const std::string& script) {
  const Outcome outcome = PlayFake(script);
  EXPECT_EQ(outcome.status, 0) << script;
  EXPECT_EQ(outcome.errors, "") << script;
  return outcome.memory.log;
}

// Plays a script whose last line is refused and gives the complaint.
std::string RefusalOf(const std::string& script) {
  const Outcome outcome = PlayFake(script);
  EXPECT_EQ(outcome.status, 3) << script;
  return outcome.errors;
}

TEST(PlayPen, Taps) { EXPECT_THAT(LogOf("tap 100 126"), ElementsAre("down 100 100", "up 100 100")); }

TEST(PlayPen, PressesMovesAndReleasesWhereItIs) {
  EXPECT_THAT(LogOf("press 10 36\nmove 20 46\nmove 300 -10\nrelease"),
              ElementsAre("down 10 10", "move 20 20", "move 300 -36", "up 300 -36"));
}

TEST(PlayPen, DragsInStepsCutTowardsTheStart) {
  EXPECT_THAT(LogOf("drag 10 36 20 33 4"),
              ElementsAre("down 10 10", "move 12 10", "move 15 9", "move 17 8", "move 20 7", "up 20 7"));
  EXPECT_THAT(LogOf("drag 20 33 10 36 4"),
              ElementsAre("down 20 7", "move 18 7", "move 15 8", "move 13 9", "move 10 10", "up 10 10"));
  EXPECT_EQ(LogOf("drag 10 36 90 36").size(), 10u);
}

TEST(PlayPen, HasNoHoverAndOneTip) {
  EXPECT_THAT(RefusalOf("move 1 2"), HasSubstr("line 1: the pen is not down"));
  EXPECT_THAT(RefusalOf("release"), HasSubstr("line 1: the pen is not down"));
  EXPECT_THAT(RefusalOf("press 1 60\npress 1 60"), HasSubstr("line 2: the pen is down already"));
  EXPECT_THAT(RefusalOf("press 1 60\ndrag 1 60 2 70"), HasSubstr("line 2: the pen is down already"));
  // A refused tap does not lift the pen.
  const Outcome outcome = PlayFake("press 10 36\ntap 1 2\nmove 20 36\nrelease");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.memory.log, ElementsAre("down 10 10", "move 20 10", "up 20 10"));
}

TEST(PlayPen, HasAnActionKey) {
  EXPECT_THAT(LogOf("hold action\ntap 1 27\nlet-go action\ntap 1 27"),
              ElementsAre("down 1 1 with action", "up 1 1", "down 1 1", "up 1 1"));
}

TEST(PlayWheel, TurnsBothWays) {
  EXPECT_THAT(LogOf("wheel 100 100 -2\nwheel 100 100 1 sideways"),
              ElementsAre("wheel -2", "wheel 1 sideways"));
}

TEST(PlayKeys, GoDownAndUpWithTheirModifiersAround) {
  EXPECT_THAT(LogOf("key Left"), ElementsAre("key down 37", "key up 37"));
  EXPECT_THAT(LogOf("key Shift+Left"), ElementsAre("key down 16", "key down 37", "key up 37", "key up 16"));
  EXPECT_THAT(LogOf("key Ctrl+Shift+x"), ElementsAre("key down 16", "key down 17", "key down 88", "key up 88",
                                                     "key up 17", "key up 16"));
}

TEST(PlayKeys, TypeWhatAKeyboardWould) {
  EXPECT_EQ(PlayFake("key a\nkey Shift+b\nkey 2\nkey Shift+9\nkey Space\nkey Plus\nkey Minus\n"
                     "key Ctrl+c\nkey Alt+x\nkey Enter\nkey Backspace\nexpect text \"aB2( +-\"")
                .errors,
            "");
  EXPECT_THAT(PlayFake("key Ctrl+c\nkey Alt+x\nkey Enter\nkey Tab\nreport").out, HasSubstr("\"text\":\"\","));
}

TEST(PlayKeys, AloneAltAndF10OpenTheMenuBar) {
  EXPECT_EQ(PlayFake("key F10\nexpect popup About").errors, "");
  EXPECT_EQ(PlayFake("key Alt\nexpect popup About").errors, "");
  EXPECT_THAT(RefusalOf("key Alt+x\nexpect popup About"), HasSubstr("no pop-up menu"));
}

TEST(PlayKeys, ChangeTheScale) {
  PlayOptions options;
  options.scale = 2;
  EXPECT_EQ(PlayFake("key Ctrl+Plus", options).memory.lastScale, 3);
  EXPECT_EQ(PlayFake("key Ctrl+Minus", options).memory.lastScale, 1);
  EXPECT_EQ(PlayFake("key Ctrl+Plus\nkey Ctrl+Plus\nkey Ctrl+0", options).memory.lastScale, 2);
}

TEST(PlayType, SendsCharacters) {
  const Outcome outcome = PlayFake("type \"h2o \\u03B1\"\nexpect text \"h2o \\u03b1\"");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_THAT(outcome.memory.log, IsEmpty());
}

TEST(PlayType, PressesEnterTabAndBackspaceForTheirCharacters) {
  EXPECT_THAT(LogOf("type \"a\\n\\u0008\\u0009\""),
              ElementsAre("key down 13", "key up 13", "key down 8", "key up 8", "key down 9", "key up 9"));
}

TEST(PlayMenu, ChoosesFromTheBar) {
  EXPECT_THAT(LogOf("menu App Copy\nexpect clipboard copied"), ElementsAre("command 7"));
  EXPECT_THAT(LogOf("button 102\nmenu App Copy"), ElementsAre("command 7"));
}

TEST(PlayMenu, RefusesWhatIsNotThere) {
  EXPECT_THAT(RefusalOf("menu Nothing Copy"), HasSubstr("no menu \"Nothing\""));
  EXPECT_THAT(RefusalOf("menu Closed Copy"), HasSubstr("\"Closed\" cannot be opened"));
  EXPECT_THAT(RefusalOf("menu App Paste"), HasSubstr("no entry \"Paste\""));
  EXPECT_THAT(RefusalOf("menu App Later"), HasSubstr("\"Later\" is disabled"));
  EXPECT_THAT(RefusalOf("menu App \"Two boxes\"\nmenu App Copy"), HasSubstr("line 2: a message box is open"));
  EXPECT_THAT(RefusalOf("menu App About\nmenu App Copy"), HasSubstr("line 2: the dialog \"about\" is open"));
}

TEST(PlayMenu, ClosesAMenuThatItDidNotChooseFrom) {
  EXPECT_THAT(PlayFake("menu App Paste\nreport").out, HasSubstr("\"popup\":null"));
}

TEST(PlayButton, PressesThoseThatAreEnabled) {
  EXPECT_THAT(LogOf("button 100"), ElementsAre("command 100"));
  EXPECT_THAT(RefusalOf("button 101"), HasSubstr("line 1: the bar has no enabled button 101"));
  EXPECT_THAT(RefusalOf("button 7"), HasSubstr("no enabled button 7"));
  EXPECT_THAT(RefusalOf("menu App \"Two boxes\"\nbutton 100"), HasSubstr("line 2: a message box is open"));
  EXPECT_THAT(RefusalOf("menu App About\nbutton 100"), HasSubstr("line 2: the dialog \"about\" is open"));
}

TEST(PlayChoose, PicksFromTheOpenMenu) {
  EXPECT_THAT(LogOf("button 102\nchoose Wide"), ElementsAre("command 51"));
  EXPECT_THAT(RefusalOf("choose Wide"), HasSubstr("no pop-up menu is open"));
  EXPECT_THAT(RefusalOf("button 102\nchoose Grey"), HasSubstr("line 2: the entry \"Grey\" is disabled"));
  EXPECT_THAT(RefusalOf("button 102\nchoose Tall"), HasSubstr("line 2: the menu has no entry \"Tall\""));
  EXPECT_THAT(RefusalOf("button 102\nchoose \"\""), HasSubstr("no entry"));  // not the separator
}

TEST(PlayPanel, RaisesAndLowersTheInputPanel) {
  EXPECT_THAT(PlayFake("report\npanel\nreport\npanel\nreport").out,
              ::testing::ContainsRegex("panel\":false(.|\n)*panel\":true(.|\n)*panel\":false"));
  EXPECT_THAT(RefusalOf("menu App About\npanel"), HasSubstr("the dialog \"about\" is open"));
}

TEST(PlayOk, DismissesBoxesAndDialogs) {
  EXPECT_EQ(PlayFake("menu App \"Two boxes\"\nexpect message First\nok\nexpect message Second\nok\n"
                     "expect no-message")
                .errors,
            "");
  EXPECT_THAT(PlayFake("menu App About\nreport\nok\nreport").out,
              ::testing::ContainsRegex("dialog\":\"about\"(.|\n)*dialog\":null"));
  EXPECT_THAT(RefusalOf("ok"), HasSubstr("line 1: no message box and no dialog is open"));
}

TEST(PlayDismissAll, TakesThemAllAndNeedsNone) {
  EXPECT_EQ(PlayFake("menu App \"Two boxes\"\ndismiss-all\nexpect no-message\ndismiss-all").errors, "");
  EXPECT_THAT(PlayFake("menu App About\ndismiss-all\nreport").out, HasSubstr("\"dialog\":null"));
}

TEST(PlayClose, ClosesTheWindowFromOutside) {
  EXPECT_THAT(LogOf("close\nexpect exit 0"), ElementsAre("close"));
}

TEST(PlayClipboard, IsSet) { EXPECT_EQ(PlayFake("clipboard \"a b\"\nexpect clipboard \"a b\"").errors, ""); }

TEST(PlayWait, FiresTimersInOrderAtTheirTimes) {
  EXPECT_THAT(LogOf("menu App Timers\nwait 1000"),
              ElementsAre("command 6", "timer 2 at 300", "timer 1 at 500", "timer 2 at 600", "timer 2 at 900",
                          "timer 1 at 1000"));
  EXPECT_THAT(LogOf("menu App Timers\nwait 299\nwait 1\nwait 0"), ElementsAre("command 6", "timer 2 at 300"));
}

TEST(PlayWait, AloneMovesTheClock) {
  EXPECT_THAT(LogOf("menu App Timers\ntap 9 90\nkey a"), Not(Contains(StartsWith("timer"))));
}

TEST(PlayRestart, EndsAndStartsAgain) {
  const Outcome outcome = PlayFake("clipboard kept\nrestart\nexpect clipboard kept\nexpect tool wnd_fake");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.memory.starts, 2);
  EXPECT_EQ(outcome.memory.ends, 2);
}

TEST(PlayRestart, AlsoAfterTheEndAndWithAPenThatWasDown) {
  const Outcome outcome = PlayFake("press 9 90\nmenu App \"Quit with 1\"\nexpect exit 1\nrestart\ntap 9 90");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.memory.starts, 2);
}

TEST(PlayEnd, IsAnOrdinaryExitOfTheProgram) {
  const Outcome outcome = PlayFake("");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.memory.ends, 1);
}

TEST(PlayEnd, GivesTheProgramsOwnStatus) {
  EXPECT_EQ(PlayFake("menu App \"Quit with 1\"").status, 1);
  EXPECT_EQ(PlayFake("menu App \"Quit with 1\"\nexpect exit 0").status, 3);
}

TEST(PlayEnd, LeavesOnlyReportExpectAndRestart) {
  const Outcome outcome = PlayFake("menu App Exit\nreport\nexpect exit 0\ntap 1 2\nwait 5\nok\nclipboard x");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.out, HasSubstr("\"exit\":0"));
  for (const char* line : {"line 4: ", "line 5: ", "line 6: ", "line 7: "}) {
    EXPECT_THAT(outcome.errors, HasSubstr(std::string(line) + "the program has ended"));
  }
  EXPECT_THAT(outcome.errors, Not(HasSubstr("line 3")));
}

TEST(PlayStatus, IsFourForAWrongScriptAndNothingIsPlayed) {
  const Outcome outcome = PlayFake("menu App Copy\nreport\ntapp 1 2");
  EXPECT_EQ(outcome.status, 4);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.memory.starts, 0);
  EXPECT_THAT(outcome.errors, StartsWith("line 3: unknown verb"));
}

TEST(PlayStatus, IsThreeWhenTheProgramNeverRests) {
  const Outcome outcome = PlayFake("\nmenu App Spin\nexpect tool never");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_EQ(outcome.errors, "line 2: the program does not come to rest\n");
}

TEST(PlayAfterVerb, IsCalledWithEachLineWhileTheProgramRuns) {
  std::vector<int> lines;
  PlayOptions options;
  options.afterVerb = [&lines](PlayedProgram& program, int line) {
    EXPECT_TRUE(program.GetDevice().Quiescent());
    lines.push_back(line);
  };
  PlayFake("tap 1 60\n# comment\nexpect tool wnd_fake\nmenu App Exit\nreport", options);
  EXPECT_THAT(lines, ElementsAre(1, 3));
}

class PlayFiles : public ::testing::Test {
 protected:
  PlayFiles() : folder_(std::filesystem::path(::testing::TempDir()) / ("play-files-" + Name())) {
    std::filesystem::remove_all(folder_);
    options_.outFolder = folder_.string();
  }
  ~PlayFiles() override { std::filesystem::remove_all(folder_); }

  static std::string Name() { return ::testing::UnitTest::GetInstance()->current_test_info()->name(); }
  std::string Read(const std::string& file) const {
    std::ifstream stream(folder_ / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::filesystem::path folder_;
  PlayOptions options_;
};

TEST_F(PlayFiles, ShotIsAPngOfTheScreenAtItsScale) {
  options_.scale = 2;
  EXPECT_EQ(PlayFake("shot deep/er/a.png", options_).errors, "");
  const std::string png = Read("deep/er/a.png");
  ASSERT_GT(png.size(), 24u);
  EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
  EXPECT_EQ(png.substr(16, 8), std::string("\0\0\x01\xE0\0\0\x02\x80", 8));  // 480 × 640
}

TEST_F(PlayFiles, AreRefusedWhereTheyCannotBeWritten) {
  std::filesystem::create_directories(folder_ / "taken.png");
  const Outcome outcome = PlayFake("shot taken.png\ntrace taken.png", options_);
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.errors, HasSubstr("line 1: cannot write"));
  EXPECT_THAT(outcome.errors, HasSubstr("line 2: cannot write"));
}

TEST_F(PlayFiles, TraceBeginsBeforeTheStartAsFirstVerb) {
  EXPECT_EQ(PlayFake("trace early.jsonl\nkey Left", options_).errors, "");
  EXPECT_THAT(Read("early.jsonl"), HasSubstr("\"name\":\"WM_CREATE\""));
  EXPECT_EQ(PlayFake("tap 1 60\ntrace late.jsonl\nkey Left", options_).errors, "");
  EXPECT_THAT(Read("late.jsonl"), Not(HasSubstr("WM_CREATE")));
  EXPECT_THAT(Read("late.jsonl"), HasSubstr("\"message\":256,\"name\":\"WM_KEYDOWN\",\"w\":37,\"l\":0}\n"));
}

TEST_F(PlayFiles, TraceTellsOfCursorBarAndBoxes) {
  PlayFake("trace t.jsonl\nmenu App \"Wait cursor\"\nmenu App Timers\nwait 300\nmenu App \"Two boxes\"\nok",
           options_);
  const std::string trace = Read("t.jsonl");
  EXPECT_THAT(trace, HasSubstr("{\"time\":0,\"event\":\"cursor\",\"shape\":\"wait\"}\n"));
  EXPECT_THAT(trace, HasSubstr("{\"time\":0,\"event\":\"bar\",\"call\":\"show\","));
  EXPECT_THAT(trace, HasSubstr("{\"time\":300,\"event\":\"box\",\"caption\":\"Orvane\",\"text\":\"Second "
                               "box\",\"icon\":\"error\"}\n"));
}

TEST_F(PlayFiles, TraceShowsNoAddresses) {
  PlayFake("trace t.jsonl\nbutton 102", options_);
  EXPECT_THAT(Read("t.jsonl"), HasSubstr("\"name\":\"WM_CREATE\",\"w\":0}\n"));
  EXPECT_THAT(Read("t.jsonl"), HasSubstr("\"name\":\"WM_NOTIFY\",\"w\":102,\"code\":-710,\"id\":102}\n"));
}

}  // namespace
}  // namespace orvane::hosts_test
