#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_CONDITIONAL_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_CONDITIONAL_H

#include <cstdint>
#include <map>
#include <vector>

#include "frame/answer.h"
#include "frame/stop.h"
#include "proportions/independent_design.h"
#include "proportions/independent_masses.h"

namespace kelpower::proportions {

/// The exact power of the conditional test (Fisher's) at fixed group sizes. Given the total number of successes, the
/// successes of group 1 are hypergeometric under equal proportions; each tail rejects as much of them as the level
/// allows. The critical values depend on the proportions through their order alone, so they are kept.
class ConditionalTest {
public:
  ConditionalTest(const IndependentDesign& design, double sampleSize1, double sampleSize2);

  /// Uncountable for a size above `largestCount`; `stop` is asked once for each total.
  Answer Power(double p1, double p2, Stop stop) { return PowerAgainst(AlternativeOf(design_, p1, p2), p1, p2, stop); }

  /// The same for the region of a given alternative.
  Answer PowerAgainst(Alternative alternative, double p1, double p2, Stop stop);

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

  IndependentDesign design_;
  GroupSize group1_;
  GroupSize group2_;
  std::int64_t totals_ = 0;  ///< how many totals 0, 1, ... do not exceed N1 + N2
  bool hasCoefficients_;     ///< the binomial coefficients are representable
  std::vector<double> coefficients1_;
  std::vector<double> coefficients2_;
  std::vector<double> weights_;  ///< scratch: hypergeometric terms of one total, not normalised
  std::map<Alternative, std::vector<CriticalCounts>> kept_;
};

}  // namespace kelpower::proportions

#endif
