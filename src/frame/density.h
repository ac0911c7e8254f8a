#ifndef KELPOWER_FRAME_DENSITY_H
#define KELPOWER_FRAME_DENSITY_H

#include <functional>

namespace kelpower {

/// Distribution functions for pictures. What does not exist is NaN.
double NormalDensity(double x, double mean, double sd);
double NormalBelow(double x, double mean, double sd);
double TBelow(double x, double df, double noncentrality);
double FBelow(double x, double df1, double df2, double noncentrality);
double BinomialMass(double count, double trials, double proportion);
/// P(X <= count).
double BinomialBelow(double count, double trials, double proportion);

/// The density of a continuous distribution from its distribution function, for pictures: the fourth-order central
/// difference over steps of `step`. Steps of a thousandth of the distribution's width leave an error below 1e-8 of its
/// height (Abramowitz and Stegun 1964, formula 25.3.6).
double DensityOf(const std::function<double(double)>& below, double x, double step);

}  // namespace kelpower

#endif
