#include "correlation/pearson.h"

#include <utility>

#include "catalogue/correlation.h"
#include "catalogue/correlation_calls.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "correlation/exact_pearson.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

correlation::PearsonTest TestOf(const Inputs& in) {
  return {{in.Alpha(), in.Flag("one-sided")}, 0, in.Flag("adjust-bias")};
}

correlation::PearsonInterval IntervalOf(const Inputs& in) {
  return {correlation::Confidence(in.Alpha()), in.Number("r"), 0, in.Flag("adjust-bias")};
}

double ExactPower(const Inputs& in) {
  return OrNaN(correlation::ExactPower({in.Alpha(), in.Flag("one-sided")}, in.Number("n"), HypothesesOf(in)));
}

/// The power tells the sizes, too.
std::vector<Route> ExactRoutes() {
  return {
      {.question = Question::Power,
       .needs = {"r", "n", "exact"},
       .accepts = {"null", "one-sided"},
       .value = ExactPower},
      {.question = Question::SampleSize, .needs = {"r", "exact"}, .accepts = {"null", "one-sided"}},
  };
}

}  // namespace

Test PearsonTest() {
  Test test = CorrelationTest({.name = "pearson",
                               .wording = "Pearson",
                               .exports = "Pearson",
                               .definition = "two variables",
                               .method = "Fisher's z{adjust-bias?, corrected for bias,}",
                               .testMethod = "{exact?the exact distribution of r:Fisher's z}{adjust-bias?, corrected "
                                             "for bias,}",
                               .accepts = {"adjust-bias"},
                               .calls = CallsWith<TestOf, IntervalOf>()});
  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      CaseCount(4),
      TowardsCorrelation(),
      Flag("exact", "exact test",
           "exact test, by the distribution of r in bivariate normal samples, in place of Fisher's z"),
      Flag("adjust-bias", "bias adjustment", "correct Fisher's z for its bias in small samples"),
  };
  for (Route& route : ExactRoutes()) test.routes.push_back(std::move(route));
  test.offers = OffersOfPearson();
  AddWordsOfPearson(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
