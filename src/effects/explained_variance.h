#ifndef KELPOWER_EFFECTS_EXPLAINED_VARIANCE_H
#define KELPOWER_EFFECTS_EXPLAINED_VARIANCE_H

#include <optional>

#include "effects/interval.h"

// Effect sizes of F tests in analysis of variance and in regression with fixed predictors. With the noncentrality
// lambda of F and N observations f^2 = lambda / N in the population, and eta^2 = R^2 = f^2 / (1 + f^2), so the limits of
// lambda give those of each (Smithson 2001, Educational and Psychological Measurement 61, 605-632; Steiger 2004,
// Psychological Methods 9, 164-182). Where there are other factors or predictors, these are the partial ones.

namespace kelpower::effects {

/// An F test of data.
struct FStatistic {
  double f;     ///< 0 or above
  double df1;   ///< of the effect, above 0
  double df2;   ///< of the error, above 0
  double size;  ///< N, above 0: df1 + df2 + 1 for one factor, or for all predictors of a model with an intercept
};

/// f^2 of a (partial) eta squared in [0, 1], and the eta squared of an f^2 >= 0. NaN outside.
double FSquaredOfEtaSquared(double etaSquared);
double EtaSquaredOfFSquared(double fSquared);

/// f^2 = F df1 / df2 of the sample, with the interval of that of the population at level 1 - alpha. None for other
/// arguments than the stated ones.
std::optional<Estimate> FSquared(const FStatistic& test, double alpha);

/// Cohen's f, the root of each.
std::optional<Estimate> CohensF(const FStatistic& test, double alpha);

/// Eta squared, or the partial one, df1 F / (df1 F + df2), with the interval of that of the population.
std::optional<Estimate> EtaSquared(const FStatistic& test, double alpha);

/// Omega squared, or the partial one, df1 (F - 1) / (df1 (F - 1) + N), which corrects eta squared for bias and may lie
/// below 0 (Hays 1963; Olejnik and Algina 2003, Psychological Methods 8, 434-447). It estimates the same quantity, so
/// the interval is that of eta squared.
std::optional<Estimate> OmegaSquared(const FStatistic& test, double alpha);

/// A squared multiple correlation of data, of a model with an intercept.
struct RSquared {
  double value;       ///< 0 to below 1
  double predictors;  ///< number of them, above 0
  double size;        ///< N, above predictors + 1
};

/// The F test that R^2 is 0. None for other arguments.
std::optional<FStatistic> FOfRSquared(const RSquared& rSquared);

}  // namespace kelpower::effects

#endif
