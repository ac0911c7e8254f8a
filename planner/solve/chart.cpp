#include "solve/chart.h"

#include <utility>

#include "model/problem.h"
#include "solve/axes.h"
#include "solve/chart_parts.h"

namespace planner {
namespace {

std::vector<Axis> ChooseAxes(const Test& test, const ChartRequest& request, const ChartDesign& design) {
  const std::vector<Axis> all = AxesOf(test, design.question.ChosenRoute(), design.Design());
  std::vector<Axis> axes = AxesNamed(request.name, all);
  if (!axes.empty()) return axes;
  Problem problem{.code = Code::ChartUnknown, .inputs = {"chart"}, .values = {request.name}};
  for (const Axis& axis : all) problem.words.push_back(axis.name);
  throw InputError(std::move(problem));
}

}  // namespace

ChartData ComputeChart(const Test& test, const ChartRequest& request, const InputValues& values, StopRequest* stop) {
  std::vector<ChartDesign> designs = DesignsOf(test, request, values, stop);
  const std::vector<Axis> axes = ChooseAxes(test, request, designs.front());
  CheckQuantity(request, axes, designs.front().quantity);
  CheckRequest(request, axes);
  std::vector<AxisGrid> grids = GridsOf(axes, request, designs);
  const Inputs first = designs.front().Design();
  Thin(test, request, grids, first);
  CheckPoints(test, grids, first);
  RejectWithoutPoints(grids, request, first);
  ChartData data{&test, request.name, axes, designs.front().quantity, std::nullopt, {}};
  if (request.alternatives) data.varied = request.alternatives->parameter->name;
  for (ChartDesign& design : designs) {
    Series series = SeriesOf(axes, grids, design, first);
    std::optional<DesignMark> mark = MarkOf(axes, series, design);
    data.curves.push_back(
        {design.alternative, design.Design(), &design.question.ChosenRoute(), std::move(series), std::move(mark)});
  }
  RejectWithoutValues(data.curves);
  return data;
}

}  // namespace planner
