#include "catalogue/details.h"
#include "catalogue/paired_proportions.h"
#include "proportions/mcnemar.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

void AddNormal(Details& details, const proportions::McNemarTest& test, const proportions::DiscordantPairs& pairs,
               const Inputs& in) {
  const proportions::PairedStatistic of = test.Statistic(in.Number("n"), pairs);
  AddCriticalZ(details, of.critical);
  details.Add("shift", "sqrt(n) (p12 - p21)", of.shift);
  details.Add("null-sd", "standard deviation under the null hypothesis", of.nullSd);
  details.Add("sd", "standard deviation at the proportions expected", of.sd);
  SetNormalStatistic(details, of.shift / of.nullSd, of.sd / of.nullSd, of.critical,
                     TailsOf(in.Flag("one-sided"), pairs.p12 > pairs.p21));
  const std::string above = "(({shift}) - {null-sd} * {critical-z}) / {sd}";
  const std::string below = "(-({shift}) - {null-sd} * {critical-z}) / {sd}";
  std::string formula = "Phi(" + above + ") + Phi(" + below + ")";
  std::string call = "pnorm(" + above + ") + pnorm(" + below + ")";
  if (in.Flag("one-sided")) {
    const std::string& tail = pairs.p12 > pairs.p21 ? above : below;
    formula = "Phi(" + tail + ")";
    call = "pnorm(" + tail + ")";
  }
  details.formula = "power = " + formula;
  details.source = "Connor (1987), Biometrics 43, 207-211";
  details.equivalents = {{.program = "R", .call = call, .remark = "the formula, from the statistic on"},
                         {.program = "SAS",
                          .call = "proc power; pairedfreq test=mcnemar dist=normal method=connor "
                                  "discproportions={p12-expected}|{p21-expected} sides={sides} alpha={alpha} "
                                  "npairs={n-or-dot} power={power-or-dot}; run;"}};
}

void AddExact(Details& details, proportions::McNemarTest& test, const proportions::DiscordantPairs& pairs,
              const Inputs& in) {
  details.Add("attained-level", "significance level attained", OrNaN(test.AttainedLevel(in.Number("n"), pairs)));
  details.formula =
      "power = the mean, over the binomial number m of discordant pairs among {n}, of the power of the "
      "sign test of m pairs";
  details.source =
      std::string("Miettinen (1968), Biometrics 24, 339-352; each tail of the sign test rejects at most ") +
      (in.Flag("one-sided") ? "alpha" : "alpha / 2");
  details.equivalents = {{.program = "SAS",
                          .call = "proc power; pairedfreq test=mcnemar dist=exact_cond "
                                  "discproportions={p12-expected}|{p21-expected} sides={sides} alpha={alpha} "
                                  "npairs={n} power=.; run;"}};
  if (!in.Flag("one-sided")) return;
  details.equivalents.insert(
      details.equivalents.begin(),
      {.program = "R",
       .call = "sum(sapply(1:{n}, function(m) dbinom(m, {n}, {proportion-discordant}) * pbinom(qbinom({alpha}, m, 0.5) "
               "- (pbinom(qbinom({alpha}, m, 0.5), m, 0.5) > {alpha}), m, min({p12-expected}, {p21-expected}) / "
               "{proportion-discordant})))",
       .remark = "the formula, pair by pair"});
}

}  // namespace

Details DetailsOfPairedProportions(Question question, const Inputs& in) {
  if (!IsAboutPower(question)) return IntervalDetailsOfPairedProportions(in);
  const proportions::DiscordantPairs pairs = DiscordantPairsOf(in);
  proportions::McNemarTest test({in.Flag("exact"), in.Flag("one-sided"), in.Alpha()});
  Details details;
  details.Add("p12-expected", "pairs with success first and failure second", pairs.p12);
  details.Add("p21-expected", "pairs with failure first and success second", pairs.p21);
  details.Add("proportion-discordant", "discordant pairs", pairs.p12 + pairs.p21);
  if (in.Flag("exact")) {
    AddExact(details, test, pairs, in);
  } else {
    AddNormal(details, test, pairs, in);
  }
  details.value = OrNaN(test.Power(in.Number("n"), pairs));
  return details;
}

}  // namespace planner
