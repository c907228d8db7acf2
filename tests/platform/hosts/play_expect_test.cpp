// Every expectation, met and not met, and the report.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "platform/play_report.h"
#include "platform/play_trace.h"
#include "tests/platform/hosts/fake_program.h"

namespace orvane::hosts_test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using Json = nlohmann::ordered_json;

struct Case {
  const char* before;   // lines that set the scene
  const char* met;      // an expectation that holds
  const char* notMet;   // and one that does not
  const char* failure;  // what is said of it
};

class PlayExpect : public ::testing::TestWithParam<Case> {};

TEST_P(PlayExpect, Holds) {
  const Outcome outcome = PlayFake(std::string(GetParam().before) + "\nexpect " + GetParam().met);
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_P(PlayExpect, FailsAndGoesOn) {
  const Outcome outcome =
      PlayFake(std::string(GetParam().before) + "\nexpect " + GetParam().notMet + "\nreport");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.errors, HasSubstr(GetParam().failure));
  EXPECT_THAT(outcome.errors, ::testing::StartsWith("line "));
  EXPECT_NE(outcome.out, "");
}

INSTANTIATE_TEST_SUITE_P(
    Forms, PlayExpect,
    ::testing::Values(
        Case{"", "tool wnd_fake", "tool wnd_mass",
             "expected the front tool \"wnd_mass\", it is \"wnd_fake\""},
        Case{"", "title \"Fake tool\"", "title Fake", "expected the title \"Fake\", it is \"Fake tool\""},
        Case{"", "text \"s of water\"", "text \"Mass of  water\"", "no visible line contains"},
        Case{"", "text \"\\u0001!Mass\\u0001  of\"", "text \"water second\"", "no visible line contains"},
        Case{"", "text second", "text hidden", "no visible line contains \"hidden\""},
        Case{"", "no-text hidden", "no-text water", "a visible line contains \"water\""},
        Case{"menu App \"Two boxes\"", "message \"bold box\"", "message Second",
             "does not contain \"Second\", it says"},
        Case{"menu App \"Two boxes\"", "message \"\"", "message Caption", "does not contain"},
        Case{"menu App \"Two boxes\"\ndismiss-all", "no-message", "message First", "no message box is open"},
        Case{"menu App \"Two boxes\"\nok", "message Second", "no-message",
             "a message box is open, it says \"Second box\""},
        Case{"button 102", "popup Wide", "popup Tall", "the open pop-up menu has no entry \"Tall\""},
        Case{"", "no-message", "popup Wide", "no pop-up menu is open"},
        Case{"button 102", "checked Narrow", "checked Wide", "the entry \"Wide\" is not checked"},
        Case{"button 102", "popup Grey", "checked Tall", "has no entry \"Tall\""},
        Case{"clipboard \"a b\"", "clipboard \"a b\"", "clipboard a",
             "expected the clipboard \"a\", it is \"a b\""},
        Case{"", "clipboard \"\"", "clipboard x", "it is \"\""},
        Case{"", "pixel 10 126 ff00A0", "pixel 11 126 FF00A0",
             "expected the pixel at 11 126 ff00a0, it is ffffff"},
        Case{"menu App Exit", "exit 0", "exit 1", "expected the exit code 1, it is 0"},
        Case{"menu App \"Quit with 1\"\nexpect exit 1\nrestart", "tool wnd_fake", "exit 0",
             "the program has not ended"}));

TEST(PlayExpectPixel, LooksAtTheCentreAtEveryScale) {
  for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
    PlayOptions options;
    options.scale = scale;
    EXPECT_EQ(PlayFake("expect pixel 10 126 ff00a0\nexpect pixel 9 126 ffffff\nexpect pixel 11 126 ffffff\n"
                       "expect pixel 10 125 ffffff\nexpect pixel 10 127 ffffff",
                       options)
                  .errors,
              "")
        << scale;
  }
}

TEST(JsonTextTest, IsAlwaysWellFormed) {
  EXPECT_EQ(JsonText(Text(u"a") + Char{0xD800} + u"b"),
            "a\xEF\xBF\xBD"
            "b");
  EXPECT_EQ(JsonText(u"\U0001F600"), "\xF0\x9F\x98\x80");
  EXPECT_EQ(JsonText(Text(1, Char{0xDC00}) + Char{0xD83D}), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(HexColour(Rgb(0, 66, 250)), "0042fa");
}

Json ReportOf(const std::string& script) { return Json::parse(PlayFake(script + "\nreport").out); }

std::vector<std::string> Keys(const Json& object) {
  std::vector<std::string> keys;
  for (const auto& item : object.items()) keys.push_back(item.key());
  return keys;
}

TEST(PlayReport, HasItsFieldsInOrder) {
  const Json report = ReportOf("");
  EXPECT_THAT(Keys(report), ElementsAre("tool", "current", "title", "stack", "message", "dialog", "popup",
                                        "bar", "input_panel", "focus", "help_topic", "clipboard", "cursor",
                                        "exit", "windows", "runs"));
  EXPECT_EQ(report["tool"], "wnd_fake");
  EXPECT_EQ(report["current"], "wnd_fake");
  EXPECT_EQ(report["title"], "Fake tool");
  EXPECT_EQ(report["stack"].dump(), R"(["wnd_first","wnd_fake"])");
  EXPECT_TRUE(report["message"].is_null());
  EXPECT_TRUE(report["dialog"].is_null());
  EXPECT_TRUE(report["popup"].is_null());
  EXPECT_EQ(report["input_panel"], false);
  EXPECT_EQ(report["focus"], 3);
  EXPECT_EQ(report["help_topic"], 2100);
  EXPECT_EQ(report["clipboard"], "");
  EXPECT_EQ(report["cursor"], "arrow");
  EXPECT_TRUE(report["exit"].is_null());
}

TEST(PlayReport, IsOneLine) {
  const std::string out = PlayFake("type \"a\\u0001b\"\nclipboard \"a\\nb\"\nreport\nreport").out;
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 2);
}

TEST(PlayReport, ShowsTheFrontBox) {
  EXPECT_EQ(
      ReportOf("menu App \"Two boxes\"")["message"].dump(),
      R"({"caption":"Caption","icon":"exclamation","text":"First \u0001!bold\u0001  box","waiting":1})");
  EXPECT_EQ(ReportOf("menu App \"Two boxes\"\nok")["message"].dump(),
            R"({"caption":"Orvane","icon":"error","text":"Second box","waiting":0})");
}

TEST(PlayReport, ShowsDialogCursorClipboardAndExit) {
  EXPECT_EQ(ReportOf("menu App About")["dialog"], "about");
  EXPECT_EQ(ReportOf("menu App \"Wait cursor\"")["cursor"], "wait");
  EXPECT_EQ(ReportOf("clipboard \"\xCE\xB1\"")["clipboard"], "\xCE\xB1");
  const Json ended = ReportOf("menu App \"Quit with 1\"");
  EXPECT_EQ(ended["exit"], 1);
  EXPECT_EQ(ended["tool"], "");
  EXPECT_TRUE(ended["stack"].empty());
}

TEST(PlayReport, ShowsTheMenuWhereItWasAskedFor) {
  EXPECT_EQ(ReportOf("button 102")["popup"].dump(),
            R"({"x":30,"y":295,"items":[)"
            R"({"id":50,"label":"Narrow","checked":true,"radio":true,"enabled":true,"separator":false},)"
            R"({"id":51,"label":"Wide","checked":false,"radio":true,"enabled":true,"separator":false},)"
            R"({"id":0,"label":"","checked":false,"radio":false,"enabled":true,"separator":true},)"
            R"({"id":52,"label":"Grey","checked":false,"radio":false,"enabled":false,"separator":false}]})");
}

TEST(PlayReport, ShowsTheBar) {
  const Json bar = ReportOf("")["bar"];
  ASSERT_EQ(bar.size(), 7u);
  EXPECT_THAT(Keys(bar[0]),
              ElementsAre("id", "image", "style", "label", "enabled", "pressed", "x", "y", "w", "h"));
  EXPECT_EQ(bar[0]["style"], "menu");
  EXPECT_EQ(bar[0]["label"], "App");
  EXPECT_EQ(bar[1]["enabled"], false);
  EXPECT_EQ(bar[2]["style"], "separator");
  EXPECT_EQ(bar[3]["style"], "push");
  EXPECT_EQ(bar[3]["id"], 100);
  EXPECT_EQ(bar[3]["image"], 3);
  EXPECT_EQ(bar[3]["pressed"], false);
  EXPECT_EQ(bar[4]["enabled"], false);
  EXPECT_EQ(bar[5]["style"], "dropdown");
  EXPECT_EQ(bar[6]["style"], "check");
  EXPECT_EQ(bar[6]["pressed"], true);
  EXPECT_EQ(bar[0]["x"], 0);
  EXPECT_EQ(bar[0]["y"], 294);
  EXPECT_EQ(bar[0]["h"], 26);
  EXPECT_EQ(bar[1]["x"], bar[0]["w"]);
}

TEST(PlayReport, ShowsTheWindowsAndOnlyWhatTheyKnow) {
  EXPECT_EQ(ReportOf("type h2o")["windows"].dump(),
            R"([{"id":1,"class":"FakeMain","owner":"","x":0,"y":26,"w":240,"h":268},)"
            R"({"id":2,"class":"ZelPanel","owner":"wnd_fake","x":0,"y":26,"w":240,"h":268,)"
            R"("scroll":[3,4],"content":[500,600],"selected":[1,-1]},)"
            R"({"id":3,"class":"FakeBox","owner":"wnd_fake","x":8,"y":226,"w":224,"h":20,)"
            R"("text":"h2o","caret":3,"selection":[0,2]}])");
}

TEST(PlayReport, ShowsTheRunsBottomWindowFirst) {
  const Json report = ReportOf("type h2o");
  Json ofTool = Json::array();
  for (const Json& run : report["runs"]) {
    if (run["window"] == "wnd_fake") ofTool.push_back(run);
  }
  ASSERT_EQ(ofTool.size(), 4u);
  EXPECT_THAT(Keys(ofTool[0]), ElementsAre("window", "line", "x", "y", "w", "h", "text", "face", "px", "bold",
                                           "italic", "color"));
  EXPECT_EQ(ofTool[0]["text"], "Mass of ");
  EXPECT_EQ(ofTool[0]["x"], 8);
  EXPECT_EQ(ofTool[0]["y"], 46);
  EXPECT_EQ(ofTool[0]["h"], 16);
  EXPECT_EQ(ofTool[0]["face"], "Tahoma");
  EXPECT_EQ(ofTool[0]["px"], 13);
  EXPECT_EQ(ofTool[0]["bold"], false);
  EXPECT_EQ(ofTool[0]["color"], "000000");
  EXPECT_EQ(ofTool[1]["text"], "water");
  EXPECT_EQ(ofTool[1]["line"], ofTool[0]["line"]);
  EXPECT_EQ(ofTool[1]["bold"], true);
  EXPECT_EQ(ofTool[1]["color"], "00428a");
  EXPECT_EQ(ofTool[2]["text"], "second line");
  EXPECT_NE(ofTool[2]["line"], ofTool[0]["line"]);
  EXPECT_EQ(ofTool[3]["text"], "h2o");
  EXPECT_EQ(ofTool[3]["face"], "Courier New");
  EXPECT_NE(report["runs"].back()["window"], "wnd_fake");  // the layers come last
}

}  // namespace
}  // namespace orvane::hosts_test
