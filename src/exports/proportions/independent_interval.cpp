#include "proportions/independent_interval.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "exports/sentinels.h"
#include "exports/stop.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;
using KelCommon::KelMV;

namespace {

bool IsKnown(int ciMethod) { return ciMethod >= 0 && ciMethod <= 5; }

IndependentInterval IntervalOf(int ciMethod, double p1, double p2, double alpha, bool isCorrected) {
  return IndependentInterval({IndependentMethod(ciMethod), p1, p2, alpha, isCorrected});
}

}  // namespace

// Wald's method tests the flag for the value 1, Newcombe's for any but 0; both are intended.
extern "C" double HalfCIIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2,
                                     int ciMethod, double alpha, std::uint8_t continuityCorrection) {
  if (!IsKnown(ciMethod)) return 0;
  const bool isWald = IndependentMethod(ciMethod) == IndependentMethod::Wald;
  const bool isCorrected = isWald ? continuityCorrection == 1 : continuityCorrection != 0;
  return IntervalOf(ciMethod, proportion1, proportion2, alpha, isCorrected).HalfWidth(sampleSize1, sampleSize2);
}

extern "C" void PowerReversebyHalfCIIndSampBinom(double halfWidth, double proportion1, double proportion2,
                                                 DoubleVector& sampleSizes, double sizeRatio, int ciMethod,
                                                 double alpha, std::uint8_t continuityCorrection, StopRequest* cancel) {
  const CallerStop stop(cancel);
  // An unknown method counts as having the wanted half-width at the first size that a search looks at.
  const Answer found = IsKnown(ciMethod)
                           ? IntervalOf(ciMethod, proportion1, proportion2, alpha, continuityCorrection != 0)
                                 .FirstSizeFor(halfWidth, sizeRatio, stop.View())
                           : Answer(400);
  if (!found) {
    sampleSizes = {KelMV::Missing(), KelMV::Missing()};
    return;
  }
  sampleSizes = {std::ceil(*found), std::max(2.0, std::ceil(sizeRatio * *found))};
}
