#include <algorithm>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/partial.h"

namespace planner {
namespace {

// The chart has a point for each case; beyond this there would be more than it can show.
constexpr double largestPartialledOutSize = 1e6;

std::optional<Problem> RefuseManyCases(const Inputs& in, const Range&) {
  if (in.Number("n") <= largestPartialledOutSize) return std::nullopt;
  return Problem{.code = Code::ChartRangeRefused,
                 .inputs = {"chart", "n"},
                 .sentence = "{chart} partialled-out has a point for each case: {n} must be at most 1000000."};
}

}  // namespace

std::optional<Problem> RefusePartialSizes(const Inputs& in, const Range& sizes) {
  constexpr double sizesBeyondPartialledOut = 5000;
  return RefuseSizes(sizes, {SmallestPartialSize(in), PartialledOut(in) + sizesBeyondPartialledOut});
}

Chart PowerOverVariablesPartialledOut() {
  Axis axis{.title = "variables partialled out",
            .symbol = "k",
            .limits = {0, mostPartialledOut, true, true, true},
            .input = Name("partialled-out"),
            .usual = [](const Inputs& in, double) -> Range {
              return {0, std::max(in.Number("n") - 5, 1.0)};
            },
            .refuse = RefuseManyCases};
  return {.name = "partialled-out",
          .axes = {std::move(axis)},
          .needs = {"r", "partialled-out", "n"},
          .accepts = {"null", "one-sided"},
          .example = "partial --r 0.3 --partialled-out 3 --n 84 --chart partialled-out --from 0 --to 60"};
}

}  // namespace planner
