#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/two_groups.h"
#include "catalogue/two_proportions.h"
#include "proportions/independent_interval.h"

namespace planner {

using kelpower::proportions::IndependentMethod;
using kelpower::proportions::TwoProportionTest;

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
      Flag("unpooled", "unpooled variance",
           "do not take the proportions (z) or the variances (t) to be equal in the standard error"),
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

}  // namespace planner
