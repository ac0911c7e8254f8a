#include "solve/prepared_question.h"

#include <algorithm>
#include <cmath>

#include "solve/adjusted_value.h"
#include "solve/checks.h"
#include "solve/choose_route.h"
#include "solve/make_inputs.h"
#include "solve/prepared_parts.h"

namespace planner {
namespace {

bool IsPower(double value) { return value >= 0 && value <= 1; }

bool IsHalfWidth(double value) { return value >= 0 && std::isfinite(value); }

/// A power below alpha is reached without any effect; at alpha itself rounding would decide.
bool NeedsEffect(Question question, const Inputs& inputs) {
  return question == Question::SampleSize && inputs.Number("power") >= inputs.Alpha();
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

Asked CheckedAsked(const Test& test, const InputValues& values) {
  CheckValues(test, values);
  return FindAsked(test, values);
}

/// The values with one for the unknown, which stands there until it is found.
InputValues WithUnknown(const Test& test, const Unknown* unknown, InputValues values) {
  if (!unknown || unknown->set) return values;
  const bool isList = FindParameter(test, unknown->input)->IsList();
  values[std::string(unknown->input.Text())] = isList ? Value(Numbers{1}) : Value(1.0);
  return values;
}

}  // namespace

PreparedQuestion::PreparedQuestion(const Test& test, const InputValues& values, StopRequest* stop)
    : PreparedQuestion(test, CheckedAsked(test, values), values, stop) {}

PreparedQuestion::PreparedQuestion(const Test& test, const Asked& asked, const InputValues& values, StopRequest* stop)
    : test_(test),
      route_(*asked.route),
      unknown_(asked.unknown),
      inputs_(MakeInputs(test, WithUnknown(test, asked.unknown, values), stop)) {
  conditions_ = Applicable(test.conditions, inputs_);
  if (asked.isAssurance || inputs_.Has("assurance")) assurance_ = test.offers.assurance;
  if (!AsksForSizes(route_.question)) {
    value_ = AdjustedValue(test, route_, inputs_);
    return;
  }
  effects_ = Applicable(test.sizeExists, inputs_);
  sizeConditions_ = Applicable(test.conditions, AtSizes(inputs_, WholeSizes(test, inputs_).At(1)));
  const Route& atSizes = RouteAtSizes(test, ValueQuestion(route_.question), GivenNames(test, values));
  value_ = AdjustedValue(test, atSizes, AtSizes(inputs_, WholeSizes(test, inputs_).At(1)));
}

void PreparedQuestion::SetColumns(std::vector<Column> columns) {
  columns_.clear();
  for (const Column& column : columns) {
    const Parameter* parameter = FindParameter(test_, column.name);
    const bool isEntry = parameter && parameter->IsList();
    const bool isNumber = parameter && (isEntry || parameter->kind == Kind::Number) && inputs_.Has(column.name);
    const bool isBeyond = isEntry && column.entry >= inputs_.List(column.name).size();
    if (!isNumber || parameter->role == Role::Shape || isBeyond) {
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
  if (unknown_) return FindNumber(inputs);
  for (const Condition* condition : conditions_) {
    if (!condition->holds(inputs)) return refused;
  }
  if (FailingEffect(inputs)) return unanswered;
  return Checked(inputs);
}

std::optional<double> PreparedQuestion::Figure(Planned planned) const {
  return planned == Planned::Assurance ? std::optional(assured_) : PlannedFigure(planned, test_, inputs_);
}

const Condition* PreparedQuestion::FailingEffect(const Inputs& inputs) const {
  return NeedsEffect(route_.question, inputs) ? FirstFailing(effects_, inputs) : nullptr;
}

Row PreparedQuestion::Checked(const Inputs& inputs) {
  if (AsksForSizes(route_.question)) return FindSizes(inputs);
  if (assurance_) assured_ = assurance_(inputs);
  return ValueOf(inputs);
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

}  // namespace planner
