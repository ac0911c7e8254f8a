#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "planner/chart.h"
#include "planner/inputs.h"
#include "planner/parameter.h"

namespace planner {

enum class Question { Power, SampleSize, HalfWidth, SampleSizeForHalfWidth };

/// One way to an answer: the question, the parameters it needs and those it may take besides, the export that answers
/// it, and the call. The call gives one number, or one size for each group. Which questions a test answers, which
/// options go together and what is still missing are read off its routes.
struct Route {
  Question question;
  std::vector<std::string> needs;
  std::vector<std::string> accepts;
  std::string exportName;
  std::function<Numbers(const Inputs&)> call;
};

/// A condition on several inputs at once; `sentence` says what is wrong when it fails.
struct Condition {
  std::vector<std::string> about;  // tested when all of these have a value
  bool (*holds)(const Inputs&);
  std::string sentence;
};

/// A figure reported besides the answer when its inputs are there, such as an effect size.
struct Derived {
  std::string name;
  std::string label;
  std::vector<std::string> needs;
  double (*call)(const Inputs&);
};

/// Words of a sentence that depend on which input was given: the first of `wordings` whose parameter has a value.
struct Phrase {
  std::string name;
  std::vector<std::pair<std::string, std::string>> wordings;
};

/// The sentence that reports an answer. In braces: the name of a parameter, a phrase or a result; `{flag?yes:no}`
/// chooses by a flag. Results are `sizes`, `total`, `power` and `half-width`; the wanted ones are `target-power` and
/// `target-half-width`; `confidence` is 1 - alpha in percent.
struct Sentence {
  Question question;
  std::string text;
};

/// A worked example: the arguments after the program's name, and the sentence that they give.
struct Example {
  std::string arguments;
  std::string sentence;
};

/// How many groups a test has when its inputs tell.
constexpr int groupsFromInputs = 0;

/// Everything that front ends need to know of a test.
struct Test {
  std::string name;
  std::string title;
  std::string about;
  int groups = 1;
  std::string counted = "observations";  // what a sample size counts
  std::vector<Parameter> parameters;
  std::vector<Route> routes;
  std::vector<Condition> conditions;
  std::vector<Condition> solvable;  // when one fails there is no sample size; its sentence says why
  std::vector<Derived> derived;
  std::vector<Phrase> phrases;
  std::vector<Sentence> sentences;
  std::vector<Example> examples;
  std::vector<Chart> charts;
};

/// The test with the parameters that every test has: `alpha`, and `power`, `half-width` and `interval` as its routes
/// answer the questions they ask.
Test WithCommonParameters(Test test);

/// The parameter of that name or alias, or null.
const Parameter* FindParameter(const Test& test, const std::string& name);

/// Whether the test answers the question.
bool Answers(const Test& test, Question question);

/// The parameter that asks the question; empty for the power, which is asked by default.
std::string AskedBy(Question question);

/// "the power", "the sample size", ...
std::string Wording(Question question);

}  // namespace planner
