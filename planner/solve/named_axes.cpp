#include <string_view>
#include <utility>

#include "solve/axes.h"

namespace planner {
namespace {

/// The words that have asked for an axis before it had the name of its input.
constexpr std::pair<std::string_view, std::string_view> otherAxisNames[] = {{"effect", "effect-d"},
                                                                            {"effect", "effect-f"},
                                                                            {"effect", "eta-squared"},
                                                                            {"effect", "effect-f2"},
                                                                            {"alternative", "proportion"}};

constexpr std::pair<std::string_view, std::string_view> otherChartNames[] = {{"sizes", "n1-n2"},
                                                                             {"proportions", "proportion1-proportion2"},
                                                                             {"marginal", "proportion1-proportion2"},
                                                                             {"discordant", "p12-p21"}};

const Axis* AxisNamed(std::string_view name, const std::vector<Axis>& axes) {
  for (const Axis& axis : axes) {
    if (axis.name == name) return &axis;
  }
  for (const auto& [other, meant] : otherAxisNames) {
    if (other != name) continue;
    for (const Axis& axis : axes) {
      if (axis.name == meant) return &axis;
    }
  }
  return nullptr;
}

/// A size per group, a total and the size of a group cannot be varied against each other, except sizes of two groups.
bool GoTogether(const Axis& first, const Axis& second) {
  if (first.name == second.name) return false;
  if (!first.isOfSizes || !second.isOfSizes) return true;
  const auto isOfAll = [](const Axis& axis) { return axis.name == "n" || axis.name == "total"; };
  return !isOfAll(first) && !isOfAll(second);
}

}  // namespace

std::vector<Axis> AxesNamed(const std::string& name, const std::vector<Axis>& axes) {
  for (const auto& [other, meant] : otherChartNames) {
    if (other == name) return AxesNamed(std::string(meant), axes);
  }
  if (const Axis* axis = AxisNamed(name, axes)) return {*axis};
  for (std::size_t at = name.find('-'); at != std::string::npos; at = name.find('-', at + 1)) {
    const Axis* first = AxisNamed(std::string_view(name).substr(0, at), axes);
    const Axis* second = AxisNamed(std::string_view(name).substr(at + 1), axes);
    if (first && second && GoTogether(*first, *second)) return {*first, *second};
  }
  return {};
}

}  // namespace planner
