#ifndef KELPOWER_PLANNER_SOLVE_DENSITIES_H
#define KELPOWER_PLANNER_SOLVE_DENSITIES_H

#include <optional>

#include "model/details.h"
#include "model/value.h"

namespace planner {

/// The distribution of a test statistic without and with the effect, as points to draw. Of a count the values are
/// probabilities of single counts, of the others densities, good for pictures: to some eight digits of their height.
struct Densities {
  StatisticFamily family;
  Numbers x;  // rising
  Numbers without;
  Numbers with;
  std::optional<double> rejectsTo;    // the test rejects at this value and below,
  std::optional<double> rejectsFrom;  // and at this one and above
  double level;                       // the area where it rejects, without the effect
  double power;                       // and with it
};

Densities DensitiesOf(const TestStatistic& statistic);

}  // namespace planner

#endif
