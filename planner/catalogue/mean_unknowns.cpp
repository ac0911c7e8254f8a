#include "catalogue/mean.h"
#include "catalogue/unknowns.h"

namespace planner {
namespace {

/// Of the mean, from that of its difference from the test value.
Piece AboveTestValue(const Inputs& in, const Piece& piece) {
  return {in.Number("test-value") + piece.low, in.Number("test-value") + piece.high};
}

Piece BelowMean(const Inputs& in, const Piece& piece) {
  return {in.Number("mean") - piece.high, in.Number("mean") - piece.low};
}

}  // namespace

std::vector<Unknown> UnknownsOfMean() {
  constexpr const char* reason = "the noncentrality grows with the distance of the mean from the test value";
  return {
      UnknownEffectD(),
      {.input = "mean",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) { return AboveTestValue(in, PieceOfEffect(in, noDifference)); },
       .pieceBelow = [](const Inputs& in) { return AboveTestValue(in, PieceOfEffectBelow(in, noDifference)); }},
      UnknownSpread("sd",
                    [](const Inputs& in) {
                      return PieceOfSpread(!HasMargins(in) || IsWithinMargins(in, DifferenceOfMean(in), noDifference));
                    }),
      {.input = "test-value",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) { return BelowMean(in, PieceOfEffect(in, noDifference)); },
       .pieceBelow = [](const Inputs& in) { return BelowMean(in, PieceOfEffectBelow(in, noDifference)); }},
      UnknownMargin([](const Inputs& in) { return PieceOfMargin(in, DifferenceOfMean(in), noDifference); }),
      UnknownSdOfInterval("sd"),
  };
}

}  // namespace planner
