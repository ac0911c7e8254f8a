#include <algorithm>
#include <string>
#include <string_view>

#include "model/problem.h"
#include "solve/chart_parts.h"

namespace planner {
namespace {

const Limits stepLimits{0.001, 1, true, true, false};

std::string NameOf(const Alternatives& alternatives) { return std::string(alternatives.parameter->name.Text()); }

bool IsVaried(const std::vector<Axis>& axes, std::string_view input) {
  return std::any_of(axes.begin(), axes.end(), [&](const Axis& axis) {
    const std::vector<std::string> needs = Texts(axis.needs);
    return axis.name == input || (axis.isOfSizes && input == "n") || (needs.size() == 1 && needs.front() == input);
  });
}

void CheckCount(const ChartRequest& request, std::size_t axes, const std::string& name, const Numbers& ends) {
  if (ends.size() == axes) return;
  throw InputError({.code = Code::ChartEndsCount,
                    .inputs = {name, "chart"},
                    .values = {ends, static_cast<double>(axes)},
                    .words = {request.name}});
}

}  // namespace

void CheckQuantity(const ChartRequest& request, const std::vector<Axis>& axes, Quantity quantity) {
  if (axes.size() == 1) return;
  if (quantity != Quantity::Power) {
    throw InputError({.code = Code::ChartOneAxis, .inputs = {"chart"}, .words = {request.name}});
  }
  if (request.alternatives) {
    throw InputError({.code = Code::ChartOneDesign, .inputs = {NameOf(*request.alternatives), "chart"}});
  }
}

void CheckRequest(const ChartRequest& request, const std::vector<Axis>& axes) {
  if (request.alternatives && IsVaried(axes, NameOf(*request.alternatives))) {
    throw InputError({.code = Code::ChartVariesAlternatives, .inputs = {NameOf(*request.alternatives), "chart"}});
  }
  if (request.from.empty() != request.to.empty()) {
    throw InputError({.code = Code::ChartEndMissing, .inputs = {"from", "to"}});
  }
  if (!request.from.empty()) {
    CheckCount(request, axes.size(), "from", request.from);
    CheckCount(request, axes.size(), "to", request.to);
  }
  if (!request.step) return;
  if (std::none_of(axes.begin(), axes.end(), [](const Axis& axis) { return axis.spacing == Spacing::Even; })) {
    throw InputError({.code = Code::ChartStepUseless, .inputs = {"step", "chart"}, .words = {request.name}});
  }
  if (stepLimits.Allow(*request.step)) return;
  throw InputError(
      {.code = Code::ChartStepNotAllowed, .inputs = {"step"}, .values = {*request.step}, .limits = {stepLimits}});
}

}  // namespace planner
