// The checks of habits must object to what they forbid and to nothing else, shown on made-up files.
#include "tests/project/habits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane::project {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::set<std::string>& Rooms() {
  static const std::set<std::string> rooms = {"base", "framework", "platform", "tools"};
  return rooms;
}

TEST(MutableGlobals, FindsVariablesOfNamespaceScope) {
  EXPECT_THAT(MutableGlobals("namespace orvane {\nint counter = 0;\nstd::vector<const int> list{1, 2};\n}\n"),
              ElementsAre("int counter = 0", "std::vector<const int> list{}"));
  EXPECT_THAT(MutableGlobals("namespace { thread_local Text last; }\nextern int other;\n"),
              ElementsAre("thread_local Text last", "extern int other"));
  EXPECT_THAT(MutableGlobals("const char* name = \"a\";\nint (*hook)(int) = nullptr;\nint* p;\n"),
              ElementsAre("const char* name = \" \"", "int (*hook)(int) = nullptr", "int* p"));
  EXPECT_THAT(
      MutableGlobals("constinit int late = 1;\nstruct A { int x; } single;\ninline int table[3] = {};\n"),
      ElementsAre("constinit int late = 1", "struct A {} single", "inline int table[3] = {}"));
}

TEST(MutableGlobals, FindsStaticVariablesInsideFunctionsAndClasses) {
  EXPECT_THAT(MutableGlobals("int Next() {\n  static int last = 0;\n  return ++last;\n}\n"),
              ElementsAre("static int last = 0"));
  EXPECT_THAT(MutableGlobals("class A {\n public:\n  static int count;\n  inline static Text name;\n};\n"),
              ElementsAre("static int count", "inline static Text name"));
}

TEST(MutableGlobals, FindsAVariableAfterAConstructorWithBraces) {
  EXPECT_THAT(MutableGlobals("Page::Page(int a) : a_{a}, b_{2} {\n  Fill();\n}\nint late;\n"),
              ElementsAre("int late"));
}

TEST(MutableGlobals, AcceptsConstantsFunctionsAndTypes) {
  EXPECT_THAT(MutableGlobals("constexpr int kA = 1;\ninline constexpr TextView kName = u\"x;y{\";\n"
                             "const std::vector<int> kList = {1, 2};\nconst char* const kText = \"a\";\n"
                             "static const Font* const kFonts[] = {nullptr};\n"),
              IsEmpty());
  EXPECT_THAT(MutableGlobals("int Add(int a, int b = 2);\nstatic int Sub(int a) { int b = a; return b; }\n"
                             "bool operator==(const A& a, const A& b) { return true; }\n"
                             "A& A::operator=(const A&) = default;\nauto F() -> int;\n"),
              IsEmpty());
  EXPECT_THAT(
      MutableGlobals("class A;\nstruct B { int x = 0; static int Count(); static constexpr int kN = 1; };\n"
                     "enum class E { kOne };\nusing T = int;\ntemplate <class X> struct C { X x; };\n"
                     "#define LONG \\\n  int a;\n// int commented;\n/* int out; */\n"
                     "static_assert(sizeof(int) == 4);\n"),
      IsEmpty());
  EXPECT_THAT(MutableGlobals("int F() {\n  static const int kN = 3;\n  int local = 4;\n  return local;\n}\n"),
              IsEmpty());
}

TEST(MutableGlobals, AreLookedForInRoomsAlone) {
  const FileMap files = {
      {"base/a.cpp", "int a;\n"}, {"tests/base/a_test.cpp", "int b;\n"}, {"base/a.txt", "int c;\n"}};
  EXPECT_THAT(CheckMutableGlobals(files, Rooms()), ElementsAre(HasSubstr("base/a.cpp")));
}

TEST(ForeignTypes, StandInThePlatformAlone) {
  const FileMap files = {{"framework/bitmap.h", "struct Bitmap { cairo_surface_t* surface; };\n"},
                         {"tools/wnd_mass.cpp", "FT_Face face;\n"},
                         {"tools/wnd_find.cpp", "// SDL_Window is not seen here.\nint GIFT_Count();\n"},
                         {"platform/canvas.cpp", "cairo_t* context;\n"}};
  EXPECT_THAT(CheckForeignTypes(files, Rooms()),
              ElementsAre(HasSubstr("framework/bitmap.h"), HasSubstr("tools/wnd_mass.cpp")));
}

TEST(Conditionals, StandInThePlatformAlone) {
  const FileMap files = {{"base/text.cpp", "#ifdef __linux__\n#endif\n"},
                         {"tools/wnd_mass.cpp", "# if 0\n#pragma once\n#include <string>\n"},
                         {"framework/panel.cpp", "/*\n#if 1\n*/\n"},
                         {"platform/folders.cpp", "#ifdef __linux__\n#endif\n"}};
  EXPECT_THAT(CheckConditionals(files, Rooms()),
              ElementsAre(HasSubstr("base/text.cpp"), HasSubstr("wnd_mass.cpp")));
}

TEST(FileLengths, AreBounded) {
  const std::string longest(static_cast<std::size_t>(kLongestFile), '\n');
  EXPECT_THAT(CheckFileLengths({{"base/a.cpp", longest}, {"base/table.txt", longest + "\n"}}), IsEmpty());
  EXPECT_THAT(CheckFileLengths({{"base/a.cpp", longest + "\n"}}), ElementsAre(HasSubstr("451 lines")));
}

TEST(FolderNames, SayWhatIsInside) {
  EXPECT_THAT(CheckFolderNames({{"base/text.h", ""}, {"docs/common.md", ""}}), IsEmpty());
  EXPECT_THAT(CheckFolderNames({{"base/util/a.h", ""}, {"base/util/b.h", ""}, {"Shared/c.h", ""}}),
              ElementsAre(HasSubstr("Shared"), HasSubstr("base/util/a.h"), HasSubstr("base/util/b.h")));
}

}  // namespace
}  // namespace orvane::project
