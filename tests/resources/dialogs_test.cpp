#include "resources/dialogs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvane {
namespace {

std::vector<std::string> Texts(const DialogResource& dialog) {
  std::vector<std::string> texts;
  for (const DialogText& text : dialog.texts) texts.push_back(ToUtf8(text.text));
  return texts;
}

TEST(Dialogs, LoadingBoxSaysWhatStartsAndThatItDoes) {
  const DialogResource* dialog = FindDialog(105);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->id, 105);
  EXPECT_EQ(dialog->face, u"Tahoma");
  EXPECT_EQ(Texts(*dialog), (std::vector<std::string>{"Orvane", std::string(28, '_'), "Loading..."}));
  EXPECT_TRUE(dialog->images.empty());
  EXPECT_TRUE(dialog->buttons.empty());
}

TEST(Dialogs, LoadingBoxStandsInTheMiddleOfTheScreen) {
  const Rect rect = FindDialog(kLoadingDialog)->rect;
  EXPECT_EQ(rect, Rect::At(40, 122, 160, 76));
  EXPECT_EQ(rect.left + rect.right, 240);
  EXPECT_EQ(rect.top + rect.bottom, 320);
}

TEST(Dialogs, AboutBoxNamesProductVersionMakerContactAndSource) {
  const DialogResource* dialog = FindDialog(106);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->id, 106);
  EXPECT_EQ(dialog->face, u"Tahoma");
  EXPECT_EQ(dialog->rect, Rect::At(0, 26, 240, 268));
  EXPECT_EQ(Texts(*dialog),
            (std::vector<std::string>{
                "Orvane", "Version 1.41 (ARM 2003)", std::string(44, '_'), "Made by the Orvane developers",
                std::string(44, '_'), "Problems and comments welcome at", "orvane@example.org",
                "Free software, distributed under the", "MIT licence from the project's page."}));
  EXPECT_TRUE(dialog->texts[0].bold);
  EXPECT_EQ(dialog->texts[0].pointSize, 21);
}

TEST(Dialogs, AboutBoxClosesByOk) {
  const std::span<const DialogButton> buttons = FindDialog(kAboutDialog)->buttons;
  ASSERT_EQ(buttons.size(), 1u);
  EXPECT_EQ(buttons[0].label, u"OK");
  EXPECT_EQ(buttons[0].id, 1);
}

// The height of a line of text in pixels: the size at 96 dpi, and 0.207 of it below the baseline.
int LineHeight(int points) {
  const int pixels = points * 96 / 72;
  return pixels + static_cast<int>(pixels * 0.207 + 0.5);
}

TEST(Dialogs, EverythingFitsIntoItsDialog) {
  for (int id : {kLoadingDialog, kAboutDialog}) {
    const DialogResource& dialog = *FindDialog(id);
    const Rect client = Rect::At(Point{}, dialog.rect.GetSize());
    for (const DialogText& text : dialog.texts) {
      EXPECT_TRUE(client.Contains(text.rect)) << ToUtf8(text.text);
      EXPECT_GE(text.rect.Height(), LineHeight(text.pointSize)) << ToUtf8(text.text);
    }
    for (const DialogImage& image : dialog.images) EXPECT_TRUE(client.Contains(image.rect));
    for (const DialogButton& button : dialog.buttons) EXPECT_TRUE(client.Contains(button.rect));
  }
}

TEST(Dialogs, UnknownNumbersNameNothing) {
  for (int id : {-1, 0, 1, 104, 107, 1092}) EXPECT_EQ(FindDialog(id), nullptr) << id;
}

}  // namespace
}  // namespace orvane
