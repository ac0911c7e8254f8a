#ifndef KELPOWER_PLANNER_CATALOGUE_FACTORIAL_H
#define KELPOWER_PLANNER_CATALOGUE_FACTORIAL_H

#include <optional>
#include <vector>

#include "anova/factorial.h"
#include "model/test.h"

// What the files of the test of one effect of crossed factors share.
namespace planner {

/// The term that the inputs name, if it is one.
inline std::optional<kelpower::anova::FactorialTerm> TermOf(const Inputs& in) {
  return kelpower::anova::FactorialTerm::Of(in.List("levels"), in.List("term"));
}

/// NaN where there is none. `weights` are the sizes of the cells, or their shares.
double NoncentralityOfCells(const Inputs& in, const Numbers& weights);

/// Of the design at its sizes, in whichever way the effect is given.
double NoncentralityOfTerm(const Inputs& in);

std::vector<Route> RoutesOfFactorial();
std::vector<Condition> ConditionsOfFactorial();
std::vector<Condition> SizeExistsOfFactorial();

}  // namespace planner

#endif
