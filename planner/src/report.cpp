#include "report.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>

#include "choose_route.h"
#include "kelcommon/kel_mv.h"
#include "sentence.h"

namespace planner {
namespace {

bool IsAboutPower(Question question) { return question == Question::Power || question == Question::SampleSize; }

std::string ShownPower(double power) {
  if (power > 0.99995) return ">0.9999";
  if (power < 0.00005) return "<0.0001";
  return fmt::format("{:.4f}", power);
}

std::string ShownHalfWidth(double halfWidth) { return fmt::format("{:.4g}", halfWidth); }

/// The sizes with no more digits than are worth reading: four where there are too many observations to count.
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

/// Gives the words of a sentence's braces.
class Words {
public:
  Words(const Test& test, const Inputs& inputs, const Findings& findings)
      : test_(test), inputs_(inputs), findings_(findings) {}

  std::string Of(const std::string& text) const {
    return Expand(
        text, [this](const std::string& name) { return LookUp(name); },
        [this](const std::string& name) { return inputs_.Has(name) && inputs_.Flag(name); });
  }

private:
  std::string LookUp(const std::string& name) const {
    if (name == "sizes") return SizesInSentence(test_, findings_.sizes);
    if (name == "total") return Readable(Total(findings_.sizes));
    if (name == "groups") return Shortest(inputs_.Groups());
    if (name == "power") return ShownPower(findings_.value);
    if (name == "half-width") return ShownHalfWidth(findings_.value);
    if (name == "target-power") return Shown(inputs_.At("power"));
    if (name == "target-half-width") return Shown(inputs_.At("half-width"));
    if (name == "confidence") return fmt::format("{:.10g}%", 100 * (1 - inputs_.Alpha()));
    for (const Phrase& phrase : test_.phrases) {
      if (phrase.name == name) return OfPhrase(phrase);
    }
    return OfParameter(name);
  }

  std::string OfPhrase(const Phrase& phrase) const {
    for (const auto& [parameter, wording] : phrase.wordings) {
      if (inputs_.Has(parameter)) return Of(wording);
    }
    return "";
  }

  std::string OfParameter(const std::string& name) const {
    const Parameter* parameter = FindParameter(test_, name);
    if (!parameter || !inputs_.Has(name)) return "";
    const Value& value = inputs_.At(name);
    if (const auto* word = std::get_if<std::string>(&value)) return ChoiceWording(*parameter, *word);
    if (const auto* numbers = std::get_if<Numbers>(&value)) return ListedInSentence(*numbers);
    return Shown(value);
  }

  const Test& test_;
  const Inputs& inputs_;
  const Findings& findings_;
};

std::vector<Entry> InputEntries(const Test& test, const Route& route, const Inputs& inputs) {
  std::vector<Entry> entries;
  for (const Parameter& parameter : test.parameters) {
    const std::string& name = parameter.name;
    if (!inputs.Has(name)) continue;
    const bool isTarget = name == AskedBy(route.question) && name != "interval";
    if (!Takes(route, name) && !isTarget && name != "alpha") continue;
    const Value& value = inputs.At(name);
    entries.push_back({name, parameter.label, value, Shown(value)});
  }
  return entries;
}

std::vector<Entry> ResultEntries(const Test& test, const Route& route, const Inputs& inputs, const Findings& findings) {
  std::vector<Entry> entries;
  const bool grouped = test.groups != 1;
  for (const Derived& derived : test.derived) {
    const auto has = [&](const std::string& name) { return inputs.Has(name) && Takes(route, name); };
    if (!std::all_of(derived.needs.begin(), derived.needs.end(), has)) continue;
    const double figure = derived.call(inputs);
    if (KelCommon::KelMV::IsMissing(figure)) continue;
    entries.push_back({derived.name, derived.label, figure, fmt::format("{:.4g}", figure)});
  }
  if (findings.sizesFound && grouped) {
    entries.push_back({"sizes", "group sizes", findings.sizes, Listed(Readable(findings.sizes))});
  }
  if (findings.sizesFound && !grouped) {
    entries.push_back({"n", "sample size", findings.sizes.front(), Readable(findings.sizes.front())});
  }
  if (grouped) {
    const double total = Total(findings.sizes);
    entries.push_back({"total", "total sample size", total, Readable(total)});
  }
  const std::string suffix = findings.sizesFound ? " at these sizes" : "";
  if (IsAboutPower(route.question)) {
    entries.push_back({"power", "power" + suffix, findings.value, ShownPower(findings.value)});
  } else {
    entries.push_back({"half-width", "half-width" + suffix, findings.value, ShownHalfWidth(findings.value)});
  }
  return entries;
}

std::string SentenceOf(const Test& test, Question question) {
  for (const Sentence& sentence : test.sentences) {
    if (sentence.question == question) return sentence.text;
  }
  return "";
}

}  // namespace

Report MakeReport(const Test& test, const Route& route, const Inputs& inputs, const Findings& findings) {
  Report report{};
  report.test = &test;
  report.question = route.question;
  report.exportName = route.exportName;
  report.inputs = InputEntries(test, route, inputs);
  report.results = ResultEntries(test, route, inputs, findings);
  report.sentence = Words(test, inputs, findings).Of(SentenceOf(test, route.question));
  return report;
}

}  // namespace planner
