// The checks of pages and words must object to what they forbid and to nothing else.
#include "tests/project/documents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane::project {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST(Links, LeadToFilesFoldersHeadingsAndOtherSites) {
  const FileMap files = {
      {"README.md", "[a](docs/a.md) [docs](docs) [b](docs/a.md#two-words) [w](https://example.org)"},
      {"docs/a.md", "# Top\n## Two words\n![p](pictures/p.png \"title\") [up](../README.md) [h](#top)"},
      {"docs/pictures/p.png", ""}};
  EXPECT_THAT(CheckLinks(files), IsEmpty());
}

TEST(Links, ThatLeadNowhereAreFound) {
  const FileMap files = {{"docs/a.md", "# Top\n[gone](b.md)\n![p](p.png) [h](#bottom)\n[e]()"}};
  EXPECT_THAT(
      CheckLinks(files),
      ElementsAre(HasSubstr("docs/a.md:2: no such file: docs/b.md"), HasSubstr("no such file: docs/p.png"),
                  HasSubstr("no heading #bottom"), HasSubstr("a link to nothing")));
}

TEST(Links, InsideCodeAreNone) {
  EXPECT_THAT(CheckLinks({{"a.md", "`[x](gone.md)`\n```\n[x](gone.md)\n```\n"}}), IsEmpty());
}

TEST(Links, HeadingsHaveTheirUsualAnchors) {
  EXPECT_EQ(HeadingAnchor("## Play scripts, `report`"), "play-scripts-report");
  EXPECT_EQ(HeadingAnchor("# ./dev"), "dev");
}

TEST(Index, NamesEveryPage) {
  const FileMap files = {{"README.md", "[docs](docs/README.md)"},
                         {"docs/README.md", "[a](a.md#x) [self](README.md)"},
                         {"docs/a.md", "# x"},
                         {"docs/lost.md", "[self](lost.md) [a](a.md)"},
                         {"content/SOURCES.md", ""}};
  EXPECT_THAT(CheckIndex(files), ElementsAre(HasSubstr("docs/lost.md")));
}

TEST(Mentions, OfPagesAreOfPagesThatExist) {
  const FileMap files = {{"docs/a.md", ""},
                         {"base/a.h", "// See docs/a.md.\n// Or mydocs/b.md, or docs/pictures."},
                         {"cmake/b.cmake", "# docs/formats/gone.md says more."}};
  EXPECT_THAT(CheckMentions(files), ElementsAre("cmake/b.cmake: there is no docs/formats/gone.md"));
}

TEST(ForbiddenWords, AreFoundWhateverTheirCase) {
  for (const char* line : {"// TODO: later", "Fixme", "an XXX here", "a Hack", "open(\"/tmp/x\")",
                           "cd /home/me", "/root/x", "/Users/me", "/mnt/disk"}) {
    EXPECT_THAT(CheckWords({{"docs/a.md", line}}), SizeIs(1)) << line;
  }
}

TEST(ForbiddenWords, AreNotSeenInsideOthers) {
  for (const char* line :
       {"\\uXXXX", "mastodon", "hacksaw", "framework/panel.h", "$build/tmp/x", "~/.config/orvane"}) {
    EXPECT_THAT(CheckWords({{"docs/a.md", line}}), IsEmpty()) << line;
  }
}

TEST(ForbiddenWords, AreNotLookedForInBinaryFiles) {
  EXPECT_THAT(CheckWords({{"docs/a.png", std::string("\0 todo", 6)}}), IsEmpty());
}

}  // namespace
}  // namespace orvane::project
