#include "catalogue/details.h"
#include "catalogue/proportion.h"
#include "proportions/one_sample_interval.h"

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

}  // namespace

Details IntervalDetailsOfProportion(const Inputs& in) {
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

}  // namespace planner
