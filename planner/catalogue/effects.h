#ifndef KELPOWER_PLANNER_CATALOGUE_EFFECTS_H
#define KELPOWER_PLANNER_CATALOGUE_EFFECTS_H

#include "model/effect.h"

namespace planner {

/// Everything that front ends need to know of effect sizes: what they can be converted from, and how.
const Effects& EffectSizes();

}  // namespace planner

#endif
