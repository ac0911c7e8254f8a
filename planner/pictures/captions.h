#ifndef KELPOWER_PLANNER_PICTURES_CAPTIONS_H
#define KELPOWER_PLANNER_PICTURES_CAPTIONS_H

#include <string>
#include <vector>

#include "model/chart.h"

namespace planner {

/// What a chart holds fixed, with the sides, level and method of its test, in pieces: "two-sided", "significance level
/// 0.05", "group means 10, 12, 15". A list of which only some entries are fixed shows dots for the others.
std::vector<std::string> HeldFixed(const ChartData& chart);

/// What tells a curve from the others: "effect size d 0.2".
std::string LabelOf(const ChartData& chart, const ChartCurve& curve);

/// The name of what the chart shows: "power", "half-width", "sample size".
std::string NameOf(Quantity quantity);

/// The title of the axis of values, with what is counted.
std::string ValueTitle(const ChartData& chart);

/// The place of the design: "n = 60, power 0.63".
std::string MarkText(const ChartData& chart, const ChartCurve& curve);

/// The pieces put after each other, with a separator, in lines of at most so many characters.
std::vector<std::string> Lines(const std::vector<std::string>& pieces, const std::string& separator,
                               std::size_t characters);

}  // namespace planner

#endif
