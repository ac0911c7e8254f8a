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

std::string UsageSection(const Test& test, const Highlights& highlights) {
  std::string text;
  for (Question question :
       {Question::Power, Question::SampleSize, Question::HalfWidth, Question::SampleSizeForHalfWidth}) {
    if (!Answers(test, question)) continue;
    text += fmt::format("{}To be told {}{}\n", highlights.heading, Wording(question), highlights.end);
    for (const Route& route : test.routes) {
      if (route.question == question) text += "  " + Usage(test, route) + '\n';
    }
    text += '\n';
  }
  return text;
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
