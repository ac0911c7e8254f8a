#include "catalogue/axes.h"

#include <utility>

namespace planner {

Axis ParameterAxis(const Parameter& parameter, std::string symbol, UsualRange usual) {
  const std::string unit = parameter.unit.empty() ? "" : " (" + parameter.unit + ")";
  return {.title = parameter.label + unit,
          .symbol = std::move(symbol),
          .limits = parameter.limits,
          .input = parameter.name,
          .usual = usual};
}

Axis ProportionAxis(std::string title, std::string symbol, Name input) {
  return {.title = std::move(title),
          .symbol = std::move(symbol),
          .limits = {0, 1, true, true, false},
          .input = input,
          .usual = [](const Inputs&, double) -> Range {
            return {0, 1};
          },
          .scale = [](const Inputs&) -> Range {
            return {0, 1};
          },
          .scaleEnds = ScaleEnds::None,
          .stepIsOfScale = true};
}

Axis WithUsual(Axis axis, UsualRange usual) {
  axis.usual = usual;
  return axis;
}

}  // namespace planner
