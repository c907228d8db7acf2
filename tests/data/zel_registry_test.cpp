#include "data/zel_registry.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

#include "data/memory_settings.h"

namespace orvane {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr TextView kKey = u"Software\\Zel Software\\Orvane";

class ZelRegistryTest : public ::testing::Test {
 protected:
  ZelRegistryTest() {
    registry.SetKey(kKey);
    registry.Open();
  }
  // The stored value as the store has it.
  SettingValue Stored(TextView name) {
    const SettingValue* value = store.Find(name);
    EXPECT_NE(value, nullptr);
    return value == nullptr ? SettingValue() : *value;
  }
  Bytes Binary(TextView name, std::size_t size) {
    Bytes buffer(size, 0xEE);
    const std::int32_t read = registry.ReadBinary(name, buffer);
    EXPECT_GE(read, 0);
    return buffer;
  }

  MemorySettings store;
  ZelRegistry registry{store};
  Text text;
};

TEST_F(ZelRegistryTest, LongsAreFourBytesAndKeepTheirSign) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  for (const std::int32_t value : {-5, 0, 1, kLeast, kMost}) {
    registry.WriteLong(u"wnd_plot.Cur.xCat", value);
    EXPECT_EQ(registry.ReadLong(u"wnd_plot.Cur.xCat", 99), value);
  }
  registry.WriteLong(u"n", -5);
  EXPECT_EQ(Stored(u"n"), (SettingValue{SettingKind::kLong, {0xFB, 0xFF, 0xFF, 0xFF}}));
}

TEST_F(ZelRegistryTest, BoolsAreLongsOfOneAndZero) {
  registry.WriteBool(u"yes", true);
  registry.WriteBool(u"no", false);
  EXPECT_EQ(Stored(u"yes"), (SettingValue{SettingKind::kLong, {1, 0, 0, 0}}));
  EXPECT_EQ(Stored(u"no"), (SettingValue{SettingKind::kLong, {0, 0, 0, 0}}));
  EXPECT_TRUE(registry.ReadBool(u"yes", false));
  EXPECT_FALSE(registry.ReadBool(u"no", true));
  for (const std::int32_t other : {5, -1, 256, std::numeric_limits<std::int32_t>::min()}) {
    registry.WriteLong(u"other", other);
    EXPECT_TRUE(registry.ReadBool(u"other", false)) << other;
  }
}

TEST_F(ZelRegistryTest, DoublesAreTheirEightBytes) {
  registry.WriteDouble(u"wnd_plot.Cur.xcMin", 0.75);
  EXPECT_EQ(Stored(u"wnd_plot.Cur.xcMin"),
            (SettingValue{SettingKind::kBinary, {0, 0, 0, 0, 0, 0, 0xE8, 0x3F}}));
  using Limits = std::numeric_limits<double>;
  for (const double value :
       {0.1, -0.0, 1e300, Limits::denorm_min(), Limits::infinity(), Limits::quiet_NaN()}) {
    registry.WriteDouble(u"d", value);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(registry.ReadDouble(u"d", 7)),
              std::bit_cast<std::uint64_t>(value));
  }
}

TEST_F(ZelRegistryTest, StringsAreTheirCharactersAndAZero) {
  registry.WriteString(u"wnd_mass.Formula", u"abc");
  EXPECT_EQ(Stored(u"wnd_mass.Formula"),
            (SettingValue{SettingKind::kString, {'a', 0, 'b', 0, 'c', 0, 0, 0}}));
  EXPECT_EQ(registry.ReadString(u"wnd_mass.Formula", text, u"default"), 7);  // 8 bytes less one
  EXPECT_EQ(text, u"abc");

  registry.WriteString(u"empty", u"");
  EXPECT_EQ(registry.ReadString(u"empty", text, u"default"), 1);
  EXPECT_EQ(text, u"");

  const Text odd = {0xD800, u'\u2013', 0xDC00, 1, 0xFFFF};  // lone surrogates survive
  registry.WriteString(u"odd", odd);
  EXPECT_EQ(registry.ReadString(u"odd", text, u""), 11);
  EXPECT_EQ(text, odd);
}

TEST_F(ZelRegistryTest, AStringEndsAtItsFirstZero) {
  registry.WriteString(u"s", Text(u"ab\0cd", 5));
  EXPECT_EQ(registry.ReadString(u"s", text, u""), 5);
  EXPECT_EQ(text, u"ab");
}

TEST_F(ZelRegistryTest, AStringOfMoreThan512BytesReadsAsItsDefault) {
  registry.WriteString(u"fits", Text(255, u'x'));
  EXPECT_EQ(registry.ReadString(u"fits", text, u"default"), 511);
  EXPECT_EQ(text, Text(255, u'x'));
  registry.WriteString(u"long", Text(256, u'x'));
  EXPECT_EQ(Stored(u"long").bytes.size(), 514u);
  EXPECT_EQ(registry.ReadString(u"long", text, u"default"), 7);
  EXPECT_EQ(text, u"default");
}

TEST_F(ZelRegistryTest, AMissingValueReadsAsItsDefault) {
  EXPECT_EQ(registry.ReadLong(u"none", -7), -7);
  EXPECT_TRUE(registry.ReadBool(u"none", true));
  EXPECT_FALSE(registry.ReadBool(u"none", false));
  EXPECT_EQ(registry.ReadDouble(u"none", 2.5), 2.5);
  text = u"old";
  EXPECT_EQ(registry.ReadString(u"none", text, u"four"), 4);
  EXPECT_EQ(text, u"four");
  EXPECT_EQ(registry.ReadBinary(u"none", {}), -1);
  Bytes buffer(4);
  EXPECT_EQ(registry.ReadBinary(u"none", buffer), -1);
  EXPECT_FALSE(registry.Exists(u"none"));
}

TEST_F(ZelRegistryTest, ExistsAsksForAValueOfAtMostFourBytes) {
  registry.WriteLong(u"long", 3);
  registry.WriteString(u"abc", u"abc");
  registry.WriteString(u"a", u"a");
  registry.WriteString(u"empty", u"");
  registry.WriteDouble(u"double", 1);
  registry.WriteBinary(u"five", Bytes(5));
  registry.WriteBinary(u"none", {});
  EXPECT_TRUE(registry.Exists(u"long"));
  EXPECT_TRUE(registry.Exists(u"a"));
  EXPECT_TRUE(registry.Exists(u"empty"));
  EXPECT_TRUE(registry.Exists(u"none"));
  EXPECT_FALSE(registry.Exists(u"abc"));
  EXPECT_FALSE(registry.Exists(u"double"));
  EXPECT_FALSE(registry.Exists(u"five"));
}

TEST_F(ZelRegistryTest, BinaryValuesAreCopiedAsFarAsTheyAreAskedFor) {
  const Bytes bytes = {1, 2, 3, 4, 5};
  registry.WriteBinary(u"b", bytes);
  EXPECT_EQ(registry.ReadBinary(u"b", {}), 5);
  Bytes buffer(3);
  EXPECT_EQ(registry.ReadBinary(u"b", buffer), 3);
  EXPECT_EQ(buffer, (Bytes{1, 2, 3}));
  buffer.assign(7, 0xEE);
  EXPECT_EQ(registry.ReadBinary(u"b", buffer), 5);
  EXPECT_EQ(buffer, (Bytes{1, 2, 3, 4, 5, 0xEE, 0xEE}));
  registry.WriteBinary(u"empty", {});
  EXPECT_EQ(registry.ReadBinary(u"empty", {}), 0);
  EXPECT_EQ(registry.ReadBinary(u"empty", buffer), 0);
}

// What each read makes of bytes of any kind and size.
TEST_F(ZelRegistryTest, ReadsLookAtTheSizeAndNotAtTheKind) {
  constexpr std::int32_t kNoLong = 77;
  constexpr double kNoDouble = 0.5;
  const Text kNoText = u"none";
  const double abc = std::bit_cast<double>(std::array<std::uint8_t, 8>{'a', 0, 'b', 0, 'c', 0, 0, 0});
  const struct {
    Bytes bytes;
    bool exists;
    std::int32_t asLong;
    double asDouble;
    Text asText;
    std::int32_t textResult;
  } cases[] = {
      {{}, true, kNoLong, kNoDouble, kNoText, 4},
      {{0}, true, kNoLong, kNoDouble, kNoText, 4},
      {{0, 0}, true, kNoLong, kNoDouble, u"", 1},
      {{'a', 0}, true, kNoLong, kNoDouble, u"a", 1},  // a text without its zero
      {{1, 2, 3}, true, kNoLong, kNoDouble, kNoText, 4},
      {{0xFB, 0xFF, 0xFF, 0xFF}, true, -5, kNoDouble, u"\uFFFB\uFFFF", 3},
      {{1, 0, 0, 0}, true, 1, kNoDouble, u"\u0001", 3},
      {{0, 0, 0, 0}, true, 0, kNoDouble, kNoText, 4},  // a zero before the last character
      {{'a', 0, 0, 0}, true, 97, kNoDouble, u"a", 3},
      {{0, 0, 'a', 0, 0, 0}, false, kNoLong, kNoDouble, kNoText, 4},
      {{'a', 0, 'b', 0, 'c', 0, 0, 0}, false, kNoLong, abc, u"abc", 7},
      {{0, 0, 0, 0, 0, 0, 0xE8, 0x3F}, false, kNoLong, 0.75, kNoText, 4},
      {Bytes(9, 1), false, kNoLong, kNoDouble, kNoText, 4},
  };
  for (const SettingKind kind : {SettingKind::kLong, SettingKind::kBinary, SettingKind::kString}) {
    for (const auto& c : cases) {
      SCOPED_TRACE(::testing::PrintToString(c.bytes));
      store.Write(u"v", {kind, c.bytes});
      EXPECT_EQ(registry.Exists(u"v"), c.exists);
      EXPECT_EQ(registry.ReadLong(u"v", kNoLong), c.asLong);
      EXPECT_EQ(registry.ReadBool(u"v", true), c.asLong != 0);
      EXPECT_EQ(registry.ReadDouble(u"v", kNoDouble), c.asDouble);
      EXPECT_EQ(registry.ReadString(u"v", text, kNoText), c.textResult);
      EXPECT_EQ(text, c.asText);
      EXPECT_EQ(registry.ReadBinary(u"v", {}), static_cast<std::int32_t>(c.bytes.size()));
      EXPECT_EQ(Binary(u"v", c.bytes.size()), c.bytes);
    }
  }
}

TEST_F(ZelRegistryTest, AWriteReplacesTheValueAndItsKind) {
  registry.WriteLong(u"v", 5);
  registry.WriteString(u"v", u"abc");
  EXPECT_EQ(registry.ReadLong(u"v", 9), 9);
  EXPECT_EQ(registry.ReadString(u"v", text, u""), 7);
  EXPECT_EQ(Stored(u"v").kind, SettingKind::kString);
}

TEST_F(ZelRegistryTest, WithoutAnOpenKeyReadsGiveDefaultsAndWritesDoNothing) {
  registry.WriteLong(u"v", 5);
  registry.Close();
  registry.Close();  // harmless
  EXPECT_EQ(registry.ReadLong(u"v", 9), 9);
  EXPECT_FALSE(registry.Exists(u"v"));
  EXPECT_EQ(registry.ReadString(u"v", text, u"xy"), 2);
  EXPECT_EQ(registry.ReadBinary(u"v", {}), -1);
  registry.WriteLong(u"v", 6);
  registry.WriteString(u"w", u"abc");
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"v", 9), 5);
  EXPECT_FALSE(registry.Exists(u"w"));
}

TEST_F(ZelRegistryTest, OpeningAnOpenKeyKeepsIt) {
  registry.WriteLong(u"v", 5);
  registry.SetKey(u"Another");
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"v", 9), 5);  // still the first key
  registry.Close();
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"v", 9), 9);
  registry.WriteLong(u"v", 6);
  registry.Close();
  registry.SetKey(kKey);
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"v", 9), 5);
}

TEST_F(ZelRegistryTest, AKeyPathIsCutAt255Characters) {
  registry.Close();
  registry.SetKey(Text(255, u'k') + u"one");
  registry.Open();
  registry.WriteLong(u"v", 5);
  registry.Close();
  registry.SetKey(Text(255, u'k') + u"another");
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"v", 9), 5);
  registry.Close();
  registry.SetKey(Text(254, u'k'));
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"v", 9), 9);
}

TEST(ZelRegistryWithoutStoreTest, AKeyThatCannotBeOpenedLeavesDefaults) {
  class Refusing : public MemorySettings {
   public:
    bool OpenKey(TextView) override { return false; }
  } store;
  ZelRegistry registry(store);
  registry.SetKey(kKey);
  registry.Open();
  registry.WriteLong(u"v", 5);
  EXPECT_EQ(registry.ReadLong(u"v", 9), 9);
  registry.Close();
}

TEST(ZelRegistryLifetimeTest, TheKeyIsClosedWithTheRegistry) {
  class Watching : public MemorySettings {
   public:
    void CloseKey() override { ++closed, MemorySettings::CloseKey(); }
    int closed = 0;
  } store;
  {
    ZelRegistry registry(store);
    registry.SetKey(kKey);
    registry.Open();
  }
  EXPECT_EQ(store.closed, 1);
}

TEST_F(ZelRegistryTest, NamesOfListsNestTheirIndices) {
  const Text preset = WithNumber(u"wnd_element.Preset[%d].Val[%d]", 2);
  for (int i = 0; i < 3; ++i) registry.WriteLong(WithNumber(preset, i), 10 * i);
  registry.WriteLong(u"wnd_element.Preset[2].Count", 3);
  EXPECT_EQ(registry.ReadLong(u"wnd_element.Preset[2].Val[1]", -1), 10);
  EXPECT_EQ(registry.ReadLong(u"wnd_element.Preset[1].Val[1]", -1), -1);
  EXPECT_TRUE(registry.Exists(u"wnd_element.Preset[2].Count"));
}

}  // namespace
}  // namespace orvane
