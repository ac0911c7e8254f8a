#include "catalogue/two_proportions.h"
#include "proportions/independent_interval.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::IndependentMethod;
using proportions::TwoProportionTest;

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
  };
}

}  // namespace planner
