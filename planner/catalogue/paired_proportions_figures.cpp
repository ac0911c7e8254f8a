#include "catalogue/core.h"
#include "catalogue/paired_proportions.h"
#include "proportions/mcnemar.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

bool IsExact(const Inputs& in) { return in.Flag("exact"); }

double AttainedLevel(const Inputs& in) {
  return OrNaN(proportions::McNemarTest(McNemarDesignOf(in)).AttainedLevel(in.Number("n"), DiscordantPairsOf(in)));
}

}  // namespace

std::vector<Derived> FiguresOfPairedProportions() {
  return {
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"p12", "p21", "n", "exact"},
       .call = AttainedLevel,
       .isTold = IsExact},
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"proportion1", "proportion2", "correlation", "n", "exact"},
       .call = AttainedLevel,
       .isTold = IsExact},
      {.name = "p12",
       .label = "first kind of discordant pairs",
       .needs = {"proportion1", "proportion2", "correlation"},
       .call = [](const Inputs& in) { return DiscordantPairsOf(in).p12; }},
      {.name = "p21",
       .label = "second kind of discordant pairs",
       .needs = {"proportion1", "proportion2", "correlation"},
       .call = [](const Inputs& in) { return DiscordantPairsOf(in).p21; }},
  };
}

}  // namespace planner
