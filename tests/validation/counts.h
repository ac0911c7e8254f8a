#ifndef KELPOWER_TESTS_VALIDATION_COUNTS_H
#define KELPOWER_TESTS_VALIDATION_COUNTS_H

#include <functional>
#include <vector>

#include "validation/study.h"

namespace kelpower::validation {

/// Subjects that fall into categories.
struct CountedGroup {
  long n;
  Numbers proportions;
};

/// What a test decides by the counts of all categories, group after group.
using Decision = std::function<bool(const Numbers& counts)>;

/// A study whose data are counts. Where they are not too many, all outcomes are counted through besides.
Study OfCounts(bool isExact, const std::vector<CountedGroup>& groups, const Decision& rejects);

}  // namespace kelpower::validation

#endif
