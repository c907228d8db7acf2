// The main window: its messages, its commands, and the switching between tools.
#include <vector>

#include "app/application.h"
#include "app/commands.h"
#include "framework/resource_loader.h"
#include "framework/wait_cursor.h"
#include "resources/dialogs.h"
#include "resources/help_pages.h"

namespace orvane {

namespace {

constexpr int kFirstElement = 0;

}  // namespace

Result Application::OnMainMessage(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_CREATE:
      mainWindow_ = window;
      device_.SetMainWindow(window);
      InitApp();
      return 0;
    case WM_DESTROY:
      device_.PostQuit(kExitNormal);
      return 0;
    case WM_COMMAND:
      OnCommand(CommandId(w));
      return 0;
    case WM_NOTIFY: {
      const BarNotification* notification = NotificationOf(l);
      if (notification && notification->code == TBN_DROPDOWN) return ForwardDropDown(*notification);
      return 0;
    }
    case WM_SETTINGCHANGE:
      return device_.Send(currentTool_, message, w, l);
    default:
      return device_.DefaultProcedure(window, message, w, l);
  }
}

void Application::OnCommand(int command) {
  if (command == kCommandConstants && Made(ToolSlot::kConstants).load) Made(ToolSlot::kConstants).load();
  if (const std::optional<ToolSlot> slot = SwitchTarget(command)) return SwitchTo(*slot);
  if (const auto standard = StandardKeyCommand(command)) return RunStandardCommand(*standard);
  switch (command) {
    case kCommandAbout:
      return ShowAbout();
    case kCommandHelp:
      return ShowHelp(helpTopic_);
    case kCommandExit:
      return device_.PostQuit(kExitNormal);
    case kCommandElementInfo:
      return ShowElement(selectedElement_ < 0 ? kFirstElement : selectedElement_);
    case kCommandShowHelp:
      return BringBackHelp();
    default:
      device_.Send(currentTool_, kToolCommand, static_cast<WParam>(command), kFromMenu);
  }
}

// The tool gets its own command as it would from the bar.
void Application::RunStandardCommand(StandardCommand command) {
  const ZelWindow* const front = stack_.Top();
  if (!front) return;
  const WindowHandle tool = front->Handle();
  const Result own = device_.Send(tool, kAskStandardCommand, PackStandardCommand(command));
  if (own != 0) device_.Send(tool, kToolCommand, static_cast<WParam>(own), kFromMenu);
}

Result Application::ForwardDropDown(const BarNotification& notification) {
  return device_.Send(currentTool_, kToolCommand, static_cast<WParam>(notification.id), kFromDropDown);
}

void Application::ShowAbout() {
  if (const auto dialog = LoadResourceDialog(device_, kAboutDialog, "about")) {
    device_.DialogBoxes().ShowModal(*dialog);
  }
}

void Application::ShowHelp(int page) {
  const MadeTool& viewer = Made(ToolSlot::kHelpViewer);
  const WaitCursor wait(device_);
  if (viewer.openPage) viewer.openPage(page);
}

// A viewer that shows a page already only comes back; one that has shown none opens the first page.
void Application::BringBackHelp() {
  const MadeTool& viewer = Made(ToolSlot::kHelpViewer);
  if (!viewer.window) return;
  if (!viewer.hasPage || !viewer.hasPage()) return ShowHelp(kHelpWelcome);
  const WaitCursor wait(device_);
  viewer.window->Show();
}

void Application::ShowElement(int element) {
  const MadeTool& view = Made(ToolSlot::kElement);
  const WaitCursor wait(device_);
  if (view.showElement) view.showElement(element);
}

void Application::SetUpAxis(const AxisRequest& request) {
  const MadeTool& setup = Made(ToolSlot::kPlotSettings);
  if (setup.setUpAxis) setup.setUpAxis(request);
}

// The chosen tool comes forward as if for the first time, even when it is the current one: its window is put
// away first, so that it sets its topic and adds its buttons again.
void Application::SwitchTo(ToolSlot slot) {
  ZelWindow* tool = Tool(slot);
  if (!tool) return;
  const WaitCursor wait(device_);
  helpTopic_ = 0;
  RemoveAddedButtons();
  tool->HideOnly();
  tool->Show();
  HideAllBut(tool);
}

// Of all open tools, those included that other tools have made. None of them brings another one forward.
void Application::HideAllBut(const ZelWindow* kept) {
  const std::vector<ZelWindow*> open = stack_.Tools();
  for (ZelWindow* tool : open) {
    if (tool != kept) tool->HideOnly();
  }
}

}  // namespace orvane
