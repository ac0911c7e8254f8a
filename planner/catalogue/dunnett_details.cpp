#include "catalogue/details.h"
#include "catalogue/dunnett.h"
#include "comparisons/dunnett.h"

namespace planner {
namespace {

namespace comparisons = kelpower::comparisons;

constexpr const char* source =
    "Dunnett (1955), A multiple comparison procedure for comparing several treatments with a control, Journal of the "
    "American Statistical Association 50; (1964), New tables for multiple comparisons with a control, Biometrics 20";

Details OfHalfWidth(const comparisons::DunnettTest& test, const Inputs& in) {
  const Numbers& n = in.List("n");
  Details details;
  details.Add("df", "degrees of freedom of the error", test.Df());
  details.Add("critical-t", "critical value of Dunnett's t", test.Critical());
  details.Add("variance", "1 / n_i + 1 / n_0", 1 / n[AskedGroup(in)] + 1 / n.front());
  details.value = comparisons::HalfWidthOfComparison(in.Number("sd"), n, AskedGroup(in), in.Alpha());
  details.formula = "half-width = t sd sqrt(1 / n_i + 1 / n_0) = {critical-t} x {sd} x sqrt({variance})";
  details.source = source;
  return details;
}

Details OfOne(const comparisons::DunnettTest& test, const Inputs& in) {
  const Numbers means = MeansOfDunnett(in);
  Details details;
  details.Add("d", "standardized difference d", means[AskedGroup(in)] - means.front());
  const kelpower::TTest t{test.Df(), test.Critical()};
  details.Add("level", "significance level of the comparison",
              IsOneSided(in) ? t.PowerUpperTail(0) : t.PowerBothTails(0));
  AddTTest(details, t, test.Noncentralities(means)[AskedGroup(in) - 1], IsOneSided(in),
           "noncentrality = d / sqrt(1 / n_i + 1 / n_0)");
  details.equivalents = {{.program = "R",
                          .call = IsOneSided(in) ? "pt({critical-t}, {df}, {noncentrality}, lower.tail = FALSE)"
                                                 : "pt({critical-t}, {df}, {noncentrality}, lower.tail = FALSE) + "
                                                   "pt(-{critical-t}, {df}, {noncentrality})",
                          .remark = "the formula, from the noncentrality and the critical value on"}};
  details.source = source;
  details.source += "; with the noncentral t distribution";
  return details;
}

Details OfSeveral(const comparisons::DunnettTest& test, const Inputs& in) {
  const bool isAll = in.Flag("all-comparisons");
  const auto which = isAll ? comparisons::Comparisons::All : comparisons::Comparisons::Any;
  Details details;
  details.Add("df", "degrees of freedom of the error", test.Df());
  details.Add("critical-t", "critical value of Dunnett's t", test.Critical());
  details.value = OrNaN(test.Power(which, test.Noncentralities(MeansOfDunnett(in))));
  details.formula =
      std::string("power = ") + (isAll ? "E[product of P_i(y, u)]" : "1 - E[product of (1 - P_i(y, u))]") +
      ", P_i the probability that comparison i is beyond {critical-t} where the control's mean is y standard "
      "errors from its expectation and u^2 chi-square over its {df} degrees of freedom";
  details.source = source;
  return details;
}

}  // namespace

Details DetailsOfDunnett(Question question, const Inputs& in) {
  const comparisons::DunnettTest test(in.List("n"), IsAboutPower(question) && IsOneSided(in), in.Alpha());
  if (!test.IsValid()) return {};
  if (!IsAboutPower(question)) return OfHalfWidth(test, in);
  return in.Has("group") ? OfOne(test, in) : OfSeveral(test, in);
}

}  // namespace planner
