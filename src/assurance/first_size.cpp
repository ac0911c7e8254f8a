#include "assurance/first_size.h"

#include <algorithm>
#include <cmath>

namespace kelpower::assurance {

Answer FirstSize(const SizeSearch& search, FunctionView<double(double)> assuranceAt, double assurance) {
  const auto reaches = [&](double size) { return assuranceAt(size) >= assurance; };
  const double scanned = std::min(search.scanned, search.largest);
  double low = std::ceil(search.smallest);
  if (!(low >= 1 && low <= search.largest)) return NoValue::NotReached;
  for (; low <= scanned; ++low) {
    if (reaches(low)) return low;
  }
  if (low > search.largest) return NoValue::NotReached;
  if (reaches(low)) return low;

  double high = low;
  while (!reaches(high)) {
    if (high >= search.largest) return NoValue::NotReached;
    low = high;
    high = std::min(2 * high, search.largest);
  }
  while (high - low > 1) {
    const double middle = std::floor(low + (high - low) / 2);
    (reaches(middle) ? high : low) = middle;
  }
  return high;
}

}  // namespace kelpower::assurance
