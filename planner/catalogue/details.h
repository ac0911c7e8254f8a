#ifndef KELPOWER_PLANNER_CATALOGUE_DETAILS_H
#define KELPOWER_PLANNER_CATALOGUE_DETAILS_H

#include <string>

#include "catalogue/core.h"
#include "frame/rejection.h"
#include "model/details.h"
#include "model/inputs.h"
#include "model/question.h"

// What is behind the answers of the tests, each in the file <test>_details.cpp, and what these share.
namespace planner {

Details DetailsOfAnova(Question question, const Inputs& in);
Details DetailsOfContrast(Question question, const Inputs& in);
Details DetailsOfFactorial(Question question, const Inputs& in);
Details DetailsOfAncova(Question question, const Inputs& in);
Details DetailsOfRepeatedMeasures(Question question, const Inputs& in);
Details DetailsOfPairwise(Question question, const Inputs& in);
Details DetailsOfCrossover(Question question, const Inputs& in);
Details DetailsOfMean(Question question, const Inputs& in);
Details DetailsOfPairedMeans(Question question, const Inputs& in);
Details DetailsOfTwoMeans(Question question, const Inputs& in);
Details DetailsOfProportion(Question question, const Inputs& in);
Details DetailsOfPairedProportions(Question question, const Inputs& in);
Details DetailsOfTwoProportions(Question question, const Inputs& in);
Details DetailsOfRegression(Question question, const Inputs& in);
Details DetailsOfPearson(Question question, const Inputs& in);
Details DetailsOfSpearman(Question question, const Inputs& in);
Details DetailsOfPartial(Question question, const Inputs& in);
Details DetailsOfGoodnessOfFit(Question question, const Inputs& in);
Details DetailsOfContingency(Question question, const Inputs& in);
Details DetailsOfVariance(Question question, const Inputs& in);
Details DetailsOfTwoVariances(Question question, const Inputs& in);
Details DetailsOfMannWhitney(Question question, const Inputs& in);
Details DetailsOfTwoCorrelations(Question question, const Inputs& in);
Details DetailsOfDependentCorrelations(Question question, const Inputs& in);

inline bool IsOneSided(const Inputs& in) { return in.Has("one-sided") && in.Flag("one-sided"); }

/// The figures and the power of a t test, with the formula from the noncentrality on. `noncentrality` is its formula.
void AddTTest(Details& details, const kelpower::TTest& test, double noncentrality, bool isOneSided,
              const std::string& formula);

/// The same of an F test.
void AddFTest(Details& details, const kelpower::FTest& test, double noncentrality, const std::string& formula);

/// Which directions a normal test rejects in.
enum class Tails { Both, Upper, Lower };
inline Tails TailsOf(bool isOneSided, bool isAbove) {
  return isOneSided ? (isAbove ? Tails::Upper : Tails::Lower) : Tails::Both;
}

/// The statistic of a normal test: `mean` and `sd` with the effect, in units of the standard deviation without.
void SetNormalStatistic(Details& details, double mean, double sd, double critical, Tails tails);

/// The t quantile of an interval, with `df` degrees of freedom at `level`.
void AddIntervalT(Details& details, double level, double df);

/// The normal quantile of an interval.
void AddIntervalZ(Details& details, const Inputs& in);

/// The normal quantile that a test compares with.
void AddCriticalZ(Details& details, double critical);

}  // namespace planner

#endif
