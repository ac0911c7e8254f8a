#ifndef KELPOWER_PLANNER_CATALOGUE_MEAN_PARAMETERS_H
#define KELPOWER_PLANNER_CATALOGUE_MEAN_PARAMETERS_H

#include <string>

#include "means/t_test_of_a_mean.h"
#include "model/chart.h"
#include "model/test.h"

// What the tests of means share.
namespace planner {

/// The size of a single sample; `meaning` says what it counts.
Parameter SingleSize(std::string meaning);
Parameter EffectD(std::string meaning);
Parameter OneSided();

/// The alternative that `one-sided` chooses.
kelpower::means::Sides SidesOf(const Inputs& in);

/// The condition for a size that the effect size is not zero.
Condition HasEffectD();

}  // namespace planner

#endif
