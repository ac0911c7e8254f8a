#ifndef KELPOWER_ANOVA_QUADRATIC_FORM_H
#define KELPOWER_ANOVA_QUADRATIC_FORM_H

#include <vector>

namespace kelpower::anova {

/// x' A^-1 x for a symmetric positive definite A, given row by row, by its Cholesky factor (Golub and Van Loan 2013,
/// Matrix Computations, 4th ed., section 4.2). NaN where A is none, to rounding.
double InverseQuadraticForm(std::vector<double> matrix, std::vector<double> x);

}  // namespace kelpower::anova

#endif
