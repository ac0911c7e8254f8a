#include "catalogue/paired_means.h"
#include "catalogue/unknowns.h"

namespace planner {

std::vector<Unknown> UnknownsOfPairedMeans() {
  constexpr const char* spread = "the differences spread less, the closer the two measurements are correlated";
  return {
      UnknownEffectD(),
      UnknownMeanDifferenceWithMargins(),
      UnknownSpread("sd-difference",
                    [](const Inputs& in) {
                      return PieceOfSpread(!HasMargins(in) ||
                                           IsWithinMargins(in, DifferenceOfPairedMeans(in), noDifference));
                    }),
      {.input = "correlation", .target = Question::Power, .trend = Trend::Rises, .reason = spread},
      UnknownMargin([](const Inputs& in) { return PieceOfMargin(in, DifferenceOfPairedMeans(in), noDifference); }),
      UnknownSdOfInterval("sd-difference"),
      {.input = "correlation", .target = Question::HalfWidth, .trend = Trend::Falls, .reason = spread},
  };
}

}  // namespace planner
