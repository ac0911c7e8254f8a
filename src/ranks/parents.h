#ifndef KELPOWER_RANKS_PARENTS_H
#define KELPOWER_RANKS_PARENTS_H

namespace kelpower::ranks {

/// The distribution that the values of a group come from. Each is symmetric, and its standard deviation is 1.
enum class Parent {
  Normal,
  Logistic,
  Laplace,
  Uniform,
  /// The parabola 3 / (20 sqrt 5) (5 - x^2), at which the test of ranks compares worst with that of t (Hodges and
  /// Lehmann 1956, Annals of Mathematical Statistics 27, 324-335).
  Minimum
};

/// The asymptotic relative efficiency of the Wilcoxon tests to the t tests: 12 (integral of the squared density)^2
/// (Hodges and Lehmann 1956; Lehmann 1975, "Nonparametrics", section 2.4).
double RelativeEfficiency(Parent parent);

/// The probability that a value is below `x`.
double Probability(Parent parent, double x);

/// What moments of rank statistics are made of: with X, X' and Y drawn from the parent, and Y moved up by a shift.
struct ShiftProbabilities {
  double excess;  ///< P(X < Y) - 1/2
  double both;    ///< P(X < Y and X' < Y), which is P(X < Y and X < Y') as well because the parent is symmetric
};

/// Of a shift of 0 or more. The results are exact to rounding.
ShiftProbabilities Shifted(Parent parent, double shift);

}  // namespace kelpower::ranks

#endif
