#include "pictures/captions.h"

#include <algorithm>

#include "format/format.h"
#include "model/test.h"

namespace planner {
namespace {

std::string Shown(double number) { return Formatted("{:.6g}", number); }

std::string Shown(const Numbers& numbers) {
  const bool isEqual = std::equal(numbers.begin() + 1, numbers.end(), numbers.begin());
  if (isEqual) return Shown(numbers.front()) + (numbers.size() > 1 ? " each" : "");
  std::string text;
  for (double number : numbers) text += (text.empty() ? "" : ", ") + Shown(number);
  return text;
}

std::string Shown(const Parameter& parameter, const Value& value) {
  if (const auto* numbers = std::get_if<Numbers>(&value)) return Shown(*numbers);
  if (const auto* number = std::get_if<double>(&value)) return Shown(*number);
  const auto* word = std::get_if<std::string>(&value);
  if (!word) return "";
  const auto& choices = parameter.choices;
  return std::find_if(choices.begin(), choices.end(), [&](const auto& choice) { return choice.word == *word; })
      ->wording;
}

/// "effect size d 0.2"; of a choice its wording alone, which says what it is.
std::string Worded(const Parameter& parameter, const Value& value) {
  if (parameter.kind == Kind::Choice) return Shown(parameter, value);
  return parameter.label + " " + Shown(parameter, value);
}

/// A list of which only some entries are the same.
std::string Partly(const Parameter& parameter, const Numbers& first, const Numbers& last) {
  std::string text;
  for (std::size_t i = 0; i < first.size(); ++i) {
    text += (text.empty() ? " " : ", ") + (first[i] == last[i] ? Shown(first[i]) : std::string("..."));
  }
  return parameter.label + text;
}

/// The design moved to an end of every axis.
Inputs AtEnd(const ChartData& chart, const ChartCurve& curve, bool isFirst) {
  Inputs moved = curve.design;
  for (std::size_t i = 0; i < chart.axes.size(); ++i) {
    const Numbers& points = i == 0 ? curve.series.x : curve.series.y;
    const Inputs base = moved;
    chart.axes[i].vary(moved, base, isFirst ? points.front() : points.back());
  }
  return moved;
}

bool IsOfRoute(const ChartCurve& curve, Name name) {
  const bool isTarget = name == AskedBy(curve.route->question) && name != Name("interval");
  return name == Name("alpha") || isTarget || curve.route->Takes(name) || name == Name("proportions");
}

/// What the chart says of one input; nothing of one that varies.
std::string PieceOf(const ChartData& chart, const ChartCurve& curve, const Parameter& parameter, const Inputs& first,
                    const Inputs& last) {
  const Name name = parameter.name;
  if (!first.Has(name) || !last.Has(name) || !IsOfRoute(curve, name)) return "";
  if (parameter.kind == Kind::Flag) {
    if (name == Name("one-sided")) return first.Flag(name) ? "one-sided" : "two-sided";
    return first.Flag(name) ? parameter.label : "";
  }
  if (name == Name("groups")) return "";
  const bool isInterval =
      chart.quantity == Quantity::HalfWidth || curve.route->question == Question::SampleSizeForHalfWidth;
  if (name == Name("alpha") && isInterval) {
    return first.Alpha() == last.Alpha() ? Formatted("confidence {:.6g}%", 100 * (1 - first.Alpha())) : "";
  }
  const Value value = first.ValueOf(parameter);
  if (value == last.ValueOf(parameter)) return Worded(parameter, value);
  if (!parameter.IsList()) return "";
  const Numbers& from = first.List(name);
  const Numbers& to = last.List(name);
  const bool isAnySame = !std::equal(from.begin(), from.end(), to.begin(), [](double a, double b) { return a != b; });
  return isAnySame ? Partly(parameter, from, to) : "";
}

std::string PieceOf(const ChartData& chart, const ChartCurve& curve, const Parameter& parameter) {
  return PieceOf(chart, curve, parameter, AtEnd(chart, curve, true), AtEnd(chart, curve, false));
}

bool IsSameInAll(const ChartData& chart, const Parameter& parameter, const std::string& piece) {
  return std::all_of(chart.curves.begin(), chart.curves.end(),
                     [&](const ChartCurve& curve) { return PieceOf(chart, curve, parameter) == piece; });
}

/// A test that has sides but no choice of them is two-sided, as F tests go.
bool HasSides(const ChartCurve& curve) { return curve.route->Takes("one-sided"); }

}  // namespace

std::vector<std::string> HeldFixed(const ChartData& chart) {
  const ChartCurve& curve = chart.curves.front();
  std::vector<std::string> pieces;
  if (HasSides(curve) && !curve.design.Has("one-sided")) pieces.emplace_back("two-sided");
  for (const Parameter& parameter : chart.test->parameters) {
    const std::string piece = PieceOf(chart, curve, parameter);
    if (piece.empty() || parameter.name == chart.varied) continue;
    if (IsSameInAll(chart, parameter, piece)) pieces.push_back(piece);
  }
  return pieces;
}

std::string LabelOf(const ChartData& chart, const ChartCurve& curve) {
  if (!curve.alternative) return NameOf(chart.quantity);
  const Parameter& varied = *FindParameter(*chart.test, *chart.varied);
  std::string label = Worded(varied, *curve.alternative);
  for (const Parameter& parameter : chart.test->parameters) {
    if (parameter.name == chart.varied) continue;
    const std::string piece = PieceOf(chart, curve, parameter);
    if (!piece.empty() && !IsSameInAll(chart, parameter, piece)) label += " (" + piece + ")";
  }
  return label;
}

std::string NameOf(Quantity quantity) {
  switch (quantity) {
    case Quantity::Power: return "power";
    case Quantity::HalfWidth: return "half-width";
    case Quantity::Size: return "sample size";
  }
  return "";
}

std::string ValueTitle(const ChartData& chart) {
  if (chart.quantity != Quantity::Size) return NameOf(chart.quantity);
  const Test& test = *chart.test;
  if (test.groups == 1) return Formatted("sample size ({})", test.counted);
  const Inputs& design = chart.curves.front().design;
  const Numbers weights = design.Has("ratio") ? Numbers{1, design.Number("ratio")} : design.Weights();
  const bool isEqual = std::equal(weights.begin() + 1, weights.end(), weights.begin());
  return isEqual ? Formatted("sample size per group ({})", test.counted) : "size of the first group";
}

std::string MarkText(const ChartData& chart, const ChartCurve& curve) {
  std::string text;
  for (std::size_t i = 0; i < chart.axes.size(); ++i) {
    text += Formatted("{} = {:.6g}, ", chart.axes[i].symbol, curve.mark->at[i]);
  }
  const double value = curve.mark->value;
  const std::string shown = chart.quantity == Quantity::Power ? Formatted("{:.2f}", value) : Formatted("{:.4g}", value);
  return text + Formatted("{} {}", NameOf(chart.quantity), shown);
}

std::vector<std::string> Lines(const std::vector<std::string>& pieces, const std::string& separator,
                               std::size_t characters) {
  std::vector<std::string> lines;
  for (const std::string& piece : pieces) {
    const bool fits = !lines.empty() && lines.back().size() + separator.size() + piece.size() <= characters;
    if (fits) {
      lines.back() += separator + piece;
    } else {
      lines.push_back(piece);
    }
  }
  return lines;
}

}  // namespace planner
