#include "help.h"

#include <fmt/format.h>

#include <algorithm>

#include "catalogue/catalogue.h"
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

std::string Details(const Parameter& parameter) {
  if (parameter.kind == Kind::Flag) return "";
  std::string text = "  (" + Allowed(parameter);
  if (parameter.fallback) text += "; default " + Shown(*parameter.fallback);
  return text + ")";
}

/// "--means --sd --n", with what may be given besides in brackets.
std::string Usage(const Test& test, const Route& route) {
  std::string text = "kelpower " + test.name;
  for (Name need : route.needs) text += ' ' + Option(need);
  if (const std::optional<Name> asker = AskedBy(route.question)) text += ' ' + Option(*asker);
  for (Name input : route.accepts) text += fmt::format(" [{}]", Option(input));
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

std::string UsageSection(const Test& test, const Highlights& highlights) {
  std::string text;
  for (Question question :
       {Question::Power, Question::SampleSize, Question::HalfWidth, Question::SampleSizeForHalfWidth}) {
    if (!Answers(test, question)) continue;
    text += fmt::format("{}To be told {}{}\n", highlights.heading, Wording(question), highlights.end);
    for (const Route& route : test.routes) {
      if (route.question == question && !IsCovered(test, route)) text += "  " + Usage(test, route) + '\n';
    }
    text += '\n';
  }
  return text;
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

std::string OptionLines(const Test& test) {
  std::size_t width = 0;
  for (const Parameter& parameter : test.parameters) width = std::max(width, OptionText(parameter).size());
  std::string text;
  for (const Parameter& parameter : test.parameters) {
    const std::string unit = parameter.unit.empty() ? "" : ", in " + parameter.unit;
    text += fmt::format("  {:<{}}  {}{}\n", OptionText(parameter), width, Meaning(parameter), unit);
    if (const std::string details = Details(parameter); !details.empty()) {
      text += fmt::format("  {:<{}}{}\n", "", width, details);
    }
  }
  text += fmt::format("  {:<{}}  text (default), json, csv or markdown\n", "--format WORD", width);
  text += fmt::format("  {:<{}}  this help\n", "--help", width);
  return text;
}

}  // namespace

std::string OptionOf(std::string_view input) { return fmt::format("--{}", input); }

std::string HelpOf(const Test& test, const Highlights& highlights) {
  std::string text = fmt::format("{}{}{}\n{}\nWhat you leave out is what is solved for.\n\n", highlights.heading,
                                 test.title, highlights.end, test.about);
  text += UsageSection(test, highlights);
  text += fmt::format("{}Options{}\n{}", highlights.heading, highlights.end, OptionLines(test));
  text += ChartSection(test, highlights);
  for (const Example& example : test.examples) {
    text += fmt::format("\n{}Example{}: kelpower {}\n  {}\n", highlights.heading, highlights.end, example.arguments,
                        example.sentence);
  }
  return text;
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
