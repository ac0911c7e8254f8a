#include "catalogue/core.h"
#include "catalogue/paired_proportions.h"
#include "proportions/lasting_size.h"
#include "proportions/mcnemar.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

double AttainedLevel(const Inputs& in) {
  return OrNaN(proportions::McNemarTest(McNemarDesignOf(in)).AttainedLevel(in.Number("n"), DiscordantPairsOf(in)));
}

double LastingSize(const Inputs& in) {
  return OrNaN(proportions::LastingSize(McNemarDesignOf(in), DiscordantPairsOf(in), in.Number("power")));
}

}  // namespace

std::vector<Derived> FiguresOfPairedProportions() {
  return {
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"p12", "p21", "n", "exact"},
       .call = AttainedLevel},
      {.name = "lasting-n",
       .label = "from here on every sample size reaches the power",
       .needs = {"p12", "p21", "exact", "power"},
       .call = LastingSize},
  };
}

}  // namespace planner
