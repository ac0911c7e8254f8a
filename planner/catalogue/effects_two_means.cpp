#include <cmath>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "effects/correlation.h"
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

double Corrected(double d, const Inputs& in) {
  const std::optional<TwoSizes> sizes = SizesOf(in);
  return sizes ? d * core::HedgesFactor(sizes->Df()) : NAN;
}

double Noncentrality(double d, const Inputs& in) {
  const std::optional<TwoSizes> sizes = SizesOf(in);
  return sizes ? d * sizes->TPerD() : NAN;
}

double Correlation(double d, const Inputs& in) { return core::CorrelationOfCohensD(d, SizesOf(in)->ShareOfFirst()); }

double CohensF(double d, const Inputs& in) {
  const double share = SizesOf(in)->ShareOfFirst();
  return std::fabs(d) * std::sqrt(share * (1 - share));
}

const std::string cohen = "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., ";
const std::string borenstein = "Borenstein et al. (2009), Introduction to Meta-Analysis, ";

void AddCohensD(std::vector<EffectFormula>& formulas) {
  const std::string pooled = borenstein + "chapter 4" + intervalOfD;
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
                      .source = cohen + "section 2.5" + intervalOfD,
                      .note = "The degrees of freedom are taken as those of two equal groups."});
  formulas.push_back({.effect = "d",
                      .needs = {"effect-d"},
                      .compute = OfD,
                      .formula = "d as given",
                      .source = cohen + "section 2.2" + intervalOfD});
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

void AddWhatFollowsFromD(std::vector<EffectFormula>& formulas) {
  formulas.push_back({.effect = "g",
                      .from = "d",
                      .map = Corrected,
                      .formula = "g = J d, J = Gamma(df / 2) / (sqrt(df / 2) Gamma((df - 1) / 2)), df = n1 + n2 - 2",
                      .source = "Hedges (1981), Journal of Educational Statistics 6, 107-128",
                      .note = "Hedges' g is d corrected for its bias in small samples."});
  formulas.push_back({.effect = "r",
                      .from = "d",
                      .needs = {"n"},
                      .map = Correlation,
                      .formula = "r = d / sqrt(d^2 + (n1 + n2)^2 / (n1 n2))",
                      .source = borenstein + "chapter 7"});
  formulas.push_back({.effect = "r",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return core::CorrelationOfCohensD(d); },
                      .formula = "r = d / sqrt(d^2 + 4)",
                      .source = cohen + "section 2.2",
                      .note = "The correlation and f are those of two equal groups."});
  formulas.push_back({.effect = "f",
                      .from = "d",
                      .needs = {"n"},
                      .map = CohensF,
                      .course = Course::OfMagnitude,
                      .formula = "f = |d| sqrt(n1 n2) / (n1 + n2)",
                      .source = cohen + "section 8.2"});
  formulas.push_back({.effect = "f",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return std::fabs(d) / 2; },
                      .course = Course::OfMagnitude,
                      .formula = "f = |d| / 2",
                      .source = cohen + "section 8.2"});
  formulas.push_back({.effect = "superiority",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return core::ProbabilityOfSuperiority(d); },
                      .formula = "Phi(d / sqrt(2))",
                      .source = "McGraw and Wong (1992), Psychological Bulletin 111, 361-365"});
  formulas.push_back({.effect = "u3",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return core::CohensU3(d); },
                      .formula = "U3 = Phi(d)",
                      .source = cohen + "section 2.2"});
  formulas.push_back({.effect = "approximate-odds-ratio",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return core::OddsRatioOfCohensD(d); },
                      .formula = "odds ratio = exp(d pi / sqrt(3))",
                      .source = "Chinn (2000), Statistics in Medicine 19, 3127-3131; " + borenstein + "chapter 7",
                      .note = "The odds ratio is approximate: that of a cut anywhere through logistic distributions."});
  formulas.push_back({.effect = "noncentrality",
                      .from = "d",
                      .map = Noncentrality,
                      .formula = "noncentrality of t = d / sqrt(1 / n1 + 1 / n2)",
                      .source = "Cumming and Finch (2001), Educational and Psychological Measurement 61, 532-574"});
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
  AddWhatFollowsFromD(effects.formulas);
}

}  // namespace planner
