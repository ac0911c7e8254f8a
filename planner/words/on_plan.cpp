#include "words/on_plan.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "format/format.h"
#include "solve/plan.h"
#include "solve/results.h"
#include "words/numbers.h"
#include "words/report.h"

namespace planner {
namespace {

std::string Percentage(double share) { return Formatted("{:.6g}%", 100 * share); }

bool IsOne(const Numbers& counts) { return counts.size() == 1; }

bool AreEqual(const Numbers& counts) {
  return std::adjacent_find(counts.begin(), counts.end(), std::not_equal_to<>()) == counts.end();
}

/// "76 in each group (152 in total)"
std::string PerGroup(const Numbers& counts, const std::string& counted = "") {
  const std::string shown = counted.empty() ? "" : " " + counted;
  if (IsOne(counts)) return ShownResult(Reading::Size, counts.front()) + shown;
  const std::string total = ShownResult(Reading::Size, TotalOf(counts));
  if (AreEqual(counts)) {
    return Formatted("{}{} in each group ({} in total)", ShownResult(Reading::Size, counts.front()), shown, total);
  }
  return Formatted("{}{} in the groups ({} in total)", ListedInSentence(counts), shown, total);
}

std::string OnComparisons(const Inputs& inputs) {
  return Formatted(" The significance level of {:.4g} is divided among {} comparisons (Bonferroni).",
                   inputs.Number("alpha"), Shortest(inputs.Number("comparisons")));
}

std::string OnClusters(const Answer& answer) {
  const Inputs& inputs = answer.inputs;
  std::string text = Formatted(" These are members of clusters of {}{} with an intracluster correlation of {}",
                               Shortest(inputs.Number("cluster-size")), inputs.Has("cluster-cv") ? " on average" : "",
                               Shortest(inputs.Number("icc")));
  if (inputs.Has("cluster-cv")) {
    text += Formatted(" and sizes that vary by {}", Shortest(inputs.Number("cluster-cv")));
  }
  text += Formatted(": the design effect is {:.4g}", DesignEffect(inputs));
  if (inputs.Has("dropout")) return text + ".";
  return text +
         Formatted(", and there are {}.", PerGroup(PlannedSizes(Planned::Clusters, inputs, answer.sizes), "clusters"));
}

std::string OnDropout(const Answer& answer) {
  const Inputs& inputs = answer.inputs;
  std::string text = Formatted(" Enrol {}", PerGroup(PlannedSizes(Planned::Enrol, inputs, answer.sizes)));
  if (inputs.Has("cluster-size")) {
    text += Formatted(", {},", PerGroup(PlannedSizes(Planned::Clusters, inputs, answer.sizes), "clusters"));
  } else {
    text += ",";
  }
  return text + Formatted(" of whom {} may drop out.", Percentage(inputs.Number("dropout")));
}

std::string OnPopulation(const Inputs& inputs) {
  return Formatted(" The sample is drawn without replacement from a population of {}.",
                   Shortest(inputs.Number("population")));
}

std::string OnUncertainty(const Answer& answer) {
  const double limit = *PlannedFigure(Planned::PowerLimit, *answer.test, answer.inputs);
  const std::string shown = limit > 0.9999 ? "1" : ShownResult(Reading::Power, limit);
  return Formatted(
      " The expected power averages the power over a normal uncertainty about the effect with a standard deviation of "
      "{}, counts rejections in the direction of the effect, and stays below {} however large the study is.",
      Shortest(answer.inputs.Number("effect-sd")), shown);
}

}  // namespace

std::string OnPlan(const Answer& answer) {
  const Inputs& inputs = answer.inputs;
  std::string text;
  if (inputs.Has("comparisons")) text += OnComparisons(inputs);
  if (inputs.Has("population")) text += OnPopulation(inputs);
  if (inputs.Has("effect-sd")) text += OnUncertainty(answer);
  if (inputs.Has("cluster-size")) text += OnClusters(answer);
  if (inputs.Has("dropout")) text += OnDropout(answer);
  return text;
}

std::string OnAssurance(const Answer& answer) {
  if (std::isnan(answer.assurance)) return "";
  const std::string text =
      Formatted(" The half-width of the data is at most {} with a probability of {}",
                Shortest(answer.inputs.Number("half-width")), ShownResult(Reading::Power, answer.assurance));
  if (!answer.SizesFound()) return text + ".";
  return text + Formatted("; at least {} was asked for.", Shortest(answer.inputs.Number("assurance")));
}

std::string InExpectation(const Answer& answer, std::string sentence) {
  if (!answer.inputs.Has("effect-sd")) return sentence;
  const std::pair<std::string_view, std::string_view> wordings[] = {{"a power of {", "an expected power of {"},
                                                                    {"its power is", "its expected power is"}};
  for (const auto& [plain, expected] : wordings) {
    const std::size_t at = sentence.find(plain);
    if (at != std::string::npos) sentence.replace(at, plain.size(), expected);
  }
  return sentence;
}

}  // namespace planner
