#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_TEST_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_TEST_H

namespace kelpower {

/// The fourth test has two faces: the arcsine test for large samples, the conditional test when exact.
enum class TwoProportionStatistic { Z, T, LikelihoodRatio, ArcsineOrConditional };

/// A test of two independent proportions as the caller chose it.
struct IndependentTest {
  TwoProportionStatistic statistic;
  bool exact;  ///< by enumeration of all tables instead of the large-sample formula
  bool oneSided;
  double alpha;
  bool continuityCorrection;
  bool pooledVariance;

  /// Of the interface's numbers and flags; a method outside 0 to 2 is the fourth statistic.
  static IndependentTest Of(int exact, int method, int oneSided, double alpha, int continuityCorrection,
                            int pooledVariance) {
    const bool isFourth = method < 0 || method > 2;
    return {isFourth ? TwoProportionStatistic::ArcsineOrConditional : TwoProportionStatistic(method),
            exact != 0,
            oneSided != 0,
            alpha,
            continuityCorrection != 0,
            pooledVariance != 0};
  }

  /// The level of one tail.
  double TailLevel() const { return oneSided ? alpha : alpha / 2; }
};

/// The tail of p1 - p2 in which a test rejects. A one-sided test looks where the population difference lies.
enum class Alternative { TwoSided, FirstGreater, SecondGreater };

inline Alternative AlternativeOf(const IndependentTest& test, double p1, double p2) {
  if (!test.oneSided) return Alternative::TwoSided;
  return p1 > p2 ? Alternative::FirstGreater : Alternative::SecondGreater;
}

/// A group has one subject, or as good as one: sizes computed from a ratio may fall short of it by rounding.
inline bool RejectsGroupSize(double size) { return size < 0.999999999999; }

inline bool RejectsInnerProportion(double p) { return p <= 0 || p >= 1; }

}  // namespace kelpower

#endif
