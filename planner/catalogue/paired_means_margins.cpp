#include "catalogue/paired_means.h"
#include "means/margins.h"

namespace planner {
namespace {

namespace means = kelpower::means;

MeanQuestion QuestionOf(const Inputs& in) {
  const double sd = means::DifferenceVariance::Of(SpreadOfPairedMeans(in)).StandardDeviation();
  return {DifferenceOfPairedMeans(in), false, means::SingleMean(in.Number("n"), sd)};
}

double PowerWithMargins(const Inputs& in) { return PowerOfMeans(in, QuestionOf(in)); }

}  // namespace

std::string HypothesisOfPairedMeans(const Inputs& in) {
  return HypothesisOfMargins(in, "mean difference", noDifference);
}

std::vector<Route> RoutesOfPairedMeansWithMargins() {
  return WithMargins({
      {.question = Question::Power, .needs = {"means", "sds", "correlation", "n"}, .value = PowerWithMargins},
      {.question = Question::Power, .needs = {"mean-difference", "sd-difference", "n"}, .value = PowerWithMargins},
      {.question = Question::SampleSize, .needs = {"means", "sds", "correlation"}},
      {.question = Question::SampleSize, .needs = {"mean-difference", "sd-difference"}},
  });
}

Details DetailsOfPairedMeansWithMargins(const Inputs& in) {
  return DetailsOfMeanMargins(in, QuestionOf(in),
                              "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., section "
                              "2.3.5");
}

}  // namespace planner
