#include <limits>

#include "catalogue/two_correlations.h"
#include "catalogue/unknowns.h"

namespace planner {

std::vector<Unknown> UnknownsOfTwoCorrelations() {
  return {
      {.input = "effect-q",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = "the standard error of q does not depend on it",
       .piece = [](const Inputs&) -> Piece {
         return {0, std::numeric_limits<double>::infinity()};
       }},
      UnknownRatio(),
  };
}

std::vector<Condition> SizeExistsForTwoCorrelations() {
  return {
      {.code = "no-effect",
       .about = {"correlations"},
       .holds = [](const Inputs& in) { return EffectQ(in) != 0; },
       .sentence = "The two correlations are equal: without a difference, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-q"},
       .holds = [](const Inputs& in) { return EffectQ(in) != 0; },
       .sentence = "{effect-q} is 0: without a difference, no sample size reaches the power."},
  };
}

}  // namespace planner
