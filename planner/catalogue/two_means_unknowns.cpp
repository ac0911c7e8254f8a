#include "catalogue/two_groups.h"
#include "catalogue/two_means.h"
#include "catalogue/unknowns.h"

namespace planner {
namespace {

Piece SpreadPiece(const Inputs& in) { return PieceOfSpread(!HasMargins(in) || IsWithinMarginsOfTwoMeans(in)); }

Piece MarginPiece(const Inputs& in) {
  const bool isRatio = in.Has("mean-ratio");
  return PieceOfMargin(in, isRatio ? in.Number("mean-ratio") : DifferenceOfMeans(in), isRatio ? noRatio : noDifference);
}

}  // namespace

std::vector<Unknown> UnknownsOfTwoMeans() {
  return {
      UnknownEffectD(),
      UnknownMeanDifferenceWithMargins(),
      UnknownSpread("sd", SpreadPiece),
      UnknownRatio(),
      UnknownMeanRatio(),
      UnknownSpread("cv", SpreadPiece),
      UnknownMargin(MarginPiece),
      UnknownSdOfInterval("sd"),
  };
}

}  // namespace planner
