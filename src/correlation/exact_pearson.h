#ifndef KELPOWER_CORRELATION_EXACT_PEARSON_H
#define KELPOWER_CORRELATION_EXACT_PEARSON_H

#include "correlation/fisher.h"
#include "frame/answer.h"

// The test of a Pearson correlation by the distribution of r itself in samples of a bivariate normal distribution
// (Fisher 1915, Biometrika 10, 507-521; Hotelling 1953, Journal of the Royal Statistical Society B 15, 193-232). Of a
// null correlation of 0 it is the t test of a correlation.

namespace kelpower::correlation {

/// The test rejects at correlations up to `below` and from `above` on; a side that it does not look at has -1 or 1.
struct CriticalCorrelations {
  double below;
  double above;

  /// The probability of rejection, where the correlation is `alternative`.
  double Power(double size, double alternative) const;
};

/// A two-sided test gives half of its level to each tail. Nothing is checked.
CriticalCorrelations CriticalValues(const Level& level, double size, const Hypotheses& hypotheses);

/// Refused for a size of 2 or less, what is no level or no correlation, and a null correlation of -1 or 1.
Answer ExactPower(const Level& level, double size, const Hypotheses& hypotheses);

}  // namespace kelpower::correlation

#endif
