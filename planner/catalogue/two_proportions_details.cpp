#include "catalogue/details.h"
#include "catalogue/two_proportions.h"
#include "proportions/independent_interval.h"
#include "proportions/independent_large_sample.h"
#include "proportions/independent_power.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::IndependentMethod;
using proportions::TwoProportionTest;

struct Words {
  const char* formula;
  const char* source;
};

Words WordsOf(IndependentMethod method) {
  switch (method) {
    case IndependentMethod::Wald:
      return {"z sqrt(p1 q1 / n1 + p2 q2 / n2)", "Agresti (2013), Categorical Data Analysis, 3rd ed., section 3.1"};
    case IndependentMethod::AgrestiCaffo:
      return {"Wald's, with a success and a failure added to each group",
              "Agresti and Caffo (2000), American Statistician 54, 280-288"};
    case IndependentMethod::AgrestiCaffoUnbiased:
      return {"Wald's, with a success and a failure added to each group and divisors of unbiased variances",
              "Agresti and Caffo (2000), American Statistician 54, 280-288"};
    case IndependentMethod::HalfAdded:
      return {"Wald's, with half a success and half a failure added to each group",
              "Brown and Li (2005), Journal of Statistical Planning and Inference 130, 359-375"};
    case IndependentMethod::UnbiasedCorrected:
      return {"z sqrt(p1 q1 / (n1 - 1) + p2 q2 / (n2 - 1)) + 1 / (2 min(n1, n2))",
              "Hauck and Anderson (1986), American Statistician 40, 318-322"};
    case IndependentMethod::Newcombe:
      return {"half the length of the interval from Wilson's limits of the two proportions",
              "Newcombe (1998), Statistics in Medicine 17, 873-890, method 10"};
  }
  return {};
}

Details OfHalfWidth(const Inputs& in) {
  const auto method = IndependentMethod(in.Choice("interval-method"));
  const bool isCorrected = in.Flag("correction");
  Details details;
  AddIntervalZ(details, in);
  details.value =
      proportions::IndependentInterval({method, FirstProportion(in), SecondProportion(in), in.Alpha(), isCorrected})
          .HalfWidth(in.List("n")[0], in.List("n")[1]);
  const Words words = WordsOf(method);
  details.formula = std::string("half-width = ") + words.formula + ", z = {quantile-z}" +
                    (isCorrected ? ", corrected for continuity" : "");
  details.source = words.source;
  if (method == IndependentMethod::Wald && !isCorrected) {
    details.equivalents = {{.program = "R",
                            .call = "qnorm(1 - {alpha} / 2) * sqrt({p1} * (1 - {p1}) / {n1} + {p2} * (1 - {p2}) / "
                                    "{n2})"}};
  }
  return details;
}

bool HasEqualGroups(const Inputs& in) { return in.List("n")[0] == in.List("n")[1]; }

void AddZ(Details& details, const proportions::LargeSampleTest& test, const Inputs& in) {
  const proportions::ZStatistic of = test.Statistic(FirstProportion(in), SecondProportion(in));
  AddCriticalZ(details, test.CriticalZ());
  details.Add("difference", "difference of the proportions, first minus second",
              FirstProportion(in) - SecondProportion(in));
  details.Add("null-error", IsPooled(in) ? "standard error, pooled" : "standard error, unpooled", of.nullError);
  details.Add("error", "standard error at the proportions expected", of.error);
  const bool isCorrected = in.Flag("correction");
  if (isCorrected) details.Add("correction", "continuity correction", of.correction);
  const std::string c = isCorrected ? " - {correction}" : "";
  const std::string above = "(({difference}) - {null-error} * {critical-z}" + c + ") / {error}";
  const std::string below = "(-({difference}) - {null-error} * {critical-z}" + c + ") / {error}";
  std::string formula = "Phi(" + above + ") + Phi(" + below + ")";
  std::string call = "pnorm(" + above + ") + pnorm(" + below + ")";
  if (in.Flag("one-sided")) {
    const std::string& tail = FirstProportion(in) > SecondProportion(in) ? above : below;
    formula = "Phi(" + tail + ")";
    call = "pnorm(" + tail + ")";
  }
  details.formula = "power = " + formula;
  details.source = "Fleiss, Levin and Paik (2003), Statistical Methods for Rates and Proportions, 3rd ed., chapter 4";
  details.equivalents.push_back({.program = "R", .call = call, .remark = "the formula, from the errors on"});
  const bool isAsInR = IsPooled(in) && !isCorrected;
  std::string why;
  if (!isAsInR) why = isCorrected ? "has no continuity correction" : "pools the proportions in the critical value";
  if (HasEqualGroups(in)) {
    details.equivalents.push_back({.program = "R",
                                   .call = "power.prop.test({n-or-power}, p1 = {p1}, p2 = {p2}, sig.level = {alpha}, "
                                           "alternative = {r-alternative}, strict = TRUE){answer}",
                                   .isSame = isAsInR,
                                   .remark = isAsInR ? "n counts one group; strict = TRUE counts both tails" : why});
  }
  if (isCorrected) return;
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = "z tests > Proportions: Difference between two independent proportions; tails {tails}, proportion p2 "
               "{p1}, proportion p1 {p2}, alpha {alpha}, {gpower-n}",
       .isSame = isAsInR,
       .remark = why});
}

void AddArcsine(Details& details, const proportions::LargeSampleTest& test, const Inputs& in) {
  AddCriticalZ(details, test.CriticalZ());
  details.Add("shift", "mean of the statistic", test.Noncentrality(FirstProportion(in), SecondProportion(in)));
  const std::string above = "pnorm(({shift}) - {critical-z})";
  const std::string below = "pnorm(-({shift}) - {critical-z})";
  const bool isAbove = FirstProportion(in) < SecondProportion(in);
  const std::string call = in.Flag("one-sided") ? (isAbove ? above : below) : above + " + " + below;
  details.formula = std::string("power = ") + (in.Flag("one-sided") ? "Phi(|m| - z)" : "Phi(m - z) + Phi(-m - z)") +
                    ", m = {shift}, z = {critical-z}; m compares arcsines of roots of the proportions, each moved "
                    "towards the other by 1 / (2 n)";
  details.source = "Walters (1979), Journal of the Royal Statistical Society D 28, 115-122, of Cohen (1988), chapter 6";
  details.equivalents = {{.program = "R", .call = call, .remark = "the formula, from the statistic on"}};
  if (HasEqualGroups(in)) {
    details.equivalents.push_back(
        {.program = "pwr",
         .call = "pwr.2p.test({n-or-power}, h = ES.h({p1}, {p2}), sig.level = {alpha}, alternative = "
                 "{r-groups-direction}){answer}",
         .isSame = false,
         .remark = "does not move the proportions towards each other by 1 / (2 n)"});
  } else {
    details.equivalents.push_back({.program = "pwr",
                                   .call = "pwr.2p2n.test(h = ES.h({p1}, {p2}), n1 = {n1}, n2 = {n2}, sig.level = "
                                           "{alpha}, alternative = {r-groups-direction})$power",
                                   .isSame = false,
                                   .remark = "does not move the proportions towards each other by 1 / (2 n)"});
  }
}

void AddLikelihoodRatio(Details& details, const proportions::LargeSampleTest& test, const Inputs& in) {
  AddCriticalZ(details, test.CriticalZ());
  details.Add("shift", "root of the likelihood-ratio statistic at the proportions expected",
              test.Noncentrality(FirstProportion(in), SecondProportion(in)));
  const std::string tail = "pnorm({shift} - {critical-z})";
  details.formula = std::string("power = Phi(G - z)") + (in.Flag("one-sided") ? "" : " + Phi(-G - z)") +
                    ", G = {shift}, z = {critical-z}";
  details.source = "Agresti (2013), Categorical Data Analysis, 3rd ed., section 6.6";
  details.equivalents = {{.program = "R",
                          .call = in.Flag("one-sided") ? tail : tail + " + pnorm(-{shift} - {critical-z})",
                          .remark = "the formula, from the statistic on"}};
}

void AddExact(Details& details, const Inputs& in) {
  details.formula = "power = the sum of the probabilities of all tables that the test rejects";
  if (!IsConditional(in)) {
    details.source =
        "Agresti (2013), Categorical Data Analysis, 3rd ed., section 3.5: binomial probabilities of the "
        "tables, rejected by the large-sample critical value";
    return;
  }
  details.source = std::string("Fisher (1935), The Design of Experiments, section 15; each tail rejects at most ") +
                   (in.Flag("one-sided") ? "alpha" : "alpha / 2");
  if (in.Flag("one-sided")) return;
  details.equivalents = {
      {.program = "R",
       .call = "fisher.test",
       .isSame = false,
       .remark = "its two-sided p-value adds the tables that are no more probable than the observed one; here each "
                 "tail takes alpha / 2"},
      {.program = "G*Power",
       .call = "Exact > Proportions: Inequality, two independent groups (Fisher's exact test)",
       .isSame = false,
       .remark = "its two-sided test is that of fisher.test in R"}};
}

}  // namespace

double CommonProportion(const Inputs& in) {
  const Numbers& n = in.List("n");
  return (n[0] * FirstProportion(in) + n[1] * SecondProportion(in)) / (n[0] + n[1]);
}

double AttainedLevelOfTwoProportions(const Inputs& in) {
  const proportions::IndependentDesign design{TestOf(in), IsExact(in),           in.Flag("one-sided"),
                                              in.Alpha(), in.Flag("correction"), IsPooled(in)};
  if (!design.isExact) return OrNaN(kelpower::NoValue::Refused);
  const auto alternative = proportions::AlternativeOf(design, FirstProportion(in), SecondProportion(in));
  proportions::IndependentPower power(design, in.List("n")[0], in.List("n")[1]);
  return OrNaN(power.AttainedLevel(alternative, CommonProportion(in), StopOfTables(in)));
}

Details DetailsOfTwoProportions(Question question, const Inputs& in) {
  const double p1 = FirstProportion(in);
  const double p2 = SecondProportion(in);
  Details details;
  if (!IsAboutPower(question)) {
    details = OfHalfWidth(in);
    details.Add("p1", "first proportion", p1);
    details.Add("p2", "second proportion", p2);
    return details;
  }
  const double n1 = in.List("n")[0];
  const double n2 = in.List("n")[1];
  const proportions::IndependentDesign design{TestOf(in), IsExact(in),           in.Flag("one-sided"),
                                              in.Alpha(), in.Flag("correction"), IsPooled(in)};
  details.Add("p1", "first proportion", p1);
  details.Add("p2", "second proportion", p2);
  if (design.isExact) {
    details.Add("common-proportion", "common proportion under the null hypothesis", CommonProportion(in));
    details.Add("attained-level", "significance level attained there", AttainedLevelOfTwoProportions(in));
    AddExact(details, in);
  } else {
    const proportions::LargeSampleTest test(design, n1, n2);
    switch (design.test) {
      case TwoProportionTest::T:
        AddTTest(details, test.CriticalT(), test.Noncentrality(p1, p2), design.isOneSided,
                 std::string("noncentrality = (p1 - p2) / standard error, ") +
                     (design.isPooled ? "pooled from" : "from") + " the variances p (1 - p)");
        details.source = "D'Agostino, Chase and Belanger (1988), American Statistician 42, 198-202";
        break;
      case TwoProportionTest::Z: AddZ(details, test, in); break;
      case TwoProportionTest::Arcsine: AddArcsine(details, test, in); break;
      case TwoProportionTest::LikelihoodRatio: AddLikelihoodRatio(details, test, in); break;
      case TwoProportionTest::Conditional: break;
    }
  }
  details.value = OrNaN(proportions::IndependentPower(design, n1, n2).At(p1, p2, StopOfTables(in)));
  return details;
}

}  // namespace planner
