#include <algorithm>

#include "catalogue/margins.h"
#include "catalogue/two_proportions.h"
#include "proportions/independent_power.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::TwoProportionTest;

// A search takes some hundred powers, and the work of the conditional test grows with the square of the size.
constexpr double largestExactSearch = 5000;

// Rounding in the sum over the tables must not keep a search from its target.
constexpr double largestExactPower = 0.9999;

/// The large-sample sizes tell whether an exact search is short enough to start.
bool IsShortSearch(const Inputs& in) {
  if (!IsExact(in) || HasMargins(in)) return true;
  const Numbers sizes = LargeSampleSizes(in, IsConditional(in) ? TwoProportionTest::Z : TestOf(in));
  return !sizes.empty() && std::max(sizes[0], sizes[1]) <= largestExactSearch;
}

bool CanCountTables(const Inputs& in) {
  const Numbers& n = in.List("n");
  return !IsExact(in) || std::max(n[0], n[1]) <= largestExactGroup;
}

bool ExactCanReach(const Inputs& in) {
  const double power = in.Number("power");
  return !IsExact(in) || (power >= in.Alpha() && power <= largestExactPower);
}

/// The arcsine test moves half an observation between the outcomes of each group, which must be there.
bool LeavesArcsineItsCorrection(const Inputs& in) {
  if (TestOf(in) != TwoProportionTest::Arcsine) return true;
  proportions::IndependentPower power(DesignOf(in), in.List("n")[0], in.List("n")[1]);
  return power.At(FirstProportion(in), SecondProportion(in)).Reason() != kelpower::NoValue::Refused;
}

}  // namespace

std::vector<Condition> SizeConditionsOfTwoProportions() {
  return {
      {.code = "exact-size",
       .about = {"n"},
       .holds = CanCountTables,
       .sentence = "{n} of an exact test must be at most 10000."},
      {.code = "exact-power",
       .about = {"power", "alpha"},
       .holds = ExactCanReach,
       .sentence = "{power} of an exact test must be from {alpha} to 0.9999."},
      {.code = "clusters-of-exact",
       .about = {"cluster-size", "exact", "method"},
       .holds = [](const Inputs& in) { return !IsExact(in); },
       .sentence = "{cluster-size} goes with large-sample tests only: {exact} and {method} conditional count "
                   "observations that are independent of each other."},
      {.code = "arcsine-size",
       .about = {"n"},
       .holds = LeavesArcsineItsCorrection,
       .sentence =
           "{n} is too small for the arcsine test: each group must expect at least half an observation of the outcome "
           "that is more frequent in it than in the other."},
  };
}

std::vector<Condition> SizeExistsForTwoProportions() {
  return {
      {.code = "no-effect",
       .about = {"power"},
       .holds = [](const Inputs& in) { return HasMargins(in) || FirstProportion(in) != SecondProportion(in); },
       .sentence = "The two proportions are equal: without a difference, no sample size reaches the power."},
      {.code = "long-search",
       .about = {"power"},
       .holds = IsShortSearch,
       .sentence =
           "Exact tests are searched up to about 5000 observations in a group: use a large-sample test for more."},
  };
}

}  // namespace planner
