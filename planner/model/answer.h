#ifndef KELPOWER_PLANNER_MODEL_ANSWER_H
#define KELPOWER_PLANNER_MODEL_ANSWER_H

#include <string>
#include <vector>

#include "model/inputs.h"
#include "model/test.h"

namespace planner {

/// What a reader of an answer should be warned of.
enum class Note {
  TargetMissedSlightly = 1,  // at the sizes rounded to whole numbers
};

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
  Numbers sizes;  // given or found
  double value;   // the power or half-width at these sizes
  std::vector<DerivedFigure> derived = {};
  std::vector<Note> notes = {};

  Question Asked() const { return route->question; }
  bool SizesFound() const { return AsksForSizes(route->question); }
};

}  // namespace planner

#endif
