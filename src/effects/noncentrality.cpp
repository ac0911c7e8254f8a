#include "effects/noncentrality.h"

#include <algorithm>
#include <cmath>

#include "frame/answer.h"
#include "frame/bracketed_root.h"
#include "frame/checks.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::effects {

using KelMath::KelDistFun;

namespace {

constexpr int mostDoublings = 400;  // of a bracket

/// The noncentrality at which T <= t has probability p, which falls as the noncentrality grows.
Answer LimitOfT(double t, double df, double p) {
  const auto excess = [&](double noncentrality) { return KelDistFun::NonCentralCdfT(t, df, noncentrality, 0) - p; };
  double width = 4 * std::sqrt(1 + t / df * (t / 2));
  double lower = t - width;
  double upper = t + width;
  for (int i = 0; i < mostDoublings && excess(lower) < 0; ++i) lower = t - (width *= 2);
  for (int i = 0; i < mostDoublings && excess(upper) > 0; ++i) upper = t + (width *= 2);
  return BracketedRoot(excess, lower, upper);
}

/// The noncentrality at which F' <= f has probability p; 0 where it has less without noncentrality.
Answer LimitOfF(double f, double df1, double df2, double p) {
  const auto excess = [&](double noncentrality) {
    return KelDistFun::NonCentralCdfF(f, df1, df2, noncentrality, 0) - p;
  };
  if (excess(0) <= 0) return 0;
  double upper = 2 * (f * df1 + df1) + 20;
  for (int i = 0; i < mostDoublings && excess(upper) > 0; ++i) upper *= 2;
  return BracketedRoot(excess, 0, upper);
}

std::optional<Interval> Between(const Answer& lower, const Answer& upper) {
  if (!lower || !upper) return std::nullopt;
  return Interval{*lower, *upper};
}

bool RejectsDf(double df) { return !(df > 0) || std::isinf(df); }

}  // namespace

// The lower limit is the upper one of -t, negated, so that both are found in a small tail.
std::optional<Interval> NoncentralityOfT(double t, double df, double alpha) {
  if (!std::isfinite(t)) return std::nullopt;
  if (RejectsDf(df)) return std::nullopt;
  if (!(alpha > 0 && alpha < 1)) return std::nullopt;
  const Answer mirrored = LimitOfT(-t, df, alpha / 2);
  return Between(mirrored ? Answer(-*mirrored) : mirrored, LimitOfT(t, df, alpha / 2));
}

std::optional<Interval> NoncentralityOfF(double f, double df1, double df2, double alpha) {
  if (!(f >= 0) || std::isinf(f)) return std::nullopt;
  if (RejectsDf(df1)) return std::nullopt;
  if (RejectsDf(df2)) return std::nullopt;
  if (!(alpha > 0 && alpha < 1)) return std::nullopt;
  return Between(LimitOfF(f, df1, df2, 1 - alpha / 2), LimitOfF(f, df1, df2, alpha / 2));
}

}  // namespace kelpower::effects
