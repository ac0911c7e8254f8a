#include "assurance/means.h"
#include "catalogue/expected.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/paired_means.h"
#include "means/one_sample.h"
#include "means/paired.h"

namespace planner {
namespace {

namespace assurance = kelpower::assurance;

assurance::MeanEstimate EstimateOf(const Inputs& in) {
  return assurance::MeanEstimate::OfMean(SdOfPairedDifferences(in));
}

assurance::Wish WishOf(const Inputs& in) { return {in.Number("half-width"), in.Alpha()}; }

double Assurance(const Inputs& in) { return OrNaN(assurance::Assurance(EstimateOf(in), WishOf(in), in.Number("n"))); }

Numbers AssuredSize(const Inputs& in) {
  return RoundedUp(assurance::FirstSize(EstimateOf(in), WishOf(in), in.Number("assurance")));
}

double EffectOf(const Inputs& in) {
  if (in.Has("effect-d")) return in.Number("effect-d");
  return in.Has("means") ? in.List("means")[0] - in.List("means")[1] : in.Number("mean-difference");
}

double ExpectedPower(const Inputs& in) {
  if (in.Number("n") <= 1) return OrNaN(kelpower::NoValue::Refused);
  const double unit = in.Has("effect-d") ? 1 : SdOfPairedDifferences(in);
  const auto test = kelpower::means::OneSampleTest(SidesOf(in), in.Number("n"), in.Alpha());
  return ExpectedPowerOfT(test, EffectOf(in) / unit, in.Number("effect-sd") / unit);
}

double PowerLimit(const Inputs& in) { return LimitOfExpectedPower(EffectOf(in), in.Number("effect-sd")); }

}  // namespace

Offers OffersOfPairedMeans() {
  return {.assurance = Assurance,
          .assuredSizes = AssuredSize,
          .expectedPower = ExpectedPower,
          .expectedPowerLimit = PowerLimit,
          .unitOfEffect = "in the unit of the mean difference, or of {effect-d}"};
}

}  // namespace planner
