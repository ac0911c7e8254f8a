#include <cmath>
#include <utility>

#include "catalogue/correlation_parameters.h"
#include "catalogue/details.h"
#include "correlation/pearson.h"
#include "correlation/spearman.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

/// What is behind the power of a test by Fisher's z, from its normal statistic.
Details OfPower(const correlation::Level& level, const correlation::ShiftedNormal& statistic, const Inputs& in) {
  const bool isAbove = in.Number("r") > in.Number("null");
  Details details;
  AddCriticalZ(details, level.critical);
  details.Add("shift", "mean of the statistic", statistic.shift);
  details.Add("spread", "standard deviation of the statistic", statistic.spread);
  SetNormalStatistic(details, statistic.shift, statistic.spread, level.critical, TailsOf(level.isOneSided, isAbove));
  details.value = level.Power(statistic.shift, statistic.spread, isAbove);
  std::string tails = "Phi((m - z) / s) + Phi((-m - z) / s)";
  if (level.isOneSided) tails = isAbove ? "Phi((m - z) / s)" : "Phi((-m - z) / s)";
  details.formula = "power = " + tails + ", z = {critical-z}, m = {shift}, s = {spread}";
  const std::string above = "pnorm(({shift} - {critical-z}) / {spread})";
  const std::string below = "pnorm((-({shift}) - {critical-z}) / {spread})";
  details.equivalents = {{.program = "R",
                          .call = level.isOneSided ? (isAbove ? above : below) : above + " + " + below,
                          .remark = "the formula, from the statistic on"}};
  return details;
}

Details OfInterval(const Inputs& in, double error, double halfWidth) {
  Details details;
  AddIntervalZ(details, in);
  details.Add("z-of-r", "Fisher's z of the correlation", std::atanh(in.Number("r")));
  details.Add("standard-error", "standard error of Fisher's z", error);
  details.value = halfWidth;
  details.formula =
      "half-width = (tanh(z + h) - tanh(z - h)) / 2, z = atanh(r) = {z-of-r}, h = {quantile-z} x "
      "{standard-error}";
  return details;
}

void AddRInterval(Details& details) {
  const std::string reach = "qnorm(1 - {alpha} / 2) * {standard-error}";
  details.equivalents = {
      {.program = "R", .call = "(tanh(atanh({r}) + " + reach + ") - tanh(atanh({r}) - " + reach + ")) / 2"}};
}

double PartialledOut(const Inputs& in) { return in.Has("partialled-out") ? in.Number("partialled-out") : 0; }

Details OfPearsonInterval(const correlation::PearsonInterval& interval, const Inputs& in) {
  const double n = in.Number("n");
  Details details = OfInterval(in, 1 / std::sqrt(n - 3 - interval.partialledOut), correlation::HalfWidth(interval, n));
  details.source = "Fisher (1921), Metron 1, 3-32: variance 1 / (n - 3 - k), k variables partialled out";
  if (!interval.isCorrected) {
    AddRInterval(details);
    return details;
  }
  details.formula += ", z less the bias r / (2 (n - 1))";
  return details;
}

Details OfPearsonTest(const correlation::PearsonTest& test, const Inputs& in) {
  Details details = OfPower(test.level, correlation::UnderAlternative(test, in.Number("n"), HypothesesOf(in)), in);
  details.formula += "; m = (atanh(r) - atanh(r0){bias}) sqrt(n - 3 - k)";
  details.source = test.isCorrected ? "Fisher (1921), Metron 1, 3-32; Hotelling (1953), Journal of the Royal "
                                      "Statistical Society B 15, 193-232: mean and variance of z to the second order"
                                    : "Fisher (1921), Metron 1, 3-32: variance of z 1 / (n - 3)";
  const std::string bias = test.isCorrected ? " + bias" : "";
  details.formula.replace(details.formula.find("{bias}"), 6, bias);
  return details;
}

}  // namespace

Details DetailsOfPearson(Question question, const Inputs& in) {
  const bool isCorrected = in.Flag("adjust-bias");
  if (!IsAboutPower(question)) {
    return OfPearsonInterval({correlation::Confidence(in.Alpha()), in.Number("r"), 0, isCorrected}, in);
  }
  Details details = OfPearsonTest({{in.Alpha(), in.Flag("one-sided")}, 0, isCorrected}, in);
  if (in.Number("null") == 0) {
    details.equivalents.push_back(
        {.program = "pwr",
         .call = "pwr.r.test({n-or-power}, r = {r}, sig.level = {alpha}, alternative = {r-direction}){answer}",
         .isSame = false,
         .remark = "takes the critical value from t on n - 2 degrees of freedom, and corrects z for bias to the first "
                   "order"});
  }
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = "Exact > Correlation: Bivariate normal model; tails {tails}, correlation rho H1 {r}, alpha {alpha}, "
               "{gpower-n}, correlation rho H0 {null}",
       .isSame = false,
       .remark = "takes the exact distribution of r in place of Fisher's z"});
  details.equivalents.push_back(
      {.program = "SAS",
       .call = "proc power; onecorr dist=fisherz nullcorr={null} corr={r} sides={sides} alpha={alpha} "
               "ntotal={n-or-dot} power={power-or-dot}; run;",
       .isSame = isCorrected,
       .remark = "corrects the mean and the variance of z for bias, as --adjust-bias does"});
  return details;
}

Details DetailsOfPartial(Question question, const Inputs& in) {
  const double k = PartialledOut(in);
  if (!IsAboutPower(question)) {
    return OfPearsonInterval({correlation::Confidence(in.Alpha()), in.Number("r"), k, false}, in);
  }
  Details details = OfPearsonTest({{in.Alpha(), in.Flag("one-sided")}, k, true}, in);
  details.equivalents.push_back(
      {.program = "SAS",
       .call = "proc power; onecorr dist=fisherz npartialvars={partialled-out} nullcorr={null} corr={r} sides={sides} "
               "alpha={alpha} ntotal={n-or-dot} power={power-or-dot}; run;"});
  return details;
}

Details DetailsOfSpearman(Question question, const Inputs& in) {
  const auto variance = correlation::RankVariance(in.Choice("variance"));
  const double n = in.Number("n");
  Details details;
  if (IsAboutPower(question)) {
    const correlation::SpearmanTest test{{in.Alpha(), in.Flag("one-sided")}, variance};
    details = OfPower(test.level, correlation::UnderAlternative(test, n, HypothesesOf(in)), in);
    details.formula += "; m = (atanh(r) - atanh(r0)) / standard error of z";
  } else {
    const double absoluteZ = std::abs(std::atanh(in.Number("r")));
    const correlation::SpearmanInterval interval{correlation::Confidence(in.Alpha()), in.Number("r"), variance};
    details = OfInterval(in, correlation::StandardError(variance, n, in.Number("r"), absoluteZ),
                         correlation::HalfWidth(interval, n));
    AddRInterval(details);
  }
  switch (variance) {
    case correlation::RankVariance::BonettWright:
      details.source = "Bonett and Wright (2000), Psychometrika 65, 23-28: variance of z (1 + r^2 / 2) / (n - 3)";
      break;
    case correlation::RankVariance::FiellerHartleyPearson:
      details.source = "Fieller, Hartley and Pearson (1957), Biometrika 44, 470-481: variance of z 1.06 / (n - 3)";
      break;
    case correlation::RankVariance::CarusoCliff:
      details.source =
          "Caruso and Cliff (1997), Educational and Psychological Measurement 57, 637-654: variance of z "
          "1 / (n - 2) + |z| / (6 n + 4 sqrt(n))";
      break;
  }
  return details;
}

}  // namespace planner
