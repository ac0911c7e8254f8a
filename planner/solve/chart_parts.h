#ifndef KELPOWER_PLANNER_SOLVE_CHART_PARTS_H
#define KELPOWER_PLANNER_SOLVE_CHART_PARTS_H

#include <optional>
#include <vector>

#include "model/chart.h"
#include "solve/chart.h"
#include "solve/chart_design.h"
#include "solve/grid.h"

// The steps of computing a chart. Those that find a fault throw an InputError.
namespace planner {

inline constexpr double stepOfCurve = 0.005;
inline constexpr double stepOfSurface = 0.01;

void CheckQuantity(const ChartRequest& request, const std::vector<Axis>& axes, Quantity quantity);
void CheckRequest(const ChartRequest& request, const std::vector<Axis>& axes);

/// Where the points lie: as asked, or over the usual ranges.
std::vector<AxisGrid> GridsOf(const std::vector<Axis>& axes, const ChartRequest& request,
                              std::vector<ChartDesign>& designs);

/// Powers that take long are asked at fewer points, unless the user says which.
void Thin(const Test& test, const ChartRequest& request, std::vector<AxisGrid>& grids, const Inputs& design);

void CheckPoints(const Test& test, const std::vector<AxisGrid>& grids, const Inputs& design);

/// Tells a step at fault from a range at fault: the usual step would draw something.
void RejectWithoutPoints(std::vector<AxisGrid> grids, const ChartRequest& request, const Inputs& design);

Series SeriesOf(const std::vector<Axis>& axes, const std::vector<AxisGrid>& grids, ChartDesign& design,
                const Inputs& first);

void RejectWithoutValues(const std::vector<ChartCurve>& curves);

/// The design's place on the chart and its value, as the question about it answers.
std::optional<DesignMark> MarkOf(const std::vector<Axis>& axes, const Series& series, const ChartDesign& design);

}  // namespace planner

#endif
