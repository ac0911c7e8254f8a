#include "catalogue/core.h"
#include "catalogue/margins.h"
#include "catalogue/proportion_margins.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

double Power(const Inputs& in) {
  return OrNaN(
      proportions::OneSampleMarginTest(OneSampleMarginDesignOf(in)).Power(in.Number("n"), in.Number("proportion")));
}

Numbers SizeWithMargin(const Inputs& in) {
  return RoundedUp(
      proportions::FirstSize(OneSampleMarginDesignOf(in), in.Number("proportion"), in.Number("power"), StopOf(in)));
}

double LastingSizeWithMargin(const Inputs& in) {
  return OrNaN(
      proportions::LastingSize(OneSampleMarginDesignOf(in), in.Number("proportion"), in.Number("power"), StopOf(in)));
}

}  // namespace

std::vector<Route> MarginRoutesOfProportion() {
  const Names normal{"margin-scale", "correction", "standard-error"};
  return WithMargins({
      {.question = Question::Power, .needs = {"proportion", "null", "n"}, .accepts = normal, .value = Power},
      {.question = Question::Power,
       .needs = {"proportion", "null", "n", "exact"},
       .accepts = {"margin-scale"},
       .value = Power},
      {.question = Question::SampleSize, .needs = {"proportion", "null"}, .accepts = normal},
      {.question = Question::SampleSize,
       .needs = {"proportion", "null", "exact"},
       .accepts = {"margin-scale"},
       .lastingSize = LastingSizeWithMargin,
       .sizes = SizeWithMargin},
  });
}

}  // namespace planner
