#pragma once

#include <functional>
#include <string>
#include <vector>

#include "planner/inputs.h"
#include "planner/parameter.h"
#include "planner/value.h"

struct XYPlot;
struct XYZPlot;

namespace planner {

/// The values of a chart: of a curve `power[i]` at `x[i]`, of a surface `power[i * y.size() + j]` at `(x[i], y[j])`. A
/// power that is missing is NaN.
struct Series {
  Numbers x;
  Numbers y;  // empty for a curve
  Numbers power;
};

/// Copies a record of the library and releases it.
Series Curve(XYPlot record);
Series Surface(XYZPlot record);

/// The ends of an axis. An axis whose export chooses them itself has 0 for both.
struct Range {
  double from = 0;
  double to = 0;

  int First() const { return static_cast<int>(from); }
  int Last() const { return static_cast<int>(to); }
};

/// What a chart's call gets besides the inputs.
struct Ranges {
  Range x;
  Range y;      // of a surface
  double step;  // of every axis that is not of sizes, as a share of its range
};

/// The points of a series that lie within the ranges, for an export that takes no ends of its axes. An axis without a
/// range keeps all.
Series Cut(const Series& series, const Ranges& ranges);

/// One axis of a chart.
struct Axis {
  std::string title;                          // with unit: "total sample size (observations)"
  std::string symbol;                         // in the mark of the design: "n"
  Limits limits;                              // of its ends; whole for sizes
  double (*design)(const Inputs&) = nullptr;  // where the design lies on it
  Range (*usual)(const Inputs&) = nullptr;    // its range unless the user gives one; null: the export chooses
  double (*spacing)(const Range&) = nullptr;  // of the sizes that the export draws; null: each
  bool isTotal = false;                       // of the sizes of all groups together
};

/// One chart of a test. Several charts with the same name are ways to draw it from different inputs, as routes are ways
/// to an answer.
struct Chart {
  std::string name;        // the word after --chart: "n", "n-sd"
  std::vector<Axis> axes;  // one for a curve, two for a surface
  std::vector<std::string> needs;
  std::vector<std::string> accepts;
  std::string exportName;
  std::string example;  // the arguments after the program's name
  std::function<Series(const Inputs&, const Ranges&)> call;
};

/// An axis of total sample sizes, of the sizes in `n`; it starts where they leave something to estimate the standard
/// deviation from.
Axis TotalSizeAxis();
/// An axis of the sizes of a single sample, of the size in `n`; `title` says what they count.
Axis SizeAxis(std::string title, double smallest, double largest);
/// An axis of the parameter's values, with its label and limits.
Axis ParameterAxis(const Parameter& parameter, std::string symbol, double (*design)(const Inputs&));
/// The axis with a range of its own, for an export that chooses none.
Axis WithRange(Axis axis, Range (*usual)(const Inputs&));
/// From a quarter of the design's total size, or 2 in each group, to twice that size.
Range AroundTotalSize(const Inputs& in);
/// From 2 to twice the design's size.
Range UpToTwiceSize(const Inputs& in);

}  // namespace planner
