#ifndef KELPOWER_PLANNER_MODEL_CHART_H
#define KELPOWER_PLANNER_MODEL_CHART_H

#include <optional>
#include <string>
#include <vector>

#include "model/inputs.h"
#include "model/name.h"
#include "model/parameter.h"
#include "model/problem.h"

namespace planner {

/// The ends of an axis, or of what there is to draw.
struct Range {
  double from = 0;
  double to = 0;
};

/// Which ends of a scale are points of a chart.
enum class ScaleEnds { Both, First, None };

/// One axis of a chart: a figure of the design that is varied, and where its points lie.
struct Axis {
  std::string title;   // with unit: "total sample size (observations)"
  std::string symbol;  // in the mark of the design: "n"
  Limits limits;       // of its ends; whole for sizes

  /// The input that is varied. Where the figure is none, two functions take its place: where the design lies, and how
  /// it is moved to `at`, with what the figure does not tell taken from the design itself.
  std::optional<Name> input = {};
  double (*design)(const Inputs&) = nullptr;
  void (*vary)(Inputs& inputs, const Inputs& design, double at) = nullptr;

  /// The range drawn unless the user gives one, from the design and its power. No length: there is none.
  Range (*usual)(const Inputs&, double power) = nullptr;

  /// Where there is something to draw with these inputs; its start carries a point. Null: everywhere.
  Range (*scale)(const Inputs&) = nullptr;
  ScaleEnds scaleEnds = ScaleEnds::Both;
  bool stepIsOfScale = false;  // a step is a share of the scale, and not of the range shown
  bool isTotal = false;        // of the sizes of all groups together

  /// The problem that a range within the limits has with these inputs.
  std::optional<Problem> (*refuse)(const Inputs&, const Range&) = nullptr;

  bool IsOfSizes() const { return limits.whole; }
  double PlaceOf(const Inputs& inputs) const { return input ? inputs.Number(*input) : design(inputs); }
  void Move(Inputs& inputs, const Inputs& from, double at) const {
    if (input) return inputs.Set(*input, at);
    vary(inputs, from, at);
  }
};

/// One chart of a test: the power over one or two axes. Several charts with the same name draw it from different
/// inputs, as routes are ways to an answer.
struct Chart {
  std::string name;        // the word that asks for it: "n", "n-sd"
  std::vector<Axis> axes;  // one for a curve, two for a surface
  Names needs;
  Names accepts = {};
  std::string example;                       // the arguments after the program's name
  bool isAnotherWay = false;                 // to draw the chart before it, so that help need not name it
  double (*steps)(const Inputs&) = nullptr;  // of one power, where a chart of many may take long

  bool Takes(Name input) const {
    static const Names always{"alpha", "comparisons", "cluster-size", "icc", "cluster-cv", "effect-sd"};
    return Contains(always, input) || Contains(needs, input) || Contains(accepts, input);
  }
};

/// What the user asks of a chart. Of a surface, `from` and `to` have one entry for each axis. Empty, they stand for the
/// usual range.
struct ChartRequest {
  std::string name;
  Numbers from = {};
  Numbers to = {};
  std::optional<double> step = {};  // as a share of the range
};

/// The values of a chart: of a curve `power[i]` at `x[i]`, of a surface `power[i * y.size() + j]` at `(x[i], y[j])`.
/// Where there is no power it is NaN, a gap.
struct Series {
  Numbers x;
  Numbers y;  // empty for a curve
  Numbers power;
};

/// The design on a chart: its place on each axis, and its power.
struct DesignMark {
  Numbers at;
  double power;
};

struct Test;

/// A computed chart.
struct ChartData {
  const Test* test;
  const Chart* chart;
  std::string exportName;  // that gave the powers
  Series series;
  std::optional<DesignMark> mark;  // unless the design lies outside
};

}  // namespace planner

#endif
