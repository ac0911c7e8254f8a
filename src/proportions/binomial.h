#ifndef KELPOWER_PROPORTIONS_BINOMIAL_H
#define KELPOWER_PROPORTIONS_BINOMIAL_H

#include "kelcommon/kel_dist_fun.h"

// The binomial distribution at arguments that are known to be in range.
namespace kelpower::proportions {

/// P(X <= count), 0 below the first count.
inline double BinomialCdf(double count, double size, double p) {
  long error = 0;
  return KelMath::KelDistFun::CdfBin(count, size, p, error);
}

/// P(X = count).
inline double BinomialMass(double count, double size, double p) {
  long error = 0;
  return KelMath::KelDistFun::PdfBin(count, size, p, error);
}

}  // namespace kelpower::proportions

#endif
