#include "solve/checks.h"
#include "solve/find_unknown.h"
#include "solve/prepared_parts.h"
#include "solve/prepared_question.h"

namespace planner {
namespace {

void SetUnknown(Inputs& inputs, const Unknown& unknown, const Parameter& parameter, double at) {
  if (unknown.set) return unknown.set(inputs, at);
  if (!parameter.IsList()) return inputs.Set(parameter.name, at);
  for (std::size_t i = 0; i < inputs.List(parameter.name).size(); ++i) inputs.SetEntry(parameter.name, i, at);
}

}  // namespace

void PreparedQuestion::TakeUnknown() {
  if (unknown_) SetUnknown(inputs_, *unknown_, *FindParameter(test_, unknown_->input), found_);
}

Name PreparedQuestion::TargetName() const {
  return unknown_->target == Question::Power ? Name("power") : Name("half-width");
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

}  // namespace planner
