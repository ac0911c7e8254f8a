#include "catalogue/two_proportions.h"

#include <utility>

#include "catalogue/charts.h"
#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/words.h"
#include "proportions/independent_interval.h"

namespace planner {

using kelpower::proportions::IndependentMethod;
using kelpower::proportions::TwoProportionTest;

TwoProportionTest TestOf(const Inputs& in) { return TwoProportionTest(in.Choice("test")); }

bool IsConditional(const Inputs& in) { return TestOf(in) == TwoProportionTest::Conditional; }

bool IsExact(const Inputs& in) { return in.Flag("exact") || IsConditional(in); }

kelpower::proportions::IndependentDesign DesignOf(const Inputs& in) {
  return {TestOf(in),       IsExact(in), in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"),
          in.Flag("pooled")};
}

kelpower::proportions::IndependentSizes WantedOf(const Inputs& in) {
  return {FirstProportion(in), SecondProportion(in), in.Number("ratio")};
}

std::vector<Names> EffectsOfTwoProportions() {
  return {{"proportions"},
          {"proportion1", "risk-difference"},
          {"proportion1", "risk-ratio"},
          {"proportion1", "odds-ratio"}};
}

Names OptionsOfTwoProportions() { return {"test", "exact", "pooled", "continuity-correction", "one-sided"}; }

Names With(Names names, Name name) {
  names.push_back(name);
  return names;
}

std::vector<Parameter> ParametersOfTwoProportions() {
  return {
      PerGroup("proportions", "proportions", "proportion expected in each group").Above(0).Below(1),
      Number("proportion1", "first proportion", "proportion expected in the first group").Above(0).Below(1),
      Number("risk-difference", "risk difference", "first proportion minus the second").Above(-1).Below(1),
      Number("risk-ratio", "risk ratio", "first proportion over the second").Above(0),
      Number("odds-ratio", "odds ratio", "odds in the first group over those in the second").Above(0),
      GroupSizes().AtLeast(2),
      RatioOfSizes(),
      OneOf("test", "test", "test of the difference; conditional is always exact",
            {{"z", CodeOf(TwoProportionTest::Z), "z test"},
             {"t", CodeOf(TwoProportionTest::T), "t test"},
             {"likelihood-ratio", CodeOf(TwoProportionTest::LikelihoodRatio), "likelihood-ratio test"},
             {"arcsine", CodeOf(TwoProportionTest::Arcsine), "arcsine test"},
             {"conditional", CodeOf(TwoProportionTest::Conditional), "conditional (Fisher) test"}})
          .Default("z"),
      Flag("exact", "exact power", "sum over all tables in place of the large-sample formula"),
      Flag("pooled", "pooled variance", "standard error under equal proportions (z), pooled variance (t)"),
      Flag("continuity-correction", "continuity correction", "correct the z test or the interval for continuity"),
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

Test TwoProportionsTest() {
  Test test{.name = "two-proportions",
            .title = "Test of two independent proportions",
            .about = "Tests whether two independent groups have the same proportion.",
            .groups = 2};
  test.parameters = ParametersOfTwoProportions();
  test.routes = RoutesOfTwoProportions();
  test.conditions = ConditionsOfTwoProportions();
  test.sizeExists = SizeExistsForTwoProportions();
  test.derived = FiguresOfTwoProportions();
  test.charts = ChartsOfTwoProportions();
  AddWordsOfTwoProportions(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
