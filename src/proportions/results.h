#ifndef KELPOWER_PROPORTIONS_RESULTS_H
#define KELPOWER_PROPORTIONS_RESULTS_H

namespace kelpower {

/// The power for invalid input.
constexpr double kInvalid = -1;

/// The power where a binomial distribution function reports an error.
constexpr double kNoProbability = -2;

}  // namespace kelpower

#endif
