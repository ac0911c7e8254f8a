#include "catalogue/effects_parts.h"

namespace planner {

namespace {

using Gives = std::vector<std::string>;

}  // namespace

void AddConversionsOfCorrelations(Effects& effects) {
  const Gives fromR{"r", "fisher-z", "r-squared", "f2", "d"};
  auto& all = effects.conversions;
  all.push_back({"Correlations",
                 {"r"},
                 {"n"},
                 "a correlation of {r}{in-sample}",
                 "r",
                 fromR,
                 {{"pearson", "r", {"r"}}},
                 "r-squared"});
  all.push_back({"", {"correlations"}, {"n"}, "correlations of {correlations}{in-groups}", "q", {"q"}});
  all.push_back(
      {"", {"effect-q", "r"}, {}, "a Cohen's q of {effect-q} and a correlation of {r}", "second-r", {"q", "second-r"}});
}

void AddConversionsOfProportions(Effects& effects) {
  const Gives fromProportions{"proportion1", "proportion2",    "risk-difference", "risk-ratio",   "odds-ratio",
                              "h",           "log-odds-ratio", "approximate-d",   "approximate-r"};
  const std::vector<EffectUse> uses{{"two-proportions", "proportions", {"proportion1", "proportion2"}}};
  const auto add = [&](std::string title, Names needs, Names accepts, std::string given, const std::string& tells) {
    effects.conversions.push_back(
        {std::move(title), std::move(needs), std::move(accepts), std::move(given), tells, fromProportions, uses});
  };
  add("Proportions and counts of two groups", {"proportions"}, {"n"}, "proportions of {proportions}{in-groups}", "h");
  add("", {"events", "n"}, {}, "events of {events}{in-groups}", "odds-ratio");
  add("", {"counts"}, {}, "counts of {counts}", "odds-ratio");
  add("", {"proportion1", "odds-ratio"}, {"n"},
      "an odds ratio of {odds-ratio} and a first proportion of {proportion1}{in-groups}", "proportion2");
  add("", {"proportion1", "risk-ratio"}, {"n"},
      "a risk ratio of {risk-ratio} and a first proportion of {proportion1}{in-groups}", "proportion2");
  add("", {"proportion1", "risk-difference"}, {"n"},
      "a risk difference of {risk-difference} and a first proportion of {proportion1}{in-groups}", "proportion2");
  add("", {"proportion1", "effect-h"}, {"n"},
      "a Cohen's h of {effect-h} and a first proportion of {proportion1}{in-groups}", "proportion2");
  effects.conversions.push_back({"",
                                 {"odds-ratio"},
                                 {},
                                 "an odds ratio of {odds-ratio}",
                                 "approximate-d",
                                 {"odds-ratio", "log-odds-ratio", "approximate-d", "approximate-r"},
                                 {{"two-proportions", "odds-ratio", {"odds-ratio"}}}});
}

}  // namespace planner
