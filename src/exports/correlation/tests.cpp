#include "exports/correlation/tests.h"

#include "exports/sentinels.h"
#include "exports/stop.h"

namespace kelpower::exports {

using correlation::Hypotheses;
using correlation::RankVariance;

double PearsonExport::Power(double sampleSize, double alternative, double null) const {
  return OrSentinel(correlation::Power(test_, sampleSize, {alternative, null}));
}

std::optional<RankVariance> RankVarianceOf(int varianceMethod) {
  if (varianceMethod < 0 || varianceMethod > 2) return std::nullopt;
  return RankVariance(varianceMethod);
}

SpearmanExport::SpearmanExport(int varianceMethod, int oneSided, double alpha)
    : variance_(RankVarianceOf(varianceMethod)), level_(alpha, oneSided != 0) {}

double SpearmanExport::Power(double sampleSize, double alternative, double null) const {
  const Hypotheses hypotheses{alternative, null};
  // Two of the variances are infinite at 3 cases, and unknown methods are not looked at yet; that is intended.
  if (sampleSize == 3 && variance_ != RankVariance::CarusoCliff && !Rejects(hypotheses, level_)) return 1;
  if (!variance_) return invalid;
  return OrSentinel(correlation::Power({level_, *variance_}, sampleSize, hypotheses));
}

double SizeForPower(const CorrelationTest& test, double alternative, double null, const correlation::Bracket& bracket,
                    double power, StopRequest* stop) {
  const CallerStop caller(stop);
  const auto powerAt = [&](double size) { return test.Power(size, alternative, null); };
  return OrMissing(correlation::SizeForPower(powerAt, test.NeverFalls(), bracket, power, caller.View()));
}

}  // namespace kelpower::exports
