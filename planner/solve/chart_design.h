#ifndef KELPOWER_PLANNER_SOLVE_CHART_DESIGN_H
#define KELPOWER_PLANNER_SOLVE_CHART_DESIGN_H

#include <optional>
#include <vector>

#include "model/chart.h"
#include "solve/prepared_question.h"

namespace planner {

/// A design with the question that a chart asks of it at every point.
struct ChartDesign {
  std::optional<Value> alternative;  // that tells it from the others
  PreparedQuestion question;
  Quantity quantity;
  double value;  // of the design itself, NaN where there is none

  const Inputs& Design() const { return question.Design(); }

  /// What the chart shows of the design that the inputs describe, NaN where there is none. The other side of a
  /// one-sided test has none. Throws Stopped on request.
  double ValueOf(const Inputs& inputs);
};

/// The designs of a chart, one for each alternative. Sizes that are asked for are found.
std::vector<ChartDesign> DesignsOf(const Test& test, const ChartRequest& request, const InputValues& values,
                                   StopRequest* stop);

}  // namespace planner

#endif
