#ifndef KELCOMMON_SRC_UNIT_POINT_H
#define KELCOMMON_SRC_UNIT_POINT_H

#include "double_double.h"

namespace KelMath {

/// A point of the unit interval by both distances to its ends, neither of which loses digits near an end.
struct UnitPoint {
  DoubleDouble x;
  DoubleDouble y;  ///< 1 - x

  /// 0 < x < 1.
  static UnitPoint FromX(double x) { return {{x, 0}, ExactSum(1, -x)}; }

  /// The point that divides the interval in the ratio of two positive numbers, which neither overflow nor underflow
  /// with their sum.
  static UnitPoint FromRatio(const DoubleDouble& near, const DoubleDouble& far) {
    const DoubleDouble whole = SumOfPositive(near, far);
    return {Quotient(near, whole), Quotient(far, whole)};
  }

  UnitPoint Mirrored() const { return {y, x}; }
};

}  // namespace KelMath

#endif
