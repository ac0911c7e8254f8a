#include <cmath>

#include "catalogue/core.h"
#include "catalogue/ordinal.h"
#include "catalogue/ranks.h"

namespace planner {
namespace {

double PowerAt(Inputs& in, double logOdds) {
  in.Set("odds-ratio", std::exp(logOdds));
  const Numbers& n = in.List("n");
  return OrNaN(kelpower::ranks::Power(OrdinalTestOf(in), OrderedGroupsOf(in), n[0], n[1]));
}

/// The odds ratio up to which the power rises, looking from 1 in the direction of `step` in its logarithm. The log odds of
/// superiority grow more slowly than their standard error once the groups hardly overlap.
double EndOfRise(const Inputs& design, double step) {
  constexpr int steps = 276;  // to an odds ratio of 1e6
  Inputs in = design;
  double power = PowerAt(in, 0);
  int i = 0;
  for (; i < steps; ++i) {
    const double next = PowerAt(in, (i + 1) * step);
    if (!(next >= power)) break;
    power = next;
  }
  return std::exp(i * step);
}

constexpr double logStep = 0.05;

Piece Above(const Inputs& in) { return {1, EndOfRise(in, logStep)}; }

Piece Below(const Inputs& in) { return {EndOfRise(in, -logStep), 1}; }

}  // namespace

std::vector<Unknown> UnknownsOfOrdinal() {
  return {{.input = "odds-ratio",
           .target = Question::Power,
           .trend = Trend::Rises,
           .reason = "the more the odds differ, the more often a value of the one group exceeds one of the other",
           .piece = Above,
           .pieceBelow = Below},
          UnknownRatioOfRanks()};
}

}  // namespace planner
