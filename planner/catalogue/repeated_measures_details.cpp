#include <cmath>

#include "catalogue/axes.h"
#include "catalogue/details.h"
#include "catalogue/repeated_measures.h"

namespace planner {
namespace {

using kelpower::anova::RepeatedEffect;
using kelpower::anova::RepeatedF;

/// How the noncentrality follows from f and the total size.
std::string Formula(RepeatedEffect effect, RepeatedF kind) {
  const bool isBetween = effect == RepeatedEffect::Between;
  switch (kind) {
    case RepeatedF::Means:
      return isBetween ? "noncentrality = N m f^2 / (1 + (m - 1) rho) = {total} x {measurements} x {f}^2 / (1 + "
                         "({measurements} - 1) x {correlation})"
                       : "noncentrality = N m f^2 epsilon / (1 - rho) = {total} x {measurements} x {f}^2 x {epsilon} / "
                         "(1 - {correlation})";
    case RepeatedF::Sample: return "noncentrality = df2 f^2 = {df2} x {f}^2";
    case RepeatedF::Cohen: break;
  }
  return isBetween ? "noncentrality = N f^2 = {total} x {f}^2"
                   : "noncentrality = N (m - 1) f^2 epsilon = {total} x ({measurements} - 1) x {f}^2 x {epsilon}";
}

constexpr const char* formulaOfContrast =
    "noncentrality = N m f^2 / (1 - rho) = {total} x {measurements} x {f}^2 / (1 - {correlation})";

const char* NameInGPower(RepeatedEffect effect) {
  switch (effect) {
    case RepeatedEffect::Between: return "between factors";
    case RepeatedEffect::Within: return "within factors";
    case RepeatedEffect::Interaction: break;
  }
  return "within-between interaction";
}

}  // namespace

Details DetailsOfRepeatedMeasures(Question, const Inputs& in) {
  Details details;
  const auto design = RepeatedDesignOf(in);
  const double total = TotalSize(in);
  const auto test = RepeatedTestOf(in);
  if (!test.AtCriticalValue()) return details;
  const RepeatedF kind = in.Has("means") ? RepeatedF::Means : RepeatedFOf(in);
  const double noncentrality = NoncentralityOfRepeatedMeasures(in);
  details.Add("f", "effect size f", std::sqrt(noncentrality / design.NoncentralityOfF(1, kind, total)));
  AddFTest(details, *test.AtCriticalValue(), noncentrality,
           in.Has("coefficients") ? formulaOfContrast : Formula(design.effect, kind));
  details.source =
      EpsilonOf(in) < 1
          ? "Muller and Barton (1989), Journal of the American Statistical Association 84:549-555"
          : "Faul, Erdfelder, Lang and Buchner (2007), Behavior Research Methods 39:175-191, with the noncentral F "
            "distribution";
  details.equivalents = {
      {.program = "R",
       .call = "pf(qf(1 - {alpha}, {df1}, {df2}), {df1}, {df2}, {noncentrality}, lower.tail = FALSE)",
       .remark = "the formula, from the noncentrality on"}};
  if (kind != RepeatedF::Means || in.Has("coefficients")) return details;
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = std::string("F tests > ANOVA: Repeated measures, ") + NameInGPower(design.effect) +
               "; effect size f {f}, alpha {alpha}, number of groups {groups}, number of measurements {measurements}, "
               "correlation among repeated measures {correlation}, nonsphericity correction {epsilon}, {gpower-n}",
       .remark = "the sample size is the total"});
  return details;
}

}  // namespace planner
