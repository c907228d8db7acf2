// "orvane-calc dump help FILE".
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli/run_program.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

ProgramResult DumpOf(const std::string& path) {
  return RunProgram(ORVANE_BIN_DIR "/orvane-calc", {"dump", "help", path});
}

DatWriter Head(int contentsCount) {
  DatWriter file;
  file.Raw("\xDE\xEB\xFF").Byte(0).Short(contentsCount);
  return file;
}

// The example of docs/formats/help.md with two pages more: one that repeats an id, one beyond the end.
TEST(DumpHelp, ShowsEverythingInFileOrder) {
  const TempFolder folder;
  const std::string path = folder.File("help.dat");
  DatWriter file = Head(3);
  file.Bool(true).Short(-1).Short(0).Bool(false).Short(2).Counted(u"H").Bool(true).Short(0).Short(9);
  file.Short(3);
  file.Short(0)
      .Long(0x33)
      .Counted(u"A")
      .Short(0)
      .Long(0x33)
      .Counted(u"B")
      .Short(5)
      .Long(0xFFFFFFFF)
      .Counted(u"C");
  file.Short(10000).Short(5).Short(1).Counted(u"H\u0001`2").Short(2).Short(5).Short(9);
  ASSERT_EQ(file.Bytes().size(), 0x33u + 18u);
  file.Save(path);
  const ProgramResult result = DumpOf(path);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  const std::string atEnd = R"("ZelBinary::ReadShort() - attempted to read beyond end of file")";
  EXPECT_EQ(
      result.out,
      R"({"file":")" + path + R"(","ok":true,"messages":[)" + atEnd + "," + atEnd + "," + atEnd + "," +
          atEnd + R"(],"data":{"contents":[{"page":true,"level":-1,"id":0,"text":"A"},)" +
          R"({"page":false,"level":2,"text":"H"},{"page":true,"level":0,"id":9,"text":""}],"pages":[)" +
          R"({"id":0,"offset":51,"title":"A","neighbours":[null,5],"paragraphs":["H\u0001`2"],)" +
          R"("links":[5,null]},{"id":0,"offset":51,"title":"B"},)" +
          R"({"id":5,"offset":4294967295,"title":"C","neighbours":[0,0],"paragraphs":[],"links":[]}]}})" +
          "\n");
}

TEST(DumpHelp, ShowsTheManual) {
  const ProgramResult result = DumpOf(ORVANE_BIN_DIR "/help.dat");
  EXPECT_EQ(result.status, 0);
  const json dump = json::parse(result.out);
  EXPECT_THAT(dump["messages"], IsEmpty());
  EXPECT_EQ(dump["data"]["pages"][0]["title"], "Welcome");
  EXPECT_EQ(dump["data"]["pages"][0]["neighbours"][0], nullptr);
  EXPECT_EQ(dump["data"]["contents"][0]["page"], false);
}

TEST(DumpHelp, RefusesWhatIsNoHelpFile) {
  const TempFolder folder;
  const auto messages = [](const std::string& path) {
    const ProgramResult result = DumpOf(path);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "orvane-calc: " + path + ": not a readable help file\n");
    const json dump = json::parse(result.out);
    EXPECT_EQ(dump["ok"], false);
    EXPECT_EQ(dump["data"], json::parse(R"({"contents":[],"pages":[]})"));
    return dump["messages"];
  };
  const std::string missing = folder.File("none.dat");
  EXPECT_THAT(messages(missing), ElementsAre("The help file cannot be opened. File name:\n" + missing));
  WriteBytes(folder.File("short.dat"), "abc");
  EXPECT_THAT(messages(folder.File("short.dat")), ElementsAre("The help file is corrupt (1)."));
  EXPECT_THAT(messages(ORVANE_BIN_DIR "/periodic.dat"), ElementsAre("The help file is corrupt (2)."));
}

// Forty pages share a body that claims 32767 paragraphs, of which the file holds none.
TEST(DumpHelp, EndsWhenPagesHoldFarMoreThanTheFile) {
  const TempFolder folder;
  const std::string path = folder.File("help.dat");
  constexpr int kPages = 40;
  DatWriter file = Head(0);
  file.Short(kPages);
  for (int id = 0; id < kPages; ++id) file.Short(id).Long(8 + 8 * kPages).Counted(u"");
  ASSERT_EQ(file.Bytes().size(), 8u + 8u * kPages);
  file.Short(10000).Short(10000).Short(32767).Save(path);
  const ProgramResult result = DumpOf(path);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err,
            "orvane-calc: " + path + ": its pages hold far more than the file; the last ones are left out\n");
  const json dump = json::parse(result.out);
  EXPECT_EQ(dump["ok"], true);
  ASSERT_EQ(dump["data"]["pages"].size(), 40u);
  // Thirty bodies hold no more than a million and the bytes of the file, 31 do.
  EXPECT_EQ(dump["data"]["pages"][30]["paragraphs"].size(), 32767u);
  EXPECT_FALSE(dump["data"]["pages"][31].contains("paragraphs"));
  EXPECT_EQ(dump["messages"].size(), 31u * 32768u);
}

TEST(DumpHelp, NeedsAFile) {
  EXPECT_EQ(RunProgram(ORVANE_BIN_DIR "/orvane-calc", {"dump", "help"}).status, 2);
}

}  // namespace
}  // namespace orvane::testing
