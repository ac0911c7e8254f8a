#include <algorithm>
#include <cmath>
#include <limits>

#include "catalogue/mean_margins.h"
#include "catalogue/unknowns.h"

// A piece is told from the end where the power is low to the one where it is high, which may be the lower number.
namespace planner {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Below every effect.
double Lowest(double noEffect) { return noEffect == noRatio ? 0 : -infinity; }

/// Where the equivalence is shown most easily.
double Middle(const Numbers& limits, double noEffect) {
  return noEffect == noRatio ? std::sqrt(limits[0]) * std::sqrt(limits[1]) : limits[0] / 2 + limits[1] / 2;
}

}  // namespace

Piece PieceOfEffect(const Inputs& in, double noEffect) {
  if (IsEquivalence(in)) return {in.List("equivalence")[1], Middle(in.List("equivalence"), noEffect)};
  if (!HasMargins(in)) return {noEffect, infinity};
  return {in.Number("margin"), IsAboveMargin(in, noEffect) ? infinity : Lowest(noEffect)};
}

Piece PieceOfEffectBelow(const Inputs& in, double noEffect) {
  if (IsEquivalence(in)) return {Middle(in.List("equivalence"), noEffect), in.List("equivalence")[0]};
  if (!HasMargins(in)) return {Lowest(noEffect), noEffect};
  const Piece piece = PieceOfEffect(in, noEffect);
  return {piece.high, piece.low};
}

Unknown UnknownMeanDifferenceWithMargins() {
  Unknown unknown = UnknownMeanDifference();
  unknown.piece = [](const Inputs& in) { return PieceOfEffect(in, noDifference); };
  unknown.pieceBelow = [](const Inputs& in) { return PieceOfEffectBelow(in, noDifference); };
  return unknown;
}

Unknown UnknownMeanRatio() {
  return {.input = "mean-ratio",
          .target = Question::Power,
          .trend = Trend::Rises,
          .reason = "the noncentrality grows with the distance of the ratio from 1 or from its margin",
          .piece = [](const Inputs& in) { return PieceOfEffect(in, noRatio); },
          .pieceBelow = [](const Inputs& in) { return PieceOfEffectBelow(in, noRatio); }};
}

Unknown UnknownSpread(Name input, Piece (*piece)(const Inputs&)) {
  Unknown unknown = UnknownSd(input);
  unknown.piece = piece;
  return unknown;
}

// The power falls from the lower number of a piece to the higher one.
Piece PieceOfSpread(bool isWithinMargins) { return isWithinMargins ? Piece{0, infinity} : Piece{infinity, 0}; }

Unknown UnknownMargin(Piece (*piece)(const Inputs&)) {
  return {.input = "margin",
          .target = Question::Power,
          .trend = Trend::Rises,
          .reason = "the noncentrality grows with the distance of the margin from the effect",
          .piece = piece};
}

Piece PieceOfMargin(const Inputs& in, double effect, double noEffect) {
  if (in.Flag("superiority")) return {effect, noEffect};
  return {std::min(effect, noEffect), Lowest(noEffect)};
}

}  // namespace planner
