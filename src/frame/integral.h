#ifndef KELPOWER_FRAME_INTEGRAL_H
#define KELPOWER_FRAME_INTEGRAL_H

#include "frame/function_view.h"

namespace kelpower {

/// An integral, and a bound of its error that smooth functions keep to by far.
struct Integral {
  double value;
  double error;
};

/// The integral of `f` from `from` to `to`, both finite: the rule of Kronrod with 15 nodes, on pieces that are halved
/// until the rule of Gauss with 7 of these nodes agrees within `tolerance` (Kronrod 1965, "Nodes and Weights of
/// Quadrature Formulas"; Piessens et al. 1983, "QUADPACK").
///
/// It ends after at most 30 halvings of a piece and 3,000 pieces, whatever `f` is; the error then says how far it came.
/// A feature of `f` that is narrow beside the range is seen only where the caller splits the range near it. Where `f` is
/// NaN, so is the integral.
Integral Integrate(FunctionView<double(double x)> f, double from, double to, double tolerance);

}  // namespace kelpower

#endif
