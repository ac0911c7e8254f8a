#include "catalogue/proportion.h"
#include "proportions/one_sample_tests.h"

namespace planner {

namespace proportions = kelpower::proportions;

Details ExactDetailsOfProportion(proportions::OneSampleTest& test, const proportions::OneSampleProportions& expected,
                                 const Inputs& in) {
  const double n = in.Number("n");
  const proportions::CriticalRegion region = test.Region(n, expected);
  Details details;
  details.Add("rejects-to", "rejects up to this count (-1: none)", region.lower);
  details.Add("rejects-from", "rejects from this count on", region.upper);
  details.Add("attained-level", "significance level attained", test.AttainedLevel(n, expected));
  details.statistic = {.family = StatisticFamily::Count,
                       .trials = n,
                       .nullProportion = expected.null,
                       .proportion = expected.alternative,
                       .rejectsTo = region.lower,
                       .rejectsFrom = region.upper};
  details.formula =
      "power = P(X <= {rejects-to}) + P(X >= {rejects-from}), X binomial with n = {n} and p = {proportion}";
  details.source =
      "Cohen (1988), chapter 6; each tail rejects at most " + std::string(in.Flag("one-sided") ? "alpha" : "alpha / 2");
  const char* const balance =
      "each tail takes alpha / 2; the two-sided p-value of binom.test adds the counts that are "
      "no more probable than the observed one instead";
  details.equivalents = {
      {.program = "R",
       .call = "pbinom({rejects-to}, {n}, {proportion}) + pbinom({rejects-from} - 1, {n}, {proportion}, lower.tail = "
               "FALSE)",
       .remark = in.Flag("one-sided") ? "" : balance},
      {.program = "G*Power",
       .call = "Exact > Proportion: Difference from constant (binomial test, one sample case); tails {tails}, alpha "
               "{alpha}, {gpower-n}, constant proportion {null}",
       .remark = in.Flag("one-sided") ? "" : "with alpha / 2 on both sides"},
      {.program = "SAS",
       .call = "proc power; onesamplefreq test=exact nullproportion={null} proportion={proportion} sides={sides} "
               "alpha={alpha} ntotal={n} power=.; run;"}};
  return details;
}

}  // namespace planner
