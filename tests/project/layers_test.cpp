// The layer checks must object to every kind of breach, shown on made-up files.
#include "tests/project/layers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane::project {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

Layers SmallTable() {
  Findings findings;
  Layers layers = ParseLayers(
      "# a comment\n"
      "base       -                    -\n"
      "chemistry  base                 -\n"
      "platform   base                 cairo posix\n"
      "framework  platform             -\n"
      "tools      framework,chemistry  -\n"
      "help       framework            -\n"
      "app        tools,help           -\n",
      findings);
  EXPECT_THAT(findings, IsEmpty());
  return layers;
}

TEST(LayerTable, ReadsRowsAndReachesThroughThem) {
  const Layers layers = SmallTable();
  EXPECT_THAT(layers.at("tools").mayInclude, ElementsAre("chemistry", "framework"));
  EXPECT_THAT(layers.at("platform").libraries, ElementsAre("cairo", "posix"));
  EXPECT_THAT(Reach(layers, "base"), ElementsAre("base"));
  EXPECT_THAT(Reach(layers, "tools"),
              UnorderedElementsAre("tools", "framework", "chemistry", "platform", "base"));
}

TEST(LayerTable, ReportsShortRowsAndUnknownRooms) {
  Findings findings;
  ParseLayers("base -\ntools attic -\n", findings);
  EXPECT_THAT(findings, ElementsAre(HasSubstr("a row has a room"), HasSubstr("names no room: attic")));
}

TEST(LayerIncludes, AllowsOwnRoomAndWhatLiesBelow) {
  const FileMap files = {{"tools/wnd_mass.cpp",
                          "#include \"tools/wnd_mass.h\"\n#include \"base/text.h\"\n"
                          "#include \"platform/canvas.h\"\n#include <vector>\n"},
                         {"tests/base/text_test.cpp", "#include \"app/main.h\"\n"}};
  EXPECT_THAT(CheckIncludes(files, SmallTable()), IsEmpty());
}

TEST(LayerIncludes, ObjectsToWhatLiesAboveOrBeside) {
  const FileMap files = {{"chemistry/mass.h", "#pragma once\n\n  #  include \"platform/canvas.h\"\n"},
                         {"framework/panel.cpp", "#include \"tools/wnd_mass.h\"\n"},
                         {"tools/wnd_mass.cpp", "#include \"app/application.h\"\n"}};
  EXPECT_THAT(CheckIncludes(files, SmallTable()),
              ElementsAre(AllOf(HasSubstr("chemistry/mass.h:3"), HasSubstr("may include base, chemistry")),
                          HasSubstr("framework/panel.cpp:1"), HasSubstr("tools/wnd_mass.cpp:1")));
}

TEST(LayerIncludes, ObjectsToIncludesThatDoNotBeginAtTheRoot) {
  const FileMap files = {{"base/text.cpp", "#include \"text.h\"\n#include \"../base/text.h\"\n"}};
  EXPECT_THAT(CheckIncludes(files, SmallTable()),
              ElementsAre(HasSubstr("begins with the name of a room"), HasSubstr("base/text.cpp:2")));
}

TEST(LayerIncludes, LetsOnlyTheMainFileSeeHosts) {
  const FileMap files = {{"app/main.cpp", "#include \"platform/host_sdl.h\"\n"},
                         {"app/application.cpp", "#include \"platform/host.h\"\n"},
                         {"platform/host_sdl.cpp", "#include \"platform/host_sdl.h\"\n"},
                         {"app/main_window.cpp", "#include \"platform/host_sdl.h\"\n"},
                         {"framework/panel.cpp", "#include \"platform/host_headless.h\"\n"}};
  EXPECT_THAT(CheckIncludes(files, SmallTable()),
              ElementsAre(HasSubstr("app/main_window.cpp:1"),
                          AllOf(HasSubstr("framework/panel.cpp:1"), HasSubstr("main file alone"))));
}

TEST(LayerIncludes, KeepsScreensApart) {
  const FileMap files = {
      {"tools/wnd_plot.cpp", "#include \"tools/wnd_plotset.h\"\n"},
      {"tools/wnd_mass.cpp", "#include \"help/helpView.h\"\n"},
      {"help/helpCont.cpp", "#include \"help/helpView.h\"\n"},
      {"tools/wnd_find.cpp", "#include \"tools/FormulaEditor.h\"\n#include \"tools/navigator.h\"\n"},
      {"tools/wnd_plot_axes.cpp", "#include \"tools/wnd_plot.h\"\n"}};
  EXPECT_THAT(
      CheckIncludes(files, SmallTable()),
      UnorderedElementsAre(AllOf(HasSubstr("tools/wnd_plot.cpp"), HasSubstr("never include each other")),
                           HasSubstr("help/helpCont.cpp"), HasSubstr("tools/wnd_mass.cpp:1 includes"),
                           AllOf(HasSubstr("tools/wnd_mass.cpp"), HasSubstr("never include each other"))));
}

TEST(LayerLibraries, AllowsTheStandardLibraryAndTheRowsOwn) {
  const FileMap files = {{"base/text.h", "#include <string_view>\n"},
                         {"platform/canvas.cpp", "#include <cairo.h>\n#include <sys/socket.h>\n"}};
  EXPECT_THAT(CheckLibraries(files, SmallTable()), IsEmpty());
}

TEST(LayerLibraries, ObjectsToEveryOther) {
  const FileMap files = {{"chemistry/mass.cpp", "#include <gmpxx.h>\n"},
                         {"framework/panel.cpp", "#include <cairo/cairo.h>\n"},
                         {"platform/canvas.cpp", "#include <SDL.h>\n"},
                         {"tools/wnd_mass.cpp", "#include <strange.h>\n"}};
  EXPECT_THAT(CheckLibraries(files, SmallTable()),
              ElementsAre(HasSubstr("<gmpxx.h>"), HasSubstr("<cairo/cairo.h>"),
                          AllOf(HasSubstr("<SDL.h>"), HasSubstr("cairo, posix")), HasSubstr("<strange.h>")));
}

FileMap BuildFiles() {
  return {{"base/CMakeLists.txt", "orvane_room(base)\n"},
          {"chemistry/CMakeLists.txt", "orvane_room(chemistry DEPENDS base)\n"},
          {"platform/CMakeLists.txt", "orvane_room(platform DEPENDS base EXCLUDE host_sdl.cpp)\n"},
          {"framework/CMakeLists.txt", "orvane_room(framework\n  DEPENDS platform)\n"},
          {"tools/CMakeLists.txt", "orvane_room(tools DEPENDS framework chemistry)\n"},
          {"help/CMakeLists.txt", "orvane_room(help DEPENDS framework)\n"},
          {"app/CMakeLists.txt",
           "# orvane_room(wrong)\ntarget_link_libraries(orvane PRIVATE orvane_tools orvane_help)\n"}};
}

TEST(LayerBuildFiles, AcceptsTheRowsOfTheTable) {
  EXPECT_THAT(CheckBuildFiles(BuildFiles(), SmallTable()), IsEmpty());
}

TEST(LayerBuildFiles, ObjectsToMoreLessOrElsewhere) {
  FileMap files = BuildFiles();
  files["chemistry/CMakeLists.txt"] = "orvane_room(chemistry DEPENDS base platform)\n";
  files["help/CMakeLists.txt"] = "orvane_room(help)\n";
  files["platform/CMakeLists.txt"] =
      "orvane_room(window DEPENDS base)\ntarget_link_libraries(orvane_platform PUBLIC orvane_framework)\n";
  files.erase("base/CMakeLists.txt");
  EXPECT_THAT(CheckBuildFiles(files, SmallTable()),
              UnorderedElementsAre(HasSubstr("base/CMakeLists.txt is missing"),
                                   HasSubstr("DEPENDS is base, platform, the table says base"),
                                   HasSubstr("DEPENDS is nothing, the table says framework"),
                                   HasSubstr("named after its folder"), HasSubstr("links framework")));
}

constexpr std::string_view kPage =
    "| level | folder | what | may include | libraries |\n|---|---|---|---|---|\n"
    "| 0 | `base/` | text | – | – |\n| 1 | `chemistry/` | logic | base | – |\n"
    "| 1 | `platform/` | device | base | cairo, posix |\n| 3 | `framework/` | windows | platform | – |\n"
    "| 4 | `tools/` | screens | framework, chemistry | – |\n| 4 | `help/` | pages | framework | – |\n"
    "| 5 | `app/` | start-up | tools, help | – |\n";

TEST(ArchitecturePage, AcceptsTheSameRows) {
  EXPECT_THAT(CheckArchitecturePage({{"docs/architecture.md", std::string(kPage)}}, SmallTable()), IsEmpty());
}

TEST(ArchitecturePage, ObjectsToOtherAndMissingRows) {
  std::string page(kPage);
  page.replace(page.find("base | –"), 4, "data");
  page.resize(page.find("| 5"));
  EXPECT_THAT(CheckArchitecturePage({{"docs/architecture.md", page}}, SmallTable()),
              ElementsAre(HasSubstr("the row of chemistry differs"), HasSubstr("no row for app")));
  EXPECT_THAT(CheckArchitecturePage({}, SmallTable()), ElementsAre(HasSubstr("is missing")));
}

}  // namespace
}  // namespace orvane::project
