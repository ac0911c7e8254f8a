#include "correlation/pearson.h"

#include <utility>

#include "catalogue/core.h"
#include "catalogue/correlation.h"
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

double Power(const Inputs& in) { return OrNaN(correlation::Power(TestOf(in), in.Number("n"), HypothesesOf(in))); }

Numbers Size(const Inputs& in) {
  return RoundedUp(correlation::SizeForPower(TestOf(in), HypothesesOf(in), in.Number("power"), StopOf(in)));
}

double HalfWidth(const Inputs& in) { return correlation::HalfWidth(IntervalOf(in), in.Number("n")); }

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(correlation::SizeForHalfWidth(IntervalOf(in), in.Number("half-width"), StopOf(in)));
}

}  // namespace

Test PearsonTest() {
  Test test = CorrelationTest({.name = "pearson",
                               .wording = "Pearson",
                               .exports = "Pearson",
                               .definition = "two variables",
                               .method = "Fisher's z{adjust-bias?, corrected for bias,}",
                               .accepts = {"adjust-bias"},
                               .power = Power,
                               .size = Size,
                               .halfWidth = HalfWidth,
                               .sizeForHalfWidth = SizeForHalfWidth});
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
