#include "arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "format/format.h"
#include "hints.h"
#include "nearest.h"
#include "usage_error.h"
#include "words/numbers.h"
#include "words/parse.h"

namespace {

using planner::Formatted;
using planner::Kind;
using planner::Parameter;
using planner::Test;

const std::vector<std::pair<std::string, Format>> formats{{"text", Format::Text},
                                                          {"json", Format::Json},
                                                          {"csv", Format::Csv},
                                                          {"markdown", Format::Markdown},
                                                          {"ndjson", Format::Ndjson}};

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

std::string NameOf(const Parameter& parameter) { return Formatted("--{}", parameter.name.Text()); }

/// Options that have a use only with a chart.
const std::vector<std::string> chartOptions{"from", "to", "step", "y", "title", "width", "height", "dpi", "output"};

void AddRun(CLI::App& app) {
  CLI::App* command = AddCommand(app, "run");
  AddOption(*command, "file");
  for (const char* name : {"--test", "--output", "--jobs"}) AddOption(*command, name);
}

void AddInputs(CLI::App& command, const Test& test) {
  for (const Parameter& parameter : test.parameters) {
    std::string names = NameOf(parameter);
    for (const std::string& alias : parameter.aliases) names += ",--" + alias;
    if (parameter.kind == Kind::Flag) {
      command.add_flag(names);
    } else {
      AddOption(command, names);
    }
  }
}

void AddEffect(CLI::App& app) {
  CLI::App* command = AddCommand(app, planner::EffectSizes().inputs.name);
  command->add_flag("--explain");
  AddInputs(*command, planner::EffectSizes().inputs);
}

void AddTest(CLI::App& app, const Test& test) {
  CLI::App* command = AddCommand(app, test.name);
  for (const std::string& name : OtherNamesOf(test.name)) command->alias(name);
  command->add_flag("--explain");
  AddOption(*command, "--chart");
  for (const std::string& name : chartOptions) AddOption(*command, "--" + name);
  for (const char* name : {"--save", "--jobs"}) AddOption(*command, name);
  AddInputs(*command, test);
}

/// The one text given for an option, or null when it is not given.
const std::string* TextOf(const CLI::App& command, const std::string& name) {
  const CLI::Option* option = command.get_option("--" + name);
  if (option->count() == 0) return nullptr;
  if (option->count() > 1) throw UsageError(Formatted("--{} is given more than once.", name));
  return &option->results().front();
}

bool FlagOf(const CLI::App& command, const std::string& name) {
  const CLI::Option* option = command.get_option("--" + name);
  for (const std::string& text : option->results()) {
    if (text != "true") throw UsageError(Formatted("--{} takes no value.", name));
  }
  return option->count() > 0;
}

Format FormatOf(const CLI::App& command) {
  const std::string* text = TextOf(command, "format");
  if (!text) return Format::Text;
  for (const auto& [word, format] : formats) {
    if (word == *text) return format;
  }
  throw UsageError(Formatted("--format is \"{}\", but must be text, json, csv, markdown or ndjson.", *text));
}

/// All that is given for an option: several times, and several values at a time.
planner::Alternatives AlternativesOf(const Parameter& parameter, const CLI::Option& option) {
  planner::Alternatives alternatives{&parameter, {}};
  for (const std::string& text : option.results()) {
    for (planner::Value& value : planner::ParseAlternatives(parameter, text)) {
      alternatives.values.push_back(std::move(value));
    }
  }
  return alternatives;
}

/// What is given for the inputs, in the order of the command line.
std::vector<planner::Alternatives> AlternativesOf(const CLI::App& command, const Test& test) {
  std::vector<planner::Alternatives> all;
  std::vector<const CLI::Option*> seen;
  for (const CLI::Option* option : command.parse_order()) {
    if (std::find(seen.begin(), seen.end(), option) != seen.end()) continue;
    seen.push_back(option);
    const Parameter* parameter = planner::FindParameter(test, std::string_view(option->get_lnames().front()));
    if (!parameter) continue;
    if (parameter->kind != Kind::Flag) {
      all.push_back(AlternativesOf(*parameter, *option));
    } else if (FlagOf(command, option->get_lnames().front())) {
      all.push_back({parameter, {true}});
    }
  }
  return all;
}

/// The values of a single design.
planner::InputValues ValuesOf(const std::vector<planner::Alternatives>& alternatives) {
  planner::InputValues values;
  for (const auto& [parameter, all] : alternatives) values[std::string(parameter->name.Text())] = all.front();
  return values;
}

/// What has several values, or null.
const Parameter* Varying(const std::vector<planner::Alternatives>& alternatives) {
  for (const auto& [parameter, all] : alternatives) {
    if (all.size() > 1) return parameter;
  }
  return nullptr;
}

unsigned JobsOf(const CLI::App& command) {
  const std::string* text = TextOf(command, "jobs");
  if (!text) return 0;
  return static_cast<unsigned>(
      std::get<double>(planner::Parse(planner::Number("jobs", "", "").Whole().AtLeast(1).AtMost(1024), *text)));
}

/// The file that an option names; empty without it.
std::string FileOf(const CLI::App& command, const std::string& name) {
  const std::string* text = TextOf(command, name);
  if (text && text->empty()) throw UsageError(Formatted("--{} is empty, but must name a file.", name));
  return text ? *text : "";
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
  if (const std::string* text = TextOf(command, "y")) {
    if (*text != "n") throw UsageError(Formatted("--y is \"{}\", but must be n.", *text));
    chart.showsSizes = true;
  }
  return chart;
}

std::optional<double> LengthOf(const CLI::App& command, const std::string& name, double least, double most) {
  const std::string* text = TextOf(command, name);
  if (!text) return std::nullopt;
  double number = 0;
  if (planner::ParseNumber(*text, number) && number >= least && number <= most) return number;
  throw UsageError(Formatted("--{} is \"{}\", but must be a number from {} to {}.", name, *text, least, most));
}

PictureOptions PictureOf(const CLI::App& command) {
  PictureOptions picture;
  if (const std::string* text = TextOf(command, "title")) picture.title = *text;
  picture.width = LengthOf(command, "width", 200, 5000);
  picture.height = LengthOf(command, "height", 150, 5000);
  picture.dpi = LengthOf(command, "dpi", 30, 600);
  return picture;
}

void RejectChartOptions(const CLI::App& command) {
  for (const std::string& name : chartOptions) {
    if (TextOf(command, name)) throw UsageError(Formatted("--{} has a use only together with --chart.", name));
  }
}

std::vector<std::string> OptionNames(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

/// What the inputs of a command are those of, or null.
const Test* InputsOf(const std::string& command) {
  const Test& effect = planner::EffectSizes().inputs;
  return command == effect.name ? &effect : planner::FindTest(command);
}

[[noreturn]] void RejectExtra(const CLI::App& command, const std::string& extra) {
  const std::string option = extra.substr(0, extra.find('='));
  const planner::Test* test = InputsOf(command.get_name());
  if (const std::string known = test ? HintForOption(*test, option) : ""; !known.empty()) {
    throw UsageError(Formatted("\"{}\" is not an option of {}; {}.", option, command.get_name(), known));
  }
  const std::string nearest = Nearest(option, OptionNames(command));
  const std::string hint = nearest.empty() ? Formatted("\"kelpower {} --help\" names them", command.get_name())
                                           : Formatted("did you mean {}?", nearest);
  throw UsageError(
      Formatted("\"{}\" is not an option of {}; {}{}", option, command.get_name(), hint, nearest.empty() ? "." : ""));
}

[[noreturn]] void RejectCommand(const std::string& word) {
  if (const std::string known = HintForTest(word); !known.empty()) {
    throw UsageError(Formatted("\"{}\" is not a test; {}.", word, known));
  }
  std::vector<std::string> names{"list", "run", "effect"};
  for (const Test& test : planner::Tests()) names.push_back(test.name);
  const std::string nearest = Nearest(word, names);
  if (!nearest.empty()) throw UsageError(Formatted("\"{}\" is not a test; did you mean {}?", word, nearest));
  throw UsageError(Formatted("\"{}\" is not a test; \"kelpower list\" names them.", word));
}

/// The input of a chart that has several values, if any: each is a curve.
std::optional<planner::Alternatives> OfChart(const std::vector<planner::Alternatives>& all) {
  std::optional<planner::Alternatives> several;
  for (const planner::Alternatives& alternatives : all) {
    if (alternatives.values.size() < 2) continue;
    if (several) {
      throw UsageError(Formatted("{} and {} both have several values, but a chart varies one.",
                                 NameOf(*several->parameter), NameOf(*alternatives.parameter)));
    }
    several = alternatives;
  }
  return several;
}

/// An explanation is of one answer, and takes more room than a row.
void RejectUnexplainable(const Request& request) {
  if (request.command == Command::Table && Varying(request.alternatives)) {
    throw UsageError(
        Formatted("{} has several values, but --explain is of one design.", NameOf(*Varying(request.alternatives))));
  }
  if (request.format == Format::Csv || request.format == Format::Ndjson) {
    throw UsageError("--explain does not go with --format csv or ndjson: text, json and markdown have room for it.");
  }
}

void ReadTest(const CLI::App& command, Request& request) {
  request.alternatives = AlternativesOf(command, *request.test);
  request.values = ValuesOf(request.alternatives);
  request.jobs = JobsOf(command);
  request.save = FileOf(command, "save");
  request.isExplained = FlagOf(command, "explain");
  const std::string* chart = TextOf(command, "chart");
  if (!chart) {
    if (Varying(request.alternatives) || request.format == Format::Ndjson) request.command = Command::Table;
    RejectChartOptions(command);
    if (request.isExplained) RejectUnexplainable(request);
    return;
  }
  if (request.isExplained) throw UsageError("--explain and --chart exclude each other.");
  if (!request.save.empty()) throw UsageError("--save has no use together with --chart.");
  request.command = Command::Chart;
  request.chart = ChartOf(command, *chart);
  request.chart.alternatives = OfChart(request.alternatives);
  if (request.chart.alternatives) request.values.erase(std::string(request.chart.alternatives->parameter->name.Text()));
  request.picture = PictureOf(command);
  request.output = FileOf(command, "output");
}

void ReadRun(const CLI::App& command, Request& request) {
  request.command = Command::Run;
  const CLI::Option* file = command.get_option("file");
  if (file->count() == 0) throw UsageError("No file is named; \"kelpower run --help\" says how.");
  request.input = file->results().front();
  if (const std::string* name = TextOf(command, "test")) {
    request.test = planner::FindTest(*name);
    if (!request.test) RejectCommand(*name);
  }
  request.output = FileOf(command, "output");
  request.jobs = JobsOf(command);
}

void ReadEffect(const CLI::App& command, Request& request) {
  request.command = Command::Effect;
  const std::vector<planner::Alternatives> alternatives = AlternativesOf(command, planner::EffectSizes().inputs);
  if (const Parameter* varying = Varying(alternatives)) {
    throw UsageError(Formatted("{} has several values, but effect converts one study at a time.", NameOf(*varying)));
  }
  request.values = ValuesOf(alternatives);
  request.isExplained = FlagOf(command, "explain");
  if (request.format == Format::Ndjson) throw UsageError("--format of effect must be text, json, csv or markdown.");
  if (request.isExplained && request.format == Format::Csv) {
    throw UsageError("--explain does not go with --format csv: text, json and markdown have room for it.");
  }
}

/// The help of a command.
Command HelpOf(const Request& request, const std::string& command) {
  if (request.test) return Command::TestHelp;
  if (command == "run") return Command::RunHelp;
  return command == "effect" ? Command::EffectHelp : Command::Overview;
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
  const bool isRun = command.get_name() == "run";
  const bool isEffect = command.get_name() == "effect";
  if (!isRun) request.test = planner::FindTest(command.get_name());
  const bool help = FlagOf(command, "help");
  if (help || FlagOf(app, "help")) {
    request.command = HelpOf(request, command.get_name());
    return request;
  }
  request.format = FormatOf(command);
  if (TextOf(command, "format")) request.formatGiven = request.format;
  request.command = request.test ? Command::Solve : Command::List;
  if (isRun) {
    ReadRun(command, request);
  } else if (isEffect) {
    ReadEffect(command, request);
  } else if (request.test) {
    ReadTest(command, request);
  }
  if (const auto extras = app.remaining(true); !extras.empty()) RejectExtra(command, extras.front());
  if (isEffect && request.values.empty()) {
    throw UsageError("Nothing to convert is given; \"kelpower effect --help\" names what can be.");
  }
  return request;
}

/// What the build and the shells ask, or nothing.
std::optional<Request> HiddenRequest(const std::vector<std::string>& words) {
  if (words.empty() || (words.front() != "--man" && words.front() != "--complete")) return std::nullopt;
  Request request;
  request.command = words.front() == "--man" ? Command::ManPage : Command::Complete;
  request.words.assign(words.begin() + 1, words.end());
  return request;
}

}  // namespace

Request ParseArguments(int argc, const char* const* argv) {
  if (const auto hidden = HiddenRequest({argv + std::min(argc, 1), argv + argc})) return *hidden;
  CLI::App app;
  app.set_help_flag();
  app.allow_extras();
  app.require_subcommand(0, 1);
  app.add_flag("--help,-h");
  app.add_flag("--version");
  AddCommand(app, "list");
  AddRun(app);
  AddEffect(app);
  for (const Test& test : planner::Tests()) AddTest(app, test);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ArgumentMismatch&) {
    // Every option takes one value, so only the last argument can be left without.
    throw UsageError(Formatted("{} is given without a value.", argv[argc - 1]));
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  return RequestOf(app);
}
