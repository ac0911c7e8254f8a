#include <limits>

#include "kelcommon/distributions.h"
#include "support/share_of_studies.h"
#include "validation/study.h"

namespace kelpower::validation {
namespace {

/// Of a statistic that is 1 on average without an effect.
Rejection RejectionOfRatio(Inputs& inputs, double ratio, const std::function<double(double)>& lower,
                           const std::function<double(double)>& upper) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const double alpha = inputs.Alpha();
  if (!inputs.Flag("one-sided")) return {lower(alpha / 2), upper(alpha / 2)};
  return ratio < 1 ? Rejection{lower(alpha), infinity} : Rejection{-infinity, upper(alpha)};
}

}  // namespace

Study OfVariance(Inputs& inputs) {
  const int n = inputs.Whole("n");
  double ratio = 0;
  if (inputs.Has("variance-ratio")) {
    ratio = inputs.Number("variance-ratio");
  } else {
    ratio = std::pow(inputs.Number("sd") / inputs.Number("null-sd"), 2);
  }
  const Rejection rejects = RejectionOfRatio(
      inputs, ratio, [n](double tail) { return kelcommon::IdfChiSquare(tail, n - 1); },
      [n](double tail) { return kelcommon::IsfChiSquare(tail, n - 1); });
  return {true, [=](Engine& engine) { return rejects((n - 1) * DrawNormal(engine, n, 3, std::sqrt(ratio)).variance); }};
}

Study OfTwoVariances(Inputs& inputs) {
  const Numbers n = inputs.PerGroup("n", 2);
  Numbers sds{1, 1};
  if (inputs.Has("variance-ratio")) {
    sds[0] = std::sqrt(inputs.Number("variance-ratio"));
  } else {
    sds = inputs.List("sd");
  }
  const double df1 = n[0] - 1;
  const double df2 = n[1] - 1;
  const Rejection rejects = RejectionOfRatio(
      inputs, sds[0] / sds[1], [=](double tail) { return 1 / UpperF(tail, df2, df1); },
      [=](double tail) { return UpperF(tail, df1, df2); });
  return {true, [=](Engine& engine) {
            const double first = DrawNormal(engine, static_cast<int>(n[0]), 1, sds[0]).variance;
            return rejects(first / DrawNormal(engine, static_cast<int>(n[1]), 2, sds[1]).variance);
          }};
}

}  // namespace kelpower::validation
