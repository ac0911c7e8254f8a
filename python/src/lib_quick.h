#ifndef KELPOWER_PYTHON_LIB_QUICK_H
#define KELPOWER_PYTHON_LIB_QUICK_H

#include <cstdint>

#include "kelpower.h"

namespace kelpower_python {

/// The exports of the same names. A request to stop is passed on where the computation can be long. Where it is quick, it
/// is quicker without: the tables are then not counted one by one.
double QuickPowerIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2, int exact,
                              int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                              std::uint8_t pooledVariance, StopRequest* cancel);
void QuickPowerReverseIndSampBinom(double power, double proportion1, double proportion2, DoubleVector& sampleSizes,
                                   double sizeRatio, int exact, int method, int oneSided, double alpha,
                                   std::uint8_t continuityCorrection, std::uint8_t pooledVariance, StopRequest* cancel);

}  // namespace kelpower_python

#endif
