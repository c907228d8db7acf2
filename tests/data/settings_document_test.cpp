#include "data/settings_document.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr TextView kSection = u"Software\\Zel Software\\Orvane";

SettingValue Long(std::uint8_t value) { return {SettingKind::kLong, {value, 0, 0, 0}}; }

SettingValue String(TextView text) {
  SettingValue value{SettingKind::kString, {}};
  for (const Char c : Text(text) + u'\0') {
    value.bytes.push_back(static_cast<std::uint8_t>(c & 0xFF));
    value.bytes.push_back(static_cast<std::uint8_t>(c >> 8));
  }
  return value;
}

TEST(SettingsLineTest, ReadsWhatAPersonMayWrite) {
  const struct {
    std::string_view line;
    NamedSetting setting;
  } cases[] = {
      {R"("wnd_plot.Cur.xCat"=dword:00000002)", {u"wnd_plot.Cur.xCat", Long(2)}},
      {R"("n"=dword:fffffffb)", {u"n", {SettingKind::kLong, {0xFB, 0xFF, 0xFF, 0xFF}}}},
      {R"("n"=dword:FFFFFFFB)", {u"n", {SettingKind::kLong, {0xFB, 0xFF, 0xFF, 0xFF}}}},
      {R"("n"=dword:5)", {u"n", Long(5)}},
      {"  \"n\" =\tdword: 5 ", {u"n", Long(5)}},
      {R"("wnd_mass.Formula"="h2o")", {u"wnd_mass.Formula", String(u"h2o")}},
      {R"("s"="")", {u"s", String(u"")}},
      {R"("s"=" a = [b] ; # ")", {u"s", String(u" a = [b] ; # ")}},
      {R"("s"="a\\b\"c\u0041\u2013\uD83d")", {u"s", String(Text(u"a\\b\"cA\u2013") + Char(0xD83D))}},
      {R"("s"="a\u0000b")", {u"s", String(Text(u"a\0b", 3))}},
      {"\"s\"=\"\xC2\xB0\xE2\x80\x93\xF0\x9F\x98\x80\t\"", {u"s", String(u"\u00B0\u2013\U0001F600\t")}},
      {R"("a\"b\\c"=dword:1)", {u"a\"b\\c", Long(1)}},
      {R"(""=dword:1)", {u"", Long(1)}},
      {R"("d"=hex:00,00,00,00,00,00,e8,3f)", {u"d", {SettingKind::kBinary, {0, 0, 0, 0, 0, 0, 0xE8, 0x3F}}}},
      {R"("d"=hex: 1, A ,ff)", {u"d", {SettingKind::kBinary, {1, 0x0A, 0xFF}}}},
      {R"("d"=hex:)", {u"d", {SettingKind::kBinary, {}}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line);
    EXPECT_EQ(ParseSettingLine(c.line), c.setting);
  }
}

TEST(SettingsLineTest, RefusesADamagedLine) {
  const std::string_view lines[] = {
      "",
      "n",
      R"("n")",
      R"("n"=)",
      R"("n=dword:00000001)",
      R"(n=dword:00000001)",
      R"("n":dword:00000001)",
      R"("n"=dword:)",
      R"("n"=dword:123456789)",  // outside 32 bits
      R"("n"=dword:-5)",
      R"("n"=dword:0x5)",
      R"("n"=dword:00000001 x)",
      R"("n"=dword:g)",
      R"("n"=qword:0000000000000001)",  // a kind that is none of ours
      R"("n"=hex(2):00,00)",
      R"("n"=5)",
      R"("n"=true)",
      R"("n"=hex:00,)",
      R"("n"=hex:,00)",
      R"("n"=hex:00 00)",
      R"("n"=hex:000)",
      R"("n"=hex:0g)",
      R"("n"=hex:00,\)",
      R"("n"="open)",
      R"("n"="open\")",
      R"("n"="a"b")",
      R"("n"="a" "b")",
      R"("n"="\n")",
      R"("n"="\u12")",
      R"("n"="\u12g4")",
      R"("n"="\")",
      "\"n\"=\"\xFF\"",
      "\"n\"=\"\xC3\"",
      "\"n\"=\"\xED\xA0\x80\"",  // a surrogate has its own escape
      "\"\xFF\"=dword:00000001",
  };
  for (const std::string_view line : lines) {
    SCOPED_TRACE(line);
    EXPECT_EQ(ParseSettingLine(line), std::nullopt);
  }
}

TEST(SettingsLineTest, WritesEachKindInItsForm) {
  const Text odd = Text(u"a\\\"\n\r\t\u0001\u007F\u0085\u2028") + Char(0xDC00) + u"\U0001F600" + Char(0xD800);
  const struct {
    NamedSetting setting;
    std::string line;
  } cases[] = {
      {{u"n", Long(2)}, R"("n"=dword:00000002)"},
      {{u"n", {SettingKind::kLong, {0xFB, 0xFF, 0xFF, 0xFF}}}, R"("n"=dword:fffffffb)"},
      {{u"d", {SettingKind::kBinary, {0, 0x3F, 0xFF}}}, R"("d"=hex:00,3f,ff)"},
      {{u"d", {SettingKind::kBinary, {}}}, R"("d"=hex:)"},
      {{u"s", String(u"h\u2082o \u00B0")}, "\"s\"=\"h\xE2\x82\x82o \xC2\xB0\""},
      {{u"s", String(odd)},
       "\"s\"=\"a\\\\\\\"\\u000a\\u000d\\u0009\\u0001\\u007f\\u0085\\u2028\\udc00\xF0\x9F\x98\x80\\ud800\""},
      {{u"a\"\n", Long(1)}, R"("a\"\u000a"=dword:00000001)"},
      // Bytes that their kind cannot have are kept as bytes.
      {{u"n", {SettingKind::kLong, {1, 2}}}, R"("n"=hex:01,02)"},
      {{u"s", {SettingKind::kString, {'a', 0}}}, R"("s"=hex:61,00)"},
      {{u"s", {SettingKind::kString, {'a', 0, 0}}}, R"("s"=hex:61,00,00)"},
      {{u"s", {SettingKind::kString, {}}}, R"("s"=hex:)"},
  };
  for (const auto& c : cases) {
    const std::string line = FormatSettingLine(c.setting.name, c.setting.value);
    EXPECT_EQ(line, c.line);
    const std::optional<NamedSetting> again = ParseSettingLine(line);
    ASSERT_TRUE(again.has_value());
    EXPECT_EQ(again->name, c.setting.name);
    EXPECT_EQ(again->value.bytes, c.setting.value.bytes);
  }
}

TEST(SettingsLineTest, EveryCharacterSurvives) {
  Text all;
  for (unsigned c = 1; c <= 0xFFFF; ++c) all.push_back(static_cast<Char>(c));
  const std::optional<NamedSetting> again = ParseSettingLine(FormatSettingLine(all, String(all)));
  EXPECT_EQ(again, (NamedSetting{all, String(all)}));
}

TEST(SettingsDocumentTest, AnEmptyDocumentBecomesASection) {
  SettingsDocument document(kSection);
  EXPECT_EQ(document.Bytes(), "");
  EXPECT_EQ(document.Find(u"n"), nullptr);
  EXPECT_TRUE(document.Set(u"n", Long(1)));
  EXPECT_TRUE(document.Set(u"m", Long(2)));
  EXPECT_EQ(document.Bytes(),
            "[Software\\Zel Software\\Orvane]\n\"n\"=dword:00000001\n\"m\"=dword:00000002\n");
  ASSERT_NE(document.Find(u"m"), nullptr);
  EXPECT_EQ(*document.Find(u"m"), Long(2));
}

TEST(SettingsDocumentTest, SettingTellsWhetherSomethingChanged) {
  SettingsDocument document(u"S", "[S]\n\"n\"=dword:1\n");
  EXPECT_FALSE(document.Set(u"n", Long(1)));
  EXPECT_TRUE(document.Set(u"n", Long(2)));
  EXPECT_FALSE(document.Set(u"n", Long(2)));
  EXPECT_TRUE(document.Set(u"new", Long(3)));
  EXPECT_FALSE(document.Set(u"new", Long(3)));
  EXPECT_TRUE(document.Set(u"new", Long(4)));
  EXPECT_EQ(document.Bytes(), "[S]\n\"n\"=dword:00000002\n\"new\"=dword:00000004\n");
}

TEST(SettingsDocumentTest, WhatAPersonAddedSurvivesAtItsPlace) {
  SettingsDocument document(u"S",
                            "# my settings\n"
                            "[Other]\n"
                            "\"n\"=dword:7\n"
                            "anything \xFF here\n"
                            "\n"
                            "[S]\n"
                            "; the plot\n"
                            "\"n\"=dword:1\n"
                            "this line is damaged\n"
                            "\n"
                            "  # the rest\n"
                            "\"m\"=dword:2\n"
                            "\n"
                            "[Third]\n"
                            "\"x\"=hex(7):00\n");
  EXPECT_EQ(*document.Find(u"n"), Long(1));
  EXPECT_EQ(document.Find(u"x"), nullptr);
  document.Set(u"n", Long(5));
  document.Set(u"new", Long(6));
  EXPECT_EQ(document.Bytes(),
            "# my settings\n"
            "[Other]\n"
            "\"n\"=dword:7\n"
            "anything \xFF here\n"
            "\n"
            "[S]\n"
            "; the plot\n"
            "\"n\"=dword:00000005\n"
            "\n"
            "  # the rest\n"
            "\"m\"=dword:00000002\n"
            "\"new\"=dword:00000006\n"
            "\n"
            "[Third]\n"
            "\"x\"=hex(7):00\n");
}

TEST(SettingsDocumentTest, AnAbsentSectionIsAppended) {
  SettingsDocument document(u"S", "[Other]\n\"n\"=dword:7");
  EXPECT_EQ(document.Find(u"n"), nullptr);
  EXPECT_EQ(document.Bytes(), "[Other]\n\"n\"=dword:7\n");
  document.Set(u"n", Long(1));
  EXPECT_EQ(document.Bytes(), "[Other]\n\"n\"=dword:7\n\n[S]\n\"n\"=dword:00000001\n");
}

TEST(SettingsDocumentTest, AnEmptySectionIsFilledInItsPlace) {
  SettingsDocument document(u"S", "[S]\n; nothing yet\n[Other]\n");
  document.Set(u"n", Long(1));
  EXPECT_EQ(document.Bytes(), "[S]\n\"n\"=dword:00000001\n; nothing yet\n[Other]\n");
}

TEST(SettingsDocumentTest, OfSeveralValuesTheLastCountsAndASectionMayComeTwice) {
  SettingsDocument document(
      u"S", "[S]\n\"n\"=dword:1\n\"n\"=dword:2\n[T]\n[S]\n\"m\"=dword:3\n\"n\"=\"x\"\n\"n\"=bad\n");
  EXPECT_EQ(*document.Find(u"n"), String(u"x"));
  EXPECT_EQ(*document.Find(u"m"), Long(3));
  EXPECT_EQ(document.Bytes(), "[S]\n\"n\"=\"x\"\n[T]\n[S]\n\"m\"=dword:00000003\n");
}

TEST(SettingsDocumentTest, ForeignLineEndsAndMarksAreUnderstood) {
  SettingsDocument document(u"S", "\xEF\xBB\xBF  [S]\t\r\n\"n\"=dword:1\r\n; c\r\r\n");
  ASSERT_NE(document.Find(u"n"), nullptr);
  EXPECT_EQ(document.Bytes(), "  [S]\t\n\"n\"=dword:00000001\n; c\n");
}

TEST(SettingsDocumentTest, ValuesOutsideEverySectionAreNotOurs) {
  SettingsDocument document(u"S", "\"n\"=dword:1\n[Software\\S]\n\"n\"=dword:2\n[s]\n\"n\"=dword:3\n");
  EXPECT_EQ(document.Find(u"n"), nullptr);
}

TEST(SettingsDocumentTest, ZeroBytesAndLongLinesAreOnlyCharacters) {
  const std::string longText(100000, 'x');
  SettingsDocument document(u"S",
                            "[S]\n" + std::string("\"a\0b\"=dword:1\n", 14) + "\"s\"=\"" + longText + "\"\n");
  ASSERT_NE(document.Find(Text(u"a\0b", 3)), nullptr);
  EXPECT_EQ(document.Find(u"s")->bytes.size(), 200002u);
}

}  // namespace
}  // namespace orvane
