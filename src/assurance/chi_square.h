#ifndef KELPOWER_ASSURANCE_CHI_SQUARE_H
#define KELPOWER_ASSURANCE_CHI_SQUARE_H

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::assurance {

/// The probability that chi-square on `df` > 0 degrees of freedom is at most x. It is that of df F, where F has as many
/// degrees of freedom in its denominator: with 1e30 of them the two differ by less than a rounding error for every `df`
/// up to 1e13.
inline double CdfChiSquare(double x, double df) {
  constexpr double uncountable = 1e30;
  return KelMath::KelDistFun::NonCentralCdfF(x / df, df, uncountable, 0, 0);
}

}  // namespace kelpower::assurance

#endif
