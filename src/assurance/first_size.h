#ifndef KELPOWER_ASSURANCE_FIRST_SIZE_H
#define KELPOWER_ASSURANCE_FIRST_SIZE_H

#include "frame/answer.h"
#include "frame/counts.h"
#include "frame/function_view.h"

namespace kelpower::assurance {

/// Where a search looks: at every whole size from `smallest` to `scanned`, and by bisection above, where the function
/// does not fall as the size grows.
struct SizeSearch {
  double smallest;  ///< at least 1
  double scanned;
  double largest = largestCount;
};

/// The first whole size at which `assuranceAt` reaches `assurance`; a NaN reaches nothing. Not reached where none up to
/// the largest does.
Answer FirstSize(const SizeSearch& search, FunctionView<double(double size)> assuranceAt, double assurance);

}  // namespace kelpower::assurance

#endif
