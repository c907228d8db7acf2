#include "tests/project/source_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane::project {
namespace {

TEST(SourceText, BlanksCommentsAndLiterals) {
  EXPECT_EQ(WithoutCommentsAndLiterals("a; // b\nc"), "a;     \nc");
  EXPECT_EQ(WithoutCommentsAndLiterals("a /* b\nc */ d"), "a     \n     d");
  EXPECT_EQ(WithoutCommentsAndLiterals("f(\"x // y\", 'z');"), "f(\"      \", ' ');");
  EXPECT_EQ(WithoutCommentsAndLiterals("\"a\\\"b\" c"), "\"    \" c");
  EXPECT_EQ(WithoutCommentsAndLiterals("1'000'000 + u'x'"), "1'000'000 + u' '");
  EXPECT_EQ(WithoutCommentsAndLiterals("R\"t(a\" b)t\" + c"), "R\"        \" + c");
  EXPECT_EQ(WithoutCommentsAndLiterals("'\"' + \"'\""), "' ' + \" \"");
}

TEST(SourceText, BlanksToTheEndWhatIsNeverClosed) {
  EXPECT_EQ(WithoutCommentsAndLiterals("a /* b"), "a     ");
  EXPECT_EQ(WithoutCommentsAndLiterals("a R\"(b"), "a R\"  ");
}

TEST(SourceText, FindsIncludesOfBothKinds) {
  const auto includes =
      Includes("#pragma once\n#include \"base/text.h\"\n  # include <vector>\n// x\n#include X\n");
  ASSERT_EQ(includes.size(), 2u);
  EXPECT_EQ(includes[0].target, "base/text.h");
  EXPECT_TRUE(includes[0].quoted);
  EXPECT_EQ(includes[0].line, 2);
  EXPECT_EQ(includes[1].target, "vector");
  EXPECT_FALSE(includes[1].quoted);
  EXPECT_EQ(includes[1].line, 3);
}

TEST(SourceText, NamesFoldersAndStems) {
  EXPECT_EQ(FirstFolder("tools/wnd_mass.cpp"), "tools");
  EXPECT_EQ(FirstFolder("dev"), "");
  EXPECT_EQ(Stem("tools/wnd_mass.cpp"), "wnd_mass");
  EXPECT_EQ(Stem("dev"), "dev");
}

}  // namespace
}  // namespace orvane::project
