#include "catalogue/two_means.h"

#include <cmath>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/words.h"

namespace planner {
namespace {

std::string Hypothesis(const Inputs& in) {
  const bool isRatio = in.Has("mean-ratio");
  return HypothesisOfMargins(in, isRatio ? "ratio of the means" : "difference of the means",
                             isRatio ? noRatio : noDifference);
}

std::vector<Parameter> Parameters() {
  std::vector<Parameter> parameters = {
      GroupMeans(),
      Number("mean-difference", "difference of the means", "first mean minus the second, in place of {means}")
          .Alias("difference")
          .Alias("delta"),
      PerGroup("sd", "standard deviations", "standard deviation in each group").Alias("sds").Spreads().Above(0),
      EffectD("difference of the means over the common standard deviation"),
      MeanRatio(),
      CoefficientOfVariation("standard deviation over the mean of the data in each group, with {mean-ratio}"),
      GroupSizes().AtLeast(2),
      RatioOfSizes(),
      OneSided(),
  };
  const std::vector<Parameter> margins = MarginParameters("difference or ratio of the means");
  parameters.insert(parameters.end(), margins.begin(), margins.end());
  return parameters;
}

/// Over the root mean square of the standard deviations (Cohen 1988, formula 2.3.2).
double EffectSize(const Inputs& in) {
  const Numbers& sds = in.List("sd");
  return DifferenceOfMeans(in) / (std::hypot(sds[0], sds[1]) / std::sqrt(2.0));
}

/// With its sign, which of a ratio is that of its logarithm.
double EffectOfTwoMeans(const Inputs& in) {
  if (in.Has("mean-ratio")) return std::log(in.Number("mean-ratio"));
  return in.Has("effect-d") ? in.Number("effect-d") : DifferenceOfMeans(in);
}

}  // namespace

kelpower::means::GroupSpreads SpreadsOfTwoMeans(const Inputs& in) {
  if (!in.Has("sd")) return {1, 1, true};
  const Numbers& sds = in.List("sd");
  return {sds[0], sds[1], sds[0] == sds[1]};
}

Test TwoMeansTest() {
  Test test{.name = "two-means",
            .title = "Independent-samples t test of two means",
            .about =
                "Tests whether two independent groups have the same mean: pooled when their standard deviations are "
                "equal, and in the form of Welch when they differ.",
            .groups = 2};
  test.parameters = Parameters();
  test.routes = RoutesOfTwoMeans();
  const std::vector<Route> withMargins = RoutesOfTwoMeansWithMargins();
  test.routes.insert(test.routes.end(), withMargins.begin(), withMargins.end());
  test.unknowns = UnknownsOfTwoMeans();
  test.conditions = ConditionsOfTwoMeans();
  test.sizeExists = SizeExistsForTwoMeans();
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"means", "sd"}, .call = EffectSize},
      {.name = "effect-d", .label = "effect size d", .needs = {"mean-difference", "sd"}, .call = EffectSize},
  };
  test.effect = EffectOfTwoMeans;
  test.axes = {MeanDifferenceAxis(), SizeRatioAxis()};
  test.assumptions = {{.name = "variances",
                       .label = "variances",
                       .needs = {"sd"},
                       .call =
                           [](const Inputs& in) {
                             return std::string(SpreadsOfTwoMeans(in).isPooled ? "pooled" : "unequal, Welch's test");
                           },
                       .wording = " (variances <0>)"},
                      HypothesisAssumption(Hypothesis)};
  test.offers = OffersOfTwoMeans();
  AddWordsOfTwoMeans(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
