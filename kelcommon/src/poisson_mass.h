#ifndef KELCOMMON_SRC_POISSON_MASS_H
#define KELCOMMON_SRC_POISSON_MASS_H

namespace KelMath {

/// e^-m m^k / k!, the Poisson probability of the whole number k >= 0 at mean m > 0.
double PoissonMass(double k, double m);

}  // namespace KelMath

#endif
