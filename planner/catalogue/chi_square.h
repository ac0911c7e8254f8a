#ifndef KELPOWER_PLANNER_CATALOGUE_CHI_SQUARE_H
#define KELPOWER_PLANNER_CATALOGUE_CHI_SQUARE_H

#include "chi_square/effect.h"
#include "model/details.h"
#include "model/inputs.h"
#include "model/parameter.h"
#include "model/route.h"
#include "model/test.h"

// What the chi-square tests of goodness of fit and of independence share.
namespace planner {

Parameter EffectW();
Parameter DegreesOfFreedom();
Parameter LikelihoodRatio();

/// A list of proportions on any scale.
Parameter ProportionsOnAnyScale(Name name, std::string label, std::string meaning);

kelpower::chi_square::Statistic StatisticOf(const Inputs& in);

/// The noncentrality that one observation adds, NaN where there is none, and the degrees of freedom of the test.
struct ChiSquareDesign {
  double (*effect)(const Inputs&);
  double (*df)(const Inputs&);
};

/// The route of the power and that of the size for one form of the effect.
void AddRoutes(std::vector<Route>& routes, const Names& needs, const Names& accepts, const ChiSquareDesign& design);

/// The condition for a size that there is an effect. `about` are the inputs that tell it.
Condition HasChiSquareEffect(const Names& about, bool (*holds)(const Inputs&));

/// Less is what rounding makes of proportions that are those of the null hypothesis.
constexpr double leastEffect = 1e-24;

/// What is behind a power: the figures, the formula and how others are asked. `kind` is G*Power's name of the test.
Details DetailsOfChiSquare(const Inputs& in, const ChiSquareDesign& design, const std::string& kind);

}  // namespace planner

#endif
