#ifndef KELPOWER_PLANNER_SOLVE_ADJUSTED_VALUE_H
#define KELPOWER_PLANNER_SOLVE_ADJUSTED_VALUE_H

#include "model/inputs.h"
#include "model/route.h"
#include "model/test.h"

namespace planner {

/// The route's power or half-width in the circumstances of the design: averaged over an uncertain effect, of clusters,
/// in a finite population. The route's own where there are none of these. They are those of all designs that it is
/// asked of, in which their numbers may vary.
Evaluation AdjustedValue(const Test& test, const Route& route, const Inputs& design);

/// The sizes from which a search for those of such a design starts: found for a design without the circumstances.
Numbers AdjustedStart(Numbers sizes, const Inputs& design);

/// The inputs with sizes of independent observations that tell as much as those of clusters.
Inputs AtEffectiveSizes(Inputs inputs);

}  // namespace planner

#endif
