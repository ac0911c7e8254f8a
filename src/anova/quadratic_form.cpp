#include "anova/quadratic_form.h"

#include <cmath>
#include <cstddef>
#include <limits>

namespace kelpower::anova {

double InverseQuadraticForm(std::vector<double> matrix, std::vector<double> x) {
  const std::size_t order = x.size();
  if (matrix.size() != order * order) return std::numeric_limits<double>::quiet_NaN();
  double form = 0;
  for (std::size_t i = 0; i < order; ++i) {
    double* row = &matrix[i * order];
    for (std::size_t j = 0; j <= i; ++j) {
      const double* other = &matrix[j * order];
      double rest = row[j];
      for (std::size_t k = 0; k < j; ++k) rest -= row[k] * other[k];
      row[j] = j < i ? rest / other[j] : std::sqrt(rest);
    }
    if (!(row[i] > 0)) return std::numeric_limits<double>::quiet_NaN();
    for (std::size_t k = 0; k < i; ++k) x[i] -= row[k] * x[k];
    x[i] /= row[i];
    form += x[i] * x[i];
  }
  return form;
}

}  // namespace kelpower::anova
