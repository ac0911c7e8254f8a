#include <cmath>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "catalogue/effects_sources.h"
#include "effects/mean_difference.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

constexpr const char* intervalOfD = "; its interval by the noncentrality of t (Cumming and Finch 2001)";

/// With the interval that t has at this d.
EffectValue AtSizes(double d, const Inputs& in) {
  const std::optional<TwoSizes> sizes = SizesOf(in);
  if (!sizes) return {d};
  return ValueOr(core::CohensDOfT(d * sizes->TPerD(), sizes->first, sizes->second, in.Alpha()), d);
}

std::optional<EffectValue> OfMeans(const Inputs& in) {
  const auto [sd1, sd2] = SdsOf(in);
  // Without sizes both standard deviations count alike.
  const TwoSizes sizes = SizesOf(in).value_or(TwoSizes{2, 2});
  return AtSizes(DifferenceOf(in) / core::PooledSd({0, sd1, sizes.first}, {0, sd2, sizes.second}), in);
}

std::optional<EffectValue> OfT(const Inputs& in) { return AtSizes(in.Number("t") / SizesOf(in)->TPerD(), in); }

std::optional<EffectValue> OfD(const Inputs& in) { return AtSizes(in.Number("effect-d"), in); }

std::optional<EffectValue> OfG(const Inputs& in) {
  return AtSizes(in.Number("hedges-g") / core::HedgesFactor(SizesOf(in)->Df()), in);
}

std::optional<EffectValue> OfSuperiority(const Inputs& in) {
  return AtSizes(core::CohensDOfSuperiority(in.Number("superiority")), in);
}

void AddCohensD(std::vector<EffectFormula>& formulas) {
  const std::string pooled = Borenstein("4") + intervalOfD;
  formulas.push_back({.effect = "d",
                      .needs = {"means", "sd"},
                      .compute = OfMeans,
                      .formula = "d = (mean1 - mean2) / sd, sd^2 = ((n1 - 1) sd1^2 + (n2 - 1) sd2^2) / (n1 + n2 - 2); "
                                 "without sizes sd^2 = (sd1^2 + sd2^2) / 2",
                      .source = pooled});
  formulas.push_back({.effect = "d",
                      .needs = {"mean-difference", "sd"},
                      .compute = OfMeans,
                      .formula = "d = difference / sd, sd^2 = ((n1 - 1) sd1^2 + (n2 - 1) sd2^2) / (n1 + n2 - 2); "
                                 "without sizes sd^2 = (sd1^2 + sd2^2) / 2",
                      .source = pooled});
  formulas.push_back(
      {.effect = "d", .needs = {"t", "n"}, .compute = OfT, .formula = "d = t sqrt(1 / n1 + 1 / n2)", .source = pooled});
  formulas.push_back({.effect = "d",
                      .needs = {"t", "df"},
                      .compute = OfT,
                      .formula = "d = 2 t / sqrt(df + 2)",
                      .source = Cohen("2.5") + intervalOfD,
                      .note = "The degrees of freedom are taken as those of two equal groups."});
  formulas.push_back({.effect = "d",
                      .needs = {"effect-d"},
                      .compute = OfD,
                      .formula = "d as given",
                      .source = Cohen("2.2") + intervalOfD});
  formulas.push_back({.effect = "d",
                      .needs = {"hedges-g"},
                      .compute = OfG,
                      .formula = "d = g / J, J = Gamma(df / 2) / (sqrt(df / 2) Gamma((df - 1) / 2)), df = n1 + n2 - 2",
                      .source = "Hedges (1981), Journal of Educational Statistics 6, 107-128"});
  formulas.push_back({.effect = "d",
                      .needs = {"superiority"},
                      .compute = OfSuperiority,
                      .formula = "d = sqrt(2) z, z the normal quantile of the probability",
                      .source = "McGraw and Wong (1992), Psychological Bulletin 111, 361-365",
                      .note = "The probability of superiority is that of normal groups with one standard deviation."});
}

}  // namespace

void AddEffectsOfTwoMeans(Effects& effects) {
  effects.sizes.insert(effects.sizes.end(),
                       {{"d", "Cohen's d"},
                        {"g", "Hedges' g"},
                        {"superiority", "probability of superiority", "the probability of superiority"},
                        {"u3", "Cohen's U3"},
                        {"approximate-odds-ratio", "odds ratio, approximate"},
                        {"noncentrality", "noncentrality"}});
  AddCohensD(effects.formulas);
}

}  // namespace planner
