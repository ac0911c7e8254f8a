#include "proportions/related_interval.h"

#include <cmath>
#include <cstdint>

#include "exports/sentinels.h"
#include "exports/stop.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;

namespace {

bool IsKnown(int ciMethod) { return ciMethod >= 0 && ciMethod <= 2; }

RelatedInterval IntervalOf(int ciMethod, const DiscordantPairs& pairs, double alpha, bool isCorrected) {
  return RelatedInterval({RelatedMethod(ciMethod), pairs, alpha, isCorrected});
}

}  // namespace

// The half-width is corrected where the flag is 1, the size where it is not 0; that is intended.
extern "C" double HalfCIRelSampBinom(double sampleSize, double discordant12, double discordant21, int ciMethod,
                                     double alpha, std::uint8_t continuityCorrection) {
  if (!IsKnown(ciMethod)) return 0;
  return IntervalOf(ciMethod, {discordant12, discordant21}, alpha, continuityCorrection == 1).HalfWidth(sampleSize);
}

extern "C" double PowerReversebyHalfCIRelSampBinom(double halfWidth, double discordant12, double discordant21,
                                                   int ciMethod, double alpha, std::uint8_t continuityCorrection,
                                                   StopRequest* cancel) {
  const CallerStop stop(cancel);
  // An unknown method has the half-width 0 at every size.
  if (!IsKnown(ciMethod))
    return std::ceil(OrMissing(PairsForHalfWidth([](double) { return 0.0; }, halfWidth, stop.View())));
  const RelatedInterval interval = IntervalOf(ciMethod, {discordant12, discordant21}, alpha, continuityCorrection != 0);
  return std::ceil(OrMissing(interval.SizeFor(halfWidth, stop.View())));
}
