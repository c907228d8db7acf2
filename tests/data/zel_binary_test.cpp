#include "data/zel_binary.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

#include "tests/data/collecting_reporter.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane {
namespace {

using testing::CollectingReporter;
using testing::DatWriter;
using testing::TempFolder;
using Messages = std::vector<std::string>;
using namespace std::string_view_literals;

class ZelBinaryTest : public ::testing::Test {
 protected:
  // The reader, standing at the start of a file of these bytes.
  ZelBinary& Of(std::string_view bytes) {
    const std::string path = folder.File("file.dat");
    testing::WriteBytes(path, bytes);
    reader.emplace(reporter);
    EXPECT_EQ(reader->Open(path), 1);
    return *reader;
  }
  // A reader that has not opened anything.
  ZelBinary& Closed() { return reader.emplace(reporter); }

  TempFolder folder;
  CollectingReporter reporter;
  std::optional<ZelBinary> reader;
  Text text;
};

TEST_F(ZelBinaryTest, LongsAreLittleEndian) {
  ZelBinary& file = Of("\xDE\xEB\xE8\xFF\x01\x02\x03\x04"sv);
  EXPECT_EQ(static_cast<std::uint32_t>(file.ReadLong()), 0xFFE8EBDEu);
  EXPECT_EQ(file.ReadLong(), 0x04030201);
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ZelBinaryTest, ShortsAreLittleEndianAndSigned) {
  ZelBinary& file = Of("\xFF\xFF\x00\x80\xFF\x7F\x02\x01"sv);
  for (const int expected : {-1, -32768, 32767, 0x0102}) EXPECT_EQ(file.ReadShort(), expected);
}

TEST_F(ZelBinaryTest, OnlyTheLetterTIsTrue) {
  ZelBinary& file = Of("\x54\x74\x01\x00\xFF\x46"sv);
  for (const bool expected : {true, false, false, false, false, false}) EXPECT_EQ(file.ReadBool(), expected);
}

struct CountedCase {
  std::string_view bytes;
  int result;
  Text text;
  Messages messages;
};

TEST_F(ZelBinaryTest, CountedStrings) {
  const std::string shortCount = "ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file";
  const std::string shortText = shortCount + " (2)";
  const std::string cutEscape = "ZelBinary::ReadTCharFromChar_C() - unicode escape goes beyond end of file";
  const CountedCase cases[] = {
      {"\x05\x00\x41\x02\x42\x00\x43"sv, 5, u"ABC", {}},
      {"\x00\x00"sv, 0, u"", {}},
      {"\x06\x00\x02\x13\x20\x02\x02\x00"sv, 6, u"\u2013\u0002", {}},
      {"\x03\x00\x02\xB0\x00"sv, 3, u"\u00B0", {}},
      {"\x03\x00\x80\xA0\xFF"sv, 3, u"\u0080\u00A0\u00FF", {}},
      {"\x03\x00"
       "A\x00"
       "B"sv,
       3,
       Text(u"A\0B", 3),
       {}},
      {"\x04\x00Z\x02\x00\x00"sv, 4, Text(u"Z\0", 2), {}},
      {"\x03\x00\x02\x3D\xD8"sv, 3, Text(1, u'\xD83D'), {}},
      // The count is unsigned: FF FF announces 65,535 bytes.
      {"\xFF\xFF\x41"sv, 0, u"", {shortText}},
      {"\x03\x00\x41\x02\x42"sv, 0, u"", {cutEscape}},
      {"\x02\x00\x41\x02"sv, 0, u"", {cutEscape}},
      {"\x01\x00\x02"sv, 0, u"", {cutEscape}},
      {""sv, 0, u"", {shortCount}},
      {"\x05"sv, 0, u"", {shortCount}},
      {"\x05\x00"sv, 0, u"", {shortText}},
      {"\x05\x00\x41\x42\x43\x44"sv, 0, u"", {shortText}},
  };
  for (const CountedCase& c : cases) {
    SCOPED_TRACE(::testing::PrintToString(c.bytes));
    text = u"old";
    EXPECT_EQ(Of(c.bytes).ReadTCharFromChar_C(text), c.result);
    EXPECT_EQ(text, c.text);
    EXPECT_EQ(reporter.Take(), c.messages);

    text = u"old";
    EXPECT_EQ(Of(c.bytes).ReadTCharFromChar_C(text, 100), c.result);
    EXPECT_EQ(text, c.text);
    EXPECT_EQ(reporter.Take(), c.messages);
  }
}

TEST_F(ZelBinaryTest, AFailedCountedStringConsumesWhatItAnnounced) {
  ZelBinary& file = Of("\x02\x00\x41\x02\x07\x00"sv);
  EXPECT_EQ(file.ReadTCharFromChar_C(text), 0);
  EXPECT_EQ(file.FilePos(), 4u);
  EXPECT_EQ(file.ReadShort(), 7);
}

TEST_F(ZelBinaryTest, ALongestCountedStringIsReadWhole) {
  const Text longest(65535, u'x');
  const std::string bytes = DatWriter().Counted(longest).Counted(u"next").Bytes();
  ZelBinary& file = Of(bytes);
  EXPECT_EQ(file.ReadTCharFromChar_C(text), 65535);
  EXPECT_EQ(text, longest);
  EXPECT_EQ(file.ReadTCharFromChar_C(text), 4);
  EXPECT_EQ(text, u"next");
}

TEST_F(ZelBinaryTest, AFieldKeepsWhatFitsAndTheReaderStaysInStep) {
  const std::string counted = DatWriter().Counted(u"ab\u2013cd").Short(77).Bytes();
  const std::string zeroed = DatWriter().ZeroTerminated(u"ab\u2013cd").Short(77).Bytes();
  const struct {
    std::size_t capacity;
    Text kept;
  } cases[] = {{0, u""}, {1, u""}, {2, u"a"}, {4, u"ab\u2013"}, {5, u"ab\u2013c"}, {6, u"ab\u2013cd"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.capacity);
    EXPECT_EQ(Of(counted).ReadTCharFromChar_C(text, c.capacity), 7);
    EXPECT_EQ(text, c.kept);
    EXPECT_EQ(reader->ReadShort(), 77);

    EXPECT_EQ(Of(zeroed).ReadTCharFromChar_Z(text, c.capacity), static_cast<int>(c.kept.size()));
    EXPECT_EQ(text, c.kept);
    EXPECT_EQ(reader->ReadShort(), 77);
  }
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ZelBinaryTest, ZeroTerminatedStrings) {
  const std::string noEnd =
      "ZelBinary::ReadTCharFromChar_Z() - attempted to read beyond end of file. Zero termination not found";
  const struct {
    std::string_view bytes;
    int result;
    Text text;
    Messages messages;
  } cases[] = {
      {"\x00"sv, 0, u"", {}},
      {"abc\0def\0"sv, 3, u"abc", {}},
      {"a\x02\x00\x00z\0"sv, 3, Text(u"a\0z", 3), {}},
      {"\x02\x13\x20\x02\x02\x00\x80\xFF\0"sv, 4, u"\u2013\u0002\u0080\u00FF", {}},
      // Neither byte of an escape ends the string.
      {"\x02\x00\x21\x02\x41\x00\0"sv, 2, u"\u2100A", {}},
      // Without its end a string is kept as far as it goes.
      {"abc"sv, 0, u"abc", {noEnd}},
      {"ab\x02\x13"sv, 0, u"ab", {noEnd}},
      {""sv, 0, u"", {noEnd}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::PrintToString(c.bytes));
    text = u"old";
    EXPECT_EQ(Of(c.bytes).ReadTCharFromChar_Z(text, 100), c.result);
    EXPECT_EQ(text, c.text);
    EXPECT_EQ(reporter.Take(), c.messages);
  }
}

TEST_F(ZelBinaryTest, StringsAndNumbersCrossTheReadersBuffer) {
  // Every field straddles a different place of any power-of-two buffer.
  DatWriter writer;
  for (int i = 0; i < 9000; ++i) writer.ZeroTerminated(u"a\u2013bc").Short(i).Counted(u"\u00B0\u2013");
  ZelBinary& file = Of(writer.Bytes());
  for (int i = 0; i < 9000; ++i) {
    ASSERT_EQ(file.ReadTCharFromChar_Z(text, 10), 4);
    ASSERT_EQ(text, u"a\u2013bc");
    ASSERT_EQ(file.ReadShort(), i);
    ASSERT_EQ(file.ReadTCharFromChar_C(text), 4);
    ASSERT_EQ(text, u"\u00B0\u2013");
  }
  EXPECT_EQ(file.FilePos(), file.FileSize());
}

TEST_F(ZelBinaryTest, AShortReadGivesZeroAndConsumesTheRest) {
  ZelBinary& file = Of("\x01\x02\x03"sv);
  EXPECT_EQ(file.ReadLong(), 0);
  EXPECT_EQ(file.FilePos(), 3u);
  file.SeekTo(2);
  EXPECT_EQ(file.ReadShort(), 0);
  EXPECT_EQ(file.FilePos(), 3u);
  EXPECT_FALSE(file.ReadBool());
  EXPECT_EQ(reporter.Take(), (Messages{"ZelBinary::ReadLong() - attempted to read beyond end of file",
                                       "ZelBinary::ReadShort() - attempted to read beyond end of file",
                                       "ZelBinary::ReadBool() - attempted to read beyond end of file"}));
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
}

TEST_F(ZelBinaryTest, EveryOperationOnAClosedReaderSaysSo) {
  ZelBinary& file = Closed();
  const auto closed = [](const char* name) {
    return Messages{"ZelBinary::" + std::string(name) + "() - attempted operation on a closed file"};
  };
  EXPECT_EQ(file.SeekTo(0), -1);
  EXPECT_EQ(reporter.Take(), closed("SeekTo"));
  file.SeekBy(1);
  EXPECT_EQ(reporter.Take(), closed("SeekBy"));
  file.SeekEnd();
  EXPECT_EQ(reporter.Take(), closed("SeekEnd"));
  EXPECT_EQ(file.FileSize(), 0xFFFFFFFFu);
  EXPECT_EQ(reporter.Take(), closed("FileSize"));
  EXPECT_EQ(file.FilePos(), 0xFFFFFFFFu);
  EXPECT_EQ(reporter.Take(), closed("FilePos"));
  EXPECT_FALSE(file.ReadBool());
  EXPECT_EQ(reporter.Take(), closed("ReadBool"));
  EXPECT_EQ(file.ReadLong(), -1);
  EXPECT_EQ(reporter.Take(), closed("ReadLong"));
  EXPECT_EQ(file.ReadShort(), -1);
  EXPECT_EQ(reporter.Take(), closed("ReadShort"));
  EXPECT_EQ(file.ReadTCharFromChar_C(text), -1);
  EXPECT_EQ(reporter.Take(), closed("ReadTCharFromChar_C"));
  EXPECT_EQ(file.ReadTCharFromChar_C(text, 10), -1);
  EXPECT_EQ(reporter.Take(), closed("ReadTCharFromChar_C"));
  // The reader of zero-terminated strings reports under the other's name.
  EXPECT_EQ(file.ReadTCharFromChar_Z(text, 10), -1);
  EXPECT_EQ(reporter.Take(), closed("ReadTCharFromChar_C"));
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
}

TEST_F(ZelBinaryTest, OpeningWhileOpenWarnsAndOpensTheNewFile) {
  const std::string other = folder.File("other.dat");
  testing::WriteBytes(other, "\x07\x00"sv);
  ZelBinary& file = Of("\x01\x00\x02\x00"sv);
  EXPECT_EQ(file.ReadShort(), 1);
  EXPECT_EQ(file.Open(other), 1);
  EXPECT_EQ(reporter.Take(),
            Messages{"ZelBinary::Open() - previous file still open. It will be closed though."});
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
  EXPECT_EQ(file.FilePos(), 0u);
  EXPECT_EQ(file.ReadShort(), 7);
}

TEST_F(ZelBinaryTest, WhatCannotBeOpenedFailsWithoutAMessage) {
  ZelBinary& file = Closed();
  EXPECT_EQ(file.Open(folder.File("absent.dat")), 0);
  EXPECT_EQ(file.Open(folder.Path().string()), 0);
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ZelBinaryTest, AFailedOpenAfterASuccessfulOneLeavesTheReaderClosed) {
  ZelBinary& file = Of("\x01\x00"sv);
  EXPECT_EQ(file.Open(folder.File("absent.dat")), 0);
  EXPECT_EQ(reporter.Take().size(), 1u);
  EXPECT_EQ(file.ReadShort(), -1);
}

TEST_F(ZelBinaryTest, CloseAlwaysSucceedsAndTheFileCanBeOpenedAgain) {
  EXPECT_EQ(Closed().Close(), 1);
  ZelBinary& file = Of("\x05\x00"sv);
  EXPECT_EQ(file.Close(), 1);
  EXPECT_EQ(file.Close(), 1);
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(reporter.Take(), Messages{});
  EXPECT_EQ(file.Open(folder.File("file.dat")), 1);
  EXPECT_EQ(file.ReadShort(), 5);
}

TEST_F(ZelBinaryTest, SeekingMovesAndReports) {
  ZelBinary& file = Of("\x00\x01\x02\x03\x04\x05\x06\x07"sv);
  EXPECT_EQ(file.FileSize(), 8u);
  EXPECT_EQ(file.FilePos(), 0u);
  EXPECT_EQ(file.SeekTo(4), 4);
  EXPECT_EQ(file.ReadShort(), 0x0504);
  file.SeekBy(-4);
  EXPECT_EQ(file.FilePos(), 2u);
  EXPECT_EQ(file.ReadShort(), 0x0302);
  file.SeekEnd();
  EXPECT_EQ(file.FilePos(), 8u);
  EXPECT_EQ(file.FileSize(), 8u);
  file.SeekBy(-1);
  EXPECT_FALSE(file.ReadBool());
  EXPECT_EQ(reporter.Take(), Messages{});
}

TEST_F(ZelBinaryTest, ATargetBeforeTheStartChangesNothing) {
  ZelBinary& file = Of("\x00\x01\x02\x03"sv);
  file.SeekTo(2);
  for (const std::int32_t before : {-1, -2, std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(file.SeekTo(before), -1);
    EXPECT_EQ(file.FilePos(), 2u);
  }
  file.SeekBy(-3);
  EXPECT_EQ(file.FilePos(), 2u);
  file.SeekBy(std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(file.FilePos(), 2u);
  EXPECT_EQ(file.ReadShort(), 0x0302);
}

TEST_F(ZelBinaryTest, BehindTheEndEveryReadIsShort) {
  ZelBinary& file = Of("\x00\x01"sv);
  EXPECT_EQ(file.SeekTo(2000000000), 2000000000);
  file.SeekBy(2000000000);
  file.SeekBy(2000000000);
  EXPECT_EQ(file.FilePos(), 6000000000u % 4294967296u);  // positions are told modulo 2^32
  EXPECT_EQ(file.ReadShort(), 0);
  EXPECT_EQ(file.SeekTo(0), 0);
  EXPECT_EQ(file.ReadShort(), 0x0100);
  EXPECT_EQ(reporter.Take().size(), 1u);
}

TEST_F(ZelBinaryTest, AFileBeyondFourGigabytesIsReadAtItsTruePositions) {
  // A sparse file: 2^32 + 5 bytes, of which only the last three are stored.
  const std::string path = folder.File("large.dat");
  {
    std::ofstream sparse(path, std::ios::binary);
    sparse.seekp((std::int64_t{1} << 32) + 2);
    sparse.write("\x34\x12T", 3);
    if (!sparse.good()) GTEST_SKIP() << "the folder for temporary files holds no sparse files";
  }
  ZelBinary& file = Closed();
  ASSERT_EQ(file.Open(path), 1);
  EXPECT_EQ(file.FileSize(), 5u);
  file.SeekEnd();
  EXPECT_EQ(file.FilePos(), 5u);
  file.SeekBy(-3);
  EXPECT_EQ(file.ReadShort(), 0x1234);
  EXPECT_TRUE(file.ReadBool());
  EXPECT_EQ(reporter.Take(), Messages{});
}

}  // namespace
}  // namespace orvane
