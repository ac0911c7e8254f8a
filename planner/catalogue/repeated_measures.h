#ifndef KELPOWER_PLANNER_CATALOGUE_REPEATED_MEASURES_H
#define KELPOWER_PLANNER_CATALOGUE_REPEATED_MEASURES_H

#include <vector>

#include "anova/repeated.h"
#include "model/test.h"

// What the files of the analysis of repeated measures share.
namespace planner {

inline kelpower::anova::RepeatedEffect RepeatedEffectOf(const Inputs& in) {
  return static_cast<kelpower::anova::RepeatedEffect>(in.Choice("effect"));
}

inline kelpower::anova::RepeatedF RepeatedFOf(const Inputs& in) {
  return static_cast<kelpower::anova::RepeatedF>(in.Choice("f-of"));
}

/// A contrast of the measurements has one degree of freedom, which epsilon does not touch.
inline double EpsilonOf(const Inputs& in) { return in.Has("epsilon") ? in.Number("epsilon") : 1; }

/// Without the correlation where the effect size has it in itself.
kelpower::anova::RepeatedDesign RepeatedDesignOf(const Inputs& in);

/// The test of the effect, or of the contrast of the measurements where one is given.
kelpower::anova::EffectTest RepeatedTestOf(const Inputs& in);

/// NaN where there is none. `weights` are the sizes of the groups, or their shares.
double NoncentralityOfTable(const Inputs& in, const Numbers& weights);

/// Of the design at its sizes, in whichever way the effect is given.
double NoncentralityOfRepeatedMeasures(const Inputs& in);

std::vector<Parameter> ParametersOfRepeatedMeasures();
std::vector<Route> RoutesOfRepeatedMeasures();
std::vector<Condition> ConditionsOfRepeatedMeasures();

}  // namespace planner

#endif
