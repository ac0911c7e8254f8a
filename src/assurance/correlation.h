#ifndef KELPOWER_ASSURANCE_CORRELATION_H
#define KELPOWER_ASSURANCE_CORRELATION_H

#include "assurance/wish.h"
#include "frame/answer.h"

namespace kelpower::assurance {

/// How a sample correlation r is distributed.
enum class CorrelationModel {
  Exact,  ///< as of a normal sample (Hotelling 1953, Journal of the Royal Statistical Society B 15, equation 25)
  Fisher  ///< atanh(r) is normal with mean atanh(rho) + rho / (2 (n - 1)) and variance 1 / (n - 3) (Fisher 1921)
};

/// The interval of Fisher's z about a Pearson correlation or a partial one.
struct CorrelationInterval {
  double correlation;        ///< true one, -1 to 1
  double partialledOut = 0;  ///< number of variables partialled out, whose r is distributed as at so many fewer cases
  bool isCorrected = false;  ///< its centre for bias, by r / (2 (n - 1))
  CorrelationModel model = CorrelationModel::Exact;
};

/// The probability, 0 to 1, that half the length of the interval is at most as wished. It is longest about r = 0, so
/// this is the probability of an r far enough from it. Absolute error below 1e-10.
///
/// Refused for a size of 3 or less beyond the variables partialled out, a negative number of these, what is no
/// correlation and what is no wish.
Answer Assurance(const CorrelationInterval& interval, const Wish& wish, double size);

/// The first whole size that has the assurance, in (0, 1). Sizes that differ from the smallest by 16 or less are tried
/// one by one. Above them the assurance is taken to fall at most once and to rise from there on. So it does in Fisher's
/// model without a correlation: the square of its normal quantile is nearly z sqrt(n) / halfWidth - n, which is concave
/// in the root of n. For the others trials show it. Not reached where no size up to `largestCount` has it.
Answer FirstSize(const CorrelationInterval& interval, const Wish& wish, double assurance);

}  // namespace kelpower::assurance

#endif
