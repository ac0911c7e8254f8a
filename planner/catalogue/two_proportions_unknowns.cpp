#include <limits>

#include "catalogue/margins.h"
#include "catalogue/two_proportions.h"
#include "catalogue/two_proportions_margins.h"
#include "catalogue/unknowns.h"

namespace planner {

using kelpower::proportions::Contrast;

std::vector<Unknown> UnknownsOfTwoProportions() {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr const char* reason = "the more the proportions differ, the more tables are in the critical region";
  return {
      {.input = "risk-difference",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         const double first = in.Number("proportion1");
         return HasMargins(in) ? PieceOfContrast(in, Contrast::Difference, {-first, 1 - first}) : Piece{0, 1 - first};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         const double first = in.Number("proportion1");
         return HasMargins(in) ? PieceOfContrastBelow(in, Contrast::Difference, {-first, 1 - first}) : Piece{-first, 0};
       }},
      {.input = "risk-ratio",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         const double most = 1 / in.Number("proportion1");
         return HasMargins(in) ? PieceOfContrast(in, Contrast::RiskRatio, {0, most}) : Piece{1, most};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? PieceOfContrastBelow(in, Contrast::RiskRatio, {0, 1 / in.Number("proportion1")})
                               : Piece{0, 1};
       }},
      {.input = "odds-ratio",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? PieceOfContrast(in, Contrast::OddsRatio, {0, infinity}) : Piece{1, infinity};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? PieceOfContrastBelow(in, Contrast::OddsRatio, {0, infinity}) : Piece{0, 1};
       }},
      UnknownRatio(),
  };
}

}  // namespace planner
