#include "catalogue/effects_parts.h"

namespace planner {
namespace {

using Gives = std::vector<std::string>;

/// With the sizes unknown some of these cannot be computed, and are left out.
const Gives fromD{
    "d", "g", "r", "f", "f2", "eta-squared", "superiority", "u3", "approximate-odds-ratio", "noncentrality"};
const Gives fromDz{"dz", "gz", "noncentrality"};
const Gives fromF{"f2", "f", "eta-squared", "omega-squared", "noncentrality"};
const Gives fromRSquared{"f2", "r-squared", "adjusted-r-squared", "noncentrality"};

const std::vector<EffectUse> usesOfD{{"two-means", "effect-d", {"d"}}};
const std::vector<EffectUse> usesOfMean{{"mean", "effect-d", {"dz"}}};
const std::vector<EffectUse> usesOfPairs{{"paired-means", "effect-d", {"dz"}}};
const std::vector<EffectUse> usesOfDz{{"mean", "effect-d", {"dz"}}, {"paired-means", "effect-d", {"dz"}}};
const std::vector<EffectUse> usesOfF{{"anova", "effect-f", {"f"}}};
const std::vector<EffectUse> usesOfF2{{"regression", "effect-f2", {"f2"}}};

EffectConversion OfTwoMeans(std::string title, Names needs, Names accepts, std::string given) {
  const std::string otherwise = Contains(needs, "effect-d") ? "superiority" : "";
  return {.title = std::move(title),
          .needs = std::move(needs),
          .accepts = std::move(accepts),
          .given = std::move(given),
          .tells = "d",
          .gives = fromD,
          .uses = usesOfD,
          .tellsWithoutInterval = otherwise};
}

}  // namespace

void AddConversionsOfTwoMeans(Effects& effects) {
  auto& all = effects.conversions;
  all.push_back(OfTwoMeans("Means and standard deviations of two groups", {"means", "sd"}, {"n"},
                           "means of {means} with {sds}{in-groups}"));
  all.push_back(OfTwoMeans("", {"mean-difference", "sd"}, {"n"},
                           "a difference of the means of {mean-difference} with {sds}{in-groups}"));
  all.push_back(OfTwoMeans("t test of two groups", {"t", "n"}, {}, "a t of {t}{in-groups}"));
  all.push_back(OfTwoMeans("", {"t", "df"}, {}, "a t of {t} on {df} degrees of freedom"));
  all.push_back(OfTwoMeans("Effect sizes of two groups", {"effect-d"}, {"n"}, "a Cohen's d of {effect-d}{in-groups}"));
  all.push_back(OfTwoMeans("", {"hedges-g", "n"}, {}, "a Hedges' g of {hedges-g}{in-groups}"));
  all.push_back(OfTwoMeans("", {"superiority"}, {"n"}, "a probability of superiority of {superiority}{in-groups}"));
}

void AddConversionsOfOneSample(Effects& effects) {
  const auto add = [&](std::string title, Names needs, Names accepts, std::string given, std::vector<EffectUse> uses) {
    effects.conversions.push_back(
        {std::move(title), std::move(needs), std::move(accepts), std::move(given), "dz", fromDz, std::move(uses)});
  };
  add("One sample, or pairs", {"mean", "sd"}, {"test-value", "n"},
      "a mean of {mean} against {test-value} with a standard deviation of {sd}{in-sample}", usesOfMean);
  add("", {"means", "sd", "correlation"}, {"n"},
      "means of {means} with {sds} and a correlation of {correlation}{in-pairs}", usesOfPairs);
  add("", {"mean-difference", "sd-difference"}, {"n"},
      "differences with a mean of {mean-difference} and a standard deviation of {sd-difference}{in-pairs}",
      usesOfPairs);
  add("", {"t", "n", "one-sample"}, {}, "a t of one sample or of pairs of {t}{in-sample}", usesOfDz);
  add("", {"t", "df", "one-sample"}, {}, "a t of one sample or of pairs of {t} on {df} degrees of freedom", usesOfDz);
  add("", {"effect-d", "n", "one-sample"}, {}, "a Cohen's dz of {effect-d}{in-sample}", usesOfDz);
}

void AddConversionsOfVariance(Effects& effects) {
  const auto add = [&](std::string title, Names needs, Names accepts, std::string given, const std::string& tells,
                       Gives gives, std::vector<EffectUse> uses) {
    effects.conversions.push_back({std::move(title), std::move(needs), std::move(accepts), std::move(given), tells,
                                   std::move(gives), std::move(uses)});
  };
  add("Analysis of variance", {"f-statistic", "df"}, {"n"},
      "an F of {f-statistic} on {df} degrees of freedom{in-sample}", "f", fromF, usesOfF);
  add("", {"eta-squared"}, {}, "an eta squared of {eta-squared}", "f", fromF, usesOfF);
  add("", {"eta-squared", "df"}, {"n"}, "an eta squared of {eta-squared} on {df} degrees of freedom{in-sample}", "f",
      fromF, usesOfF);
  add("", {"effect-f"}, {}, "a Cohen's f of {effect-f}", "eta-squared", fromF, usesOfF);
  add("", {"effect-f", "df"}, {"n"}, "a Cohen's f of {effect-f} on {df} degrees of freedom{in-sample}", "eta-squared",
      fromF, usesOfF);
  add("Regression", {"r-squared"}, {}, "an R squared of {r-squared}", "f2", fromRSquared, usesOfF2);
  add("", {"r-squared", "predictors", "n"}, {}, "an R squared of {r-squared}{with-predictors}{in-sample}", "f2",
      fromRSquared, usesOfF2);
  add("", {"effect-f2"}, {}, "an f squared of {effect-f2}", "r-squared", fromRSquared, usesOfF2);
  add("", {"effect-f2", "predictors", "n"}, {}, "an f squared of {effect-f2}{with-predictors}{in-sample}", "r-squared",
      fromRSquared, usesOfF2);
}

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
