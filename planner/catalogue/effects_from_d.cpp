#include <cmath>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "catalogue/effects_sources.h"
#include "effects/correlation.h"
#include "effects/mean_difference.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

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

}  // namespace

void AddEffectsFromD(Effects& effects) {
  std::vector<EffectFormula>& formulas = effects.formulas;
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
                      .source = Borenstein("7")});
  formulas.push_back({.effect = "r",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return core::CorrelationOfCohensD(d); },
                      .formula = "r = d / sqrt(d^2 + 4)",
                      .source = Cohen("2.2"),
                      .note = "The correlation and f are those of two equal groups."});
  formulas.push_back({.effect = "f",
                      .from = "d",
                      .needs = {"n"},
                      .map = CohensF,
                      .course = Course::OfMagnitude,
                      .formula = "f = |d| sqrt(n1 n2) / (n1 + n2)",
                      .source = Cohen("8.2")});
  formulas.push_back({.effect = "f",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return std::fabs(d) / 2; },
                      .course = Course::OfMagnitude,
                      .formula = "f = |d| / 2",
                      .source = Cohen("8.2")});
  formulas.push_back({.effect = "superiority",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return core::ProbabilityOfSuperiority(d); },
                      .formula = "Phi(d / sqrt(2))",
                      .source = "McGraw and Wong (1992), Psychological Bulletin 111, 361-365"});
  formulas.push_back({.effect = "u3",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return core::CohensU3(d); },
                      .formula = "U3 = Phi(d)",
                      .source = Cohen("2.2")});
  formulas.push_back({.effect = "approximate-odds-ratio",
                      .from = "d",
                      .map = [](double d, const Inputs&) { return core::OddsRatioOfCohensD(d); },
                      .formula = "odds ratio = exp(d pi / sqrt(3))",
                      .source = "Chinn (2000), Statistics in Medicine 19, 3127-3131; " + Borenstein("7"),
                      .note = "The odds ratio is approximate: that of a cut anywhere through logistic distributions."});
  formulas.push_back({.effect = "noncentrality",
                      .from = "d",
                      .map = Noncentrality,
                      .formula = "noncentrality of t = d / sqrt(1 / n1 + 1 / n2)",
                      .source = "Cumming and Finch (2001), Educational and Psychological Measurement 61, 532-574"});
}

}  // namespace planner
