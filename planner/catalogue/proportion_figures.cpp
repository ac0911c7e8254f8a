#include "catalogue/core.h"
#include "catalogue/margins.h"
#include "catalogue/proportion.h"
#include "catalogue/proportion_margins.h"
#include "proportions/one_sample_tests.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

/// Of one margin, the counts beyond it.
proportions::CriticalRegion RegionOfMargin(const Inputs& in) {
  const double n = in.Number("n");
  const proportions::CriticalRegion shown = proportions::OneSampleMarginTest(OneSampleMarginDesignOf(in)).Region(n);
  if (IsEquivalence(in)) return {-1, n + 1};
  return IsAboveMargin(in, NoContrast(in)) ? proportions::CriticalRegion{-1, shown.lower}
                                           : proportions::CriticalRegion{shown.upper, n + 1};
}

proportions::CriticalRegion RegionOf(const Inputs& in) {
  if (HasMargins(in)) return RegionOfMargin(in);
  return proportions::OneSampleTest(OneSampleDesignOf(in)).Region(in.Number("n"), OneSampleProportionsOf(in));
}

// No number, and so not reported, where no count in that tail rejects.
double LargestLowRejection(const Inputs& in) {
  const double count = RegionOf(in).lower;
  return count < 0 ? OrNaN(kelpower::NoValue::NotReached) : count;
}

double SmallestHighRejection(const Inputs& in) {
  const double count = RegionOf(in).upper;
  return count > in.Number("n") ? OrNaN(kelpower::NoValue::NotReached) : count;
}

double AttainedLevel(const Inputs& in) {
  if (HasMargins(in))
    return proportions::OneSampleMarginTest(OneSampleMarginDesignOf(in)).AttainedLevel(in.Number("n"));
  return proportions::OneSampleTest(OneSampleDesignOf(in)).AttainedLevel(in.Number("n"), OneSampleProportionsOf(in));
}

}  // namespace

std::vector<Derived> FiguresOfProportion() {
  return {
      {.name = "rejects-to",
       .label = "rejects up to this count",
       .needs = {"proportion", "null", "n", "exact"},
       .call = LargestLowRejection},
      {.name = "rejects-from",
       .label = "rejects from this count",
       .needs = {"proportion", "null", "n", "exact"},
       .call = SmallestHighRejection},
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"proportion", "null", "n", "exact"},
       .call = AttainedLevel},
  };
}

}  // namespace planner
