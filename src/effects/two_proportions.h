#ifndef KELPOWER_EFFECTS_TWO_PROPORTIONS_H
#define KELPOWER_EFFECTS_TWO_PROPORTIONS_H

#include <optional>

#include "effects/interval.h"

namespace kelpower::effects {

/// Events among the people of a group. Counts of a planned study may be fractions.
struct EventCount {
  double events;  ///< 0 to size
  double size;    ///< above 0

  double Proportion() const { return events / size; }
};

/// The proportion of a group with its score interval (Wilson 1927, Journal of the American Statistical Association 22,
/// 209-212).
std::optional<Estimate> Proportion(const EventCount& group, double alpha);

/// The odds ratio of group 1 over group 2, a d / (b c), with its interval: that of the logarithm, whose variance is
/// 1 / a + 1 / b + 1 / c + 1 / d (Woolf 1955, Annals of Human Genetics 19, 251-253). None where one of the four counts is 0.
std::optional<Estimate> OddsRatio(const EventCount& first, const EventCount& second, double alpha);

/// The risk ratio p1 / p2 with its interval: that of the logarithm, whose variance is (1 - p1) / a + (1 - p2) / c (Katz
/// et al. 1978, Biometrics 34, 469-474). None where a group has no events.
std::optional<Estimate> RiskRatio(const EventCount& first, const EventCount& second, double alpha);

/// The risk difference p1 - p2 with the hybrid of the two score intervals, -1 to 1 (Newcombe 1998, Statistics in
/// Medicine 17, 873-890, method 10).
std::optional<Estimate> RiskDifference(const EventCount& first, const EventCount& second, double alpha);

/// Cohen's h = 2 asin(sqrt(p1)) - 2 asin(sqrt(p2)) (Cohen 1988, chapter 6). NaN for what is no proportion.
double CohensH(double proportion1, double proportion2);

/// The same of data, with its interval h -+ z sqrt(1 / n1 + 1 / n2), -pi to pi: an arcsine has the variance 1 / (4 n) in
/// large samples (Cohen 1988, section 6.2). None for other arguments.
std::optional<Estimate> CohensH(const EventCount& first, const EventCount& second, double alpha);

// The same effects of two proportions without data. Infinite or NaN where they divide by 0.

inline double Odds(double proportion) { return proportion / (1 - proportion); }
inline double OddsRatio(double proportion1, double proportion2) { return Odds(proportion1) / Odds(proportion2); }

/// The proportion of group 1 that has this odds ratio over `proportion2`.
double ProportionOfOddsRatio(double oddsRatio, double proportion2);

}  // namespace kelpower::effects

#endif
