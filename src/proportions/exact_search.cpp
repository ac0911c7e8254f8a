#include "proportions/exact_search.h"

#include "frame/counts.h"
#include "frame/root_finders.h"

namespace kelpower::proportions {

Answer SolveExactSize(double target, ExactPower power, Stop stop) {
  bool isUncountable = false;
  const auto objective = [&](double size) {
    isUncountable = isUncountable || size > largestCount;
    return power(size, stop) - target;
  };
  // Hands the questions of the search on, and ends it once it has met a size that is too large.
  const auto endsSearch = [&] { return AnswersStop(stop) || isUncountable; };
  const Answer found = SolveIntegerSmallest(SolveInteger(1, 400, objective, endsSearch), objective, endsSearch);
  return !found && isUncountable ? NoValue::Uncountable : found;
}

}  // namespace kelpower::proportions
