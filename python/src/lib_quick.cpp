#include "lib_quick.h"

namespace kelpower_python {

double QuickPowerIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2, int exact,
                              int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                              std::uint8_t pooledVariance, StopRequest* cancel) {
  return PowerIndSampBinom(sampleSize1, sampleSize2, proportion1, proportion2, exact, method, oneSided, alpha,
                           continuityCorrection, pooledVariance, cancel);
}

void QuickPowerReverseIndSampBinom(double power, double proportion1, double proportion2, DoubleVector& sampleSizes,
                                   double sizeRatio, int exact, int method, int oneSided, double alpha,
                                   std::uint8_t continuityCorrection, std::uint8_t pooledVariance, StopRequest* cancel) {
  PowerReverseIndSampBinom(power, proportion1, proportion2, sampleSizes, sizeRatio, exact, method, oneSided, alpha,
                           continuityCorrection, pooledVariance, cancel);
}

}  // namespace kelpower_python
