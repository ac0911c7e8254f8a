#include "solve/convert_effect.h"

#include <algorithm>
#include <cmath>

#include "solve/checks.h"
#include "solve/choose_route.h"
#include "solve/make_inputs.h"

namespace planner {
namespace {

const EffectConversion& ConversionOf(const Effects& effects, const InputValues& values) {
  const Route& route = ChooseRoute(effects.inputs, Question::EffectSizes, GivenNames(effects.inputs, values));
  return effects.conversions[static_cast<std::size_t>(&route - effects.inputs.routes.data())];
}

const EffectSize& SizeOf(const Effects& effects, const std::string& name) {
  return *std::find_if(effects.sizes.begin(), effects.sizes.end(),
                       [&](const EffectSize& size) { return size.name == name; });
}

/// Its value where it has been computed, or null.
const EffectValue* Find(const std::vector<EffectResult>& results, const std::string& name) {
  for (const EffectResult& result : results) {
    if (result.size->name == name) return &result.value;
  }
  return nullptr;
}

/// Both limits on the far side of the formula. Where the magnitude alone counts and 0 is inside, the least is at 0.
std::optional<ConfidenceLimits> Mapped(const EffectFormula& formula, const ConfidenceLimits& from, const Inputs& in) {
  if (formula.course == Course::Rises)
    return ConfidenceLimits{formula.map(from.lower, in), formula.map(from.upper, in)};
  const double low = std::fabs(from.lower);
  const double high = std::fabs(from.upper);
  const bool holds0 = from.lower <= 0 && from.upper >= 0;
  return ConfidenceLimits{formula.map(holds0 ? 0 : std::min(low, high), in), formula.map(std::max(low, high), in)};
}

std::optional<EffectValue> ValueOf(const EffectFormula& formula, const EffectAnswer& answer) {
  const Inputs& in = answer.inputs;
  const auto has = [&](Name name) { return in.Has(name); };
  if (!std::all_of(formula.needs.begin(), formula.needs.end(), has)) return std::nullopt;
  if (formula.compute) return formula.compute(in);
  const EffectValue* from = Find(answer.results, formula.from);
  if (!from) return std::nullopt;
  return EffectValue{formula.map(from->value, in), from->limits ? Mapped(formula, *from->limits, in) : std::nullopt};
}

/// A value beyond all numbers is none, and so is an interval with such a limit.
std::optional<EffectValue> WhereFinite(std::optional<EffectValue> value) {
  if (!value || !std::isfinite(value->value)) return std::nullopt;
  const bool isFinite = value->limits && std::isfinite(value->limits->lower) && std::isfinite(value->limits->upper);
  if (!isFinite) value->limits.reset();
  return value;
}

void AddResult(const std::string& effect, EffectAnswer& answer) {
  for (const EffectFormula& formula : answer.effects->formulas) {
    if (formula.effect != effect) continue;
    const std::optional<EffectValue> value = WhereFinite(ValueOf(formula, answer));
    if (!value) continue;
    answer.results.push_back({&SizeOf(*answer.effects, effect), &formula, *value});
    return;
  }
}

}  // namespace

EffectAnswer Convert(const Effects& effects, const InputValues& values) {
  CheckValues(effects.inputs, values);
  const EffectConversion& conversion = ConversionOf(effects, values);
  EffectAnswer answer{&effects, &conversion, MakeInputs(effects.inputs, values, nullptr), {}};
  answer.inputs.Set("alpha", 1 - answer.inputs.Number("confidence"));
  CheckConditions(effects.inputs, answer.inputs);
  for (const std::string& effect : conversion.gives) AddResult(effect, answer);
  if (answer.results.empty()) throw NoSolution({.code = Code::NotComputable, .question = Question::EffectSizes});
  return answer;
}

}  // namespace planner
