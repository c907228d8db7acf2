#include "data/elements_database.h"

#include <gtest/gtest.h>

#include <limits>

#include "data/element_codes.h"
#include "tests/data/collecting_reporter.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane {
namespace {

using testing::CollectingReporter;
using testing::DatWriter;
using testing::TempFolder;
using Messages = std::vector<std::string>;

constexpr char kShortEnd[] = "ZelBinary::ReadShort() - attempted to read beyond end of file";
constexpr char kBoolEnd[] = "ZelBinary::ReadBool() - attempted to read beyond end of file";
constexpr char kCountedEnd[] = "ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file";
constexpr char kZeroEnd[] =
    "ZelBinary::ReadTCharFromChar_Z() - attempted to read beyond end of file. Zero termination not found";

class ElementsDatabaseTest : public ::testing::Test {
 protected:
  int Load(std::string_view bytes) {
    testing::WriteBytes(path, bytes);
    return database.Load(path, reporter);
  }
  int Load(const DatWriter& writer) { return Load(writer.Bytes()); }

  const ElementProperty& Property(int category, int index) {
    return *static_cast<const ElementsDatabase&>(database).FindProperty(category, index);
  }
  // One category of one property with the values still to be written.
  static DatWriter OneProperty(int valueCount) {
    return DatWriter()
        .PeriodicHeader(1)
        .Category(u"General", 1)
        .Property(7, u"Density", true, u" g", valueCount);
  }

  TempFolder folder;
  std::string path = folder.File("periodic.dat");
  CollectingReporter reporter;
  ElementsDatabase database;
};

TEST_F(ElementsDatabaseTest, ReadsCategoriesPropertiesAndValues) {
  DatWriter file;
  file.PeriodicHeader(2);
  file.Category(u"General", 2);
  file.Property(0, u"Symbol", false, u"", 2).Value(1, u"H").Value(112, u"Cn");
  file.Property(-3, u"Melting point", true, u" \u00B0C", 1).Value(2, u"\u2212272.2");
  file.Category(u"Empty", 0);
  ASSERT_EQ(Load(file), 1);

  ASSERT_EQ(database.CategoryCount(), 2);
  EXPECT_EQ(database.Categories()[0].Name(), u"General");
  EXPECT_EQ(database.Categories()[0].PropertyCount(), 2);
  EXPECT_EQ(database.Categories()[1].Name(), u"Empty");
  EXPECT_EQ(database.Categories()[1].PropertyCount(), 0);

  const ElementProperty& symbol = Property(0, 0);
  EXPECT_EQ(symbol.Id(), 0);
  EXPECT_EQ(symbol.Name(), u"Symbol");
  EXPECT_FALSE(symbol.IsPlottable());
  EXPECT_EQ(symbol.Units(), u"");
  EXPECT_EQ(symbol.ValueCount(), 2);
  EXPECT_EQ(symbol.Value(0), u"H");
  EXPECT_EQ(symbol.Value(111), u"Cn");
  EXPECT_FALSE(symbol.HasValue(1));

  const ElementProperty& melting = Property(0, 1);
  EXPECT_EQ(melting.Id(), -3);
  EXPECT_TRUE(melting.IsPlottable());
  // A value and its units are shown with nothing between them.
  EXPECT_EQ(Text(melting.Value(1)) + Text(melting.Units()), u"\u2212272.2 \u00B0C");
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ElementsDatabaseTest, AFileThatCannotBeOpenedIsReported) {
  EXPECT_EQ(database.Load(path, reporter), 0);
  EXPECT_EQ(reporter.Take(),
            Messages{"Failed to open the elements database file. Some of the features will not be available. "
                     "Try to reinstall the application.\n\nFile: " +
                     path});
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
  EXPECT_EQ(database.CategoryCount(), 0);
}

TEST_F(ElementsDatabaseTest, AFileThatBeginsWronglyIsCorrupted) {
  const std::string corrupted =
      "The elements database file is corrupted. Some of the features will not be available. "
      "Try to reinstall the application.\n\nFile: " +
      path;
  EXPECT_EQ(Load(DatWriter().Raw("\xFF\xE8\xEB\xDE").Short(0)), 0);  // the right bytes, back to front
  EXPECT_EQ(reporter.Take(), Messages{corrupted});
  EXPECT_EQ(Load(DatWriter().Long(0xFFE8EBDF).Short(1).Category(u"General", 0)), 0);
  EXPECT_EQ(reporter.Take(), Messages{corrupted});
  EXPECT_EQ(database.CategoryCount(), 0);
  EXPECT_EQ(Load(""), 0);
  EXPECT_EQ(reporter.Take(),
            (Messages{"ZelBinary::ReadLong() - attempted to read beyond end of file", corrupted}));
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
}

TEST_F(ElementsDatabaseTest, APercentSignInThePathIsJustACharacter) {
  const std::string odd = folder.File("%s%d%n.dat");
  EXPECT_EQ(database.Load(odd, reporter), 0);
  ASSERT_EQ(reporter.texts.size(), 1u);
  EXPECT_TRUE(reporter.texts[0].ends_with("File: " + odd));
}

TEST_F(ElementsDatabaseTest, AHeaderAloneLoadsAsAnEmptyDatabase) {
  EXPECT_EQ(Load(DatWriter().Raw("\xDE\xEB\xE8\xFF").Short(0)), 1);
  EXPECT_EQ(database.CategoryCount(), 0);
  EXPECT_EQ(database.Symbol(), nullptr);
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ElementsDatabaseTest, APropertyWithoutValuesHasNoneForAnyElement) {
  ASSERT_EQ(Load(OneProperty(0)), 1);
  for (int element = 0; element < 112; ++element) {
    EXPECT_FALSE(Property(0, 0).HasValue(element));
    EXPECT_EQ(Property(0, 0).Value(element), u"");
  }
}

TEST_F(ElementsDatabaseTest, EveryElementHasItsSlotWhateverTheOrder) {
  DatWriter file = OneProperty(112);
  for (int z = 112; z >= 1; --z) file.Value(z, DecimalText(z));
  ASSERT_EQ(Load(file), 1);
  for (int element = 0; element < 112; ++element) {
    EXPECT_TRUE(Property(0, 0).HasValue(element));
    EXPECT_EQ(Property(0, 0).Value(element), DecimalText(element + 1));
  }
}

TEST_F(ElementsDatabaseTest, SparseValuesKeepToTheirElements) {
  ASSERT_EQ(
      Load(OneProperty(5).Value(65, u"Tb").Value(1, u"H").Value(64, u"Gd").Value(63, u"Eu").Value(66, u"")),
      1);
  const ElementProperty& p = Property(0, 0);
  EXPECT_EQ(p.Value(0), u"H");
  EXPECT_EQ(p.Value(62), u"Eu");
  EXPECT_EQ(p.Value(63), u"Gd");
  EXPECT_EQ(p.Value(64), u"Tb");
  EXPECT_TRUE(p.HasValue(65));  // an empty value is a value
  EXPECT_EQ(p.Value(65), u"");
  EXPECT_FALSE(p.HasValue(66));
  EXPECT_EQ(p.ValueCount(), 5);
}

TEST_F(ElementsDatabaseTest, ARepeatedElementKeepsItsLastValue) {
  ASSERT_EQ(Load(OneProperty(3).Value(5, u"first").Value(6, u"other").Value(5, u"last")), 1);
  EXPECT_EQ(Property(0, 0).Value(4), u"last");
  EXPECT_EQ(Property(0, 0).Value(5), u"other");
  EXPECT_EQ(Property(0, 0).ValueCount(), 2);
}

TEST_F(ElementsDatabaseTest, NumbersThatNoElementHasAreReadOver) {
  DatWriter file = OneProperty(7);
  for (const int z : {0, 113, -1, -32768, 32767}) file.Value(z, u"nowhere");
  ASSERT_EQ(Load(file.Value(1, u"H").Value(112, u"Cn")), 1);
  EXPECT_EQ(Property(0, 0).ValueCount(), 2);
  EXPECT_EQ(Property(0, 0).Value(0), u"H");
  EXPECT_EQ(Property(0, 0).Value(111), u"Cn");
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ElementsDatabaseTest, EscapedCharactersDecode) {
  ASSERT_EQ(Load(OneProperty(1).Short(1).Short(5).Raw(std::string("20\x02\xB0\0", 5))), 1);
  EXPECT_EQ(Property(0, 0).Value(0), u"20\u00B0");
}

TEST_F(ElementsDatabaseTest, MassNumbersKeepTheirBrackets) {
  ASSERT_EQ(Load(OneProperty(1).Value(43, u"[98]")), 1);
  EXPECT_EQ(Property(0, 0).Value(42), u"[98]");
}

TEST_F(ElementsDatabaseTest, BytesAfterTheLastPropertyAreIgnored) {
  ASSERT_EQ(Load(OneProperty(1).Value(1, u"x").Raw("anything at all")), 1);
  EXPECT_EQ(database.CategoryCount(), 1);
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ElementsDatabaseTest, NamesAndUnitsFitTheirLimitsAndAreCutThere) {
  const auto file = [](std::size_t category, std::size_t name, std::size_t units) {
    DatWriter writer;
    writer.PeriodicHeader(1).Category(Text(category, u'c'), 1);
    return writer.Property(5, Text(name, u'\u2013'), true, Text(units, u'u'), 1).Value(1, u"in step");
  };
  for (const std::size_t extra : {0u, 1u, 40000u}) {
    ASSERT_EQ(Load(file(255 + extra, 149 + extra, 50 + extra)), 1);
    EXPECT_EQ(database.Categories()[0].Name(), Text(255, u'c'));
    EXPECT_EQ(Property(0, 0).Name(), Text(149, u'\u2013'));
    EXPECT_EQ(Property(0, 0).Units(), Text(50, u'u'));
    EXPECT_TRUE(Property(0, 0).IsPlottable());
    EXPECT_EQ(Property(0, 0).Value(0), u"in step");
  }
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ElementsDatabaseTest, AValueMayBeAsLongAsACountedString) {
  const Text longest(65535, u'v');
  ASSERT_EQ(Load(OneProperty(2).Value(1, longest).Value(2, u"next")), 1);
  EXPECT_EQ(Property(0, 0).Value(0), longest);
  EXPECT_EQ(Property(0, 0).Value(1), u"next");
}

TEST_F(ElementsDatabaseTest, SpecialPropertiesAreFoundAnywhere) {
  DatWriter file;
  file.PeriodicHeader(2);
  file.Category(u"One", 3);
  for (const int id : {4, 9, 2}) file.Property(id, DecimalText(id), false, u"", 0);
  file.Category(u"Two", 4);
  for (const int id : {-1, 3, 1, 0}) file.Property(id, DecimalText(id), false, u"", 0);
  ASSERT_EQ(Load(file), 1);
  EXPECT_EQ(database.Symbol()->Name(), u"0");
  EXPECT_EQ(database.Name()->Name(), u"1");
  EXPECT_EQ(database.AtomicMass()->Name(), u"2");
  EXPECT_EQ(database.Family()->Name(), u"3");
  EXPECT_EQ(database.Block()->Name(), u"4");
  EXPECT_EQ(database.Block(), database.FindProperty(0, 0));
}

TEST_F(ElementsDatabaseTest, OfDuplicateIdsTheLastBeforeTheSetIsCompleteCounts) {
  DatWriter file;
  file.PeriodicHeader(1).Category(u"", 8);
  const struct {
    int id;
    TextView name;
  } properties[] = {{0, u"symbol 1"}, {1, u"name"},  {0, u"symbol 2"}, {2, u"mass"},
                    {3, u"family"},   {4, u"block"}, {0, u"symbol 3"}, {4, u"block 2"}};
  for (const auto& p : properties) file.Property(p.id, p.name, false, u"", 0);
  ASSERT_EQ(Load(file), 1);
  EXPECT_EQ(database.Symbol()->Name(), u"symbol 2");
  EXPECT_EQ(database.Block()->Name(), u"block");
}

TEST_F(ElementsDatabaseTest, AMissingSpecialPropertyStaysNull) {
  ASSERT_EQ(Load(DatWriter().PeriodicHeader(1).Category(u"", 1).Property(3, u"Family", false, u"", 0)), 1);
  EXPECT_EQ(database.Symbol(), nullptr);
  EXPECT_EQ(database.Name(), nullptr);
  EXPECT_EQ(database.AtomicMass(), nullptr);
  EXPECT_NE(database.Family(), nullptr);
  EXPECT_EQ(database.Block(), nullptr);
}

TEST_F(ElementsDatabaseTest, LookingUpWhatIsNotThereGivesNothing) {
  ASSERT_EQ(Load(OneProperty(1).Value(1, u"x")), 1);
  EXPECT_EQ(database.Value(0, 0, 0), u"x");
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  for (const int outside : {-1, 112, kMost, kLeast}) {
    EXPECT_EQ(database.Value(outside, 0, 0), u"");
    EXPECT_EQ(database.Value(0, outside, 0), u"");
    EXPECT_EQ(database.Value(0, 0, outside), u"");
    EXPECT_EQ(database.FindProperty(outside, 0), nullptr);
    EXPECT_EQ(database.FindProperty(0, outside), nullptr);
    EXPECT_FALSE(Property(0, 0).HasValue(outside));
    EXPECT_EQ(Property(0, 0).Value(outside), u"");
  }
}

TEST_F(ElementsDatabaseTest, TheSummaryIsEmptyAfterLoadingAndBelongsToTheViews) {
  ASSERT_EQ(Load(OneProperty(0)), 1);
  ElementProperty* property = database.FindProperty(0, 0);
  EXPECT_FALSE(property->inSummary);
  property->inSummary = true;
  property->summaryPosition = 4;
  EXPECT_TRUE(Property(0, 0).inSummary);
  EXPECT_EQ(Property(0, 0).summaryPosition, 4);
  ASSERT_EQ(Load(OneProperty(0)), 1);
  EXPECT_FALSE(Property(0, 0).inSummary);
}

TEST_F(ElementsDatabaseTest, FreeingEmptiesItAndItCanBeLoadedAgain) {
  ASSERT_EQ(Load(DatWriter().PeriodicHeader(1).Category(u"", 1).Property(0, u"S", false, u"", 0)), 1);
  database.Free();
  EXPECT_EQ(database.CategoryCount(), 0);
  EXPECT_EQ(database.Symbol(), nullptr);
  database.Free();
  ASSERT_EQ(Load(OneProperty(1).Value(1, u"again")), 1);
  EXPECT_EQ(database.Value(0, 0, 0), u"again");
  EXPECT_EQ(Load(""), 0);  // a failed load empties it too
  EXPECT_EQ(database.CategoryCount(), 0);
}

TEST_F(ElementsDatabaseTest, AFileThatEndsEarlyLeavesWhatWasRead) {
  // Two properties announced; the file ends within the second one's name.
  DatWriter file;
  file.PeriodicHeader(1).Category(u"General", 2).Property(0, u"Symbol", false, u"", 1).Value(1, u"H");
  file.Short(20).Raw("Ioni");
  ASSERT_EQ(Load(file), 1);
  EXPECT_EQ(reporter.Take(), (Messages{kZeroEnd, kBoolEnd, kZeroEnd, kShortEnd}));
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
  ASSERT_EQ(database.Categories()[0].PropertyCount(), 2);
  EXPECT_EQ(database.Symbol()->Value(0), u"H");
  EXPECT_EQ(Property(0, 1).Id(), 20);
  EXPECT_EQ(Property(0, 1).Name(), u"Ioni");
  EXPECT_FALSE(Property(0, 1).IsPlottable());
}

TEST_F(ElementsDatabaseTest, AfterTheEndTheLoopsRunOnWithZeros) {
  // Three values announced, one and a half there.
  ASSERT_EQ(Load(OneProperty(3).Value(1, u"x").Short(2).Short(5).Raw("ab")), 1);
  EXPECT_EQ(reporter.Take(), (Messages{std::string(kCountedEnd) + " (2)", kShortEnd, kCountedEnd}));
  EXPECT_EQ(Property(0, 0).Value(0), u"x");
  EXPECT_TRUE(Property(0, 0).HasValue(1));  // its text was lost, and is empty
  EXPECT_EQ(Property(0, 0).Value(1), u"");
  EXPECT_EQ(Property(0, 0).ValueCount(), 2);

  // A property after the end has the reader's zero for an id, which is the symbol's.
  ASSERT_EQ(Load(DatWriter().PeriodicHeader(1).Category(u"General", 1)), 1);
  EXPECT_EQ(reporter.Take(), (Messages{kShortEnd, kZeroEnd, kBoolEnd, kZeroEnd, kShortEnd}));
  EXPECT_EQ(database.Symbol(), database.FindProperty(0, 0));
}

TEST_F(ElementsDatabaseTest, NegativeCountsAreNone) {
  ASSERT_EQ(Load(DatWriter().PeriodicHeader(-1).Raw("rest")), 1);
  EXPECT_EQ(database.CategoryCount(), 0);
  ASSERT_EQ(Load(DatWriter().PeriodicHeader(2).Category(u"A", -32768).Category(u"B", 0)), 1);
  ASSERT_EQ(database.CategoryCount(), 2);
  EXPECT_EQ(database.Categories()[1].Name(), u"B");
  ASSERT_EQ(Load(OneProperty(-5)), 1);
  EXPECT_EQ(Property(0, 0).ValueCount(), 0);
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ElementsDatabaseTest, EveryTruncationOfASoundFileLoads) {
  DatWriter file;
  file.PeriodicHeader(2).Category(u"General", 1);
  file.Property(0, u"Symbol", true, u" u", 2).Value(1, u"H\u2013").Value(2, u"He");
  file.Category(u"More", 1).Property(1, u"Name", false, u"", 1).Value(1, u"Hydrogen");
  const std::string& bytes = file.Bytes();
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    SCOPED_TRACE(length);
    EXPECT_EQ(Load(std::string_view(bytes).substr(0, length)), length < 4 ? 0 : 1);
    EXPECT_FALSE(reporter.Take().empty());
  }
  EXPECT_EQ(Load(bytes), 1);
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ElementsDatabaseTest, HugeCountsCostMessagesOnly) {
  class Counting : public MessageReporter {
   public:
    void Report(TextView, TextView, MessageIcon) override { ++count; }
    int count = 0;
  } counting;
  testing::WriteBytes(path, OneProperty(32767).Bytes());
  EXPECT_EQ(database.Load(path, counting), 1);
  EXPECT_EQ(counting.count, 2 * 32767);
  EXPECT_EQ(Property(0, 0).ValueCount(), 0);

  counting.count = 0;
  testing::WriteBytes(path, DatWriter().PeriodicHeader(32767).Category(u"Deep", 32767).Bytes());
  EXPECT_EQ(database.Load(path, counting), 1);
  EXPECT_EQ(counting.count, 5 * 32767 + 2 * 32766);
  EXPECT_EQ(database.CategoryCount(), 32767);
}

TEST(ElementCodesTest, FamiliesAndBlocks) {
  const TextView families[] = {u"Alkali metal",     u"Alkaline earth metal",
                               u"Transition metal", u"Metal",
                               u"Non-metal",        u"Noble gas",
                               u"Actinide",         u"Lanthanide",
                               u"Halogen",          u"Transactinide"};
  for (std::size_t i = 0; i < std::size(families); ++i) {
    EXPECT_EQ(FamilyText(Text(1, static_cast<Char>(u'A' + i))), families[i]);
  }
  for (const TextView none : {u"", u"K", u"a", u"@", u"\uFFFF", u"1"}) EXPECT_EQ(FamilyText(none), u"");
  EXPECT_EQ(FamilyText(u"Hx"), u"Lanthanide");  // the first character decides

  EXPECT_EQ(BlockText(u"D"), u"d-block");
  EXPECT_EQ(BlockText(u"F"), u"f-block");
  EXPECT_EQ(BlockText(u"P"), u"p-block");
  EXPECT_EQ(BlockText(u"S"), u"s-block");
  for (const TextView none : {u"", u"s", u"E", u"1"}) EXPECT_EQ(BlockText(none), u"");
}

}  // namespace
}  // namespace orvane
