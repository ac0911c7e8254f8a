#include "help.h"

#include <fmt/format.h>

#include <algorithm>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "solve/axes.h"
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
  for (const std::string& alias : parameter.aliases) {
    // What answers call a target is understood as an option too.
    if (alias != fmt::format("target-{}", parameter.name.Text())) text += ", --" + alias;
  }
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
    {"t", "T"},
    {"f-statistic", "F"},
    {"df", "DF"},
    {"hedges-g", "G"},
    {"superiority", "P"},
    {"correlations", "R1,R2"},
    {"effect-q", "Q"},
    {"effect-h", "H"},
    {"events", "E1,E2"},
    {"counts", "A,B,C,D"},
    {"confidence", "C"},
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

const char* HeadingOf(Question question) {
  switch (question) {
    case Question::Power: return "Power of a design";
    case Question::SampleSize: return "Sample size for a power";
    case Question::HalfWidth: return "Half-width of the confidence interval of a design";
    case Question::SampleSizeForHalfWidth: return "Sample size for a half-width";
    case Question::EffectSizes: return "What you have";
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
      if (route.question == question) text += "  " + Usage(test, route) + '\n';
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

/// The commonest call with two powers to reach.
std::string CallOfTable(const Test& test) {
  std::string call = FirstExample(test).arguments;
  const std::string option = " --power ";
  const std::size_t value = call.find(option) + option.size();
  return call.replace(value, call.find(' ', value) - value, "0.8,0.9");
}

std::string TableSection(const Test& test, const Highlights& highlights) {
  return fmt::format(
      "{}Many designs at once{}\n  Give an option several times, or a number as a list 0.8,0.9 or a range 20:100:20 (from, "
      "to, step):\n  all combinations are answered as one table. \"kelpower run FILE\" answers a file of designs.\n"
      "  kelpower {}\n\n",
      highlights.heading, highlights.end, CallOfTable(test));
}

/// Where the usual range of an axis goes, in few words.
std::string UsualRange(const Axis& axis) {
  if (axis.isOfSizes) return "from the smallest";
  if (axis.usual) return fmt::format("{} to {}", axis.usual->from, axis.usual->to);
  return "";
}

std::string AxisLine(const Axis& axis, std::size_t width) {
  const std::string usual = UsualRange(axis);
  return fmt::format("  {:<{}}  {}{}\n", axis.name, width, axis.title, usual.empty() ? "" : ", " + usual);
}

/// The design of the first example, which a chart can draw.
std::string DesignOfExample(const Test& test) { return test.examples.front().arguments; }

std::string ChartSection(const Test& test, const Highlights& highlights) {
  const std::vector<Axis> axes = AllAxes(test);
  std::size_t width = 0;
  for (const Axis& axis : axes) width = std::max(width, axis.name.size());
  std::string text = fmt::format("\n{}Charts{}\n", highlights.heading, highlights.end);
  text +=
      "  --chart AXIS draws the power (with --interval the half-width) over one of these axes, and --chart AXIS-AXIS\n"
      "  the power over two of them:\n";
  for (const Axis& axis : axes) text += AxisLine(axis, width);
  return text +
         fmt::format(
             "  The usual range goes from a power near alpha to one of 0.99, with the design inside.\n"
             "  Give the design by its sizes, or by --power to draw it at the sizes found. One option may have\n"
             "  several values, by repeating it or as in --alpha 0.01,0.05, for a curve each.\n"
             "  --y n                      the sizes that reach --power or --half-width, over any other axis\n"
             "  --from NUMBER --to NUMBER  ends of the axis; of two axes, two numbers each: --from 12,2\n"
             "  --step NUMBER              step between points, as a share of the range; whole numbers go by ones\n"
             "  --output FILE              .svg, .png, .pdf, .csv or .json; without it drawn in characters\n"
             "  --title TEXT  --width PIXELS  --height PIXELS  --dpi NUMBER (of .png)\n"
             "  kelpower {} --chart {}\n",
             DesignOfExample(test), axes.front().name);
}

std::size_t OptionWidth(const Test& test) {
  std::size_t width = 0;
  for (const Parameter& parameter : test.parameters) width = std::max(width, OptionText(parameter).size());
  return width;
}

/// The lines of the options that are offered around every question, or of the others.
std::string InputLines(const Test& test, std::size_t width, bool areOffered = false) {
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
  const std::size_t width = OptionWidth(test);
  std::string text = InputLines(test, width);
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
  text += UsageSection(test, highlights) + UnknownSection(test, highlights) + TableSection(test, highlights);
  text += heading("Options") + OptionLines(test) + '\n';
  text += heading("Before the study starts") + InputLines(test, OptionWidth(test), true);
  text += ChartSection(test, highlights);
  text += fmt::format("\n{}", heading("More examples"));
  for (const Example& example : test.examples) {
    if (&example != &first) text += ExampleText(example);
  }
  return text;
}

std::string HelpOfEffects(const Highlights& highlights) {
  const Effects& effects = EffectSizes();
  const Test& test = effects.inputs;
  const auto heading = [&](const std::string& words) {
    return fmt::format("{}{}{}\n", highlights.heading, words, highlights.end);
  };
  std::string text = heading(test.title) + fmt::format("{}\n{}\n\n", test.about, test.whenNot);
  text += heading("For example") + ExampleText(test.examples.front());
  for (std::size_t i = 0; i < effects.conversions.size(); ++i) {
    const std::string& title = effects.conversions[i].title;
    if (!title.empty()) text += '\n' + heading(title);
    text += "  " + Usage(test, test.routes[i]) + '\n';
  }
  const std::size_t width = OptionWidth(test);
  text += '\n' + heading("Options") + InputLines(test, width);
  text += fmt::format("  {:<{}}  also tell the formula and source of each effect size\n", "--explain", width);
  text += fmt::format("  {:<{}}  text (default), json, csv or markdown\n", "--format WORD", width);
  text += fmt::format("  {:<{}}  this help\n", "--help", width);
  text += '\n' + heading("More examples");
  for (std::size_t i = 1; i < test.examples.size(); ++i) text += ExampleText(test.examples[i]);
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
  text += fmt::format("\n{}{:<{}}{}  No test: converts what a study reports into effect sizes\n", highlights.heading,
                      EffectSizes().inputs.name, width, highlights.end);
  return text;
}
