#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_ENUMERATION_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_ENUMERATION_H

#include <cstdint>
#include <map>
#include <vector>

#include "kelpower.h"
#include "proportions/independent_statistic.h"

namespace kelpower {

/// The exact power of the z, t and likelihood-ratio tests at fixed group sizes: the probability of the tables that the
/// statistic rejects. The rejection region does not depend on the proportions but for their order, and is kept.
class EnumeratedTest {
public:
  EnumeratedTest(const IndependentTest& test, double sampleSize1, double sampleSize2);

  /// -2 when the binomial distribution reports an error, missing when `stop` answers true. It is asked once a table,
  /// by the t and likelihood-ratio tests once more for each table that is rejected.
  double Power(double p1, double p2, StopRequest* stop);

private:
  template <typename Visit>
  void VisitRows(Alternative alternative, std::int64_t first, std::int64_t last, Visit visit);

  bool RejectsNothing(Alternative alternative) const;

  IndependentTest test_;
  GroupSize group1_;
  GroupSize group2_;
  std::map<Alternative, std::vector<AcceptedRange>> regions_;
};

}  // namespace kelpower

#endif
