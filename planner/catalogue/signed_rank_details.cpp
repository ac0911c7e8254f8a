#include "catalogue/ranks.h"
#include "catalogue/signed_rank.h"

namespace planner {
namespace {

namespace ranks = kelpower::ranks;

void AddD(Details& details, const Inputs& in) {
  const double d = in.Number("effect-d");
  details.Add("d", "effect size d", IsOneSided(in) ? std::abs(d) : d);
}

void AddGPower(Details& details, const Inputs& in, const std::string& method) {
  const std::string parent = ParentInGPower(ParentOf(in));
  if (parent.empty()) return;
  details.equivalents.push_back({.program = "G*Power",
                                 .call = "t tests > Means: Wilcoxon signed-rank test (one sample case); tails {tails}, "
                                         "parent distribution " +
                                         parent + ", effect size d {d}, alpha {alpha}, {gpower-n}; Options > " +
                                         method});
}

void AddEfficiency(Details& details, const Inputs& in) {
  const ranks::Parent parent = ParentOf(in);
  const auto equivalent = ranks::ByEfficiency(SignedRankTestOf(in), parent, in.Number("effect-d"), in.Number("n"));
  if (!equivalent) return;
  AddD(details, in);
  details.Add("efficiency", "asymptotic relative efficiency k", ranks::RelativeEfficiency(parent));
  AddTTest(details, equivalent->test, equivalent->noncentrality, IsOneSided(in),
           "the t test on k = {efficiency} times the size: noncentrality = |d| sqrt(k n)");
  details.source = "Lehmann (1975), Nonparametrics: Statistical Methods Based on Ranks, section 4.3";
  AddGPower(details, in, "A.R.E. method");
}

void AddNoether(Details& details, const Inputs& in) {
  const ranks::SignedRankTest design = SignedRankTestOf(in);
  const auto statistic = ranks::ByNoether(design, PositiveAverageOf(in), in.Number("n"));
  if (!statistic) return;
  AddNearlyNormal(details, ranks::NormalTest(design.sides, design.alpha), *statistic, IsOneSided(in));
  details.formula = std::string("power = Phi((e - t) / s)") + (IsOneSided(in) ? "" : " + Phi((-e - t) / s)") +
                    ", e = |p' - 1/2| = {effect}, s = 1 / sqrt(3 n) = {sd-with-effect}, t = z s = {threshold}, z = "
                    "{critical-z}";
  details.source = "Noether (1987), Journal of the American Statistical Association 82, 645-647";
}

void AddLehmann(Details& details, const Inputs& in) {
  const ranks::SignedRankTest design = SignedRankTestOf(in);
  const auto statistic = ranks::ByMoments(design, ParentOf(in), in.Number("effect-d"), in.Number("n"));
  if (!statistic) return;
  const double distance = std::abs(in.Number("effect-d"));
  const ranks::ShiftProbabilities averages = ranks::Shifted(ParentOf(in), 2 * distance);
  AddD(details, in);
  details.Add("p1", "probability of a positive difference", ranks::Probability(ParentOf(in), distance));
  details.Add("p2", "probability of a positive average", 0.5 + averages.excess);
  details.Add("p3", "probability of two positive averages with a difference in common", averages.both);
  AddNearlyNormal(details, ranks::NormalTest(design.sides, design.alpha), *statistic, IsOneSided(in));
  details.formula = std::string("power = Phi((e - t) / s)") + (IsOneSided(in) ? "" : " + Phi((-e - t) / s)") +
                    ", of the share of positive averages less 1/2: e = {effect} and s = {sd-with-effect} from p1 = "
                    "{p1}, p2 = {p2} and p3 = {p3}, t = z s0 = {threshold}, s0 = sqrt((2 n + 1) / (6 n (n + 1))) = "
                    "{null-sd}, z = {critical-z}";
  details.source = "Lehmann (1975), Nonparametrics: Statistical Methods Based on Ranks, section 4.2";
  AddGPower(details, in, "Lehmann method");
}

}  // namespace

Details DetailsOfSignedRank(Question, const Inputs& in) {
  Details details;
  switch (RankMethodOf(in)) {
    case RankMethod::Efficiency: AddEfficiency(details, in); break;
    case RankMethod::Noether: AddNoether(details, in); break;
    case RankMethod::Lehmann: AddLehmann(details, in); break;
  }
  return details;
}

}  // namespace planner
