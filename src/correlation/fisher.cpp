#include "correlation/fisher.h"

#include <cmath>
#include <limits>

#include "frame/checks.h"
#include "frame/increasing_search.h"
#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::correlation {

using KelMath::KelDistFun;

namespace {

constexpr double sizeTolerance = 1e-9;

}  // namespace

Level::Level(double level, bool oneSided)
    : alpha(level), isOneSided(oneSided), critical(KelDistFun::IdfStdNorm(1 - (isOneSided ? alpha : alpha / 2))) {}

double Level::Power(double shift, double spread, bool isAbove) const {
  const auto above = [&] { return KelDistFun::CdfStdNorm((shift - critical) / spread); };
  const auto below = [&] { return 1 - KelDistFun::CdfStdNorm((shift + critical) / spread); };
  if (!isOneSided) return above() + below();
  return isAbove ? above() : below();
}

Confidence::Confidence(double alpha) : quantile(KelDistFun::IdfStdNorm(1 - alpha / 2)) {}

bool Rejects(const Hypotheses& hypotheses, const Level& level) {
  if (RejectsCorrelation(hypotheses.alternative)) return true;
  if (RejectsCorrelation(hypotheses.null)) return true;
  return RejectsOpenUnit(level.alpha);
}

double FisherDifference(const Hypotheses& hypotheses) {
  constexpr double largest = std::numeric_limits<double>::max();
  const auto& [alternative, null] = hypotheses;
  if (std::fabs(alternative) < 1 && std::fabs(null) < 1) return std::atanh(alternative) - std::atanh(null);
  if (null == -1 || alternative == 1) return largest;
  if (alternative == -1 || null == 1) return -largest;
  return std::numeric_limits<double>::quiet_NaN();
}

// (tanh(z + h) - tanh(z - h)) / 2 = sinh 2h / (cosh 2z + cosh 2h) = tanh 2h / (1 + cosh 2z / cosh 2h)
double BackTransformedHalfWidth(double z, double h) {
  const double ratio = std::exp(2 * (std::fabs(z) - std::fabs(h))) * (1 + std::exp(-4 * std::fabs(z))) /
                       (1 + std::exp(-4 * std::fabs(h)));
  return std::tanh(2 * h) / (1 + ratio);
}

Answer SizeForPower(FunctionView<double(double)> powerAt, bool neverFalls, const Bracket& bracket, double power,
                    Stop stop) {
  const auto& [lower, upper] = bracket;
  return neverFalls ? SolveIncreasingPower(lower, upper, sizeTolerance, powerAt, power, stop)
                    : SolvePower(lower, upper, sizeTolerance, powerAt, power, stop);
}

Answer SizeForHalfWidth(FunctionView<double(double)> halfWidthAt, const Bracket& bracket, double halfWidth, Stop stop) {
  const auto excess = [&](double size) { return halfWidth - halfWidthAt(size); };
  return SolveContinuous(bracket.lower, bracket.upper, sizeTolerance, excess, stop);
}

}  // namespace kelpower::correlation
