#include "catalogue/ordinal.h"
#include "catalogue/ranks.h"

namespace planner {
namespace {

namespace ranks = kelpower::ranks;
using ranks::OrdinalMethod;

struct Said {
  const char* formula;  // of the statistic, its standard deviation and that without an effect
  const char* source;
};

Said SaidOf(OrdinalMethod method) {
  switch (method) {
    case OrdinalMethod::LogOdds:
      return {
          "e = |log(p / (1 - p))| = {effect}, s = sqrt(v1 / n1 + v2 / n2) / (p (1 - p)) = {sd-with-effect}, s0 = 4 "
          "sqrt(v0 (1 / n1 + 1 / n2)) = {null-sd}",
          "O'Brien and Castelloe (2006), SUGI 31, paper 209"};
    case OrdinalMethod::ProportionalOdds:
      return {"e = |log odds ratio| = {effect}, s = s0 = sqrt((1 / n1 + 1 / n2) / (4 v0)) = {null-sd}",
              "Whitehead (1993), Statistics in Medicine 12, 2257-2271"};
    case OrdinalMethod::Probability: break;
  }
  return {
      "e = |p - 1/2| = {effect}, s = sqrt(v1 / n1 + v2 / n2) = {sd-with-effect}, s0 = sqrt(v0 (1 / n1 + 1 / n2)) = "
      "{null-sd}",
      "Happ, Bathke and Brunner (2019), Statistics in Medicine 38, 363-375"};
}

void AddMoments(Details& details, const ranks::OrdinalMoments& moments) {
  details.Add("p", "probability of superiority", 0.5 + moments.excess);
  details.Add("v1", "variance of shares of the second group below the first", moments.firstVariance);
  details.Add("v2", "variance of shares of the first group below the second", moments.secondVariance);
  details.Add("v0", "variance of shares in the mixture of the groups", moments.mixtureVariance);
}

/// "1 2 3" of three categories.
std::string CategoryNumbers(std::size_t categories) {
  std::string numbers = "1";
  for (std::size_t i = 2; i <= categories; ++i) numbers += ' ' + std::to_string(i);
  return numbers;
}

void AddSas(Details& details, const Inputs& in) {
  if (!in.Has("probabilities2") || OrdinalTestOf(in).method != OrdinalMethod::LogOdds) return;
  const bool isBalanced = in.List("n")[0] == in.List("n")[1];
  const std::string numbers = CategoryNumbers(in.List("probabilities1").size());
  details.equivalents.push_back(
      {.program = "SAS",
       .call = "proc power; twosamplewilcoxon vardist(\"first\") = ordinal((" + numbers +
               ") : ({probabilities1_})) vardist(\"second\") = ordinal((" + numbers +
               ") : ({probabilities2_})) variables=\"first\" | \"second\" sides={sides} alpha={alpha} " +
               (isBalanced ? "npergroup={n-or-dot} power={power-or-dot}; run;" : "groupns={n|} power=.; run;")});
}

}  // namespace

Details DetailsOfOrdinal(Question, const Inputs& in) {
  const ranks::OrdinalTest test = OrdinalTestOf(in);
  const ranks::OrderedGroups groups = OrderedGroupsOf(in);
  const double n1 = in.List("n")[0];
  const double n2 = in.List("n")[1];
  Details details;
  const auto moments = ranks::MomentsOf(groups, n1 / (n1 + n2));
  const auto statistic = ranks::StatisticOf(test, groups, n1, n2);
  if (!moments || !statistic) return details;
  AddMoments(details, *moments);
  AddNearlyNormal(details, ranks::NormalTest(test.sides, test.alpha), *statistic, IsOneSided(in));
  const Said said = SaidOf(test.method);
  details.formula = std::string("power = Phi((e - t) / s)") + (IsOneSided(in) ? "" : " + Phi((-e - t) / s)") + ", " +
                    said.formula + ", t = z s0 = {threshold}, z = {critical-z}; p = {p}, v0 = {v0}";
  details.source = said.source;
  AddSas(details, in);
  return details;
}

}  // namespace planner
