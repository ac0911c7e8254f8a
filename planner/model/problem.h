#ifndef KELPOWER_PLANNER_MODEL_PROBLEM_H
#define KELPOWER_PLANNER_MODEL_PROBLEM_H

#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "model/parameter.h"
#include "model/question.h"
#include "model/value.h"

namespace planner {

/// What is wrong with a request, or why it has no answer. The numbers are stable: front ends may hand them on.
enum class Code {
  // Single inputs.
  NotAnInput = 100,
  NotAllowed = 101,
  // Inputs that do not go together.
  UselessAlone = 200,
  AsksSomethingElse = 201,
  Exclusive = 202,
  DoNotGoTogether = 203,
  TwoQuestions = 204,
  Incomplete = 205,
  GroupsDisagree = 206,
  GroupsUnknown = 207,
  TooFewGroups = 208,
  TooManyGroups = 209,
  WrongLength = 210,
  ConditionFails = 211,
  SolvedForIsGiven = 212,
  NotSolvedFor = 213,
  NothingUnknown = 214,
  SolvesWithoutTarget = 215,
  BelongsToSizesFound = 216,
  // Charts.
  ChartEndNotAllowed = 305,
  ChartEndsDescend = 306,
  ChartEndsCount = 307,
  ChartEndMissing = 308,
  ChartRangeUnknown = 310,
  ChartStepUseless = 312,
  ChartStepNotAllowed = 313,
  ChartStepTooLarge = 314,
  ChartTooLarge = 315,
  ChartTooSlow = 316,
  ChartEmpty = 317,
  ChartWithoutPower = 318,
  ChartUnknown = 319,
  ChartSizesNeedTarget = 320,
  ChartOneAxis = 321,
  ChartOneDesign = 322,
  ChartVariesAlternatives = 323,
  // Questions without an answer.
  NoEffect = 400,
  SizesNotFound = 401,
  NotComputable = 402,
  TargetNotReached = 403,
  TargetReachedAlways = 404,
  BeyondPowerLimit = 405,
  // Designs in files and tables.
  TestNowhere = 600,
  TestMissing = 601,
  TestUnknown = 602,
  ColumnUnknown = 603,
  ColumnRepeated = 604,
  FieldsDisagree = 605,
  NotAnObject = 606,
  ColumnsMissing = 607,
  NotDesigns = 608,
  RangeUseless = 609,
  TooManyDesigns = 610,
  FieldLate = 611,
  ResultLate = 612,
  // Ends that are no fault of the inputs.
  Stopped = 500,
};

/// A problem as data. Its sentence is made by `Sentence` in words/, in the names that a front end gives the inputs.
struct Problem {
  Code code;
  std::vector<std::string> inputs = {};   // that are concerned
  std::vector<Value> values = {};         // of these, or figures of the sentence
  std::optional<Parameter> allowed = {};  // whose kind and limits say what is allowed
  std::optional<Question> question = {};  // that is asked or meant
  std::vector<Names> missing = {};        // the ways to complete the inputs
  std::vector<std::string> words = {};    // names of a test or chart, titles of axes
  std::vector<Limits> limits = {};        // of these axes
  std::string condition = {};             // the code of a condition that fails
  std::string sentence = {};              // of a condition, with inputs in braces and values in angle brackets
};

/// The base of what the planner throws.
class Failure : public std::runtime_error {
public:
  explicit Failure(Problem what) : std::runtime_error("a problem of the planner"), problem(std::move(what)) {}
  Problem problem;
};

/// The inputs are wrong or do not go together.
class InputError : public Failure {
public:
  using Failure::Failure;
};

/// The inputs are allowed, but the question has no answer.
class NoSolution : public Failure {
public:
  using Failure::Failure;
};

/// The computation was stopped at the caller's request; there is no answer.
class Stopped : public Failure {
public:
  Stopped() : Failure({.code = Code::Stopped}) {}
};

}  // namespace planner

#endif
