#include "cli/json_writer.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orvane {
namespace {

std::string Json(TextView text) {
  std::ostringstream out;
  JsonWriter(out).String(text);
  return out.str();
}

TEST(JsonWriter, EscapesWhatJsonAndTerminalsCannotHold) {
  EXPECT_EQ(Json(u""), "\"\"");
  EXPECT_EQ(Json(u"a\"b\\c"), R"("a\"b\\c")");
  EXPECT_EQ(Json(u"line\nnext\ttab"), R"("line\nnext\u0009tab")");
  EXPECT_EQ(Json(u"\u0001!bold\u0001 "), R"("\u0001!bold\u0001 ")");
  EXPECT_EQ(Json(TextView(u"\0", 1)), R"("\u0000")");
  EXPECT_EQ(Json(u"\u007F\u009F"), R"("\u007f\u009f")");
}

TEST(JsonWriter, WritesOtherCharactersAsUtf8) {
  EXPECT_EQ(Json(u"g/cm\u00B3 \u2013 \U0001F600"), "\"g/cm\xC2\xB3 \xE2\x80\x93 \xF0\x9F\x98\x80\"");
}

TEST(JsonWriter, EscapesLoneSurrogates) {
  EXPECT_EQ(Json(Text{0xD800}), R"("\ud800")");
  EXPECT_EQ(Json(Text{u'a', 0xDC00, u'b'}), R"("a\udc00b")");
  // The wrong way round, and a high one in front of a pair.
  EXPECT_EQ(Json(Text{0xDE00, 0xD83D}), R"("\ude00\ud83d")");
  EXPECT_EQ(Json(Text{0xD83D, 0xD83D, 0xDE00}), "\"\\ud83d\xF0\x9F\x98\x80\"");
}

TEST(JsonWriter, SeparatesItemsOfNestedContainers) {
  std::ostringstream out;
  JsonWriter json(out);
  json.BeginObject().Key("a").Number(-5).Key("b").BeginArray().Bool(true).Null().BeginArray().EndArray();
  json.BeginObject().EndObject().EndArray().Key("c").String(u"x").EndObject();
  EXPECT_EQ(out.str(), R"({"a":-5,"b":[true,null,[],{}],"c":"x"})");
}

}  // namespace
}  // namespace orvane
