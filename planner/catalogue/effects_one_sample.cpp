#include <cmath>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "effects/mean_difference.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

/// With the interval that t has at this dz.
EffectValue AtSize(double d, const Inputs& in) {
  const std::optional<double> size = SizeOf(in);
  if (!size) return {d};
  return ValueOr(core::CohensDOfOneSampleT(d * std::sqrt(*size), *size, in.Alpha()), d);
}

/// sd^2 = sd1^2 + sd2^2 - 2 r sd1 sd2, written so that it does not cancel.
double SdOfDifferences(const Inputs& in) {
  const auto [sd1, sd2] = SdsOf(in);
  return std::hypot(sd1 - sd2, std::sqrt(sd1) * std::sqrt(sd2) * std::sqrt(2 * (1 - in.Number("correlation"))));
}

std::optional<EffectValue> OfPairs(const Inputs& in) { return AtSize(DifferenceOf(in) / SdOfDifferences(in), in); }

std::optional<EffectValue> OfDifferences(const Inputs& in) {
  return AtSize(DifferenceOf(in) / in.Number("sd-difference"), in);
}

std::optional<EffectValue> OfMean(const Inputs& in) {
  return AtSize((in.Number("mean") - in.Number("test-value")) / in.List("sd").front(), in);
}

std::optional<EffectValue> OfOneSampleT(const Inputs& in) {
  return AtSize(in.Number("t") / std::sqrt(*SizeOf(in)), in);
}

std::optional<EffectValue> OfOneSampleD(const Inputs& in) { return AtSize(in.Number("effect-d"), in); }

double CorrectedOneSample(double d, const Inputs& in) {
  const std::optional<double> size = SizeOf(in);
  return size ? d * core::HedgesFactor(*size - 1) : NAN;
}

double OneSampleNoncentrality(double d, const Inputs& in) {
  const std::optional<double> size = SizeOf(in);
  return size ? d * std::sqrt(*size) : NAN;
}

}  // namespace

void AddEffectsOfOneSample(Effects& effects) {
  const std::string source =
      "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., section 2.3; its interval by the "
      "noncentrality of t (Cumming and Finch 2001)";
  effects.sizes.insert(effects.sizes.end(), {{"dz", "Cohen's dz"}, {"gz", "Hedges' gz"}});
  effects.formulas.insert(
      effects.formulas.end(),
      {{.effect = "dz",
        .needs = {"means", "sd", "correlation"},
        .compute = OfPairs,
        .formula = "dz = (mean1 - mean2) / sd, sd^2 = sd1^2 + sd2^2 - 2 r sd1 sd2",
        .source = source},
       {.effect = "dz",
        .needs = {"mean-difference", "sd-difference"},
        .compute = OfDifferences,
        .formula = "dz = mean of the differences / their standard deviation",
        .source = source},
       {.effect = "dz",
        .needs = {"mean", "sd"},
        .compute = OfMean,
        .formula = "dz = (mean - test value) / sd",
        .source = source},
       {.effect = "dz", .needs = {"t"}, .compute = OfOneSampleT, .formula = "dz = t / sqrt(n)", .source = source},
       {.effect = "dz", .needs = {"effect-d"}, .compute = OfOneSampleD, .formula = "dz as given", .source = source},
       {.effect = "gz",
        .from = "dz",
        .map = CorrectedOneSample,
        .formula = "gz = J dz, J = Gamma(df / 2) / (sqrt(df / 2) Gamma((df - 1) / 2)), df = n - 1",
        .source = "Hedges (1981), Journal of Educational Statistics 6, 107-128",
        .note = "Hedges' gz is dz corrected for its bias in small samples."},
       {.effect = "noncentrality",
        .from = "dz",
        .map = OneSampleNoncentrality,
        .formula = "noncentrality of t = dz sqrt(n)",
        .source = "Cumming and Finch (2001), Educational and Psychological Measurement 61, 532-574"}});
}

}  // namespace planner
