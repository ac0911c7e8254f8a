#include <limits>

#include "catalogue/margins.h"
#include "catalogue/proportion.h"
#include "catalogue/proportion_margins.h"

namespace planner {

namespace {

/// Beyond one margin the power is monotone everywhere; between the limits of equivalence it is not.
Piece WithMargin(const Inputs& in) { return IsEquivalence(in) ? Piece{0, 0} : Piece{0, 1}; }

/// The margins on the bad side of no effect or on the good side, of larger values that are better.
Piece MarginsOnOneSide(const Inputs& in, bool isBelow) {
  if (MarginContrast(in) != kelpower::proportions::Contrast::Difference) {
    return isBelow ? Piece{0, 1} : Piece{1, std::numeric_limits<double>::infinity()};
  }
  return isBelow ? Piece{-1, 0} : Piece{0, 1};
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
         return HasMargins(in) ? WithMargin(in) : Piece{in.Number("null"), 1};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? WithMargin(in) : Piece{0, in.Number("null")};
       }},
      {.input = "null",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? WithMargin(in) : Piece{0, in.Number("proportion")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return HasMargins(in) ? WithMargin(in) : Piece{in.Number("proportion"), 1};
       }},
      {.input = "margin",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = "the nearer the margin lies to the proportion expected, the fewer outcomes are beyond it",
       .piece = [](const Inputs& in) -> Piece { return MarginsOnOneSide(in, !in.Flag("superiority")); },
       .pieceBelow = [](const Inputs& in) -> Piece { return MarginsOnOneSide(in, in.Flag("superiority")); }},
  };
}

}  // namespace planner
