#include "framework/resource_loader.h"

#include <gtest/gtest.h>

#include "resources/dialogs.h"
#include "tests/framework/test_shell.h"

namespace orvane {
namespace {

using testing::TestShell;

TEST(ResourceLoaderTest, AMenuHasItsEntriesSeparatorsAndSubMenus) {
  const Menu menu = LoadResourceMenu(kPopupMenu);
  ASSERT_EQ(menu.Count(), 7);
  const std::vector<MenuItem>& sizes = menu.Items()[kPteSizeMenu].submenu;
  EXPECT_EQ(menu.Items()[kPteSizeMenu].label, u"PTE size");
  ASSERT_EQ(sizes.size(), 5u);
  EXPECT_EQ(sizes[0].label, u"Narrow mode");
  EXPECT_EQ(sizes[0].id, 40049);
  EXPECT_TRUE(sizes[0].enabled);
  EXPECT_FALSE(sizes[0].checked);
  EXPECT_FALSE(sizes[0].separator);
  EXPECT_TRUE(sizes[2].separator);
  EXPECT_EQ(sizes[4].id, 40018);
  EXPECT_EQ(LoadResourceMenu(9999).Count(), 0);
}

TEST(ResourceLoaderTest, TheMainBarHasTwoMenusAndASeparator) {
  const std::vector<BarButton> bar = LoadResourceBar(kMainMenu);
  ASSERT_EQ(bar.size(), 3u);
  EXPECT_EQ(bar[0].style, ButtonStyle::kMenu);
  EXPECT_EQ(bar[0].label, u"App");
  ASSERT_EQ(bar[0].menu.Count(), 3);
  EXPECT_EQ(bar[0].menu.Items()[0].id, 40017);
  EXPECT_EQ(bar[1].label, u"Tools");
  EXPECT_EQ(bar[1].menu.Count(), 9);
  EXPECT_EQ(bar[2].style, ButtonStyle::kSeparator);
  EXPECT_EQ(bar[2].menu.Count(), 0);
}

TEST(ResourceLoaderTest, AToolsBarHasOnePlaceholder) {
  const std::vector<BarButton> bar = LoadResourceBar(kToolBar);
  ASSERT_EQ(bar.size(), 1u);
  EXPECT_EQ(bar[0].style, ButtonStyle::kPush);
  EXPECT_EQ(bar[0].menu.Count(), 0);
  EXPECT_TRUE(LoadResourceBar(9999).empty());
}

TEST(ResourceLoaderTest, ImagesAndStripsComeByTheirNumbers) {
  TestShell shell;
  Device& device = shell.GetDevice();
  ASSERT_NE(LoadResourceImage(device, kTitleStrip), nullptr);
  EXPECT_EQ(LoadResourceImage(device, kTitleStrip)->GetSize(), (Size{240, 23}));
  EXPECT_EQ(LoadResourceImage(device, 9999), nullptr);
  EXPECT_EQ(LoadResourceImage(device, kBarImages), nullptr);  // a strip is no image
  EXPECT_EQ(LoadResourceStrip(device, kBarImages).size(), 23u);
  for (const auto& cell : LoadResourceStrip(device, kBarImages)) EXPECT_EQ(cell->GetSize(), (Size{16, 16}));
  EXPECT_EQ(LoadResourceStrip(device, kContentsImages).size(), 5u);
  EXPECT_TRUE(LoadResourceStrip(device, 9999).empty());
}

TEST(ResourceLoaderTest, ADialogHasItsTextsPicturesAndButtons) {
  TestShell shell;
  const auto loading = LoadResourceDialog(shell.GetDevice(), kLoadingDialog, "loading");
  ASSERT_TRUE(loading.has_value());
  EXPECT_EQ(loading->name, "loading");
  EXPECT_EQ(loading->rect, Rect::At(40, 122, 160, 76));  // in the middle of 240 × 320
  ASSERT_EQ(loading->labels.size(), 3u);
  EXPECT_EQ(loading->labels[0].text, u"Orvane");
  EXPECT_TRUE(loading->labels[0].bold);
  EXPECT_EQ(loading->labels[0].points, 12);
  EXPECT_EQ(loading->labels[0].face, u"Tahoma");
  EXPECT_EQ(loading->labels[0].align, Align::kCentre);
  EXPECT_EQ(loading->labels[2].text, u"Loading...");
  EXPECT_TRUE(loading->buttons.empty());
  const auto about = LoadResourceDialog(shell.GetDevice(), kAboutDialog, "about");
  ASSERT_TRUE(about.has_value());
  ASSERT_EQ(about->pictures.size(), 1u);
  EXPECT_NE(about->pictures[0].image, nullptr);
  ASSERT_EQ(about->buttons.size(), 1u);
  EXPECT_EQ(about->buttons[0].label, u"OK");
  EXPECT_EQ(about->buttons[0].id, kOkButton);
  EXPECT_FALSE(LoadResourceDialog(shell.GetDevice(), 9999, "none").has_value());
}

}  // namespace
}  // namespace orvane
