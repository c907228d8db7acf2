// The compiler of the manual: what its Markdown means, and what it refuses.
#include "content/help_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/help_file.h"
#include "tests/data/collecting_reporter.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using Files = std::map<std::string, std::string>;

std::vector<std::string> ProblemsOf(const Files& files) {
  std::vector<TableProblem> problems;
  ReadHelp(files, problems);
  std::vector<std::string> texts;
  for (const TableProblem& problem : problems) texts.push_back(ProblemText(problem));
  return texts;
}

HelpSource Read(const Files& files) {
  std::vector<TableProblem> problems;
  HelpSource source = ReadHelp(files, problems);
  for (const TableProblem& problem : problems) ADD_FAILURE() << ProblemText(problem);
  return source;
}

// One page of these parts, with a second one to link to.
Files Sound(const std::string& parts) {
  return {{"contents.md", "# Contents\n\n## Part\n\n- [One](one.md)\n- [Two](two.md)\n"},
          {"one.md", "# One\n\n<!-- page 5 -->\n\n" + parts},
          {"two.md", "# Two\n\n<!-- page 7 -->\n\nText.\n"}};
}

std::vector<Text> Paragraphs(const std::string& parts) { return ParagraphsOf(Read(Sound(parts)).pages[0]); }
std::string Problem(const std::string& parts) {
  const std::vector<std::string> problems = ProblemsOf(Sound(parts));
  EXPECT_EQ(problems.size(), 1u);
  return problems.empty() ? "" : problems[0];
}

// --- A line.

Text Styled(std::string_view line) {
  const ParsedHelpLine parsed = ParseHelpLine(line);
  EXPECT_EQ(parsed.problem, "") << line;
  return StyledText(parsed.line);
}

TEST(HelpMarkup, StylesText) {
  EXPECT_EQ(Styled("plain – text"), u"plain – text");
  EXPECT_EQ(Styled("a **bold** word"), u"a \u0001!bold\u0001  word");
  EXPECT_EQ(Styled("*italic*"), u"\u0001\"italic\u0001 ");
  EXPECT_EQ(Styled("`typed`"), u"\u0001\"typed\u0001 ");
  EXPECT_EQ(Styled("H~2~O"), u"H\u0001`2\u0001 O");
  EXPECT_EQ(Styled("10^23^ x"), u"10\u0001\u00A023\u0001  x");
  EXPECT_EQ(Styled("**eq^n^**"), u"\u0001!eq\u0001\u00A1n\u0001 ");
  EXPECT_EQ(Styled("***both***"), u"\u0001#both\u0001 ");
  EXPECT_EQ(Styled("**a***b*"), u"\u0001!a\u0001\"b\u0001 ");
}

TEST(HelpMarkup, TakesEscapedMarksAsTheyAre) {
  EXPECT_EQ(Styled(R"(\* \` \~ \^ \[ \] \\)"), u"* ` ~ ^ [ ] \\");
  EXPECT_EQ(Styled(R"(`a*b\`)"), u"\u0001\"a*b\\\u0001 ");  // nothing is a mark in what is typed
}

TEST(HelpMarkup, KnowsLinks) {
  const ParsedHelpLine parsed = ParseHelpLine("see [the *other* page](other.md) too");
  ASSERT_EQ(parsed.line.size(), 5u);
  EXPECT_EQ(parsed.line[0].link, "");
  EXPECT_EQ(parsed.line[1].link, "other.md");
  EXPECT_EQ(parsed.line[2].text, u"other");
  EXPECT_TRUE(parsed.line[2].style.italic);
  EXPECT_EQ(parsed.line[3].link, "other.md");
  EXPECT_EQ(parsed.line[4].text, u" too");
  EXPECT_EQ(PlainLine(parsed.line), u"see the other page too");
}

TEST(HelpMarkup, RefusesWhatItCannotMean) {
  const char* const lines[] = {
      "a **bold",     "an *italic", "a `typed", "low~er",  "rai^sed",           "a~b^c^~",    "\\x",
      "end\\",        "``",         "[text",    "[text](", "[](a.md)",          "[t](a.txt)", "[t](b/a.md)",
      "[t](../a.md)", "text]",      "a\tb",     "\xFF",    "[a[b](c.md)](d.md)"};
  for (const char* line : lines) EXPECT_NE(ParseHelpLine(line).problem, "") << line;
}

TEST(HelpMarkup, BecomesMarkdownAgain) {
  const auto markdown = [](std::string_view line) { return MarkdownText(ParseHelpLine(line).line); };
  EXPECT_EQ(markdown("**b** *i* `t` H~2~ x^2^"), "**b** *i* `t` H<sub>2</sub> x<sup>2</sup>");
  EXPECT_EQ(markdown("[t](a.md)"), "[t](a.md)");
  EXPECT_EQ(markdown(R"(1 < 2 \* 3_4 # |)"), R"(1 \< 2 \* 3\_4 \# \|)");
}

// --- Parts of a page.

TEST(HelpSource, JoinsTheLinesOfAParagraph) {
  EXPECT_THAT(Paragraphs("One\ntwo.\n\n\nThree.\n"), ElementsAre(u"One two.", u"Three."));
}

TEST(HelpSource, PutsAHeadingAboveWhatFollows) {
  EXPECT_THAT(Paragraphs("## Head\n\nText.\n\n## Other\n\n- a\n- b\n"),
              ElementsAre(u"\u0001!Head\u0001 \nText.", u"\u0001!Other\u0001 \n• a\n• b"));
  EXPECT_THAT(Paragraphs("## One\n\n## Two\n"), ElementsAre(u"\u0001!One\u0001 ", u"\u0001!Two\u0001 "));
}

TEST(HelpSource, MakesOneParagraphOfAList) {
  EXPECT_THAT(Paragraphs("- one\n  goes on\n- **two**\n"),
              ElementsAre(u"• one goes on\n• \u0001!two\u0001 "));
}

// Together with the heading above it.
TEST(HelpSource, TakesAListOfLinksForLinksAlone) {
  const HelpSource source = Read(Sound("Text.\n\n## See also\n\n- [Two](two.md)\n\nMore.\n"));
  EXPECT_THAT(ParagraphsOf(source.pages[0]), ElementsAre(u"Text.", u"More."));
  EXPECT_THAT(source.LinksOf(source.pages[0]), ElementsAre(1));
}

TEST(HelpSource, OffersEveryLinkOnce) {
  const HelpSource source = Read(Sound("See [two](two.md) and [it](two.md).\n\n- [Two](two.md)\n"));
  EXPECT_THAT(source.LinksOf(source.pages[0]), ElementsAre(1));
  EXPECT_THAT(ParagraphsOf(source.pages[0]), ElementsAre(u"See two and it."));
}

TEST(HelpSource, ShowsExamples) {
  EXPECT_THAT(
      Paragraphs("```mass\nh2o → **18**, H~2~\na*b → c\n```\n"),
      ElementsAre(u"\u0001\"h2o\u0001  → \u0001!18\u0001 , H\u0001`2\u0001 \n\u0001\"a*b\u0001  → c"));
}

// --- Mistakes.

TEST(HelpSource, NamesMistakesByFileAndLine) {
  EXPECT_EQ(Problem("Text **bold.\n"), "one.md:5: a ** that is not closed");
  EXPECT_EQ(Problem("### Deep\n"), "one.md:5: a heading inside a page begins with \"## \"");
  EXPECT_THAT(Problem("- item\nno item\n"), HasSubstr("one.md:6: in a list"));
  EXPECT_THAT(Problem("```mass\nno arrow\n```\n"), HasSubstr("one.md:6: a line of an example"));
  EXPECT_THAT(Problem("```poem\na → b\n```\n"), HasSubstr("one.md:5: an example of \"poem\""));
  EXPECT_THAT(Problem("```mass\na → b\n"), HasSubstr("not closed by"));
  EXPECT_EQ(Problem("[x](three.md)\n"), "one.md:5: a link to three.md, which is no page");
  EXPECT_THAT(Problem(std::string(70000, 'x') + "\n"), HasSubstr("more than 65535 bytes"));
}

TEST(HelpSource, WantsTitleAndId) {
  Files files = Sound("Text.\n");
  files["one.md"] = "One\n\n<!-- page 5 -->\n";
  EXPECT_FALSE(ProblemsOf(files).empty());
  for (const char* id : {"", "<!-- page -->", "<!-- page x -->", "<!-- page 10000 -->", "<!-- page -1 -->"}) {
    files["one.md"] = std::string("# One\n\n") + id + "\n";
    EXPECT_THAT(ProblemsOf(files), ElementsAre(HasSubstr("with an id from 0 to 9999"))) << id;
  }
  files["one.md"] = "# One\n\n<!-- page 7 -->\n";
  EXPECT_THAT(ProblemsOf(files), ElementsAre("two.md: page id 7 a second time"));
}

TEST(HelpSource, WantsEveryPageInTheContentsOnce) {
  Files files = Sound("Text.\n");
  files["three.md"] = "# Three\n\n<!-- page 9 -->\n";
  EXPECT_THAT(ProblemsOf(files), ElementsAre("three.md: a page that the contents do not list"));
  files = Sound("Text.\n");
  files["contents.md"] += "- [One](one.md)\n- [None](none.md)\nText\n";
  EXPECT_THAT(ProblemsOf(files),
              ElementsAre("contents.md:7: a second time the page one.md", "contents.md:8: no page none.md",
                          HasSubstr("contents.md:9: expected")));
  files["contents.md"] = "- [Wrong](one.md)\n#### Deep\n- [Two](two.md)\n";
  EXPECT_THAT(ProblemsOf(files), ElementsAre("contents.md:1: the title of one.md is \"One\"",
                                             HasSubstr("contents.md:2: a heading that is more")));
  files.erase("contents.md");
  EXPECT_THAT(ProblemsOf(files), ElementsAre("contents.md: is missing"));
}

// --- What comes out.

TEST(HelpSource, IsReadByTheProgramAsItWasWritten) {
  const HelpSource source = Read(Sound("H~2~O – [two](two.md)\n"));
  const TempFolder folder;
  WriteBytes(folder.File("help.dat"), EncodeHelp(source));
  CollectingReporter reporter;
  HelpFile help;
  ASSERT_TRUE(help.Open(folder.File("help.dat"), reporter));
  ASSERT_EQ(help.Contents().size(), 3u);
  EXPECT_EQ(help.Contents()[0].heading, u"Part");
  EXPECT_EQ(help.Contents()[0].level, 0);
  EXPECT_EQ(help.Contents()[1].level, 1);
  EXPECT_EQ(help.EntryText(help.Contents()[2]), u"Two");
  help.LoadBody(5, reporter);
  const HelpPageBody& one = *help.Pages()[0].body;
  EXPECT_THAT(one.paragraphs, ElementsAre(u"H\u0001`2\u0001 O – two"));
  EXPECT_THAT(one.links, ElementsAre(1));
  EXPECT_EQ(one.neighbour1, kNoPage);
  EXPECT_EQ(one.neighbour2, 7);
  help.LoadBody(7, reporter);
  EXPECT_EQ(help.Pages()[1].body->neighbour1, 5);
  EXPECT_EQ(help.Pages()[1].body->neighbour2, kNoPage);
  EXPECT_THAT(reporter.texts, IsEmpty());
}

TEST(HelpSource, IsWrittenForTheWeb) {
  const Files manual =
      WriteManual(Read(Sound("Text.\n\n## Head\n\n- a\n\n```mass\nh → 1\n```\n\n- [Two](two.md)\n")));
  ASSERT_EQ(manual.size(), 3u);
  EXPECT_THAT(manual.at("README.md"), HasSubstr("## Part\n\n- [One](one.md)\n- [Two](two.md)\n"));
  EXPECT_THAT(manual.at("one.md"),
              HasSubstr("# One\n\nText.\n\n## Head\n\n- a\n\n- `h` → 1\n\n- [Two](two.md)\n\n---\n\n"
                        "[Contents](README.md) · Next: [Two](two.md)\n"));
  EXPECT_THAT(manual.at("two.md"), HasSubstr("---\n\nPrevious: [One](one.md) · [Contents](README.md)\n"));
}

}  // namespace
}  // namespace orvane::testing
