#include <algorithm>
#include <cmath>
#include <numeric>

#include "solve/axes.h"
#include "solve/axis_kinds.h"

namespace planner {
namespace {

constexpr double largestSize = 1e9;

const Names sizesAlone{"n"};

double Total(const Numbers& sizes) { return std::accumulate(sizes.begin(), sizes.end(), 0.0); }

/// Whole sizes in the shares of the design, of which that of group `reference` is `size`.
void ShareBy(Inputs& in, const Inputs& design, std::size_t reference, double size) {
  const Numbers& planned = design.List("n");
  for (std::size_t i = 0; i < planned.size(); ++i) {
    in.SetEntry("n", i, std::max(1.0, std::round(planned[i] * (size / planned[reference]))));
  }
}

}  // namespace

Axis SingleSizeAxis(const Test& test, const Parameter& parameter) {
  return {.name = "n",
          .title = "sample size (" + test.counted + ")",
          .symbol = "n",
          .needs = sizesAlone,
          .limits = parameter.limits,
          .spacing = Spacing::Whole,
          .isOfSizes = true,
          .design = [](const Inputs& in) { return in.Number("n"); },
          .vary = [](Inputs& in, const Inputs&, double at) { in.Set("n", at); }};
}

Axis GroupSizeAxis(const Test& test, const Parameter& parameter, bool isEqual) {
  const std::string title = isEqual ? "sample size per group (" + test.counted + ")"
                                    : std::string("size of the first group (the others in proportion)");
  return {.name = "n",
          .title = title,
          .symbol = isEqual ? "n per group" : "n of the first group",
          .needs = sizesAlone,
          .limits = parameter.limits,
          .spacing = Spacing::Whole,
          .isOfSizes = true,
          .design = [](const Inputs& in) { return in.List("n").front(); },
          .vary = [](Inputs& in, const Inputs& design, double at) { ShareBy(in, design, 0, at); }};
}

Axis TotalAxis(const Test& test, int groups) {
  return {.name = "total",
          .title = "total sample size (" + test.counted + ")",
          .symbol = "total",
          .needs = sizesAlone,
          .limits = {static_cast<double>(groups), groups * largestSize, true, true, true},
          .spacing = Spacing::Totals,
          .isOfSizes = true,
          .design = [](const Inputs& in) { return Total(in.List("n")); },
          .vary = [](Inputs& in, const Inputs& design, double at) { SetTotal(in, design, at); }};
}

Axis SizeOfGroupAxis(const Test& test, const Parameter& parameter, std::size_t group) {
  const std::string number = std::to_string(group + 1);
  const std::string name = std::string("n").append(number);
  return {.name = name,
          .title = "size of group " + number + " (" + test.counted + ")",
          .symbol = name,
          .needs = sizesAlone,
          .limits = parameter.limits,
          .spacing = Spacing::Whole,
          .isOfSizes = true,
          .design = [group](const Inputs& in) { return in.List("n")[group]; },
          .vary = [group](Inputs& in, const Inputs&, double at) { in.SetEntry("n", group, at); }};
}

void SetTotal(Inputs& in, const Inputs& design, double at) {
  const std::size_t smallest = SmallestGroup(design);
  const Numbers& planned = design.List("n");
  const double near = std::max(1.0, std::round(at * (planned[smallest] / Total(planned))));
  for (const double size : {near, near - 1, near + 1}) {
    ShareBy(in, design, smallest, std::max(1.0, size));
    if (Total(in.List("n")) == at) return;
  }
  ShareBy(in, design, smallest, near);
}

std::size_t SmallestGroup(const Inputs& design) {
  const Numbers& planned = design.List("n");
  return static_cast<std::size_t>(std::min_element(planned.begin(), planned.end()) - planned.begin());
}

double TotalOf(const Inputs& design, double smallestSize) {
  const Numbers& planned = design.List("n");
  const double reference = planned[SmallestGroup(design)];
  double total = 0;
  for (double size : planned) total += std::max(1.0, std::round(size * (smallestSize / reference)));
  return total;
}

}  // namespace planner
