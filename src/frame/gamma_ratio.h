#ifndef KELPOWER_FRAME_GAMMA_RATIO_H
#define KELPOWER_FRAME_GAMMA_RATIO_H

namespace kelpower {

/// Gamma(z + 1 / 2) / (sqrt(z) Gamma(z)), which tends to 1, for z > 0. Relative error below 2e-14.
double GammaRatio(double z);

}  // namespace kelpower

#endif
