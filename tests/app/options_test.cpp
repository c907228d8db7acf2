// The command line of the hand-held: what each option gives, and what is refused.
#include "app/options.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane {
namespace {

std::variant<Options, int> Parsed(std::vector<const char*> words) {
  words.insert(words.begin(), "orvane");
  return ParseOptions(static_cast<int>(words.size()), words.data());
}

// The options themselves; the standing defaults when the line was refused, which the caller's checks show.
Options Good(const std::vector<const char*>& words) {
  const auto parsed = Parsed(words);
  EXPECT_TRUE(std::holds_alternative<Options>(parsed));
  return std::holds_alternative<Options>(parsed) ? std::get<Options>(parsed) : Options();
}

int Refused(const std::vector<const char*>& words) {
  const auto parsed = Parsed(words);
  return std::holds_alternative<int>(parsed) ? std::get<int>(parsed) : -1;
}

TEST(Options, NothingGivenLeavesEveryChoiceOpen) {
  const Options options = Good({});
  EXPECT_EQ(options.dataFolder, "");
  EXPECT_FALSE(options.settings.has_value());
  EXPECT_FALSE(options.scale.has_value());
  EXPECT_FALSE(options.inputPanel.has_value());
  EXPECT_EQ(options.instance, "Orvane");
  EXPECT_FALSE(options.script.has_value());
  EXPECT_EQ(options.outFolder, ".");
}

TEST(Options, EachOptionTakesItsValue) {
  const Options options = Good({"--data", "d", "--settings", "s", "--scale", "1.5", "--input-panel", "never",
                                "--instance", "i", "--play", "-", "--out", "o"});
  EXPECT_EQ(options.dataFolder, "d");
  EXPECT_EQ(options.settings, "s");
  EXPECT_EQ(options.scale, 1.5);
  EXPECT_EQ(options.inputPanel, PanelMode::kNever);
  EXPECT_EQ(options.instance, "i");
  EXPECT_EQ(options.script, "-");
  EXPECT_EQ(options.outFolder, "o");
}

TEST(Options, TheInputPanelIsNamedByWord) {
  EXPECT_EQ(Good({"--input-panel", "auto"}).inputPanel, PanelMode::kAuto);
  EXPECT_EQ(Good({"--input-panel", "always"}).inputPanel, PanelMode::kAlways);
  for (const char* word : {"sometimes", "0", "1", "2", "ALWAYS", ""}) {
    EXPECT_EQ(Refused({"--input-panel", word}), 2) << word;
  }
}

TEST(Options, AScaleIsANumberFromOneToSixteen) {
  EXPECT_EQ(Good({"--scale", "1"}).scale, 1.0);
  EXPECT_EQ(Good({"--scale", "16"}).scale, 16.0);
  for (const char* scale : {"0", "-1", "0.99", "16.01", "nan", "-nan", "inf", "x", ""}) {
    EXPECT_EQ(Refused({"--scale", scale}), 2) << scale;
  }
}

TEST(Options, WrongUsageAndHelpEndAtOnce) {
  EXPECT_EQ(Refused({"--bogus"}), 2);
  EXPECT_EQ(Refused({"word"}), 2);
  EXPECT_EQ(Refused({"--play"}), 2);
  EXPECT_EQ(Refused({"--version"}), 0);
  EXPECT_EQ(Refused({"--help"}), 0);
}

}  // namespace
}  // namespace orvane
