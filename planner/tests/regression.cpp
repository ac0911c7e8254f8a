#include <algorithm>
#include <cmath>

#include "catalogue.h"
#include "correlation_parameters.h"
#include "kelpower.h"
#include "window.h"

namespace planner {
namespace {

double Predictors(const Inputs& in) { return in.Number("predictors"); }

double Tested(const Inputs& in) { return in.Has("tested") ? in.Number("tested") : Predictors(in); }

bool Intercept(const Inputs& in) { return !in.Flag("no-intercept"); }

double SmallestSize(const Inputs& in) { return Predictors(in) + (Intercept(in) ? 2 : 1); }

double Reduced(const Inputs& in) { return in.Has("r-squared-reduced") ? in.Number("r-squared-reduced") : 0; }

/// The library takes R where there is no reduced model, and R squared where there is one.
double Fit(const Inputs& in) {
  const double rSquared = in.Number("r-squared");
  return Reduced(in) == 0 ? std::sqrt(rSquared) : rSquared;
}

double EffectOfFits(const Inputs& in) { return (in.Number("r-squared") - Reduced(in)) / (1 - in.Number("r-squared")); }

double PowerOfFits(const Inputs& in) {
  return Powerbymlr(in.Number("n"), Predictors(in), Tested(in), Fit(in), Reduced(in), in.Flag("random"), Intercept(in),
                    in.Alpha());
}

double PowerOfEffect(const Inputs& in) {
  return PowerbymlrwES(in.Number("n"), Predictors(in), Tested(in), in.Number("effect-f2"), in.Flag("random"),
                       Intercept(in), in.Alpha());
}

double SizeForFits(const Inputs& in) {
  return PowerReversebymlr(in.Number("power"), Predictors(in), Tested(in), Fit(in), Reduced(in), in.Flag("random"),
                           Intercept(in), in.Alpha());
}

double SizeForEffect(const Inputs& in) {
  return PowerReversebymlrwES(in.Number("power"), Predictors(in), Tested(in), in.Number("effect-f2"), in.Flag("random"),
                              Intercept(in), in.Alpha());
}

constexpr double mostPredictors = 1e5;
constexpr double sizesBeyondPredictors = 5000;

Range DrawnSizes(const Inputs& in) { return {SmallestSize(in), Predictors(in) + sizesBeyondPredictors}; }

Axis SizeAxis() {
  return {"sample size (cases)",
          "n",
          {2, mostPredictors + sizesBeyondPredictors, true, true, true},
          [](const Inputs& in) { return in.Number("n"); },
          [](const Inputs& in) { return SizesAround(in.Number("n"), DrawnSizes(in)); }};
}

Axis EffectAxis() {
  return {"effect size f2", "f2", {0, 1, true, true, false}, [](const Inputs& in) { return in.Number("effect-f2"); }};
}

/// The power is the same for R and -R, so that the usual range leaves out the negative ones.
Axis CorrelationAxis() {
  return {"multiple correlation R",
          "R",
          {-1, 1, true, true, false},
          [](const Inputs& in) { return std::sqrt(in.Number("r-squared")); },
          [](const Inputs&) {
            return Range{0, 1};
          }};
}

std::vector<Chart> Charts() {
  const std::vector<std::string> ofEffect{"effect-f2", "predictors", "n"};
  const std::vector<std::string> ofFit{"r-squared", "predictors", "n"};
  const std::vector<std::string> accepts{"tested", "random", "no-intercept"};
  const std::vector<std::string> acceptsReduced{"r-squared-reduced", "tested", "random", "no-intercept"};
  return {
      {"n",
       {SizeAxis()},
       ofFit,
       acceptsReduced,
       "PlotNmlr",
       "regression --r-squared 0.3 --r-squared-reduced 0.2 --predictors 5 --tested 2 --n 80 --chart n",
       [](const Inputs& in, const Ranges& r) {
         CheckSizes(r.x, DrawnSizes(in));
         return Curve(PlotNmlr(Predictors(in), Tested(in), Fit(in), Reduced(in), in.Flag("random"), Intercept(in),
                               in.Alpha(), r.x.First(), r.x.Last()));
       }},
      {"n",
       {SizeAxis()},
       ofEffect,
       accepts,
       "PlotNmlrFES",
       "regression --effect-f2 0.15 --predictors 5 --n 80 --random --chart n",
       [](const Inputs& in, const Ranges& r) {
         CheckSizes(r.x, DrawnSizes(in));
         return Curve(PlotNmlrFES(Predictors(in), Tested(in), in.Number("effect-f2"), in.Flag("random"), Intercept(in),
                                  in.Alpha(), r.x.First(), r.x.Last()));
       }},
      {"effect",
       {EffectAxis()},
       ofEffect,
       accepts,
       "PlotESmlr",
       "regression --effect-f2 0.15 --predictors 5 --n 80 --chart effect --from 0 --to 0.4",
       [](const Inputs& in, const Ranges& r) {
         return Window(Curve(PlotESmlr(in.Number("n"), Predictors(in), Tested(in), in.Flag("random"), Intercept(in),
                                       in.Alpha(), StepOfGrid(r.x, 1, r.step))),
                       r.x);
       }},
      {"r",
       {CorrelationAxis()},
       ofFit,
       accepts,
       "PlotCorrmlr",
       "regression --r-squared 0.1 --predictors 5 --n 95 --random --chart r",
       [](const Inputs& in, const Ranges& r) {
         return Window(Curve(PlotCorrmlr(in.Number("n"), Predictors(in), Tested(in), in.Flag("random"), Intercept(in),
                                         in.Alpha(), StepOfGrid(r.x, 1, r.step))),
                       r.x);
       }},
      {"n-r",
       {SizeAxis(), CorrelationAxis()},
       ofFit,
       accepts,
       "PlotNaCorrmlr",
       "regression --r-squared 0.1 --predictors 5 --n 95 --chart n-r",
       [](const Inputs& in, const Ranges& r) {
         CheckSizes(r.x, DrawnSizes(in));
         return Window(
             Surface(PlotNaCorrmlr(in.Number("n"), Predictors(in), Tested(in), Fit(in), 0, in.Flag("random"),
                                   Intercept(in), in.Alpha(), r.x.First(), r.x.Last(), StepOfGrid(r.y, 1, r.step))),
             {}, r.y);
       }},
      {"n-effect",
       {SizeAxis(), EffectAxis()},
       ofEffect,
       accepts,
       "PlotNaESmlr",
       "regression --effect-f2 0.15 --predictors 5 --n 80 --chart n-effect --from 20,0 --to 160,0.5",
       [](const Inputs& in, const Ranges& r) {
         CheckSizes(r.x, DrawnSizes(in));
         return Window(
             Surface(PlotNaESmlr(in.Number("n"), Predictors(in), Tested(in), in.Number("effect-f2"), in.Flag("random"),
                                 Intercept(in), in.Alpha(), r.x.First(), r.x.Last(), StepOfGrid(r.y, 1, r.step))),
             {}, r.y);
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "regression";
  test.title = "F test of predictors in multiple linear regression";
  test.about = "Tests whether some or all predictors of a multiple linear regression add nothing.";
  test.counted = "cases";

  test.parameters = {
      Number("r-squared", "R squared", "proportion of variance that all predictors explain").AtLeast(0).Below(1),
      Number("r-squared-reduced", "R squared without those tested",
             "proportion of variance that the predictors that are not tested explain")
          .AtLeast(0)
          .Below(1),
      Number("effect-f2", "effect size f2", "variance explained by the tested predictors over the unexplained one")
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

  test.routes = {
      {Question::Power,
       {"r-squared", "predictors", "n"},
       {"r-squared-reduced", "tested", "random", "no-intercept"},
       "Powerbymlr",
       [](const Inputs& in) -> Numbers { return {PowerOfFits(in)}; }},
      {Question::Power,
       {"effect-f2", "predictors", "n"},
       {"tested", "random", "no-intercept"},
       "PowerbymlrwES",
       [](const Inputs& in) -> Numbers { return {PowerOfEffect(in)}; }},
      {Question::SampleSize,
       {"r-squared", "predictors"},
       {"r-squared-reduced", "tested", "random", "no-intercept"},
       "PowerReversebymlr",
       [](const Inputs& in) { return Numbers{std::ceil(SizeForFits(in))}; }},
      {Question::SampleSize,
       {"effect-f2", "predictors"},
       {"tested", "random", "no-intercept"},
       "PowerReversebymlrwES",
       [](const Inputs& in) { return Numbers{std::ceil(SizeForEffect(in))}; }},
  };

  test.conditions = {
      {{"predictors", "tested"},
       [](const Inputs& in) { return Tested(in) <= Predictors(in); },
       "--tested must not exceed --predictors."},
      {{"r-squared", "r-squared-reduced"},
       [](const Inputs& in) { return Reduced(in) <= in.Number("r-squared"); },
       "--r-squared-reduced must not exceed --r-squared: predictors cannot explain less than some of them."},
      {{"r-squared-reduced", "predictors"},
       [](const Inputs& in) { return Reduced(in) == 0 || Tested(in) < Predictors(in); },
       "--r-squared-reduced above 0 needs predictors that are not tested: give --tested, below --predictors."},
      {{"predictors", "n"},
       [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       "--n leaves nothing to estimate the error variance from: it must exceed --predictors by 2, or by 1 without an "
       "intercept."},
  };
  test.solvable = {
      {{"r-squared"},
       [](const Inputs& in) { return in.Number("r-squared") > Reduced(in); },
       "The predictors tested explain nothing: without an effect, no sample size reaches the power."},
      {{"effect-f2"},
       [](const Inputs& in) { return in.Number("effect-f2") > 0; },
       "The effect size is zero: without an effect, no sample size reaches the power."},
  };

  test.derived = {{"effect-f2", "effect size f2", {"r-squared", "predictors"}, EffectOfFits}};

  test.phrases = {
      {"effect",
       {{"r-squared-reduced", "an R squared of {r-squared} against {r-squared-reduced} without the predictors tested"},
        {"r-squared", "an R squared of {r-squared}"},
        {"effect-f2", "an effect size f2 of {effect-f2}"}}},
      {"which", {{"tested", "{tested} of the {predictors}"}, {"predictors", "all {predictors}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the F test of {which} {random?random:fixed} predictors of a multiple linear regression "
       "{no-intercept?without:with} an intercept at a significance level of {alpha} has a power of {power} to detect "
       "{effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the F test of {which} {random?random:fixed} predictors of a "
       "multiple linear regression {no-intercept?without:with} an intercept at a significance level of {alpha} needs "
       "{sizes}; its power is then {power}."},
  };

  test.examples = {
      {"regression --effect-f2 0.1111111 --predictors 5 --n 95",
       "With 95 cases, the F test of all 5 fixed predictors of a multiple linear regression with an intercept at a "
       "significance level of 0.05 has a power of 0.6736 to detect an effect size f2 of 0.1111111."},
      {"regression --r-squared 0.1 --predictors 5 --n 95 --random",
       "With 95 cases, the F test of all 5 random predictors of a multiple linear regression with an intercept at a "
       "significance level of 0.05 has a power of 0.6626 to detect an R squared of 0.1."},
      {"regression --r-squared 0.3 --r-squared-reduced 0.25 --predictors 6 --tested 2 --power 0.8",
       "To detect an R squared of 0.3 against 0.25 without the predictors tested with a power of 0.8, the F test of 2 "
       "of the 6 fixed predictors of a multiple linear regression with an intercept at a significance level of 0.05 "
       "needs 139 cases; its power is then 0.8030."},
      {"regression --effect-f2 0.0714286 --predictors 9 --tested 4 --alpha 0.01 --power 0.8",
       "To detect an effect size f2 of 0.0714286 with a power of 0.8, the F test of 4 of the 9 fixed predictors of a "
       "multiple linear regression with an intercept at a significance level of 0.01 needs 242 cases; its power is "
       "then 0.8016."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test RegressionTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
