#include "catalogue/proportion.h"

#include <utility>

#include "catalogue/charts.h"
#include "catalogue/core.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "proportions/one_sample_interval.h"

namespace planner {
namespace {

using kelpower::proportions::OneSampleMethod;

std::vector<Parameter> Parameters() {
  return {
      Number("proportion", "proportion", "proportion expected").AtLeast(0).AtMost(1),
      Number("null", "null proportion", "proportion under the null hypothesis").Above(0).Below(1),
      Number("n", "sample size", "number of observations").Whole().AtLeast(1).AtMost(1e9),
      Flag("exact", "exact test", "exact binomial test in place of the normal approximation"),
      Flag("one-sided", "one-sided test", "test in the direction of the proportion expected only"),
      Flag("correction", "continuity correction", "correct the normal approximation for continuity"),
      OneOf("interval-method", "interval", "confidence interval of the proportion",
            {{"wald", CodeOf(OneSampleMethod::Wald), "Wald"},
             {"adjusted-logit", CodeOf(OneSampleMethod::LogitAdjusted), "adjusted logit"},
             {"logit", CodeOf(OneSampleMethod::Logit), "logit"},
             {"clopper-pearson", CodeOf(OneSampleMethod::ClopperPearson), "Clopper-Pearson"},
             {"jeffreys", CodeOf(OneSampleMethod::Jeffreys), "Jeffreys"},
             {"wilson", CodeOf(OneSampleMethod::Wilson), "Wilson"},
             {"agresti-coull", CodeOf(OneSampleMethod::AgrestiCoull), "Agresti-Coull"}})
          .Default("wilson"),
  };
}

}  // namespace

kelpower::proportions::OneSampleDesign OneSampleDesignOf(const Inputs& in) {
  return {in.Flag("exact"), in.Flag("one-sided"), in.Alpha(), in.Flag("correction")};
}

kelpower::proportions::OneSampleProportions OneSampleProportionsOf(const Inputs& in) {
  return {in.Number("proportion"), in.Number("null")};
}

Test ProportionTest() {
  Test test{.name = "proportion",
            .title = "Test of one proportion",
            .about = "Tests whether a proportion differs from a given value."};
  test.parameters = Parameters();
  test.routes = RoutesOfProportion();
  test.conditions = ConditionsOfProportion();
  test.sizeExists = SizeExistsForProportion();
  test.derived = FiguresOfProportion();
  test.charts = ChartsOfProportion();
  AddWordsOfProportion(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
