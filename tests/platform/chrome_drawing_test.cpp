#include "platform/chrome_drawing.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

// Every unit is 6 wide, but a low surrogate, which has no width of its own.
class SixWide : public Font {
 public:
  const FontSpec& Spec() const override { return spec_; }
  int Ascent() const override { return 10; }
  int Descent() const override { return 2; }
  void AppendWidths(TextView text, std::vector<int>& widths) const override {
    for (const Char c : text) widths.push_back(IsLowSurrogate(c) ? 0 : 6);
  }
  int TextWidth(TextView text) const override {
    int width = 0;
    for (const Char c : text) width += IsLowSurrogate(c) ? 0 : 6;
    return width;
  }

 private:
  FontSpec spec_;
};

TEST(FitText, ATextThatFitsStaysAsItIs) {
  EXPECT_EQ(FitText(u"Periodic", SixWide(), 48), u"Periodic");
  EXPECT_EQ(FitText(u"", SixWide(), 0), u"");
}

TEST(FitText, AWiderOneEndsWithAnEllipsis) {
  EXPECT_EQ(FitText(u"Periodic", SixWide(), 47), u"Peri...");
  EXPECT_EQ(FitText(u"Periodic", SixWide(), 18), u"...");
  EXPECT_EQ(FitText(u"Periodic", SixWide(), 0), u"...");
}

TEST(FitText, APairIsNotParted) {
  const Text text{u'a', 0xD83D, 0xDE00, u'b', u'c', u'd', u'e'};
  EXPECT_EQ(FitText(text, SixWide(), 30), (Text{u'a', 0xD83D, 0xDE00} + u"..."));
  EXPECT_EQ(FitText(text, SixWide(), 29), u"a...");
}

}  // namespace
}  // namespace orvane
