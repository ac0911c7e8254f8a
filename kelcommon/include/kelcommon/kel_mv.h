#ifndef KELCOMMON_KEL_MV_H
#define KELCOMMON_KEL_MV_H

#include "kelcommon/api.h"

namespace KelCommon {

/// The system-missing value: the answer of a function that has none.
///
/// It is the most negative finite double. Searches rely on what that implies: a missing objective is negative, its
/// product with another one is plus infinity, and `ceil` keeps it.
class KELCOMMON_API KelMV {
public:
  /// Returns the system-missing value.
  static double Missing() noexcept;

  /// True exactly when `v` is the system-missing value. A NaN is not missing.
  static bool IsMissing(double v) noexcept;
};

}  // namespace KelCommon

#endif
