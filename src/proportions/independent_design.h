#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_DESIGN_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_DESIGN_H

namespace kelpower::proportions {

/// Arcsine is a test for large samples, Conditional (Fisher's) an exact one. The others are both.
enum class TwoProportionTest { Z, T, LikelihoodRatio, Arcsine, Conditional };

/// How two independent proportions are tested.
struct IndependentDesign {
  TwoProportionTest test;
  bool isExact;              ///< by enumeration of all tables instead of the large-sample formula
  bool isOneSided;           ///< in the direction in which the proportions differ
  double alpha;              ///< significance level
  bool isCorrected = false;  ///< for continuity; the z test only
  bool isPooled = false;     ///< the variance; the z test for large samples, and the t test

  /// The level of one tail.
  double TailLevel() const { return isOneSided ? alpha : alpha / 2; }
};

/// The tail of p1 - p2 in which a test rejects. A one-sided test looks where the population difference lies.
enum class Alternative { TwoSided, FirstGreater, SecondGreater };

inline Alternative AlternativeOf(const IndependentDesign& design, double p1, double p2) {
  if (!design.isOneSided) return Alternative::TwoSided;
  return p1 > p2 ? Alternative::FirstGreater : Alternative::SecondGreater;
}

/// A group has one subject, or as good as one: sizes computed from a ratio may fall short of it by rounding.
inline bool RejectsGroupSize(double size) { return size < 0.999999999999; }

inline bool RejectsInnerProportion(double p) { return p <= 0 || p >= 1; }

}  // namespace kelpower::proportions

#endif
