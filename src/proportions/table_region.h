#ifndef KELPOWER_PROPORTIONS_TABLE_REGION_H
#define KELPOWER_PROPORTIONS_TABLE_REGION_H

#include <cstdint>
#include <vector>

namespace kelpower::proportions {

/// The sizes of two groups, whole numbers.
struct GroupSizes {
  std::int64_t n1;
  std::int64_t n2;
};

/// The successes x1 in group 1, from `least` to `most`, with which a test rejects at x2 successes in group 2.
struct RowRange {
  std::int64_t least;
  std::int64_t most;
};

/// The tables that a test rejects, a row for each x2 = 0, 1, ...
using TableRegion = std::vector<RowRange>;

}  // namespace kelpower::proportions

#endif
