#include "catalogue/regression.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"
#include "regression/test_of_predictors.h"

namespace planner {
namespace {

namespace regression = kelpower::regression;

double Tested(const Inputs& in) { return in.Has("tested") ? in.Number("tested") : Predictors(in); }

double Reduced(const Inputs& in) { return in.Has("r-squared-reduced") ? in.Number("r-squared-reduced") : 0; }

double EffectOfFits(const Inputs& in) { return (in.Number("r-squared") - Reduced(in)) / (1 - in.Number("r-squared")); }

regression::Model ModelOf(const Inputs& in) {
  return {Predictors(in), Tested(in), in.Flag("random"), Intercept(in), in.Alpha()};
}

regression::Effect EffectOf(const Inputs& in) {
  if (in.Has("effect-f2")) return regression::Effect::OfFSquared(in.Number("effect-f2"));
  return regression::Effect::OfRSquared(in.Number("r-squared"), Reduced(in));
}

double Power(const Inputs& in) { return OrNaN(regression::Power(ModelOf(in), in.Number("n"), EffectOf(in))); }

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
    return test ? test->PowerOfMany(EffectOf(in)) : OrNaN(kelpower::NoValue::Refused);
  }

private:
  struct TestOfSize {
    TestOfSize(const regression::Model& model, double size) : test(regression::RegressionTest::Checked(model, size)) {}
    std::optional<regression::RegressionTest> test;
  };

  Kept<TestOfSize, 6> kept_;
};

Numbers Size(const Inputs& in) {
  return RoundedUp(regression::SizeForPower(ModelOf(in), EffectOf(in), in.Number("power")));
}

std::vector<Parameter> Parameters() {
  return {
      Number("r-squared", "R squared", "proportion of variance that all predictors explain").AtLeast(0).Below(1),
      Number("r-squared-reduced", "R squared without those tested",
             "proportion of variance that the predictors that are not tested explain")
          .AtLeast(0)
          .Below(1),
      Number("effect-f2", "effect size f2", "variance explained by the tested predictors over the unexplained one")
          .Alias("f2")
          .AtLeast(0)
          .AtMost(1e3),
      Number("predictors", "predictors", "number of predictors in the model").Whole().AtLeast(1).AtMost(mostPredictors),
      Number("tested", "predictors tested", "number of predictors tested, unless all are")
          .Whole()
          .AtLeast(1)
          .AtMost(mostPredictors),
      CaseCount(2),
      Flag("random", "random predictors", "predictors vary from sample to sample, normally, rather than being fixed"),
      Flag("no-intercept", "without intercept", "the model has no intercept"),
  };
}

std::vector<Route> Routes() {
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

std::vector<Unknown> Unknowns() {
  constexpr const char* reason = "the noncentrality grows with what the predictors tested explain";
  return {
      {.input = "r-squared",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {Reduced(in), 1};
       }},
      UnknownEffect("effect-f2"),
      {.input = "r-squared-reduced",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {0, in.Number("r-squared")};
       }},
  };
}

std::vector<Condition> Conditions() {
  return {
      {.code = "tested-predictors",
       .about = {"predictors", "tested"},
       .holds = [](const Inputs& in) { return Tested(in) <= Predictors(in); },
       .sentence = "{tested} must not exceed {predictors}."},
      {.code = "reduced-missing",
       .about = {"r-squared", "tested", "predictors"},
       .holds = [](const Inputs& in) { return Tested(in) >= Predictors(in) || in.Has("r-squared-reduced"); },
       .sentence = "Also give {r-squared-reduced}, how much the predictors that are not tested explain: {tested} is "
                   "below {predictors}. It is 0 where they explain nothing."},
      {.code = "reduced-fit",
       .about = {"r-squared", "r-squared-reduced"},
       .holds = [](const Inputs& in) { return Reduced(in) <= in.Number("r-squared"); },
       .sentence =
           "{r-squared-reduced} must not exceed {r-squared}: predictors cannot explain less than some of them."},
      {.code = "reduced-model",
       .about = {"r-squared-reduced", "predictors"},
       .holds = [](const Inputs& in) { return Reduced(in) == 0 || Tested(in) < Predictors(in); },
       .sentence =
           "{r-squared-reduced} above 0 needs predictors that are not tested: give {tested}, below {predictors}."},
      {.code = "error-degrees",
       .about = {"predictors", "n"},
       .holds = [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       .sentence =
           "{n} leaves nothing to estimate the error variance from: it must exceed {predictors} by 2, or by 1 without "
           "an intercept."},
  };
}

std::vector<Condition> SizeExists() {
  return {
      {.code = "no-effect",
       .about = {"r-squared"},
       .holds = [](const Inputs& in) { return in.Number("r-squared") > Reduced(in); },
       .sentence = "The predictors tested explain nothing: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-f2"},
       .holds = [](const Inputs& in) { return in.Number("effect-f2") > 0; },
       .sentence = "The effect size is zero: without an effect, no sample size reaches the power."},
  };
}

Axis MultipleCorrelationAxis() {
  return {.name = "r",
          .title = "multiple correlation R",
          .symbol = "R",
          .needs = {"r-squared"},
          .limits = {0, 1, true, false, false},
          .design = [](const Inputs& in) { return std::sqrt(in.Number("r-squared")); },
          .vary = [](Inputs& in, const Inputs&, double at) { in.Set("r-squared", at * at); }};
}

}  // namespace

Test RegressionTest() {
  Test test{.name = "regression",
            .title = "F test of predictors in multiple linear regression",
            .about = "Tests whether some or all predictors of a multiple linear regression add nothing.",
            .counted = "cases"};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = Unknowns();
  test.conditions = Conditions();
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-f2", .label = "effect size f2", .needs = {"r-squared", "predictors"}, .call = EffectOfFits},
  };
  test.axes = {MultipleCorrelationAxis()};
  AddWordsOfRegression(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
