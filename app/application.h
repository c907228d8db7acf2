// The program: start-up, the main window with its commands, what is there once (database, tool stack, back
// buffer, current tool, help topic), and the end. One object is one run on one device.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "app/tool_set.h"
#include "data/elements_database.h"
#include "data/zel_registry.h"
#include "framework/shell.h"
#include "framework/standard_commands.h"

namespace orvane {

// The main window's class and the key under which all settings are kept.
inline constexpr TextView kMainWindowClass = u"BrixWindowCls";
inline constexpr TextView kSettingsKey = u"Software\\Zel Software\\Orvane";

// Exit codes.
inline constexpr int kExitNormal = 0;
inline constexpr int kExitNoData = 1;
inline constexpr int kExitNoWindow = 2;

struct ApplicationOptions {
  std::string dataFolder;  // with a slash at its end; the data files are looked for here
  ToolMakers tools;
};

class Application : public Shell, public Navigator {
 public:
  // The device and the store outlive the program.
  Application(Device& device, SettingsStore& store, ApplicationOptions options);
  ~Application() override;

  // Everything up to the message loop: checks for the elements' file, shows the loading box, makes the main
  // window, which makes everything else, and shows the periodic table. Without the file there is only a
  // message box; the program ends when it is dismissed.
  void Start();
  // To be called after every step of the device: once that has quit, cleans up and ends.
  void AfterStep();
  // The exit code of a program that has ended.
  std::optional<int> Ended() const { return ended_; }

  WindowHandle CurrentTool() const { return currentTool_; }
  const ElementsDatabase& Elements() const { return elements_; }
  // Null when the program has no such screen.
  ZelWindow* Tool(ToolSlot slot) const { return Made(slot).window.get(); }
  BarHandle MainBar() const { return mainBar_; }

  // Shell
  Device& GetDevice() override { return device_; }
  ToolStack& Tools() override { return stack_; }
  TextEngine& Engine() override { return engine_; }
  ZelRegistry& Settings() override { return registry_; }
  WindowHandle MainWindow() const override { return mainWindow_; }
  Bitmap& BackBuffer() override { return backBuffer_; }
  const Bitmap& SeparatorBitmap() const override { return separator_; }
  void SetHelpTopic(int page) override { helpTopic_ = page; }
  int HelpTopic() const override { return helpTopic_; }
  void SetCurrentTool(WindowHandle tool) override { currentTool_ = tool; }
  void AddBarButton(int id, int image, int string, int state, ButtonStyle style) override;
  void RemoveAddedButtons() override;
  void EnableBarButton(int id, bool enabled) override;
  void CheckBarButton(int id, bool checked) override;
  void DrawSharedIcon(Canvas& canvas, int centreX, int centreY, int icon) override;
  void DrawTitleStrip(Canvas& canvas, const FontFamily& family, TextView title, bool clearBelow,
                      bool bold) override;
  Menu& PopupMenu(int position) override;
  void Tell(TextView text, MessageIcon icon) override;

  // Navigator
  void SelectElement(int element) override { selectedElement_ = element; }
  int SelectedElement() const override { return selectedElement_; }
  void ShowElement(int element) override;
  void ShowHelp(int page) override;
  void SetUpAxis(const AxisRequest& request) override;

 private:
  static constexpr int kSharedIconCount = 6;

  // Start-up
  bool FindElementsFile();
  void ShowLoadingBox();
  void HideLoadingBox();
  bool MakeMainWindow();
  void InitApp();
  void LoadElements();
  void LoadSharedBitmaps();
  void MakePopupBar();
  void MakeTools();
  void MakeMainBar();
  void DisableAbsentScreens();
  void SetShortcuts();

  // The main window
  Result OnMainMessage(WindowHandle window, std::uint32_t message, WParam w, LParam l);
  void OnCommand(int command);
  Result ForwardDropDown(const BarNotification& notification);
  void ShowAbout();
  void BringBackHelp();
  void RunStandardCommand(StandardCommand command);
  void SwitchTo(ToolSlot slot);
  void HideAllBut(const ZelWindow* kept);

  // The end
  void CleanUp();
  void CloseWhatIsOpen();
  void DestroyTools();

  MadeTool& Made(ToolSlot slot) { return tools_[static_cast<std::size_t>(slot)]; }
  const MadeTool& Made(ToolSlot slot) const { return tools_[static_cast<std::size_t>(slot)]; }

  Device& device_;
  ApplicationOptions options_;
  ToolStack stack_;
  TextEngine engine_;
  ZelRegistry registry_;
  ElementsDatabase elements_;
  ElementTable elementTable_;
  std::array<Bitmap, kSharedIconCount> icons_;
  Bitmap titleStrip_;
  Bitmap separator_;
  Bitmap backBuffer_;
  BarHandle popupBar_ = kNoBar;
  BarHandle mainBar_ = kNoBar;
  Menu noMenu_;  // what tools get when the pop-up bar could not be made
  DialogHandle loadingBox_ = kNoDialog;
  WindowHandle mainWindow_ = kNoWindow;
  WindowHandle currentTool_ = kNoWindow;
  int helpTopic_ = 0;
  int addedButtons_ = 0;
  int selectedElement_ = -1;
  std::array<MadeTool, kToolSlots> tools_;
  bool withoutData_ = false;  // periodic.dat was not found at the start
  std::optional<int> ended_;
};

}  // namespace orvane
