#include "window.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "planner/error.h"
#include "planner/value.h"

namespace planner {
namespace {

// A grid finer than this would show no more and takes long over many sizes.
constexpr double finestStep = 0.001;

bool IsGiven(const Range& range) { return range.from != range.to; }

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

Series Window(const Series& series, const Range& x, const Range& y) { return Cut(series, {x, y, 0}); }

}  // namespace planner
