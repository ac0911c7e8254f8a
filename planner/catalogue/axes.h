#ifndef KELPOWER_PLANNER_CATALOGUE_AXES_H
#define KELPOWER_PLANNER_CATALOGUE_AXES_H

#include <string>

#include "model/chart.h"

// Axes that the charts of several tests share. Those of sizes are in size_axes.cpp.
namespace planner {

/// The usual ranges of axes, from the design and its power.
using UsualRange = Range (*)(const Inputs&, double power);

/// An axis of total sample sizes, which the sizes in `n` share as in the design. It starts where they leave something
/// to estimate the standard deviation from.
Axis TotalSizeAxis();

/// An axis of the size of a single sample, the input `n`. `title` says what it counts.
Axis SizeAxis(std::string title, double smallest, double largest, UsualRange usual);

/// An axis of the parameter's values, with its label and limits.
Axis ParameterAxis(const Parameter& parameter, std::string symbol, UsualRange usual);

/// An axis of proportions. Its points are shares of the whole scale, and its ends are none of them.
Axis ProportionAxis(std::string title, std::string symbol, Name input);

/// The axis with another usual range.
Axis WithUsual(Axis axis, UsualRange usual);

/// Around the design's total size: the better its power, the smaller the sizes. Each group has at least 2 and the
/// largest at most 5000.
Range AroundTotalByPower(const Inputs& in, double power);

/// From a quarter of the design's total size, or 2 in each group, to twice that size.
Range AroundTotalSize(const Inputs& in, double power);

/// Around the design's size: the better its power, the smaller the sizes.
Range AroundSizeByPower(const Inputs& in, double power);

/// From 2 to twice the design's size.
Range UpToTwiceSize(const Inputs& in, double power);

/// From a quarter of the size to twice the size, as far as `allowed` goes.
Range SizesAround(double size, const Range& allowed);

/// The problem that sizes beyond those allowed for these inputs are; none where all are allowed.
std::optional<Problem> RefuseSizes(const Range& sizes, const Range& allowed);

/// The sum of the sizes in `n`.
double TotalSize(const Inputs& in);

}  // namespace planner

#endif
