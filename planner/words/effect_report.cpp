#include "words/effect_report.h"

#include <algorithm>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "format/format.h"
#include "solve/convert_effect.h"
#include "words/expand.h"
#include "words/numbers.h"

namespace planner {
namespace {

std::string FourDigits(double value) { return Formatted("{:.4g}", value); }

std::string IntervalForReading(const ConfidenceLimits& limits) {
  return Formatted("{} to {}", FourDigits(limits.lower), FourDigits(limits.upper));
}

std::string Percent(double confidence) { return Formatted("{:.10g}%", 100 * confidence); }

bool HasAnyInterval(const EffectAnswer& answer) {
  return std::any_of(answer.results.begin(), answer.results.end(),
                     [](const EffectResult& result) { return result.value.limits.has_value(); });
}

bool TellsSizes(const Inputs& in) { return in.Has("n") || in.Has("df") || in.Has("counts"); }

const EffectResult* Find(const EffectAnswer& answer, const std::string& name) {
  for (const EffectResult& result : answer.results) {
    if (result.size->name == name) return &result;
  }
  return nullptr;
}

std::vector<Entry> InputEntries(const EffectAnswer& answer) {
  const Inputs& in = answer.inputs;
  const EffectConversion& conversion = *answer.conversion;
  std::vector<Entry> entries;
  for (const Parameter& parameter : answer.effects->inputs.parameters) {
    const Name name = parameter.name;
    const bool isTaken = Contains(conversion.needs, name) || Contains(conversion.accepts, name);
    if (!isTaken || !in.Has(name)) continue;
    Value value = in.ValueOf(parameter);
    if (parameter.spreads && in.List(name).size() == 1) value = in.List(name).front();
    entries.push_back({std::string(name.Text()), parameter.label, value, Shown(value)});
  }
  if (HasAnyInterval(answer)) {
    const double confidence = in.Number("confidence");
    entries.push_back({"confidence", "confidence", confidence, Percent(confidence)});
  }
  return entries;
}

void AddResult(const EffectResult& result, std::size_t width, std::vector<Entry>& entries) {
  const EffectSize& size = *result.size;
  const double value = result.value.value;
  const std::optional<ConfidenceLimits>& limits = result.value.limits;
  if (!limits) return entries.push_back({size.name, size.label, value, FourDigits(value)});
  entries.push_back(
      {size.name, size.label, value, Formatted("{:<{}}  ({})", FourDigits(value), width, IntervalForReading(*limits))});
  const auto addLimit = [&](const char* which, double limit) {
    const std::string suffix = std::string("-") + which;
    entries.push_back({size.name + suffix, size.label, limit, FourDigits(limit), false, true});
  };
  addLimit("lower", limits->lower);
  addLimit("upper", limits->upper);
}

/// Four digits, or all where these are too few for the input.
std::string ForInput(const Parameter& parameter, double value) {
  double rounded = 0;
  const std::string digits = FourDigits(value);
  const bool isAllowed = ParseNumber(digits, rounded) && parameter.limits.Allow(rounded);
  return isAllowed ? digits : Shortest(value);
}

/// "two-means --effect-d 0.45"; empty where the test does not take the effect.
std::string UseOf(const EffectUse& use, const EffectAnswer& answer) {
  const Parameter& parameter = *FindParameter(*FindTest(use.test), use.input);
  std::vector<std::string> values;
  for (const std::string& effect : use.effects) {
    const EffectResult* result = Find(answer, effect);
    if (!result || !parameter.limits.Allow(result->value.value)) return "";
    values.push_back(ForInput(parameter, result->value.value));
  }
  return Formatted("{} --{} {}", use.test, use.input.Text(), Joined(values, ",", ","));
}

std::vector<Entry> ResultEntries(const EffectAnswer& answer) {
  std::size_t width = 0;
  for (const EffectResult& result : answer.results) width = std::max(width, FourDigits(result.value.value).size());
  std::vector<Entry> entries;
  for (const EffectResult& result : answer.results) AddResult(result, width, entries);
  std::vector<std::string> uses;
  for (const EffectUse& use : answer.conversion->uses) {
    if (std::string text = UseOf(use, answer); !text.empty()) uses.push_back(std::move(text));
  }
  if (!uses.empty()) entries.push_back({"use", "use it as", Joined(uses, " or "), Joined(uses, " or ")});
  return entries;
}

/// " in groups of 20 and 25"
std::string InGroups(const Inputs& in) {
  if (!in.Has("n")) return "";
  const Numbers& n = in.List("n");
  return Formatted(" in groups of {}{}", ListedInSentence(n), n.size() == 1 ? " each" : "");
}

std::string LookUp(const EffectAnswer& answer, std::string_view name) {
  const Inputs& in = answer.inputs;
  if (name == "in-groups") return InGroups(in);
  if (name == "in-sample") return in.Has("n") ? " in a sample of " + Listed(in.List("n")) : "";
  if (name == "in-pairs") return in.Has("n") ? Formatted(" in {} pairs", Listed(in.List("n"))) : "";
  if (name == "with-predictors") {
    const double predictors = in.Number("predictors");
    return Formatted(" with {} predictor{}", Shortest(predictors), predictors == 1 ? "" : "s");
  }
  if (name == "sds") {
    const Numbers& sds = in.List("sd");
    return (sds.size() == 1 ? "a standard deviation of " : "standard deviations of ") + ListedInSentence(sds);
  }
  const Value value = in.ValueOf(*FindParameter(answer.effects->inputs, name));
  if (const auto* numbers = std::get_if<Numbers>(&value)) return ListedInSentence(*numbers);
  return Shown(value);
}

std::string SentenceOf(const EffectAnswer& answer) {
  const EffectConversion& conversion = *answer.conversion;
  const EffectResult* told = Find(answer, conversion.tells);
  if (told && !told->value.limits && !conversion.tellsWithoutInterval.empty()) {
    told = Find(answer, conversion.tellsWithoutInterval);
  }
  if (!told) told = &answer.results.front();
  const auto lookUp = [&](std::string_view name) { return LookUp(answer, name); };
  std::string text =
      Formatted("From {}, {} is {}", Expand(conversion.given, lookUp, [](std::string_view) { return false; }),
                told->size->wording.empty() ? told->size->label : told->size->wording, FourDigits(told->value.value));
  if (told->value.limits) {
    text += Formatted(" ({} confidence interval {})", Percent(answer.inputs.Number("confidence")),
                      IntervalForReading(*told->value.limits));
  }
  return text + '.';
}

/// What is to be said of intervals that are not there.
std::string OnIntervals(const EffectAnswer& answer) {
  if (!HasAnyInterval(answer)) {
    if (TellsSizes(answer.inputs)) return "No confidence interval can be computed here.";
    return "Without the size of the study there are no confidence intervals.";
  }
  std::vector<std::string> without;
  for (const EffectResult& result : answer.results) {
    if (!result.value.limits) without.push_back(result.size->label);
  }
  return without.empty() ? ""
                         : Formatted("No confidence interval can be computed here of {}.", Joined(without, " and "));
}

std::string NoteOf(const EffectAnswer& answer) {
  std::vector<std::string> notes;
  const auto add = [&](const std::string& note) {
    if (!note.empty() && std::find(notes.begin(), notes.end(), note) == notes.end()) notes.push_back(note);
  };
  for (const EffectResult& result : answer.results) add(result.formula->note);
  add(OnIntervals(answer));
  return Joined(notes, " ", " ");
}

}  // namespace

Report MakeReport(const EffectAnswer& answer) {
  return {.test = &answer.effects->inputs,
          .question = Question::EffectSizes,
          .exportName = "",
          .inputs = InputEntries(answer),
          .assumptions = {},
          .results = ResultEntries(answer),
          .sentence = SentenceOf(answer),
          .note = NoteOf(answer)};
}

Explanation Explain(const EffectAnswer& answer) {
  Explanation explanation{
      .heading = "Behind the effect sizes", .figures = {}, .formula = {}, .source = {}, .programs = {}};
  for (const EffectResult& result : answer.results) {
    explanation.formulas.push_back(
        {result.size->name, result.size->label, result.formula->formula, result.formula->source});
  }
  return explanation;
}

Report ConvertEffect(const InputValues& values, bool explained) {
  const EffectAnswer answer = Convert(EffectSizes(), values);
  Report report = MakeReport(answer);
  if (explained) report.explanation = Explain(answer);
  return report;
}

}  // namespace planner
