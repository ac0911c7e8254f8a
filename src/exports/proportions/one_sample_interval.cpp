#include "proportions/one_sample_interval.h"

#include <cstdint>

#include "exports/sentinels.h"
#include "exports/stop.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;

namespace {

bool IsKnown(int ciMethod) { return ciMethod >= 0 && ciMethod <= 6; }

OneSampleInterval IntervalOf(int ciMethod, double proportion, double alpha, bool isCorrected) {
  return OneSampleInterval({OneSampleMethod(ciMethod), proportion, alpha, isCorrected});
}

}  // namespace

// The corrections of Wald and of Wilson test the flag differently, on purpose: for 1, and for not 0. That of Wald's
// size tests it for not 0 too.
extern "C" double HalfCIOneSampBinom(double sampleSize, double proportion, int ciMethod, double alpha,
                                     std::uint8_t continuityCorrection) {
  if (!IsKnown(ciMethod)) return 0;
  const bool isWald = OneSampleMethod(ciMethod) == OneSampleMethod::Wald;
  const bool isCorrected = isWald ? continuityCorrection == 1 : continuityCorrection != 0;
  return IntervalOf(ciMethod, proportion, alpha, isCorrected).HalfWidth(sampleSize);
}

extern "C" double PowerReversebyHalfCIOneSampBinom(double halfWidth, double proportion, int ciMethod, double alpha,
                                                   std::uint8_t continuityCorrection, StopRequest* cancel) {
  // An unknown method counts as having the wanted half-width at the first size that a search looks at.
  if (!IsKnown(ciMethod)) return 400;
  const CallerStop stop(cancel);
  return OrMissing(IntervalOf(ciMethod, proportion, alpha, continuityCorrection != 0).SizeFor(halfWidth, stop.View()));
}
