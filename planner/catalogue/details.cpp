#include "catalogue/details.h"

#include "correlation/fisher.h"

namespace planner {

void AddTTest(Details& details, const kelpower::TTest& test, double noncentrality, bool isOneSided,
              const std::string& formula) {
  details.Add("df", "degrees of freedom", test.df);
  details.Add("critical-t", "critical value of t", test.critical);
  details.Add("noncentrality", "noncentrality", noncentrality);
  details.statistic = {
      .family = StatisticFamily::T, .df1 = test.df, .noncentrality = noncentrality, .rejectsFrom = test.critical};
  if (!isOneSided) details.statistic->rejectsTo = -test.critical;
  details.value = isOneSided ? test.PowerUpperTail(noncentrality) : test.PowerBothTails(noncentrality);
  details.formula = formula + " = {noncentrality}; power = " +
                    (isOneSided ? "P(T > {critical-t})" : "P(T > {critical-t}) + P(T < -{critical-t})") +
                    ", T noncentral t on {df} degrees of freedom";
  details.equivalents.push_back(
      {.program = "R",
       .call = isOneSided ? "pt(qt(1 - {alpha}, {df}), {df}, {noncentrality}, lower.tail = FALSE)"
                          : "pt(qt(1 - {alpha} / 2, {df}), {df}, {noncentrality}, lower.tail = FALSE) + "
                            "pt(-qt(1 - {alpha} / 2, {df}), {df}, {noncentrality})",
       .remark = "the formula, from the noncentrality on"});
}

void AddFTest(Details& details, const kelpower::FTest& test, double noncentrality, const std::string& formula) {
  details.Add("df1", "degrees of freedom of the effect", test.df1);
  details.Add("df2", "degrees of freedom of the error", test.df2);
  details.Add("critical-f", "critical value of F", test.critical);
  details.Add("noncentrality", "noncentrality", noncentrality);
  details.statistic = {.family = StatisticFamily::F,
                       .df1 = test.df1,
                       .df2 = test.df2,
                       .noncentrality = noncentrality,
                       .rejectsFrom = test.critical};
  details.value = test.Power(noncentrality);
  details.formula = formula +
                    " = {noncentrality}; power = P(F > {critical-f}), F noncentral F on {df1} and {df2} degrees of "
                    "freedom";
}

void SetNormalStatistic(Details& details, double mean, double sd, double critical, Tails tails) {
  details.statistic = {.family = StatisticFamily::Normal, .mean = mean, .sd = sd};
  if (tails != Tails::Lower) details.statistic->rejectsFrom = critical;
  if (tails != Tails::Upper) details.statistic->rejectsTo = -critical;
}

void AddIntervalT(Details& details, double level, double df) {
  details.Add("df", "degrees of freedom", df);
  details.Add("quantile-t", "quantile of t", kelpower::IntervalQuantileT(level, df));
}

void AddIntervalZ(Details& details, const Inputs& in) {
  details.Add("quantile-z", "normal quantile", kelpower::correlation::Confidence(in.Alpha()).quantile);
}

void AddCriticalZ(Details& details, double critical) {
  details.Add("critical-z", "critical value of the normal distribution", critical);
}

}  // namespace planner
