#include "words/report.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <numeric>

#include "words/expand.h"
#include "words/numbers.h"

namespace planner {
namespace {

std::string ShownPower(double power) {
  if (power > 0.99995) return ">0.9999";
  if (power == 0) return "0";
  if (power < 0.00005) return "<0.0001";
  return fmt::format("{:.4f}", power);
}

std::string ShownHalfWidth(double halfWidth) { return fmt::format("{:.4g}", halfWidth); }

/// The sizes in digits worth reading: all, or four where there are too many observations to count.
Numbers Readable(Numbers sizes) {
  constexpr double largestCounted = 1e15;
  for (double& size : sizes) {
    if (size >= largestCounted) ParseNumber(fmt::format("{:.4g}", size), size);
  }
  return sizes;
}

std::string Readable(double size) { return Shortest(Readable(Numbers{size}).front()); }

double Total(const Numbers& sizes) { return std::accumulate(sizes.begin(), sizes.end(), 0.0); }

/// "20 observations in each of 3 groups (60 in total)"
std::string SizesInSentence(const Test& test, const Numbers& sizes) {
  if (test.groups == 1) return fmt::format("{} {}", Readable(sizes.front()), test.counted);
  const bool equal = std::adjacent_find(sizes.begin(), sizes.end(), std::not_equal_to<>()) == sizes.end();
  if (equal) {
    return fmt::format("{} {} in each of {} groups ({} in total)", Readable(sizes.front()), test.counted, sizes.size(),
                       Readable(Total(sizes)));
  }
  return fmt::format("{} {} in {} groups ({} in total)", ListedInSentence(Readable(sizes)), test.counted, sizes.size(),
                     Readable(Total(sizes)));
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

/// Gives the words of a sentence's braces.
class Words {
public:
  explicit Words(const Answer& answer) : test_(*answer.test), inputs_(answer.inputs), answer_(answer) {}

  std::string Of(const std::string& text) const {
    return Expand(
        text, [this](std::string_view name) { return LookUp(name); },
        [this](std::string_view name) { return IsSet(name); });
  }

private:
  std::string LookUp(std::string_view name) const {
    if (name == "sizes") return SizesInSentence(test_, answer_.sizes);
    if (name == "total") return Readable(Total(answer_.sizes));
    if (name == "groups") return Shortest(inputs_.Groups());
    if (name == "power") return ShownPower(answer_.value);
    if (name == "half-width") return ShownHalfWidth(answer_.value);
    if (name == "target-power") return Shortest(inputs_.Number("power"));
    if (name == "target-half-width") return Shortest(inputs_.Number("half-width"));
    if (name == "confidence") return fmt::format("{:.10g}%", 100 * (1 - inputs_.Alpha()));
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
      if (derived->name == name) return fmt::format("{:.4g}", figure);
    }
    return "";
  }

  std::string OfAssumption(const Assumption& assumption) const {
    const auto has = [&](Name need) { return inputs_.Has(need); };
    if (!std::all_of(assumption.needs.begin(), assumption.needs.end(), has)) return "";
    const std::string words = assumption.call(inputs_);
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
    if (answer_.unknown && parameter->name == answer_.unknown->input) return fmt::format("{:.4g}", NumberOf(answer_));
    const Value value = inputs_.ValueOf(*parameter);
    if (const auto* word = std::get_if<std::string>(&value)) return ChoiceWording(*parameter, *word);
    if (const auto* numbers = std::get_if<Numbers>(&value)) return ListedInSentence(*numbers);
    return Shown(value);
  }

  const Test& test_;
  const Inputs& inputs_;
  const Answer& answer_;
};

/// The power or half-width to reach.
bool IsTarget(const Answer& answer, Name name) {
  if (name == Name("interval")) return false;
  if (!answer.unknown) return name == AskedBy(answer.route->question);
  return name == (answer.unknown->target == Question::Power ? Name("power") : Name("half-width"));
}

std::vector<Entry> InputEntries(const Answer& answer) {
  std::vector<Entry> entries;
  const Route& route = *answer.route;
  for (const Parameter& parameter : answer.test->parameters) {
    const Name name = parameter.name;
    if (!answer.inputs.Has(name)) continue;
    if (answer.unknown && name == answer.unknown->input) continue;
    if (!route.Takes(name) && !IsTarget(answer, name) && name != Name("alpha")) continue;
    const Value value = answer.inputs.ValueOf(parameter);
    const bool isUnset = parameter.kind == Kind::Flag && !answer.inputs.Flag(name);
    entries.push_back({std::string(name.Text()), parameter.label, value, Shown(value), isUnset});
  }
  return entries;
}

bool IsTaken(const Answer& answer, const Names& needs) {
  return std::all_of(needs.begin(), needs.end(),
                     [&](Name name) { return answer.inputs.Has(name) && answer.route->Takes(name); });
}

std::string Confidence(const Inputs& inputs) { return fmt::format("{:.10g}%", 100 * (1 - inputs.Alpha())); }

std::vector<Entry> AssumptionEntries(const Answer& answer) {
  std::vector<Entry> entries;
  for (const Assumption& assumption : answer.test->assumptions) {
    if (!IsTaken(answer, assumption.needs)) continue;
    const std::string words = assumption.call(answer.inputs);
    if (!words.empty()) entries.push_back({assumption.name, assumption.label, words, words});
  }
  if (!IsAboutPower(answer.Asked())) {
    entries.push_back({"confidence", "confidence", Confidence(answer.inputs), Confidence(answer.inputs)});
  }
  return entries;
}

std::vector<Entry> ResultEntries(const Answer& answer) {
  std::vector<Entry> entries;
  const bool grouped = answer.test->groups != 1;
  if (answer.unknown) {
    const Parameter& parameter = *FindParameter(*answer.test, answer.unknown->input);
    const double number = NumberOf(answer);
    entries.push_back({std::string(parameter.name.Text()), parameter.label, number, fmt::format("{:.4g}", number)});
  }
  for (const auto& [derived, figure] : answer.derived) {
    entries.push_back({derived->name, derived->label, figure, fmt::format("{:.4g}", figure)});
  }
  if (answer.SizesFound() && grouped) {
    entries.push_back({"sizes", "group sizes", answer.sizes, Listed(Readable(answer.sizes))});
  }
  if (answer.SizesFound() && !grouped) {
    entries.push_back({"n", "sample size", answer.sizes.front(), Readable(answer.sizes.front())});
  }
  if (grouped) {
    const double total = Total(answer.sizes);
    entries.push_back({"total", "total sample size", total, Readable(total)});
  }
  if (!answer.lastingSizes.empty()) {
    const bool isOne = answer.lastingSizes.size() == 1;
    const Value value = isOne ? Value(answer.lastingSizes.front()) : Value(answer.lastingSizes);
    entries.push_back({isOne ? "lasting-n" : "lasting-sizes", "from here on every sample size reaches the power", value,
                       Listed(Readable(answer.lastingSizes))});
  }
  const std::string suffix = answer.SizesFound() ? " at these sizes" : "";
  if (IsAboutPower(answer.Asked())) {
    entries.push_back({"power", "power" + suffix, answer.value, ShownPower(answer.value)});
  } else {
    entries.push_back({"half-width", "half-width" + suffix, answer.value, ShownHalfWidth(answer.value)});
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
std::string NoteOn(const Answer& answer) {
  if (answer.lastingSizes.empty()) return "";
  const std::string lasting = SizesInSentence(*answer.test, answer.lastingSizes);
  if (answer.lastingSizes == answer.sizes) return "All larger sample sizes reach it too.";
  return fmt::format("Some larger sample sizes do not reach it; all do from {} on.", lasting);
}

/// What is odd about a level or a power, as percentages and slips of the pen make it.
std::string OddLevels(const Answer& answer) {
  constexpr double oddLevel = 0.5;
  constexpr double rounding = 1e-9;
  if (answer.inputs.Alpha() >= oddLevel) {
    return fmt::format("A significance level of {} rejects more often than not without any effect.",
                       Shortest(answer.inputs.Alpha()));
  }
  const bool isLow = IsAboutPower(answer.Asked()) && answer.value <= answer.inputs.Alpha() * (1 + rounding);
  return isLow ? "The power is not above the significance level: the test would reject as often without any effect."
               : "";
}

std::string BothNotes(const std::string& first, const std::string& second) {
  return first + (first.empty() || second.empty() ? "" : " ") + second;
}

}  // namespace

Report MakeReport(const Answer& answer) {
  return {.test = answer.test,
          .question = answer.Asked(),
          .exportName = answer.route->ExportFor(answer.inputs),
          .inputs = InputEntries(answer),
          .assumptions = AssumptionEntries(answer),
          .results = ResultEntries(answer),
          .sentence = Words(answer).Of(SentenceOf(*answer.test, answer.Asked())),
          .note = BothNotes(NoteOn(answer), OddLevels(answer))};
}

}  // namespace planner
