#include "app/tool_set.h"

#include "help/helpCont.h"
#include "help/helpView.h"
#include "tools/wnd_balancer.h"
#include "tools/wnd_const.h"
#include "tools/wnd_element.h"
#include "tools/wnd_find.h"
#include "tools/wnd_mass.h"
#include "tools/wnd_periodic.h"
#include "tools/wnd_plot.h"
#include "tools/wnd_plotset.h"
#include "tools/wnd_series.h"

namespace orvane {

namespace {

MadeTool MakeHelpViewer(const ToolContext& context) {
  MadeTool tool;
  Shell& shell = context.shell;
  const ContentsMaker makeContents = [&shell](const HelpFile& help, std::function<void(int id)> openPage) {
    return MakeWindow<helpCont>(shell, help, std::move(openPage));
  };
  auto viewer = MakeWindow<helpView>(shell, context.dataFolder + kHelpFile, makeContents);
  helpView* const made = viewer.get();
  tool.openPage = [made](int page) { made->ShowPage(page); };
  tool.hasPage = [made] { return made->HasPage(); };
  tool.window = std::move(viewer);
  return tool;
}

MadeTool MakePeriodic(const ToolContext& context) {
  MadeTool tool;
  tool.window = MakeWindow<wnd_periodic>(context.shell, context.elements, context.navigator);
  return tool;
}

MadeTool MakeFind(const ToolContext& context) {
  MadeTool tool;
  tool.window = MakeWindow<wnd_find>(context.shell, context.elements, context.navigator);
  return tool;
}

MadeTool MakeSeries(const ToolContext& context) {
  MadeTool tool;
  tool.window = MakeWindow<wnd_series>(context.shell, context.navigator);
  return tool;
}

MadeTool MakeMass(const ToolContext& context) {
  MadeTool tool;
  tool.window = MakeWindow<wnd_mass>(context.shell, context.elementTable);
  return tool;
}

MadeTool MakeBalancer(const ToolContext& context) {
  MadeTool tool;
  tool.window = MakeWindow<wnd_balancer>(context.shell, context.elementTable);
  return tool;
}

MadeTool MakeElement(const ToolContext& context) {
  auto window = MakeWindow<wnd_element>(context.shell, context.elements, context.navigator);
  MadeTool tool;
  tool.showElement = [view = window.get()](int element) { view->ShowElement(element); };
  tool.window = std::move(window);
  return tool;
}

MadeTool MakePlot(const ToolContext& context) {
  MadeTool tool;
  tool.window = MakeWindow<wnd_plot>(context.shell, context.elements, context.navigator);
  return tool;
}

MadeTool MakePlotSettings(const ToolContext& context) {
  auto window = MakeWindow<wnd_plotset>(context.shell, context.elements, context.navigator);
  MadeTool tool;
  tool.setUpAxis = [setup = window.get()](const AxisRequest& request) { setup->Open(request); };
  tool.window = std::move(window);
  return tool;
}

MadeTool MakeConstants(const ToolContext& context) {
  auto window = MakeWindow<wnd_const>(context.shell, context.navigator, context.dataFolder);
  MadeTool tool;
  tool.load = [constants = window.get()] { constants->LoadOnce(); };
  tool.window = std::move(window);
  return tool;
}

}  // namespace

ToolMakers StandardTools() {
  ToolMakers makers;
  makers[static_cast<std::size_t>(ToolSlot::kElement)] = MakeElement;
  makers[static_cast<std::size_t>(ToolSlot::kHelpViewer)] = MakeHelpViewer;
  makers[static_cast<std::size_t>(ToolSlot::kPeriodic)] = MakePeriodic;
  makers[static_cast<std::size_t>(ToolSlot::kFind)] = MakeFind;
  makers[static_cast<std::size_t>(ToolSlot::kMass)] = MakeMass;
  makers[static_cast<std::size_t>(ToolSlot::kSeries)] = MakeSeries;
  makers[static_cast<std::size_t>(ToolSlot::kBalancer)] = MakeBalancer;
  makers[static_cast<std::size_t>(ToolSlot::kPlot)] = MakePlot;
  makers[static_cast<std::size_t>(ToolSlot::kPlotSettings)] = MakePlotSettings;
  makers[static_cast<std::size_t>(ToolSlot::kConstants)] = MakeConstants;
  return makers;
}

}  // namespace orvane
