#ifndef KELCOMMON_SRC_NONCENTRAL_F_H
#define KELCOMMON_SRC_NONCENTRAL_F_H

#include "beta_tails.h"

namespace KelMath {

/// Tails at the point of the share X1 / (X1 + X2) of a noncentral chi-square X1 with 2a degrees of freedom and
/// noncentrality 2m and a chi-square X2 with 2b degrees of freedom. a, b > 0 and m >= 0, up to 1e120.
Tails NoncentralBetaTails(double a, double b, double m, const UnitPoint& point);

/// P(F <= x) for the noncentral F distribution with 2a and 2b degrees of freedom and noncentrality 2m. a, b and x
/// positive and finite, m >= 0 and finite.
double NoncentralFLowerTail(double x, double a, double b, double m);

}  // namespace KelMath

#endif
