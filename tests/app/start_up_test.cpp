// From the first check to the first tool on the screen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/app_bed.h"
#include "tests/data/dat_builder.h"

namespace orvane::app_test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(StartUp, TheLoadingBoxIsOnTheScreenBeforeThereIsAMainWindow) {
  Bed bed;
  bed.App().Start();
  ASSERT_GE(bed.log.size(), 2u);
  EXPECT_EQ(bed.log[0], "frame: Orvane ____________________________ Loading... (no main window)");
  EXPECT_EQ(bed.log[1], "main window created");
}

TEST(StartUp, TheLoadingBoxStaysUntilTheFirstToolHasCome) {
  Bed bed;
  std::string whileMade;
  std::string whileShown;
  bed.whenMade = [&](ToolSlot) {
    whileMade = bed.TheDevice().DialogBoxes().FrontName();
    for (const ScreenRun& run : bed.TheDevice().VisibleRuns()) EXPECT_EQ(run.run.font.face, u"Tahoma");
  };
  bed.PartOf(ToolSlot::kPeriodic).whenShown = [&] { whileShown = bed.TheDevice().DialogBoxes().FrontName(); };
  bed.Start();
  EXPECT_EQ(whileMade, "loading");
  EXPECT_EQ(whileShown, "loading");
  EXPECT_EQ(bed.TheDevice().DialogBoxes().FrontName(), "");
  EXPECT_THAT(bed.Texts("dialog"), IsEmpty());
}

TEST(StartUp, TheMainWindowStandsBelowTheTitleArea) {
  Bed bed;
  bed.Start();
  Device& device = bed.TheDevice();
  const WindowHandle main = bed.App().MainWindow();
  EXPECT_EQ(device.FindWindow(u"BrixWindowCls", u"Orvane"), main);
  EXPECT_EQ(device.MainWindow(), main);
  EXPECT_EQ(device.WindowRect(main), Rect::At(0, 26, 240, 268));
  EXPECT_EQ(device.ScreenRect(main), Rect::At(0, 26, 240, 268));
  EXPECT_EQ(device.Title(main), u"Orvane");
  EXPECT_EQ(device.Style(main), WS_VISIBLE);
  EXPECT_EQ(device.ClassIcon(main), 102);
  EXPECT_EQ(device.Parent(main), kNoWindow);
  EXPECT_TRUE(device.IsVisible(main));
}

TEST(StartUp, TheMainWindowIsDarkGreyWhereNoToolCoversIt) {
  Bed bed({.absent = {ToolSlot::kPeriodic}});
  bed.Start();
  EXPECT_EQ(bed.host.PixelAt({120, 150}, 1), Rgb(64, 64, 64));
  EXPECT_EQ(bed.host.PixelAt({0, 26}, 1), Rgb(64, 64, 64));
  EXPECT_EQ(bed.host.PixelAt({239, 293}, 1), Rgb(64, 64, 64));
}

TEST(StartUp, TheMainWindowIsPaintedBeforeTheFirstToolComes) {
  Bed bed;
  std::optional<Rect> left;
  bed.PartOf(ToolSlot::kPeriodic).whenShown = [&] {
    left = bed.TheDevice().InvalidRect(bed.App().MainWindow());
  };
  bed.Start();
  ASSERT_TRUE(left.has_value());
  EXPECT_TRUE(left->Empty());
}

TEST(StartUp, EverythingIsMadeInItsOrder) {
  Bed bed;
  bed.Start();
  // The pop-up bar (flags 6) before the tools, which take their menus from it; the main bar (flags 2) after.
  EXPECT_THAT(Steps(bed.log),
              ElementsAre("main window created", "bar create 1 7 6", "make helpView", "make wnd_element",
                          "make wnd_periodic", "make wnd_find", "make wnd_mass", "make wnd_series",
                          "make wnd_balancer", "make wnd_plot", "make wnd_plotset", "make wnd_const",
                          "bar create 2 3 2", "bar images 2 23 0", "bar show 2 0 0", "show wnd_periodic"));
}

TEST(StartUp, ToolsFindEverythingReadyWhenTheyAreMade) {
  Bed bed;
  bool checked = false;
  bed.whenMade = [&](ToolSlot slot) {
    if (slot != ToolSlot::kHelpViewer) return;
    checked = true;
    Application& app = bed.App();
    EXPECT_NE(app.MainWindow(), kNoWindow);
    ASSERT_NE(app.Elements().Symbol(), nullptr);
    EXPECT_EQ(app.Elements().Symbol()->Value(111), u"Uub");
    EXPECT_EQ(app.BackBuffer().Width(), 240);
    EXPECT_EQ(app.BackBuffer().Height(), 320);
    EXPECT_TRUE(app.SeparatorBitmap().HasImage());
    EXPECT_FALSE(app.SeparatorBitmap().HasMask());
    EXPECT_EQ(app.PopupMenu(0).Count(), 5);
    EXPECT_EQ(app.MainBar(), kNoBar);
    app.Settings().Open();
    app.Settings().WriteLong(u"test.Value", 7);
    app.Settings().Close();
  };
  bed.Start();
  EXPECT_TRUE(checked);
  ASSERT_TRUE(bed.settings.OpenKey(u"Software\\Zel Software\\Orvane"));
  EXPECT_NE(bed.settings.Find(u"test.Value"), nullptr);
}

TEST(StartUp, ThePeriodicTableIsTheFirstToolAndTheOnlyOneVisible) {
  Bed bed;
  bed.Start();
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
  EXPECT_EQ(bed.App().CurrentTool(), bed.Tool(ToolSlot::kPeriodic).Handle());
  EXPECT_EQ(bed.App().HelpTopic(), 0);
  EXPECT_EQ(bed.App().SelectedElement(), -1);
  EXPECT_EQ(bed.App().Ended(), std::nullopt);
  for (const ToolSlot slot : kAllSlots) {
    EXPECT_EQ(bed.TheDevice().ScreenRect(bed.Tool(slot).Handle()), Rect::At(0, 26, 240, 268));
  }
}

TEST(StartUp, TheMainBarHasTwoMenusASeparatorAndTheInputPanelsButton) {
  Bed bed;
  bed.Start();
  const std::vector<BarButtonPlace> places = bed.Bars().Places();
  ASSERT_EQ(places.size(), 3u);
  EXPECT_EQ(bed.Bars().Shown(), bed.App().MainBar());
  EXPECT_EQ(places[0].button.label, u"App");
  EXPECT_EQ(places[0].button.style, ButtonStyle::kMenu);
  EXPECT_EQ(places[1].button.label, u"Tools");
  EXPECT_EQ(places[1].button.style, ButtonStyle::kMenu);
  EXPECT_EQ(places[2].button.style, ButtonStyle::kSeparator);
  EXPECT_TRUE(bed.Bars().HasPanelButton());
}

TEST(StartUp, ThePopUpMenusKeepTheirOrderAndTheirMarks) {
  Bed bed;
  bed.Start();
  const int counts[] = {5, 3, 7, 6, 11, 6, 7};
  const int firstIds[] = {40049, 40054, 40206, 40153, 40177, 40176, 40199};
  for (int position = 0; position < 7; ++position) {
    const Menu& menu = bed.App().PopupMenu(position);
    ASSERT_EQ(menu.Count(), counts[position]) << position;
    EXPECT_EQ(menu.Items()[0].id, firstIds[position]);
  }
  EXPECT_EQ(bed.App().PopupMenu(7).Count(), 0);
  EXPECT_EQ(bed.App().PopupMenu(-1).Count(), 0);
  bed.App().PopupMenu(1).CheckAt(2, true);
  EXPECT_TRUE(bed.App().PopupMenu(1).Items()[2].checked);
}

TEST(StartUp, BarButtonsTakeTheirPicturesFromTheStrip) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).buttons = {500};
  bed.Start();
  // A bar without pictures would leave the button as plain as the bar itself.
  const Rect rect = bed.Bars().Places().at(3).rect;
  bool drawn = false;
  for (int y = rect.top + 5; y < rect.bottom - 5; ++y) {
    for (int x = rect.left + 4; x < rect.left + 20; ++x) {
      const Colour at = bed.host.PixelAt({x, y}, 1);
      drawn = drawn || at.red < 150;
    }
  }
  EXPECT_TRUE(drawn);
}

// --- What can go wrong.

std::string MissingText(const std::string& folder) {
  return "Elements data file cannot be found. Try to reinstall the application.\n\nFile: " + folder +
         "periodic.dat";
}

TEST(StartUpFailure, WithoutTheElementsThereIsOneMessageAndNothingElse) {
  const testing::TempFolder empty;
  const std::string folder = empty.Path().string() + "/";
  Bed bed({.data = folder});
  bed.Start();
  EXPECT_THAT(Only(bed.log, "box"), ElementsAre("box error|Orvane|" + MissingText(folder)));
  EXPECT_THAT(Only(bed.log, "bar"), IsEmpty());
  EXPECT_THAT(Only(bed.log, "make"), IsEmpty());
  EXPECT_THAT(bed.TheDevice().VisibleWindows(), IsEmpty());
  EXPECT_THAT(bed.Texts("dialog"), IsEmpty());
  EXPECT_EQ(bed.App().MainWindow(), kNoWindow);
}

TEST(StartUpFailure, WithoutTheElementsItEndsWithOneOnceTheMessageIsDismissed) {
  const testing::TempFolder empty;
  Bed bed({.data = empty.Path().string() + "/"});
  bed.Start();
  bed.Settle();
  EXPECT_EQ(bed.App().Ended(), std::nullopt);
  bed.TheDevice().Boxes().Dismiss();
  bed.Settle();
  EXPECT_EQ(bed.App().Ended(), 1);
}

TEST(StartUpFailure, ClosingFromOutsideDismissesTheMessage) {
  const testing::TempFolder empty;
  Bed bed({.data = empty.Path().string() + "/"});
  bed.Start();
  bed.TheDevice().CloseFromOutside();
  bed.Settle();
  EXPECT_EQ(bed.App().Ended(), 1);
}

TEST(StartUpFailure, AFolderOfTheNameIsNoFile) {
  const testing::TempFolder folder;
  std::filesystem::create_directory(folder.Path() / "periodic.dat");
  Bed bed({.data = folder.Path().string() + "/"});
  bed.Start();
  EXPECT_THAT(Only(bed.log, "box"),
              ElementsAre("box error|Orvane|" + MissingText(folder.Path().string() + "/")));
}

TEST(StartUpFailure, APathLongerThanTheHandHeldsIsShownWhole) {
  const std::string folder = "/" + std::string(200, 'a') + "/" + std::string(200, 'b') + "/";
  Bed bed({.data = folder});
  bed.Start();
  EXPECT_EQ(ToUtf8(bed.TheDevice().Boxes().Front().text), MissingText(folder));
}

TEST(StartUpFailure, APathIsNeverReadAsATemplate) {
  const std::string folder = "/nowhere/%s%d%n/";
  Bed bed({.data = folder});
  bed.Start();
  EXPECT_EQ(ToUtf8(bed.TheDevice().Boxes().Front().text), MissingText(folder));
}

TEST(StartUpFailure, AFileOfAnotherKindDoesNotStopTheStart) {
  const testing::TempFolder folder;
  testing::WriteBytes(folder.File("periodic.dat"), "no elements at all");
  Bed bed({.data = folder.Path().string() + "/"});
  bed.Start();
  EXPECT_THAT(Only(bed.log, "box"),
              ElementsAre("box error|Orvane|The elements database file is corrupted. Some of the features "
                          "will not be available. Try to reinstall the application.\n\nFile: " +
                          folder.File("periodic.dat")));
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
  EXPECT_EQ(bed.App().Elements().CategoryCount(), 0);
}

TEST(StartUpFailure, AFileThatEndsEarlyLeavesWhatWasRead) {
  const testing::TempFolder folder;
  testing::DatWriter writer;
  writer.PeriodicHeader(2).Category(u"General", 1).Property(0, u"Symbol", false, u"", 1).Value(1, u"H");
  writer.Save(folder.File("periodic.dat"));
  Bed bed({.data = folder.Path().string() + "/"});
  bed.Start();
  EXPECT_THAT(Only(bed.log, "box"), Contains(::testing::StartsWith("box error|Orvane|ZelBinary::")));
  ASSERT_NE(bed.App().Elements().Symbol(), nullptr);
  EXPECT_EQ(bed.App().Elements().Symbol()->Value(0), u"H");
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
}

// Dialogs that cannot be made.
class NoDialogs : public DialogLayer {
 public:
  DialogHandle Create(const DialogTemplate&) override { return kNoDialog; }
  void Show(DialogHandle, bool) override {}
  void Destroy(DialogHandle) override {}
  DialogHandle ShowModal(const DialogTemplate&) override { return kNoDialog; }
  std::string FrontName() const override { return {}; }
  bool DismissFront() override { return false; }
  std::string_view Name() const override { return "dialog"; }
  bool Visible() const override { return false; }
  Rect Bounds() const override { return {}; }
  void Paint(Canvas&) override {}
};

TEST(StartUpFailure, WithoutTheLoadingBoxTheStartGoesOn) {
  BedOptions options;
  options.factories.dialog = [](Device&) { return std::make_unique<NoDialogs>(); };
  Bed bed(std::move(options));
  bed.Start();
  EXPECT_THAT(Only(bed.log, "box"), ElementsAre("box none||Failed to create menu window."));
  EXPECT_TRUE(InOrder(bed.log, "box none||Failed to create menu window.", "main window created"));
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
}

// Bars of which those with the given flags cannot be made.
class FewerBars : public BarLayer {
 public:
  FewerBars(std::unique_ptr<BarLayer> bars, std::vector<int> refused)
      : bars_(std::move(bars)), refused_(std::move(refused)) {}

  BarHandle Create(WindowHandle owner, int flags, std::vector<BarButton> buttons) override {
    for (const int flag : refused_) {
      if (flag == flags) return kNoBar;
    }
    return bars_->Create(owner, flags, std::move(buttons));
  }
  void Destroy(BarHandle bar) override { bars_->Destroy(bar); }
  void Show(BarHandle bar, bool visible) override { bars_->Show(bar, visible); }
  void SetImages(BarHandle bar, std::vector<std::shared_ptr<const Image>> cells) override {
    bars_->SetImages(bar, std::move(cells));
  }
  void Insert(BarHandle bar, int position, BarButton button) override {
    bars_->Insert(bar, position, std::move(button));
  }
  void Delete(BarHandle bar, int position) override { bars_->Delete(bar, position); }
  void Enable(BarHandle bar, int id, bool enabled) override { bars_->Enable(bar, id, enabled); }
  void Check(BarHandle bar, int id, bool checked) override { bars_->Check(bar, id, checked); }
  int Count(BarHandle bar) const override { return bars_->Count(bar); }
  Menu* ButtonMenu(BarHandle bar, int position) override { return bars_->ButtonMenu(bar, position); }
  BarHandle Shown() const override { return bars_->Shown(); }
  std::vector<BarButtonPlace> Places() const override { return bars_->Places(); }
  bool HasPanelButton() const override { return bars_->HasPanelButton(); }
  Rect PanelButtonRect() const override { return bars_->PanelButtonRect(); }
  bool Press(int id) override { return bars_->Press(id); }
  bool PressPanelButton() override { return bars_->PressPanelButton(); }
  bool OpenMenu(int position) override { return bars_->OpenMenu(position); }
  std::string_view Name() const override { return "bar"; }
  bool Visible() const override { return true; }
  Rect Bounds() const override { return kBarArea; }
  void Paint(Canvas& canvas) override { bars_->Paint(canvas); }

 private:
  std::unique_ptr<BarLayer> bars_;
  std::vector<int> refused_;
};

BedOptions Refusing(const std::vector<int>& flags) {
  BedOptions options;
  options.factories.bar = [flags](Device& device) {
    return std::make_unique<FewerBars>(MakeBarLayer(device), flags);
  };
  return options;
}

TEST(StartUpFailure, WithoutThePopUpBarToolsGetEmptyMenus) {
  Bed bed(Refusing({6}));
  bed.Start();
  EXPECT_THAT(Only(bed.log, "box"),
              ElementsAre("box error|Orvane|Orvane::InitApp - SHCreateMenuBar Failed - IDR_POPUP (1)"));
  for (int position = 0; position < 7; ++position) {
    EXPECT_EQ(bed.App().PopupMenu(position).Count(), 0);
    bed.App().PopupMenu(position).Append({.id = 1000, .label = u"Nowhere", .submenu = {}});
  }
  EXPECT_EQ(bed.BarIds().size(), 3u);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
}

TEST(StartUpFailure, WithoutTheMainBarToolsStillSwitch) {
  Bed bed(Refusing({2}));
  bed.PartOf(ToolSlot::kPeriodic).buttons = {1, 2};
  bed.Start();
  EXPECT_THAT(Only(bed.log, "box"),
              ElementsAre("box error|Orvane|Orvane::InitApp - SHCreateMenuBar Failed - IDR_MAIN (2)"));
  EXPECT_EQ(bed.Bars().Shown(), kNoBar);
  bed.Command(40007);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_mass"));
}

TEST(StartUpFailure, WithoutAnyBarBothMessagesCome) {
  Bed bed(Refusing({2, 6}));
  bed.Start();
  EXPECT_EQ(ToUtf8(bed.TheDevice().Boxes().Front().text),
            "Orvane::InitApp - SHCreateMenuBar Failed - IDR_POPUP (1)");
  bed.TheDevice().Boxes().Dismiss();
  EXPECT_EQ(ToUtf8(bed.TheDevice().Boxes().Front().text),
            "Orvane::InitApp - SHCreateMenuBar Failed - IDR_MAIN (2)");
  bed.TheDevice().Boxes().Dismiss();
  bed.Settle();
  EXPECT_FALSE(bed.TheDevice().Boxes().Open());
  bed.Command(40016);
  EXPECT_EQ(bed.App().Ended(), 0);
}

// The name is taken by a class whose windows refuse to be made.
TEST(StartUpFailure, WithoutAMainWindowItEndsWithTwoAndWithoutAMessage) {
  Bed bed;
  WindowClass refusing;
  refusing.name = Text(kMainWindowClass);
  refusing.procedure = [](WindowHandle, std::uint32_t message, WParam, LParam) -> Result {
    return message == WM_CREATE ? -1 : 0;
  };
  bed.TheDevice().RegisterWindowClass(refusing);
  bed.Start();
  EXPECT_EQ(bed.App().Ended(), 2);
  EXPECT_THAT(Only(bed.log, "box"), IsEmpty());
  EXPECT_EQ(bed.TheDevice().DialogBoxes().FrontName(), "");
}

TEST(StartUp, TwoHandHeldsInOneProgramKnowNothingOfEachOther) {
  Bed one;
  Bed two;
  one.Start();
  two.Start();
  one.Command(40007);
  EXPECT_THAT(one.VisibleTools(), ElementsAre("wnd_mass"));
  EXPECT_THAT(two.VisibleTools(), ElementsAre("wnd_periodic"));
  one.App().SetHelpTopic(12);
  EXPECT_EQ(two.App().HelpTopic(), 0);
  one.Command(40016);
  EXPECT_EQ(one.App().Ended(), 0);
  EXPECT_EQ(two.App().Ended(), std::nullopt);
  two.Command(40008);
  EXPECT_THAT(two.VisibleTools(), ElementsAre("wnd_periodic"));
}

}  // namespace
}  // namespace orvane::app_test
