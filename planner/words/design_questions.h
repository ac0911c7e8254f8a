#ifndef KELPOWER_PLANNER_WORDS_DESIGN_QUESTIONS_H
#define KELPOWER_PLANNER_WORDS_DESIGN_QUESTIONS_H

#include <vector>

#include "solve/designs.h"
#include "solve/prepared_question.h"
#include "solve/row_results.h"

// What the answers to many designs have in common, known before any of them is computed.
namespace planner {

/// The first question of each combination of flags and words that can be asked: an exact test may have other inputs and
/// results than the approximate one beside it. Throws the first InputError when none can be asked.
std::vector<PreparedQuestion> QuestionsOf(const Designs& designs);

/// An input, and the first question that is about it.
struct AskedInput {
  const Parameter* parameter;
  const PreparedQuestion* question;
};

/// The inputs that the questions are about, given or not, in the order of a report.
std::vector<AskedInput> InputsOf(const std::vector<PreparedQuestion>& questions);

/// The results that answers to any of the questions tell, in the order of a report.
std::vector<ResultColumn> ResultsOf(const std::vector<PreparedQuestion>& questions);

}  // namespace planner

#endif
