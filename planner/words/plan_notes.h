#ifndef KELPOWER_PLANNER_WORDS_PLAN_NOTES_H
#define KELPOWER_PLANNER_WORDS_PLAN_NOTES_H

#include <string>
#include <vector>

#include "model/answer.h"
#include "model/details.h"

namespace planner {

/// What a circumstance of the study adds to the explanation of an answer.
struct PlanNote {
  std::vector<DetailFigure> figures;
  std::string formula;
  std::string source;
  bool isKnownElsewhere = false;  // the calls of other programs still ask the same
};

std::vector<PlanNote> NotesOnPlan(const Answer& answer);

}  // namespace planner

#endif
