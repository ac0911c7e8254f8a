#ifndef KELPOWER_ASSURANCE_WELCH_H
#define KELPOWER_ASSURANCE_WELCH_H

#include "assurance/wish.h"
#include "frame/answer.h"

namespace kelpower::assurance {

/// Two independent normal groups whose standard deviations differ.
struct UnequalGroups {
  double sd1;
  double sd2;
};

/// The probability, 0 to 1, that Welch's interval of the difference of the means is at most as wide as wished. It is
/// integrated over the two sample variances, of which the width and the degrees of freedom of Welch and Satterthwaite
/// are functions. Nothing is approximated; the absolute error is below 1e-10.
///
/// Refused for a size of 1 or less, a standard deviation that is not above 0 and what is no wish.
Answer Assurance(const UnequalGroups& groups, const Wish& wish, double n1, double n2);

/// The first whole size of group 1, with `ratio` times that in group 2, that has the assurance, which lies in (0, 1).
/// Both groups have 2 or more. Not reached where none up to `largestCount` has it.
///
/// The sizes up to about 15 in the smaller group are tried one by one, in groups that differ less than 26-fold. Above
/// them the assurance is taken to fall at most once and to rise from there on. That is proven for the pooled interval;
/// here it is what trials show. In other groups an assurance of some thousandths may already be had at a smaller size.
Answer FirstSize(const UnequalGroups& groups, const Wish& wish, double ratio, double assurance);

}  // namespace kelpower::assurance

#endif
