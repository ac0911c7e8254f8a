#include "catalogue/margins.h"
#include "catalogue/mean_margins.h"
#include "catalogue/proportion.h"
#include "catalogue/proportion_margins.h"

namespace planner {

namespace {

/// From the end at which the power is low to the one at which it is high: to the middle of the limits of equivalence, or
/// away from the margin.
Piece ProportionsWithMargins(const Inputs& in, bool isBelow) {
  const auto limits = ProportionLimitsOf(in);
  if (!IsEquivalence(in)) return limits.HasLower() ? Piece{limits.lower, 1} : Piece{limits.upper, 0};
  const double middle = AtContrast(MarginContrast(in), in.Number("null"), MiddleOfLimits(in));
  return isBelow ? Piece{limits.lower, middle} : Piece{limits.upper, middle};
}

/// The same of null proportions, by those that the expected one has each contrast to.
Piece NullsWithMargins(const Inputs& in, bool isBelow) {
  if (!IsEquivalence(in)) return IsAboveMargin(in, NoContrast(in)) ? Piece{1, 0} : Piece{0, 1};
  const auto nullOf = [&](double limit) {
    const bool isDifference = MarginContrast(in) == kelpower::proportions::Contrast::Difference;
    return AtContrast(MarginContrast(in), in.Number("proportion"), isDifference ? -limit : 1 / limit);
  };
  return {nullOf(in.List("equivalence")[isBelow ? 1 : 0]), nullOf(MiddleOfLimits(in))};
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
         return HasMargins(in) ? ProportionsWithMargins(in, false) : Piece{in.Number("null"), 1};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? Turned(ProportionsWithMargins(in, true)) : Piece{0, in.Number("null")};
       }},
      {.input = "null",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? Turned(NullsWithMargins(in, false)) : Piece{0, in.Number("proportion")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? NullsWithMargins(in, true) : Piece{in.Number("proportion"), 1};
       }},
      UnknownMargin(MarginPiece),
  };
}

}  // namespace planner
