#include <limits>

#include "catalogue/mean.h"
#include "catalogue/unknowns.h"

namespace planner {

std::vector<Unknown> UnknownsOfMean() {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr const char* reason = "the noncentrality grows with the distance of the mean from the test value";
  return {
      UnknownEffectD(),
      {.input = "mean",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {in.Number("test-value"), infinity};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {-infinity, in.Number("test-value")};
       }},
      UnknownSd("sd"),
      {.input = "test-value",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {-infinity, in.Number("mean")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {in.Number("mean"), infinity};
       }},
      UnknownSdOfInterval("sd"),
  };
}

}  // namespace planner
