#ifndef KELPOWER_CORRELATION_SPEARMAN_H
#define KELPOWER_CORRELATION_SPEARMAN_H

#include "correlation/fisher.h"
#include "frame/answer.h"
#include "frame/stop.h"

// Spearman's rank correlation.

namespace kelpower::correlation {

/// Approximations of the variance of Fisher's z of a rank correlation rho.
enum class RankVariance {
  BonettWright,           ///< (1 + rho^2 / 2) / (N - 3): Bonett and Wright (2000)
  FiellerHartleyPearson,  ///< 1.06 / (N - 3): Fieller, Hartley and Pearson (1957)
  CarusoCliff             ///< |z| / (6 N + 4 sqrt(N)) + 1 / (N - 2): Caruso and Cliff (1997)
};

/// Each of the variances falls as the size grows, and nothing else depends on it, so the power never falls.
struct SpearmanTest {
  Level level;
  RankVariance variance;
};

/// The standard error of Fisher's z of the rank correlation `rho`; `absoluteZ` is |z| of it.
double StandardError(RankVariance variance, double size, double rho, double absoluteZ);

/// The difference of Fisher's z over its standard error. Nothing is checked.
ShiftedNormal UnderAlternative(const SpearmanTest& test, double size, const Hypotheses& hypotheses);

/// Refused where the variance is infinite or negative, at sizes up to 3, or below 3 for the variance of Caruso and
/// Cliff; and for what is no correlation or no level.
Answer Power(const SpearmanTest& test, double size, const Hypotheses& hypotheses);

/// From where the search for a size starts.
Bracket PowerBracket(RankVariance variance);

/// The size, unrounded, at which the test reaches `power`.
Answer SizeForPower(const SpearmanTest& test, const Hypotheses& hypotheses, double power, Stop stop = {});

/// A confidence interval.
struct SpearmanInterval {
  Confidence confidence;
  double correlation;  ///< expected
  RankVariance variance;
};

/// NaN where there is no such interval.
double HalfWidth(const SpearmanInterval& interval, double size);

/// The size, unrounded. The search starts at 4 cases for every variance.
Answer SizeForHalfWidth(const SpearmanInterval& interval, double halfWidth, Stop stop = {});

}  // namespace kelpower::correlation

#endif
