#include "help/page_history.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane {
namespace {

// How many steps back there are, and the page of the last one.
struct WayBack {
  int steps = 0;
  int last = -1;
  bool inOrder = true;  // each step leads to the page before the one of the last step
};

WayBack GoAllTheWay(HelpHistory& history) {
  WayBack way;
  while (history.CanGoBack()) {
    const int page = history.GoBack();
    way.inOrder = way.inOrder && (way.steps == 0 || page == way.last - 1);
    way.last = page;
    ++way.steps;
  }
  return way;
}

TEST(HelpHistory, IsEmptyAtFirst) { EXPECT_FALSE(HelpHistory().CanGoBack()); }

TEST(HelpHistory, GivesBackWhatWasRecordedLast) {
  HelpHistory history;
  history.Record(7);
  history.Record(3);
  history.Record(7);
  EXPECT_EQ(history.GoBack(), 7);
  EXPECT_EQ(history.GoBack(), 3);
  EXPECT_TRUE(history.CanGoBack());
  EXPECT_EQ(history.GoBack(), 7);
  EXPECT_FALSE(history.CanGoBack());
}

TEST(HelpHistory, OfAHundredPlacesNinetyNineCanBeReached) {
  for (const int recorded : {98, 99, 100, 101, 150, 199, 200, 1000}) {
    HelpHistory history;
    for (int page = 0; page < recorded; ++page) history.Record(page);
    const WayBack way = GoAllTheWay(history);
    const int expected = recorded < 99 ? recorded : 99;
    EXPECT_EQ(way.steps, expected) << recorded;
    EXPECT_EQ(way.last, recorded - expected) << recorded;
    EXPECT_TRUE(way.inOrder) << recorded;
  }
}

TEST(HelpHistory, GoesOnAfterAWayBack) {
  HelpHistory history;
  for (int page = 0; page < 150; ++page) history.Record(page);
  for (int i = 0; i < 50; ++i) history.GoBack();
  history.Record(1000);
  EXPECT_EQ(history.GoBack(), 1000);
  EXPECT_EQ(history.GoBack(), 99);
  EXPECT_EQ(GoAllTheWay(history).steps, 48);
}

}  // namespace
}  // namespace orvane
