#include <limits>

#include "catalogue/two_proportions.h"
#include "catalogue/unknowns.h"

namespace planner {

std::vector<Unknown> UnknownsOfTwoProportions() {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr const char* reason = "the more the proportions differ, the more tables are in the critical region";
  return {
      {.input = "risk-difference",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {0, 1 - in.Number("proportion1")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {-in.Number("proportion1"), 0};
       }},
      {.input = "risk-ratio",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {1, 1 / in.Number("proportion1")};
       },
       .pieceBelow = [](const Inputs&) -> Piece {
         return {0, 1};
       }},
      {.input = "odds-ratio",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs&) -> Piece {
         return {1, infinity};
       },
       .pieceBelow = [](const Inputs&) -> Piece {
         return {0, 1};
       }},
      UnknownRatio(),
  };
}

}  // namespace planner
