#ifndef KELPOWER_FRAME_SCALE_H
#define KELPOWER_FRAME_SCALE_H

#include <cmath>

namespace kelpower {

/// A power of two near `x` by which terms can be divided, exactly, before they are squared. It is 1 for 0 and for what
/// is not finite.
inline double BinaryScale(double x) {
  if (x == 0 || !std::isfinite(x)) return 1;
  return std::scalbn(1.0, std::ilogb(x));
}

}  // namespace kelpower

#endif
