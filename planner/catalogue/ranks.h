#ifndef KELPOWER_PLANNER_CATALOGUE_RANKS_H
#define KELPOWER_PLANNER_CATALOGUE_RANKS_H

#include <string>

#include "catalogue/details.h"
#include "model/test.h"
#include "ranks/nearly_normal.h"
#include "ranks/parents.h"

// What the tests of ranks share.
namespace planner {

/// The approximations of the power of the Wilcoxon tests.
enum class RankMethod { Efficiency, Noether, Lehmann };

/// The distribution whose shift is given.
Parameter ParentDistribution();
/// The approximation. Without one, that of the effect given is taken.
Parameter RankMethods();

kelpower::ranks::Sides RankSidesOf(const Inputs& in);
kelpower::ranks::Parent ParentOf(const Inputs& in);
/// Noether's where only a probability is given, else the relative efficiency.
RankMethod RankMethodOf(const Inputs& in);

/// Names the approximation in every answer.
Assumption NamedApproximation();

/// The condition that the approximation can be computed from `probability` alone.
Condition OnlyNoetherFor(Name probability);
/// The condition for a size that `probability` is not one half.
Condition HasProbability(Name probability);
/// The second size over the first, of a first one that is given.
Unknown UnknownRatioOfRanks();
/// The probability as an unknown, on either side of one half.
Unknown UnknownProbability(Name probability);

/// As G*Power names it; empty for what it does not have.
std::string ParentInGPower(kelpower::ranks::Parent parent);

/// The figures and the power of a nearly normal statistic.
void AddNearlyNormal(Details& details, const kelpower::ranks::NormalTest& test,
                     const kelpower::ranks::NearlyNormal& statistic, bool isOneSided);

}  // namespace planner

#endif
