#include <gtest/gtest.h>

#include "tests/platform/chrome_test_bed.h"

namespace orvane::chrome_test {
namespace {

DialogTemplate Loading() {
  DialogTemplate shape;
  shape.name = "loading";
  shape.rect = Rect::At(40, 122, 160, 76);
  shape.labels = {{Rect::At(10, 11, 140, 19), u"Orvane", u"Tahoma", 12, true, Align::kCentre, kBlack}};
  return shape;
}

DialogTemplate About() {
  DialogTemplate shape;
  shape.name = "about";
  shape.rect = kClientArea;
  shape.background = Rgb(1, 2, 3);
  shape.labels = {{Rect::At(10, 20, 220, 14), u"left", u"Tahoma", 9, false, Align::kLeft, kBlack},
                  {Rect::At(10, 40, 220, 14), u"right", u"Tahoma", 9, false, Align::kRight, kBlack}};
  shape.buttons = {{Rect::At(90, 232, 60, 22), u"OK", 1}, {Rect::At(10, 232, 60, 22), u"Other", 2}};
  return shape;
}

struct DialogBed : Bed {
  Dialogs& All() { return Get().DialogBoxes(); }
};

TEST(Dialog, AModelessOneIsHiddenUntilItIsShown) {
  DialogBed bed;
  const DialogHandle loading = bed.All().Create(Loading());
  EXPECT_NE(loading, kNoDialog);
  EXPECT_EQ(bed.All().FrontName(), "");
  bed.All().Show(loading, true);
  bed.Step();
  EXPECT_EQ(bed.All().FrontName(), "loading");
  EXPECT_TRUE(bed.Shows("dialog", "Orvane"));
  bed.All().Show(loading, false);
  bed.Step();
  EXPECT_EQ(bed.All().FrontName(), "");
  EXPECT_FALSE(bed.Shows("dialog", "Orvane"));
}

TEST(Dialog, AModelessOneTakesNoInputBesideIt) {
  DialogBed bed;
  bed.All().Show(bed.All().Create(Loading()), true);
  EXPECT_FALSE(bed.All().ModalOpen());
  EXPECT_FALSE(bed.All().DismissFront());
  bed.Tap({10, 40});
  EXPECT_EQ(bed.Of(WM_LBUTTONDOWN).size(), 1u);
  bed.Key(VK_RETURN);
  EXPECT_EQ(bed.Of(WM_KEYDOWN).size(), 1u);
  EXPECT_EQ(bed.All().FrontName(), "loading");
}

TEST(Dialog, AModalOneTakesAllInput) {
  DialogBed bed;
  bed.All().ShowModal(About());
  EXPECT_TRUE(bed.All().ModalOpen());
  bed.Tap({10, 40});
  bed.Tap({227, 13});  // the title's close box
  bed.Key('A');
  bed.Get().Character(u'a');
  bed.Step();
  EXPECT_TRUE(bed.notes.empty());
  EXPECT_EQ(bed.All().FrontName(), "about");
}

TEST(Dialog, ItsButtonClosesItWhenThePenIsLiftedInIt) {
  DialogBed bed;
  bed.All().ShowModal(About());
  const Point ok = LabelPoint(bed, "dialog", "OK");
  bed.Get().PenDown(ok);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(ok.x - 20, ok.y), 0x00428Au);
  bed.Get().PenMove({10, 60});
  bed.Get().PenUp({10, 60});
  EXPECT_TRUE(bed.All().ModalOpen());
  bed.Tap(ok);
  EXPECT_FALSE(bed.All().ModalOpen());
  EXPECT_EQ(bed.All().FrontName(), "");
}

TEST(Dialog, EnterAndEscapePressItsFirstButton) {
  DialogBed bed;
  for (const int key : {VK_RETURN, VK_ESCAPE}) {
    bed.All().ShowModal(About());
    bed.Key(key);
    EXPECT_FALSE(bed.All().ModalOpen());
  }
  EXPECT_TRUE(bed.Of(WM_KEYDOWN).empty());
}

TEST(Dialog, TextsStandAsTheTemplateSays) {
  DialogBed bed;
  bed.All().ShowModal(About());
  bed.Step();
  bool left = false;
  bool right = false;
  for (const ScreenRun& run : bed.Get().VisibleRuns()) {
    if (run.window != "dialog") continue;
    EXPECT_EQ(run.run.font.pixels, 12);
    if (run.run.text == u"left") left = run.run.rect.TopLeft() == Point{10, 26 + 20};
    if (run.run.text == u"right") right = run.run.rect.right == 230 && run.run.rect.top == 26 + 40;
  }
  EXPECT_TRUE(left);
  EXPECT_TRUE(right);
  EXPECT_EQ(bed.host.Pixel(5, 100), 0x010203u);
}

TEST(Dialog, TheOneBelowStandsThereAgain) {
  DialogBed bed;
  bed.All().Show(bed.All().Create(Loading()), true);
  bed.All().ShowModal(About());
  EXPECT_EQ(bed.All().FrontName(), "about");
  EXPECT_TRUE(bed.All().DismissFront());
  EXPECT_EQ(bed.All().FrontName(), "loading");
}

TEST(Dialog, AMessageBoxAboveItIsAnsweredFirst) {
  DialogBed bed;
  bed.All().ShowModal(About());
  bed.Get().Boxes().Show(bed.main, u"text", u"", MessageIcon::kNone);
  EXPECT_FALSE(bed.All().DismissFront());
  bed.Key(VK_RETURN);
  EXPECT_TRUE(bed.All().ModalOpen());
  EXPECT_TRUE(bed.All().DismissFront());
}

TEST(Dialog, CallsOnDialogsThatDoNotExistDoNothing) {
  DialogBed bed;
  bed.All().Show(5, true);
  bed.All().Destroy(5);
  const DialogHandle about = bed.All().ShowModal(About());
  bed.Get().PenDown(LabelPoint(bed, "dialog", "OK"));
  bed.All().Destroy(about);
  bed.All().Destroy(about);
  bed.Get().PenUp({120, 26 + 243});
  EXPECT_EQ(bed.All().FrontName(), "");
}

}  // namespace
}  // namespace orvane::chrome_test
