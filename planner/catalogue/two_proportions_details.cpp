#include "catalogue/two_proportions_details.h"

#include "catalogue/details.h"
#include "catalogue/margins.h"
#include "catalogue/two_proportions.h"
#include "catalogue/two_proportions_margins.h"
#include "proportions/independent_power.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::TwoProportionTest;

void AddLikelihoodRatio(Details& details, const proportions::LargeSampleTest& test, const Inputs& in) {
  AddCriticalZ(details, test.CriticalZ());
  details.Add("shift", "root of the likelihood-ratio statistic at the proportions expected",
              test.Noncentrality(FirstProportion(in), SecondProportion(in)));
  SetNormalStatistic(details, test.Noncentrality(FirstProportion(in), SecondProportion(in)), 1, test.CriticalZ(),
                     TailsOf(in.Flag("one-sided"), true));
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

bool HasEqualGroups(const Inputs& in) { return in.List("n")[0] == in.List("n")[1]; }

Details DetailsOfTwoProportions(Question question, const Inputs& in) {
  const double p1 = FirstProportion(in);
  const double p2 = SecondProportion(in);
  Details details;
  if (!IsAboutPower(question)) {
    details = IntervalDetailsOfTwoProportions(in);
    details.Add("p1", "first proportion", p1);
    details.Add("p2", "second proportion", p2);
    return details;
  }
  if (HasMargins(in)) return MarginDetailsOfTwoProportions(in);
  const double n1 = in.List("n")[0];
  const double n2 = in.List("n")[1];
  const proportions::IndependentDesign design = DesignOf(in);
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
