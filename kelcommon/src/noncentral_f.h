#ifndef KELCOMMON_SRC_NONCENTRAL_F_H
#define KELCOMMON_SRC_NONCENTRAL_F_H

#include "beta_terms.h"

namespace KelMath {

/// Tails of the ratio (X1 / X2 <= c) of a noncentral chi-square X1 with 2a degrees of freedom and noncentrality 2m and
/// a chi-square X2 with 2b degrees of freedom. a, b > 0, m >= 0, c > 0, all finite.
Tails NoncentralBetaTails(double a, double b, long double m, long double c);

/// The same by the contour integral alone, whose cost does not depend on the arguments.
Tails NoncentralBetaTailsByContour(double a, double b, long double m, long double c);

}  // namespace KelMath

#endif
