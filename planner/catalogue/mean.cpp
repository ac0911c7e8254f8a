#include "catalogue/mean.h"

#include <utility>

#include "catalogue/mean_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

double EffectSize(const Inputs& in) { return DifferenceOfMean(in) / in.Number("sd"); }

}  // namespace

double EffectOfMean(const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : EffectSize(in); }

Test MeanTest() {
  Test test{.name = "mean",
            .title = "One-sample t test of a mean",
            .about = "Tests whether the mean of a population is a fixed value."};
  test.parameters = {
      Number("mean", "mean", "mean expected in the population"),
      Number("test-value", "test value", "mean under the null hypothesis").Default(0.0),
      Number("sd", "standard deviation", "standard deviation in the population").Above(0),
      EffectD("difference of the mean from the test value over the standard deviation"),
      SingleSize("observations in the sample"),
      OneSided(),
  };
  const std::vector<Parameter> margins = MarginParameters("difference of the mean from the test value");
  test.parameters.insert(test.parameters.end(), margins.begin(), margins.end());
  test.routes = RoutesOfMean();
  const std::vector<Route> withMargins = RoutesOfMeanWithMargins();
  test.routes.insert(test.routes.end(), withMargins.begin(), withMargins.end());
  test.unknowns = UnknownsOfMean();
  test.conditions = ConditionsOfMean();
  test.sizeExists = SizeExistsForMean();
  test.assumptions = {HypothesisAssumption(HypothesisOfMean)};
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"mean", "test-value", "sd"}, .call = EffectSize},
  };
  test.offers = OffersOfMean();
  test.effect = EffectOfMean;
  AddWordsOfMean(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
