#include <cmath>

#include "kelpower.h"

extern "C" double Combination(double n, double k) {
  return std::exp(std::lgamma(n + 1) - std::lgamma(k + 1) - std::lgamma(n - k + 1));
}
