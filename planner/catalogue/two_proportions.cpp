#include "catalogue/two_proportions.h"

#include <utility>

#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/words.h"
#include "proportions/independent_interval.h"

namespace planner {

using kelpower::proportions::IndependentMethod;
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

kelpower::proportions::IndependentDesign DesignOf(const Inputs& in) {
  return {TestOf(in), IsExact(in), in.Flag("one-sided"), in.Alpha(), in.Flag("correction"), IsPooled(in)};
}

kelpower::proportions::IndependentSizes WantedOf(const Inputs& in) {
  return {FirstProportion(in), SecondProportion(in), in.Number("ratio")};
}

double RiskDifference(const Inputs& in) { return SecondProportion(in) - FirstProportion(in); }

double RiskRatio(const Inputs& in) { return SecondProportion(in) / FirstProportion(in); }

double OddsRatio(const Inputs& in) {
  const double first = FirstProportion(in);
  const double second = SecondProportion(in);
  return second / (1 - second) / (first / (1 - first));
}

// The odds r p / (1 - p) as a proportion, in a form that does not overflow for a large ratio.
double SecondOfOddsRatio(double first, double oddsRatio) { return first / (first + (1 - first) / oddsRatio); }

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

std::vector<Parameter> ParametersOfTwoProportions() {
  return {
      PerGroup("proportions", "proportions", "proportion expected in each group").Above(0).Below(1),
      Number("proportion1", "first proportion", "proportion expected in the first group, that of reference")
          .Above(0)
          .Below(1),
      Number("proportion2", "second proportion", "proportion expected in the second group").Above(0).Below(1),
      Number("risk-difference", "risk difference", "second proportion minus the first").Above(-1).Below(1),
      Number("risk-ratio", "risk ratio", "second proportion over the first").Above(0),
      Number("odds-ratio", "odds ratio", "odds in the second group over those in the first").Above(0),
      GroupSizes().AtLeast(2),
      RatioOfSizes(),
      OneOf("method", "method", "test of the difference; conditional is always exact",
            {{"z", CodeOf(TwoProportionTest::Z), "z test"},
             {"t", CodeOf(TwoProportionTest::T), "t test"},
             {"likelihood-ratio", CodeOf(TwoProportionTest::LikelihoodRatio), "likelihood-ratio test"},
             {"arcsine", CodeOf(TwoProportionTest::Arcsine), "arcsine test"},
             {"conditional", CodeOf(TwoProportionTest::Conditional), "conditional (Fisher) test"}})
          .Alias("test")
          .Default("z"),
      Flag("exact", "exact power", "sum over all tables in place of the large-sample formula"),
      Flag("unpooled", "unpooled variance", "do not take the proportions (z) or the variances (t) to be equal in the standard error"),
      Flag("correction", "continuity correction", "correct the z test or the interval for continuity")
          .Alias("continuity-correction"),
      Flag("one-sided", "one-sided test", "test in the direction of the difference only"),
      OneOf("interval-method", "interval", "confidence interval of the difference",
            {{"wald", CodeOf(IndependentMethod::Wald), "Wald"},
             {"agresti-caffo", CodeOf(IndependentMethod::AgrestiCaffo), "Agresti-Caffo"},
             {"uniform-prior", CodeOf(IndependentMethod::AgrestiCaffoUnbiased), "uniform-prior"},
             {"brown-li-jeffreys", CodeOf(IndependentMethod::HalfAdded), "Brown-Li-Jeffreys"},
             {"hauck-anderson", CodeOf(IndependentMethod::UnbiasedCorrected), "Hauck-Anderson"},
             {"newcombe", CodeOf(IndependentMethod::Newcombe), "Newcombe"}})
          .Default("newcombe"),
  };
}

namespace {

std::vector<Derived> DerivedFigures() {
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
                     .call = AttainedLevelOfTwoProportions});
  return figures;
}

std::string StandardError(const Inputs& in) {
  if (TestOf(in) != TwoProportionTest::Z && TestOf(in) != TwoProportionTest::T) return "";
  return IsPooled(in) ? "pooled" : "unpooled";
}

std::string Tails(const Inputs& in) {
  if (!IsConditional(in) || in.Flag("one-sided")) return "";
  return "at most half of the level in each tail";
}

/// The arcsine test corrects without being asked.
std::string Correction(const Inputs& in) {
  return TestOf(in) == TwoProportionTest::Arcsine ? "half an observation in each group" : "";
}

std::vector<Assumption> Assumptions() {
  return {
      {.name = "standard-error",
       .label = "standard error",
       .needs = {"method", "unpooled"},
       .call = StandardError,
       .wording = "<0> "},
      {.name = "tails",
       .label = "tails of the test",
       .needs = {"method", "one-sided"},
       .call = Tails,
       .wording = ", with <0>,"},
      {.name = "corrected",
       .label = "corrected for continuity by",
       .needs = {"method", "correction"},
       .call = Correction,
       .wording = ", corrected by <0>,"},
  };
}

}  // namespace

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
  test.sizeExists = SizeExistsForTwoProportions();
  test.derived = DerivedFigures();
  test.assumptions = Assumptions();
  test.offers.clusters = true;
  test.axes = AxesOfTwoProportions();
  test.effect = RiskDifference;
  test.steps = StepsOfPower;
  AddWordsOfTwoProportions(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
