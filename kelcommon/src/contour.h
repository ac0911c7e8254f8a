#ifndef KELCOMMON_SRC_CONTOUR_H
#define KELCOMMON_SRC_CONTOUR_H

#include "beta_tails.h"

namespace KelMath {

/// The tails of `NoncentralBetaTails` by an integral along a contour in the complex plane, whose cost does not depend
/// on the arguments. At least one of a, b and m is large. a, b and m up to 1e120.
Tails NoncentralBetaTailsByContour(double a, double b, double m, const UnitPoint& point);

}  // namespace KelMath

#endif
