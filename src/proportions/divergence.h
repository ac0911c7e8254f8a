#ifndef KELPOWER_PROPORTIONS_DIVERGENCE_H
#define KELPOWER_PROPORTIONS_DIVERGENCE_H

namespace kelpower::proportions {

/// Kullback-Leibler divergence of the Bernoulli distributions of p and m = p - difference. It is a sum of two terms
/// that are not negative, and exactly 0 where p = m. `notM` is 1 - m.
double Divergence(double p, double m, double notM, double difference);

}  // namespace kelpower::proportions

#endif
