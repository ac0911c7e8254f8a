#include <limits>

#include "kelcommon/kel_mv.h"

namespace KelCommon {

double KelMV::Missing() noexcept { return std::numeric_limits<double>::lowest(); }

bool KelMV::IsMissing(double v) noexcept { return v == std::numeric_limits<double>::lowest(); }

}  // namespace KelCommon
