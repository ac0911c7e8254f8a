#include <optional>

#include "catalogue/core.h"
#include "catalogue/regression.h"
#include "regression/test_of_predictors.h"

namespace planner {
namespace {

namespace regression = kelpower::regression;

regression::Model ModelOf(const Inputs& in) {
  return {Predictors(in), TestedPredictors(in), in.Flag("random"), Intercept(in), in.Alpha()};
}

double Power(const Inputs& in) { return OrNaN(regression::Power(ModelOf(in), in.Number("n"), EffectOfRegression(in))); }

/// Powers over many effects at the same size.
class PowersOverEffects {
public:
  double operator()(const Inputs& in) {
    const regression::Model model = ModelOf(in);
    const double size = in.Number("n");
    auto& test = kept_
                     .For({model.predictors, model.tested, double(model.isRandom), double(model.hasIntercept),
                           model.alpha, size},
                          model, size)
                     .test;
    return test ? test->PowerOfMany(EffectOfRegression(in)) : OrNaN(kelpower::NoValue::Refused);
  }

private:
  struct TestOfSize {
    TestOfSize(const regression::Model& model, double size) : test(regression::RegressionTest::Checked(model, size)) {}
    std::optional<regression::RegressionTest> test;
  };

  Kept<TestOfSize, 6> kept_;
};

Numbers Size(const Inputs& in) {
  return RoundedUp(regression::SizeForPower(ModelOf(in), EffectOfRegression(in), in.Number("power")));
}

}  // namespace

regression::Effect EffectOfRegression(const Inputs& in) {
  if (in.Has("effect-f2")) return regression::Effect::OfFSquared(in.Number("effect-f2"));
  return regression::Effect::OfRSquared(in.Number("r-squared"), ReducedFit(in));
}

std::vector<Route> RoutesOfRegression() {
  const Names ofFits{"r-squared-reduced", "tested", "random", "no-intercept"};
  const Names ofEffect{"tested", "random", "no-intercept"};
  return {
      {.question = Question::Power,
       .needs = {"r-squared", "predictors", "n"},
       .accepts = ofFits,
       .exportName = "Powerbymlr",
       .value = Power,
       .surfaceValue = PowersOverEffects()},
      {.question = Question::Power,
       .needs = {"effect-f2", "predictors", "n"},
       .accepts = ofEffect,
       .exportName = "PowerbymlrwES",
       .value = Power,
       .surfaceValue = PowersOverEffects()},
      {.question = Question::SampleSize,
       .needs = {"r-squared", "predictors"},
       .accepts = ofFits,
       .exportName = "PowerReversebymlr",
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"effect-f2", "predictors"},
       .accepts = ofEffect,
       .exportName = "PowerReversebymlrwES",
       .sizes = Size},
  };
}

}  // namespace planner
