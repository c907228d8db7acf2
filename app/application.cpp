// What the application offers to its windows. Start-up, commands and the end have files of their own.
#include "app/application.h"

#include <utility>

namespace orvane {

namespace {

// Positions 0 to 2 of the main bar hold App, Tools and a separator.
constexpr int kFirstAddedButton = 3;

constexpr int kTitleTop = 2;
constexpr Rect kBelowTitle{0, 23, 240, 268};
constexpr Colour kToolBackground = Rgb(230, 242, 255);

}  // namespace

Application::Application(Device& device, SettingsStore& store, ApplicationOptions options)
    : device_(device),
      options_(std::move(options)),
      registry_(store),
      icons_{Bitmap(device), Bitmap(device), Bitmap(device), Bitmap(device), Bitmap(device), Bitmap(device)},
      titleStrip_(device),
      separator_(device),
      backBuffer_(device) {}

Application::~Application() {
  if (!ended_) CleanUp();
}

void Application::AddBarButton(int id, int image, int string, int state, ButtonStyle style) {
  BarButton button;
  button.id = id;
  button.image = image;
  button.state = state;
  button.style = style;
  static_cast<void>(string);  // the bars hold no strings: every added button shows its image
  device_.Bars().Insert(mainBar_, kFirstAddedButton + addedButtons_, std::move(button));
  ++addedButtons_;
}

void Application::RemoveAddedButtons() {
  for (; addedButtons_ > 0; --addedButtons_) device_.Bars().Delete(mainBar_, kFirstAddedButton);
}

void Application::EnableBarButton(int id, bool enabled) { device_.Bars().Enable(mainBar_, id, enabled); }

void Application::CheckBarButton(int id, bool checked) { device_.Bars().Check(mainBar_, id, checked); }

void Application::DrawSharedIcon(Canvas& canvas, int centreX, int centreY, int icon) {
  if (icon < 1 || icon > kSharedIconCount) return;
  const Bitmap& bitmap = icons_[static_cast<std::size_t>(icon - 1)];
  bitmap.DrawMasked(canvas, centreX - bitmap.Width() / 2, centreY - bitmap.Height() / 2);
}

void Application::DrawTitleStrip(Canvas& canvas, const FontFamily& family, TextView title, bool clearBelow,
                                 bool bold) {
  titleStrip_.Draw(canvas, 0, 0);
  engine_.SetTextColour(kBlack);
  engine_.SelectFontFamily(&family);
  engine_.SetTextStyle(bold, false);
  const int width = engine_.MeasureText(title).width;
  engine_.DrawText(canvas, title, (kScreenSize.width - width) / 2, kTitleTop);
  engine_.SetTextStyle(false, false);
  if (clearBelow) canvas.FillRect(kBelowTitle, kToolBackground);
}

Menu& Application::PopupMenu(int position) {
  if (Menu* menu = device_.Bars().ButtonMenu(popupBar_, position)) return *menu;
  noMenu_ = Menu();  // what was appended to it is not kept
  return noMenu_;
}

void Application::Tell(TextView text, MessageIcon icon) {
  device_.Boxes().Show(mainWindow_, text, kProgramName, icon);
}

}  // namespace orvane
