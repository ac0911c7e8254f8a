#include "catalogue/proportion.h"

namespace planner {

std::vector<Unknown> UnknownsOfProportion() {
  constexpr const char* reason = "the more the proportions differ, the more of the outcomes are in the critical region";
  return {
      {.input = "proportion",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {in.Number("null"), 1};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {0, in.Number("null")};
       }},
      {.input = "null",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {0, in.Number("proportion")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {in.Number("proportion"), 1};
       }},
  };
}

}  // namespace planner
