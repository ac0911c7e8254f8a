#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "catalogue/axes.h"

namespace planner {
namespace {

void ShareTotal(Inputs& in, const Inputs& design, double at) {
  const Numbers& sizes = design.List("n");
  const double factor = at / TotalSize(design);
  for (std::size_t i = 0; i < sizes.size(); ++i) in.SetEntry("n", i, factor * sizes[i]);
}

}  // namespace

double TotalSize(const Inputs& in) {
  const Numbers& sizes = in.List("n");
  return std::accumulate(sizes.begin(), sizes.end(), 0.0);
}

Axis TotalSizeAxis() {
  constexpr double smallestTotal = 2;
  constexpr double largestTotal = 1e9;
  return {.title = "total sample size (observations)",
          .symbol = "n",
          .limits = {smallestTotal, largestTotal, true, true, true},
          .design = TotalSize,
          .vary = ShareTotal,
          .usual = AroundTotalByPower,
          .isTotal = true};
}

Axis SizeAxis(std::string title, double smallest, double largest, UsualRange usual) {
  return {.title = std::move(title),
          .symbol = "n",
          .limits = {smallest, largest, true, true, true},
          .input = Name("n"),
          .usual = usual};
}

Range AroundTotalByPower(const Inputs& in, double power) {
  const Numbers& sizes = in.List("n");
  const auto [smallest, largest] = std::minmax_element(sizes.begin(), sizes.end());
  const double total = TotalSize(in);
  const double least = std::ceil(2 * total / *smallest);
  const double most = std::floor(5000 * total / *largest);
  return {std::max(least, std::floor((1 - power) * total)), std::min(most, std::ceil((2 - power) * total))};
}

Range AroundTotalSize(const Inputs& in, double) {
  const double smallest = 2.0 * in.Groups();
  const double total = TotalSize(in);
  return {std::min(std::max(smallest, std::floor(total / 4)), total), 2 * total};
}

Range AroundSizeByPower(const Inputs& in, double power) {
  const double size = in.Number("n");
  return {std::max(1.0, std::floor((1 - power) * size)), std::ceil((2 - power) * size)};
}

Range UpToTwiceSize(const Inputs& in, double) { return {2, 2 * in.Number("n")}; }

Range SizesAround(double size, const Range& allowed) {
  const double last = std::min(2 * size, allowed.to);
  const double first = std::min(std::floor(size / 4), std::floor(last / 2));
  return {std::max(first, allowed.from), std::max(last, allowed.from + 1)};
}

std::optional<Problem> RefuseSizes(const Range& sizes, const Range& allowed) {
  if (sizes.from >= allowed.from && sizes.to <= allowed.to) return std::nullopt;
  return Problem{.code = Code::ChartRangeRefused,
                 .inputs = {"from", "to"},
                 .values = {sizes.from, sizes.to, allowed.from, allowed.to},
                 .sentence = "{from} and {to} are <0> and <1>, but sizes must be from <2> to <3> for these inputs."};
}

}  // namespace planner
