// The reader of help.dat, against files made field by field.
#include "data/help_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/data/collecting_reporter.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kShortAtEnd = "ZelBinary::ReadShort() - attempted to read beyond end of file";
constexpr const char* kTextAtEnd = "ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file";

class HelpFileTest : public ::testing::Test {
 protected:
  static DatWriter Header(int contentsCount) {
    DatWriter file;
    file.Raw("\xDE\xEB\xFF").Byte(0).Short(contentsCount);
    return file;
  }
  static void HeadingEntry(DatWriter& file, int level, TextView text) {
    file.Bool(false).Short(level).Counted(text);
  }
  static void PageEntry(DatWriter& file, int level, int id) { file.Bool(true).Short(level).Short(id); }
  static void Directory(DatWriter& file, int id, std::uint32_t offset, TextView title) {
    file.Short(id).Long(offset).Counted(title);
  }

  bool Open(const DatWriter& file) {
    file.Save(Path());
    return help_.Open(Path(), reporter_);
  }
  // A file of one page with this body.
  bool OpenWithBody(const DatWriter& body) {
    DatWriter file = Header(0);
    file.Short(1);
    Directory(file, 7, static_cast<std::uint32_t>(file.Bytes().size() + 9), u"T");
    EXPECT_EQ(file.Bytes().size(), 17u);
    file.Raw(body.Bytes());
    return Open(file);
  }
  const HelpPageBody& Body(int id) {
    help_.LoadBody(id, reporter_);
    return *help_.Pages().at(static_cast<std::size_t>(help_.FindPage(id))).body;
  }
  std::string Path() const { return folder_.File("help.dat"); }

  TempFolder folder_;
  CollectingReporter reporter_;
  HelpFile help_;
};

TEST_F(HelpFileTest, NamesAFileThatIsMissing) {
  EXPECT_FALSE(help_.Open(Path(), reporter_));
  EXPECT_THAT(reporter_.texts, ElementsAre("The help file cannot be opened. File name:\n" + Path()));
  EXPECT_TRUE(reporter_.allErrorsOfTheProgram);
}

TEST_F(HelpFileTest, NamesAFolderInItsPlace) {
  const std::string folder = folder_.Path().string();
  EXPECT_FALSE(help_.Open(folder, reporter_));
  EXPECT_THAT(reporter_.texts, ElementsAre("The help file cannot be opened. File name:\n" + folder));
}

TEST_F(HelpFileTest, RefusesFewerThanFourBytes) {
  for (const std::string_view bytes : {"", "\xDE", "\xDE\xEB", "\xDE\xEB\xFF"}) {
    WriteBytes(Path(), bytes);
    EXPECT_FALSE(help_.Open(Path(), reporter_));
    EXPECT_THAT(reporter_.Take(), ElementsAre("The help file is corrupt (1)."));
  }
  EXPECT_TRUE(reporter_.allErrorsOfTheProgram);
}

TEST_F(HelpFileTest, RefusesOtherFirstBytes) {
  const std::string sound("\xDE\xEB\xFF\x00", 4);
  for (std::size_t i = 0; i < sound.size(); ++i) {
    std::string bytes = sound + std::string(4, '\0');
    bytes[i] = static_cast<char>(bytes[i] ^ 1);
    WriteBytes(Path(), bytes);
    EXPECT_FALSE(help_.Open(Path(), reporter_)) << i;
    EXPECT_THAT(reporter_.Take(), ElementsAre("The help file is corrupt (2).")) << i;
  }
  WriteBytes(Path(), std::string_view("\xDE\xEB\xE8\xFF", 4));  // the elements' magic
  EXPECT_FALSE(help_.Open(Path(), reporter_));
  EXPECT_THAT(reporter_.Take(), ElementsAre("The help file is corrupt (2)."));
}

TEST_F(HelpFileTest, MayHoldNoPages) {
  EXPECT_TRUE(Open(Header(0).Short(0)));
  EXPECT_THAT(reporter_.texts, IsEmpty());
  EXPECT_THAT(help_.Pages(), IsEmpty());
  EXPECT_THAT(help_.Contents(), IsEmpty());
  EXPECT_EQ(help_.FindPage(0), -1);
}

TEST_F(HelpFileTest, ReadsContentsAndDirectory) {
  DatWriter file = Header(4);
  HeadingEntry(file, 0, u"Heading \u2013 1");
  PageEntry(file, 1, 20);
  PageEntry(file, -3, 99);
  HeadingEntry(file, 2, u"");
  file.Short(2);
  Directory(file, 10, 0x12345678, u"Ten");
  Directory(file, 20, 0xFFFFFFFF, u"Twenty \u0001!bold");
  ASSERT_TRUE(Open(file));
  EXPECT_THAT(reporter_.texts, IsEmpty());

  const std::vector<ContentsEntry>& contents = help_.Contents();
  ASSERT_EQ(contents.size(), 4u);
  EXPECT_FALSE(contents[0].isPage);
  EXPECT_EQ(contents[0].level, 0);
  EXPECT_EQ(help_.EntryText(contents[0]), u"Heading \u2013 1");
  EXPECT_TRUE(contents[1].isPage);
  EXPECT_EQ(contents[1].level, 1);
  EXPECT_EQ(contents[1].pageId, 20);
  EXPECT_EQ(contents[1].page, 1);
  EXPECT_EQ(help_.EntryText(contents[1]), u"Twenty \u0001!bold");
  EXPECT_EQ(contents[2].level, -3);
  EXPECT_EQ(contents[2].pageId, 99);
  EXPECT_EQ(contents[2].page, -1);
  EXPECT_EQ(help_.EntryText(contents[2]), u"");  // a page that is not there
  EXPECT_EQ(help_.EntryText(contents[3]), u"");

  ASSERT_EQ(help_.Pages().size(), 2u);
  EXPECT_EQ(help_.Pages()[0].id, 10);
  EXPECT_EQ(help_.Pages()[0].offset, 0x12345678u);
  EXPECT_EQ(help_.Pages()[0].title, u"Ten");
  EXPECT_EQ(help_.Pages()[0].body, nullptr);
  EXPECT_EQ(help_.FindPage(20), 1);
}

TEST_F(HelpFileTest, OnlyTheLetterTMarksAPage) {
  DatWriter file = Header(3);
  file.Byte(0x54).Short(0).Short(5).Byte(0x74).Short(0).Counted(u"t").Byte(1).Short(0).Counted(u"1").Short(0);
  ASSERT_TRUE(Open(file));
  EXPECT_TRUE(help_.Contents()[0].isPage);
  EXPECT_EQ(help_.EntryText(help_.Contents()[1]), u"t");
  EXPECT_EQ(help_.EntryText(help_.Contents()[2]), u"1");
}

TEST_F(HelpFileTest, TheFirstPageWithAnIdWins) {
  DatWriter file = Header(1);
  PageEntry(file, 0, 5);
  file.Short(3);
  Directory(file, 4, 0, u"Four");
  Directory(file, 5, 0, u"First five");
  Directory(file, 5, 0, u"Second five");
  ASSERT_TRUE(Open(file));
  EXPECT_EQ(help_.FindPage(5), 1);
  EXPECT_EQ(help_.FindPage(6), -1);
  EXPECT_EQ(help_.FindPage(-1), -1);
  EXPECT_EQ(help_.EntryText(help_.Contents()[0]), u"First five");
}

TEST_F(HelpFileTest, IdsMayBeNegative) {
  DatWriter file = Header(0);
  file.Short(1);
  Directory(file, -1, 0, u"Minus one");
  ASSERT_TRUE(Open(file));
  EXPECT_EQ(help_.FindPage(-1), 0);
}

TEST_F(HelpFileTest, ReadsABody) {
  ASSERT_TRUE(OpenWithBody(DatWriter()
                               .Short(3)
                               .Short(-4)
                               .Short(2)
                               .Counted(u"One \u2192 two")
                               .Counted(u"H\u0001`2\u0001 O\nnext line")
                               .Short(3)
                               .Short(7)
                               .Short(8)
                               .Short(7)));
  const HelpPageBody& body = Body(7);
  EXPECT_THAT(reporter_.texts, IsEmpty());
  EXPECT_EQ(body.neighbour1, 3);
  EXPECT_EQ(body.neighbour2, -4);
  EXPECT_THAT(body.paragraphs, ElementsAre(u"One \u2192 two", u"H\u0001`2\u0001 O\nnext line"));
  EXPECT_THAT(body.links, ElementsAre(0, -1, 0));  // page 8 is none
}

TEST_F(HelpFileTest, TenThousandIsNoNeighbour) {
  ASSERT_TRUE(OpenWithBody(DatWriter().Short(10000).Short(10000).Short(0).Short(0)));
  EXPECT_EQ(Body(7).neighbour1, -1);
  EXPECT_EQ(Body(7).neighbour2, -1);
  ASSERT_TRUE(OpenWithBody(DatWriter().Short(9999).Short(10001).Short(0).Short(0)));
  EXPECT_EQ(Body(7).neighbour1, 9999);
  EXPECT_EQ(Body(7).neighbour2, 10001);
}

TEST_F(HelpFileTest, ABodyMayBeEmpty) {
  ASSERT_TRUE(OpenWithBody(DatWriter().Short(10000).Short(7).Short(0).Short(0)));
  EXPECT_THAT(Body(7).paragraphs, IsEmpty());
  EXPECT_THAT(Body(7).links, IsEmpty());
  EXPECT_THAT(reporter_.texts, IsEmpty());
}

TEST_F(HelpFileTest, ABodyIsThereFromLoadingToFreeing) {
  ASSERT_TRUE(OpenWithBody(DatWriter().Short(1).Short(2).Short(1).Counted(u"Text").Short(0)));
  help_.FreeBody(7);  // not loaded yet
  help_.LoadBody(7, reporter_);
  const std::shared_ptr<const HelpPageBody> kept = help_.Pages()[0].body;
  ASSERT_NE(kept, nullptr);
  help_.FreeBody(8);
  help_.FreeBody(-1);
  EXPECT_EQ(help_.Pages()[0].body, kept);
  help_.FreeBody(7);
  EXPECT_EQ(help_.Pages()[0].body, nullptr);
  // Whoever still shows it keeps it.
  EXPECT_EQ(kept.use_count(), 1);
  EXPECT_THAT(kept->paragraphs, ElementsAre(u"Text"));
}

TEST_F(HelpFileTest, LoadingAnUnknownIdDoesNothing) {
  ASSERT_TRUE(OpenWithBody(DatWriter().Short(1).Short(2).Short(0).Short(0)));
  help_.LoadBody(8, reporter_);
  EXPECT_EQ(help_.Pages()[0].body, nullptr);
  EXPECT_THAT(reporter_.texts, IsEmpty());
}

TEST_F(HelpFileTest, ABodyIsReadAnewFromTheFile) {
  const auto text = [](TextView t) { return DatWriter().Short(1).Short(2).Short(1).Counted(t).Short(0); };
  ASSERT_TRUE(OpenWithBody(text(u"Old")));
  EXPECT_THAT(Body(7).paragraphs, ElementsAre(u"Old"));
  DatWriter file = Header(0);
  file.Short(1);
  Directory(file, 7, 17, u"T");
  file.Raw(text(u"New").Bytes()).Save(Path());
  EXPECT_THAT(Body(7).paragraphs, ElementsAre(u"New"));
}

TEST_F(HelpFileTest, AFileThatIsGoneLeavesAnEmptyPage) {
  ASSERT_TRUE(OpenWithBody(DatWriter().Short(1).Short(2).Short(1).Counted(u"Text").Short(0)));
  std::filesystem::remove(Path());
  const HelpPageBody& body = Body(7);
  EXPECT_EQ(body.neighbour1, -1);
  EXPECT_THAT(body.paragraphs, IsEmpty());
  EXPECT_THAT(body.links, IsEmpty());
  const std::string closed = "ZelBinary::ReadShort() - attempted operation on a closed file";
  EXPECT_THAT(reporter_.texts, ElementsAre("ZelBinary::SeekTo() - attempted operation on a closed file",
                                           closed, closed, closed, closed));
}

TEST_F(HelpFileTest, FreeingAllLeavesNothing) {
  DatWriter file = Header(2);
  PageEntry(file, 0, 1);
  HeadingEntry(file, 0, u"H");
  file.Short(1);
  Directory(file, 1, 0, u"One");
  ASSERT_TRUE(Open(file));
  help_.LoadBody(1, reporter_);
  help_.FreeAll();
  EXPECT_THAT(help_.Pages(), IsEmpty());
  EXPECT_THAT(help_.Contents(), IsEmpty());
  EXPECT_EQ(help_.FindPage(1), -1);
  help_.FreeAll();
}

TEST_F(HelpFileTest, OpeningReplacesWhatWasHeld) {
  ASSERT_TRUE(OpenWithBody(DatWriter()));
  EXPECT_FALSE(help_.Open(folder_.File("none.dat"), reporter_));
  EXPECT_THAT(help_.Pages(), IsEmpty());
  EXPECT_EQ(help_.FindPage(7), -1);
}

// --- Damage.

TEST_F(HelpFileTest, OneMessageForEachReadBeyondTheEnd) {
  ASSERT_TRUE(Open(Header(2)));
  const std::string byte = "ZelBinary::ReadBool() - attempted to read beyond end of file";
  EXPECT_THAT(reporter_.texts,
              ElementsAre(byte, kShortAtEnd, kTextAtEnd, byte, kShortAtEnd, kTextAtEnd, kShortAtEnd));
  EXPECT_TRUE(reporter_.allErrorsOfTheProgram);
  EXPECT_EQ(help_.Contents().size(), 2u);
}

TEST_F(HelpFileTest, NegativeCountsAreNone) {
  ASSERT_TRUE(Open(Header(-1).Short(-32768)));
  EXPECT_THAT(help_.Contents(), IsEmpty());
  EXPECT_THAT(help_.Pages(), IsEmpty());
  ASSERT_TRUE(OpenWithBody(DatWriter().Short(1).Short(2).Short(-1).Short(-7)));
  EXPECT_THAT(Body(7).paragraphs, IsEmpty());
  EXPECT_THAT(Body(7).links, IsEmpty());
  EXPECT_THAT(reporter_.texts, IsEmpty());
}

TEST_F(HelpFileTest, CountsThatLieCostLittle) {
  ASSERT_TRUE(Open(Header(32767)));
  EXPECT_EQ(help_.Contents().size(), 32767u);
  EXPECT_EQ(reporter_.Take().size(), 3u * 32767u + 1u);

  ASSERT_TRUE(Open(Header(0).Short(32767)));
  EXPECT_EQ(help_.Pages().size(), 32767u);
  EXPECT_EQ(help_.FindPage(0), 0);
  EXPECT_EQ(reporter_.Take().size(), 3u * 32767u);

  ASSERT_TRUE(OpenWithBody(DatWriter().Short(1).Short(2).Short(32767)));
  EXPECT_EQ(Body(7).paragraphs.size(), 32767u);
  EXPECT_THAT(reporter_.Take(), ::testing::SizeIs(32767u + 1u));

  ASSERT_TRUE(OpenWithBody(DatWriter().Short(1).Short(2).Short(0).Short(32767)));
  EXPECT_EQ(Body(7).links.size(), 32767u);
  EXPECT_THAT(reporter_.Take(), Each(kShortAtEnd));
}

TEST_F(HelpFileTest, OffsetsMayPointAnywhere) {
  for (const std::uint32_t offset : {100u, 0x7FFFFFFFu, 0x80000000u, 0x80000001u, 0xFFFFFFFFu}) {
    DatWriter file = Header(0);
    file.Short(1);
    Directory(file, 7, offset, u"T");
    ASSERT_TRUE(Open(file));
    EXPECT_THAT(Body(7).paragraphs, IsEmpty()) << offset;
    EXPECT_EQ(Body(7).neighbour1, 0);  // a number that is not there
    EXPECT_THAT(reporter_.Take(), Each(kShortAtEnd)) << offset;
  }
  // Into the file's own head: DE EB, FF 00, 00 00, 01 00 and what follows, as a body.
  DatWriter file = Header(0);
  file.Short(1);
  Directory(file, 7, 0, u"T");
  ASSERT_TRUE(Open(file));
  EXPECT_EQ(Body(7).neighbour1, static_cast<std::int16_t>(0xEBDE));
  EXPECT_EQ(Body(7).neighbour2, 0xFF);
  EXPECT_THAT(Body(7).paragraphs, IsEmpty());
  EXPECT_THAT(Body(7).links, ElementsAre(0));  // the directory's own id
}

TEST_F(HelpFileTest, AnEscapeThatIsCutOffLeavesAnEmptyText) {
  ASSERT_TRUE(
      OpenWithBody(DatWriter().Short(1).Short(2).Short(2).Short(2).Raw("\x02x").Counted(u"Next").Short(0)));
  EXPECT_THAT(Body(7).paragraphs, ElementsAre(u"", u"Next"));
  EXPECT_THAT(reporter_.texts,
              ElementsAre("ZelBinary::ReadTCharFromChar_C() - unicode escape goes beyond end of file"));
}

TEST_F(HelpFileTest, CutShortAtEveryLengthItStillReads) {
  DatWriter file = Header(3);
  HeadingEntry(file, 0, u"Heading \u2013");
  PageEntry(file, 1, 1);
  PageEntry(file, 1, 2);
  file.Short(2);
  const std::uint32_t first = static_cast<std::uint32_t>(file.Bytes().size()) + 2 * (2 + 4 + 2) + 6;
  Directory(file, 1, first, u"One");
  Directory(file, 2, first + 17, u"Two");
  ASSERT_EQ(file.Bytes().size(), first);
  file.Short(10000).Short(2).Short(1).Counted(u"Text").Short(1).Short(2);
  ASSERT_EQ(file.Bytes().size(), first + 16);
  file.Byte(0).Short(1).Short(10000).Short(0).Short(0);
  const std::string whole = file.Bytes();
  for (std::size_t length = 4; length <= whole.size(); ++length) {
    WriteBytes(Path(), whole.substr(0, length));
    ASSERT_TRUE(help_.Open(Path(), reporter_)) << length;
    help_.LoadBody(1, reporter_);
    help_.LoadBody(2, reporter_);
    EXPECT_EQ(reporter_.Take().empty(), length == whole.size()) << length;
  }
  EXPECT_THAT(Body(1).paragraphs, ElementsAre(u"Text"));
  EXPECT_THAT(Body(1).links, ElementsAre(1));
  EXPECT_EQ(Body(2).neighbour1, 1);
}

}  // namespace
}  // namespace orvane::testing
