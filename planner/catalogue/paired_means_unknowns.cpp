#include <limits>

#include "catalogue/paired_means.h"
#include "catalogue/unknowns.h"

namespace planner {

std::vector<Unknown> UnknownsOfPairedMeans() {
  constexpr const char* spread = "the differences spread less, the closer the two measurements are correlated";
  return {
      UnknownEffectD(),
      {.input = "mean-difference",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = "the noncentrality grows with the difference",
       .piece = [](const Inputs&) -> Piece {
         return {0, std::numeric_limits<double>::infinity()};
       }},
      UnknownSd("sd-difference"),
      {.input = "correlation", .target = Question::Power, .trend = Trend::Rises, .reason = spread},
      UnknownSdOfInterval("sd-difference"),
      {.input = "correlation", .target = Question::HalfWidth, .trend = Trend::Falls, .reason = spread},
  };
}

}  // namespace planner
