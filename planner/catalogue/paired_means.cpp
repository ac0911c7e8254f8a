#include "catalogue/paired_means.h"

#include <utility>

#include "catalogue/axes.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

std::vector<Parameter> Parameters() {
  std::vector<Parameter> parameters = {
      List("means", "means", "means expected of the two measurements").Length(2),
      List("sds", "standard deviations", "standard deviations of the two measurements").Length(2).Above(0),
      Number("correlation", "correlation", "correlation between the two measurements").AtLeast(-1).AtMost(1),
      Number("mean-difference", "mean difference", "mean expected of the differences, in place of {means}"),
      Number("sd-difference", "standard deviation of the differences", "in place of {sds} and {correlation}").Above(0),
      EffectD("mean of the differences over their standard deviation"),
      SingleSize("pairs of measurements"),
      OneSided(),
  };
  const std::vector<Parameter> margins = MarginParameters("mean difference");
  parameters.insert(parameters.end(), margins.begin(), margins.end());
  return parameters;
}

}  // namespace

double DifferenceOfPairedMeans(const Inputs& in) {
  return in.Has("means") ? in.List("means")[0] - in.List("means")[1] : in.Number("mean-difference");
}

kelpower::means::PairedSpread SpreadOfPairedMeans(const Inputs& in) {
  if (in.Has("sd-difference")) return {in.Number("sd-difference"), 0, 0};
  return {in.List("sds")[0], in.List("sds")[1], in.Number("correlation")};
}

double SdOfPairedDifferences(const Inputs& in) {
  return kelpower::means::DifferenceVariance::Of(SpreadOfPairedMeans(in)).StandardDeviation();
}

double EffectSizeOfPairedMeans(const Inputs& in) { return DifferenceOfPairedMeans(in) / SdOfPairedDifferences(in); }

double EffectOfPairedMeans(const Inputs& in) {
  return in.Has("effect-d") ? in.Number("effect-d") : EffectSizeOfPairedMeans(in);
}

Test PairedMeansTest() {
  Test test{.name = "paired-means",
            .title = "Paired-samples t test of means",
            .about = "Tests whether two measurements on the same units have the same mean.",
            .counted = "pairs"};
  test.parameters = Parameters();
  test.routes = RoutesOfPairedMeans();
  const std::vector<Route> withMargins = RoutesOfPairedMeansWithMargins();
  test.routes.insert(test.routes.end(), withMargins.begin(), withMargins.end());
  test.unknowns = UnknownsOfPairedMeans();
  test.conditions = ConditionsOfPairedMeans();
  test.sizeExists = SizeExistsForPairedMeans();
  test.assumptions = {HypothesisAssumption(HypothesisOfPairedMeans)};
  test.derived = {
      {.name = "effect-d",
       .label = "effect size d",
       .needs = {"means", "sds", "correlation"},
       .call = EffectSizeOfPairedMeans},
      {.name = "effect-d",
       .label = "effect size d",
       .needs = {"mean-difference", "sd-difference"},
       .call = EffectSizeOfPairedMeans},
  };
  test.offers = OffersOfPairedMeans();
  test.effect = EffectOfPairedMeans;
  test.axes = {MeanDifferenceAxis()};
  AddWordsOfPairedMeans(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
