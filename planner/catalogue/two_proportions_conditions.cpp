#include <algorithm>

#include "catalogue/two_proportions.h"
#include "proportions/independent_interval.h"
#include "proportions/independent_power.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::IndependentMethod;
using proportions::TwoProportionTest;

// A search takes some hundred powers, and the work of the conditional test grows with the square of the size.
constexpr double largestExactSearch = 5000;

// Rounding in the sum over the tables must not keep a search from its target.
constexpr double largestExactPower = 0.9999;

/// The large-sample sizes tell whether an exact search is short enough to start.
bool IsShortSearch(const Inputs& in) {
  if (!IsExact(in)) return true;
  const Numbers sizes = LargeSampleSizes(in, IsConditional(in) ? TwoProportionTest::Z : TestOf(in));
  return !sizes.empty() && std::max(sizes[0], sizes[1]) <= largestExactSearch;
}

bool HasSecond(const Inputs& in) { return SecondProportion(in) > 0 && SecondProportion(in) < 1; }

bool ExactWhereItCanBe(const Inputs& in) { return !in.Flag("exact") || TestOf(in) != TwoProportionTest::Arcsine; }

/// The exact likelihood-ratio test counts the tables of both directions.
bool HasDirection(const Inputs& in) {
  return !in.Flag("one-sided") || !in.Flag("exact") || TestOf(in) != TwoProportionTest::LikelihoodRatio;
}

bool UnpooledWhereItCanBe(const Inputs& in) {
  if (!in.Flag("unpooled") || TestOf(in) == TwoProportionTest::T) return true;
  return TestOf(in) == TwoProportionTest::Z && !IsExact(in);
}

bool AsksForInterval(const Inputs& in) { return in.Has("half-width") || in.Flag("interval"); }

bool CorrectsATestThatCanBe(const Inputs& in) {
  return AsksForInterval(in) || !in.Flag("correction") || TestOf(in) == TwoProportionTest::Z;
}

bool CorrectsAnIntervalThatCanBe(const Inputs& in) {
  if (!AsksForInterval(in) || !in.Flag("correction")) return true;
  const auto method = IndependentMethod(in.Choice("interval-method"));
  return method == IndependentMethod::Wald || method == IndependentMethod::Newcombe;
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

std::vector<Condition> ConditionsOfTwoProportions() {
  return {
      {.code = "second-proportion",
       .about = {"proportion1", "risk-difference"},
       .holds = HasSecond,
       .sentence = "{risk-difference} puts the second proportion outside 0 to 1."},
      {.code = "second-proportion",
       .about = {"proportion1", "risk-ratio"},
       .holds = HasSecond,
       .sentence = "{risk-ratio} puts the second proportion outside 0 to 1."},
      {.code = "second-proportion",
       .about = {"proportion1", "odds-ratio"},
       .holds = HasSecond,
       .sentence = "{odds-ratio} puts the second proportion at 0 or 1."},
      {.code = "one-sided-likelihood-ratio",
       .about = {"method", "exact", "one-sided"},
       .holds = HasDirection,
       .sentence = "{one-sided} does not go with {exact} and {method} likelihood-ratio: the statistic has no sign, so "
                   "that tables of both directions would be rejected; {method} z or conditional has a direction."},
      {.code = "exact-arcsine",
       .about = {"exact", "method"},
       .holds = ExactWhereItCanBe,
       .sentence = "{exact} does not go with {method} arcsine: its exact form is {method} conditional."},
      {.code = "unpooled-test",
       .about = {"unpooled", "method", "exact"},
       .holds = UnpooledWhereItCanBe,
       .sentence =
           "{unpooled} goes with the t test and the large-sample z test only; the exact z test is always pooled."},
      {.code = "corrected-test",
       .about = {"correction", "method"},
       .holds = CorrectsATestThatCanBe,
       .sentence = "{correction} goes with the z test only."},
      {.code = "corrected-interval",
       .about = {"correction", "interval-method"},
       .holds = CorrectsAnIntervalThatCanBe,
       .sentence = "{correction} goes with the intervals wald and newcombe only."},
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
       .holds = [](const Inputs& in) { return FirstProportion(in) != SecondProportion(in); },
       .sentence = "The two proportions are equal: without a difference, no sample size reaches the power."},
      {.code = "long-search",
       .about = {"power"},
       .holds = IsShortSearch,
       .sentence =
           "Exact tests are searched up to about 5000 observations in a group: use a large-sample test for more."},
  };
}

}  // namespace planner
