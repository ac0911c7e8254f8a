#ifndef KELPOWER_RANKS_EQUIVALENT_T_H
#define KELPOWER_RANKS_EQUIVALENT_T_H

#include "frame/rejection.h"
#include "ranks/nearly_normal.h"

namespace kelpower::ranks {

/// A t test as the approximation by the relative efficiency takes it. The test looks where the effect lies.
struct EquivalentT {
  Sides sides;
  TTest test;
  double noncentrality;  ///< at least 0

  static EquivalentT AtLevel(Sides sides, double alpha, double df, double noncentrality) {
    return {sides, sides == Sides::One ? TTest::OneSided(alpha, df) : TTest::TwoSided(alpha, df), noncentrality};
  }

  double Power() const {
    return sides == Sides::One ? test.PowerUpperTail(noncentrality) : test.PowerBothTails(noncentrality);
  }
};

}  // namespace kelpower::ranks

#endif
