// The program: in a window, or under a script without one. Each way returns the process's exit status.
#include <array>
#include <cmath>
#include <exception>
#include <fstream>
#include <iostream>
#include <utility>

#include "app/options.h"
#include "app/played_application.h"
#include "base/program_folder.h"
#include "data/memory_settings.h"
#include "data/settings_file.h"
#include "platform/host_sdl.h"
#include "platform/instance_lock.h"
#include "platform/user_folders.h"
#include "resources/images.h"

namespace orvane {

namespace {

// The window's own endings, beside those of the program itself (application.h) and of a script (play.h).
constexpr int kExitNoDisplay = 5;
constexpr int kExitUnreadableScript = 4;

// The scale of the window when it was last closed, in percent. Ours alone: no screen reads it.
constexpr TextView kScaleSetting = u"shell.Scale";
constexpr int kSmallestScale = 100;
constexpr int kLargestScale = 1600;

std::string DataFolder(const Options& options) {
  if (options.dataFolder.empty()) return ProgramFolder(ExecutablePath(), '/');
  return options.dataFolder.back() == '/' ? options.dataFolder : options.dataFolder + '/';
}

std::unique_ptr<SettingsStore> OpenStore(const Options& options) {
  if (options.settings) return std::make_unique<SettingsFile>(*options.settings);
  const std::string folder = ConfigFolder();
  if (folder.empty() || options.script) return std::make_unique<MemorySettings>();
  return std::make_unique<SettingsFile>(folder + "/orvane/settings.reg");
}

double RememberedScale(SettingsStore& store) {
  ZelRegistry registry(store);
  registry.SetKey(kSettingsKey);
  registry.Open();
  const int percent = registry.ReadLong(kScaleSetting, 0);
  return percent >= kSmallestScale && percent <= kLargestScale ? percent / 100.0 : 0.0;
}

void RememberScale(SettingsStore& store, double scale) {
  ZelRegistry registry(store);
  registry.SetKey(kSettingsKey);
  registry.Open();
  registry.WriteLong(kScaleSetting, static_cast<int>(std::lround(scale * 100)));
}

// The largest drawing: the window system makes its own sizes of it.
PngBytes WindowIcon() {
  const IconResource* icon = FindIcon(kApplicationIcon);
  return icon ? icon->bitmaps.back().png : PngBytes();
}

// False, with a sentence on standard error, when the typefaces are not installed.
bool FacesFound(Device& device) {
  const Text missing = device.Fonts().MissingFaces();
  if (!missing.empty()) std::cerr << "orvane: " << ToUtf8(missing) << '\n';
  return missing.empty();
}

int RunOn(SdlHost& host, SettingsStore& store, const Options& options) {
  DeviceOptions deviceOptions;
  deviceOptions.scale = host.Scale();
  deviceOptions.panelMode = options.inputPanel.value_or(PanelMode::kAuto);
  deviceOptions.fontFolder = DataFolder(options);
  Device device(host, deviceOptions);
  if (!FacesFound(device)) return kExitNoWindow;
  Application application(device, store, {DataFolder(options), StandardTools()});
  application.Start();
  host.Run(device, [&] {
    if (options.firstFrameOnly) device.PostQuit(kExitNormal);  // asked after a step, which has painted
    application.AfterStep();
    return application.Ended().has_value();
  });
  return application.Ended().value_or(kExitNormal);
}

std::optional<std::string> ReadAll(std::istream& in) {
  std::string text;
  for (std::array<char, 4096> part{}; in;) {
    in.read(part.data(), part.size());
    text.append(part.data(), static_cast<std::size_t>(in.gcount()));
  }
  if (in.bad()) return std::nullopt;  // a folder, say: it opens, but cannot be read
  return text;
}

std::optional<std::string> ReadScript(const std::string& path) {
  if (path == "-") return ReadAll(std::cin);
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) return std::nullopt;
  return ReadAll(file);
}

int RunInWindow(const Options& options) {
  // Before any file is read: a second start only brings the first one's window to the front.
  InstanceLock::Result instance = InstanceLock::Acquire(options.instance);
  if (instance.outcome == InstanceLock::Outcome::kRunning) return kExitNormal;

  const std::unique_ptr<SettingsStore> store = OpenStore(options);
  SdlHostOptions hostOptions;
  hostOptions.scale = options.scale.value_or(RememberedScale(*store));
  hostOptions.iconPng = WindowIcon();
  std::optional<double> chosenScale;
  hostOptions.scaleChanged = [&chosenScale](double scale) { chosenScale = scale; };
  std::string error;
  const std::unique_ptr<SdlHost> host = SdlHost::Open(std::move(hostOptions), error);
  if (!host) {
    std::cerr << "orvane: no display can be opened: " << error << '\n';
    return kExitNoDisplay;
  }
  if (instance.lock) instance.lock->Watch([&host] { host->RaiseFromAnyThread(); });
  const int status = RunOn(*host, *store, options);
  instance.lock.reset();  // nobody may ask for the window once it goes
  if (chosenScale) RememberScale(*store, *chosenScale);
  return status;
}

int RunScript(const Options& options) {
  const std::optional<std::string> script = ReadScript(*options.script);
  if (!script) {
    std::cerr << "orvane: the script cannot be read: " << *options.script << '\n';
    return kExitUnreadableScript;
  }
  // The store outlives each start, so that `restart` finds the settings that were written.
  const std::unique_ptr<SettingsStore> store = OpenStore(options);
  PlayOptions play;
  play.scale = options.scale.value_or(1.0);
  play.panelMode = options.inputPanel.value_or(PanelMode::kAlways);
  play.outFolder = options.outFolder;
  play.fontFolder = DataFolder(options);
  play.start = [&](Host& host, const DeviceOptions& deviceOptions) -> std::unique_ptr<PlayedProgram> {
    auto program = std::make_unique<PlayedApplication>(
        host, deviceOptions, *store, ApplicationOptions{DataFolder(options), StandardTools()});
    return FacesFound(program->GetDevice()) ? std::move(program) : nullptr;
  };
  return Play(*script, play, std::cout, std::cerr);
}

}  // namespace
}  // namespace orvane

// Nothing here throws of its own; what the library throws, when memory ends, becomes a message and a status.
int main(int argc, char** argv) try {
  const auto parsed = orvane::ParseOptions(argc, argv);
  if (const int* status = std::get_if<int>(&parsed)) return *status;
  const orvane::Options& options = std::get<orvane::Options>(parsed);
  return options.script ? orvane::RunScript(options) : orvane::RunInWindow(options);
} catch (const std::exception& error) {
  std::cerr << "orvane: " << error.what() << '\n';
  return orvane::kExitNoWindow;
}
