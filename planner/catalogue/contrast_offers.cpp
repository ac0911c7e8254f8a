#include "assurance/means.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/offers.h"

namespace planner {
namespace {

namespace assurance = kelpower::assurance;

assurance::MeanEstimate EstimateOf(const Inputs& in) {
  return assurance::MeanEstimate::OfContrast(in.List("coefficients"), in.Weights(), in.Number("sd"));
}

assurance::Wish WishOf(const Inputs& in) { return {in.Number("half-width"), in.Alpha()}; }

double Assurance(const Inputs& in) { return OrNaN(assurance::Assurance(EstimateOf(in), WishOf(in), TotalSize(in))); }

Numbers AssuredSizes(const Inputs& in) {
  return SpreadByShares(assurance::FirstSize(EstimateOf(in), WishOf(in), in.Number("assurance")), in.Weights());
}

}  // namespace

Offers OffersOfContrast() { return {.assurance = Assurance, .assuredSizes = AssuredSizes}; }

}  // namespace planner
