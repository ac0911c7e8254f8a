#include "frame/half_width_equation.h"

#include <cmath>
#include <limits>

#include "frame/rejection.h"

namespace kelpower {

double HalfWidthEquation::Excess(double size) const {
  const double t = IntervalQuantileT(alpha, dfAt(size));
  const double left = slope * size;
  const double right = weight * (t * t);
  const bool isInfinite = std::isinf(weight) || std::isinf(t * t);
  if (isInfinite && !(right < 0) && !std::isnan(left)) return -std::numeric_limits<double>::infinity();
  return left - right;
}

}  // namespace kelpower
