#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_CONDITIONAL_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_CONDITIONAL_H

#include <cstdint>
#include <map>
#include <vector>

#include "kelpower.h"
#include "proportions/independent_masses.h"
#include "proportions/independent_test.h"

namespace kelpower {

/// The exact power of the conditional test (Fisher's) at fixed group sizes. Given the total number of successes, the
/// successes of group 1 are hypergeometric under equal proportions; each tail rejects as much of them as the level
/// allows. The critical values do not depend on the proportions but for their order, and are kept.
class ConditionalTest {
public:
  ConditionalTest(const IndependentTest& test, double sampleSize1, double sampleSize2);

  /// Missing when `stop` answers true; it is asked once for each total.
  double Power(double p1, double p2, StopRequest* stop);

private:
  /// Given one total: x1 <= lower and x1 >= upper are rejected.
  struct CriticalCounts {
    std::int64_t lower;
    std::int64_t upper;
  };

  /// The counts of group 1 that a total allows: first <= x1 <= last.
  struct Support {
    std::int64_t first;
    std::int64_t last;
  };

  Support SupportOf(std::int64_t total) const;
  CriticalCounts CriticalOf(std::int64_t total, Alternative alternative);
  CriticalCounts KeptCriticalOf(std::int64_t total, Alternative alternative);
  Support WeighByCoefficients(std::int64_t total);
  Support WeighByRecurrence(std::int64_t total);

  IndependentTest test_;
  GroupSize group1_;
  GroupSize group2_;
  std::int64_t totals_ = 0;  ///< how many totals 0, 1, ... do not exceed N1 + N2
  bool hasCoefficients_;     ///< the binomial coefficients are representable
  std::vector<double> coefficients1_;
  std::vector<double> coefficients2_;
  std::vector<double> weights_;  ///< scratch: hypergeometric terms of one total, not normalised
  std::map<Alternative, std::vector<CriticalCounts>> kept_;
};

}  // namespace kelpower

#endif
