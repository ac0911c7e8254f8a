#include "catalogue/core.h"
#include "catalogue/margins.h"
#include "catalogue/proportion_margins.h"

namespace planner {
namespace {

bool IsProportion(double p) { return p > 0 && p < 1; }

bool AreProportions(const Inputs& in) {
  const auto limits = ProportionLimitsOf(in);
  return (!limits.HasLower() || IsProportion(limits.lower)) && (!limits.HasUpper() || IsProportion(limits.upper));
}

bool IsWithin(const Inputs& in) {
  const auto limits = ProportionLimitsOf(in);
  return limits.lower < in.Number("proportion") && in.Number("proportion") < limits.upper;
}

double LowerLimit(const Inputs& in) {
  const auto limits = ProportionLimitsOf(in);
  return limits.HasLower() ? limits.lower : OrNaN(kelpower::NoValue::Refused);
}

double UpperLimit(const Inputs& in) {
  const auto limits = ProportionLimitsOf(in);
  return limits.HasUpper() ? limits.upper : OrNaN(kelpower::NoValue::Refused);
}

/// The first and the last count of those that show equivalence; no number where there is none.
double FirstCount(const Inputs& in) {
  const auto region = kelpower::proportions::OneSampleMarginTest(OneSampleMarginDesignOf(in)).Region(in.Number("n"));
  return region.lower > region.upper ? OrNaN(kelpower::NoValue::NotReached) : region.lower;
}

double LastCount(const Inputs& in) {
  const auto region = kelpower::proportions::OneSampleMarginTest(OneSampleMarginDesignOf(in)).Region(in.Number("n"));
  return region.lower > region.upper ? OrNaN(kelpower::NoValue::NotReached) : region.upper;
}

}  // namespace

std::vector<Condition> MarginConditionsOfProportion() {
  return {
      {.code = "margin-outside",
       .about = {"null", "margin"},
       .holds = AreProportions,
       .sentence = "{margin} puts the proportion that is tested outside 0 to 1."},
      LimitsInOrder(),
      {.code = "limits-outside",
       .about = {"null", "equivalence"},
       .holds = AreProportions,
       .sentence = "{equivalence} puts a proportion that is tested outside 0 to 1."},
  };
}

std::vector<Condition> MarginSizeExistsForProportion() { return WithinMargins("proportion", "proportion", IsWithin); }

std::vector<Derived> MarginFiguresOfProportion() {
  std::vector<Derived> figures;
  for (Name way : {Name("margin"), Name("equivalence")}) {
    figures.push_back({.name = "lower-limit",
                       .label = "proportion to be above",
                       .needs = {"proportion", "null", way},
                       .call = LowerLimit});
    figures.push_back({.name = "upper-limit",
                       .label = "proportion to be below",
                       .needs = {"proportion", "null", way},
                       .call = UpperLimit});
  }
  const Names exact{"proportion", "null", "n", "exact", "equivalence"};
  figures.push_back(
      {.name = "equivalent-from", .label = "equivalence from this count", .needs = exact, .call = FirstCount});
  figures.push_back(
      {.name = "equivalent-to", .label = "equivalence up to this count", .needs = exact, .call = LastCount});
  return figures;
}

}  // namespace planner
