#include <cmath>

#include "exports/proportions/designs.h"
#include "exports/sentinels.h"
#include "exports/stop.h"
#include "frame/checks.h"
#include "kelpower.h"
#include "proportions/exact_search.h"
#include "proportions/one_sample_tests.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;

extern "C" double PowerOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                    int oneSided, double alpha, std::uint8_t continuityCorrection,
                                    StopRequest* cancel) {
  const CallerStop stop(cancel);
  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return OrSentinel(test.Power(sampleSize, {altProportion, nullProportion}, stop.View()));
}

// The answers of the power function to invalid input and to an error take part in the search as they are.
extern "C" double PowerReverseOneSampBinom(double power, double altProportion, double nullProportion, int method,
                                           int oneSided, double alpha, std::uint8_t continuityCorrection,
                                           StopRequest* cancel) {
  if (RejectsProportion(altProportion)) return invalid;
  if (RejectsProportion(nullProportion)) return invalid;
  if (std::fabs(nullProportion - altProportion) <= 1e-14) return invalid;  // the power functions accept equal ones
  if (RejectsAlpha(alpha)) return invalid;

  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  const auto powerAt = [&](double size, Stop asked) {
    return OrSentinel(test.Power(size, {altProportion, nullProportion}, asked));
  };
  const CallerStop stop(cancel);
  if (method != 0) return OrMissing(SolveExactSize(power, powerAt, stop.View()));
  return OrMissing(SizeForNormalPower([&](double size) { return powerAt(size, {}); }, power));
}
