#ifndef KELPOWER_FRAME_POWERS_OVER_EFFECTS_H
#define KELPOWER_FRAME_POWERS_OVER_EFFECTS_H

#include <vector>

#include "frame/rejection.h"

namespace kelpower {

/// The power of one F test at many noncentralities.
///
/// The noncentral F distribution at the critical value is the sum of p_j I_j over j = 0, 1, ..., with the Poisson
/// probabilities p_j at half the noncentrality and I_j = I_x(a + j, b), tails of the beta distribution (Johnson, Kotz
/// and Balakrishnan 1995, Continuous Univariate Distributions 2, eq. 30.10). Only the p_j depend on the noncentrality,
/// so that the tails are computed once.
class PowersOverEffects {
public:
  explicit PowersOverEffects(const FTest& test);

  /// As `FTest::Power`, to 1e-12.
  double Power(double noncentrality) const;

private:
  FTest test_;
  std::vector<double> tails_;  ///< I_j as long as it matters; empty where there would be too many
};

}  // namespace kelpower

#endif
