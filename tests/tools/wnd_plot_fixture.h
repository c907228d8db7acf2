// The quick plot on a hand-held of its own, with a made-up database (plot_database.h).
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/framework/test_shell.h"
#include "tests/tools/plot_database.h"
#include "tests/tools/recording_navigator.h"
#include "tools/wnd_plot.h"

namespace orvane::testing {

using Calls = std::vector<std::string>;

// In client points of the plot; the tool stands 26 below the screen's top.
class WndPlotTest : public ::testing::Test {
 protected:
  explicit WndPlotTest(double scale = 1)
      : shell_({.scale = scale, .recordRuns = true, .panelMode = PanelMode::kAlways}) {
    LoadPlotDatabase(elements_);
  }

  void Make() { tool_ = MakeWindow<wnd_plot>(shell_, elements_, navigator_); }
  void Show() {
    tool_->Show();
    shell_.Settle();
    shell_.Trace().messages.clear();
  }
  void MakeAndShow() {
    Make();
    Show();
  }
  // The five elements of the places, with or without lines, in a view of 0..240 and these bounds: by default
  // each stands at its place.
  void StorePlaces(bool lines, double low = -268, double high = 0) {
    ZelRegistry& r = shell_.Settings();
    r.Open();
    r.WriteBool(u"wnd_plot.Cur.ShowLines", lines);
    r.WriteLong(u"wnd_plot.Cur.xCat", 3);
    r.WriteLong(u"wnd_plot.Cur.xVal", 0);
    r.WriteLong(u"wnd_plot.Cur.yCat", 3);
    r.WriteLong(u"wnd_plot.Cur.yVal", 1);
    r.WriteString(u"wnd_plot.Cur.xFilter", u"");
    r.WriteDouble(u"wnd_plot.Cur.xcMin", 0);
    r.WriteDouble(u"wnd_plot.Cur.xcMax", 240);
    r.WriteDouble(u"wnd_plot.Cur.ycMin", low);
    r.WriteDouble(u"wnd_plot.Cur.ycMax", high);
    r.Close();
  }
  void MakeAndShowPlaces(bool lines = true) {
    StorePlaces(lines);
    MakeAndShow();
    for (int i = 0; i < 5; ++i) ASSERT_EQ(GetPlot().PlaceOf(i), kPlaces[i]);
  }

  Device& GetDevice() { return shell_.GetDevice(); }
  const PlotState& State() const { return tool_->State(); }
  const Plot& GetPlot() const { return State().GetPlot(); }
  bool Label(int element) const { return State().Look().labels[static_cast<std::size_t>(element)]; }
  std::uint32_t At(int x, int y) const { return shell_.Pixel({x, 26 + y}); }

  void Command(int command) {
    GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(command, 0));
    shell_.Settle();
  }
  // As the main window passes on a button of the menu bar.
  void Button(int command) {
    GetDevice().Send(tool_->Handle(), kToolCommand, static_cast<WParam>(command), kFromMenu);
    shell_.Settle();
  }
  void Tap(Point point) {
    shell_.Tap(tool_->Handle(), point);
    shell_.Settle();
  }
  void Stroke(const std::vector<Point>& points) {
    shell_.Stroke(tool_->Handle(), points);
    shell_.Settle();
  }
  // Begins a stroke and leaves the pen down.
  void Press(const std::vector<Point>& points) {
    GetDevice().PenDown(shell_.OnScreen(tool_->Handle(), points.front()));
    for (std::size_t i = 1; i < points.size(); ++i) {
      GetDevice().PenMove(shell_.OnScreen(tool_->Handle(), points[i]));
    }
    shell_.Settle();
  }
  void Release(Point point) {
    GetDevice().PenUp(shell_.OnScreen(tool_->Handle(), point));
    shell_.Settle();
  }
  void Key(int key) {
    GetDevice().KeyDown(key, {});
    GetDevice().KeyUp(key, {});
    shell_.Settle();
  }
  void Type(Char character) {
    GetDevice().Character(character);
    shell_.Settle();
  }
  // The commands that are marked in the open menu: "40199*" with a dot, "40203+" with a tick.
  Calls Marks() {
    Calls marks;
    for (const MenuItem& item : GetDevice().Popups().Current().Items()) {
      if (item.checked) marks.push_back(std::to_string(item.id) + (item.radio ? "*" : "+"));
    }
    return marks;
  }
  // The texts on the plot with their places: "E3 40,46".
  Calls Texts() {
    Calls texts;
    for (const ScreenRun& run : GetDevice().VisibleRuns()) {
      if (run.handle != tool_->Handle()) continue;
      texts.push_back(ToUtf8(run.run.text) + " " + std::to_string(run.run.rect.left) + "," +
                      std::to_string(run.run.rect.top - 26));
    }
    return texts;
  }
  void ExpectView(double xLow, double xHigh, double yLow, double yHigh) {
    EXPECT_NEAR(GetPlot().View().x.low, xLow, 1e-9);
    EXPECT_NEAR(GetPlot().View().x.high, xHigh, 1e-9);
    EXPECT_NEAR(GetPlot().View().y.low, yLow, 1e-9);
    EXPECT_NEAR(GetPlot().View().y.high, yHigh, 1e-9);
  }

  TestShell shell_;
  ElementsDatabase elements_;
  RecordingNavigator navigator_;
  std::unique_ptr<wnd_plot> tool_;
};

}  // namespace orvane::testing
