#include "catalogue/chi_square.h"

#include <cmath>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/details.h"
#include "chi_square/power.h"

namespace planner {

namespace chi_square = kelpower::chi_square;

Parameter EffectW() {
  return Number("effect-w", "effect size w", "root of the sum of (expected - null)^2 / null over the cells")
      .Alias("w")
      .AtLeast(0)
      .AtMost(1e3);
}

Parameter DegreesOfFreedom() {
  return Number("df", "degrees of freedom", "degrees of freedom of chi-square").Whole().AtLeast(1).AtMost(1e6);
}

Parameter LikelihoodRatio() {
  return Flag("likelihood-ratio", "likelihood-ratio test",
              "the likelihood-ratio test in place of Pearson's; both differ for large effects only");
}

Parameter ProportionsOnAnyScale(Name name, std::string label, std::string meaning) {
  return List(name, std::move(label), std::move(meaning)).AtLeast(0).AtMost(1e12);
}

chi_square::Statistic StatisticOf(const Inputs& in) {
  using chi_square::Statistic;
  return in.Has("likelihood-ratio") && in.Flag("likelihood-ratio") ? Statistic::LikelihoodRatio : Statistic::Pearson;
}

void AddRoutes(std::vector<Route>& routes, const Names& needs, const Names& accepts, const ChiSquareDesign& design) {
  Names ofPower = needs;
  ofPower.push_back("n");
  routes.push_back(
      {.question = Question::Power, .needs = ofPower, .accepts = accepts, .value = [design](const Inputs& in) {
         return OrNaN(chi_square::Power(design.df(in), in.Alpha(), design.effect(in), in.Number("n")));
       }});
  routes.push_back(
      {.question = Question::SampleSize, .needs = needs, .accepts = accepts, .sizes = [design](const Inputs& in) {
         return RoundedUp(chi_square::SizeForPower(design.df(in), in.Alpha(), design.effect(in), in.Number("power")));
       }});
}

Condition HasChiSquareEffect(const Names& about, bool (*holds)(const Inputs&)) {
  return {.code = "no-effect",
          .about = about,
          .holds = holds,
          .sentence =
              "The proportions expected are those of the null hypothesis: without an effect, no sample size "
              "reaches the power."};
}

Details DetailsOfChiSquare(const Inputs& in, const ChiSquareDesign& design, const std::string& kind) {
  Details details;
  const auto test = chi_square::ChiSquareTest::Checked(design.df(in), in.Alpha());
  if (!test) return details;
  const bool isPearson = StatisticOf(in) == chi_square::Statistic::Pearson;
  const double noncentrality = in.Number("n") * design.effect(in);
  details.Add("w", isPearson ? "effect size w" : "root of the noncentrality of one observation",
              std::sqrt(design.effect(in)));
  details.Add("df", "degrees of freedom", test->Df());
  details.Add("critical-chi-square", "critical value of chi-square", test->Critical());
  details.Add("noncentrality", "noncentrality", noncentrality);
  details.value = OrNaN(test->Power(noncentrality));
  details.formula =
      "noncentrality = n w^2 = {n} x {w}^2 = {noncentrality}; power = P(chi-square > "
      "{critical-chi-square}), chi-square noncentral on {df} degrees of freedom";
  details.source =
      "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 7; Guenther "
      "(1977), The American Statistician 31, 83-85";
  if (!isPearson) {
    details.source +=
        "; noncentrality of the likelihood ratio: Drost, Kallenberg, Moore and Oosterhoff (1989), Journal "
        "of the American Statistical Association 84, 130-141";
  }
  details.equivalents = {
      {.program = "pwr", .call = "pwr.chisq.test(w = {w}, N = {n}, df = {df}, sig.level = {alpha})$power"},
      {.program = "R",
       .call = "pchisq(qchisq({alpha}, {df}, lower.tail = FALSE), {df}, {noncentrality}, lower.tail = FALSE)",
       .remark = "the formula, from the noncentrality on"},
      {.program = "G*Power",
       .call = "chi-square tests > Goodness-of-fit tests: " + kind +
               "; effect size w {w}, alpha {alpha}, {gpower-n}, Df {df}"}};
  return details;
}

}  // namespace planner
