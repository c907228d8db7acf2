// The application as a play script drives it: device and program in one object.
#pragma once

#include "app/application.h"
#include "platform/play.h"

namespace orvane {

class PlayedApplication : public PlayedProgram {
 public:
  // Starts the program at once. Host and store outlive it.
  PlayedApplication(Host& host, const DeviceOptions& deviceOptions, SettingsStore& store,
                    ApplicationOptions options);

  Device& GetDevice() override { return device_; }
  std::string FrontTool() const override;
  std::string CurrentTool() const override;
  std::vector<std::string> ToolStack() const override;
  int HelpTopic() const override { return application_.HelpTopic(); }
  std::optional<int> Ended() const override { return application_.Ended(); }
  void AfterStep() override { application_.AfterStep(); }

  Application& GetApplication() { return application_; }

 private:
  Device device_;
  mutable Application application_;  // the tool stack is asked for in a way that could change it
};

}  // namespace orvane
