// What must hold of the manual as a whole.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <regex>
#include <set>
#include <sstream>

#include "data/help_file.h"
#include "resources/help_pages.h"
#include "tests/content/manual.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {
namespace {

using ::testing::IsEmpty;

constexpr const char* kManual = ORVANE_SOURCE_DIR "/docs/manual";

TEST(Manual, HasNoProblems) {
  std::vector<TableProblem> problems;
  const HelpSource manual = Manual(problems);
  std::vector<std::string> texts;
  for (const TableProblem& problem : problems) texts.push_back(ProblemText(problem));
  EXPECT_THAT(texts, IsEmpty());
  EXPECT_GE(manual.pages.size(), 20u);
}

TEST(Manual, IsWhatTheProgramShips) {
  EXPECT_TRUE(ReadBytes(ORVANE_BIN_DIR "/help.dat") == EncodeHelp(Manual()));
}

TEST(Manual, StandsInTheDocumentsAsItIs) {
  const std::map<std::string, std::string> files = WriteManual(Manual());
  for (const auto& [name, text] : files) {
    EXPECT_EQ(ReadBytes(std::string(kManual) + "/" + name), text)
        << name << " is not up to date: build the target \"manual\"";
  }
  for (const auto& entry : std::filesystem::directory_iterator(kManual)) {
    EXPECT_TRUE(files.contains(entry.path().filename().string()))
        << entry.path() << " has no source any more";
  }
}

class ShippedHelp : public ::testing::Test {
 protected:
  ShippedHelp() { EXPECT_TRUE(help_.Open(ORVANE_BIN_DIR "/help.dat", reporter_)); }
  ~ShippedHelp() override { EXPECT_THAT(reporter_.texts, IsEmpty()); }
  const HelpPageBody& Body(const HelpPage& page) {
    help_.LoadBody(page.id, reporter_);
    return *page.body;
  }

  CollectingReporter reporter_;
  HelpFile help_;
};

TEST_F(ShippedHelp, HasEveryPageThatAScreenOpens) {
  for (const int id : kHelpPages) EXPECT_NE(help_.FindPage(id), kNoPage) << id;
}

// Screens name their pages by the constants of help_pages.h, so that the list above is complete.
TEST(HelpTopics, AreNamedByTheirConstants) {
  const std::string constants = ReadBytes(ORVANE_SOURCE_DIR "/resources/help_pages.h");
  const std::regex call(R"((?:SetHelpTopic|ShowHelp)\(\s*(k\w+|[0-9]\w*))");
  int calls = 0;
  for (const char* room : {"tools", "help", "app"}) {
    for (const auto& entry : std::filesystem::directory_iterator(ORVANE_SOURCE_DIR "/" + std::string(room))) {
      const std::string source = ReadBytes(entry.path().string());
      for (std::sregex_iterator at(source.begin(), source.end(), call), end; at != end; ++at, ++calls) {
        EXPECT_NE(constants.find("int " + (*at)[1].str() + " ="), std::string::npos)
            << entry.path() << ": " << at->str();
      }
    }
  }
  EXPECT_GE(calls, 8);
}

TEST_F(ShippedHelp, ChainsAllPagesInTheOrderOfTheContents) {
  std::vector<int> order;
  for (const ContentsEntry& entry : help_.Contents()) {
    if (entry.isPage) order.push_back(entry.page);
  }
  ASSERT_EQ(order.size(), help_.Pages().size());
  EXPECT_EQ(help_.Pages()[static_cast<std::size_t>(order.front())].id, kHelpWelcome);
  for (std::size_t i = 0; i < order.size(); ++i) {
    ASSERT_GE(order[i], 0);
    const HelpPageBody& body = Body(help_.Pages()[static_cast<std::size_t>(order[i])]);
    const int before = i == 0 ? kNoPage : order[i - 1];
    const int after = i + 1 == order.size() ? kNoPage : order[i + 1];
    EXPECT_EQ(help_.FindPage(body.neighbour1), before) << i;
    EXPECT_EQ(help_.FindPage(body.neighbour2), after) << i;
    EXPECT_EQ(body.neighbour1 == kNoPage, before == kNoPage);
    EXPECT_EQ(body.neighbour2 == kNoPage, after == kNoPage);
  }
}

TEST_F(ShippedHelp, EveryLinkLeadsToAnotherPage) {
  for (const HelpPage& page : help_.Pages()) {
    const HelpPageBody& body = Body(page);
    std::set<int> seen;
    for (const int link : body.links) {
      ASSERT_GE(link, 0);
      EXPECT_NE(help_.Pages()[static_cast<std::size_t>(link)].id, page.id) << ToUtf8(page.title);
      EXPECT_TRUE(seen.insert(link).second) << ToUtf8(page.title) << ": the same link twice";
    }
  }
}

TEST_F(ShippedHelp, HeadingsHavePagesBelow) {
  const std::vector<ContentsEntry>& contents = help_.Contents();
  for (std::size_t i = 0; i < contents.size(); ++i) {
    if (contents[i].isPage) continue;
    ASSERT_LT(i + 1, contents.size());
    EXPECT_GT(contents[i + 1].level, contents[i].level) << ToUtf8(contents[i].heading);
  }
}

// --- Spelling.

// The words of the pages, a line a page, without what is typed and without formulas.
std::string Prose(const HelpPageSource& page) {
  std::string text = ToUtf8(page.title) + "\n";
  for (const HelpBlock& block : page.blocks) {
    for (const HelpLine& line : block.lines) {
      Text words;
      for (const HelpSpan& span : line) {
        if (!span.typed && span.style.position == TextPosition::kNormal) words += span.text;
      }
      if (block.kind != HelpBlock::Kind::kExample || block.example == "mass") text += ToUtf8(words) + "\n";
    }
  }
  return text;
}

TEST(ManualSpelling, IsThatOfTheDictionary) {
  if (std::system("hunspell -d en_GB -l </dev/null >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "needs hunspell with its British dictionary";
  }
  const TempFolder folder;
  const auto wrongWords = [&folder](const std::string& text) {
    WriteBytes(folder.File("text"), text);
    const std::string command = "LC_ALL=C.UTF-8 hunspell -d en_GB -i utf-8 -l -p " ORVANE_SOURCE_DIR
                                "/tests/content/help_words.txt '" +
                                folder.File("text") + "' >'" + folder.File("wrong") + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::istringstream wrong(ReadBytes(folder.File("wrong")));
    std::set<std::string> words;
    for (std::string word; wrong >> word;) {
      // A name with a digit, such as that of a key, is no word.
      if (word.find_first_of("0123456789") == std::string::npos) words.insert(word);
    }
    return words;
  };
  EXPECT_THAT(wrongWords("The colour of the tabel."), ::testing::ElementsAre("tabel"));
  for (const HelpPageSource& page : Manual().pages)
    EXPECT_THAT(wrongWords(Prose(page)), IsEmpty()) << page.file;
}

}  // namespace
}  // namespace orvane::testing
