#include "cli/calculator.h"

#include <CLI/CLI.hpp>

#include "cli/dump_command.h"
#include "cli/element_command.h"
#include "cli/session.h"

namespace orvane {

namespace {

// What the commands were given. It outlives the parsing, whose options point here.
struct Arguments {
  std::string dataFolder;
  std::string dumpFile;
  std::vector<std::string> elements;
  bool json = false;
};

void AddElement(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* element = app.add_subcommand("element", "Show every property of an element");
  element->add_flag("--json", arguments.json, "One JSON object a line");
  element->add_option("element", arguments.elements, "Names, symbols or atomic numbers")
      ->type_name("NAME|SYMBOL|NUMBER")
      ->required();
  element->callback([&] { ShowElements(session, arguments.elements, arguments.json); });
}

void AddDump(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* dump = app.add_subcommand("dump", "Show what the program reads of a data file, as JSON");
  dump->require_subcommand(1);
  CLI::App* periodic = dump->add_subcommand("periodic", "An elements database (periodic.dat)");
  periodic->add_option("file", arguments.dumpFile, "The file")->type_name("FILE")->required();
  periodic->callback([&] { DumpPeriodic(session, arguments.dumpFile); });
}

}  // namespace

int RunCalculator(int argc, const char* const* argv, const std::string& programFolder, std::ostream& out,
                  std::ostream& err) {
  Arguments arguments;
  Session session{programFolder, out, err};
  CLI::App app("Orvane's calculators and data files on the command line", "orvane-calc");
  app.set_version_flag("--version", "orvane-calc " ORVANE_VERSION);
  app.set_help_flag("--help", "Print this help and exit");
  app.fallthrough();
  app.require_subcommand(1);
  app.add_option("--data", arguments.dataFolder, "The folder of the data files, in place of the program's")
      ->type_name("DIR")
      // Options are taken before a command's callback runs, so the folder is known by then.
      ->each([&session](const std::string& folder) {
        session.dataFolder = folder.empty() || folder.back() == '/' ? folder : folder + '/';
      });
  AddElement(app, arguments, session);
  AddDump(app, arguments, session);
  // The parsing library reports wrong usage, and the wish for help, by its own exceptions; they end here.
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, err) == 0 ? kAllAnswered : kWrongUsage;
  }
  out.flush();
  if (!out) session.Fail("the answer could not be written");
  return session.status;
}

}  // namespace orvane
