#ifndef KELCOMMON_SRC_POWER_H
#define KELCOMMON_SRC_POWER_H

#include "double_double.h"

namespace KelMath {

/// base^(exponent + rest) for base >= 0, any exponent, and a `rest` below its last digit. The error is one unit in the
/// last place, that of a C library's power.
DoubleDouble PrecisePowerOf(const DoubleDouble& base, double exponent, double rest = 0);

inline double PowerOf(const DoubleDouble& base, double exponent) { return PrecisePowerOf(base, exponent).hi; }

}  // namespace KelMath

#endif
