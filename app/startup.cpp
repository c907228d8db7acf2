// From the first check to the periodic table on the screen, and from the quit message to the exit code.
#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "app/application.h"
#include "app/commands.h"
#include "framework/resource_loader.h"
#include "framework/shell_reporter.h"
#include "resources/dialogs.h"
#include "resources/images.h"
#include "resources/menus.h"

namespace orvane {

namespace {

constexpr Rect kMainWindowRect = Rect::At(0, 26, 240, 268);
constexpr Colour kMainBackground = Rgb(64, 64, 64);  // the stock dark grey

// The system would open a folder of that name too.
bool CanRead(const std::string& path) {
  std::error_code error;
  return !std::filesystem::is_directory(path, error) && std::ifstream(path, std::ios::binary).is_open();
}

}  // namespace

void Application::Start() {
  if (!FindElementsFile()) {
    withoutData_ = true;
    device_.Boxes().WhenAllDismissed([this] { device_.PostQuit(kExitNoData); });
    return;
  }
  ShowLoadingBox();
  if (!MakeMainWindow()) device_.PostQuit(kExitNoWindow);
}

bool Application::FindElementsFile() {
  const std::string path = options_.dataFolder + kElementsFile;
  if (CanRead(path)) return true;
  const TextView text = u"Elements data file cannot be found. Try to reinstall the application.\n\nFile: %s";
  device_.Boxes().Show(mainWindow_, WithText(text, FromUtf8(path)), kProgramName, MessageIcon::kError);
  return false;
}

void Application::ShowLoadingBox() {
  if (const auto dialog = LoadResourceDialog(device_, kLoadingDialog, "loading")) {
    loadingBox_ = device_.DialogBoxes().Create(*dialog);
  }
  if (loadingBox_ == kNoDialog) {
    // The text has always spoken of a menu window; people who search for it find it.
    device_.Boxes().Show(mainWindow_, u"Failed to create menu window.", u"", MessageIcon::kNone);
    return;
  }
  device_.DialogBoxes().Show(loadingBox_, true);
  device_.PresentNow();
}

void Application::HideLoadingBox() {
  device_.DialogBoxes().Show(loadingBox_, false);
  device_.DialogBoxes().Destroy(loadingBox_);
  loadingBox_ = kNoDialog;
}

bool Application::MakeMainWindow() {
  WindowClass windowClass;
  windowClass.name = Text(kMainWindowClass);
  windowClass.icon = kApplicationIcon;
  windowClass.background = kMainBackground;
  windowClass.procedure = [this](WindowHandle window, std::uint32_t message, WParam w, LParam l) {
    return OnMainMessage(window, message, w, l);
  };
  device_.RegisterWindowClass(std::move(windowClass));
  CreateParams params;
  params.className = Text(kMainWindowClass);
  params.title = Text(kProgramName);
  params.style = WS_VISIBLE;
  params.rect = kMainWindowRect;
  return device_.CreateWindow(params) != kNoWindow;
}

// Runs inside the main window's creation.
void Application::InitApp() {
  registry_.SetKey(kSettingsKey);
  LoadElements();
  LoadSharedBitmaps();
  MakePopupBar();
  MakeTools();
  MakeMainBar();
  SetShortcuts();
  device_.ShowWindow(mainWindow_, true);
  device_.Update(mainWindow_);
  if (ZelWindow* periodic = Tool(ToolSlot::kPeriodic)) periodic->Show();
  HideLoadingBox();
}

// A failure has been reported by then; the program goes on with what was loaded.
void Application::LoadElements() {
  ShellReporter reporter(*this);
  elements_.Load(options_.dataFolder + kElementsFile, reporter);
  elementTable_ = ElementTable::From(elements_.Symbol(), elements_.AtomicMass());
}

void Application::LoadSharedBitmaps() {
  for (std::size_t i = 0; i < icons_.size(); ++i) icons_[i].Load(kSharedIcons[i].image, kSharedIcons[i].mask);
  titleStrip_.Load(kTitleStrip, kNoImage);
  separator_.Load(kSeparatorLine, kNoImage);
  backBuffer_.CreateBlank(kScreenSize.width, kScreenSize.height);
}

// This bar never shows: it holds the menus that the tools open.
void Application::MakePopupBar() {
  popupBar_ =
      device_.Bars().Create(mainWindow_, kBarHidden | kBarWithoutPanelButton, LoadResourceBar(kPopupMenu));
  if (popupBar_ == kNoBar)
    Tell(u"Orvane::InitApp - SHCreateMenuBar Failed - IDR_POPUP (1)", MessageIcon::kError);
}

void Application::MakeTools() {
  const ToolContext context{*this, elements_, elementTable_, *this, options_.dataFolder};
  for (std::size_t i = 0; i < options_.tools.size(); ++i) {
    if (options_.tools[i]) tools_[i] = options_.tools[i](context);
  }
}

void Application::MakeMainBar() {
  mainBar_ = device_.Bars().Create(mainWindow_, kBarHidden, LoadResourceBar(kMainMenu));
  if (mainBar_ == kNoBar)
    Tell(u"Orvane::InitApp - SHCreateMenuBar Failed - IDR_MAIN (2)", MessageIcon::kError);
  DisableAbsentScreens();
  device_.Bars().SetImages(mainBar_, LoadResourceStrip(device_, kBarImages));
  device_.Bars().Show(mainBar_, true);
}

void Application::DisableAbsentScreens() {
  for (int position = 0; position < device_.Bars().Count(mainBar_); ++position) {
    Menu* menu = device_.Bars().ButtonMenu(mainBar_, position);
    if (!menu) continue;
    for (const MenuItem& item : menu->Items()) {
      const std::optional<ToolSlot> needed = NeededTool(item.id);
      if (needed && !Tool(*needed)) menu->Enable(item.id, false);
    }
  }
}

void Application::SetShortcuts() {
  constexpr Modifiers kControl{.shift = false, .control = true, .alt = false};
  device_.SetAccelerators({{VK_F1, {}, mainWindow_, kCommandHelp},
                           {'Q', kControl, mainWindow_, kCommandExit},
                           {'C', kControl, mainWindow_, kCommandCopy},
                           {'V', kControl, mainWindow_, kCommandPaste},
                           {VK_ESCAPE, {}, mainWindow_, kCommandClose}});
}

void Application::AfterStep() {
  if (ended_ || !device_.QuitCode()) return;
  CleanUp();
  // Without its data the start has failed, even when the end comes before the box is dismissed.
  ended_ = withoutData_ ? kExitNoData : *device_.QuitCode();
}

void Application::CleanUp() {
  if (loadingBox_ != kNoDialog) HideLoadingBox();
  HideAllBut(nullptr);
  DestroyTools();
  backBuffer_.Destroy();
  for (Bitmap& icon : icons_) icon.Destroy();
  device_.Bars().Destroy(popupBar_);
  device_.Bars().Destroy(mainBar_);
  device_.SetMainWindow(kNoWindow);
  device_.DestroyWindow(mainWindow_);
  CloseWhatIsOpen();
  elements_.Free();
}

// Boxes, the dialog, the menu and the input panel go with the window that they belonged to.
void Application::CloseWhatIsOpen() {
  device_.Popups().Close();
  device_.Boxes().DismissAll();
  while (device_.DialogBoxes().ModalOpen() && device_.DialogBoxes().DismissFront()) {
  }
  device_.Panel().Request(false);
}

void Application::DestroyTools() {
  constexpr std::array kOrder{
      ToolSlot::kPeriodic,  ToolSlot::kElement,    ToolSlot::kMass, ToolSlot::kFind,
      ToolSlot::kSeries,    ToolSlot::kBalancer,   ToolSlot::kPlot, ToolSlot::kPlotSettings,
      ToolSlot::kConstants, ToolSlot::kHelpViewer,
  };
  for (const ToolSlot slot : kOrder) Made(slot) = MadeTool();
}

}  // namespace orvane
