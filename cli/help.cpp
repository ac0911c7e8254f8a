#include "help.h"

#include <fmt/format.h>

#include <algorithm>

#include "catalogue/catalogue.h"
#include "words/expand.h"
#include "words/numbers.h"
#include "words/parse.h"
#include "words/problem.h"

using namespace planner;

namespace {

std::string Option(Name name) { return OptionOf(name.Text()); }

/// "--n, --group-sizes LIST"
std::string OptionText(const Parameter& parameter) {
  std::string text = Option(parameter.name);
  for (const std::string& alias : parameter.aliases) text += ", --" + alias;
  switch (parameter.kind) {
    case Kind::Flag: return text;
    case Kind::Number: return text + " NUMBER";
    case Kind::Choice: return text + " WORD";
    case Kind::List:
    case Kind::PerGroup: return text + " LIST";
  }
  return text;
}

/// The meaning with the inputs in braces as options.
std::string Meaning(const Parameter& parameter) {
  return Expand(parameter.meaning, OptionOf, [](std::string_view) { return false; });
}

/// What the option takes; of two groups a list has two entries.
std::string AllowedIn(const Test& test, Parameter parameter) {
  if (parameter.kind == Kind::PerGroup && !parameter.spreads && test.groups == 2) {
    parameter.kind = Kind::List;
    parameter.length = 2;
  }
  return Allowed(parameter);
}

std::string Details(const Test& test, const Parameter& parameter) {
  if (parameter.kind == Kind::Flag) return "";
  std::string text = "  (" + AllowedIn(test, parameter);
  if (parameter.fallback) text += "; default " + Shown(*parameter.fallback);
  return text + ")";
}

/// What stands for the value of an option in usage lines.
struct Placeholder {
  std::string_view input;
  std::string_view text;
};

constexpr Placeholder placeholders[] = {
    {"means", "M1,M2"},
    {"mean", "M"},
    {"mean-difference", "D"},
    {"test-value", "M0"},
    {"sd", "SD"},
    {"sds", "SD1,SD2"},
    {"sd-difference", "SD"},
    {"effect-d", "D"},
    {"effect-f", "F"},
    {"effect-f2", "F2"},
    {"eta-squared", "ETA2"},
    {"n", "N"},
    {"ratio", "R"},
    {"ratios", "R1,R2,R3"},
    {"groups", "K"},
    {"coefficients", "C1,C2,C3"},
    {"pair", "I,J"},
    {"power", "POWER"},
    {"half-width", "W"},
    {"alpha", "ALPHA"},
    {"proportion", "P"},
    {"null", "VALUE0"},
    {"proportions", "P1,P2"},
    {"proportion1", "P1"},
    {"proportion2", "P2"},
    {"risk-difference", "RD"},
    {"risk-ratio", "RR"},
    {"odds-ratio", "OR"},
    {"p12", "P12"},
    {"p21", "P21"},
    {"correlation", "RHO"},
    {"r", "R"},
    {"r-squared", "R2"},
    {"r-squared-reduced", "R2"},
    {"predictors", "K"},
    {"tested", "Q"},
    {"partialled-out", "K"},
};

std::string PlaceholderOf(const Test& test, Name name) {
  const Parameter& parameter = *FindParameter(test, name);
  if (parameter.kind == Kind::Flag) return "";
  const bool isOfManyGroups = test.groups == groupsFromInputs && name == Name("means");
  if (isOfManyGroups) return " M1,M2,M3";
  for (const auto& [input, text] : placeholders) {
    if (input == name.Text()) return fmt::format(" {}", text);
  }
  return parameter.kind == Kind::Choice ? " WORD" : parameter.IsList() ? " X1,X2" : " X";
}

/// "--means M1,M2 --sd SD --n N", with what may be given besides in brackets.
std::string Usage(const Test& test, const Route& route) {
  std::string text = "kelpower " + test.name;
  const auto given = [&](Name name) { return Option(name) + PlaceholderOf(test, name); };
  const std::optional<Name> asker = AskedBy(route.question);
  for (Name need : route.needs) text += ' ' + given(need);
  if (asker) text += ' ' + given(*asker);
  for (Name input : route.accepts) {
    if (input != asker && !Contains(OfferedInputs(), input)) text += fmt::format(" [{}]", given(input));
  }
  return text;
}

/// Whether the line of another route says all that this one's would, such as that of the one-sided form of a test.
bool IsCovered(const Test& test, const Route& route) {
  return std::any_of(test.routes.begin(), test.routes.end(), [&](const Route& other) {
    const auto takes = [&](Name name) { return other.Takes(name); };
    return other.question == route.question && other.needs == route.needs &&
           other.accepts.size() > route.accepts.size() &&
           std::all_of(route.accepts.begin(), route.accepts.end(), takes);
  });
}

const char* HeadingOf(Question question) {
  switch (question) {
    case Question::Power: return "Power of a design";
    case Question::SampleSize: return "Sample size for a power";
    case Question::HalfWidth: return "Half-width of the confidence interval of a design";
    case Question::SampleSizeForHalfWidth: return "Sample size for a half-width";
  }
  return "";
}

/// The commonest call: it asks for the sizes.
const Example& FirstExample(const Test& test) {
  const auto asksForSizes = [](const Example& example) {
    const bool hasSizes = example.arguments.find(" --n ") != std::string::npos;
    return !hasSizes && example.arguments.find(" --power ") != std::string::npos;
  };
  const auto found = std::find_if(test.examples.begin(), test.examples.end(), asksForSizes);
  return found == test.examples.end() ? test.examples.front() : *found;
}

std::string ExampleText(const Example& example) {
  return fmt::format("  kelpower {}\n    {}\n", example.arguments, example.sentence);
}

std::string UsageSection(const Test& test, const Highlights& highlights) {
  std::string text;
  for (Question question :
       {Question::Power, Question::SampleSize, Question::HalfWidth, Question::SampleSizeForHalfWidth}) {
    if (!Answers(test, question)) continue;
    text += fmt::format("{}{}{}\n", highlights.heading, HeadingOf(question), highlights.end);
    for (const Route& route : test.routes) {
      if (route.question == question && !IsCovered(test, route)) text += "  " + Usage(test, route) + '\n';
    }
    text += '\n';
  }
  return text;
}

/// How the remaining number of a design is asked for.
std::string UnknownSection(const Test& test, const Highlights& highlights) {
  if (test.unknowns.empty()) return "";
  return fmt::format(
      "{}Effect that a design detects{}\n  Give --n and --power, and leave the effect out; --solve NAME asks for another "
      "number.\n\n",
      highlights.heading, highlights.end);
}

std::string ChartUsage(const Chart& chart) {
  std::string text = fmt::format("--chart {}  power over {}", chart.name, chart.axes.front().title);
  if (chart.axes.size() > 1) text += " and " + chart.axes.back().title;
  return text;
}

std::string ChartSection(const Test& test, const Highlights& highlights) {
  if (test.charts.empty()) return "";
  std::string text = fmt::format("\n{}Charts{}\n", highlights.heading, highlights.end);
  for (const Chart& chart : test.charts) {
    if (chart.isAnotherWay) continue;
    text += fmt::format("  {}\n    kelpower {}\n", ChartUsage(chart), chart.example);
  }
  return text +
         "  --from NUMBER --to NUMBER  ends of the axis; of two axes, two numbers each: --from 12,2\n"
         "  --step NUMBER              step of an axis that is not of sizes, as a share of its range (default 0.01)\n"
         "  --output FILE              .svg, .png, .pdf, .csv or .json; without it the chart is drawn in characters\n";
}

std::size_t WidthOfOptions(const Test& test) {
  std::size_t width = 0;
  for (const Parameter& parameter : test.parameters) width = std::max(width, OptionText(parameter).size());
  return width;
}

/// The options that are offered around every question, or the others.
std::string ParameterLines(const Test& test, bool areOffered) {
  const std::size_t width = WidthOfOptions(test);
  std::string text;
  for (const Parameter& parameter : test.parameters) {
    if (Contains(OfferedInputs(), parameter.name) != areOffered) continue;
    const std::string unit = parameter.unit.empty() ? "" : ", in " + parameter.unit;
    text += fmt::format("  {:<{}}  {}{}\n", OptionText(parameter), width, Meaning(parameter), unit);
    if (const std::string details = Details(test, parameter); !details.empty()) {
      text += fmt::format("  {:<{}}{}\n", "", width, details);
    }
  }
  return text;
}

std::string OptionLines(const Test& test) {
  const std::size_t width = WidthOfOptions(test);
  std::string text = ParameterLines(test, false);
  text += fmt::format("  {:<{}}  also tell what is behind the answer, and how other programs are asked the same\n",
                      "--explain", width);
  text += fmt::format("  {:<{}}  text (default), json, csv, markdown or ndjson\n", "--format WORD", width);
  text += fmt::format("  {:<{}}  keep the design for \"kelpower run\"\n", "--save FILE.json", width);
  text +=
      fmt::format("  {:<{}}  threads for a table of many designs; default one on each core\n", "--jobs NUMBER", width);
  text += fmt::format("  {:<{}}  this help\n", "--help", width);
  return text;
}

}  // namespace

std::string OptionOf(std::string_view input) { return fmt::format("--{}", input); }

std::string HelpOf(const Test& test, const Highlights& highlights) {
  const auto heading = [&](const char* words) {
    return fmt::format("{}{}{}\n", highlights.heading, words, highlights.end);
  };
  const Example& first = FirstExample(test);
  std::string text = heading(test.title.c_str());
  text += fmt::format("{}\n{}\n\n", test.about, test.whenNot);
  text += heading("For example") + ExampleText(first) + "What you leave out is what is solved for.\n\n";
  text += UsageSection(test, highlights) + UnknownSection(test, highlights);
  text += heading("Options") + OptionLines(test) + '\n';
  text += heading("Before the study starts") + ParameterLines(test, true);
  text += ChartSection(test, highlights);
  text += fmt::format("\n{}", heading("More examples"));
  for (const Example& example : test.examples) {
    if (&example != &first) text += ExampleText(example);
  }
  return text;
}

std::string HelpOfRun(const Highlights& highlights) {
  return fmt::format(
      "{0}Answers a file of designs{1}\n"
      "Each row is a design and gets its answer, in the order of the file. What a row leaves out is what is solved for.\n\n"
      "  kelpower run FILE.csv|FILE.ndjson|FILE.json [--test NAME] [--format WORD] [--output FILE] [--jobs NUMBER]\n\n"
      "{0}The file{1}\n"
      "  The column \"test\" names the test, the others are its options without dashes. An empty field is not given.\n"
      "  In csv a list is separated by spaces, and a flag is true or false. In json a file is an array of objects, or one.\n"
      "  The answers are the rows with the results, a note where one is due, and the error of a row that has no answer.\n\n"
      "{0}Options{1}\n"
      "  FILE           .csv, .ndjson or .json; - for the standard input\n"
      "  --test NAME    the test of all rows, where no column names it\n"
      "  --format WORD  csv, ndjson or json; default that of the file\n"
      "  --output FILE  the file of the answers; default the standard output\n"
      "  --jobs NUMBER  threads; default one on each core\n"
      "  --help         this help\n\n"
      "{0}Example{1}: kelpower run designs.csv --output answers.csv\n",
      highlights.heading, highlights.end);
}

std::string ListOfTests(const Highlights& highlights) {
  std::size_t width = 0;
  for (const Test& test : Tests()) width = std::max(width, test.name.size());
  std::string text;
  for (const Test& test : Tests()) {
    text += fmt::format("{}{:<{}}{}  {}\n", highlights.heading, test.name, width, highlights.end, test.title);
  }
  return text;
}
