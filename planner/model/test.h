#ifndef KELPOWER_PLANNER_MODEL_TEST_H
#define KELPOWER_PLANNER_MODEL_TEST_H

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/chart.h"
#include "model/details.h"
#include "model/inputs.h"
#include "model/offers.h"
#include "model/parameter.h"
#include "model/route.h"
#include "model/unknown.h"

namespace planner {

/// A condition on several inputs at once.
struct Condition {
  std::string code;  // for front ends: "error-degrees"
  Names about;       // tested when all of these have a value
  std::function<bool(const Inputs&)> holds;
  std::string sentence;  // what is wrong when it fails, with inputs in braces
};

/// A figure reported besides the answer when its inputs are there, such as an effect size. One that needs `n` is also told
/// at sizes that are found.
struct Derived {
  std::string name;
  std::string label;
  Names needs;
  double (*call)(const Inputs&);
  bool (*isTold)(const Inputs&) = nullptr;  // by the flags, words and shape of the inputs; null: always
};

/// What an answer takes for granted in words, such as "pooled". Shown when its inputs are asked for and it says
/// something, with inputs in braces; a sentence names it in braces too.
struct Assumption {
  std::string name;
  std::string label;
  Names needs;
  std::string (*call)(const Inputs&);
  std::string wording = "<0>";  // in a sentence, around the words
};

/// Words of a sentence that depend on which input was given: the first of `wordings` whose input has a value.
struct Phrase {
  struct Wording {
    Name input;
    std::string text;
  };
  std::string name;
  std::vector<Wording> wordings;
};

/// The sentence that reports an answer. In braces: the name of an input, a phrase or a result; `{flag?yes:no}` chooses
/// by a flag. Results are `sizes`, `total`, `power` and `half-width`. The wanted ones are `target-power` and
/// `target-half-width`; `confidence` is 1 - alpha in percent.
struct ReportSentence {
  Question question;
  std::string text;
};

/// A worked example: the arguments after the program's name, and the sentence that they give.
struct Example {
  std::string arguments;
  std::string sentence;
};

/// Whether the power of a design is a sawtooth in its sizes, and not smooth in its effect either, as that of an exact
/// test is; and whether it takes so long that not too many sizes should be tried.
enum class Unevenness { Even, Uneven, UnevenAndSlow };

/// How many groups a test has when its inputs tell.
constexpr int groupsFromInputs = 0;

/// Everything that front ends need to know of a test.
struct Test {
  std::string name;
  std::string title;
  std::string about;
  int groups = 1;
  std::string counted = "observations";  // what a sample size counts
  std::vector<Parameter> parameters = {};
  std::vector<Route> routes = {};
  std::vector<Unknown> unknowns = {};  // the first that a design lacks is solved for unless the user names one
  Unevenness (*unevenness)(const Inputs&) = nullptr;  // null: even
  std::vector<Condition> conditions = {};
  std::vector<Condition> sizeExists = {};  // when one fails no sample size reaches a power
  std::vector<Derived> derived = {};
  std::vector<Assumption> assumptions = {};
  std::vector<Phrase> phrases = {};
  std::vector<ReportSentence> sentences = {};
  std::vector<Example> examples = {};
  std::vector<Axis> axes = {};  // of charts, over figures that are no inputs

  /// The effect with its sign, whose direction a one-sided test has; null where it has none.
  double (*effect)(const Inputs&) = nullptr;

  /// About how many steps one power takes, where many may take long.
  double (*steps)(const Inputs&) = nullptr;

  std::string whenNot = {};       // what the test is not for, and which one is
  Offers offers = {};             // of the circumstances of a study
  double largestExactSearch = 0;  // of an exact test: the size at which its search ends; 0 where there is no such end
  /// What is behind the answer of a question, from the inputs at the sizes given or found.
  Details (*details)(Question question, const Inputs& atSizes) = nullptr;
};

/// The test with the parameters that every test has: `alpha`; `power`, `half-width` and `interval` as its routes answer
/// the questions they ask; `solve` and `below` as it has unknowns; `stable` where a power may be uneven. The level is an unknown of every
/// test. What the test offers comes by itself too.
Test WithCommonParameters(Test test);

/// The parameter of that name, or null.
const Parameter* FindParameter(const Test& test, Name name);

/// The parameter of that name or alias, or null.
const Parameter* FindParameter(const Test& test, std::string_view name);

/// Whether the test answers the question.
bool Answers(const Test& test, Question question);

}  // namespace planner

#endif
