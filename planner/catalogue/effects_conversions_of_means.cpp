#include "catalogue/effects_parts.h"

namespace planner {
namespace {

using Gives = std::vector<std::string>;

/// With the sizes unknown some of these cannot be computed, and are left out.
const Gives fromD{
    "d", "g", "r", "f", "f2", "eta-squared", "superiority", "u3", "approximate-odds-ratio", "noncentrality"};
const Gives fromDz{"dz", "gz", "noncentrality"};
const std::vector<EffectUse> usesOfD{{"two-means", "effect-d", {"d"}}};
const std::vector<EffectUse> usesOfMean{{"mean", "effect-d", {"dz"}}};
const std::vector<EffectUse> usesOfPairs{{"paired-means", "effect-d", {"dz"}}};
const std::vector<EffectUse> usesOfDz{{"mean", "effect-d", {"dz"}}, {"paired-means", "effect-d", {"dz"}}};
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

}  // namespace planner
