#include "catalogue/margins.h"
#include "catalogue/mean_margins.h"
#include "catalogue/proportion.h"
#include "catalogue/proportion_margins.h"

namespace planner {

namespace {

/// From the end at which the power is low to the one at which it is high. Between the limits of equivalence it rises and
/// falls.
Piece ProportionsBeyondMargin(const Inputs& in) {
  if (IsEquivalence(in)) return {0, 0};
  const auto limits = ProportionLimitsOf(in);
  return limits.HasLower() ? Piece{limits.lower, 1} : Piece{limits.upper, 0};
}

/// From the end at which the power is high.
Piece NullsBeyondMargin(const Inputs& in) {
  if (IsEquivalence(in)) return {0, 0};
  return IsAboveMargin(in, NoContrast(in)) ? Piece{0, 1} : Piece{1, 0};
}

Piece Turned(Piece piece) { return {piece.high, piece.low}; }

Piece MarginPiece(const Inputs& in) {
  return PieceOfMargin(in, ContrastOf(MarginContrast(in), in.Number("null"), in.Number("proportion")), NoContrast(in));
}

}  // namespace

std::vector<Unknown> UnknownsOfProportion() {
  constexpr const char* reason = "the more the proportions differ, the more of the outcomes are in the critical region";
  return {
      {.input = "proportion",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? ProportionsBeyondMargin(in) : Piece{in.Number("null"), 1};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? Turned(ProportionsBeyondMargin(in)) : Piece{0, in.Number("null")};
       }},
      {.input = "null",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? NullsBeyondMargin(in) : Piece{0, in.Number("proportion")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? Turned(NullsBeyondMargin(in)) : Piece{in.Number("proportion"), 1};
       }},
      UnknownMargin(MarginPiece),
  };
}

}  // namespace planner
