#ifndef KELCOMMON_SRC_NONCENTRAL_CHI_SQUARE_H
#define KELCOMMON_SRC_NONCENTRAL_CHI_SQUARE_H

#include "beta_tails.h"

namespace KelMath {

/// Tails at x of a gamma variable of shape a plus a Poisson number of mean m, half of a noncentral chi-square with 2a
/// degrees of freedom and noncentrality 2m. All are positive and finite, m may be 0. Each tail keeps its digits relative
/// to itself.
Tails NoncentralGammaTails(double a, double m, double x);

}  // namespace KelMath

#endif
