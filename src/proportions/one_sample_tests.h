#ifndef KELPOWER_PROPORTIONS_ONE_SAMPLE_TESTS_H
#define KELPOWER_PROPORTIONS_ONE_SAMPLE_TESTS_H

#include <optional>

#include "frame/answer.h"
#include "frame/stop.h"
#include "proportions/critical_counts.h"

namespace kelpower::proportions {

/// What lies outside [0, 1] is no proportion.
bool RejectsProportion(double proportion);

/// How one proportion is tested against a null value.
struct OneSampleDesign {
  bool isExact;              ///< by the binomial distribution instead of the normal one
  bool isOneSided;           ///< in the direction of the alternative, downwards where it equals the null value
  double alpha;              ///< significance level
  bool isCorrected = false;  ///< for continuity; the normal test only

  /// The level of one tail.
  double TailLevel() const { return isOneSided ? alpha : alpha / 2; }
};

/// The proportion that holds, and the one that is tested.
struct OneSampleProportions {
  double alternative;
  double null;
};

/// What the power of the normal test is made of.
struct NormalStatistic {
  double shift;       ///< sqrt(N) times the null proportion less the alternative
  double nullSd;      ///< of one observation under the null hypothesis, s0
  double sd;          ///< under the alternative, s1
  double correction;  ///< for continuity
  double critical;    ///< normal quantile
};

/// The test. What depends on the significance level alone is computed once, and the critical values of the exact test
/// once for successive calls at the same size and null proportion.
class OneSampleTest {
public:
  explicit OneSampleTest(const OneSampleDesign& design);

  /// Refused for a size below 1, what is no proportion, and a level outside (0, 1).
  Answer Power(double size, const OneSampleProportions& proportions, Stop stop = {});

  /// What the normal test goes by.
  NormalStatistic Statistic(double size, const OneSampleProportions& proportions) const;

  /// The counts that the exact test rejects at a whole size.
  CriticalRegion Region(double size, const OneSampleProportions& proportions);

  /// The significance level that the exact test attains: the probability of its region under the null hypothesis.
  double AttainedLevel(double size, const OneSampleProportions& proportions);

private:
  Tails TailsOf(const OneSampleProportions& proportions) const;
  double NormalPower(double size, const OneSampleProportions& proportions) const;
  Answer ExactPower(double size, const OneSampleProportions& proportions, Stop stop);
  void SetNull(double size, double nullProportion);
  const CriticalCount& Lower();
  const CriticalCount& Upper();

  OneSampleDesign design_;
  TailLevel tail_;

  // The exact test last asked for.
  double size_ = 0;
  double nullProportion_ = 0;
  std::optional<CriticalCount> lower_;
  std::optional<CriticalCount> upper_;
};

/// The size, unrounded, at which the power of the normal test, as `powerAt` gives it, reaches `power`. It never falls:
/// with a = |p1 - p0| sqrt(N) and the correction c that falls with N, the rejecting tail is Phi((a - c - s0 z) / s1).
/// What the other tail loses as N grows is less, because it lies further out.
Answer SizeForNormalPower(FunctionView<double(double size)> powerAt, double power);

/// The size at which the test reaches `power`: unrounded of the normal test, by `SolveExactSize` of the exact one.
Answer SizeForPower(const OneSampleDesign& design, const OneSampleProportions& proportions, double power,
                    Stop stop = {});

}  // namespace kelpower::proportions

#endif
