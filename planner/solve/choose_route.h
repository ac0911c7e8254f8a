#ifndef KELPOWER_PLANNER_SOLVE_CHOOSE_ROUTE_H
#define KELPOWER_PLANNER_SOLVE_CHOOSE_ROUTE_H

#include "model/question.h"
#include "model/route.h"
#include "model/test.h"

namespace planner {

/// The names of the inputs that are given, without flags that are not set. The values have been checked.
Names GivenNames(const Test& test, const InputValues& values);

/// The question of the input that asks one, or the power where none is given. Throws an InputError when two ask.
Question AskedQuestion(const Names& given);

/// What is asked, and the route that answers.
struct Asked {
  const Route* route;
  const Unknown* unknown = nullptr;  // whose number brings the route's value to the target
  bool isAssurance = false;          // that the half-width of the design is as wished
};

/// What the values ask. A target besides the sizes, or besides `solve`, asks for an unknown. Throws an InputError with
/// what does not go together or what is missing.
Asked FindAsked(const Test& test, const InputValues& values);

/// The route of the question that takes all that is given and needs nothing more. Throws an InputError with what does
/// not go together or what is missing.
const Route& ChooseRoute(const Test& test, Question question, const Names& given);

/// The names as texts, for a problem.
std::vector<std::string> Texts(const Names& names);

}  // namespace planner

#endif
