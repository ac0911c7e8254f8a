#include <cmath>

#include "anova/overall.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

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
/// With the groups weighted by their shares (Cohen 1988, formula 8.2.1 and section 8.2.3).
double EffectFOfMeans(const Inputs& in) {
  return std::sqrt(anova::GroupSpread::Of(in.List("means"), in.Weights()).Noncentrality(in.Number("sd"), 1));
}

double EtaSquaredOfMeans(const Inputs& in) {
  const double f = EffectFOfMeans(in);
  return f * f / (1 + f * f);
}

Numbers SizesOfMeans(const Inputs& in) {
  const Numbers weights = in.Weights();
  return SpreadByShares(
      anova::TotalForPowerOfMeans(in.List("means"), in.Number("sd"), weights, in.Number("power"), in.Alpha()), weights);
}

Numbers SizesOfEffect(const Inputs& in) {
  return SpreadByShares(anova::TotalForPowerOfEffect(EffectOf(in), in.Groups(), in.Number("power"), in.Alpha()),
                        in.Weights());
}

double HalfWidth(const Inputs& in) {
  return anova::HalfWidthOfGrandMean(in.Groups(), TotalSize(in), in.Number("sd"), in.Alpha());
}

Numbers SizesForHalfWidth(const Inputs& in) {
  return SpreadByRatios(
      anova::TotalForHalfWidthOfGrandMean(in.Number("half-width"), in.Groups(), in.Number("sd"), in.Alpha()),
      in.Weights());
}

bool MeansDiffer(const Inputs& in) {
  for (double mean : in.List("means")) {
    if (mean != in.List("means").front()) return true;
  }
  return false;
}

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"means", "sd", "n"},
       .accepts = {"groups"},
       .exportName = "PowerOverallTest",
       .value = PowerOfMeans,
       .surfaceValue = PowersOverEffects()},
      {.question = Question::Power,
       .needs = {"effect-f", "n"},
       .accepts = {"groups"},
       .exportName = "PowerOverallTestwES",
       .value = PowerOfEffect,
       .surfaceValue = PowersOverEffects()},
      {.question = Question::Power,
       .needs = {"eta-squared", "n"},
       .accepts = {"groups"},
       .exportName = "PowerOverallTestwES",
       .value = PowerOfEffect,
       .surfaceValue = PowersOverEffects()},
      {.question = Question::SampleSize,
       .needs = {"means", "sd"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReverseOverallTest",
       .sizes = SizesOfMeans},
      {.question = Question::SampleSize,
       .needs = {"effect-f"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReverseOverallTestwES",
       .sizes = SizesOfEffect},
      {.question = Question::SampleSize,
       .needs = {"eta-squared"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReverseOverallTestwES",
       .sizes = SizesOfEffect},
      {.question = Question::HalfWidth,
       .needs = {"sd", "n"},
       .accepts = {"groups"},
       .exportName = "HalfCIOverallTest",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"sd"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReversebyHalfCIOverallTest",
       .sizes = SizesForHalfWidth},
  };
}

std::vector<Condition> SizeExists() {
  constexpr const char* noEffect = "The effect size is zero: without an effect, no sample size reaches the power.";
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = MeansDiffer,
       .sentence = "The means are all equal: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-f"},
       .holds = [](const Inputs& in) { return in.Number("effect-f") > 0; },
       .sentence = noEffect},
      {.code = "no-effect",
       .about = {"eta-squared"},
       .holds = [](const Inputs& in) { return in.Number("eta-squared") > 0; },
       .sentence = noEffect},
  };
}

}  // namespace

Test AnovaTest() {
  Test test{.name = "anova",
            .title = "One-way analysis of variance: overall F test",
            .about = "Tests whether the means of several independent groups are all equal.",
            .groups = groupsFromInputs};
  test.parameters = {
      GroupMeans(), WithinSd(), EffectF(), EtaSquared(), GroupSizes(), AllocationRatios(), GroupCount(),
  };
  test.routes = Routes();
  test.unknowns = {UnknownEffect("effect-f"), UnknownEffect("eta-squared"), UnknownSd("sd"), UnknownSdOfInterval("sd")};
  test.conditions = {ErrorDegrees()};
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-f", .label = "effect size f", .needs = {"means", "sd"}, .call = EffectFOfMeans},
      {.name = "eta-squared", .label = "eta squared", .needs = {"means", "sd"}, .call = EtaSquaredOfMeans},
  };
  AddWordsOfAnova(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
