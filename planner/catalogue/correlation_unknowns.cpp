#include "catalogue/correlation.h"

namespace planner {

std::vector<Unknown> UnknownsOfCorrelation() {
  constexpr const char* reason = "Fisher's z grows with the correlation, and faster than its standard error";
  return {
      {.input = "r",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {in.Number("null"), 1};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {-1, in.Number("null")};
       }},
      {.input = "null",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {-1, in.Number("r")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {in.Number("r"), 1};
       }},
  };
}

}  // namespace planner
