#ifndef KELPOWER_PROPORTIONS_RELATED_INTERVAL_H
#define KELPOWER_PROPORTIONS_RELATED_INTERVAL_H

#include "frame/answer.h"
#include "frame/function_view.h"
#include "frame/stop.h"
#include "proportions/mcnemar.h"

namespace kelpower::proportions {

/// Confidence intervals of the difference of two related proportions, p12 - p21. The adjusted methods add 1 and 2
/// discordant pairs in all: Agresti, A. and Min, Y. (2005), Statistics in Medicine 24, 729-740; Bonett, D. G. and
/// Price, R. M. (2012), Journal of Educational and Behavioral Statistics 37, 479-488.
enum class RelatedMethod { Wald, AgrestiMin, BonettPrice };

class RelatedInterval {
public:
  struct Design {
    RelatedMethod method;
    DiscordantPairs pairs;  ///< expected
    double alpha;           ///< 1 minus the confidence level
    bool isCorrected;       ///< for continuity; Wald's method only
  };

  explicit RelatedInterval(const Design& design);

  double HalfWidth(double size) const;

  /// The number of pairs, unrounded.
  Answer SizeFor(double halfWidth, Stop stop = {}) const;

private:
  double Variance() const { return discordant_ - difference_ * difference_; }
  double AdjustedHalfWidth(double size, double addedPairs) const;

  RelatedMethod method_;
  bool isCorrected_;
  double discordant_;
  double difference_;
  double z_;
};

/// The number of pairs, unrounded, at which `halfWidthAt` falls to a half-width.
Answer PairsForHalfWidth(FunctionView<double(double size)> halfWidthAt, double halfWidth, Stop stop);

}  // namespace kelpower::proportions

#endif
