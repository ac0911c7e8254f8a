#include "catalogue/crossover.h"

#include <cmath>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

bool IsRatio(const Inputs& in) { return in.Has("mean-ratio"); }
double NoEffect(const Inputs& in) { return IsRatio(in) ? noRatio : noDifference; }
double EffectGiven(const Inputs& in) { return in.Number(IsRatio(in) ? Name("mean-ratio") : Name("mean-difference")); }

bool HasEffect(const Inputs& in) { return HasMargins(in) || EffectGiven(in) != NoEffect(in); }
bool IsWithin(const Inputs& in) { return IsWithinMargins(in, EffectGiven(in), NoEffect(in)); }

/// With its sign, which of a ratio is that of its logarithm.
double Effect(const Inputs& in) { return IsRatio(in) ? std::log(EffectGiven(in)) : EffectGiven(in); }

std::string Hypothesis(const Inputs& in) {
  return HypothesisOfMargins(in, IsRatio(in) ? "ratio of the means" : "difference of the means", NoEffect(in));
}

std::vector<Parameter> Parameters() {
  std::vector<Parameter> parameters = {
      Number("mean-difference", "difference of the means", "mean under the first treatment minus that under the second")
          .Alias("difference")
          .Alias("delta"),
      Number("sd", "standard deviation", "standard deviation within subjects").Above(0),
      MeanRatio(),
      CoefficientOfVariation("standard deviation within subjects over the mean of the data, with {mean-ratio}"),
      PerGroup("n", "sequence sizes", "subjects in each of the two sequences of treatments")
          .Alias("sizes")
          .Spreads()
          .Whole()
          .AtLeast(1)
          .AtMost(1e9),
      OneSided(),
  };
  const std::vector<Parameter> margins = MarginParameters("difference or ratio of the means");
  parameters.insert(parameters.end(), margins.begin(), margins.end());
  return parameters;
}

std::vector<Condition> Conditions() {
  std::vector<Condition> conditions = RatioMarginsAboveZero("mean-ratio");
  conditions.push_back(LimitsInOrder());
  conditions.push_back({.code = "error-degrees",
                        .about = {"n"},
                        .holds = [](const Inputs& in) { return TotalSize(in) > 2; },
                        .sentence = "{n} must be at least 3 in total, to estimate the standard deviation from."});
  return conditions;
}

std::vector<Condition> SizeExists() {
  constexpr const char* equal = "The two means are equal: without a difference, no sample size reaches the power.";
  std::vector<Condition> conditions = {
      {.code = "no-effect", .about = {"mean-difference"}, .holds = HasEffect, .sentence = equal},
      {.code = "no-effect", .about = {"mean-ratio"}, .holds = HasEffect, .sentence = equal},
  };
  for (const auto& within : {WithinMargins("mean-difference", "difference of the means", IsWithin),
                             WithinMargins("mean-ratio", "ratio of the means", IsWithin)}) {
    conditions.insert(conditions.end(), within.begin(), within.end());
  }
  return conditions;
}

Piece SpreadPiece(const Inputs& in) { return PieceOfSpread(!HasMargins(in) || IsWithin(in)); }
Piece MarginPiece(const Inputs& in) { return PieceOfMargin(in, EffectGiven(in), NoEffect(in)); }

}  // namespace

Test CrossoverTest() {
  Test test{.name = "crossover",
            .title = "2x2 crossover: t test of two treatments",
            .about =
                "Tests whether two treatments have the same mean when every subject receives both, half of them in "
                "the reverse order; for lognormal data, such as those of bioequivalence, their ratio.",
            .groups = 2,
            .counted = "subjects"};
  test.parameters = Parameters();
  test.routes = RoutesOfCrossover();
  test.unknowns = {UnknownMeanDifferenceWithMargins(), UnknownMeanRatio(),         UnknownSpread("sd", SpreadPiece),
                   UnknownSpread("cv", SpreadPiece),   UnknownMargin(MarginPiece), UnknownSdOfInterval("sd")};
  test.conditions = Conditions();
  test.sizeExists = SizeExists();
  test.assumptions = {HypothesisAssumption(Hypothesis)};
  test.effect = Effect;
  AddWordsOfCrossover(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
