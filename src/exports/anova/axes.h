#ifndef KELPOWER_EXPORTS_ANOVA_AXES_H
#define KELPOWER_EXPORTS_ANOVA_AXES_H

#include <optional>

#include "anova/groups.h"
#include "frame/axes.h"
#include "frame/function_view.h"

namespace kelpower::exports {

using CurrentPower = FunctionView<double(double totalSize)>;

/// The total sizes from `from` to `to`. A 0 in either asks for an automatic range around the design, in which every
/// group has at least 2 and the largest at most 5,000 subjects. `currentPower` is the design's power at its own total
/// size and is asked only for that. No axis when an automatic end is not representable as an int.
std::optional<Axis> TotalSizeAxis(anova::PerGroup groupSizes, int from, int to, CurrentPower currentPower);

/// The same as an axis of a surface.
std::optional<Axis> SurfaceTotalSizeAxis(anova::PerGroup groupSizes, int from, int to, CurrentPower currentPower);

/// The caller's ends, or the automatic ones when `esTo` is 0: from 0 to 1 for a proportion of variance, from 0 to 2 for
/// f. The axis of a proportion of variance stops one step short of its end, for at 1 the noncentrality would divide by
/// zero.
std::optional<Axis> EffectSizeAxis(bool isEtaSquared, double esFrom, double esTo, double stepFraction);

/// The caller's ends, or D / 5 to 5 D when either is 0, with D = sqrt(sum n_i (m_i - G)^2).
std::optional<Axis> StandardDeviationAxis(anova::PerGroup groupMeans, anova::PerGroup groupSizes, double sdFrom,
                                          double sdTo, double stepFraction);

}  // namespace kelpower::exports

#endif
