#include "catalogue/margins.h"

namespace planner {

Parameter Margin(const std::string& effect) {
  return Number("margin", "margin", "margin that the " + effect + " is to be beyond");
}

Parameter NonInferiority() {
  return Flag("non-inferiority", "non-inferiority",
              "show that one is not worse than the other by {margin}: below no effect, larger values are better");
}

Parameter SuperiorityByMargin() {
  return Flag("superiority", "superiority by a margin",
              "show that one is better than the other by {margin}: above no effect, larger values are better");
}

Parameter EquivalenceLimits(const std::string& effect) {
  return List("equivalence", "limits of equivalence", "lower and upper limit that the " + effect + " is to be between")
      .Length(2);
}

std::vector<Parameter> MarginParameters(const std::string& effect) {
  return {Margin(effect), NonInferiority(), SuperiorityByMargin(), EquivalenceLimits(effect)};
}

bool IsAboveMargin(const Inputs& in, double noEffect) {
  const double margin = in.Number("margin");
  return in.Flag("superiority") ? margin >= noEffect : margin <= noEffect;
}

bool IsWithinMargins(const Inputs& in, double effect, double noEffect) {
  if (IsEquivalence(in)) return in.List("equivalence")[0] < effect && effect < in.List("equivalence")[1];
  return IsAboveMargin(in, noEffect) ? effect > in.Number("margin") : effect < in.Number("margin");
}

const std::vector<Names>& WaysToNameMargins() {
  static const std::vector<Names> ways{{"margin", "non-inferiority"}, {"margin", "superiority"}, {"equivalence"}};
  return ways;
}

std::vector<Route> WithMargins(const std::vector<Route>& routes) {
  std::vector<Route> all;
  for (const Route& route : routes) {
    for (const Names& way : WaysToNameMargins()) {
      all.push_back(route);
      all.back().needs.insert(all.back().needs.end(), way.begin(), way.end());
    }
  }
  return all;
}

std::string HypothesisOfMargins(const Inputs& in, const std::string& effect, double noEffect) {
  if (!HasMargins(in)) return "";
  if (IsEquivalence(in)) return "the " + effect + " is between {equivalence}";
  return "the " + effect + (IsAboveMargin(in, noEffect) ? " is above {margin}" : " is below {margin}");
}

Assumption HypothesisAssumption(std::string (*call)(const Inputs&)) {
  return {.name = "hypothesis", .label = "alternative hypothesis", .needs = {}, .call = call};
}

void AddPhrasesOfMargins(Test& test, const std::string& plain, const std::string& two) {
  const std::string shown = "show that {hypothesis}, given {effect}";
  test.phrases.push_back(
      {"procedure",
       {{"equivalence", "test of equivalence with two one-sided " + two},
        {"margin", "test of {non-inferiority?non-inferiority:superiority by a margin} with a one-sided " + plain},
        {"alpha", "{one-sided?one-sided:two-sided} " + plain}}});
  test.phrases.push_back({"aim", {{"equivalence", shown}, {"margin", shown}, {"alpha", "detect {effect}"}}});
  test.phrases.push_back({"comma", {{"equivalence", ","}, {"margin", ","}, {"alpha", ""}}});
}

}  // namespace planner
