#ifndef KELPOWER_PLANNER_CATALOGUE_CONTRAST_DETAILS_H
#define KELPOWER_PLANNER_CATALOGUE_CONTRAST_DETAILS_H

#include "anova/contrast.h"
#include "model/details.h"
#include "model/inputs.h"
#include "model/question.h"

namespace planner {

/// A contrast of group means as its tests ask for it.
struct AskedContrast {
  Numbers coefficients;
  double effectSize;  // in standard deviations; unused by intervals
  bool isOneSided;
  double level;  // of the one comparison
};

/// What is behind the answer for a contrast. Programs name its level {level}.
Details DetailsOf(const AskedContrast& contrast, Question question, const Inputs& in);

}  // namespace planner

#endif
