#include <cmath>

#include "kelpower.h"

extern "C" double InvTanh(double x) {
  if (std::fabs(x) > 1) return -1.0;
  if (std::fabs(x) < 1e-12) return x;
  return std::atanh(x);
}
