#include "catalogue/details.h"
#include "proportions/one_sample_interval.h"
#include "proportions/one_sample_tests.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::OneSampleMethod;

/// Formula, source and call in R of an interval.
struct IntervalWords {
  const char* formula;
  const char* source;
  const char* call = "";
};

IntervalWords WordsOf(OneSampleMethod method, bool isCorrected) {
  switch (method) {
    case OneSampleMethod::Wald:
      if (isCorrected) return {"z sqrt(p (1 - p) / n) + 1 / (2 n)", "Fleiss, Levin and Paik (2003), section 2.4"};
      return {"z sqrt(p (1 - p) / n), z = {quantile-z}, p = {proportion}, n = {n}",
              "Agresti (2013), Categorical Data Analysis, 3rd ed., section 1.4",
              "qnorm(1 - {alpha} / 2) * sqrt({proportion} * (1 - {proportion}) / {n})"};
    case OneSampleMethod::Wilson:
      if (isCorrected)
        return {"half the length of Wilson's interval with continuity correction, z = {quantile-z}",
                "Newcombe (1998), Statistics in Medicine 17, 857-872"};
      return {"z sqrt(n) sqrt(p (1 - p) + z^2 / (4 n)) / (n + z^2), z = {quantile-z}, p = {proportion}, n = {n}",
              "Wilson (1927), Journal of the American Statistical Association 22, 209-212",
              "diff(prop.test({proportion} * {n}, {n}, conf.level = 1 - {alpha}, correct = FALSE)$conf.int) / 2"};
    case OneSampleMethod::ClopperPearson:
      return {"half the distance of the beta quantiles at n p = {proportion} x {n} successes",
              "Clopper and Pearson (1934), Biometrika 26, 404-413",
              "(qbeta(1 - {alpha} / 2, {proportion} * {n} + 1, {n} - {proportion} * {n}) - qbeta({alpha} / 2, "
              "{proportion} * {n}, {n} - {proportion} * {n} + 1)) / 2"};
    case OneSampleMethod::Jeffreys:
      return {"half the distance of the quantiles of a beta distribution with shapes n p + 1/2 and n (1 - p) + 1/2",
              "Brown, Cai and DasGupta (2001), Statistical Science 16, 101-133"};
    case OneSampleMethod::AgrestiCoull:
      return {"z sqrt(q (1 - q) / (n + z^2)), q = (n p + z^2 / 2) / (n + z^2), z = {quantile-z}",
              "Agresti and Coull (1998), American Statistician 52, 119-126"};
    case OneSampleMethod::Logit:
    case OneSampleMethod::LogitAdjusted:
      return {"half the length of the interval of the logit, transformed back, z = {quantile-z}",
              "Agresti (2013), Categorical Data Analysis, 3rd ed., section 1.4"};
  }
  return {};
}

Details OfHalfWidth(const Inputs& in) {
  const auto method = OneSampleMethod(in.Choice("interval-method"));
  const IntervalWords words = WordsOf(method, in.Flag("correction"));
  Details details;
  AddIntervalZ(details, in);
  details.value = proportions::OneSampleInterval({method, in.Number("proportion"), in.Alpha(), in.Flag("correction")})
                      .HalfWidth(in.Number("n"));
  details.formula = std::string("half-width = ") + words.formula;
  details.source = words.source;
  if (*words.call != '\0') details.equivalents = {{.program = "R", .call = words.call}};
  return details;
}

Details OfExactTest(proportions::OneSampleTest& test, const proportions::OneSampleProportions& expected,
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

Details OfNormalTest(const proportions::OneSampleTest& test, const proportions::OneSampleProportions& expected,
                     const Inputs& in) {
  const proportions::NormalStatistic of = test.Statistic(in.Number("n"), expected);
  Details details;
  AddCriticalZ(details, of.critical);
  details.Add("shift", "sqrt(n) (p0 - p)", of.shift);
  details.Add("null-sd", "standard deviation under the null hypothesis", of.nullSd);
  details.Add("sd", "standard deviation at the proportion expected", of.sd);
  if (in.Flag("correction")) details.Add("correction", "continuity correction", of.correction);
  SetNormalStatistic(details, -of.shift / of.nullSd, of.sd / of.nullSd, of.critical + of.correction / of.nullSd,
                     TailsOf(in.Flag("one-sided"), expected.alternative > expected.null));
  const std::string c = in.Flag("correction") ? " - {correction}" : "";
  const std::string below = "(({shift}) - {null-sd} * {critical-z}" + c + ") / {sd}";
  const std::string above = "(-({shift}) - {null-sd} * {critical-z}" + c + ") / {sd}";
  const bool isOneSided = in.Flag("one-sided");
  const bool isAbove = expected.alternative > expected.null;
  details.formula = "power = ";
  std::string call;
  if (!isOneSided || !isAbove) {
    details.formula += "Phi(" + below + ")";
    call += "pnorm(" + below + ")";
  }
  if (!isOneSided) {
    details.formula += " + ";
    call += " + ";
  }
  if (!isOneSided || isAbove) {
    details.formula += "Phi(" + above + ")";
    call += "pnorm(" + above + ")";
  }
  details.source = "Fleiss, Levin and Paik (2003), Statistical Methods for Rates and Proportions, 3rd ed., section 2.5";
  details.equivalents = {
      {.program = "R", .call = call, .remark = "the formula, from the statistic on"},
      {.program = "pwr",
       .call = "pwr.p.test({n-or-power}, h = ES.h({proportion}, {null}), sig.level = {alpha}, alternative = "
               "{r-proportion-direction}){answer}",
       .isSame = false,
       .remark = "compares arcsines of roots of the proportions"},
      {.program = "SAS",
       .call = std::string("proc power; onesamplefreq test=") + (in.Flag("correction") ? "adjz" : "z") +
               " method=normal nullproportion={null} proportion={proportion} sides={sides} alpha={alpha} "
               "ntotal={n-or-dot} power={power-or-dot}; run;"}};
  return details;
}

}  // namespace

Details DetailsOfProportion(Question question, const Inputs& in) {
  if (!IsAboutPower(question)) return OfHalfWidth(in);
  const proportions::OneSampleProportions expected{in.Number("proportion"), in.Number("null")};
  proportions::OneSampleTest test({in.Flag("exact"), in.Flag("one-sided"), in.Alpha(), in.Flag("correction")});
  Details details = in.Flag("exact") ? OfExactTest(test, expected, in) : OfNormalTest(test, expected, in);
  details.value = OrNaN(test.Power(in.Number("n"), expected));
  return details;
}

}  // namespace planner
