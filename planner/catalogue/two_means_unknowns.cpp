#include <limits>

#include "catalogue/two_means.h"
#include "catalogue/unknowns.h"

namespace planner {

std::vector<Unknown> UnknownsOfTwoMeans() {
  return {
      UnknownEffectD(),
      {.input = "mean-difference",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = "the noncentrality grows with the difference",
       .piece = [](const Inputs&) -> Piece {
         return {0, std::numeric_limits<double>::infinity()};
       }},
      UnknownSd("sd"),
      UnknownRatio(),
      UnknownSdOfInterval("sd"),
  };
}

}  // namespace planner
