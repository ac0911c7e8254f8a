#ifndef KELPOWER_TESTS_VALIDATION_STUDY_H
#define KELPOWER_TESTS_VALIDATION_STUDY_H

#include <functional>
#include <random>
#include <string>

#include "validation/inputs.h"

namespace kelpower::validation {

using Engine = std::mt19937_64;

/// A study as its author does it: data are drawn and tested.
struct Study {
  /// Whether the power is claimed to be that of this test, and not only near to it.
  bool isExact;
  std::function<bool(Engine&)> rejects;
  /// The probability of all outcomes that are rejected; empty where outcomes are not counted through.
  std::function<double()> counted = nullptr;
};

/// What a test rejects by its statistic. Critical values are computed when the study is made, not when it is drawn.
struct Rejection {
  double lower;
  double upper;

  bool operator()(double statistic) const { return statistic < lower || statistic > upper; }
};

/// Of a statistic that is symmetric without an effect.
/// @param upper gives the value that is exceeded with a probability
Rejection SymmetricRejection(double alpha, bool isOneSided, double direction,
                             const std::function<double(double)>& upper);

/// What a margin or limits of equivalence ask to be shown.
struct Limits {
  bool hasLower = false;
  bool hasUpper = false;
  double lower = 0;
  double upper = 0;
};

bool HasLimits(const Inputs& inputs);

/// @param noEffect 0, or 1 where the limits are ratios
Limits LimitsOf(Inputs& inputs, double noEffect);

/// The values of standard normal and t distributions that are exceeded with a probability.
double UpperNormal(double probability);
double UpperT(double probability, double df);
double UpperF(double probability, double df1, double df2);

Study MakeStudy(const std::string& test, Inputs& inputs);

// One for each test, by family.
Study OfMean(Inputs& inputs);
Study OfPairedMeans(Inputs& inputs);
Study OfTwoMeans(Inputs& inputs);
Study OfCrossover(Inputs& inputs);
Study OfAnova(Inputs& inputs);
Study OfContrast(Inputs& inputs);
Study OfPairwise(Inputs& inputs);
Study OfTukey(Inputs& inputs);
Study OfDunnett(Inputs& inputs);
Study OfFactorial(Inputs& inputs);
Study OfAncova(Inputs& inputs);
Study OfRepeatedMeasures(Inputs& inputs);
Study OfVariance(Inputs& inputs);
Study OfTwoVariances(Inputs& inputs);
Study OfProportion(Inputs& inputs);
Study OfTwoProportions(Inputs& inputs);
Study OfPairedProportions(Inputs& inputs);
Study OfGoodnessOfFit(Inputs& inputs);
Study OfContingency(Inputs& inputs);
Study OfMannWhitney(Inputs& inputs);
Study OfSignedRank(Inputs& inputs);
Study OfOrdinal(Inputs& inputs);
Study OfPearson(Inputs& inputs);
Study OfSpearman(Inputs& inputs);
Study OfPartial(Inputs& inputs);
Study OfTwoCorrelations(Inputs& inputs);
Study OfDependentCorrelations(Inputs& inputs);
Study OfRegression(Inputs& inputs);

}  // namespace kelpower::validation

#endif
