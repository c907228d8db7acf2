#include "cli/calculator.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "base/text.h"
#include "cli/balance_command.h"
#include "cli/constant_command.h"
#include "cli/dump_command.h"
#include "cli/element_command.h"
#include "cli/filter_command.h"
#include "cli/mass_command.h"
#include "cli/plot_command.h"
#include "cli/session.h"

namespace orvane {

namespace {

// What the commands were given. It outlives the parsing, whose options point here.
struct Arguments {
  std::string dataFolder;
  std::string dumpFile;
  std::vector<std::string> elements;
  std::vector<std::string> constants;
  std::string filter;
  std::vector<std::string> values;
  PlotQuestion plot;
  std::vector<std::string> problems;
  bool json = false;
  bool exact = false;
};

// Some words mean something to the parsing library, even where a formula is meant: one in square brackets is
// a list of words, "%%" ends a list, "++" ends a command. They go in behind a mark, which every option takes
// off again; so does a word that begins with the mark itself.
constexpr char kWordMark = '\x1f';

bool NeedsMark(std::string_view word) {
  return word.starts_with('[') || word.starts_with(kWordMark) || word == "%%" || word == "++";
}

// "--x-filter=" gives the empty filter; the library would look for one in the next word.
bool IsOptionWithEmptyValue(std::string_view word) {
  return word == "--x-filter=" || word == "--y-filter=" || word == "--data=";
}

// `argv` begins with the program's name, which is left out.
std::vector<std::string> MarkedWords(const std::vector<const char*>& argv) {
  std::vector<std::string> words;
  bool options = true;
  for (std::size_t i = 1; i < argv.size(); ++i) {
    std::string word = argv[i];
    options = options && word != "--";
    if (options && IsOptionWithEmptyValue(word)) {
      word.pop_back();
      words.push_back(word);
      word.clear();
    }
    words.push_back(NeedsMark(word) ? kWordMark + word : word);
  }
  return words;
}

std::string Unmarked(const std::string& word) { return word.starts_with(kWordMark) ? word.substr(1) : word; }

void TakeMarksOff(CLI::App& app) {
  for (CLI::Option* option : app.get_options()) {
    if (option->get_type_size() == 0) continue;  // a flag
    option->transform(Unmarked);
  }
  for (CLI::App* command : app.get_subcommands({})) TakeMarksOff(*command);
}

void AddMass(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* mass =
      app.add_subcommand("mass", "Work out molar masses; without formulas, of those on standard input");
  mass->add_flag("--json", arguments.json,
                 "One JSON object a line; formulas are taken exactly as they stand");
  mass->add_option("formula", arguments.problems, "Formulas, as h2o or CuSO4*5H2O")->type_name("FORMULA");
  mass->callback([&] { ShowMasses(session, arguments.problems, arguments.json); });
}

void AddBalance(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* balance =
      app.add_subcommand("balance", "Balance equations; without any, those on standard input");
  balance->add_flag("--json", arguments.json,
                    "One JSON object a line; the sides of an equation stand apart by a tab");
  balance->add_flag("--exact", arguments.exact, "Numbers of any size, in place of the hand-held's 32 bits");
  balance->add_option("equation", arguments.problems, "Equations, as \"h2 + o2 = h2o\"")
      ->type_name("EQUATION");
  balance->callback([&] { ShowBalances(session, arguments.problems, {arguments.json, arguments.exact}); });
}

void AddElement(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* element = app.add_subcommand("element", "Show every property of an element");
  element->add_flag("--json", arguments.json, "One JSON object a line");
  element->add_option("element", arguments.elements, "Names, symbols or atomic numbers")
      ->type_name("NAME|SYMBOL|NUMBER")
      ->required();
  element->callback([&] { ShowElements(session, arguments.elements, arguments.json); });
}

void AddConstant(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* constant = app.add_subcommand("constant", "Show constants with their units and uncertainty");
  constant->add_flag("--json", arguments.json, "One JSON object a line");
  constant->add_option("constant", arguments.constants, "Names, parts of names, or symbols")
      ->type_name("TEXT")
      ->required();
  constant->callback([&] { ShowConstants(session, arguments.constants, arguments.json); });
}

constexpr const char* kFilterCommand = "filter";

void AddFilter(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* filter = app.add_subcommand(kFilterCommand, "Show what a value filter of the plot lets through");
  filter->add_flag("--json", arguments.json, "One JSON object");
  filter->add_option("filter", arguments.filter, "As in the plot's axis setup: 1-2;5-7.5")
      ->type_name("FILTER")
      ->required();
  filter->add_option("value", arguments.values, "The values to test")->type_name("VALUE");
  filter->callback([&] { ShowFilter(session, arguments.filter, arguments.values, arguments.json); });
}

// "--json"; what begins with two signs and no letter is a filter, as "--3".
bool IsLongOption(std::string_view word) {
  return word.size() > 2 && word.starts_with("--") && IsAsciiLetter(static_cast<unsigned char>(word[2]));
}

// The words with "--" in front of the filter of that command, so that "-4" behind it is a value and "-5--3" a
// filter, not options.
std::vector<const char*> WithOptionsEnded(int argc, const char* const* argv) {
  std::vector<const char*> words(argv, argv + argc);
  bool inCommand = false;
  for (std::size_t i = 1; i < words.size(); ++i) {
    const std::string_view word = words[i];
    if (word == "--data") {
      ++i;
    } else if (!inCommand && word == kFilterCommand) {
      inCommand = true;
    } else if (!IsLongOption(word)) {
      if (inCommand && word != "--") words.insert(words.begin() + static_cast<std::ptrdiff_t>(i), "--");
      break;
    }
  }
  return words;
}

void AddPlot(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* plot = app.add_subcommand("plot", "Plot one property of the elements against another");
  plot->add_flag("--json", arguments.json, "One JSON object with ranges, places and segments");
  plot->add_option("x", arguments.plot.x, "A name or CATEGORY:INDEX")->type_name("X-PROPERTY")->required();
  plot->add_option("y", arguments.plot.y, "A name or CATEGORY:INDEX")->type_name("Y-PROPERTY")->required();
  plot->add_option("--x-filter", arguments.plot.xFilter, "Only elements with these x values")
      ->type_name("FILTER");
  plot->add_option("--y-filter", arguments.plot.yFilter, "Only elements with these y values")
      ->type_name("FILTER");
  plot->callback([&] { ShowPlot(session, arguments.plot, arguments.json); });
}

void AddDump(CLI::App& app, Arguments& arguments, Session& session) {
  CLI::App* dump = app.add_subcommand("dump", "Show what the program reads of a data file, as JSON");
  dump->require_subcommand(1);
  CLI::App* periodic = dump->add_subcommand("periodic", "An elements database (periodic.dat)");
  periodic->add_option("file", arguments.dumpFile, "The file")->type_name("FILE")->required();
  periodic->callback([&] { DumpPeriodic(session, arguments.dumpFile); });
  CLI::App* constants = dump->add_subcommand("constants", "A constants file (constants.dat)");
  constants->add_option("file", arguments.dumpFile, "The file")->type_name("FILE")->required();
  constants->callback([&] { DumpConstants(session, arguments.dumpFile); });
  CLI::App* help = dump->add_subcommand("help", "The pages of the manual (help.dat)");
  help->add_option("file", arguments.dumpFile, "The file")->type_name("FILE")->required();
  help->callback([&] { DumpHelp(session, arguments.dumpFile); });
}

// The commands that a word can name: those of the program, or behind "dump" its files.
std::string CommandNames(const CLI::App& app) {
  std::string names;
  for (const CLI::App* command : app.get_subcommands({})) {
    names += (names.empty() ? "" : ", ") + command->get_name();
  }
  return names;
}

// What is wrong with the command line, and where to read on.
std::string UsageMessage(const CLI::App* app, const CLI::Error& error) {
  const CLI::App* innermost = app;
  std::string called = app->get_name();
  while (!innermost->get_subcommands().empty()) {
    innermost = innermost->get_subcommands().front();
    called += " " + innermost->get_name();
  }
  std::string what = error.what();
  if (error.get_name() == "RequiredError" && !innermost->get_subcommands({}).empty()) {
    const std::vector<std::string> rest = app->remaining(true);
    const std::string word = rest.empty() ? "" : Unmarked(rest.front());
    what = word.empty()            ? "a command is needed"
           : word.starts_with('-') ? "no option " + word
                                   : "no command " + word;
    what += "; the commands are " + CommandNames(*innermost);
  }
  return "orvane-calc: " + what + "\nRun " + called + " --help for more information.\n";
}

}  // namespace

int RunCalculator(int argc, const char* const* argv, const std::string& programFolder, std::istream& in,
                  std::ostream& out, std::ostream& err) {
  Arguments arguments;
  Session session{programFolder, in, out, err};
  CLI::App app("Orvane's calculators and data files on the command line", "orvane-calc");
  app.set_version_flag("--version", "orvane-calc " ORVANE_VERSION);
  app.set_help_flag("--help", "Print this help and exit");
  app.footer(
      "-- ends the options: what follows is taken as it stands.\n"
      "Exit status: 0 when all was answered, 1 when something was not, 2 for wrong usage.");
  app.failure_message(UsageMessage);
  app.fallthrough();
  app.require_subcommand(1);
  app.add_option("--data", arguments.dataFolder, "The folder of the data files, in place of the program's")
      ->type_name("DIR")
      // Options are taken before a command's callback runs, so the folder is known by then.
      ->each([&session](const std::string& folder) {
        session.dataFolder = folder.empty() || folder.back() == '/' ? folder : folder + '/';
      });
  AddMass(app, arguments, session);
  AddBalance(app, arguments, session);
  AddElement(app, arguments, session);
  AddConstant(app, arguments, session);
  AddFilter(app, arguments, session);
  AddPlot(app, arguments, session);
  AddDump(app, arguments, session);
  TakeMarksOff(app);
  std::vector<std::string> words = MarkedWords(WithOptionsEnded(argc, argv));
  std::reverse(words.begin(), words.end());  // as the library wants them
  // It reports wrong usage, and the wish for help, by its own exceptions; they end here.
  try {
    app.parse(std::move(words));
  } catch (const CLI::ParseError& error) {
    session.status = app.exit(error, out, err) == 0 ? kAllAnswered : kWrongUsage;
  }
  out.flush();
  if (!out) session.Fail("the answer could not be written");
  return session.status;
}

}  // namespace orvane
