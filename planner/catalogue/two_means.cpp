#include "catalogue/two_means.h"

#include <cmath>
#include <utility>

#include "catalogue/charts.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/words.h"

namespace planner {
namespace {

/// Over the root mean square of the standard deviations (Cohen 1988, formula 2.3.2).
double EffectSize(const Inputs& in) {
  const Numbers& sds = in.List("sd");
  return DifferenceOfMeans(in) / (std::hypot(sds[0], sds[1]) / std::sqrt(2.0));
}

std::vector<Parameter> Parameters() {
  return {
      GroupMeans(),
      PerGroup("sd", "standard deviations", "standard deviation in each group").Alias("sds").Spreads().Above(0),
      EffectD("difference of the means over the common standard deviation"),
      GroupSizes().AtLeast(2),
      RatioOfSizes(),
      OneSided(),
  };
}

}  // namespace

Test TwoMeansTest() {
  Test test{.name = "two-means",
            .title = "Independent-samples t test of two means",
            .about =
                "Tests whether two independent groups have the same mean: pooled when their standard deviations are "
                "equal, and in the form of Welch when they differ.",
            .groups = 2};
  test.parameters = Parameters();
  test.routes = RoutesOfTwoMeans();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return DifferenceOfMeans(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"means", "sd"}, .call = EffectSize},
  };
  test.charts = ChartsOfTwoMeans();
  AddWordsOfTwoMeans(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
