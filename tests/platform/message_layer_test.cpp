#include <gtest/gtest.h>

#include "tests/platform/chrome_test_bed.h"

namespace orvane::chrome_test {
namespace {

struct BoxBed : Bed {
  MessageBoxes& Boxes() { return Get().Boxes(); }
  void Show(TextView text, MessageIcon icon = MessageIcon::kError) {
    Boxes().Show(main, text, u"Orvane", icon);
  }
};

TEST(MessageBox, ShowsCaptionTextAndButton) {
  BoxBed bed;
  bed.Show(u"First line.\nSecond line.");
  bed.Step();
  EXPECT_TRUE(bed.Boxes().Open());
  EXPECT_EQ(bed.Boxes().Front().text, u"First line.\nSecond line.");
  EXPECT_EQ(bed.Shown("message"), (std::vector<std::string>{"Orvane", "First line.", "Second line.", "OK"}));
  EXPECT_EQ(bed.trace.boxes, (std::vector<std::string>{"error|Orvane|First line.\nSecond line."}));
}

TEST(MessageBox, EachIconHasItsOwnSign) {
  const std::vector<std::pair<MessageIcon, std::uint32_t>> signs{{MessageIcon::kError, 0xCE342Cu},
                                                                 {MessageIcon::kExclamation, 0xF5B52Eu},
                                                                 {MessageIcon::kInformation, 0x0079FFu},
                                                                 {MessageIcon::kNone, 0xF0FAFFu}};
  for (const auto& [icon, colour] : signs) {
    BoxBed bed;
    bed.Show(u"text", icon);
    const Point text = LabelPoint(bed, "message", "text");
    // The sign is 24 high beside the middle of the text and 10 from the box's edge, which is 6 from the
    // screen's.
    EXPECT_EQ(bed.host.Pixel(16 + 6, text.y + 7), colour) << static_cast<int>(icon);
  }
}

TEST(MessageBox, OkIsPressedByPen) {
  BoxBed bed;
  bed.Show(u"text");
  const Point ok = LabelPoint(bed, "message", "OK");
  bed.Get().PenDown(ok);
  bed.Get().PenMove({2, 2});
  bed.Get().PenUp({2, 2});
  EXPECT_TRUE(bed.Boxes().Open());
  bed.Tap(ok);
  EXPECT_FALSE(bed.Boxes().Open());
  EXPECT_TRUE(bed.Of(WM_LBUTTONDOWN).empty());
}

TEST(MessageBox, ThePressedButtonShowsIt) {
  BoxBed bed;
  bed.Show(u"text");
  const Point ok = LabelPoint(bed, "message", "OK");
  bed.Get().PenDown({ok.x - 20, ok.y});
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(ok.x - 25, ok.y), 0x00428Au);
}

TEST(MessageBox, ATapOutsideDoesNothing) {
  BoxBed bed;
  bed.Show(u"text");
  bed.Tap({120, 20});
  bed.Tap({120, 310});
  bed.Tap(LabelPoint(bed, "message", "text"));
  EXPECT_TRUE(bed.Boxes().Open());
  EXPECT_TRUE(bed.Of(WM_LBUTTONDOWN).empty());
}

TEST(MessageBox, EnterEscapeAndSpaceDismiss) {
  BoxBed bed;
  for (const int key : {VK_RETURN, VK_ESCAPE, VK_SPACE}) {
    bed.Show(u"text");
    bed.Key(key);
    EXPECT_FALSE(bed.Boxes().Open()) << key;
  }
  EXPECT_TRUE(bed.Of(WM_KEYDOWN).empty());
  EXPECT_TRUE(bed.Of(WM_KEYUP).empty());
}

TEST(MessageBox, TheSpaceThatDismissesIsNotTyped) {
  BoxBed bed;
  bed.Show(u"text");
  bed.Get().KeyDown(VK_SPACE, {});
  bed.Get().Character(u' ');
  bed.Get().KeyUp(VK_SPACE, {});
  bed.Get().Character(u'h');  // typed afterwards
  bed.Step();
  ASSERT_EQ(bed.Of(WM_CHAR).size(), 1u);
  EXPECT_EQ(bed.Of(WM_CHAR)[0].w, WParam{u'h'});
}

TEST(MessageBox, OtherKeysDoNotReachTheWindowNorDismiss) {
  BoxBed bed;
  bed.Show(u"text");
  bed.Key('A');
  bed.Get().Character(u'a');
  bed.Step();
  EXPECT_TRUE(bed.Boxes().Open());
  EXPECT_TRUE(bed.Of(WM_KEYDOWN).empty());
  EXPECT_TRUE(bed.Of(WM_CHAR).empty());
}

TEST(MessageBox, BoxesQueueAndAreShownOneByOne) {
  BoxBed bed;
  bed.Show(u"a");
  bed.Show(u"a");
  bed.Show(u"b");
  EXPECT_EQ(bed.Boxes().Waiting(), 2);
  EXPECT_EQ(bed.trace.boxes.size(), 1u);
  bed.Step();
  EXPECT_TRUE(bed.Shows("message", "2 more"));
  bed.Boxes().Dismiss();
  EXPECT_EQ(bed.Boxes().Front().text, u"a");
  bed.Boxes().Dismiss();
  EXPECT_EQ(bed.Boxes().Front().text, u"b");
  bed.Step();
  EXPECT_FALSE(bed.Shows("message", "0 more"));
  bed.Boxes().Dismiss();
  bed.Boxes().Dismiss();
  EXPECT_FALSE(bed.Boxes().Open());
  EXPECT_EQ(bed.trace.boxes,
            (std::vector<std::string>{"error|Orvane|a", "error|Orvane|a", "error|Orvane|b"}));
}

TEST(MessageBox, DismissAllIsOfferedWhenMoreThanTenWait) {
  BoxBed bed;
  for (int i = 0; i < 11; ++i) bed.Show(u"text");
  bed.Step();
  EXPECT_EQ(bed.Boxes().Waiting(), 10);
  EXPECT_FALSE(bed.Boxes().OffersDismissAll());
  EXPECT_FALSE(bed.Shows("message", "Dismiss all"));
  bed.Show(u"text");
  bed.Step();
  EXPECT_TRUE(bed.Boxes().OffersDismissAll());
  bed.Tap(LabelPoint(bed, "message", "Dismiss all"));
  EXPECT_FALSE(bed.Boxes().Open());
}

TEST(MessageBox, DismissAllIsReachedByKeys) {
  BoxBed bed;
  for (int i = 0; i < 12; ++i) bed.Show(u"text");
  bed.Key(VK_TAB);
  bed.Key(VK_TAB);
  bed.Key(VK_RETURN);
  EXPECT_EQ(bed.Boxes().Waiting(), 10);
  for (int i = 0; i < 2; ++i) bed.Show(u"text");
  bed.Key(VK_RIGHT);
  bed.Key(VK_RETURN);
  EXPECT_FALSE(bed.Boxes().Open());
}

TEST(MessageBox, ActionsRunOnceWhenTheLastBoxIsDismissed) {
  BoxBed bed;
  int runs = 0;
  bed.Show(u"a");
  bed.Show(u"b");
  bed.Boxes().WhenAllDismissed([&runs] { ++runs; });
  bed.Step();
  bed.Boxes().Dismiss();
  bed.Step();
  EXPECT_EQ(runs, 0);
  bed.Boxes().Dismiss();
  EXPECT_EQ(runs, 0);  // in the next step
  EXPECT_FALSE(bed.Get().Quiescent());
  bed.Step();
  EXPECT_EQ(runs, 1);
  bed.Show(u"c");
  bed.Boxes().Dismiss();
  bed.Step();
  EXPECT_EQ(runs, 1);
}

TEST(MessageBox, AnActionRunsAtTheNextStepWhenNoBoxWaits) {
  BoxBed bed;
  int runs = 0;
  bed.Boxes().WhenAllDismissed([&] {
    if (++runs == 1) bed.Boxes().WhenAllDismissed([&runs] { ++runs; });
  });
  EXPECT_EQ(runs, 0);
  bed.Step();
  EXPECT_EQ(runs, 2);
}

TEST(MessageBox, AnActionMayEndTheProgram) {
  BoxBed bed;
  bed.Show(u"missing");
  bed.Boxes().WhenAllDismissed([&bed] { bed.Get().PostQuit(1); });
  bed.Key(VK_RETURN);
  EXPECT_EQ(bed.Get().QuitCode(), 1);
}

struct LongBoxBed : BoxBed {
  LongBoxBed() {
    Text text;
    for (int i = 0; i < 50; ++i) text += u"Line " + DecimalText(i) + u"\n";
    Show(text);
    Step();
  }
};

TEST(MessageBox, LongTextScrollsByKeys) {
  LongBoxBed bed;
  EXPECT_TRUE(bed.Shows("message", "Line 0"));
  EXPECT_FALSE(bed.Shows("message", "Line 40"));
  bed.Key(VK_DOWN);
  EXPECT_FALSE(bed.Shows("message", "Line 0"));
  EXPECT_TRUE(bed.Shows("message", "Line 1"));
  bed.Key(VK_UP);
  EXPECT_TRUE(bed.Shows("message", "Line 0"));
  bed.Key(VK_NEXT);
  EXPECT_TRUE(bed.Shows("message", "Line 20"));
  bed.Key(VK_PRIOR);
  bed.Key(VK_END);
  EXPECT_TRUE(bed.Shows("message", "Line 49"));
  bed.Key(VK_HOME);
  EXPECT_TRUE(bed.Shows("message", "Line 0"));
}

TEST(MessageBox, LongTextScrollsByWheelAndPen) {
  LongBoxBed bed;
  bed.Get().Wheel({120, 150}, -1, false);
  bed.Step();
  EXPECT_FALSE(bed.Shows("message", "Line 2"));
  EXPECT_TRUE(bed.Shows("message", "Line 3"));
  bed.Get().Wheel({120, 150}, 5, false);
  bed.Step();
  EXPECT_TRUE(bed.Shows("message", "Line 0"));
  bed.Get().PenDown({120, 150});
  bed.Get().PenMove({120, 150 - 32});
  bed.Get().PenUp({120, 150 - 32});
  bed.Step();
  EXPECT_FALSE(bed.Shows("message", "Line 1"));
  EXPECT_TRUE(bed.Shows("message", "Line 2"));
}

TEST(MessageBox, AHundredThousandBoxesAreNoBurden) {
  BoxBed bed;
  for (int i = 0; i < 100000; ++i) bed.Show(u"Cannot read record " + DecimalText(i));
  bed.Step();
  EXPECT_EQ(bed.Boxes().Waiting(), 99999);
  EXPECT_TRUE(bed.Shows("message", "99999 more"));
  bed.Boxes().DismissAll();
  EXPECT_EQ(bed.trace.boxes.size(), 1u);
}

TEST(MessageBox, ItsOwnerMayGo) {
  BoxBed bed;
  bed.Show(u"text");
  bed.Get().DestroyWindow(bed.main);
  bed.Step();
  EXPECT_TRUE(bed.Boxes().Open());
  bed.Key(VK_RETURN);
  EXPECT_FALSE(bed.Boxes().Open());
}

TEST(MessageBox, APenThatIsDownWhenTheBoxChangesPressesNothing) {
  BoxBed bed;
  bed.Show(u"a");
  bed.Show(u"b");
  const Point ok = LabelPoint(bed, "message", "OK");
  bed.Get().PenDown(ok);
  bed.Key(VK_RETURN);
  bed.Get().PenUp(ok);
  EXPECT_EQ(bed.Boxes().Front().text, u"b");
}

}  // namespace
}  // namespace orvane::chrome_test
