#ifndef KELCOMMON_SRC_CORRELATION_H
#define KELCOMMON_SRC_CORRELATION_H

namespace KelMath {

struct CorrelationTail {
  double probability;
  double density;  ///< of atanh(r)
};

/// P(R <= r) for the correlation R of a sample of n pairs from a bivariate normal distribution with correlation rho;
/// n > 2 and finite, -1 < r <= rho < 1. The probability keeps its digits relative to itself.
CorrelationTail LowerTailOfCorrelation(double r, double n, double rho);

}  // namespace KelMath

#endif
