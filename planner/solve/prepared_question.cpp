#include "solve/prepared_question.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "solve/checks.h"
#include "solve/choose_route.h"
#include "solve/make_inputs.h"

namespace planner {
namespace {

// The searches end within 1e-6 of the size that reaches the target exactly, so rounding up may miss it by a hair.
constexpr double targetSlack = 1e-6;

// Exact tests are not smooth in the size, so that rounding may miss the target by more; beyond this the search failed.
constexpr double largestMiss = 0.05;

// Every group has at least this many. A search whose target lies below its first size ends here too.
constexpr double smallestGroup = 2;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

constexpr Row refused{RowStatus::InputRefused, notANumber};
constexpr Row unanswered{RowStatus::NoAnswer, notANumber};
constexpr Row stopped{RowStatus::Stopped, notANumber};

bool IsPower(double value) { return value >= 0 && value <= 1; }

bool IsHalfWidth(double value) { return value >= 0 && std::isfinite(value); }

bool AreSizes(const Numbers& sizes) {
  return !sizes.empty() &&
         std::all_of(sizes.begin(), sizes.end(), [](double size) { return size > 0 && std::isfinite(size); });
}

/// A power below alpha is reached without any effect; at alpha itself rounding would decide.
bool NeedsEffect(Question question, const Inputs& inputs) {
  return question == Question::SampleSize && inputs.Number("power") >= inputs.Alpha();
}

/// How far the value stays behind the target, for a half-width relative to the target. Not positive when it is reached.
double Miss(Question question, double value, const Inputs& inputs) {
  if (question == Question::SampleSize) return inputs.Number("power") - value;
  return value / inputs.Number("half-width") - 1;
}

/// The route that answers for the sizes found, from the same inputs.
const Route& RouteAtSizes(const Test& test, Question question, const Names& given) {
  Names names{"n"};
  for (Name name : given) {
    const auto takes = [&](const Route& route) { return route.question == question && route.Takes(name); };
    if (std::any_of(test.routes.begin(), test.routes.end(), takes)) names.push_back(name);
  }
  return ChooseRoute(test, question, names);
}

Inputs AtSizes(const Test& test, const Inputs& inputs, const Numbers& sizes) {
  Inputs atSizes = inputs;
  atSizes.Erase("ratios");
  if (test.groups == 1) {
    atSizes.Set("n", sizes.front());
  } else {
    atSizes.SetList("n", sizes);
  }
  return atSizes;
}

const Route& CheckedRoute(const Test& test, const InputValues& values) {
  CheckValues(test, values);
  const Names given = GivenNames(test, values);
  return ChooseRoute(test, AskedQuestion(given), given);
}

std::vector<DerivedFigure> DerivedFigures(const Test& test, const Route& route, const Inputs& inputs) {
  std::vector<DerivedFigure> figures;
  for (const Derived& derived : test.derived) {
    const auto has = [&](Name name) { return inputs.Has(name) && route.Takes(name); };
    if (!std::all_of(derived.needs.begin(), derived.needs.end(), has)) continue;
    const double value = derived.call(inputs);
    if (!std::isnan(value)) figures.push_back({&derived, value});
  }
  return figures;
}

}  // namespace

PreparedQuestion::PreparedQuestion(const Test& test, const InputValues& values, StopRequest* stop)
    : test_(test), route_(CheckedRoute(test, values)), inputs_(MakeInputs(test, values, stop)) {
  conditions_ = Applicable(test.conditions, inputs_);
  if (!AsksForSizes(route_.question)) {
    value_ = route_.value;
    return;
  }
  effects_ = Applicable(test.sizeExists, inputs_);
  value_ = RouteAtSizes(test, ValueQuestion(route_.question), GivenNames(test, values)).value;
}

void PreparedQuestion::SetColumns(std::vector<Column> columns) {
  columns_.clear();
  for (const Column& column : columns) {
    const Parameter* parameter = FindParameter(test_, column.name);
    const bool isEntry = parameter && parameter->IsList();
    const bool isNumber = parameter && (isEntry || parameter->kind == Kind::Number) && inputs_.Has(column.name);
    if (!isNumber || (isEntry && column.entry >= inputs_.List(column.name).size())) {
      throw InputError({.code = Code::NotAnInput, .inputs = Texts({column.name}), .words = {test_.name}});
    }
    columns_.push_back({column, isEntry, parameter->limits});
  }
}

Row PreparedQuestion::Evaluate(std::span<const double> row) {
  if (row.size() != columns_.size()) return refused;
  for (std::size_t i = 0; i < row.size(); ++i) {
    const auto& [column, isEntry, limits] = columns_[i];
    if (!limits.Allow(row[i])) return refused;
    if (isEntry) {
      inputs_.SetEntry(column.name, column.entry, row[i]);
    } else {
      inputs_.Set(column.name, row[i]);
    }
  }
  return Evaluate(inputs_);
}

Row PreparedQuestion::Evaluate(const Inputs& inputs) {
  for (const Condition* condition : conditions_) {
    if (!condition->holds(inputs)) return refused;
  }
  if (FailingEffect(inputs)) return unanswered;
  return Checked(inputs);
}

Answer PreparedQuestion::Solve() {
  if (const Condition* failing = FirstFailing(conditions_, inputs_)) {
    throw InputError(ProblemOf(*failing, Code::ConditionFails));
  }
  if (const Condition* failing = FailingEffect(inputs_)) throw NoSolution(ProblemOf(*failing, Code::NoEffect));
  const Row row = Checked(inputs_);
  if (row.status == RowStatus::Stopped) throw Stopped();
  if (row.status != RowStatus::Answered) {
    const Question question = route_.question;
    Problem problem{.code = AsksForSizes(question) ? Code::SizesNotFound : Code::NotComputable, .question = question};
    if (AsksForSizes(question)) {
      problem.inputs = Texts({*AskedBy(question)});
      problem.values = {inputs_.Number(*AskedBy(question))};
    }
    throw NoSolution(std::move(problem));
  }
  Answer answer{&test_, &route_, inputs_, sizes_, row.value};
  if (!AsksForSizes(route_.question)) {
    answer.sizes = test_.groups == 1 ? Numbers{inputs_.Number("n")} : inputs_.List("n");
  }
  if (isMissed_) answer.notes.push_back(Note::TargetMissedSlightly);
  answer.derived = DerivedFigures(test_, route_, inputs_);
  if (IsStopped()) throw Stopped();
  return answer;
}

const Condition* PreparedQuestion::FailingEffect(const Inputs& inputs) const {
  return NeedsEffect(route_.question, inputs) ? FirstFailing(effects_, inputs) : nullptr;
}

Row PreparedQuestion::Checked(const Inputs& inputs) {
  return AsksForSizes(route_.question) ? FindSizes(inputs) : ValueOf(inputs);
}

bool PreparedQuestion::IsStopped() const {
  StopRequest* stop = inputs_.Stop();
  return stop && stop->ShouldStop();
}

/// A computation that is stopped gives no value, or sizes that are not final.
Row PreparedQuestion::ValueOf(const Inputs& inputs) const {
  const double value = value_(inputs);
  if (IsStopped()) return stopped;
  const bool good = IsAboutPower(route_.question) ? IsPower(value) : IsHalfWidth(value);
  return good ? Row{RowStatus::Answered, value} : unanswered;
}

Row PreparedQuestion::FindSizes(const Inputs& inputs) {
  sizes_ = route_.sizes(inputs);
  if (IsStopped()) return stopped;
  if (!AreSizes(sizes_)) return unanswered;
  const Row row = ValueOf(AtSizes(test_, inputs, sizes_));
  if (row.status != RowStatus::Answered) return row;
  const double miss = Miss(route_.question, row.value, inputs);
  const bool smallest = std::all_of(sizes_.begin(), sizes_.end(), [](double size) { return size <= smallestGroup; });
  if (miss > largestMiss || (miss > targetSlack && smallest)) return unanswered;
  isMissed_ = miss > targetSlack;
  return row;
}

}  // namespace planner
