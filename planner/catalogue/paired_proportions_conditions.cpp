#include "catalogue/core.h"
#include "catalogue/paired_proportions.h"
#include "proportions/mcnemar.h"
#include "proportions/related_interval.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::RelatedMethod;

bool HaveACommonDistribution(const Inputs& in) {
  if (proportions::RejectsMarginals(in.Number("proportion1"), in.Number("proportion2"))) return false;
  const proportions::DiscordantPairs pairs = DiscordantPairsOf(in);
  return pairs.p12 >= 0 && pairs.p21 >= 0 && pairs.p12 + pairs.p21 <= 1;
}

bool CorrectsWhatCanBe(const Inputs& in) {
  return !in.Flag("correction") || in.Choice("interval-method") == CodeOf(RelatedMethod::Wald);
}

/// An interval can be asked for without them: there it is the difference that is estimated.
bool HasDiscordantPairs(const Inputs& in) {
  if (in.Has("half-width") || in.Flag("interval")) return true;
  return in.Number("p12") > 0 || in.Number("p21") > 0;
}

}  // namespace

std::vector<Condition> ConditionsOfPairedProportions() {
  return {
      {.code = "no-discordant-pairs",
       .about = {"p12", "p21"},
       .holds = HasDiscordantPairs,
       .sentence = "{p12} and {p21} are both 0: the test goes by the discordant pairs, and there would be none."},
      {.code = "discordant-sum",
       .about = {"p12", "p21"},
       .holds = [](const Inputs& in) { return in.Number("p12") + in.Number("p21") <= 1; },
       .sentence = "{p12} and {p21} must add up to at most 1."},
      {.code = "correlation-possible",
       .about = {"proportion1", "proportion2", "correlation"},
       .holds = HaveACommonDistribution,
       .sentence = "{correlation} is beyond what outcomes with these proportions can have."},
      {.code = "corrected-interval",
       .about = {"interval-method", "correction"},
       .holds = CorrectsWhatCanBe,
       .sentence = "{correction} goes with the interval wald only."},
  };
}

std::vector<Condition> SizeExistsForPairedProportions() {
  return {
      {.code = "no-effect",
       .about = {"p12", "p21"},
       .holds = [](const Inputs& in) { return in.Number("p12") != in.Number("p21"); },
       .sentence =
           "Both kinds of discordant pairs are equally likely: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"proportion1", "proportion2"},
       .holds = [](const Inputs& in) { return in.Number("proportion1") != in.Number("proportion2"); },
       .sentence = "The proportions are equal: without an effect, no sample size reaches the power."},
  };
}

}  // namespace planner
