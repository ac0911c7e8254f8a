#ifndef KELPOWER_PLANNER_WORDS_PROBLEM_H
#define KELPOWER_PLANNER_WORDS_PROBLEM_H

#include <functional>
#include <string>
#include <string_view>

#include "model/problem.h"

namespace planner {

/// A front end's own name of an input: "--effect-d", "effect_d", "effect size d".
using NameOfInput = std::function<std::string(std::string_view)>;

/// The problem as one sentence with its inputs named in braces: "{power} is 2, but must be ...".
std::string SentenceTemplate(const Problem& problem);

/// The problem as one sentence in the front end's own names.
std::string Sentence(const Problem& problem, const NameOfInput& name);

/// "the power", "the sample size", ...
std::string Wording(Question question);

}  // namespace planner

#endif
