#include <gtest/gtest.h>

#include "tests/platform/chrome_test_bed.h"

namespace orvane::chrome_test {
namespace {

struct PanelBed : Bed {
  explicit PanelBed(PanelMode mode = PanelMode::kAlways) : Bed(mode) {}
  InputPanel& Panel() { return Get().Panel(); }
  // Taps the keys with these labels.
  void Press(std::initializer_list<const char*> labels) {
    for (const char* label : labels) Tap(LabelPoint(*this, "panel", label));
  }
  std::string Typed() const {
    Text text;
    for (const Noted& noted : Of(WM_CHAR)) text += static_cast<Char>(noted.w);
    return ToUtf8(text);
  }
};

// Keys without a label, by their places.
constexpr Point kBackspace{230, 214 + 24};
constexpr Point kEnter{225, 214 + 40};
constexpr Point kSpace{110, 214 + 72};
constexpr Point kUp{210, 214 + 56};
constexpr Point kLeft{190, 214 + 72};
constexpr Point kDown{210, 214 + 72};
constexpr Point kRight{230, 214 + 72};

TEST(InputPanel, StandsAboveTheWindowsWhenRaised) {
  PanelBed bed;
  EXPECT_FALSE(bed.Panel().Visible());
  bed.Panel().Toggle();
  bed.Step();
  EXPECT_TRUE(bed.Panel().Visible());
  EXPECT_TRUE(bed.Shows("panel", "q"));
  EXPECT_EQ(bed.host.Pixel(120, 213), 0xFFFFFFu);  // the window
  EXPECT_NE(bed.host.Pixel(120, 214), 0xFFFFFFu);  // the panel's edge
  bed.Panel().Toggle();
  bed.Step();
  EXPECT_FALSE(bed.Shows("panel", "q"));
}

TEST(InputPanel, EachChangeTellsTheMainWindow) {
  PanelBed bed;
  bed.Panel().Request(true);
  bed.Panel().Request(true);
  // Not at once: the asking often comes from the middle of a change of focus.
  EXPECT_TRUE(bed.Of(WM_SETTINGCHANGE).empty());
  bed.Step();
  ASSERT_EQ(bed.Of(WM_SETTINGCHANGE).size(), 1u);
  EXPECT_EQ(bed.Of(WM_SETTINGCHANGE)[0].window, bed.main);
  bed.Panel().Request(false);
  bed.Panel().Request(false);
  bed.Step();
  EXPECT_EQ(bed.Of(WM_SETTINGCHANGE).size(), 2u);
}

TEST(InputPanel, NeverIsNotRaisedByAskingButByItsButton) {
  PanelBed bed(PanelMode::kNever);
  bed.Panel().Request(true);
  EXPECT_FALSE(bed.Panel().Visible());
  bed.Panel().Toggle();
  EXPECT_TRUE(bed.Panel().Visible());
  bed.Panel().Request(false);
  EXPECT_FALSE(bed.Panel().Visible());
}

TEST(InputPanel, AutoIsRaisedAfterATouchOnly) {
  PanelBed bed(PanelMode::kAuto);
  bed.Tap({100, 100}, PointerKind::kMouse);
  bed.Panel().Request(true);
  EXPECT_FALSE(bed.Panel().Visible());
  bed.Tap({100, 100}, PointerKind::kTouch);
  bed.Panel().Request(true);
  EXPECT_TRUE(bed.Panel().Visible());
  bed.Panel().Request(false);
  bed.Key('A');
  bed.Panel().Request(true);
  EXPECT_FALSE(bed.Panel().Visible());
}

TEST(InputPanel, ItsOwnKeysCountAsTouches) {
  PanelBed bed(PanelMode::kAuto);
  bed.Panel().Toggle();
  // The first message that a key causes makes the rest of it wait in the queue.
  bed.whenNoted = [&bed](const Noted& noted) {
    if (noted.message == WM_KEYDOWN) bed.Get().Post(bed.tool, WM_TIMER);
  };
  const Point key = LabelPoint(bed, "panel", "h");
  const Point shift = LabelPoint(bed, "panel", "Shift");
  bed.Tap(shift, PointerKind::kTouch);
  bed.Tap(key, PointerKind::kTouch);
  EXPECT_TRUE(bed.Get().LastPressWasTouch());
  bed.Panel().Request(false);
  bed.Panel().Request(true);
  EXPECT_TRUE(bed.Panel().Visible());
}

TEST(InputPanel, AKeySendsWhatARealOneSends) {
  PanelBed bed;
  bed.Panel().Toggle();
  bed.Step();
  bed.notes.clear();
  bed.Press({"h"});
  ASSERT_EQ(bed.notes.size(), 3u);
  EXPECT_EQ(bed.notes[0].message, WM_KEYDOWN);
  EXPECT_EQ(bed.notes[0].w, WParam{'H'});
  EXPECT_EQ(bed.notes[1].message, WM_CHAR);
  EXPECT_EQ(bed.notes[1].w, WParam{u'h'});
  EXPECT_EQ(bed.notes[2].message, WM_KEYUP);
  for (const Noted& noted : bed.notes) EXPECT_EQ(noted.window, bed.tool);
}

TEST(InputPanel, TypesAFormula) {
  PanelBed bed;
  bed.Panel().Toggle();
  bed.Press({"c", "a", "(", "o", "h", ")", "2", "+", "-", ".", ",", ";"});
  EXPECT_EQ(bed.Typed(), "ca(oh)2+-.,;");
}

TEST(InputPanel, ShiftActsOnOneKeyAndCanBeTakenBack) {
  PanelBed bed;
  bed.Panel().Toggle();
  bed.Press({"Shift", "N", "a"});
  bed.Press({"Shift", "Shift", "c"});
  EXPECT_EQ(bed.Typed(), "Nac");
}

TEST(InputPanel, CapsHoldsAndShiftTurnsItRound) {
  PanelBed bed;
  bed.Panel().Toggle();
  bed.Press({"Caps", "N", "A", "2", "Shift", "c", "L", "Caps", "x"});
  EXPECT_EQ(bed.Typed(), "NA2cLx");
}

TEST(InputPanel, TheSymbolPageHasItsOwnCharacters) {
  PanelBed bed;
  bed.Panel().Toggle();
  bed.Press({"°±α", "·", "μ", "abc", "a"});
  EXPECT_EQ(bed.Typed(), "·μa");
}

TEST(InputPanel, EditingKeysSendTheirCodes) {
  PanelBed bed;
  bed.Panel().Toggle();
  for (const Point key : {kLeft, kRight, kUp, kDown, kBackspace, kEnter, kSpace}) bed.Tap(key);
  std::vector<int> keys;
  for (const Noted& noted : bed.Of(WM_KEYDOWN)) keys.push_back(static_cast<int>(noted.w));
  EXPECT_EQ(keys, (std::vector<int>{VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_BACK, VK_RETURN, VK_SPACE}));
  EXPECT_EQ(bed.Typed(), "\b\r ");
}

TEST(InputPanel, ShiftWithAnArrowHoldsTheShiftKeyDown) {
  PanelBed bed;
  bed.Panel().Toggle();
  bool shiftDown = false;
  bed.whenNoted = [&](const Noted& noted) {
    if (noted.message == WM_KEYDOWN && noted.w == VK_LEFT) shiftDown = bed.Get().IsKeyDown(VK_SHIFT);
  };
  bed.Press({"Shift"});
  bed.Tap(kLeft);
  EXPECT_TRUE(shiftDown);
  EXPECT_FALSE(bed.Get().IsKeyDown(VK_SHIFT));
}

TEST(InputPanel, TheKeyUnderThePenIsMarkedAndTheLastOneCounts) {
  PanelBed bed;
  bed.Panel().Toggle();
  const Point q = LabelPoint(bed, "panel", "q");
  const Point w = LabelPoint(bed, "panel", "w");
  bed.Get().PenDown(q);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(2, 232), 0x00428Au);
  bed.Get().PenMove(w);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(2, 232), 0xFFFFFFu);
  EXPECT_EQ(bed.Typed(), "");
  bed.Get().PenUp(w);
  bed.Step();
  EXPECT_EQ(bed.Typed(), "w");
}

TEST(InputPanel, APenLiftedBesideThePanelTypesNothing) {
  PanelBed bed;
  bed.Panel().Toggle();
  bed.Get().PenDown(LabelPoint(bed, "panel", "q"));
  bed.Get().PenMove({100, 100});
  bed.Get().PenUp({100, 100});
  bed.Step();
  EXPECT_EQ(bed.Typed(), "");
  EXPECT_TRUE(bed.Of(WM_LBUTTONUP).empty());
}

TEST(InputPanel, TheFocusStaysAndTheKeysFollowIt) {
  PanelBed bed;
  bed.Panel().Toggle();
  const WindowHandle other = bed.MakeTool(u"Other");
  bed.Get().SetFocus(other);
  bed.Press({"x"});
  ASSERT_EQ(bed.Of(WM_CHAR).size(), 1u);
  EXPECT_EQ(bed.Of(WM_CHAR)[0].window, other);
  EXPECT_EQ(bed.Get().Focus(), other);
}

TEST(InputPanel, AKeyMayLowerThePanelOrEndTheWindow) {
  PanelBed bed;
  bed.Panel().Toggle();
  bed.whenNoted = [&bed](const Noted& noted) {
    if (noted.message != WM_KEYDOWN) return;
    bed.Panel().Request(false);
    bed.Get().DestroyWindow(bed.tool);
  };
  bed.Press({"x"});
  EXPECT_FALSE(bed.Panel().Visible());
  EXPECT_TRUE(bed.Of(WM_CHAR).empty());
}

TEST(InputPanel, ComesUpWithoutShiftAgain) {
  PanelBed bed;
  bed.Panel().Toggle();
  bed.Press({"Shift"});
  bed.Panel().Toggle();
  bed.Panel().Toggle();
  bed.Press({"a"});
  EXPECT_EQ(bed.Typed(), "a");
}

}  // namespace
}  // namespace orvane::chrome_test
