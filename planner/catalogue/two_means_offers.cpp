#include "assurance/means.h"
#include "assurance/welch.h"
#include "catalogue/expected.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/two_groups.h"
#include "catalogue/two_means.h"
#include "means/independent.h"

namespace planner {
namespace {

namespace assurance = kelpower::assurance;
namespace means = kelpower::means;

bool IsPooled(const Inputs& in) { return in.List("sd")[0] == in.List("sd")[1]; }

assurance::Wish WishOf(const Inputs& in) { return {in.Number("half-width"), in.Alpha()}; }

assurance::UnequalGroups GroupsOf(const Inputs& in) { return {in.List("sd")[0], in.List("sd")[1]}; }

assurance::MeanEstimate EstimateOf(const Inputs& in, double ratio) {
  return assurance::MeanEstimate::OfDifference(in.List("sd")[0], ratio);
}

double Assurance(const Inputs& in) {
  const double n1 = in.List("n")[0];
  const double n2 = in.List("n")[1];
  if (IsPooled(in)) return OrNaN(assurance::Assurance(EstimateOf(in, n2 / n1), WishOf(in), n1));
  return OrNaN(assurance::Assurance(GroupsOf(in), WishOf(in), n1, n2));
}

Numbers AssuredSizes(const Inputs& in) {
  const double ratio = in.Number("ratio");
  const double wished = in.Number("assurance");
  const kelpower::Answer first = IsPooled(in) ? assurance::FirstSize(EstimateOf(in, ratio), WishOf(in), wished)
                                              : assurance::FirstSize(GroupsOf(in), WishOf(in), ratio, wished);
  return RoundedUp(first, ratio, smallestSecondGroup);
}

double EffectOf(const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : DifferenceOfMeans(in); }

double ExpectedPower(const Inputs& in) {
  const Numbers& n = in.List("n");
  const bool isStandardized = in.Has("effect-d");
  const means::GroupSpreads spreads = isStandardized
                                          ? means::GroupSpreads{1, 1, true}
                                          : means::GroupSpreads{in.List("sd")[0], in.List("sd")[1], IsPooled(in)};
  const auto test = means::TwoSampleTest(spreads, SidesOf(in), in.Alpha(), n[0], n[1]);
  return test ? ExpectedPowerOfT(*test, EffectOf(in), in.Number("effect-sd")) : OrNaN(kelpower::NoValue::Refused);
}

double PowerLimit(const Inputs& in) { return LimitOfExpectedPower(EffectOf(in), in.Number("effect-sd")); }

}  // namespace

Offers OffersOfTwoMeans() {
  return {.clusters = true,
          .assurance = Assurance,
          .assuredSizes = AssuredSizes,
          .expectedPower = ExpectedPower,
          .expectedPowerLimit = PowerLimit,
          .unitOfEffect = "in the unit of the means, or of {effect-d}"};
}

}  // namespace planner
