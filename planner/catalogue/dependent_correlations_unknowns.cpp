#include <algorithm>
#include <limits>

#include "catalogue/dependent_correlations.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

constexpr const char* reason =
    "the difference of Fisher's z grows, and its standard error less; below the level the power may fall at first";

Piece Above(const correlation::PossibleCorrelations& possible, double first) {
  return {std::max(possible.low, first), possible.high};
}

Piece Below(const correlation::PossibleCorrelations& possible, double first) {
  return {possible.low, std::min(possible.high, first)};
}

/// Where the pairs are separate this correlation is not compared, and the power need not be monotone.
correlation::PossibleCorrelations PossibleShared(const Inputs& in) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  if (ArePairsSeparate(in)) return {none, none};
  return correlation::PossibleSecond(SharedVariableOf(in));
}

}  // namespace

std::vector<Unknown> UnknownsOfDependentCorrelations() {
  return {
      {.input = "r34",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece =
           [](const Inputs& in) { return Above(correlation::PossibleSecond(SeparatePairsOf(in)), in.Number("r12")); },
       .pieceBelow =
           [](const Inputs& in) { return Below(correlation::PossibleSecond(SeparatePairsOf(in)), in.Number("r12")); }},
      {.input = "r13",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) { return Above(PossibleShared(in), in.Number("r12")); },
       .pieceBelow = [](const Inputs& in) { return Below(PossibleShared(in), in.Number("r12")); }},
  };
}

}  // namespace planner
