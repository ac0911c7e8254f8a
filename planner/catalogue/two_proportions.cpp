#include "catalogue/two_proportions.h"

#include <utility>

#include "catalogue/tests.h"
#include "catalogue/two_proportions_margins.h"
#include "catalogue/words.h"

namespace planner {

using kelpower::proportions::TwoProportionTest;

TwoProportionTest TestOf(const Inputs& in) { return TwoProportionTest(in.Choice("method")); }

bool IsConditional(const Inputs& in) { return TestOf(in) == TwoProportionTest::Conditional; }

bool IsPooled(const Inputs& in) { return !in.Flag("unpooled"); }

bool IsExact(const Inputs& in) { return in.Flag("exact") || IsConditional(in); }

double FirstProportion(const Inputs& in) {
  return in.Has("proportions") ? in.List("proportions")[0] : in.Number("proportion1");
}

double SecondProportion(const Inputs& in) {
  if (in.Has("proportions")) return in.List("proportions")[1];
  const double first = FirstProportion(in);
  if (in.Has("proportion2")) return in.Number("proportion2");
  if (in.Has("risk-difference")) return first + in.Number("risk-difference");
  if (in.Has("risk-ratio")) return first * in.Number("risk-ratio");
  return SecondOfOddsRatio(first, in.Number("odds-ratio"));
}

// The odds r p / (1 - p) as a proportion, in a form that does not overflow for a large ratio.
double SecondOfOddsRatio(double first, double oddsRatio) { return first / (first + (1 - first) / oddsRatio); }

kelpower::proportions::IndependentDesign DesignOf(const Inputs& in) {
  return {TestOf(in), IsExact(in), in.Flag("one-sided"), in.Alpha(), in.Flag("correction"), IsPooled(in)};
}

kelpower::proportions::IndependentSizes WantedOf(const Inputs& in) {
  return {FirstProportion(in), SecondProportion(in), in.Number("ratio")};
}

std::vector<Names> EffectsOfTwoProportions() {
  return {{"proportions"},
          {"proportion1", "proportion2"},
          {"proportion1", "risk-difference"},
          {"proportion1", "risk-ratio"},
          {"proportion1", "odds-ratio"}};
}

Names OptionsOfTwoProportions() { return {"method", "exact", "unpooled", "correction", "one-sided"}; }

Names With(Names names, Name name) {
  names.push_back(name);
  return names;
}

Test TwoProportionsTest() {
  Test test{.name = "two-proportions",
            .title = "Test of two independent proportions",
            .about = "Tests whether two independent groups have the same proportion.",
            .groups = 2};
  test.parameters = ParametersOfTwoProportions();
  test.routes = RoutesOfTwoProportions();
  test.unknowns = UnknownsOfTwoProportions();
  test.unevenness = [](const Inputs& in) {
    if (IsConditional(in)) return Unevenness::UnevenAndSlow;
    return in.Flag("exact") ? Unevenness::Uneven : Unevenness::Even;
  };
  test.conditions = ConditionsOfTwoProportions();
  for (Condition& condition : SizeConditionsOfTwoProportions()) test.conditions.push_back(std::move(condition));
  test.sizeExists = SizeExistsForTwoProportions();
  test.derived = FiguresOfTwoProportions();
  test.assumptions = AssumptionsOfTwoProportions();
  test.offers.clusters = true;
  test.axes = AxesOfTwoProportions();
  test.effect = RiskDifference;
  test.steps = StepsOfPower;
  AddMarginsOfTwoProportions(test);
  AddWordsOfTwoProportions(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
