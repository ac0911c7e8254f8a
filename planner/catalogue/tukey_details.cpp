#include "catalogue/axes.h"
#include "catalogue/details.h"
#include "catalogue/tukey.h"
#include "comparisons/tukey.h"
#include "frame/rejection.h"

namespace planner {
namespace {

namespace comparisons = kelpower::comparisons;

constexpr const char* source =
    "Tukey (1953), The problem of multiple comparisons; Kramer (1956), Extension of multiple range tests to group means "
    "with unequal numbers of replications, Biometrics 12";

void AddCriticalRange(Details& details, const comparisons::TukeyTest& test) {
  details.Add("df", "degrees of freedom of the error", test.Df());
  details.Add("critical-q", "critical value of the studentized range", test.CriticalRange());
}

Details OfHalfWidth(const comparisons::TukeyTest& test, const Inputs& in) {
  const Numbers& n = in.List("n");
  const AskedPair pair = PairOf(in);
  Details details;
  AddCriticalRange(details, test);
  details.Add("variance", "1 / n_i + 1 / n_j", 1 / n[pair.first] + 1 / n[pair.second]);
  details.value = comparisons::HalfWidthOfPair(in.Number("sd"), n[pair.first], n[pair.second], in.Groups(),
                                               TotalSize(in), in.Alpha());
  details.formula =
      "half-width = q / sqrt(2) x sd sqrt(1 / n_i + 1 / n_j) = {critical-q} / sqrt(2) x {sd} x sqrt({variance})";
  details.source = source;
  details.equivalents = {
      {.program = "R", .call = "qtukey(1 - {alpha}, {groups}, {df}) / sqrt(2) * {sd} * sqrt({variance})"}};
  return details;
}

Details OfPair(const comparisons::TukeyTest& test, const Inputs& in) {
  const Numbers& n = in.List("n");
  const AskedPair pair = PairOf(in);
  const double d = EffectOfTukeyPair(in);
  const double noncentrality = comparisons::NoncentralityOfPair(d, n[pair.first], n[pair.second]);
  Details details;
  details.Add("critical-q", "critical value of the studentized range", test.CriticalRange());
  details.Add("d", "standardized difference d", d);
  const kelpower::TTest t{test.Df(), test.CriticalT()};
  details.Add("level", "significance level of the comparison", t.PowerBothTails(0));
  AddTTest(details, t, noncentrality, false, "critical t = q / sqrt(2); noncentrality = d / sqrt(1 / n_i + 1 / n_j)");
  details.equivalents = {
      {.program = "R",
       .call = "pt(qtukey(1 - {alpha}, {groups}, {df}) / sqrt(2), {df}, {noncentrality}, lower.tail = FALSE) + "
               "pt(-qtukey(1 - {alpha}, {groups}, {df}) / sqrt(2), {df}, {noncentrality})",
       .remark = "the formula, from the noncentrality on"}};
  details.source = source;
  details.source += "; with the noncentral t distribution";
  return details;
}

}  // namespace

Details DetailsOfTukey(Question question, const Inputs& in) {
  const comparisons::TukeyTest test(in.Groups(), TotalSize(in) - in.Groups(), in.Alpha());
  if (!test.IsValid()) return {};
  if (!IsAboutPower(question)) return OfHalfWidth(test, in);
  if (IsAboutOnePair(in)) return OfPair(test, in);
  Details details;
  AddCriticalRange(details, test);
  details.value = OrNaN(comparisons::PowerOfAnyPair(MeansOfTukey(in), in.List("n").front(), in.Alpha()));
  details.formula =
      "power = 1 - E[P(R <= q u)] with q = {critical-q}; R is the range of independent normal variables of variance 1 "
      "with means mean_i sqrt(n) / sd, and u^2 chi-square over its {df} degrees of freedom";
  details.source = std::string(source) + "; Hartley (1942), The range in random samples, Biometrika 32, for the range";
  return details;
}

}  // namespace planner
