#include <cmath>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "catalogue/effects_sources.h"
#include "effects/correlation.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

std::optional<EffectValue> Given(const Inputs& in) {
  const double r = in.Number("r");
  if (!in.Has("n")) return EffectValue{r};
  return ValueOr(core::FisherInterval(r, in.List("n").front(), in.Alpha()), r);
}

std::optional<EffectValue> OfTwo(const Inputs& in) {
  const Numbers& r = in.List("correlations");
  const double q = core::CohensQ(r[0], r[1]);
  if (!in.Has("n")) return EffectValue{q};
  const Numbers& n = in.List("n");
  return ValueOr(core::CohensQ({r[0], n.front()}, {r[1], n.back()}, in.Alpha()), q);
}

std::optional<EffectValue> Second(const Inputs& in) {
  return EffectValue{std::tanh(std::atanh(in.Number("r")) - in.Number("effect-q"))};
}

std::optional<EffectValue> GivenQ(const Inputs& in) { return EffectValue{in.Number("effect-q")}; }

}  // namespace

void AddEffectsOfCorrelations(Effects& effects) {
  const std::string fisher = "; its interval by Fisher's z (Fisher 1921, Metron 1, 3-32)";
  effects.sizes.insert(effects.sizes.end(), {{"r", "correlation r", "the correlation"},
                                             {"fisher-z", "Fisher's z"},
                                             {"q", "Cohen's q"},
                                             {"second-r", "second correlation", "the second correlation"}});
  effects.formulas.insert(
      effects.formulas.end(),
      {{.effect = "r", .needs = {"r"}, .compute = Given, .formula = "r as given", .source = Cohen("3.2") + fisher},
       {.effect = "fisher-z",
        .from = "r",
        .map = [](double r, const Inputs&) { return std::atanh(r); },
        .formula = "z = atanh(r)",
        .source = "Fisher (1921), Metron 1, 3-32"},
       {.effect = "d",
        .from = "r",
        .map = [](double r, const Inputs&) { return core::CohensDOfCorrelation(r); },
        .formula = "d = 2 r / sqrt(1 - r^2)",
        .source = "Borenstein et al. (2009), Introduction to Meta-Analysis, chapter 7",
        .note = "Cohen's d takes r as the correlation with two equal groups."},
       {.effect = "q",
        .needs = {"correlations"},
        .compute = OfTwo,
        .formula = "q = atanh(r1) - atanh(r2)",
        .source = Cohen("4.2") + fisher},
       {.effect = "q", .needs = {"effect-q"}, .compute = GivenQ, .formula = "q as given", .source = Cohen("4.2")},
       {.effect = "second-r",
        .needs = {"effect-q", "r"},
        .compute = Second,
        .formula = "r2 = tanh(atanh(r1) - q)",
        .source = Cohen("4.2")}});
}

}  // namespace planner
