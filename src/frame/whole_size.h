#ifndef KELPOWER_FRAME_WHOLE_SIZE_H
#define KELPOWER_FRAME_WHOLE_SIZE_H

#include <optional>

#include "frame/function_view.h"

namespace kelpower {

/// The smallest whole number at which a power that does not fall as the number grows reaches its target, in some five
/// evaluations; nothing where none up to `largest` does.
///
/// The normal quantile of a power is nearly a straight line over the root of the number, because the power of a test is
/// nearly Phi(a sqrt(n) - z). So the next number to try is where the line through the two powers nearest to the target
/// meets it. Where such a line leads nowhere, the numbers left are halved.
/// @param smallest,largest whole numbers of which the result is one
/// @param level power without any effect, between 0 and 1; it tells where the first line starts, not what is found
/// @param target power to reach, between 0 and 1
/// @param powerAt the power at a whole number; a NaN is no power, as where a design is too small for its test
std::optional<double> FirstWholeSize(double smallest, double largest, double level, double target,
                                     FunctionView<double(double number)> powerAt);

}  // namespace kelpower

#endif
