#ifndef KELPOWER_PLANNER_MODEL_CHART_H
#define KELPOWER_PLANNER_MODEL_CHART_H

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "model/alternatives.h"
#include "model/inputs.h"
#include "model/name.h"
#include "model/parameter.h"
#include "model/route.h"
#include "model/value.h"

namespace planner {

/// The ends of an axis, or of what there is to draw.
struct Range {
  double from = 0;
  double to = 0;
};

/// How the points of an axis follow each other.
enum class Spacing {
  Even,    // by a step
  Whole,   // by ones: sizes and other counts
  Totals,  // by the totals that whole groups in the shares of the design make
};

/// An axis of a chart: a figure of the design that is varied. Every number of a test is one. A description adds figures
/// that are no inputs, such as a difference of means.
struct Axis {
  std::string name;    // the word that asks for it: "n", "difference"
  std::string title;   // with unit: "sample size per group (observations)"
  std::string symbol;  // in the mark of the design: "n"
  Names needs = {};    // inputs without which the design has no such figure
  Limits limits = {};  // of its ends
  Spacing spacing = Spacing::Even;
  bool isOfSizes = false;
  std::optional<Range> usual = {};  // where it is a fixed one

  /// Where the design lies, and how it is moved to `at`, with what the figure does not tell taken from the design.
  std::function<double(const Inputs&)> design = {};
  std::function<void(Inputs& inputs, const Inputs& design, double at)> vary = {};

  /// Beyond these ends, which are no points themselves, the design has no such figure. Null: as the limits say.
  Range (*scale)(const Inputs&) = nullptr;
};

/// What a chart shows over its axes.
enum class Quantity { Power, HalfWidth, Size };

/// What the user asks of a chart. Of a surface, `from` and `to` have one entry for each axis. Empty, they stand for the
/// usual range.
struct ChartRequest {
  std::string name;  // an axis, or two joined by a hyphen
  Numbers from = {};
  Numbers to = {};
  std::optional<double> step = {};  // as a share of the range
  bool showsSizes = false;          // the sizes that reach the target, in place of the power or half-width
  std::optional<Alternatives> alternatives = {};  // of one input: a curve for each
};

/// The values of a chart: of a curve `value[i]` at `x[i]`, of a surface `value[i * y.size() + j]` at `(x[i], y[j])`.
/// Where there is none it is NaN, a gap.
struct Series {
  Numbers x;
  Numbers y;  // empty for a curve
  Numbers value;
};

/// The design on a chart: its place on each axis, and its value.
struct DesignMark {
  Numbers at;
  double value;
};

/// The values of one design.
struct ChartCurve {
  std::optional<Value> alternative;  // that tells it from the others
  Inputs design;
  const Route* route;  // that gave the values
  Series series;
  std::optional<DesignMark> mark;  // unless the design lies outside
};

struct Test;

/// A computed chart.
struct ChartData {
  const Test* test;
  std::string name;
  std::vector<Axis> axes;  // one of a curve, two of a surface
  Quantity quantity;
  std::optional<Name> varied;      // the input that has a value for each curve
  std::vector<ChartCurve> curves;  // over the same points; of a surface one

  bool IsSurface() const { return axes.size() > 1; }
  const Series& First() const { return curves.front().series; }
};

}  // namespace planner

#endif
