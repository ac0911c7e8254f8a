#include <utility>

#include "assurance/proportion.h"
#include "catalogue/core.h"
#include "catalogue/offers.h"
#include "proportions/one_sample_interval.h"

namespace planner {
namespace {

namespace assurance = kelpower::assurance;
namespace proportions = kelpower::proportions;

/// What `use` makes of the interval that is wished for.
template <typename Use>
auto WithWish(const Inputs& in, Use use) {
  const auto method = proportions::OneSampleMethod(in.Choice("interval-method"));
  const bool isCorrected = in.Flag("correction");
  const auto halfWidthAt = [&](double size, double events) {
    return proportions::OneSampleInterval({method, events / size, in.Alpha(), isCorrected}).HalfWidth(size);
  };
  return use(assurance::ProportionWish{halfWidthAt, in.Number("proportion"), in.Number("half-width")});
}

double Assurance(const Inputs& in) {
  return OrNaN(WithWish(in, [&](const auto& wish) { return assurance::Assurance(wish, in.Number("n")); }));
}

Numbers AssuredSize(const Inputs& in) {
  const double wished = in.Number("assurance");
  return RoundedUp(WithWish(
      in, [&](const auto& wish) { return assurance::FirstSize(wish, wished, kelpower::largestCount, StopOf(in)); }));
}

Numbers LastingAssuredSize(const Inputs& in) {
  const double wished = in.Number("assurance");
  return RoundedUp(WithWish(
      in, [&](const auto& wish) { return assurance::LastingSize(wish, wished, kelpower::largestCount, StopOf(in)); }));
}

}  // namespace

Offers OffersOfProportion() {
  return {.population = FinitePopulation::EnlargesSample,
          .assurance = Assurance,
          .assuredSizes = AssuredSize,
          .lastingAssuredSizes = LastingAssuredSize};
}

}  // namespace planner
