#include "platform/box_queue.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

MessageBoxText Box(TextView text, MessageIcon icon = MessageIcon::kError) {
  return {u"Orvane", Text(text), icon};
}

TEST(BoxQueue, ShowsBoxesInTheirOrder) {
  BoxQueue queue;
  queue.Add(Box(u"a"));
  queue.Add(Box(u"b"));
  EXPECT_EQ(queue.Front().text, u"a");
  EXPECT_EQ(queue.Waiting(), 1);
  queue.RemoveFront();
  EXPECT_EQ(queue.Front().text, u"b");
  EXPECT_EQ(queue.Waiting(), 0);
  queue.RemoveFront();
  EXPECT_TRUE(queue.Empty());
  queue.RemoveFront();  // nothing there: nothing happens
  EXPECT_EQ(queue.Waiting(), 0);
}

TEST(BoxQueue, EqualSuccessorsAreKeptOnceAndComeOneByOne) {
  BoxQueue queue;
  for (int i = 0; i < 100000; ++i) queue.Add(Box(u"same"));
  queue.Add(Box(u"other"));
  EXPECT_EQ(queue.Kept(), 2u);
  EXPECT_EQ(queue.Waiting(), 100000);
  for (int i = 0; i < 100000; ++i) {
    ASSERT_EQ(queue.Front().text, u"same");
    queue.RemoveFront();
  }
  EXPECT_EQ(queue.Front().text, u"other");
}

TEST(BoxQueue, OnlyNeighboursThatAreWhollyEqualAreMerged) {
  BoxQueue queue;
  queue.Add(Box(u"a"));
  queue.Add(Box(u"b"));
  queue.Add(Box(u"a"));
  queue.Add(Box(u"a", MessageIcon::kInformation));
  queue.Add({u"Other", u"a", MessageIcon::kInformation});
  EXPECT_EQ(queue.Kept(), 5u);
}

TEST(BoxQueue, CountsDistinctBoxesBeyondItsMemory) {
  BoxQueue queue;
  constexpr int kBoxes = 100000;
  for (int i = 0; i < kBoxes; ++i) queue.Add(Box(u"Cannot read record " + DecimalText(i)));
  EXPECT_EQ(queue.Waiting(), kBoxes - 1);
  EXPECT_LT(queue.Kept(), kBoxTextBudget / kBoxEntryCharge + 2);
  EXPECT_GT(queue.Kept(), 1000u);
  long long seen = 0;
  long long lost = 0;
  for (; !queue.Empty(); queue.RemoveFront(), ++seen) {
    if (queue.Front().text == kLostBoxText) ++lost;
  }
  EXPECT_EQ(seen, kBoxes);
  EXPECT_GT(lost, 0);
}

TEST(BoxQueue, AfterTheOverflowTextsAreKeptAgain) {
  BoxQueue queue;
  for (int i = 0; i < 100000; ++i) queue.Add(Box(DecimalText(i)));
  for (int i = 0; i < 50000; ++i) queue.RemoveFront();
  queue.Add(Box(u"fresh"));
  while (queue.Waiting() > 0) queue.RemoveFront();
  EXPECT_EQ(queue.Front().text, u"fresh");
}

TEST(BoxQueue, AHugeTextIsCutAndNeverParted) {
  BoxQueue queue;
  Text text(kLongestBoxText - 1, u'x');
  text += Text{0xD83D, 0xDE00};
  queue.Add(Box(text));
  EXPECT_EQ(queue.Front().text.size(), kLongestBoxText - 1 + 3);
  EXPECT_EQ(queue.Front().text.substr(kLongestBoxText - 1), u"...");
}

TEST(BoxQueue, ClearForgetsTheCount) {
  BoxQueue queue;
  for (int i = 0; i < 5; ++i) queue.Add(Box(u"a"));
  queue.Clear();
  EXPECT_TRUE(queue.Empty());
  queue.Add(Box(u"a"));
  EXPECT_EQ(queue.Waiting(), 0);
}

}  // namespace
}  // namespace orvane
