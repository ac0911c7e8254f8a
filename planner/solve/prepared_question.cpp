#include "solve/prepared_question.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "solve/adjusted_value.h"
#include "solve/checks.h"
#include "solve/choose_route.h"
#include "solve/make_inputs.h"

namespace planner {
namespace {

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

bool Reached(Question question, double value, double assurance, const Inputs& inputs) {
  if (inputs.Has("assurance")) return assurance >= inputs.Number("assurance");
  return question == Question::SampleSize ? value >= inputs.Number("power") : value <= inputs.Number("half-width");
}

/// Within what rounding does to sizes that cannot be counted.
bool NearlyReached(Question question, double value, const Inputs& inputs) {
  constexpr double rounding = 1e-6;
  if (question == Question::SampleSize) return value >= inputs.Number("power") - rounding;
  return value <= inputs.Number("half-width") * (1 + rounding);
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

void SetSizes(Inputs& inputs, const Numbers& sizes) {
  if (sizes.size() > 1) return inputs.SetList("n", sizes);
  inputs.Set("n", sizes.front());
}

Inputs AtSizes(const Inputs& inputs, const Numbers& sizes) {
  Inputs atSizes = inputs;
  atSizes.Erase("ratios");
  SetSizes(atSizes, sizes);
  return atSizes;
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

void SetUnknown(Inputs& inputs, const Unknown& unknown, const Parameter& parameter, double at) {
  if (unknown.set) return unknown.set(inputs, at);
  if (!parameter.IsList()) return inputs.Set(parameter.name, at);
  for (std::size_t i = 0; i < inputs.List(parameter.name).size(); ++i) inputs.SetEntry(parameter.name, i, at);
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
    if (!isNumber || column.name == Name("groups") || (isEntry && column.entry >= inputs_.List(column.name).size())) {
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

Answer PreparedQuestion::Solve() {
  const Condition* failing = unknown_ ? nullptr : FirstFailing(conditions_, inputs_);
  if (failing) throw InputError(ProblemOf(*failing, Code::ConditionFails));
  failing = FailingEffect(inputs_);
  if (failing) throw NoSolution(ProblemOf(*failing, Code::NoEffect));
  const Row row = unknown_ ? FindNumber(inputs_) : Checked(inputs_);
  if (row.status == RowStatus::Stopped) throw Stopped();
  if (row.status != RowStatus::Answered) RejectUnanswered();
  TakeUnknown();
  Answer answer{&test_, &route_, inputs_, sizes_, row.value, unknown_};
  if (!AsksForSizes(route_.question)) {
    answer.sizes = test_.groups == 1 ? Numbers{inputs_.Number("n")} : inputs_.List("n");
  }
  if (answer.SizesFound()) answer.lastingSizes = lasting_;
  answer.assurance = assured_;
  answer.derived = DerivedFigures(test_, route_, inputs_);
  if (IsStopped()) throw Stopped();
  return answer;
}

void PreparedQuestion::TakeUnknown() {
  if (unknown_) SetUnknown(inputs_, *unknown_, *FindParameter(test_, unknown_->input), found_);
}

std::optional<double> PreparedQuestion::Figure(Planned planned) const {
  return planned == Planned::Assurance ? std::optional(assured_) : PlannedFigure(planned, test_, inputs_);
}

Name PreparedQuestion::TargetName() const {
  return unknown_->target == Question::Power ? Name("power") : Name("half-width");
}

void PreparedQuestion::RejectUnanswered() {
  const Question question = route_.question;
  Problem problem{.code = Code::NotComputable, .question = question};
  if (AsksForSizes(question)) {
    problem.code = Code::SizesNotFound;
    problem.inputs = Texts({*AskedBy(question)});
    problem.values = {inputs_.Number(*AskedBy(question))};
    if (assurance_) problem.words = {" with that assurance"};
    if (IsBeyondLimit(inputs_)) {
      problem.code = Code::BeyondPowerLimit;
      problem.inputs = Texts({"power", "effect-sd"});
      problem.values.insert(problem.values.end(),
                            {inputs_.Number("effect-sd"), test_.offers.expectedPowerLimit(inputs_)});
    }
    if (test_.largestExactSearch > 0 && inputs_.Has("exact") && inputs_.Flag("exact")) {
      problem.values.emplace_back(test_.largestExactSearch);
    }
  }
  if (unknown_) {
    Inputs inputs = inputs_;
    const UnknownSearch search = SearchUnknown(inputs);
    if (search.nearest) {
      problem.code = search.isReachedEverywhere ? Code::TargetReachedAlways : Code::TargetNotReached;
      problem.inputs = Texts({TargetName(), unknown_->input});
      problem.values = {inputs_.Number(TargetName()), search.nearest->value, search.nearest->at};
    } else if (const Condition* failing = FirstFailing(conditions_, inputs)) {
      throw InputError(ProblemOf(*failing, Code::ConditionFails));
    }
  }
  throw NoSolution(std::move(problem));
}

const Condition* PreparedQuestion::FailingEffect(const Inputs& inputs) const {
  return NeedsEffect(route_.question, inputs) ? FirstFailing(effects_, inputs) : nullptr;
}

Row PreparedQuestion::Checked(const Inputs& inputs) {
  if (AsksForSizes(route_.question)) return FindSizes(inputs);
  if (assurance_) assured_ = assurance_(inputs);
  return ValueOf(inputs);
}

bool PreparedQuestion::IsUneven() const {
  if (!AsksForSizes(route_.question)) return false;
  return UnevennessOf(inputs_) != Unevenness::Even || IsAssuredUnevenly();
}

bool PreparedQuestion::IsAssuredUnevenly() const { return assurance_ && test_.offers.lastingAssuredSizes; }

/// However large the study is, its expected power stays below the limit.
bool PreparedQuestion::IsBeyondLimit(const Inputs& inputs) const {
  if (route_.question != Question::SampleSize || !inputs.Has("effect-sd")) return false;
  return !(inputs.Number("power") < test_.offers.expectedPowerLimit(inputs));
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

Row PreparedQuestion::ValueWith(Inputs& inputs, double at) const {
  SetUnknown(inputs, *unknown_, *FindParameter(test_, unknown_->input), at);
  if (FirstFailing(conditions_, inputs)) return refused;
  return ValueOf(inputs);
}

UnknownSearch PreparedQuestion::SearchUnknown(Inputs& inputs) const {
  const Parameter& parameter = *FindParameter(test_, unknown_->input);
  return FindUnknown(*unknown_, parameter, inputs, inputs.Number(TargetName()),
                     UnevennessOf(inputs) != Unevenness::Even, [&](double at) { return ValueWith(inputs, at).value; });
}

Row PreparedQuestion::FindNumber(const Inputs& inputs) {
  Inputs tried = inputs;
  const UnknownSearch search = SearchUnknown(tried);
  if (IsStopped()) return stopped;
  if (!search.reached) return unanswered;
  found_ = search.reached->at;
  if (!unknown_->attainable) return {RowStatus::Answered, search.reached->value};
  found_ = unknown_->attainable(inputs, found_);
  return ValueWith(tried, found_);
}

/// From the sizes that the core's search found, if any: it may stop short of the first whole ones, or look where there are
/// none.
std::optional<double> PreparedQuestion::FindWhole(const WholeSizes& whole, const Numbers& found,
                                                  Reaches reaches) const {
  const double start = found.empty() ? whole.Smallest() : whole.NumberOf(found);
  return FirstWhole(start, whole.Smallest(), reaches);
}

/// The first number, or with `stable` the one from which on all reach the target.
double PreparedQuestion::FindUneven(const WholeSizes& whole, const Inputs& inputs, double number, Reaches reaches) {
  const bool isSlow = UnevennessOf(inputs) == Unevenness::UnevenAndSlow;
  UnevenSizes sizes = AroundUneven(number, whole.Smallest(), isSlow, reaches);
  if (route_.lastingSize) {
    const double lasting = route_.lastingSize(inputs);
    if (std::isfinite(lasting)) sizes.lasting = std::max(lasting, sizes.first);
  }
  lasting_ = whole.At(sizes.lasting);
  return inputs.Flag("stable") ? sizes.lasting : sizes.first;
}

Unevenness PreparedQuestion::UnevennessOf(const Inputs& inputs) const {
  return test_.unevenness ? test_.unevenness(inputs) : Unevenness::Even;
}

/// An assurance that is a sawtooth in the size is searched by the core alone.
Row PreparedQuestion::FindUnevenAssurance(const Inputs& inputs) {
  const Numbers found = test_.offers.assuredSizes(inputs);
  lasting_ = test_.offers.lastingAssuredSizes(inputs);
  if (IsStopped()) return stopped;
  if (!AreSizes(found) || !AreSizes(lasting_)) return unanswered;
  sizes_ = inputs.Flag("stable") ? lasting_ : found;
  const Inputs atSizes = AtSizes(inputs, sizes_);
  assured_ = assurance_(atSizes);
  return ValueOf(atSizes);
}

/// Where to look for whole sizes.
Numbers PreparedQuestion::Start(const Inputs& inputs, const WholeSizes& whole) const {
  Numbers sizes = assurance_ ? test_.offers.assuredSizes(inputs) : AdjustedStart(route_.sizes(inputs), inputs);
  if (!AreSizes(sizes)) return {};
  // The power at an effect that is small for certain tells little of one that may be large.
  const bool isFarOff = inputs.Has("effect-sd") && !whole.AreCountable(sizes);
  return isFarOff ? Numbers{} : sizes;
}

Row PreparedQuestion::FindSizes(const Inputs& inputs) {
  lasting_.clear();
  if (IsBeyondLimit(inputs)) return unanswered;
  if (IsAssuredUnevenly()) return FindUnevenAssurance(inputs);
  const WholeSizes whole(test_, inputs);
  Numbers found = Start(inputs, whole);
  if (IsStopped()) return stopped;
  const bool isUneven = UnevennessOf(inputs) != Unevenness::Even;
  if (isUneven && found.empty()) return unanswered;

  Inputs tried = AtSizes(inputs, whole.At(whole.Smallest()));
  if (!found.empty() && !whole.AreCountable(found)) {
    sizes_ = std::move(found);
    SetSizes(tried, sizes_);
    if (assurance_) assured_ = assurance_(tried);
    const Row row = ValueOf(tried);
    return row.status != RowStatus::Answered || NearlyReached(route_.question, row.value, inputs) ? row : unanswered;
  }
  Row row = unanswered;
  const auto reaches = [&](double number) {
    if (row.status == RowStatus::Stopped) return true;
    sizes_ = whole.At(number);
    SetSizes(tried, sizes_);
    row = FirstFailing(sizeConditions_, tried) ? refused : ValueOf(tried);
    if (assurance_) assured_ = assurance_(tried);
    return row.status == RowStatus::Stopped ||
           (row.status == RowStatus::Answered && Reached(route_.question, row.value, assured_, inputs));
  };
  std::optional<double> number = FindWhole(whole, found, reaches);
  if (number && isUneven) number = FindUneven(whole, inputs, *number, reaches);
  if (row.status == RowStatus::Stopped) return stopped;
  if (!number) return unanswered;
  reaches(*number);
  return row;
}

}  // namespace planner
