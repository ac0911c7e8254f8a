#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_PROPORTIONS_MARGINS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_PROPORTIONS_MARGINS_H

#include <string>
#include <vector>

#include "model/details.h"
#include "model/inputs.h"
#include "model/test.h"
#include "proportions/independent_margins.h"

// Margins of two independent proportions: of their difference, their ratio or their odds ratio, second group over first.
namespace planner {

kelpower::proportions::ContrastLimits ContrastLimitsOf(const Inputs& in);
kelpower::proportions::IndependentMarginDesign IndependentMarginDesignOf(const Inputs& in);
kelpower::proportions::TwoProportions TwoProportionsOf(const Inputs& in);

/// The contrast of the proportions expected, on the scale of the margin.
double ExpectedContrast(const Inputs& in);

/// The sizes that the test for large samples needs; none where no size is enough.
Numbers LargeSampleMarginSizes(const Inputs& in);

/// Of an exact test; NaN otherwise.
double AttainedLevelOfMargins(const Inputs& in);

std::vector<Parameter> MarginParametersOfTwoProportions();
std::vector<Route> MarginRoutesOfTwoProportions();
std::vector<Condition> MarginConditionsOfTwoProportions();
std::vector<Condition> MarginSizeExistsForTwoProportions();
std::vector<Derived> MarginFiguresOfTwoProportions();
std::vector<Example> MarginExamplesOfTwoProportions();
/// Where the formula of a test for large samples is from.
std::string SourceOfMargins(const kelpower::proportions::IndependentMarginDesign& design);

Details MarginDetailsOfTwoProportions(const Inputs& in);

/// Where an effect that grows with the second proportion is looked for, on its own scale: from the end at which the power
/// is low to the one at which it is high. `all` is where there is such an effect.
Piece PieceOfContrast(const Inputs& in, kelpower::proportions::Contrast effect, Piece all);
/// The same on the other side of the middle of the limits of equivalence, for the other trend.
Piece PieceOfContrastBelow(const Inputs& in, kelpower::proportions::Contrast effect, Piece all);

/// Adds them to the description of the test, with the words of its tests.
void AddMarginsOfTwoProportions(Test& test);
void AddMarginWordsOfTwoProportions(Test& test);

}  // namespace planner

#endif
