#ifndef KELPOWER_EXPORTS_SENTINELS_H
#define KELPOWER_EXPORTS_SENTINELS_H

#include "frame/answer.h"
#include "kelcommon/kel_mv.h"

// The numbers by which exports say that there is no value.

namespace kelpower::exports {

/// The power for invalid input, in the families that do not answer it with the missing value.
constexpr double invalid = -1;

/// The power where a binomial distribution function reports an error.
constexpr double noProbability = -2;

inline double OrMissing(Answer answer) { return answer.ValueOr(KelCommon::KelMV::Missing()); }

/// Tells invalid input from an exact test that reports an error, is told to stop or cannot count so far.
inline double OrSentinel(Answer answer) {
  if (answer) return *answer;
  switch (*answer.Reason()) {
    case NoValue::Refused: return invalid;
    case NoValue::NoDistribution: return noProbability;
    default: return KelCommon::KelMV::Missing();
  }
}

}  // namespace kelpower::exports

#endif
