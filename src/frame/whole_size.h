#ifndef KELPOWER_FRAME_WHOLE_SIZE_H
#define KELPOWER_FRAME_WHOLE_SIZE_H

#include <optional>

#include "frame/function_view.h"

namespace kelpower {

/// The smallest whole number from `smallest` to `largest` at which a power that does not fall as the number grows reaches
/// `target`, in some five evaluations; nothing where none does. A NaN is no power, as where a design is too small for its
/// test.
///
/// The normal quantile of a power is nearly a straight line over the root of the number, so the next number to try is
/// where the line through the two powers nearest to the target meets it. Without any effect the power is `level`. Where
/// such a line leads nowhere, the numbers in question are halved.
std::optional<double> FirstWholeSize(double smallest, double largest, double level, double target,
                                     FunctionView<double(double number)> powerAt);

}  // namespace kelpower

#endif
