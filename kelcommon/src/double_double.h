#ifndef KELCOMMON_SRC_DOUBLE_DOUBLE_H
#define KELCOMMON_SRC_DOUBLE_DOUBLE_H

#include <cmath>

// Numbers of some 104 bits, as the unevaluated sum of two doubles. A double is enough for what comes of a distribution;
// it is not enough for the distance of its argument from the mean, a difference that large shapes magnify: at shapes of
// 5e6 the last bit of x moves the probability by 1e-13. So the arguments are carried in pairs until that difference is
// formed. Each operation here errs by less than 2^-100 of its result (Joldes, Muller and Popescu (2017), Tight and
// rigorous error bounds for basic building blocks of double-word arithmetic, ACM TOMS 44), which leaves the difference
// its 53 bits until all but 2^-47 of its terms have cancelled.

namespace KelMath {

struct DoubleDouble {
  double hi;
  double lo;  ///< at most half a unit in the last place of `hi`
};

/// a + b. Knuth (1969), The art of computer programming 2, 4.2.2, theorem B.
inline DoubleDouble ExactSum(double a, double b) {
  const double sum = a + b;
  const double other = sum - a;
  return {sum, (a - (sum - other)) + (b - other)};
}

/// a + b for |a| >= |b|. Dekker (1971).
inline DoubleDouble ExactSumOfSorted(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

/// The part of a b that its rounded `product` leaves out; exact for a product from 1e-280 on.
inline double ProductRest(double a, double b, double product) {
#if defined(FP_FAST_FMA) || defined(__GLIBC__)
  return std::fma(a, b, -product);
#else
  // Dekker (1971), A floating-point technique for extending the available precision: each factor in halves of 26 bits,
  // whose products are exact. Where the C library has no fast fused operation its own takes several times as long, and
  // older ones round wrongly.
  constexpr double splitter = 0x1p27 + 1;
  constexpr double large = 0x1p960;
  if (std::fabs(a) > large) return ProductRest(a * 0x1p-64, b, product * 0x1p-64) * 0x1p64;
  if (std::fabs(b) > large) return ProductRest(a, b * 0x1p-64, product * 0x1p-64) * 0x1p64;
  const double splitA = splitter * a;
  const double highA = splitA - (splitA - a);
  const double lowA = a - highA;
  const double splitB = splitter * b;
  const double highB = splitB - (splitB - b);
  const double lowB = b - highB;
  return ((highA * highB - product) + highA * lowB + lowA * highB) + lowA * lowB;
#endif
}

/// a b.
inline DoubleDouble ExactProduct(double a, double b) {
  const double product = a * b;
  return {product, ProductRest(a, b, product)};
}

inline DoubleDouble Sum(const DoubleDouble& a, double b) {
  const DoubleDouble sum = ExactSum(a.hi, b);
  return ExactSumOfSorted(sum.hi, sum.lo + a.lo);
}

/// a + b, both positive.
inline DoubleDouble SumOfPositive(const DoubleDouble& a, const DoubleDouble& b) {
  const DoubleDouble sum = ExactSum(a.hi, b.hi);
  return ExactSumOfSorted(sum.hi, sum.lo + (a.lo + b.lo));
}

inline DoubleDouble Product(const DoubleDouble& a, double b) {
  const DoubleDouble product = ExactProduct(a.hi, b);
  return ExactSumOfSorted(product.hi, product.lo + a.lo * b);
}

inline DoubleDouble Product(const DoubleDouble& a, const DoubleDouble& b) {
  const DoubleDouble product = ExactProduct(a.hi, b.hi);
  return ExactSumOfSorted(product.hi, product.lo + (a.hi * b.lo + a.lo * b.hi));
}

inline DoubleDouble Quotient(const DoubleDouble& a, const DoubleDouble& b) {
  const double quotient = a.hi / b.hi;
  const double rest = -ProductRest(quotient, b.hi, a.hi);
  return ExactSumOfSorted(quotient, (rest + (a.lo - quotient * b.lo)) / b.hi);
}

/// The square root of a positive number, by a step of Newton's method from that of its double.
inline DoubleDouble SquareRoot(const DoubleDouble& a) {
  const double root = std::sqrt(a.hi);
  const double rest = -ProductRest(root, root, a.hi);
  return ExactSumOfSorted(root, (rest + a.lo) / (2 * root));
}

}  // namespace KelMath

#endif
