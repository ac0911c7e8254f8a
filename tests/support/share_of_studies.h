#ifndef KELPOWER_TESTS_SUPPORT_SHARE_OF_STUDIES_H
#define KELPOWER_TESTS_SUPPORT_SHARE_OF_STUDIES_H

#include <cmath>
#include <random>

namespace kelpower {

/// A share of simulated studies, and the probability that it estimates.
struct SimulatedShare {
  double share;
  double studies;

  /// How far the probability is from the share, in binomial standard errors of the share.
  double StandardErrorsFrom(double probability) const {
    return std::fabs(share - probability) / std::sqrt(probability * (1 - probability) / studies);
  }
};

/// More standard errors than this is no chance: one simulation in 15,000.
constexpr double kMostStandardErrors = 4;

/// Draws `studies` studies of which `succeeds` tells, from an engine with a fixed seed. Standard libraries differ in how
/// they draw, so elsewhere these are other studies.
template <typename Study>
SimulatedShare Simulate(int studies, unsigned seed, Study succeeds) {
  std::mt19937_64 engine(seed);
  int count = 0;
  for (int i = 0; i < studies; ++i) count += succeeds(engine) ? 1 : 0;
  return {static_cast<double>(count) / studies, static_cast<double>(studies)};
}

/// The mean and the variance of a sample.
struct Moments {
  double mean = 0;
  double variance = 0;
};

template <typename Engine>
Moments DrawNormal(Engine& engine, int size, double mean, double sd) {
  std::normal_distribution<double> normal(mean, sd);
  Moments moments;
  double squares = 0;
  for (int i = 1; i <= size; ++i) {
    const double x = normal(engine);
    const double step = x - moments.mean;
    moments.mean += step / i;
    squares += step * (x - moments.mean);
  }
  moments.variance = squares / (size - 1);
  return moments;
}

}  // namespace kelpower

#endif
