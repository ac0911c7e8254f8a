#include "catalogue/correlation_details.h"

#include <cmath>

#include "catalogue/correlation_parameters.h"
#include "catalogue/details.h"

namespace planner {

namespace correlation = kelpower::correlation;

Details DetailsOfShift(const correlation::Level& level, const correlation::ShiftedNormal& statistic, const Inputs& in) {
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

Details DetailsOfZInterval(const Inputs& in, double error, double halfWidth) {
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

Details DetailsOfPearsonInterval(const correlation::PearsonInterval& interval, const Inputs& in) {
  const double n = in.Number("n");
  Details details =
      DetailsOfZInterval(in, 1 / std::sqrt(n - 3 - interval.partialledOut), correlation::HalfWidth(interval, n));
  details.source = "Fisher (1921), Metron 1, 3-32: variance 1 / (n - 3 - k), k variables partialled out";
  if (!interval.isCorrected) {
    AddRInterval(details);
    return details;
  }
  details.formula += ", z less the bias r / (2 (n - 1))";
  return details;
}

Details DetailsOfPearsonTest(const correlation::PearsonTest& test, const Inputs& in) {
  Details details =
      DetailsOfShift(test.level, correlation::UnderAlternative(test, in.Number("n"), HypothesesOf(in)), in);
  details.formula += "; m = (atanh(r) - atanh(r0){bias}) sqrt(n - 3 - k)";
  details.source = test.isCorrected ? "Fisher (1921), Metron 1, 3-32; Hotelling (1953), Journal of the Royal "
                                      "Statistical Society B 15, 193-232: mean and variance of z to the second order"
                                    : "Fisher (1921), Metron 1, 3-32: variance of z 1 / (n - 3)";
  const std::string bias = test.isCorrected ? " + bias" : "";
  details.formula.replace(details.formula.find("{bias}"), 6, bias);
  return details;
}

}  // namespace planner
