#ifndef KELCOMMON_SRC_HALF_DEGREES_H
#define KELCOMMON_SRC_HALF_DEGREES_H

#include <algorithm>
#include <limits>

namespace KelMath {

/// Half the degrees of freedom, a shape of the beta distribution. At least the smallest normal double, since half of
/// the least denormal rounds to 0.
inline double HalfDegrees(double df) { return std::max(df / 2, std::numeric_limits<double>::min()); }

}  // namespace KelMath

#endif
