#include "assurance/means.h"
#include "catalogue/expected.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/offers.h"
#include "means/one_sample.h"

namespace planner {
namespace {

namespace assurance = kelpower::assurance;

assurance::MeanEstimate EstimateOf(const Inputs& in) { return assurance::MeanEstimate::OfMean(in.Number("sd")); }

assurance::Wish WishOf(const Inputs& in) { return {in.Number("half-width"), in.Alpha()}; }

double Assurance(const Inputs& in) { return OrNaN(assurance::Assurance(EstimateOf(in), WishOf(in), in.Number("n"))); }

Numbers AssuredSize(const Inputs& in) {
  return RoundedUp(assurance::FirstSize(EstimateOf(in), WishOf(in), in.Number("assurance")));
}

/// The effect is one in its unit, or in standard deviations where no unit is given.
double EffectOf(const Inputs& in) {
  return in.Has("effect-d") ? in.Number("effect-d") : in.Number("mean") - in.Number("test-value");
}

double ExpectedPower(const Inputs& in) {
  if (in.Number("n") <= 1) return OrNaN(kelpower::NoValue::Refused);
  const double unit = in.Has("effect-d") ? 1 : in.Number("sd");
  const auto test = kelpower::means::OneSampleTest(SidesOf(in), in.Number("n"), in.Alpha());
  return ExpectedPowerOfT(test, EffectOf(in) / unit, in.Number("effect-sd") / unit);
}

double PowerLimit(const Inputs& in) { return LimitOfExpectedPower(EffectOf(in), in.Number("effect-sd")); }

}  // namespace

Offers OffersOfMean() {
  return {.population = FinitePopulation::NarrowsInterval,
          .assurance = Assurance,
          .assuredSizes = AssuredSize,
          .expectedPower = ExpectedPower,
          .expectedPowerLimit = PowerLimit,
          .unitOfEffect = "in the unit of {mean}, or of {effect-d}"};
}

}  // namespace planner
