#include "exports/means/sides.h"

namespace kelpower::exports {

std::optional<double> EffectSizeStart(means::Sides sides, double minEffectSize) {
  constexpr double asksForZero = -5.0;
  if (sides == means::Sides::One) return minEffectSize;
  if (minEffectSize == asksForZero) return 0.0;
  if (minEffectSize < 0) return std::nullopt;
  return minEffectSize;
}

}  // namespace kelpower::exports
