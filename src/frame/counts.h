#ifndef KELPOWER_FRAME_COUNTS_H
#define KELPOWER_FRAME_COUNTS_H

namespace kelpower {

/// The most points of a chart, and the largest number of trials that exact tests count up to: the largest 32-bit int.
constexpr double largestCount = 2147483647;

}  // namespace kelpower

#endif
