#include "words/report.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <optional>

#include "format/format.h"
#include "words/expand.h"
#include "words/numbers.h"
#include "words/on_plan.h"

namespace planner {
namespace {

std::string ShownPower(double power) {
  if (power > 0.99995) return ">0.9999";
  if (power == 0) return "0";
  if (power < 0.00005) return "<0.0001";
  return Formatted("{:.4f}", power);
}

std::string ShownHalfWidth(double halfWidth) { return Formatted("{:.4g}", halfWidth); }

/// The sizes in digits worth reading: all, or four where there are too many observations to count.
Numbers Readable(Numbers sizes) {
  constexpr double largestCounted = 1e15;
  for (double& size : sizes) {
    if (size >= largestCounted) ParseNumber(Formatted("{:.4g}", size), size);
  }
  return sizes;
}

std::string Readable(double size) { return Shortest(Readable(Numbers{size}).front()); }

/// "20 observations in each of 3 groups (60 in total)"
std::string SizesInSentence(const Test& test, const Numbers& sizes) {
  if (sizes.size() == 1) return Formatted("{} {}", Readable(sizes.front()), test.counted);
  const bool equal = std::adjacent_find(sizes.begin(), sizes.end(), std::not_equal_to<>()) == sizes.end();
  if (equal) {
    return Formatted("{} {} in each of {} groups ({} in total)", Readable(sizes.front()), test.counted, sizes.size(),
                     Readable(TotalOf(sizes)));
  }
  return Formatted("{} {} in {} groups ({} in total)", ListedInSentence(Readable(sizes)), test.counted, sizes.size(),
                   Readable(TotalOf(sizes)));
}

std::string ChoiceWording(const Parameter& parameter, const std::string& word) {
  const auto& choices = parameter.choices;
  return std::find_if(choices.begin(), choices.end(), [&](const auto& choice) { return choice.word == word; })->wording;
}

/// What was solved for: of a list, whose entries are the same, one of them.
double NumberOf(const Answer& answer) {
  const Name name = answer.unknown->input;
  const bool isList = FindParameter(*answer.test, name)->IsList();
  return isList ? answer.inputs.List(name).front() : answer.inputs.Number(name);
}

std::string Confidence(const Inputs& inputs) {
  // A level that is divided may have no end of digits.
  return Formatted("{:.{}g}%", 100 * (1 - inputs.Alpha()), inputs.Has("comparisons") ? 6 : 10);
}

/// Gives the words of a sentence's braces.
class WordsOfAnswer {
public:
  explicit WordsOfAnswer(const Answer& answer) : test_(*answer.test), inputs_(answer.inputs), answer_(answer) {}

  std::string Of(const std::string& text) const {
    return Expand(
        text, [this](std::string_view name) { return LookUp(name); },
        [this](std::string_view name) { return IsSet(name); });
  }

private:
  std::string LookUp(std::string_view name) const {
    if (name == "sizes") return SizesInSentence(test_, answer_.sizes);
    if (name == "total") return Readable(TotalOf(answer_.sizes));
    if (name == "groups") return Shortest(inputs_.Groups());
    if (name == "power") return ShownPower(answer_.value);
    if (name == "half-width") return ShownHalfWidth(answer_.value);
    if (name == "target-power") return Shortest(inputs_.Number("power"));
    if (name == "target-half-width") return Shortest(inputs_.Number("half-width"));
    if (name == "alpha" && inputs_.Has("comparisons")) return Formatted("{:.4g}", inputs_.Alpha());
    if (name == "confidence") return Confidence(inputs_);
    for (const Phrase& phrase : test_.phrases) {
      if (phrase.name == name) return OfPhrase(phrase);
    }
    for (const Assumption& assumption : test_.assumptions) {
      if (assumption.name == name) return OfAssumption(assumption);
    }
    const std::string input = OfInput(name);
    return input.empty() ? OfDerived(name) : input;
  }

  /// The figure of that name, which a sentence may tell beside the inputs that it follows from.
  std::string OfDerived(std::string_view name) const {
    for (const auto& [derived, figure] : answer_.derived) {
      if (derived->name == name) return Formatted("{:.4g}", figure);
    }
    return "";
  }

  std::string OfAssumption(const Assumption& assumption) const {
    const auto has = [&](Name need) { return inputs_.Has(need); };
    if (!std::all_of(assumption.needs.begin(), assumption.needs.end(), has)) return "";
    const std::string words = Of(assumption.call(inputs_));
    std::string text = assumption.wording;
    return words.empty() ? "" : text.replace(text.find("<0>"), 3, words);
  }

  bool IsSet(std::string_view name) const {
    const Parameter* flag = FindParameter(test_, name);
    return flag && inputs_.Has(flag->name) && inputs_.Flag(flag->name);
  }

  std::string OfPhrase(const Phrase& phrase) const {
    for (const auto& [input, wording] : phrase.wordings) {
      if (inputs_.Has(input)) return Of(wording);
    }
    return "";
  }

  std::string OfInput(std::string_view name) const {
    const Parameter* parameter = FindParameter(test_, name);
    if (!parameter || !inputs_.Has(parameter->name)) return "";
    if (answer_.unknown && parameter->name == answer_.unknown->input) return Formatted("{:.4g}", NumberOf(answer_));
    const Value value = inputs_.ValueOf(*parameter);
    if (const auto* word = std::get_if<std::string>(&value)) return ChoiceWording(*parameter, *word);
    if (const auto* numbers = std::get_if<Numbers>(&value)) return ListedInSentence(*numbers);
    return Shown(value);
  }

  const Test& test_;
  const Inputs& inputs_;
  const Answer& answer_;
};

/// The power or half-width to reach, if there is one.
std::optional<Name> TargetOf(const Route& route, const Unknown* unknown) {
  if (unknown) return unknown->target == Question::Power ? Name("power") : Name("half-width");
  return AsksForSizes(route.question) ? AskedBy(route.question) : std::nullopt;
}

std::vector<Entry> InputEntries(const Answer& answer) {
  std::vector<Entry> entries;
  for (const Parameter* parameter : ListedParameters(*answer.test, *answer.route, answer.unknown, answer.inputs)) {
    const Value value = answer.inputs.ValueOf(*parameter);
    const bool isUnset = parameter->kind == Kind::Flag && !answer.inputs.Flag(parameter->name);
    const std::string name = NameInReports(*parameter, *answer.route, answer.unknown);
    entries.push_back({name, parameter->label, value, Shown(value), isUnset});
  }
  return entries;
}

bool IsTaken(const Answer& answer, const Names& needs) {
  return std::all_of(needs.begin(), needs.end(),
                     [&](Name name) { return answer.inputs.Has(name) && answer.route->Takes(name); });
}

std::vector<Entry> AssumptionEntries(const Answer& answer) {
  std::vector<Entry> entries;
  for (const Assumption& assumption : answer.test->assumptions) {
    if (!IsTaken(answer, assumption.needs)) continue;
    const std::string words = WordsOfAnswer(answer).Of(assumption.call(answer.inputs));
    if (!words.empty()) entries.push_back({assumption.name, assumption.label, words, words});
  }
  if (!IsAboutPower(answer.Asked())) {
    entries.push_back({"confidence", "confidence", Confidence(answer.inputs), Confidence(answer.inputs)});
  }
  return entries;
}

double FigureOf(const Answer& answer, const Derived* derived) {
  for (const DerivedFigure& figure : answer.derived) {
    if (figure.derived == derived) return figure.value;
  }
  return std::numeric_limits<double>::quiet_NaN();
}

/// Those found, those from which on all reach the target, or what the circumstances of the study make of them.
Numbers SizesOf(const Answer& answer, const ResultColumn& column) {
  if (column.isLasting) return answer.lastingSizes;
  return column.planned == Planned::None ? answer.sizes : PlannedSizes(column.planned, answer.inputs, answer.sizes);
}

double ResultOf(const Answer& answer, const ResultColumn& column) {
  if (column.planned == Planned::Assurance) return answer.assurance;
  const std::optional<double> planned = PlannedFigure(column.planned, *answer.test, answer.inputs);
  if (planned) return *planned;
  switch (column.reading) {
    case Reading::Figure: return column.derived ? FigureOf(answer, column.derived) : NumberOf(answer);
    case Reading::Size: return TotalOf(SizesOf(answer, column));
    case Reading::Sizes: break;
    case Reading::Power:
    case Reading::HalfWidth: return answer.value;
  }
  return answer.value;
}

std::vector<Entry> ResultEntries(const Answer& answer) {
  std::vector<Entry> entries;
  for (const ResultColumn& column : ResultColumns(*answer.test, *answer.route, answer.unknown, OffersOf(answer.inputs),
                                                  !answer.lastingSizes.empty())) {
    if (column.reading == Reading::Sizes) {
      const Numbers sizes = SizesOf(answer, column);
      entries.push_back({column.name, column.label, sizes, ShownSizes(sizes)});
      continue;
    }
    const double value = ResultOf(answer, column);
    if (!std::isnan(value)) entries.push_back({column.name, column.label, value, ShownResult(column.reading, value)});
  }
  return entries;
}

std::string SentenceOf(const Test& test, Question question) {
  for (const ReportSentence& sentence : test.sentences) {
    if (sentence.question == question) return sentence.text;
  }
  return "";
}

/// What an uneven power asks to be said of the sizes found.
std::string OnUnevenness(const Answer& answer) {
  if (answer.lastingSizes.empty()) return "";
  if (answer.lastingSizes == answer.sizes) return " All larger sample sizes reach it too.";
  return Formatted(" Some larger sample sizes do not reach it; all do from {} on.",
                   SizesInSentence(*answer.test, answer.lastingSizes));
}

}  // namespace

std::vector<const Parameter*> ListedParameters(const Test& test, const Route& route, const Unknown* unknown,
                                               const Inputs& inputs) {
  const std::optional<Name> target = TargetOf(route, unknown);
  std::vector<const Parameter*> listed;
  for (const Parameter& parameter : test.parameters) {
    const Name name = parameter.name;
    if (!inputs.Has(name)) continue;
    if (unknown && name == unknown->input) continue;
    const bool isWish = name == Name("half-width") && SolvesForAssurance(inputs);
    if (!route.Takes(name) && name != target && name != Name("alpha") && !isWish) continue;
    listed.push_back(&parameter);
  }
  return listed;
}

std::string NameInReports(const Parameter& parameter, const Route& route, const Unknown* unknown) {
  const Names targets{"half-width", "assurance"};
  const bool isTarget = parameter.name == TargetOf(route, unknown) || Contains(targets, parameter.name);
  return (isTarget ? "target-" : "") + std::string(parameter.name.Text());
}

std::string ShownResult(Reading reading, double value) {
  switch (reading) {
    case Reading::Power: return ShownPower(value);
    case Reading::HalfWidth: return ShownHalfWidth(value);
    case Reading::Size:
    case Reading::Sizes: return Readable(value);
    case Reading::Figure: break;
  }
  return Formatted("{:.4g}", value);
}

std::string ShownSizes(const Numbers& sizes) { return Listed(Readable(sizes)); }

std::string NoteOn(Question question, const Inputs& inputs, double value) {
  constexpr double oddLevel = 0.5;
  constexpr double slack = 1e-9;
  if (inputs.Alpha() >= oddLevel) {
    return Formatted("A significance level of {} rejects more often than not without any effect.",
                     Shortest(inputs.Alpha()));
  }
  const bool isLow = IsAboutPower(question) && value <= inputs.Alpha() * (1 + slack);
  if (!isLow) return "";
  // Against margins no effect may be what is to be shown.
  const bool hasMargins = inputs.Has("margin") || inputs.Has("equivalence");
  return hasMargins
             ? "The power is not above the significance level."
             : "The power is not above the significance level: the test would reject as often without any effect.";
}

std::string NoteOn(const DesignAnswer& answer) {
  const PreparedQuestion& question = *answer.question;
  return NoteOn(question.ChosenRoute().question, question.Design(), answer.value);
}

Report MakeReport(const Answer& answer) {
  return {.test = answer.test,
          .question = answer.Asked(),
          .exportName = answer.route->ExportFor(answer.inputs),
          .inputs = InputEntries(answer),
          .assumptions = AssumptionEntries(answer),
          .results = ResultEntries(answer),
          .sentence = WordsOfAnswer(answer).Of(InExpectation(answer, SentenceOf(*answer.test, answer.Asked()))) +
                      OnAssurance(answer) + OnUnevenness(answer) + OnPlan(answer),
          .note = NoteOn(answer.Asked(), answer.inputs, answer.value)};
}

}  // namespace planner
