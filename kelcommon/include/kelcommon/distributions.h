#ifndef KELCOMMON_DISTRIBUTIONS_H
#define KELCOMMON_DISTRIBUTIONS_H

#include "kelcommon/api.h"

namespace kelcommon {

// Distribution of the correlation of a sample of n pairs from a bivariate normal distribution.

/// Lower probability of a sample correlation.
/// @param r correlation of the sample; below -1 the probability is 0, from 1 on it is 1
/// @param n number of pairs, above 2; may be fractional; with plus infinity all mass is at rho
/// @param rho correlation of the population, -1 to 1; with -1 or 1 all mass is at rho
KELCOMMON_API double CdfCorrelation(double r, double n, double rho) noexcept;

/// Upper probability of a sample correlation. Arguments as of `CdfCorrelation`.
KELCOMMON_API double SfCorrelation(double r, double n, double rho) noexcept;

/// Quantile of a sample correlation.
/// @param p lower probability, 0 to 1
/// @param n,rho as of `CdfCorrelation`
/// @return the correlation; -1 at p = 0, 1 at p = 1
KELCOMMON_API double IdfCorrelation(double p, double n, double rho) noexcept;

}  // namespace kelcommon

#endif
