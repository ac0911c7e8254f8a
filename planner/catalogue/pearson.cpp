#include "correlation/pearson.h"

#include <utility>

#include "catalogue/correlation.h"
#include "catalogue/correlation_calls.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

correlation::PearsonTest TestOf(const Inputs& in) {
  return {{in.Alpha(), in.Flag("one-sided")}, 0, in.Flag("adjust-bias")};
}

correlation::PearsonInterval IntervalOf(const Inputs& in) {
  return {correlation::Confidence(in.Alpha()), in.Number("r"), 0, in.Flag("adjust-bias")};
}

}  // namespace

Test PearsonTest() {
  Test test = CorrelationTest({.name = "pearson",
                               .wording = "Pearson",
                               .exports = "Pearson",
                               .definition = "two variables",
                               .method = "Fisher's z{adjust-bias?, corrected for bias,}",
                               .accepts = {"adjust-bias"},
                               .calls = CallsWith<TestOf, IntervalOf>()});
  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      CaseCount(4),
      TowardsCorrelation(),
      Flag("adjust-bias", "bias adjustment", "correct Fisher's z for its bias in small samples"),
  };
  test.offers = OffersOfPearson();
  AddWordsOfPearson(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
