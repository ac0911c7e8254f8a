#include "solve/results.h"

#include <algorithm>
#include <numeric>

namespace planner {

std::vector<ResultColumn> ResultColumns(const Test& test, const Route& route, const Unknown* unknown, bool isUneven) {
  std::vector<ResultColumn> columns;
  if (unknown) {
    const Parameter& parameter = *FindParameter(test, unknown->input);
    columns.push_back({std::string(parameter.name.Text()), parameter.label, Reading::Figure});
  }
  for (const Derived& derived : test.derived) {
    const auto takes = [&](Name name) { return route.Takes(name); };
    if (!std::all_of(derived.needs.begin(), derived.needs.end(), takes)) continue;
    columns.push_back({derived.name, derived.label, Reading::Figure, &derived});
  }
  const bool findsSizes = AsksForSizes(route.question);
  const bool isGrouped = test.groups != 1;
  const Reading sizes = isGrouped ? Reading::Sizes : Reading::Size;
  if (findsSizes) columns.push_back({"n", isGrouped ? "group sizes" : "sample size", sizes});
  if (isGrouped) columns.push_back({"total", "total sample size", Reading::Size});
  if (findsSizes && isUneven) {
    columns.push_back({"lasting-n", "all larger sizes reach it from", sizes, nullptr, true});
  }
  const std::string suffix = findsSizes ? " at these sizes" : "";
  if (IsAboutPower(route.question)) {
    columns.push_back({"power", "power" + suffix, Reading::Power});
  } else {
    columns.push_back({"half-width", "half-width" + suffix, Reading::HalfWidth});
  }
  return columns;
}

double TotalOf(const Numbers& sizes) { return std::accumulate(sizes.begin(), sizes.end(), 0.0); }

}  // namespace planner
