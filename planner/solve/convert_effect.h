#ifndef KELPOWER_PLANNER_SOLVE_CONVERT_EFFECT_H
#define KELPOWER_PLANNER_SOLVE_CONVERT_EFFECT_H

#include "model/effect.h"
#include "model/problem.h"

namespace planner {

/// All effect sizes that follow from the values. Which are given decides the conversion. Throws an InputError or a
/// NoSolution.
EffectAnswer Convert(const Effects& effects, const InputValues& values);

}  // namespace planner

#endif
