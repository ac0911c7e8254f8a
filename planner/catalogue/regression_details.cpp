#include "catalogue/details.h"
#include "catalogue/regression.h"
#include "regression/test_of_predictors.h"

namespace planner {
namespace {

namespace regression = kelpower::regression;

void AddRandom(Details& details) {
  details.formula =
      "power = P(F > {critical-f}) over the distribution of the squared multiple correlation at rho^2 = "
      "{rho-squared}";
  details.source =
      "Gatsonis and Sampson (1989), Psychological Bulletin 106, 516-524; Lee (1972), Biometrika 59, 175-189";
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = "Exact > Linear multiple regression: Random model; H1 rho^2 {rho-squared}, H0 rho^2 0, alpha {alpha}, "
               "{gpower-n}, number of predictors {df1}",
       .remark = "for a test of all predictors"});
}

void AddFixed(Details& details, bool allTested, bool hasIntercept) {
  details.formula =
      "noncentrality = n f^2 = {n} x {f-squared}; " + details.formula.substr(details.formula.find("power"));
  details.source =
      "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 9, with the "
      "noncentrality n f^2";
  auto& programs = details.equivalents;
  const bool isSame = allTested && hasIntercept;
  programs.push_back({.program = "pwr",
                      .call = "pwr.f2.test(u = {df1}, v = {df2}, f2 = {f-squared}, sig.level = {alpha})$power",
                      .isSame = isSame,
                      .remark = isSame ? "the noncentrality is (u + v + 1) f^2, which is n f^2 here"
                                       : "takes the noncentrality (u + v + 1) f^2 in place of n f^2"});
  programs.push_back({.program = "R",
                      .call = "pf(qf(1 - {alpha}, {df1}, {df2}), {df1}, {df2}, {noncentrality}, lower.tail = FALSE)",
                      .remark = "the formula, from the noncentrality on"});
  if (!hasIntercept) return;
  programs.push_back(
      {.program = "G*Power",
       .call = std::string("F tests > Linear multiple regression: Fixed model, ") +
               (allTested ? "R^2 deviation from zero" : "R^2 increase") +
               "; effect size f^2 {f-squared}, alpha {alpha}, {gpower-n}, " +
               (allTested ? "number of predictors {predictors}"
                          : "number of tested predictors {df1}, total number of predictors {predictors}")});
}

}  // namespace

Details DetailsOfRegression(Question, const Inputs& in) {
  const double predictors = in.Number("predictors");
  const double tested = in.Has("tested") ? in.Number("tested") : predictors;
  const bool isRandom = in.Flag("random");
  const bool hasIntercept = !in.Flag("no-intercept");
  const regression::Effect effect = EffectOfRegression(in);
  const auto test =
      regression::RegressionTest::Checked({predictors, tested, isRandom, hasIntercept, in.Alpha()}, in.Number("n"));
  Details details;
  if (!test) return details;
  details.Add("f-squared", "effect size f2", effect.fSquared);
  details.Add("rho-squared", "squared partial multiple correlation", effect.rhoSquared);
  if (isRandom) {
    const kelpower::FTest& atCritical = test->AtCriticalValue();
    details.Add("df1", "degrees of freedom of the effect", atCritical.df1);
    details.Add("df2", "degrees of freedom of the error", atCritical.df2);
    details.Add("critical-f", "critical value of F", atCritical.critical);
    AddRandom(details);
  } else {
    AddFTest(details, test->AtCriticalValue(), test->Noncentrality(effect), "noncentrality");
    AddFixed(details, tested == predictors, hasIntercept);
    if (in.Has("r-squared") && hasIntercept) {
      details.equivalents.push_back(
          {.program = "SAS",
           .call = "proc power; multreg model=fixed nfullpredictors={predictors} ntestpredictors={df1} "
                   "rsquarefull={r-squared} rsquarediff={r-squared-gain} alpha={alpha} ntotal={n-or-dot} "
                   "power={power-or-dot}; run;"});
      details.Add("r-squared-gain", "R squared of the predictors tested",
                  in.Number("r-squared") - (in.Has("r-squared-reduced") ? in.Number("r-squared-reduced") : 0));
    }
  }
  details.value = test->Power(effect);
  return details;
}

}  // namespace planner
