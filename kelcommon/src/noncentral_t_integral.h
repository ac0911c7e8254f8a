#ifndef KELCOMMON_SRC_NONCENTRAL_T_INTEGRAL_H
#define KELCOMMON_SRC_NONCENTRAL_T_INTEGRAL_H

namespace KelMath {

/// P(T <= -x) for the noncentral t distribution with 2b degrees of freedom and noncentrality delta, x > 0, delta > 0:
/// the tail on the side away from the noncentrality.
double NoncentralTWrongSideIntegral(double x, double b, double delta);

}  // namespace KelMath

#endif
