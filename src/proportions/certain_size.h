#ifndef KELPOWER_PROPORTIONS_CERTAIN_SIZE_H
#define KELPOWER_PROPORTIONS_CERTAIN_SIZE_H

namespace kelpower::proportions {

/// A size from which on a test that rejects at X <= c, at `level` under p0, is certain to have the power 1 - miss under
/// p1 < p0. For any x between them P(X <= n x; p0) <= exp(-n D(x, p0)) and P(X >= n x; p1) <= exp(-n D(x, p1)):
/// Chernoff, H. (1952), Annals of Mathematical Statistics 23, 493-507. Where D(x, p0) : D(x, p1) is as the logarithms
/// of the two probabilities, that size is smallest.
double CertainSize(double p1, double p0, double level, double miss);

}  // namespace kelpower::proportions

#endif
