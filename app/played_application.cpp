#include "app/played_application.h"

#include <utility>

namespace orvane {

PlayedApplication::PlayedApplication(Host& host, const DeviceOptions& deviceOptions, SettingsStore& store,
                                     ApplicationOptions options)
    : device_(host, deviceOptions), application_(device_, store, std::move(options)) {
  application_.Start();
}

std::string PlayedApplication::FrontTool() const {
  const ZelWindow* top = application_.Tools().Top();
  return top ? top->ClassName() : std::string();
}

std::string PlayedApplication::CurrentTool() const {
  const WindowObject* object = device_.UserData(application_.CurrentTool());
  return object ? object->Describe().className : std::string();
}

std::vector<std::string> PlayedApplication::ToolStack() const {
  std::vector<std::string> names;
  for (const ZelWindow* tool : application_.Tools().Tools()) names.push_back(tool->ClassName());
  return names;
}

}  // namespace orvane
