#include "tools/const_text.h"

#include <gtest/gtest.h>

#include "tools/const_settings.h"

namespace orvane {
namespace {

TEST(ConstantInFull, JoinsSymbolValueUnitsAndRemark) {
  EXPECT_EQ(ConstantInFull({u"name", u"c", u"3\u00D710\u0001\u00A08", u"m", u"exact"}),
            u"c\u0001  = 3\u00D710\u0001\u00A08\u0001  m\u0001 \nexact");
}

TEST(ConstantInFull, LeavesOutWhatIsEmpty) {
  EXPECT_EQ(ConstantInFull({u"name", u"", u"42", u"", u""}), u"42");
  EXPECT_EQ(ConstantInFull({u"name", u"c", u"42", u"", u""}), u"c\u0001  = 42");
  EXPECT_EQ(ConstantInFull({u"name", u"", u"42", u"m", u""}), u"42\u0001  m");
  EXPECT_EQ(ConstantInFull({u"name", u"", u"42", u"", u"exact"}), u"42\u0001 \nexact");
  EXPECT_EQ(ConstantInFull({u"name", u"", u"", u"", u""}), u"");
}

TEST(ConstantInFull, MayBeLongerThanAnyField) {
  const Text longest(254, u'x');
  EXPECT_EQ(ConstantInFull({longest, longest, longest, longest, longest}).size(), 4 * 254u + 5u + 3u + 3u);
}

TEST(ValueForClipboard, WritesWhatOtherProgramsRead) {
  const struct {
    TextView value;
    TextView copied;
  } cases[] = {
      {u"6.022\u00D710\u0001\u00A023", u"6.022*10^23"},
      {u"1.6\u00D710\u0001\u00A0\u201319\u0001 ", u"1.6*10^-19"},
      {u"3.1\u20134.4", u"3.1-4.4"},
      {u"\u0001!1\u0001`2\u0001\u00A03\u0001 4", u"12^34"},
      {u"299 792 458", u"299 792 458"},
      {u"", u""},
      {u"1\u0001", u"1"},
      {u"\u0001\u00A0", u"^"},
      {u"\u03B1\u0002", u"\u03B1\u0002"},
      {u"\u0001\u00D7\u00D7", u"*"},
      {u"\u0001\u0001\u00A0", u"\u00A0"},
  };
  for (const auto& c : cases) EXPECT_EQ(ValueForClipboard(c.value), c.copied) << ToUtf8(c.copied);
}

TEST(ValueForClipboard, IsAField) {
  EXPECT_EQ(ValueForClipboard(Text(300, u'1')).size(), 254u);
  EXPECT_EQ(ValueForClipboard(Text(254, u'\u00D7')), Text(254, u'*'));
}

TEST(ConstSettings, BeginWithTheNamesAtAFixedWidth) {
  const ConstSettings settings;
  EXPECT_EQ(settings.category, 0);
  EXPECT_TRUE(settings.showTitle);
  EXPECT_FALSE(settings.columns[0].autoSize);
  EXPECT_EQ(settings.columns[0].width, 100);
  for (std::size_t i = 1; i < kConstColumns; ++i) {
    EXPECT_TRUE(settings.columns[i].autoSize);
    EXPECT_EQ(settings.columns[i].width, 10);
  }
  for (const ConstColumn& column : settings.columns) EXPECT_TRUE(column.visible);
}

}  // namespace
}  // namespace orvane
