#include "catalogue/details.h"

#include "correlation/fisher.h"

namespace planner {

void AddTTest(Details& details, const kelpower::TTest& test, double noncentrality, bool isOneSided,
              const std::string& formula) {
  details.Add("df", "degrees of freedom", test.df);
  details.Add("critical-t", "critical value of t", test.critical);
  details.Add("noncentrality", "noncentrality", noncentrality);
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
  details.value = test.Power(noncentrality);
  details.formula = formula +
                    " = {noncentrality}; power = P(F > {critical-f}), F noncentral F on {df1} and {df2} degrees of "
                    "freedom";
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
