#ifndef KELPOWER_PLANNER_SOLVE_PREPARED_PARTS_H
#define KELPOWER_PLANNER_SOLVE_PREPARED_PARTS_H

#include <limits>

#include "model/inputs.h"
#include "solve/prepared_question.h"

// What the parts of a prepared question share. prepared_question.cpp answers rows; prepared_sizes.cpp finds sizes and
// prepared_unknown.cpp another number; prepared_answer.cpp gives a whole answer, or says why there is none.
namespace planner {

inline constexpr Row refused{RowStatus::InputRefused, std::numeric_limits<double>::quiet_NaN()};
inline constexpr Row unanswered{RowStatus::NoAnswer, std::numeric_limits<double>::quiet_NaN()};
inline constexpr Row stopped{RowStatus::Stopped, std::numeric_limits<double>::quiet_NaN()};

inline void SetSizes(Inputs& inputs, const Numbers& sizes) {
  inputs.SetList("n", sizes);
  // That of a test of one sample is a number.
  if (sizes.size() == 1) inputs.Set("n", sizes.front());
}

/// The design with these sizes in place of the ratios that they are found from. Ratios beside a single size are part of
/// the design.
inline Inputs AtSizes(const Inputs& inputs, const Numbers& sizes) {
  Inputs atSizes = inputs;
  if (sizes.size() > 1) atSizes.Erase("ratios");
  SetSizes(atSizes, sizes);
  return atSizes;
}

}  // namespace planner

#endif
