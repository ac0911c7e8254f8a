#include "window.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "planner/error.h"
#include "planner/value.h"

namespace planner {
namespace {

// A grid finer than this would show no more and takes long over many sizes.
constexpr double finestStep = 0.001;

bool IsGiven(const Range& range) { return range.from != range.to; }

/// Grid points are sums of rounded steps.
bool Within(const Range& range, double value) {
  constexpr double slack = 1e-9;
  return !IsGiven(range) || (value >= range.from - slack && value <= range.to + slack);
}

Numbers Kept(const Numbers& values, const Range& range) {
  Numbers kept;
  std::copy_if(values.begin(), values.end(), std::back_inserter(kept),
               [&](double value) { return Within(range, value); });
  return kept;
}

}  // namespace

Range SizesAround(double size, const Range& allowed) {
  const double last = std::min(2 * size, allowed.to);
  const double first = std::min(std::floor(size / 4), std::floor(last / 2));
  return {std::max(first, allowed.from), std::max(last, allowed.from + 1)};
}

void CheckSizes(const Range& sizes, const Range& allowed) {
  if (sizes.from >= allowed.from && sizes.to <= allowed.to) return;
  throw InputError(fmt::format("--from and --to are {} and {}, but sizes must be from {} to {} for these inputs.",
                               Shortest(sizes.from), Shortest(sizes.to), Shortest(allowed.from), Shortest(allowed.to)));
}

double StepOfGrid(const Range& shown, double wholeSpan, double share) {
  const double span = IsGiven(shown) ? shown.to - shown.from : wholeSpan;
  return std::max(span * share, finestStep);
}

Series Window(const Series& series, const Range& x, const Range& y) {
  Series window{Kept(series.x, x), Kept(series.y, y), {}};
  const std::size_t yCount = std::max<std::size_t>(series.y.size(), 1);
  for (std::size_t i = 0; i < series.power.size(); ++i) {
    const bool kept = Within(x, series.x[i / yCount]) && (series.y.empty() || Within(y, series.y[i % yCount]));
    if (kept) window.power.push_back(series.power[i]);
  }
  return window;
}

}  // namespace planner
