#include <cmath>

#include "catalogue/axes.h"
#include "catalogue/margins.h"
#include "catalogue/two_groups.h"
#include "catalogue/two_proportions.h"

namespace planner {
namespace {

/// Gives the proportions themselves, whichever way they were given.
void SetProportions(Inputs& in, double first, double second) {
  for (Name name :
       {Name("proportion1"), Name("proportion2"), Name("risk-difference"), Name("risk-ratio"), Name("odds-ratio")}) {
    in.Erase(name);
  }
  if (!in.Has("proportions")) in.SetList("proportions", {first, second});
  in.SetEntry("proportions", 0, first);
  in.SetEntry("proportions", 1, second);
}

/// The first proportion moves, and the second stays where it is.
Axis FirstProportionAxis() {
  return {.name = "proportion1",
          .title = "first proportion",
          .symbol = "p1",
          .limits = {0, 1, true, true, false},
          .design = FirstProportion,
          .vary = [](Inputs& in, const Inputs&, double at) { SetProportions(in, at, SecondProportion(in)); },
          .scale = [](const Inputs&) -> Range {
            return {0, 1};
          }};
}

Axis SecondProportionAxis() {
  return {.name = "proportion2",
          .title = "second proportion",
          .symbol = "p2",
          .limits = {0, 1, true, true, false},
          .design = SecondProportion,
          .vary = [](Inputs& in, const Inputs&, double at) { SetProportions(in, FirstProportion(in), at); },
          .scale = [](const Inputs&) -> Range {
            return {0, 1};
          }};
}

void KeepFirst(Inputs& in, double second) { SetProportions(in, FirstProportion(in), second); }

Axis RiskDifferenceAxis() {
  return {.name = "risk-difference",
          .title = "risk difference (second minus first)",
          .symbol = "difference",
          .limits = {-1, 1, true, true, false},
          .design = RiskDifference,
          .vary = [](Inputs& in, const Inputs&, double at) { KeepFirst(in, FirstProportion(in) + at); },
          .scale = [](const Inputs& in) -> Range {
            return {-FirstProportion(in), 1 - FirstProportion(in)};
          }};
}

constexpr double largestRatio = 1000;
Axis RiskRatioAxis() {
  return {.name = "risk-ratio",
          .title = "risk ratio (second over first)",
          .symbol = "risk ratio",
          .limits = {0, largestRatio, false, true, false},
          .design = RiskRatio,
          .vary = [](Inputs& in, const Inputs&, double at) { KeepFirst(in, FirstProportion(in) * at); },
          .scale = [](const Inputs& in) -> Range {
            return {0, 1 / FirstProportion(in)};
          }};
}

Axis OddsRatioAxis() {
  return {
      .name = "odds-ratio",
      .title = "odds ratio (second over first)",
      .symbol = "odds ratio",
      .limits = {0, largestRatio, false, true, false},
      .design = OddsRatio,
      .vary = [](Inputs& in, const Inputs&, double at) { KeepFirst(in, SecondOfOddsRatio(FirstProportion(in), at)); }};
}

}  // namespace

/// The conditional test goes over tables, the other exact ones over rows; that of a margin searches its region.
double StepsOfPower(const Inputs& in) {
  constexpr double stepsOfRow = 10;
  const Numbers& n = in.List("n");
  if (!IsExact(in)) return 1;
  if (HasMargins(in)) return 2 * stepsOfRow * std::pow(n[0] + n[1], 1.5);
  return IsConditional(in) ? n[0] * n[1] : stepsOfRow * (n[0] + n[1]);
}

std::vector<Axis> AxesOfTwoProportions() {
  return {FirstProportionAxis(), SecondProportionAxis(), RiskDifferenceAxis(),
          RiskRatioAxis(),       OddsRatioAxis(),        SizeRatioAxis()};
}

}  // namespace planner
