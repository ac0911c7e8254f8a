#ifndef KELCOMMON_SRC_NONCENTRAL_T_H
#define KELCOMMON_SRC_NONCENTRAL_T_H

namespace KelMath {

/// P(T <= x) of the noncentral t distribution; df > 0, x and delta finite.
double NoncentralTLowerTail(double x, double df, double delta);

}  // namespace KelMath

#endif
