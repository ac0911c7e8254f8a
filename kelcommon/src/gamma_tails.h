#ifndef KELCOMMON_SRC_GAMMA_TAILS_H
#define KELCOMMON_SRC_GAMMA_TAILS_H

#include "beta_tails.h"

namespace KelMath {

/// A beta variable of shapes a and b times b tends to a gamma variable of shape a. With so large a second shape nothing
/// is left of the difference for shapes and points up to `stepGamma`.
constexpr double limitShape = 1e100;

/// From here on doubles are further apart than a gamma distribution spreads, which makes it a step.
constexpr double stepGamma = 1e40;

/// The point of that beta distribution at which the gamma distribution has x, 1e-180 < x <= stepGamma.
inline UnitPoint GammaPoint(double x) { return UnitPoint::FromRatio({x, 0}, {limitShape, 0}); }

/// Both tails of the gamma distribution of a shape above 0 at 0 < x, finite both; each keeps its digits relative to
/// itself.
Tails GammaTails(double shape, double x);

/// x^shape e^-x / Gamma(shape + 1), by which the lower tail falls when the shape grows by 1, for 0 < shape and 0 < x up to
/// `stepGamma`.
double GammaStep(double shape, double x);

}  // namespace KelMath

#endif
