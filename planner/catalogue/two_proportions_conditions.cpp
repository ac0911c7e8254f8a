#include <utility>

#include "catalogue/two_proportions.h"
#include "proportions/independent_interval.h"

namespace planner {
namespace {

using kelpower::proportions::IndependentMethod;
using kelpower::proportions::TwoProportionTest;

bool HasSecond(const Inputs& in) { return SecondProportion(in) > 0 && SecondProportion(in) < 1; }

bool ExactWhereItCanBe(const Inputs& in) { return !in.Flag("exact") || TestOf(in) != TwoProportionTest::Arcsine; }

bool PooledWhereItCanBe(const Inputs& in) {
  if (!in.Flag("pooled") || TestOf(in) == TwoProportionTest::T) return true;
  return TestOf(in) == TwoProportionTest::Z && !IsExact(in);
}

bool AsksForInterval(const Inputs& in) { return in.Has("half-width") || in.Flag("interval"); }

bool CorrectsATestThatCanBe(const Inputs& in) {
  return AsksForInterval(in) || !in.Flag("continuity-correction") || TestOf(in) == TwoProportionTest::Z;
}

bool CorrectsAnIntervalThatCanBe(const Inputs& in) {
  if (!AsksForInterval(in) || !in.Flag("continuity-correction")) return true;
  const auto method = IndependentMethod(in.Choice("interval-method"));
  return method == IndependentMethod::Wald || method == IndependentMethod::Newcombe;
}

}  // namespace

std::vector<Condition> ConditionsOfTwoProportions() {
  std::vector<Condition> conditions = {
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
      {.code = "exact-arcsine",
       .about = {"exact", "test"},
       .holds = ExactWhereItCanBe,
       .sentence = "{exact} does not go with {test} arcsine: its exact form is {test} conditional."},
      {.code = "pooled-test",
       .about = {"pooled", "test", "exact"},
       .holds = PooledWhereItCanBe,
       .sentence =
           "{pooled} goes with the t test and the large-sample z test only; the exact z test is always pooled."},
      {.code = "corrected-test",
       .about = {"continuity-correction", "test"},
       .holds = CorrectsATestThatCanBe,
       .sentence = "{continuity-correction} goes with the z test only."},
      {.code = "corrected-interval",
       .about = {"continuity-correction", "interval-method"},
       .holds = CorrectsAnIntervalThatCanBe,
       .sentence = "{continuity-correction} goes with the intervals wald and newcombe only."},
  };
  for (Condition& condition : SizeConditionsOfTwoProportions()) conditions.push_back(std::move(condition));
  return conditions;
}

}  // namespace planner
