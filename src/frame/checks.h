#ifndef KELPOWER_FRAME_CHECKS_H
#define KELPOWER_FRAME_CHECKS_H

#include <cmath>

// The checks that recur across the library. Each is the comparison that rejects, so a NaN passes it and reaches the
// result instead of being taken for invalid input.

namespace kelpower {

inline bool RejectsAlpha(double alpha) { return alpha >= 1 || alpha <= 0; }

/// Rejects what lies outside the open interval (0, 1), and what is so near 0 that its distance from one half rounds to
/// one half: 1e-17 is rejected.
inline bool RejectsOpenUnit(double value) { return std::fabs(value - 0.5) >= 0.5; }

inline bool RejectsStandardDeviation(double sd) { return sd <= 0; }

/// The bounds -1 and 1 are allowed.
inline bool RejectsCorrelation(double correlation) { return correlation < -1 || correlation > 1; }

/// A range of sample sizes may start at 0, which asks for the automatic range, or at 2 and above, never at 1.
inline bool RejectsSizeRange(int from, int to) { return from > to || from < 0 || from == 1 || to < 0 || to == 1; }

}  // namespace kelpower

#endif
