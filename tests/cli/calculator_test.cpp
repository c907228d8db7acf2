// The real program, as a script uses it: what it prints, where, and with which exit status.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli/run_program.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

const std::string kProgram = ORVANE_BIN_DIR "/orvane-calc";
const std::string kDatabase = ORVANE_BIN_DIR "/periodic.dat";

ProgramResult Calc(const std::vector<std::string>& words) { return RunProgram(kProgram, words); }

json Dump(const ProgramResult& result) {
  EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 1) << result.out;
  return json::parse(result.out);
}

json Dump(const std::string& path) { return Dump(Calc({"dump", "periodic", path})); }

DatWriter SmallDatabase() {
  DatWriter file;
  file.PeriodicHeader(2);
  file.Category(u"First", 2);
  file.Property(0, u"Symbol", false, u"", 2).Value(112, u"Uub").Value(1, u"H");
  file.Property(-7, u"Mass", true, u" u", 1).Value(1, u"1.008");
  file.Category(u"Second", 0);
  return file;
}

TEST(DumpPeriodic, ShowsAWholeDatabaseInFileOrder) {
  const TempFolder folder;
  SmallDatabase().Save(folder.File("small.dat"));
  const ProgramResult result = Calc({"dump", "periodic", folder.File("small.dat")});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(
      result.out,
      R"({"file":")" + folder.File("small.dat") +
          R"(","ok":true,"messages":[],"data":{"categories":[{"name":"First","properties":[)"
          R"({"id":0,"name":"Symbol","plottable":false,"units":"","values":[)"
          R"({"number":1,"value":"H"},{"number":112,"value":"Uub"}]},)"
          R"({"id":-7,"name":"Mass","plottable":true,"units":" u","values":[{"number":1,"value":"1.008"}]}]},)"
          R"({"name":"Second","properties":[]}],)"
          R"("special":{"symbol":[0,0],"name":null,"mass":null,"family":null,"block":null}}})"
          "\n");
}

TEST(DumpPeriodic, ShowsTheDatabaseOfTheProgram) {
  const json dump = Dump(kDatabase);
  EXPECT_TRUE(dump["ok"]);
  EXPECT_THAT(dump["messages"], IsEmpty());
  const json& categories = dump["data"]["categories"];
  EXPECT_EQ(categories[2]["properties"][0]["id"], 15);
  EXPECT_EQ(categories[2]["properties"][5]["id"], 20);
  EXPECT_EQ(categories[2]["properties"][5]["units"], " kJ/mol");
  EXPECT_EQ(categories[0]["properties"][1]["values"][25]["value"], "Iron");
  EXPECT_EQ(dump["data"]["special"], json::parse(R"({"symbol":[0,0],"name":[0,1],"mass":[0,2],"family":[0,3],
                                                     "block":[0,4]})"));
}

TEST(DumpPeriodic, ReportsAWrongMagic) {
  const TempFolder folder;
  const std::string path = folder.File("wrong.dat");
  DatWriter().Long(0xDEEBE8FFu).Short(0).Save(path);
  const ProgramResult result = Calc({"dump", "periodic", path});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.err, HasSubstr(path));
  const json dump = Dump(result);
  EXPECT_FALSE(dump["ok"]);
  EXPECT_THAT(
      dump["messages"],
      ElementsAre("The elements database file is corrupted. Some of the features will not be available. Try "
                  "to reinstall the application.\n\nFile: " +
                  path));
  EXPECT_THAT(dump["data"]["categories"], IsEmpty());
}

TEST(DumpPeriodic, ReportsAMissingFileAndAFolder) {
  const TempFolder folder;
  for (const std::string& path : {folder.File("missing.dat"), folder.Path().string()}) {
    const ProgramResult result = Calc({"dump", "periodic", path});
    EXPECT_EQ(result.status, 1);
    const json dump = Dump(result);
    EXPECT_FALSE(dump["ok"]);
    ASSERT_EQ(dump["messages"].size(), 1u);
    EXPECT_THAT(std::string(dump["messages"][0]), StartsWith("Failed to open the elements database file."));
  }
}

TEST(DumpPeriodic, ShowsWhatATruncatedFileLeaves) {
  const TempFolder folder;
  const std::string path = folder.File("short.dat");
  // The second property announces a value and ends within its text.
  DatWriter()
      .PeriodicHeader(1)
      .Category(u"C", 2)
      .Property(0, u"S", false, u"", 1)
      .Value(1, u"H")
      .Property(1, u"N", true, u"", 1)
      .Short(1)
      .Short(3)
      .Raw("He")
      .Save(path);
  const ProgramResult result = Calc({"dump", "periodic", path});
  EXPECT_EQ(result.status, 0);
  const json dump = Dump(result);
  EXPECT_TRUE(dump["ok"]);
  EXPECT_THAT(dump["messages"],
              ElementsAre("ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file (2)"));
  EXPECT_EQ(dump["data"]["categories"][0]["properties"][0]["values"][0]["value"], "H");
  EXPECT_EQ(dump["data"]["categories"][0]["properties"][1]["name"], "N");
}

TEST(DumpPeriodic, KeepsEveryMessageInOrder) {
  const TempFolder folder;
  const std::string path = folder.File("empty-categories.dat");
  DatWriter().PeriodicHeader(3).Save(path);
  const json dump = Dump(path);
  const std::string name =
      "ZelBinary::ReadTCharFromChar_Z() - attempted to read beyond end of file. Zero "
      "termination not found";
  const std::string count = "ZelBinary::ReadShort() - attempted to read beyond end of file";
  EXPECT_THAT(dump["messages"], ElementsAre(name, count, name, count, name, count));
  EXPECT_EQ(dump["data"]["categories"].size(), 3u);
}

TEST(DumpPeriodic, RepeatsEqualMessages) {
  const TempFolder folder;
  const std::string path = folder.File("no-magic.dat");
  // Two values whose escapes are cut off by their counts give the same message twice.
  DatWriter()
      .PeriodicHeader(1)
      .Category(u"C", 1)
      .Property(9, u"P", false, u"", 2)
      .Short(1)
      .Short(2)
      .Raw("\x02x")
      .Short(2)
      .Short(1)
      .Raw("\x02")
      .Save(path);
  const json dump = Dump(path);
  const std::string escape = "ZelBinary::ReadTCharFromChar_C() - unicode escape goes beyond end of file";
  EXPECT_THAT(dump["messages"], ElementsAre(escape, escape));
}

TEST(DumpPeriodic, EscapesLoneSurrogates) {
  const TempFolder folder;
  const std::string path = folder.File("surrogate.dat");
  DatWriter()
      .PeriodicHeader(1)
      .Category(Text{0xDC01}, 1)
      .Property(5, u"P", false, u"", 1)
      .Value(3, Text{u'x', 0xD800})
      .Save(path);
  const ProgramResult result = Calc({"dump", "periodic", path});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.out, HasSubstr(R"("name":"\udc01")"));
  EXPECT_THAT(result.out, HasSubstr(R"({"number":3,"value":"x\ud800"})"));
}

TEST(DumpPeriodic, TakesAFileNameThatIsNotUtf8) {
  const TempFolder folder;
  const std::string path = folder.File("caf\xE9.dat");
  SmallDatabase().Save(path);
  const ProgramResult result = Calc({"dump", "periodic", path});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Dump(result)["file"], folder.File("caf\xEF\xBF\xBD.dat"));
}

TEST(CommandLine, RefusesWrongUsageWithStatus2) {
  const std::vector<std::vector<std::string>> wrong = {{},
                                                       {"frobnicate"},
                                                       {"dump"},
                                                       {"dump", "periodic"},
                                                       {"dump", "periodic", "a", "b"},
                                                       {"element"},
                                                       {"--unknown"},
                                                       {"element", "--unknown", "na"},
                                                       {"--data"}};
  for (const std::vector<std::string>& words : wrong) {
    const ProgramResult result = Calc(words);
    EXPECT_EQ(result.status, 2) << ::testing::PrintToString(words);
    EXPECT_EQ(result.out, "") << ::testing::PrintToString(words);
    EXPECT_NE(result.err, "") << ::testing::PrintToString(words);
  }
}

TEST(CommandLine, PrintsVersionAndHelp) {
  const ProgramResult version = Calc({"--version"});
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.out, "orvane-calc 1.41\n");
  const ProgramResult help = Calc({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_THAT(help.out, HasSubstr("--data DIR"));
  EXPECT_THAT(help.out, HasSubstr("element"));
  EXPECT_EQ(Calc({"dump", "--help"}).status, 0);
}

TEST(Element, AnswersAsJson) {
  const ProgramResult result = Calc({"element", "--json", "na"});
  EXPECT_EQ(result.status, 0);
  const json answer = json::parse(result.out);
  EXPECT_EQ(answer["input"], "na");
  EXPECT_EQ(answer["number"], 11);
  EXPECT_EQ(answer["symbol"], "Na");
  EXPECT_EQ(answer["name"], "Sodium");
  EXPECT_THAT(answer["properties"],
              ::testing::Contains(
                  json::parse(R"({"category":"General","name":"Density","value":"0.97","units":" g/cm³"})")));
  EXPECT_THAT(
      answer["properties"],
      ::testing::Contains(json::parse(
          R"({"category":"Identification","name":"Family","value":"A","units":"","meaning":"Alkali metal"})")));
}

TEST(Element, FindsNumberSymbolAndNameWithoutCase) {
  const std::vector<std::pair<std::string, int>> cases = {
      {"1", 1},   {"112", 112}, {"026", 26}, {"FE", 26},           {"iron", 26},
      {"cO", 27}, {"Uub", 112}, {"cn", 112}, {"COPERNICIUM", 112}, {"copernicium (cn)", 112},
      {"TIN", 50}};
  for (const auto& [query, number] : cases) {
    const ProgramResult result = Calc({"element", "--json", query});
    EXPECT_EQ(result.status, 0) << query;
    EXPECT_EQ(json::parse(result.out)["number"], number) << query;
  }
}

TEST(Element, RefusesWhatNamesNoElement) {
  for (const std::string query :
       {"0", "113", "99999999999999999999", "-1", "xx", "", "sod", " na", "1.0", "\xFF"}) {
    const ProgramResult result = Calc({"element", "--json", "--", query});
    EXPECT_EQ(result.status, 1) << query;
    EXPECT_THAT(result.err, HasSubstr("no element")) << query;
    const json answer = json::parse(result.out);
    EXPECT_TRUE(answer["number"].is_null()) << query;
    EXPECT_THAT(answer["properties"], IsEmpty());
  }
}

TEST(Element, AnswersTheOtherQueriesBesideAWrongOne) {
  const ProgramResult result = Calc({"element", "xx", " he ", "H"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, "orvane-calc: no element \"xx\"\n");
  EXPECT_THAT(result.out, StartsWith("Helium, He, 2\n"));
  EXPECT_THAT(result.out, HasSubstr("\n\nHydrogen, H, 1\n"));
}

TEST(Element, AlignsPropertiesUnderTheirCategoriesForPeople) {
  const TempFolder folder;
  DatWriter()
      .PeriodicHeader(2)
      .Category(u"Who", 4)
      .Property(0, u"Symbol", false, u"", 1)
      .Value(1, u"H")
      .Property(1, u"Name", false, u"", 1)
      .Value(1, u"Hydrogen")
      .Property(3, u"Family", false, u"", 1)
      .Value(1, u"E")
      .Property(9, u"Größe", true, u" µm", 1)
      .Value(1, u"1\u0001\u00A02\u0001 \nmore")
      .Category(u"Empty here", 1)
      .Property(10, u"A long property name", false, u"", 0)
      .Save(folder.File("periodic.dat"));
  const ProgramResult result = Calc({"--data", folder.Path().string(), "element", "h"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "Hydrogen, H, 1\n"
            "\n"
            "Who\n"
            "  Symbol                H\n"
            "  Name                  Hydrogen\n"
            "  Family                Non-metal\n"
            "  Größe                 1²\n"
            "                        more µm\n");
}

TEST(Element, LooksForTheFileInTheProgramsFolderThroughLinks) {
  const TempFolder folder;
  std::filesystem::create_symlink(kProgram, folder.Path() / "calc");
  EXPECT_EQ(RunProgram(folder.File("calc"), {"element", "fe"}).status, 0);
}

TEST(Element, NeedsItsDataFile) {
  const TempFolder folder;
  for (const std::string& data : {folder.Path().string(), folder.Path().string() + "/"}) {
    const ProgramResult result = Calc({"element", "--data", data, "fe"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr("File: " + folder.Path().string() + "/periodic.dat"));
  }
}

TEST(Usage, NamesTheCommandsWhereNoneWasGiven) {
  const std::string commands = "mass, balance, element, constant, filter, plot, dump\n";
  const std::string more = "Run orvane-calc --help for more information.\n";
  const auto wrong = [](const std::vector<std::string>& words) {
    const ProgramResult result = Calc(words);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    return result.err;
  };
  EXPECT_EQ(wrong({}), "orvane-calc: a command is needed; the commands are " + commands + more);
  EXPECT_EQ(wrong({"mas", "h2o"}), "orvane-calc: no command mas; the commands are " + commands + more);
  EXPECT_EQ(wrong({"[x]"}), "orvane-calc: no command [x]; the commands are " + commands + more);
  EXPECT_EQ(wrong({"--bogus"}), "orvane-calc: no option --bogus; the commands are " + commands + more);
  EXPECT_EQ(wrong({"dump", "foo", "file"}),
            "orvane-calc: no command foo; the commands are periodic, constants, help\n"
            "Run orvane-calc dump --help for more information.\n");
  EXPECT_EQ(wrong({"dump", "help"}),
            "orvane-calc: file is required\nRun orvane-calc dump help --help for more information.\n");
  EXPECT_EQ(wrong({"element"}),
            "orvane-calc: element is required\nRun orvane-calc element --help for more information.\n");
}

TEST(Usage, ExplainsTheExitStatus) { EXPECT_THAT(Calc({"--help"}).out, HasSubstr("Exit status: 0 when")); }

}  // namespace
}  // namespace orvane::testing
