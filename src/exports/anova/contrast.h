#ifndef KELPOWER_EXPORTS_ANOVA_CONTRAST_H
#define KELPOWER_EXPORTS_ANOVA_CONTRAST_H

#include "anova/groups.h"

namespace kelpower::exports {

/// A contrast in units of the standard deviation; missing unless that is above 0.
double StandardisedContrast(double value, double sd);

/// A standardised effect as the noncentrality takes it: a missing one counts as infinite, so that the power is 1.
double EffectOrInfinity(double effectSize);

}  // namespace kelpower::exports

#endif
