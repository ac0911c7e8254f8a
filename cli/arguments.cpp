#include "arguments.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>

#include "catalogue/catalogue.h"
#include "nearest.h"
#include "usage_error.h"
#include "words/parse.h"

namespace {

using planner::Kind;
using planner::Parameter;
using planner::Test;

const std::vector<std::pair<std::string, Format>> formats{
    {"text", Format::Text}, {"json", Format::Json}, {"csv", Format::Csv}, {"markdown", Format::Markdown}};

CLI::Option* AddOption(CLI::App& app, const std::string& names) {
  CLI::Option* option = app.add_option(names);
  option->expected(1);
  option->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  return option;
}

CLI::App* AddCommand(CLI::App& app, const std::string& name) {
  CLI::App* command = app.add_subcommand(name);
  command->set_help_flag();
  command->allow_extras();
  command->add_flag("--help,-h");
  AddOption(*command, "--format");
  return command;
}

std::string NameOf(const Parameter& parameter) { return fmt::format("--{}", parameter.name.Text()); }

const std::vector<std::string> rangeOptions{"from", "to", "step", "output"};

void AddTest(CLI::App& app, const Test& test) {
  CLI::App* command = AddCommand(app, test.name);
  AddOption(*command, "--chart");
  for (const std::string& name : rangeOptions) AddOption(*command, "--" + name);
  for (const Parameter& parameter : test.parameters) {
    std::string names = NameOf(parameter);
    for (const std::string& alias : parameter.aliases) names += ",--" + alias;
    if (parameter.kind == Kind::Flag) {
      command->add_flag(names);
    } else {
      AddOption(*command, names);
    }
  }
}

/// The one text given for an option, or null when it is not given.
const std::string* TextOf(const CLI::App& command, const std::string& name) {
  const CLI::Option* option = command.get_option("--" + name);
  if (option->count() == 0) return nullptr;
  if (option->count() > 1) throw UsageError(fmt::format("--{} is given more than once.", name));
  return &option->results().front();
}

bool FlagOf(const CLI::App& command, const std::string& name) {
  const CLI::Option* option = command.get_option("--" + name);
  for (const std::string& text : option->results()) {
    if (text != "true") throw UsageError(fmt::format("--{} takes no value.", name));
  }
  return option->count() > 0;
}

Format FormatOf(const CLI::App& command) {
  const std::string* text = TextOf(command, "format");
  if (!text) return Format::Text;
  for (const auto& [word, format] : formats) {
    if (word == *text) return format;
  }
  throw UsageError(fmt::format("--format is \"{}\", but must be text, json, csv or markdown.", *text));
}

planner::InputValues ValuesOf(const CLI::App& command, const Test& test) {
  planner::InputValues values;
  for (const Parameter& parameter : test.parameters) {
    const std::string name(parameter.name.Text());
    if (parameter.kind == Kind::Flag) {
      if (FlagOf(command, name)) values[name] = true;
    } else if (const std::string* text = TextOf(command, name)) {
      values[name] = planner::Parse(parameter, *text);
    }
  }
  return values;
}

planner::Numbers Ends(planner::Name name, const std::string& text) {
  return std::get<planner::Numbers>(planner::Parse(planner::List(name, "", ""), text));
}

planner::ChartRequest ChartOf(const CLI::App& command, const std::string& name) {
  planner::ChartRequest chart{.name = name};
  if (const std::string* text = TextOf(command, "from")) chart.from = Ends("from", *text);
  if (const std::string* text = TextOf(command, "to")) chart.to = Ends("to", *text);
  if (const std::string* text = TextOf(command, "step"))
    chart.step = std::get<double>(planner::Parse(planner::Number("step", "", ""), *text));
  return chart;
}

void RejectRangeOptions(const CLI::App& command) {
  for (const std::string& name : rangeOptions) {
    if (TextOf(command, name)) throw UsageError(fmt::format("--{} has a use only together with --chart.", name));
  }
}

std::vector<std::string> OptionNames(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

[[noreturn]] void RejectExtra(const CLI::App& command, const std::string& extra) {
  const std::string option = extra.substr(0, extra.find('='));
  const std::string nearest = Nearest(option, OptionNames(command));
  const std::string hint = nearest.empty() ? fmt::format("\"kelpower {} --help\" names them", command.get_name())
                                           : fmt::format("did you mean {}?", nearest);
  throw UsageError(
      fmt::format("\"{}\" is not an option of {}; {}{}", option, command.get_name(), hint, nearest.empty() ? "." : ""));
}

[[noreturn]] void RejectCommand(const std::string& word) {
  std::vector<std::string> names{"list"};
  for (const Test& test : planner::Tests()) names.push_back(test.name);
  const std::string nearest = Nearest(word, names);
  if (!nearest.empty()) throw UsageError(fmt::format("\"{}\" is not a test; did you mean {}?", word, nearest));
  throw UsageError(fmt::format("\"{}\" is not a test; \"kelpower list\" names them.", word));
}

void ReadTest(const CLI::App& command, Request& request) {
  request.values = ValuesOf(command, *request.test);
  const std::string* chart = TextOf(command, "chart");
  if (!chart) return RejectRangeOptions(command);
  request.command = Command::Chart;
  request.chart = ChartOf(command, *chart);
  if (const std::string* output = TextOf(command, "output")) {
    if (output->empty()) throw UsageError("--output is empty, but must name a file.");
    request.output = *output;
  }
}

Request RequestOf(const CLI::App& app) {
  const bool version = FlagOf(app, "version");
  Request request;
  if (app.get_subcommands().empty()) {
    if (!app.remaining().empty()) RejectCommand(app.remaining().front());
    if (!version && !FlagOf(app, "help")) throw UsageError("No test is named; \"kelpower --help\" says how.");
    request.command = version ? Command::Version : Command::Overview;
    return request;
  }
  const CLI::App& command = *app.get_subcommands().front();
  request.test = planner::FindTest(command.get_name());
  const bool help = FlagOf(command, "help");
  if (help || FlagOf(app, "help")) {
    request.command = request.test ? Command::TestHelp : Command::Overview;
    return request;
  }
  request.format = FormatOf(command);
  request.command = request.test ? Command::Solve : Command::List;
  if (request.test) ReadTest(command, request);
  if (const auto extras = app.remaining(true); !extras.empty()) RejectExtra(command, extras.front());
  return request;
}

}  // namespace

Request ParseArguments(int argc, const char* const* argv) {
  CLI::App app;
  app.set_help_flag();
  app.allow_extras();
  app.require_subcommand(0, 1);
  app.add_flag("--help,-h");
  app.add_flag("--version");
  AddCommand(app, "list");
  for (const Test& test : planner::Tests()) AddTest(app, test);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ArgumentMismatch&) {
    // Every option takes one value, so only the last argument can be left without.
    throw UsageError(fmt::format("{} is given without a value.", argv[argc - 1]));
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  return RequestOf(app);
}
