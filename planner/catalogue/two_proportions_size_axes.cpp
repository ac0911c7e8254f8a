#include <algorithm>
#include <cmath>

#include "catalogue/axes.h"
#include "catalogue/two_proportions.h"

namespace planner {
namespace {

constexpr double mostObservations = 1e9;

// A step of an exact test takes a few nanoseconds, so that this many take a second or so.
constexpr double usualSteps = 3e8;

double Size1(const Inputs& in) { return in.List("n")[0]; }
double Size2(const Inputs& in) { return in.List("n")[1]; }

Range AllowedSizes(const Inputs& in) { return {2, IsExact(in) ? largestExactGroup : mostObservations}; }

/// How far the usual range of sizes goes at most. At this distance 250 sizes are drawn, and an exact test takes a second
/// or so.
double Reach(const Inputs& in) {
  constexpr double farthest = 1245;
  constexpr double nearest = 2;
  if (!IsExact(in)) return farthest;
  return std::clamp(std::floor(std::sqrt(usualSteps / StepsOfTwoProportionsPower(in)) / 2), nearest, farthest);
}

Range SizesAroundGroup(const Inputs& in, double size) {
  const Range around = SizesAround(size, AllowedSizes(in));
  const double reach = Reach(in);
  return {std::max(around.from, size - reach), std::min(around.to, size + reach)};
}

Axis Size1Axis() {
  return {.title = "size of the first group (observations)",
          .symbol = "n1",
          .limits = {2, mostObservations, true, true, true},
          .design = Size1,
          .vary = [](Inputs& in, const Inputs&, double at) { in.SetEntry("n", 0, at); },
          .usual = [](const Inputs& in, double) { return SizesAroundGroup(in, Size1(in)); },
          .refuse = [](const Inputs& in, const Range& sizes) { return RefuseSizes(sizes, AllowedSizes(in)); }};
}

Axis Size2Axis() {
  return {.title = "size of the second group (observations)",
          .symbol = "n2",
          .limits = {2, mostObservations, true, true, true},
          .design = Size2,
          .vary = [](Inputs& in, const Inputs&, double at) { in.SetEntry("n", 1, at); },
          .usual = [](const Inputs& in, double) { return SizesAroundGroup(in, Size2(in)); },
          .refuse = [](const Inputs& in, const Range& sizes) { return RefuseSizes(sizes, AllowedSizes(in)); }};
}

}  // namespace

double StepsOfTwoProportionsPower(const Inputs& in) {
  constexpr double stepsOfRow = 10;
  const Numbers& n = in.List("n");
  if (!IsExact(in)) return 1;
  return IsConditional(in) ? n[0] * n[1] : stepsOfRow * (n[0] + n[1]);
}

std::vector<Axis> SizeAxesOfTwoProportions() { return {Size1Axis(), Size2Axis()}; }

}  // namespace planner
