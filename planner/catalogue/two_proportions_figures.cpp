#include "catalogue/core.h"
#include "catalogue/margins.h"
#include "catalogue/two_proportions.h"
#include "proportions/independent_power.h"

namespace planner {

namespace proportions = kelpower::proportions;

double RiskDifference(const Inputs& in) { return SecondProportion(in) - FirstProportion(in); }

double RiskRatio(const Inputs& in) { return SecondProportion(in) / FirstProportion(in); }

double OddsRatio(const Inputs& in) {
  const double first = FirstProportion(in);
  const double second = SecondProportion(in);
  return second / (1 - second) / (first / (1 - first));
}

double CommonProportion(const Inputs& in) {
  const Numbers& n = in.List("n");
  return (n[0] * FirstProportion(in) + n[1] * SecondProportion(in)) / (n[0] + n[1]);
}

double AttainedLevelOfTwoProportions(const Inputs& in) {
  const proportions::IndependentDesign design = DesignOf(in);
  const auto alternative = proportions::AlternativeOf(design, FirstProportion(in), SecondProportion(in));
  proportions::IndependentPower power(design, in.List("n")[0], in.List("n")[1]);
  return OrNaN(power.AttainedLevel(alternative, CommonProportion(in), StopOfTables(in)));
}

std::vector<Derived> FiguresOfTwoProportions() {
  std::vector<Derived> figures;
  for (Name effect : {Name("risk-difference"), Name("risk-ratio"), Name("odds-ratio")}) {
    figures.push_back({.name = "proportion2",
                       .label = "second proportion",
                       .needs = {"proportion1", effect},
                       .call = SecondProportion});
  }
  for (const Names& proportions : {Names{"proportions"}, Names{"proportion1", "proportion2"}}) {
    figures.push_back({.name = "risk-difference",
                       .label = "risk difference (second minus first)",
                       .needs = proportions,
                       .call = RiskDifference});
    figures.push_back(
        {.name = "risk-ratio", .label = "risk ratio (second over first)", .needs = proportions, .call = RiskRatio});
    figures.push_back(
        {.name = "odds-ratio", .label = "odds ratio (second over first)", .needs = proportions, .call = OddsRatio});
  }
  figures.push_back({.name = "attained-level",
                     .label = "level attained at the common proportion",
                     .needs = {"n", "exact"},
                     .call = AttainedLevelOfTwoProportions,
                     // That of a margin is a figure of its own.
                     .isTold = [](const Inputs& in) { return IsExact(in) && !HasMargins(in); }});
  return figures;
}

}  // namespace planner
