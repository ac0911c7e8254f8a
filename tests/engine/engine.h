#ifndef KELPOWER_TESTS_ENGINE_ENGINE_H
#define KELPOWER_TESTS_ENGINE_ENGINE_H

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "binding.h"
#include "compare.h"
#include "vector_case.h"

namespace keltest {

constexpr std::size_t metricCount = 3;

/// The largest difference of one metric, and where it was met.
struct Worst {
  double difference = 0;
  std::string where;
};

/// What a comparison found: the largest difference of each metric, and what is wrong beyond any bound.
struct Findings {
  std::array<Worst, metricCount> worst;
  std::vector<std::string> failures;
};

/// The outcome of all cases of one function.
struct Summary {
  std::size_t cases = 0;    // all, also those that are not compared
  std::size_t loose = 0;    // called but not compared: the reference itself is uncertain
  std::size_t nearTie = 0;  // called but not compared: the rounding up was decided by the last digits
  Findings findings;
};

/// Whether a chart stores full doubles; all others round their values to single precision.
bool StoresDoublePrecision(const std::string& function);

/// Calls the function of the case and compares what it gives. Cases that are not to be compared are called all the
/// same, for they too must return. The arrays of a chart are released by the library. A function that is not in
/// `functions` is a failure, as is a case whose arguments do not fit.
void RunCase(const std::vector<Function>& functions, const VectorCase& vectorCase, Summary& summary);

/// Runs the cases, by function.
std::map<std::string, Summary> RunCases(const std::vector<Function>& functions, const std::vector<VectorCase>& cases);

}  // namespace keltest

#endif
