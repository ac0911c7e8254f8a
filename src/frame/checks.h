#ifndef KELPOWER_FRAME_CHECKS_H
#define KELPOWER_FRAME_CHECKS_H

// The checks that recur across the library. Each is the comparison that rejects, so a NaN passes it and reaches the
// result instead of being taken for invalid input.

namespace kelpower {

inline bool RejectsAlpha(double alpha) { return alpha >= 1 || alpha <= 0; }

inline bool RejectsStandardDeviation(double sd) { return sd <= 0; }

/// A range of sample sizes may start at 0, which asks for the automatic range, or at 2 and above, never at 1.
inline bool RejectsSizeRange(int from, int to) { return from > to || from < 0 || from == 1 || to < 0 || to == 1; }

}  // namespace kelpower

#endif
