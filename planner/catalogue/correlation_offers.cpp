#include <cmath>

#include "assurance/correlation.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/expected.h"
#include "catalogue/offers.h"
#include "correlation/exact_pearson.h"
#include "correlation/pearson.h"

namespace planner {
namespace {

namespace assurance = kelpower::assurance;
namespace correlation = kelpower::correlation;

assurance::CorrelationInterval IntervalOfPearson(const Inputs& in) {
  return {in.Number("r"), 0, in.Flag("adjust-bias")};
}

assurance::CorrelationInterval IntervalOfPartial(const Inputs& in) {
  return {in.Number("r"), in.Number("partialled-out"), false};
}

assurance::Wish WishOf(const Inputs& in) { return {in.Number("half-width"), in.Alpha()}; }

template <assurance::CorrelationInterval (*interval)(const Inputs&)>
Offers WithAssurance() {
  return {.assurance =
              [](const Inputs& in) { return OrNaN(assurance::Assurance(interval(in), WishOf(in), in.Number("n"))); },
          .assuredSizes =
              [](const Inputs& in) {
                return RoundedUp(assurance::FirstSize(interval(in), WishOf(in), in.Number("assurance")));
              }};
}

/// The test in the direction of the effect, with the level that it has there.
correlation::PearsonTest TowardsEffect(const Inputs& in) {
  const double alpha = in.Flag("one-sided") ? in.Alpha() : in.Alpha() / 2;
  return {{alpha, true}, 0, in.Flag("adjust-bias")};
}

/// The uncertainty is that of Fisher's z, on whose scale the test is; `powerAt` is the power at a correlation in the
/// direction expected.
double MeanPower(const Inputs& in, kelpower::FunctionView<double(double alternative)> powerAt) {
  const correlation::Hypotheses hypotheses = HypothesesOf(in);
  const double effect = correlation::FisherDifference(hypotheses);
  const double direction = effect < 0 ? -1 : 1;
  const auto powerAtDistance = [&](double distance) {
    return powerAt(std::tanh(std::atanh(hypotheses.null) + direction * distance));
  };
  return OrNaN(kelpower::expected_power::ExpectedPower(powerAtDistance, BeliefIn(effect, in.Number("effect-sd"))));
}

double ExpectedPower(const Inputs& in) {
  const double size = in.Number("n");
  if (size <= 3) return OrNaN(kelpower::NoValue::Refused);
  const correlation::Hypotheses hypotheses = HypothesesOf(in);
  const correlation::PearsonTest test = TowardsEffect(in);
  if (in.Flag("exact")) {
    const auto critical = correlation::CriticalValues(test.level, size, hypotheses);
    return MeanPower(in, [&](double alternative) { return critical.Power(size, alternative); });
  }
  const double direction = hypotheses.alternative < hypotheses.null ? -1 : 1;
  return MeanPower(in, [&](double alternative) {
    const auto [shift, spread] = correlation::UnderAlternative(test, size, {alternative, hypotheses.null});
    return test.level.Power(direction * shift, spread, true);
  });
}

double PowerLimit(const Inputs& in) {
  return LimitOfExpectedPower(correlation::FisherDifference(HypothesesOf(in)), in.Number("effect-sd"));
}

}  // namespace

Offers OffersOfPearson() {
  Offers offers = WithAssurance<IntervalOfPearson>();
  offers.expectedPower = ExpectedPower;
  offers.expectedPowerLimit = PowerLimit;
  offers.unitOfEffect = "on the scale of Fisher's z: 0.1 is about 0.1 of a small correlation";
  return offers;
}

Offers OffersOfPartial() { return WithAssurance<IntervalOfPartial>(); }

}  // namespace planner
