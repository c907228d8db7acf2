#include "content/dat_writer.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::string Bytes(std::initializer_list<int> values) {
  std::string out;
  for (const int value : values) out.push_back(static_cast<char>(value));
  return out;
}

TEST(DatWriter, WritesNumbersLowByteFirst) {
  DatWriter out;
  out.Long(0xFFE8EBDE);
  out.Short(0x0102);
  out.Short(static_cast<std::uint16_t>(-1));
  out.Bool(true);
  EXPECT_EQ(out.Bytes(), Bytes({0xDE, 0xEB, 0xE8, 0xFF, 0x02, 0x01, 0xFF, 0xFF, 'T'}));
  DatWriter no;
  no.Bool(false);
  EXPECT_NE(no.Bytes(), "T");
  EXPECT_EQ(no.Bytes().size(), 1u);
}

TEST(DatWriter, EscapesWhatOneByteCannotSay) {
  DatWriter out;
  out.CountedString(Text{u'A', 0x00B0, 0x2013, 0x0002, 0x0100, 0xD800});
  EXPECT_EQ(out.Bytes(), Bytes({14, 0, 'A', 0xB0, 2, 0x13, 0x20, 2, 2, 0, 2, 0, 1, 2, 0, 0xD8}));
}

TEST(DatWriter, EscapesAZeroCharacterWhereItWouldEndTheText) {
  DatWriter out;
  out.ZeroTerminatedString(Text{u'a', 0, u'b'});
  EXPECT_EQ(out.Bytes(), Bytes({'a', 2, 0, 0, 'b', 0}));
  DatWriter counted;
  counted.CountedString(Text{u'a', 0});
  EXPECT_EQ(counted.Bytes(), Bytes({2, 0, 'a', 0}));
}

TEST(DatWriter, WritesTheLongestCountedString) {
  DatWriter out;
  out.CountedString(Text(65535, u'x'));
  ASSERT_EQ(out.Bytes().size(), 65537u);
  EXPECT_EQ(out.Bytes().substr(0, 3), Bytes({0xFF, 0xFF, 'x'}));
  EXPECT_EQ(DatWriter::EscapedSize(Text(21845, u'Ω')), 65535u);
}

}  // namespace
}  // namespace orvane
