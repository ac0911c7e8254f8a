#ifndef KELPOWER_FRAME_HALF_WIDTH_EQUATION_H
#define KELPOWER_FRAME_HALF_WIDTH_EQUATION_H

#include "frame/function_view.h"

namespace kelpower {

/// The equation w = t * standard error of a half-width w, squared and brought to the form
///   slope * size = weight * t(size)^2
/// where t is the quantile of Student's t for an interval at level 1 - alpha.
struct HalfWidthEquation {
  double slope;
  double weight;
  double alpha;
  FunctionView<double(double size)> dfAt;  ///< the degrees of freedom of t
  bool dfGrows = true;                     ///< with the size, on [lower, infinity) of the search

  /// The left side less the right side. Where the right side is infinite, no size reaches the half-width. So the excess
  /// is minus infinity there, even where the left side overflows too.
  double Excess(double size) const;
};

}  // namespace kelpower

#endif
