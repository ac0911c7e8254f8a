#ifndef KELPOWER_PLANNER_WORDS_ON_PLAN_H
#define KELPOWER_PLANNER_WORDS_ON_PLAN_H

#include <string>

#include "model/answer.h"

namespace planner {

/// What the circumstances of the study add to an answer, in sentences that follow its own; each after a space.
std::string OnPlan(const Answer& answer);

/// With what probability the interval of the data is as narrow as asked, as a sentence after a space; empty where that is
/// not asked for.
std::string OnAssurance(const Answer& answer);

/// A sentence on a power, before its braces are filled, as one on an expected power where it is asked for.
std::string InExpectation(const Answer& answer, std::string sentence);

}  // namespace planner

#endif
