#include <fmt/format.h>

#include <algorithm>

#include "choose_route.h"
#include "planner/catalogue.h"
#include "planner/render.h"

namespace planner {
namespace {

/// "--n, --group-sizes LIST"
std::string OptionText(const Parameter& parameter) {
  std::string text = "--" + parameter.name;
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

std::string Details(const Parameter& parameter) {
  if (parameter.kind == Kind::Flag) return "";
  std::string text = "  (" + Allowed(parameter);
  if (parameter.fallback) text += "; default " + Shown(*parameter.fallback);
  return text + ")";
}

/// "--means --sd --n", with what may be given besides in brackets.
std::string Usage(const Test& test, const Route& route) {
  std::string text = "kelpower " + test.name;
  for (const std::string& need : route.needs) text += " --" + need;
  const std::string asker = AskedBy(route.question);
  if (!asker.empty()) text += " --" + asker;
  for (const std::string& option : route.accepts) text += " [--" + option + "]";
  return text;
}

/// Whether the line of another route says all that this one's would, such as that of the one-sided form of a test.
bool IsCovered(const Test& test, const Route& route) {
  return std::any_of(test.routes.begin(), test.routes.end(), [&](const Route& other) {
    const auto takes = [&](const std::string& option) { return Takes(other, option); };
    return other.question == route.question && other.needs == route.needs &&
           other.accepts.size() > route.accepts.size() &&
           std::all_of(route.accepts.begin(), route.accepts.end(), takes);
  });
}

std::string UsageSection(const Test& test, const Paint& paint) {
  std::string text;
  for (Question question :
       {Question::Power, Question::SampleSize, Question::HalfWidth, Question::SampleSizeForHalfWidth}) {
    if (!Answers(test, question)) continue;
    text += fmt::format("{}To be told {}{}\n", paint.heading, Wording(question), paint.end);
    for (const Route& route : test.routes) {
      if (route.question == question && !IsCovered(test, route)) text += "  " + Usage(test, route) + '\n';
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

/// The first of the ways to draw the same chart by the same export.
const Chart* FirstAlike(const Test& test, const Chart& chart) {
  const auto isAlike = [&](const Chart& other) {
    return other.name == chart.name && other.exportName == chart.exportName;
  };
  return &*std::find_if(test.charts.begin(), test.charts.end(), isAlike);
}

std::string ChartSection(const Test& test, const Paint& paint) {
  if (test.charts.empty()) return "";
  std::string text = fmt::format("\n{}Charts{}\n", paint.heading, paint.end);
  for (const Chart& chart : test.charts) {
    if (&chart != FirstAlike(test, chart)) continue;
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
    text += fmt::format("  {:<{}}  {}{}\n", OptionText(parameter), width, parameter.meaning, unit);
    if (const std::string details = Details(parameter); !details.empty()) {
      text += fmt::format("  {:<{}}{}\n", "", width, details);
    }
  }
  text += fmt::format("  {:<{}}  text (default), json, csv or markdown\n", "--format WORD", width);
  text += fmt::format("  {:<{}}  this help\n", "--help", width);
  return text;
}

}  // namespace

std::string RenderHelp(const Test& test, const Paint& paint) {
  std::string text = fmt::format("{}{}{}\n{}\nWhat you leave out is what is solved for.\n\n", paint.heading, test.title,
                                 paint.end, test.about);
  text += UsageSection(test, paint);
  text += fmt::format("{}Options{}\n{}", paint.heading, paint.end, OptionLines(test));
  text += ChartSection(test, paint);
  for (const Example& example : test.examples) {
    text += fmt::format("\n{}Example{}: kelpower {}\n  {}\n", paint.heading, paint.end, example.arguments,
                        example.sentence);
  }
  return text;
}

std::string RenderList(const Paint& paint) {
  std::size_t width = 0;
  for (const Test& test : Tests()) width = std::max(width, test.name.size());
  std::string text;
  for (const Test& test : Tests()) {
    text += fmt::format("{}{:<{}}{}  {}\n", paint.heading, test.name, width, paint.end, test.title);
  }
  return text;
}

}  // namespace planner
