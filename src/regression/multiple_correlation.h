#ifndef KELPOWER_REGRESSION_MULTIPLE_CORRELATION_H
#define KELPOWER_REGRESSION_MULTIPLE_CORRELATION_H

#include "frame/rejection.h"

namespace kelpower::regression {

/// The probability that the F statistic of `test` stays below its critical value when the predictors are multivariate
/// normal with squared population multiple correlation `rhoSquared`: the distribution function of the squared sample
/// multiple correlation R^2 at c = F / (df2 / df1 + F).
///
/// Absolute error below 1e-12. NaN when `rhoSquared` lies outside [0, 1] or an input is NaN.
/// Source: Gurland (1968), A relatively simple form of the distribution of the multiple correlation coefficient.
double CdfSquaredMultipleCorrelation(const FTest& test, double rhoSquared);

}  // namespace kelpower::regression

#endif
