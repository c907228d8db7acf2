#include "data/constants_database.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/data/collecting_reporter.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane {
namespace {

using testing::CollectingReporter;
using testing::DatWriter;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kShortEnd[] = "ZelBinary::ReadShort() - attempted to read beyond end of file";
constexpr char kLongEnd[] = "ZelBinary::ReadLong() - attempted to read beyond end of file";
constexpr char kBoolEnd[] = "ZelBinary::ReadBool() - attempted to read beyond end of file";
constexpr char kCountedEnd[] = "ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file";
constexpr char kCountedEnd2[] = "ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file (2)";
constexpr char kEscapeEnd[] = "ZelBinary::ReadTCharFromChar_C() - unicode escape goes beyond end of file";
constexpr char kZeroEnd[] =
    "ZelBinary::ReadTCharFromChar_Z() - attempted to read beyond end of file. Zero termination not found";

DatWriter Constant(TextView name, TextView symbol, TextView value, TextView units, TextView remark) {
  return DatWriter()
      .ZeroTerminated(name)
      .ZeroTerminated(symbol)
      .ZeroTerminated(value)
      .ZeroTerminated(units)
      .ZeroTerminated(remark);
}

class ConstantsDatabaseTest : public ::testing::Test {
 protected:
  bool Read(const DatWriter& file) {
    testing::WriteBytes(path, file.Bytes());
    return database.ReadCategories(reporter);
  }
  std::vector<ConstGroup> Load(int category) {
    return database.LoadCategory(category, reporter).value_or(std::vector<ConstGroup>());
  }
  // A file with one category, "C", whose block is what follows its name.
  bool ReadBlock(const DatWriter& block) {
    return Read(DatWriter().Short(1).Long(6).Counted(u"C").Raw(block.Bytes()));
  }

  testing::TempFolder folder;
  std::string path = folder.File("constants.dat");
  CollectingReporter reporter;
  ConstantsDatabase database{path};
};

TEST_F(ConstantsDatabaseTest, ReadsNamesAtOnceAndEachCategoryWhenItIsAskedFor) {
  DatWriter second;
  second.Counted(u"Second").Short(2);
  second.Counted(u"Folds").Bool(true).Short(2);
  second.Raw(Constant(u"speed of light", u"c", u"299 792 458", u"m s", u"exact").Bytes());
  second.Raw(Constant(u"number", u"", u"6.022\u00D710\u0001\u00A023", u"", u"").Bytes());
  second.Counted(u"").Bool(false).Short(0);
  DatWriter first;
  first.Counted(u"First \u2013 1").Short(0);
  // The blocks stand in the other order, with bytes between that belong to none.
  const std::uint32_t secondAt = 10 + 3;
  DatWriter file;
  file.Short(2).Long(static_cast<std::uint32_t>(secondAt + second.Bytes().size())).Long(secondAt).Raw("???");
  ASSERT_TRUE(Read(file.Raw(second.Bytes()).Raw(first.Bytes())));

  ASSERT_EQ(database.CategoryCount(), 2);
  EXPECT_EQ(database.Categories()[0].name, u"First \u2013 1");
  EXPECT_EQ(database.Categories()[1].name, u"Second");
  EXPECT_EQ(database.Categories()[1].offset, 13);
  EXPECT_THAT(Load(0), IsEmpty());
  const std::vector<ConstGroup> groups = Load(1);
  ASSERT_EQ(groups.size(), 2u);
  EXPECT_EQ(groups[0].title, u"Folds");
  EXPECT_TRUE(groups[0].collapsible);
  EXPECT_FALSE(groups[1].collapsible);
  EXPECT_THAT(groups[1].constants, IsEmpty());
  ASSERT_EQ(groups[0].constants.size(), 2u);
  const ConstEntry& light = groups[0].constants[0];
  EXPECT_EQ(light.name, u"speed of light");
  EXPECT_EQ(light.symbol, u"c");
  EXPECT_EQ(light.value, u"299 792 458");
  EXPECT_EQ(light.units, u"m s");
  EXPECT_EQ(light.remark, u"exact");
  EXPECT_EQ(groups[0].constants[1].value, u"6.022\u00D710\u0001\u00A023");
  EXPECT_EQ(groups[0].constants[1].symbol, u"");
  EXPECT_THAT(reporter.texts, IsEmpty());
}

TEST_F(ConstantsDatabaseTest, AMissingFileAndAFolderAreReportedWithTheirPath) {
  const std::string message = "Failed to open the constants file.\nFile: " + path;
  EXPECT_FALSE(database.ReadCategories(reporter));
  EXPECT_THAT(reporter.Take(), ElementsAre(message));
  EXPECT_EQ(database.CategoryCount(), 0);
  std::filesystem::create_directory(path);
  EXPECT_FALSE(database.ReadCategories(reporter));
  EXPECT_THAT(reporter.Take(), ElementsAre(message));
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
}

TEST_F(ConstantsDatabaseTest, AFileThatGoesAwayIsReportedWhenACategoryIsLoaded) {
  ASSERT_TRUE(ReadBlock(DatWriter().Short(0)));
  std::filesystem::remove(path);
  EXPECT_FALSE(database.LoadCategory(0, reporter));
  EXPECT_THAT(reporter.Take(), ElementsAre("Failed to open the constants file.\nFile: " + path));
  EXPECT_EQ(database.CategoryCount(), 1);
}

TEST_F(ConstantsDatabaseTest, PicksUpChangesOfACategoryButKeepsTheNamesItHas) {
  ASSERT_TRUE(ReadBlock(DatWriter().Short(0)));
  testing::WriteBytes(
      path, DatWriter().Short(1).Long(6).Counted(u"D").Short(1).Counted(u"G").Bool(true).Short(0).Bytes());
  EXPECT_EQ(Load(0).size(), 1u);
  EXPECT_EQ(database.Categories()[0].name, u"C");
}

TEST_F(ConstantsDatabaseTest, ACategoryThatDoesNotExistIsNothing) {
  ASSERT_TRUE(ReadBlock(DatWriter().Short(0)));
  EXPECT_FALSE(database.LoadCategory(-1, reporter));
  EXPECT_FALSE(database.LoadCategory(1, reporter));
  EXPECT_THAT(reporter.texts, IsEmpty());
}

TEST_F(ConstantsDatabaseTest, TextsAreCutAt254CharactersAndTheReaderStaysInStep) {
  const Text longText(300, u'x');
  ASSERT_TRUE(
      Read(DatWriter().Short(1).Long(6).Counted(longText).Short(1).Counted(longText).Bool(true).Short(2).Raw(
          Constant(longText, longText, longText, longText, longText).Bytes() +
          Constant(u"n", u"s", u"v", u"u", u"r").Bytes())));
  const Text cut(254, u'x');
  EXPECT_EQ(database.Categories()[0].name, cut);
  const std::vector<ConstGroup> groups = Load(0);
  ASSERT_EQ(groups.size(), 1u);
  EXPECT_EQ(groups[0].title, cut);
  ASSERT_EQ(groups[0].constants.size(), 2u);
  const ConstEntry& entry = groups[0].constants[0];
  for (const Text* text : {&entry.name, &entry.symbol, &entry.value, &entry.units, &entry.remark}) {
    EXPECT_EQ(*text, cut);
  }
  EXPECT_EQ(groups[0].constants[1].remark, u"r");
  EXPECT_THAT(reporter.texts, IsEmpty());
}

// --- Damage

TEST_F(ConstantsDatabaseTest, AnEmptyFileHasNoCategories) {
  EXPECT_TRUE(Read(DatWriter()));
  EXPECT_EQ(database.CategoryCount(), 0);
  EXPECT_THAT(reporter.texts, ElementsAre(kShortEnd));
}

TEST_F(ConstantsDatabaseTest, NegativeCountsAreZero) {
  EXPECT_TRUE(Read(DatWriter().Short(-1)));
  EXPECT_EQ(database.CategoryCount(), 0);
  EXPECT_TRUE(ReadBlock(DatWriter().Short(-5)));
  EXPECT_THAT(Load(0), IsEmpty());
  EXPECT_TRUE(ReadBlock(DatWriter().Short(1).Counted(u"G").Bool(true).Short(-32768)));
  EXPECT_THAT(Load(0)[0].constants, IsEmpty());
  EXPECT_THAT(reporter.texts, IsEmpty());
}

TEST_F(ConstantsDatabaseTest, AHeaderThatIsCutShortKeepsTheCategoriesBeforeTheCut) {
  EXPECT_TRUE(Read(DatWriter().Short(3).Long(2).Short(0)));
  ASSERT_EQ(database.CategoryCount(), 1);
  EXPECT_EQ(reporter.texts.front(), kLongEnd);
}

TEST_F(ConstantsDatabaseTest, ManyCategoriesAreBoundByTheMenu) {
  DatWriter file;
  file.Short(32767);
  for (int i = 0; i < 32767; ++i) file.Long(2 + 4 * 32767);
  EXPECT_TRUE(Read(file.Counted(u"C").Short(0)));
  EXPECT_EQ(database.CategoryCount(), 7119);
  EXPECT_EQ(database.Categories().back().name, u"C");
}

TEST_F(ConstantsDatabaseTest, OffsetsOutsideTheFileReadNothing) {
  EXPECT_TRUE(Read(DatWriter().Short(2).Long(0xFFFFFFFFu).Long(0x7FFFFFFFu)));
  ASSERT_EQ(database.CategoryCount(), 2);
  EXPECT_THAT(reporter.Take(), ElementsAre(kCountedEnd, kCountedEnd));
  for (const int category : {0, 1}) {
    EXPECT_THAT(Load(category), IsEmpty());
    EXPECT_THAT(reporter.Take(), ElementsAre(kCountedEnd, kShortEnd));
  }
}

TEST_F(ConstantsDatabaseTest, CountsThatLieStopAtTheEndOfTheFile) {
  EXPECT_TRUE(ReadBlock(DatWriter().Short(32767).Counted(u"G").Bool(true).Short(32767).Raw(
      Constant(u"n", u"s", u"v", u"u", u"r").Bytes())));
  const std::vector<ConstGroup> groups = Load(0);
  ASSERT_EQ(groups.size(), 1u);
  ASSERT_EQ(groups[0].constants.size(), 1u);
  EXPECT_EQ(groups[0].constants[0].name, u"n");
  // The five fields of the constant that is not there.
  EXPECT_THAT(reporter.Take(), ElementsAre(kZeroEnd, kZeroEnd, kZeroEnd, kZeroEnd, kZeroEnd));
}

TEST_F(ConstantsDatabaseTest, GroupsThatAreNotThereStopAtTheEndOfTheFile) {
  EXPECT_TRUE(ReadBlock(DatWriter().Short(2).Counted(u"G").Bool(true).Short(0)));
  EXPECT_EQ(Load(0).size(), 1u);
  EXPECT_THAT(reporter.Take(), ElementsAre(kCountedEnd, kBoolEnd, kShortEnd));
}

TEST_F(ConstantsDatabaseTest, AConstantThatIsCutShortIsKeptAsFarAsItGoes) {
  EXPECT_TRUE(
      ReadBlock(DatWriter().Short(2).Counted(u"G").Bool(true).Short(2).ZeroTerminated(u"name").Raw("sym")));
  const std::vector<ConstGroup> groups = Load(0);
  ASSERT_EQ(groups.size(), 1u);
  ASSERT_EQ(groups[0].constants.size(), 1u);
  EXPECT_EQ(groups[0].constants[0].name, u"name");
  EXPECT_EQ(groups[0].constants[0].symbol, u"sym");
  EXPECT_THAT(reporter.Take(), ElementsAre(kZeroEnd, kZeroEnd, kZeroEnd, kZeroEnd));
}

TEST_F(ConstantsDatabaseTest, ATitleThatEndsInAnEscapeIsReportedAndReadingGoesOn) {
  EXPECT_TRUE(ReadBlock(DatWriter().Short(1).Short(2).Raw("a\x02").Bool(true).Short(1).Raw(
      Constant(u"n", u"s", u"v", u"u", u"r").Bytes())));
  const std::vector<ConstGroup> groups = Load(0);
  EXPECT_THAT(reporter.Take(), ElementsAre(kEscapeEnd));
  ASSERT_EQ(groups.size(), 1u);
  EXPECT_EQ(groups[0].title, u"");
  EXPECT_EQ(groups[0].constants[0].remark, u"r");
}

TEST_F(ConstantsDatabaseTest, ATitleLongerThanTheFileIsTheLast) {
  EXPECT_TRUE(ReadBlock(DatWriter().Short(9).Short(1000).Raw("abc")));
  EXPECT_EQ(Load(0).size(), 1u);
  EXPECT_THAT(reporter.Take(), ElementsAre(kCountedEnd2, kBoolEnd, kShortEnd));
}

TEST_F(ConstantsDatabaseTest, ConstantsOfOneCategoryAreBound) {
  DatWriter block;
  block.Short(3);
  for (int group = 0; group < 3; ++group) {
    block.Counted(u"G").Bool(true).Short(32767);
    block.Raw(std::string(32767 * 5, '\0'));
  }
  EXPECT_TRUE(ReadBlock(block));
  std::size_t constants = 0;
  for (const ConstGroup& group : Load(0)) constants += group.constants.size();
  EXPECT_EQ(constants, 65536u);
  EXPECT_THAT(reporter.texts, IsEmpty());
}

// Every category once, in order, and those of a sound file complete.
TEST_F(ConstantsDatabaseTest, LoadsAllCategoriesInOrder) {
  DatWriter file;
  file.Short(3).Long(14).Long(14).Long(17);
  file.Counted(u"A").Short(1).Counted(u"G").Bool(true).Short(0);
  ASSERT_TRUE(Read(file));
  std::vector<std::size_t> groups;
  EXPECT_TRUE(database.LoadAll(reporter, [&](int category, auto loaded) {
    EXPECT_EQ(category, static_cast<int>(groups.size()));
    ASSERT_TRUE(loaded.has_value());
    groups.push_back(loaded->size());
  }));
  EXPECT_EQ(groups[0], 1u);
  EXPECT_EQ(groups.size(), 3u);
}

// A hundred categories share one block of a fifth of a million bytes.
TEST_F(ConstantsDatabaseTest, CategoriesThatShareABlockAreBoundTogether) {
  constexpr int kCount = 100;
  DatWriter file;
  file.Short(kCount);
  for (int i = 0; i < kCount; ++i) file.Long(2 + 4 * kCount);
  const std::size_t head = file.Bytes().size();
  file.Counted(u"C").Short(1).Counted(u"G").Bool(true).Short(32767).Raw(std::string(32767 * 5, '\0'));
  ASSERT_TRUE(Read(file));
  const std::size_t size = file.Bytes().size();
  const int expected = static_cast<int>((size + ConstantsDatabase::kMostBeyondTheFile) / (size - head)) + 1;
  int loaded = 0;
  int visited = 0;
  EXPECT_FALSE(database.LoadAll(reporter, [&](int, auto groups) {
    ++visited;
    if (groups) ++loaded;
  }));
  EXPECT_EQ(visited, kCount);
  EXPECT_EQ(loaded, expected);
}

// What is not kept counts too: a text without an end is read to the end of the file for each of them.
TEST_F(ConstantsDatabaseTest, EndlessTextsOfManyCategoriesAreBoundTogether) {
  constexpr int kCount = 100;
  DatWriter file;
  file.Short(kCount);
  for (int i = 0; i < kCount; ++i) file.Long(2 + 4 * kCount);
  file.Counted(u"C").Short(1).Counted(u"G").Bool(true).Short(1).Raw(std::string(200'000, 'x'));
  ASSERT_TRUE(Read(file));
  int loaded = 0;
  EXPECT_FALSE(database.LoadAll(reporter, [&](int, auto groups) { loaded += groups ? 1 : 0; }));
  // Six of them do not reach the limit yet.
  EXPECT_EQ(loaded, 7);
}

// Cut at every length: never more than what the whole file has, never a crash.
TEST_F(ConstantsDatabaseTest, SurvivesEveryTruncation) {
  DatWriter file;
  file.Short(1).Long(6).Counted(u"C").Short(2);
  file.Counted(u"G\u2013").Bool(true).Short(1).Raw(Constant(u"n", u"s\u03B1", u"v", u"u", u"r").Bytes());
  file.Counted(u"H").Bool(false).Short(1).Raw(Constant(u"o", u"", u"w", u"", u"").Bytes());
  const std::string bytes = file.Bytes();
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    testing::WriteBytes(path, std::string_view(bytes).substr(0, length));
    ASSERT_TRUE(database.ReadCategories(reporter));
    for (int category = 0; category < database.CategoryCount(); ++category) {
      const std::vector<ConstGroup> groups = Load(category);
      EXPECT_LE(groups.size(), 2u);
      for (const ConstGroup& group : groups) EXPECT_LE(group.constants.size(), 1u);
    }
    EXPECT_THAT(reporter.Take(), ::testing::Not(IsEmpty())) << length;
  }
}

}  // namespace
}  // namespace orvane
