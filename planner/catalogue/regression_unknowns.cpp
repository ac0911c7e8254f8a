#include "catalogue/regression.h"
#include "catalogue/unknowns.h"

namespace planner {

std::vector<Unknown> UnknownsOfRegression() {
  constexpr const char* reason = "the noncentrality grows with what the predictors tested explain";
  return {
      {.input = "r-squared",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {ReducedFit(in), 1};
       }},
      UnknownEffect("effect-f2"),
      {.input = "r-squared-reduced",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {0, in.Number("r-squared")};
       }},
  };
}

}  // namespace planner
