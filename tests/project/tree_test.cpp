// The project's own files, held to its rules.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "tests/project/documents.h"
#include "tests/project/habits.h"
#include "tests/project/layers.h"
#include "tests/project/source_text.h"

namespace orvane::project {
namespace {

using ::testing::IsEmpty;

class Tree : public ::testing::Test {
 protected:
  Tree() : files_(ReadProject(ORVANE_SOURCE_DIR)) {
    layers_ = ParseLayers(files_["tests/project/layers.txt"], tableFindings_);
    for (const auto& [name, room] : layers_) rooms_.insert(name);
  }

  FileMap files_;
  Findings tableFindings_;
  Layers layers_;
  std::set<std::string> rooms_;
};

TEST_F(Tree, IsReadWithAllItsRooms) {
  EXPECT_TRUE(files_.contains("base/text.h"));
  EXPECT_TRUE(files_.contains("dev"));
  EXPECT_THAT(tableFindings_, IsEmpty());
  EXPECT_THAT(rooms_, ::testing::ElementsAre("app", "base", "chemistry", "cli", "content", "data",
                                             "framework", "help", "platform", "resources", "tools"));
}

TEST_F(Tree, IncludesOnlyWhatItsLayersAllow) { EXPECT_THAT(CheckIncludes(files_, layers_), IsEmpty()); }

TEST_F(Tree, UsesLibrariesOnlyWhereTheyBelong) { EXPECT_THAT(CheckLibraries(files_, layers_), IsEmpty()); }

TEST_F(Tree, LinksWhatItsLayersSay) { EXPECT_THAT(CheckBuildFiles(files_, layers_), IsEmpty()); }

TEST_F(Tree, ShowsItsLayersOnTheArchitecturePage) {
  EXPECT_THAT(CheckArchitecturePage(files_, layers_), IsEmpty());
}

TEST_F(Tree, NamesDrawingLibrariesInThePlatformAlone) {
  EXPECT_THAT(CheckForeignTypes(files_, rooms_), IsEmpty());
}

TEST_F(Tree, DecidesBetweenSystemsInThePlatformAlone) {
  EXPECT_THAT(CheckConditionals(files_, rooms_), IsEmpty());
}

TEST_F(Tree, HasNoMutableGlobals) { EXPECT_THAT(CheckMutableGlobals(files_, rooms_), IsEmpty()); }

TEST_F(Tree, KeepsItsFilesShort) { EXPECT_THAT(CheckFileLengths(files_), IsEmpty()); }

TEST_F(Tree, NamesItsFoldersByWhatTheyHold) { EXPECT_THAT(CheckFolderNames(files_), IsEmpty()); }

TEST_F(Tree, LinksOnlyToWhatExists) { EXPECT_THAT(CheckLinks(files_), IsEmpty()); }

TEST_F(Tree, HasAnIndexOfItsPages) { EXPECT_THAT(CheckIndex(files_), IsEmpty()); }

TEST_F(Tree, MentionsOnlyPagesThatExist) { EXPECT_THAT(CheckMentions(files_), IsEmpty()); }

TEST_F(Tree, StandsByItself) { EXPECT_THAT(CheckWords(files_), IsEmpty()); }

}  // namespace
}  // namespace orvane::project
