#include <utility>

#include "anova/overall.h"
#include "catalogue/anova.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

double PowerOfMeans(const Inputs& in) {
  const auto spread = anova::GroupSpread::Of(in.List("means"), in.List("n"));
  return OrNaN(anova::PowerOfMeans(spread, in.Number("sd"), in.Groups(), TotalSize(in), in.Alpha()));
}

anova::EffectSize EffectOf(const Inputs& in) {
  if (in.Has("eta-squared")) return {.value = in.Number("eta-squared"), .isEtaSquared = true};
  return {.value = in.Number("effect-f"), .isEtaSquared = false};
}

double PowerOfEffect(const Inputs& in) {
  return OrNaN(anova::PowerOfEffect(EffectOf(in), in.Groups(), TotalSize(in), in.Alpha()));
}

/// Powers over many effects at the same sizes.
class PowersOverEffects {
public:
  double operator()(const Inputs& in) {
    const double total = TotalSize(in);
    anova::OverallTest& test = kept_.For({double(in.Groups()), total, in.Alpha()}, in.Groups(), total, in.Alpha());
    if (!in.Has("means")) return OrNaN(test.PowerOfMany(EffectOf(in).Noncentrality(total)));
    const auto spread = anova::GroupSpread::Of(in.List("means"), in.List("n"));
    return OrNaN(test.PowerOfMany(spread.Noncentrality(in.Number("sd"), total)));
  }

private:
  Kept<anova::OverallTest, 3> kept_;
};

Numbers SizesOfMeans(const Inputs& in) {
  const Numbers weights = in.Weights();
  return SpreadByShares(
      anova::TotalForPowerOfMeans(in.List("means"), in.Number("sd"), weights, in.Number("power"), in.Alpha()), weights);
}

Numbers SizesOfEffect(const Inputs& in) {
  return SpreadByShares(anova::TotalForPowerOfEffect(EffectOf(in), in.Groups(), in.Number("power"), in.Alpha()),
                        in.Weights());
}

Route PowerRouteOfEffect(Name effect) {
  return {.question = Question::Power,
          .needs = {effect, "n"},
          .accepts = {"groups"},
          .exportName = "PowerOverallTestwES",
          .value = PowerOfEffect,
          .surfaceValue = PowersOverEffects()};
}

Route SizeRouteOfEffect(Name effect) {
  return {.question = Question::SampleSize,
          .needs = {effect},
          .accepts = {"ratios", "groups"},
          .exportName = "PowerReverseOverallTestwES",
          .sizes = SizesOfEffect};
}

}  // namespace

std::vector<Route> RoutesOfAnova() {
  std::vector<Route> routes{
      {.question = Question::Power,
       .needs = {"means", "sd", "n"},
       .accepts = {"groups"},
       .exportName = "PowerOverallTest",
       .value = PowerOfMeans,
       .surfaceValue = PowersOverEffects()},
      PowerRouteOfEffect("effect-f"),
      PowerRouteOfEffect("eta-squared"),
      {.question = Question::SampleSize,
       .needs = {"means", "sd"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReverseOverallTest",
       .sizes = SizesOfMeans},
      SizeRouteOfEffect("effect-f"),
      SizeRouteOfEffect("eta-squared"),
  };
  for (Route& route : IntervalRoutesOfAnova()) routes.push_back(std::move(route));
  return routes;
}

}  // namespace planner
