#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_ENUMERATION_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_ENUMERATION_H

#include <cstdint>
#include <map>
#include <vector>

#include "frame/answer.h"
#include "frame/stop.h"
#include "proportions/independent_statistic.h"

namespace kelpower::proportions {

/// The exact power of the z, t and likelihood-ratio tests at fixed group sizes: the probability of the tables that the
/// statistic rejects. The rejection region depends on the proportions through their order alone, so it is kept.
class EnumeratedTest {
public:
  EnumeratedTest(const IndependentDesign& design, double sampleSize1, double sampleSize2);

  /// No distribution when the binomial one reports an error, uncountable for a size above `largestCount`. `stop` is
  /// asked once a table, by the t and likelihood-ratio tests once more for each table that is rejected.
  Answer Power(double p1, double p2, Stop stop) { return PowerAgainst(AlternativeOf(design_, p1, p2), p1, p2, stop); }

  /// The same for the region of a given alternative.
  Answer PowerAgainst(Alternative alternative, double p1, double p2, Stop stop);

private:
  template <typename Visit>
  void VisitRows(Alternative alternative, std::int64_t first, std::int64_t last, Visit visit);

  bool RejectsNothing(Alternative alternative) const;

  IndependentDesign design_;
  GroupSize group1_;
  GroupSize group2_;
  std::map<Alternative, std::vector<AcceptedRange>> regions_;
};

}  // namespace kelpower::proportions

#endif
