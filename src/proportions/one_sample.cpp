#include <cmath>

#include "frame/checks.h"
#include "frame/increasing_search.h"
#include "kelpower.h"
#include "proportions/exact_search.h"
#include "proportions/one_sample_test.h"

using namespace kelpower;

extern "C" double PowerOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                    int oneSided, double alpha, std::uint8_t continuityCorrection,
                                    StopRequest* cancel) {
  return OneSampleTest(method, oneSided, alpha, continuityCorrection)
      .Power(sampleSize, altProportion, nullProportion, cancel);
}

extern "C" double PowerReverseOneSampBinom(double power, double altProportion, double nullProportion, int method,
                                           int oneSided, double alpha, std::uint8_t continuityCorrection,
                                           StopRequest* cancel) {
  if (RejectsProportion(altProportion)) return -1;
  if (RejectsProportion(nullProportion)) return -1;
  if (std::fabs(nullProportion - altProportion) <= 1e-14) return -1;  // the power functions accept equal proportions
  if (RejectsAlpha(alpha)) return -1;

  OneSampleTest test(method, oneSided, alpha, continuityCorrection);
  const auto powerAt = [&](double size, StopRequest* stop) {
    return test.Power(size, altProportion, nullProportion, stop);
  };
  if (method != 0) return SolveExactSize(power, powerAt, cancel);
  // With a = |p1 - p0| sqrt(N) and the correction c that falls with N, the rejecting tail is Phi((a - c - s0 z) / s1);
  // what the other tail loses as N grows is less, because it lies further out.
  return SolveIncreasingPower(
      1, 400, 1e-9, [&](double size) { return powerAt(size, nullptr); }, power, nullptr);
}
