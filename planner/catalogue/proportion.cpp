#include "catalogue/proportion.h"

#include <utility>

#include "catalogue/core.h"
#include "catalogue/offers.h"
#include "catalogue/proportion_margins.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "frame/counts.h"
#include "proportions/one_sample_interval.h"

namespace planner {
namespace {

using kelpower::proportions::OneSampleMethod;

std::vector<Parameter> Parameters() {
  std::vector<Parameter> parameters = {
      Number("proportion", "proportion", "proportion expected").AtLeast(0).AtMost(1),
      Number("null", "null proportion", "proportion under the null hypothesis").Above(0).Below(1),
      Number("n", "sample size", "number of observations").Whole().AtLeast(1).AtMost(1e9),
      Flag("exact", "exact test", "exact binomial test in place of the normal approximation"),
      Flag("one-sided", "one-sided test", "test in the direction of the proportion expected only"),
      Flag("correction", "continuity correction", "correct the normal approximation for continuity")
          .Alias("continuity-correction"),
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
  for (Parameter& parameter : MarginParametersOfProportion()) parameters.push_back(std::move(parameter));
  return parameters;
}

Unevenness UnevennessOf(const Inputs& in) { return in.Flag("exact") ? Unevenness::Uneven : Unevenness::Even; }

/// The differences that the null proportion leaves.
Range AllDifferences(const Inputs& in) { return {-in.Number("null"), 1 - in.Number("null")}; }

double Difference(const Inputs& in) { return in.Number("proportion") - in.Number("null"); }

Axis DifferenceAxis() {
  return {.name = "difference",
          .title = "difference of the proportions (expected minus null)",
          .symbol = "difference",
          .needs = {"proportion", "null"},
          .limits = {-1, 1, true, true, false},
          .design = Difference,
          .vary = [](Inputs& in, const Inputs& design, double at) { in.Set("proportion", at + design.Number("null")); },
          .scale = AllDifferences};
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
  test.unknowns = UnknownsOfProportion();
  test.unevenness = UnevennessOf;
  test.conditions = ConditionsOfProportion();
  test.sizeExists = SizeExistsForProportion();
  test.derived = FiguresOfProportion();
  test.effect = Difference;
  test.axes = {DifferenceAxis()};
  test.assumptions = {{.name = "tails",
                       .label = "tails of the test",
                       .needs = {"exact", "one-sided"},
                       .call = [](const Inputs& in) -> std::string {
                         if (!in.Flag("exact") || in.Flag("one-sided")) return "";
                         return "at most half of the level in each tail";
                       },
                       .wording = ", with <0>,"}};
  test.largestExactSearch = kelpower::largestCount;
  test.offers = OffersOfProportion();
  AddMarginsOfProportion(test);
  AddWordsOfProportion(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
