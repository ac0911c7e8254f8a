#ifndef KELPOWER_EXPORTS_MEANS_SIDES_H
#define KELPOWER_EXPORTS_MEANS_SIDES_H

#include <optional>

#include "means/t_test_of_a_mean.h"

namespace kelpower::exports {

inline means::Sides SidesOf(int directional) { return directional != 0 ? means::Sides::One : means::Sides::Two; }

/// Where the axis of effect sizes from `minEffectSize` on starts. For a two-sided test -5 asks for a start at 0, and
/// any other negative effect is refused (no start).
std::optional<double> EffectSizeStart(means::Sides sides, double minEffectSize);

}  // namespace kelpower::exports

#endif
