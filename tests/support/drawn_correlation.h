#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_CORRELATION_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_CORRELATION_H

#include <cmath>
#include <random>

namespace kelpower {

/// The correlation of a sample from a normal distribution with correlation `rho`.
template <typename Engine>
double DrawCorrelation(Engine& engine, int size, double rho) {
  std::normal_distribution<double> normal;
  double x = 0, y = 0, xx = 0, yy = 0, xy = 0;
  for (int i = 0; i < size; ++i) {
    const double u = normal(engine);
    const double v = rho * u + std::sqrt(1 - rho * rho) * normal(engine);
    x += u;
    y += v;
    xx += u * u;
    yy += v * v;
    xy += u * v;
  }
  return (xy - x * y / size) / std::sqrt((xx - x * x / size) * (yy - y * y / size));
}

}  // namespace kelpower

#endif
