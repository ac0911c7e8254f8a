#include "catalogue/mann_whitney.h"
#include "catalogue/ranks.h"

namespace planner {
namespace {

namespace ranks = kelpower::ranks;
using ranks::Parent;

void AddGPower(Details& details, const Inputs& in, const std::string& method) {
  const std::string parent = ParentInGPower(ParentOf(in));
  if (parent.empty()) return;
  details.equivalents.push_back({.program = "G*Power",
                                 .call = "t tests > Means: Wilcoxon-Mann-Whitney test (two groups); tails {tails}, "
                                         "parent distribution " +
                                         parent + ", effect size d {d}, alpha {alpha}, {gpower-n}; Options > " +
                                         method});
}

void AddD(Details& details, const Inputs& in) {
  const double d = in.Number("effect-d");
  details.Add("d", "effect size d", IsOneSided(in) ? std::abs(d) : d);
}

void AddEfficiency(Details& details, const Inputs& in) {
  const Parent parent = ParentOf(in);
  const auto equivalent =
      ranks::ByEfficiency(MannWhitneyTestOf(in), parent, in.Number("effect-d"), in.List("n")[0], in.List("n")[1]);
  if (!equivalent) return;
  AddD(details, in);
  details.Add("efficiency", "asymptotic relative efficiency k", ranks::RelativeEfficiency(parent));
  AddTTest(details, equivalent->test, equivalent->noncentrality, IsOneSided(in),
           "the t test on k = {efficiency} times the sizes: noncentrality = |d| sqrt(k n1 n2 / (n1 + n2))");
  details.source =
      "Lehmann (1975), Nonparametrics: Statistical Methods Based on Ranks, section 2.4; Al-Sunduqchi (1990), "
      "dissertation, University of Wyoming";
  AddGPower(details, in, "A.R.E. method");
}

void AddNoether(Details& details, const Inputs& in) {
  const ranks::TwoGroupTest design = MannWhitneyTestOf(in);
  const auto statistic = ranks::ByNoether(design, SuperiorityOf(in), in.List("n")[0], in.List("n")[1]);
  if (!statistic) return;
  AddNearlyNormal(details, ranks::NormalTest(design.sides, design.alpha), *statistic, IsOneSided(in));
  details.formula = std::string("power = Phi((e - t) / s)") + (IsOneSided(in) ? "" : " + Phi((-e - t) / s)") +
                    ", e = |p - 1/2| = {effect}, s = sqrt((1 / n1 + 1 / n2) / 12) = {sd-with-effect}, t = z s = "
                    "{threshold}, z = {critical-z}";
  details.source = "Noether (1987), Journal of the American Statistical Association 82, 645-647";
}

void AddLehmann(Details& details, const Inputs& in) {
  const ranks::TwoGroupTest design = MannWhitneyTestOf(in);
  const auto statistic =
      ranks::ByMoments(design, ParentOf(in), in.Number("effect-d"), in.List("n")[0], in.List("n")[1]);
  if (!statistic) return;
  AddD(details, in);
  details.Add("both", "probability that a value exceeds two of the other group",
              ranks::Shifted(ParentOf(in), std::abs(in.Number("effect-d"))).both);
  AddNearlyNormal(details, ranks::NormalTest(design.sides, design.alpha), *statistic, IsOneSided(in));
  details.formula =
      std::string("power = Phi((e - t) / s)") + (IsOneSided(in) ? "" : " + Phi((-e - t) / s)") +
      ", e = p - 1/2 = {effect}, s from p and p2 = {both} as {sd-with-effect}, t = z s0 + 1 / (2 n1 n2) = "
      "{threshold}, s0 = sqrt((n1 + n2 + 1) / (12 n1 n2)) = {null-sd}, z = {critical-z}";
  details.source = "Lehmann (1975), Nonparametrics: Statistical Methods Based on Ranks, section 2.3";
  AddGPower(details, in, "Lehmann method");
}

}  // namespace

Details DetailsOfMannWhitney(Question, const Inputs& in) {
  Details details;
  switch (RankMethodOf(in)) {
    case RankMethod::Efficiency: AddEfficiency(details, in); break;
    case RankMethod::Noether: AddNoether(details, in); break;
    case RankMethod::Lehmann: AddLehmann(details, in); break;
  }
  return details;
}

}  // namespace planner
