#include "exports/proportions/related.h"

#include "exports/proportions/designs.h"
#include "exports/sentinels.h"
#include "exports/stop.h"
#include "frame/checks.h"
#include "kelpower.h"
#include "proportions/exact_search.h"
#include "proportions/mcnemar.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;

namespace kelpower::exports {

double PowerOfMarginals(McNemarTest& test, double size, double marginal1, double marginal2, double correlation) {
  if (size < 2) return invalid;
  if (RejectsMarginals(marginal1, marginal2)) return invalid;
  if (RejectsCorrelation(correlation)) return invalid;
  return OrSentinel(test.Power(size, DiscordantPairs::FromMarginals(marginal1, marginal2, correlation)));
}

}  // namespace kelpower::exports

extern "C" double PowerbyPRelSampBionm(double sampleSize, double discordant12, double discordant21, int oneSided,
                                       int exact, double alpha, StopRequest* cancel) {
  const CallerStop stop(cancel);
  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  return OrSentinel(test.Power(sampleSize, {discordant12, discordant21}, stop.View()));
}

extern "C" double PowerbyCRelSampBionm(double sampleSize, double discordantCount12, double discordantCount21,
                                       int oneSided, int exact, double alpha) {
  if (discordantCount12 + discordantCount21 > sampleSize) return invalid;
  return PowerbyPRelSampBionm(sampleSize, discordantCount12 / sampleSize, discordantCount21 / sampleSize, oneSided,
                              exact, alpha, nullptr);
}

extern "C" double PowerbyMargPRelSampBionm(double sampleSize, double marginal1, double marginal2, double correlation,
                                           int oneSided, int exact, double alpha) {
  if (RejectsAlpha(alpha)) return invalid;
  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  return PowerOfMarginals(test, sampleSize, marginal1, marginal2, correlation);
}

extern "C" double PowerbyMargCRelSampBionm(double sampleSize, double marginalCount1, double marginalCount2,
                                           double correlation, int oneSided, int exact, double alpha) {
  return PowerbyMargPRelSampBionm(sampleSize, marginalCount1 / sampleSize, marginalCount2 / sampleSize, correlation,
                                  oneSided, exact, alpha);
}

// Nothing is checked: sizes below 2 and invalid designs have the power -1, which the search takes as it stands.
extern "C" double PowerReversebyPRelSampBionm(double power, double discordant12, double discordant21, int oneSided,
                                              int exact, double alpha, StopRequest* cancel) {
  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  const auto powerAt = [&](double size, Stop asked) {
    return OrSentinel(test.Power(size, {discordant12, discordant21}, asked));
  };
  const CallerStop stop(cancel);
  if (exact != 0) return OrMissing(SolveExactSize(power, powerAt, stop.View()));
  return OrMissing(PairsForNormalPower([&](double size) { return powerAt(size, {}); }, power));
}

extern "C" double PowerReversebyMargPRelSampBionm(double power, double marginal1, double marginal2, double correlation,
                                                  int oneSided, int exact, double alpha, StopRequest* cancel) {
  if (RejectsMarginals(marginal1, marginal2)) return invalid;
  if (RejectsCorrelation(correlation)) return invalid;
  if (RejectsAlpha(alpha)) return invalid;
  const DiscordantPairs pairs = DiscordantPairs::FromMarginals(marginal1, marginal2, correlation);
  return PowerReversebyPRelSampBionm(power, pairs.p12, pairs.p21, oneSided, exact, alpha, cancel);
}
