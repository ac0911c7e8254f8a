#ifndef KELPOWER_PLANNER_MODEL_ANSWER_H
#define KELPOWER_PLANNER_MODEL_ANSWER_H

#include <limits>
#include <string>
#include <vector>

#include "model/inputs.h"
#include "model/test.h"

namespace planner {

/// A derived figure and its value.
struct DerivedFigure {
  const Derived* derived;
  double value;
};

/// An answered question, as data; words/report.h words it.
struct Answer {
  const Test* test;
  const Route* route;
  Inputs inputs;
  Numbers sizes;                     // given or found
  double value;                      // the power or half-width at these sizes
  const Unknown* unknown = nullptr;  // what was solved for, unless sizes or the value; its number stands in the inputs
  std::vector<DerivedFigure> derived = {};
  Numbers lastingSizes = {};  // of sizes found, where a power is uneven: from these on all sizes reach it
  double assurance = std::numeric_limits<double>::quiet_NaN();  // that the sizes found have, where it was asked for

  Question Asked() const { return route->question; }
  bool SizesFound() const { return AsksForSizes(route->question); }
};

}  // namespace planner

#endif
