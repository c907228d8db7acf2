// The reading of play scripts: every verb, every mistake.
#include "platform/play_script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/messages.h"

namespace orvane {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

PlayCommand One(std::string_view script) {
  PlayScript parsed = ParsePlayScript(script);
  for (const ScriptError& error : parsed.errors) ADD_FAILURE() << script << ": " << error.message;
  EXPECT_THAT(parsed.commands, SizeIs(1)) << script;
  return parsed.commands.size() == 1 ? parsed.commands[0] : PlayCommand{};
}

std::string ErrorOf(std::string_view script) {
  const PlayScript parsed = ParsePlayScript(script);
  EXPECT_THAT(parsed.errors, SizeIs(1)) << script;
  return parsed.errors.empty() ? "" : parsed.errors[0].message;
}

TEST(PlayScriptWords, ArePartedByBlanksAndTabs) {
  std::vector<Text> words;
  std::string message;
  EXPECT_TRUE(SplitScriptLine(u"  tap\t 1  2 ", words, message));
  EXPECT_THAT(words, ElementsAre(u"tap", u"1", u"2"));
}

TEST(PlayScriptWords, EndAtACommentThatBeginsAWord) {
  std::vector<Text> words;
  std::string message;
  EXPECT_TRUE(SplitScriptLine(u"type a#b # and so on \"", words, message));
  EXPECT_THAT(words, ElementsAre(u"type", u"a#b"));
  words.clear();
  EXPECT_TRUE(SplitScriptLine(u"# nothing", words, message));
  EXPECT_THAT(words, IsEmpty());
}

TEST(PlayScriptWords, MayBeQuoted) {
  std::vector<Text> words;
  std::string message;
  EXPECT_TRUE(SplitScriptLine(uR"(type "a # b" "" "\n\"\\" "\u0001!x\uD800")", words, message));
  EXPECT_THAT(words, ElementsAre(u"type", u"a # b", u"", u"\n\"\\", Text(u"\u0001!x") + Char{0xD800}));
}

TEST(PlayScriptWords, TakeABackslashAsItIsOutsideQuotes) {
  std::vector<Text> words;
  std::string message;
  EXPECT_TRUE(SplitScriptLine(uR"(type a\nb)", words, message));
  EXPECT_THAT(words, ElementsAre(u"type", uR"(a\nb)"));
}

TEST(PlayScriptWords, HaveTheirQuotesAndEscapesChecked) {
  EXPECT_THAT(ErrorOf("type \"abc"), HasSubstr("closing quote is missing"));
  EXPECT_THAT(ErrorOf("type \"abc\\"), HasSubstr("escapes"));
  EXPECT_THAT(ErrorOf("type \"a\\tb\""), HasSubstr("escapes"));
  EXPECT_THAT(ErrorOf("type \"a\\u12G4\""), HasSubstr("escapes"));
  EXPECT_THAT(ErrorOf("type \"a\\u123"), HasSubstr("escapes"));
  EXPECT_THAT(ErrorOf("type \"a\"b"), HasSubstr("followed by a blank"));
  EXPECT_THAT(ErrorOf("type a\"b\""), HasSubstr("middle of a word"));
}

struct NumberedVerb {
  const char* line;
  Verb verb;
  std::vector<int> numbers;
};

class PlayScriptNumbers : public ::testing::TestWithParam<NumberedVerb> {};

TEST_P(PlayScriptNumbers, AreReadInOrder) {
  const PlayCommand command = One(GetParam().line);
  EXPECT_EQ(command.verb, GetParam().verb);
  EXPECT_EQ(command.numbers, GetParam().numbers);
  EXPECT_THAT(command.texts, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Verbs, PlayScriptNumbers,
    ::testing::Values(
        NumberedVerb{"tap 12 300", Verb::kTap, {12, 300}}, NumberedVerb{"press 0 0", Verb::kPress, {0, 0}},
        NumberedVerb{"move -5 +400", Verb::kMove, {-5, 400}}, NumberedVerb{"release", Verb::kRelease, {}},
        NumberedVerb{"drag 1 2 3 4", Verb::kDrag, {1, 2, 3, 4, 8}},
        NumberedVerb{"drag 1 2 3 4 5", Verb::kDrag, {1, 2, 3, 4, 5}},
        NumberedVerb{"wheel 10 20 -3", Verb::kWheel, {10, 20, -3}},
        NumberedVerb{"hold action", Verb::kHoldAction, {}},
        NumberedVerb{"let-go action", Verb::kLetGoAction, {}},
        NumberedVerb{"button 8867", Verb::kButton, {8867}}, NumberedVerb{"panel", Verb::kPanel, {}},
        NumberedVerb{"ok", Verb::kOk, {}}, NumberedVerb{"dismiss-all", Verb::kDismissAll, {}},
        NumberedVerb{"close", Verb::kClose, {}}, NumberedVerb{"wait 500", Verb::kWait, {500}},
        NumberedVerb{"report", Verb::kReport, {}}, NumberedVerb{"restart", Verb::kRestart, {}},
        NumberedVerb{"expect no-message", Verb::kExpectNoMessage, {}},
        NumberedVerb{"expect exit 1", Verb::kExpectExit, {1}}));

struct TextVerb {
  const char* line;
  Verb verb;
  std::vector<Text> texts;
};

class PlayScriptTexts : public ::testing::TestWithParam<TextVerb> {};

TEST_P(PlayScriptTexts, AreTakenWhole) {
  const PlayCommand command = One(GetParam().line);
  EXPECT_EQ(command.verb, GetParam().verb);
  EXPECT_EQ(command.texts, GetParam().texts);
}

INSTANTIATE_TEST_SUITE_P(
    Verbs, PlayScriptTexts,
    ::testing::Values(TextVerb{"type h2o", Verb::kType, {u"h2o"}},
                      TextVerb{"menu Tools \"Quick plot\"", Verb::kMenu, {u"Tools", u"Quick plot"}},
                      TextVerb{"choose \"X axis...\"", Verb::kChoose, {u"X axis..."}},
                      TextVerb{"clipboard \"a b\"", Verb::kClipboard, {u"a b"}},
                      TextVerb{"expect tool wnd_mass", Verb::kExpectTool, {u"wnd_mass"}},
                      TextVerb{"expect title \"Periodic table\"", Verb::kExpectTitle, {u"Periodic table"}},
                      TextVerb{"expect text H", Verb::kExpectText, {u"H"}},
                      TextVerb{"expect no-text \"\"", Verb::kExpectNoText, {u""}},
                      TextVerb{"expect message Failed", Verb::kExpectMessage, {u"Failed"}},
                      TextVerb{"expect popup \xCE\xB1", Verb::kExpectPopup, {u"\u03B1"}},
                      TextVerb{"expect checked Yes", Verb::kExpectChecked, {u"Yes"}},
                      TextVerb{"expect clipboard x", Verb::kExpectClipboard, {u"x"}}));

TEST(PlayScriptVerbs, WheelMayTurnSideways) {
  EXPECT_FALSE(One("wheel 1 2 3").sideways);
  EXPECT_TRUE(One("wheel 1 2 3 sideways").sideways);
  EXPECT_THAT(ErrorOf("wheel 1 2 3 upwards"), HasSubstr("sideways"));
}

TEST(PlayScriptVerbs, PixelHasAPlaceAndAColour) {
  const PlayCommand command = One("expect pixel 239 319 00428A");
  EXPECT_EQ(command.verb, Verb::kExpectPixel);
  EXPECT_THAT(command.numbers, ElementsAre(239, 319));
  EXPECT_EQ(command.colour, Rgb(0, 0x42, 0x8A));
  EXPECT_EQ(One("expect pixel 0 0 ffa00b").colour, Rgb(0xFF, 0xA0, 0x0B));
  EXPECT_THAT(ErrorOf("expect pixel 240 0 000000"), HasSubstr("from 0 to 239"));
  EXPECT_THAT(ErrorOf("expect pixel 0 320 000000"), HasSubstr("from 0 to 319"));
  EXPECT_THAT(ErrorOf("expect pixel 0 0 #000000"), HasSubstr("missing"));  // # starts a comment
  EXPECT_THAT(ErrorOf("expect pixel 0 0 0000"), HasSubstr("RRGGBB"));
  EXPECT_THAT(ErrorOf("expect pixel 0 0 00000g"), HasSubstr("RRGGBB"));
}

TEST(PlayScriptVerbs, FilesStayBelowTheOutputFolder) {
  EXPECT_EQ(One("shot a.png").file, "a.png");
  EXPECT_EQ(One("trace \"sub folder/..b/x.jsonl\"").file, "sub folder/..b/x.jsonl");
  for (const char* file :
       {"/a.png", "../a.png", "a/../../b", "..", "a/..", "\"\"", "a/", "\"a\\u0000b\"", "a/../b"}) {
    EXPECT_THAT(ErrorOf(std::string("shot ") + file), HasSubstr("below the output folder")) << file;
  }
}

TEST(PlayScriptMistakes, AreToldWithTheirLines) {
  const PlayScript parsed = ParsePlayScript("tap 1 2\n\ntpa 1 2\r\n# tap\n  report now\nok");
  EXPECT_THAT(parsed.commands, SizeIs(2));
  ASSERT_THAT(parsed.errors, SizeIs(2));
  EXPECT_EQ(parsed.errors[0].line, 3);
  EXPECT_THAT(parsed.errors[0].message, HasSubstr("unknown verb \"tpa\""));
  EXPECT_EQ(parsed.errors[1].line, 5);
  EXPECT_THAT(parsed.errors[1].message, HasSubstr("too many words: \"now\""));
  EXPECT_EQ(parsed.commands[1].line, 6);
}

struct Mistake {
  const char* line;
  const char* message;
};

class PlayScriptMistake : public ::testing::TestWithParam<Mistake> {};

TEST_P(PlayScriptMistake, IsFound) { EXPECT_THAT(ErrorOf(GetParam().line), HasSubstr(GetParam().message)); }

INSTANTIATE_TEST_SUITE_P(
    Lines, PlayScriptMistake,
    ::testing::Values(Mistake{"tap 1", "missing behind \"1\""}, Mistake{"tap", "missing behind \"tap\""},
                      Mistake{"tap 1 2 3", "too many words"}, Mistake{"tap 1.5 2", "no whole number"},
                      Mistake{"tap 10001 2", "from -10000 to 10000"}, Mistake{"tap - 2", "no whole number"},
                      Mistake{"tap 99999999999999999999 2", "no whole number"},
                      Mistake{"drag 1 2 3", "missing"}, Mistake{"drag 1 2 3 4 0", "from 1 to"},
                      Mistake{"drag 1 2 3 4 5 6", "too many words"}, Mistake{"wheel 1 2", "missing"},
                      Mistake{"key", "missing"}, Mistake{"key Hyper+A", "is no key"},
                      Mistake{"hold", "missing behind \"hold\""}, Mistake{"hold breath", "does not go with"},
                      Mistake{"let-go", "missing"}, Mistake{"type two words", "too many words"},
                      Mistake{"type", "missing"}, Mistake{"menu Tools", "missing"},
                      Mistake{"button Help", "no whole number"}, Mistake{"button 65536", "from 0 to 65535"},
                      Mistake{"wait -1", "from 0 to"}, Mistake{"wait 86400001", "from 0 to"},
                      Mistake{"shot", "missing"}, Mistake{"expect", "missing behind \"expect\""},
                      Mistake{"expect luck 1", "does not go with \"luck\""},
                      Mistake{"expect exit", "missing"}, Mistake{"expect exit zero", "no whole number"},
                      Mistake{"Tap 1 2", "unknown verb"}, Mistake{"type \xFF", "not UTF-8"}));

TEST(PlayScript, MayBeEmptyOrBeginWithAByteOrderMark) {
  EXPECT_THAT(ParsePlayScript("").commands, IsEmpty());
  EXPECT_THAT(ParsePlayScript("").errors, IsEmpty());
  EXPECT_EQ(One("\xEF\xBB\xBFok\n").verb, Verb::kOk);
}

struct KeyCase {
  const char16_t* name;
  int key;
  Modifiers modifiers;
  Char character;
};

class PlayKeys : public ::testing::TestWithParam<KeyCase> {};

TEST_P(PlayKeys, AreKnownByName) {
  const std::optional<KeyStroke> stroke = ParseKeyStroke(GetParam().name);
  ASSERT_TRUE(stroke);
  EXPECT_EQ(stroke->key, GetParam().key);
  EXPECT_EQ(stroke->modifiers, GetParam().modifiers);
  EXPECT_EQ(stroke->character, GetParam().character);
}

constexpr Modifiers kNone{};
constexpr Modifiers kShift{true, false, false};
constexpr Modifiers kControl{false, true, false};
constexpr Modifiers kAlt{false, false, true};

INSTANTIATE_TEST_SUITE_P(
    Names, PlayKeys,
    ::testing::Values(KeyCase{u"Left", 0x25, kNone, 0}, KeyCase{u"Right", 0x27, kNone, 0},
                      KeyCase{u"Up", 0x26, kNone, 0}, KeyCase{u"Down", 0x28, kNone, 0},
                      KeyCase{u"Home", 0x24, kNone, 0}, KeyCase{u"End", 0x23, kNone, 0},
                      KeyCase{u"PageUp", 0x21, kNone, 0}, KeyCase{u"PageDown", 0x22, kNone, 0},
                      KeyCase{u"Backspace", 0x08, kNone, 0}, KeyCase{u"Delete", 0x2E, kNone, 0},
                      KeyCase{u"Enter", 0x0D, kNone, 0}, KeyCase{u"Escape", 0x1B, kNone, 0},
                      KeyCase{u"Tab", 0x09, kNone, 0}, KeyCase{u"Space", 0x20, kNone, u' '},
                      KeyCase{u"Plus", 0x6B, kNone, u'+'}, KeyCase{u"Minus", 0x6D, kNone, u'-'},
                      KeyCase{u"Alt", 0x12, kNone, 0}, KeyCase{u"F1", 0x70, kNone, 0},
                      KeyCase{u"F9", 0x78, kNone, 0}, KeyCase{u"F12", 0x7B, kNone, 0},
                      KeyCase{u"a", 'A', kNone, u'a'}, KeyCase{u"A", 'A', kNone, u'a'},
                      KeyCase{u"Shift+a", 'A', kShift, u'A'}, KeyCase{u"Z", 'Z', kNone, u'z'},
                      KeyCase{u"0", '0', kNone, u'0'}, KeyCase{u"Shift+0", '0', kShift, u')'},
                      KeyCase{u"Shift+9", '9', kShift, u'('}, KeyCase{u"Shift+1", '1', kShift, u'!'},
                      KeyCase{u"Ctrl+c", 'C', kControl, 0}, KeyCase{u"Ctrl+Plus", 0x6B, kControl, 0},
                      KeyCase{u"Alt+x", 'X', kAlt, 0}, KeyCase{u"Shift+Left", 0x25, kShift, 0},
                      KeyCase{u"Shift+Space", 0x20, kShift, u' '},
                      KeyCase{u"Ctrl+Shift+End", 0x23, Modifiers{true, true, false}, 0},
                      KeyCase{u"Alt+Ctrl+Shift+F12", 0x7B, Modifiers{true, true, true}, 0}));

TEST(PlayKeys, OthersAreUnknown) {
  for (const TextView name : {u"", u"left", u"F0", u"F13", u"F01", u"F123", u"Shift+", u"Shift", u"ab",
                              u"Shift+Shift+a", u"+", u"\u00E4", u"Ctrl-a", u"Page Up"}) {
    EXPECT_FALSE(ParseKeyStroke(name)) << ToUtf8(name);
  }
}

TEST(PlayKeys, TypeControlCharacters) {
  EXPECT_EQ(KeyOfControlCharacter(u'\n')->key, VK_RETURN);
  EXPECT_EQ(KeyOfControlCharacter(u'\r')->key, VK_RETURN);
  EXPECT_EQ(KeyOfControlCharacter(u'\t')->key, VK_TAB);
  EXPECT_EQ(KeyOfControlCharacter(u'\b')->key, VK_BACK);
  EXPECT_FALSE(KeyOfControlCharacter(u'a'));
  EXPECT_FALSE(KeyOfControlCharacter(u'\u0001'));
}

}  // namespace
}  // namespace orvane
