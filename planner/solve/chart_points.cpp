#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "model/problem.h"
#include "solve/chart_parts.h"

namespace planner {
namespace {

// More points than any screen shows. The limit keeps a slip of the finger from computing for hours.
constexpr double mostPoints = 1e6;

// Steps of an exact test take a few nanoseconds each.
constexpr double mostStepsOfChart = 5e9;

double PointsOf(const std::vector<AxisGrid>& grids) {
  double points = 1;
  for (const AxisGrid& grid : grids) points *= PointCount(grid);
  return points;
}

/// The steps of all powers, by the sizes in the middle.
double StepsOf(const Test& test, const std::vector<AxisGrid>& grids, const Inputs& design) {
  if (!test.steps || !design.Has("n")) return 0;
  Inputs middle = design;
  for (const AxisGrid& grid : grids) {
    if (grid.axis->isOfSizes) grid.axis->vary(middle, design, std::round((grid.range.from + grid.range.to) / 2));
  }
  return PointsOf(grids) * test.steps(middle);
}

bool HasPoints(const std::vector<AxisGrid>& grids, const Inputs& design) {
  return std::all_of(grids.begin(), grids.end(), [&](const AxisGrid& grid) { return Points(grid, design).size() > 1; });
}

}  // namespace

void Thin(const Test& test, const ChartRequest& request, std::vector<AxisGrid>& grids, const Inputs& design) {
  constexpr double usualSteps = 3e8;
  constexpr double fewestPoints = 20;
  for (bool isThinned = true; isThinned && StepsOf(test, grids, design) > usualSteps;) {
    isThinned = false;
    for (AxisGrid& grid : grids) {
      if (PointCount(grid) < 2 * fewestPoints) continue;
      if (grid.axis->spacing == Spacing::Even ? request.step.has_value() : !request.from.empty()) continue;
      grid.step *= 2;
      grid.spacing *= 2;
      isThinned = true;
    }
  }
}

void CheckPoints(const Test& test, const std::vector<AxisGrid>& grids, const Inputs& design) {
  const double points = PointsOf(grids);
  const bool anyWhole =
      std::any_of(grids.begin(), grids.end(), [](const AxisGrid& grid) { return grid.axis->spacing != Spacing::Even; });
  if (points > mostPoints) {
    throw InputError({.code = Code::ChartTooLarge,
                      .inputs = anyWhole ? std::vector<std::string>{"from", "to"} : std::vector<std::string>{"step"},
                      .values = {mostPoints}});
  }
  if (StepsOf(test, grids, design) > mostStepsOfChart) {
    throw InputError({.code = Code::ChartTooSlow, .inputs = {"step", "from", "to"}});
  }
}

void RejectWithoutPoints(std::vector<AxisGrid> grids, const ChartRequest& request, const Inputs& design) {
  if (HasPoints(grids, design)) return;
  for (AxisGrid& grid : grids) grid.step = stepOfSurface;
  if (request.step && HasPoints(grids, design)) {
    throw InputError({.code = Code::ChartStepTooLarge, .inputs = {"step"}, .values = {*request.step}});
  }
  Problem problem{.code = Code::ChartEmpty, .inputs = {"from", "to"}};
  for (const AxisGrid& grid : grids) {
    Limits limits = grid.axis->limits;
    limits.low = grid.allowed.from;
    limits.high = grid.allowed.to;
    problem.words.push_back(grid.axis->title);
    problem.limits.push_back(limits);
  }
  throw InputError(std::move(problem));
}

}  // namespace planner
