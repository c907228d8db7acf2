#include "app/options.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <iostream>
#include <string>

namespace orvane {

namespace {

constexpr int kWrongUsage = 2;
constexpr double kSmallestScale = 1.0;
constexpr double kLargestScale = 16.0;

PanelMode PanelModeNamed(const std::string& name) {
  if (name == "always") return PanelMode::kAlways;
  return name == "never" ? PanelMode::kNever : PanelMode::kAuto;
}

}  // namespace

std::variant<Options, int> ParseOptions(int argc, const char* const* argv) {
  Options options;
  double scale = 0;
  std::string panel;
  std::string settings;
  std::string script;

  CLI::App app("Orvane: a chemistry reference and calculator for the hand-held.", "orvane");
  app.set_version_flag("--version", std::string("orvane ") + ORVANE_VERSION);
  app.add_option("--data", options.dataFolder, "Folder of the data files")->type_name("DIR");
  auto* settingsOption = app.add_option("--settings", settings, "Settings file")->type_name("FILE");
  auto* scaleOption = app.add_option("--scale", scale, "Screen pixels a pixel of the hand-held, 1 to 16")
                          ->option_text("N")
                          ->check(CLI::Range(kSmallestScale, kLargestScale));
  auto* panelOption = app.add_option("--input-panel", panel, "When the on-screen keyboard is raised")
                          ->option_text("auto|always|never")
                          ->check(CLI::IsMember({"auto", "always", "never"}));
  app.add_option("--instance", options.instance, "Name under which a running instance is found")
      ->type_name("NAME");
  auto* playOption =
      app.add_option("--play", script, "Plays a script without a window; - reads it from standard input")
          ->type_name("SCRIPT|-");
  app.add_option("--out", options.outFolder, "Folder of the files that a script writes")->type_name("DIR");
  app.add_flag("--first-frame", options.firstFrameOnly,
               "Ends once the first frame is painted, for measuring");
  try {
    app.parse(argc, argv);
    // The range lets it pass: it is neither below nor above.
    if (std::isnan(scale)) throw CLI::ValidationError("--scale", "not a number");
  } catch (const CLI::ParseError& error) {
    return app.exit(error, std::cout, std::cerr) == 0 ? 0 : kWrongUsage;
  }
  if (settingsOption->count() > 0) options.settings = settings;
  if (scaleOption->count() > 0) options.scale = scale;
  if (panelOption->count() > 0) options.inputPanel = PanelModeNamed(panel);
  if (playOption->count() > 0) options.script = script;
  return options;
}

}  // namespace orvane
