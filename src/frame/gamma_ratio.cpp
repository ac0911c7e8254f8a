#include "frame/gamma_ratio.h"

#include <cmath>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower {

using KelMath::KelDistFun;

// The logarithms of gamma functions lose digits as they grow. From z = 20 on the logarithm of the ratio is
//   -1 / 8z + 1 / 192z^3 - 1 / 640z^5 + 17 / 14336z^7 - 31 / 18432z^9 + ...
// the difference of the two series of Stirling (Abramowitz and Stegun 6.1.40).
double GammaRatio(double z) {
  constexpr double enough = 20;
  if (z < enough) return std::exp(KelDistFun::orvadnlgam(z + 0.5) - KelDistFun::orvadnlgam(z)) / std::sqrt(z);
  const double w = 1 / z;
  const double w2 = w * w;
  return std::exp(w * (-1.0 / 8 + w2 * (1.0 / 192 + w2 * (-1.0 / 640 + w2 * (17.0 / 14336 - w2 * (31.0 / 18432))))));
}

}  // namespace kelpower
