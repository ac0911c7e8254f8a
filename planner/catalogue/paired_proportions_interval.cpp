#include "catalogue/core.h"
#include "catalogue/paired_proportions.h"
#include "proportions/related_interval.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::RelatedMethod;

proportions::RelatedInterval IntervalOf(const Inputs& in) {
  return proportions::RelatedInterval(
      {RelatedMethod(in.Choice("interval-method")), DiscordantPairsOf(in), in.Alpha(), in.Flag("correction")});
}

double HalfWidth(const Inputs& in) { return IntervalOf(in).HalfWidth(in.Number("n")); }

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(IntervalOf(in).SizeFor(in.Number("half-width"), StopOf(in)));
}

}  // namespace

std::vector<Route> IntervalRoutesOfPairedProportions() {
  return {
      {.question = Question::HalfWidth,
       .needs = {"p12", "p21", "n"},
       .accepts = {"interval-method", "correction"},
       .exportName = "HalfCIRelSampBinom",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"p12", "p21"},
       .accepts = {"interval-method", "correction"},
       .exportName = "PowerReversebyHalfCIRelSampBinom",
       .sizes = SizeForHalfWidth},
  };
}

}  // namespace planner
