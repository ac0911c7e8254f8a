#ifndef KELPOWER_PROPORTIONS_ONE_SAMPLE_TEST_H
#define KELPOWER_PROPORTIONS_ONE_SAMPLE_TEST_H

#include <cstdint>
#include <optional>

#include "kelpower.h"
#include "proportions/critical_counts.h"

namespace kelpower {

bool RejectsProportion(double proportion);

/// The test of one proportion against a null value. What depends on the significance level alone is computed once, and
/// the critical values of the exact test once for successive calls at the same size and null proportion.
class OneSampleTest {
public:
  OneSampleTest(int method, int oneSided, double alpha, std::uint8_t continuityCorrection);

  /// The power; -1 for invalid input, -2 where a binomial probability has none, missing when `stop` answers true.
  double Power(double size, double altProportion, double nullProportion, StopRequest* stop = nullptr);

private:
  double NormalPower(double size, double altProportion, double nullProportion) const;
  double ExactPower(double size, double altProportion, double nullProportion, StopRequest* stop);
  void SetNull(double size, double nullProportion);
  const CriticalCount& Lower();
  const CriticalCount& Upper();

  bool isExact_;
  bool isOneSided_;
  bool isCorrected_;
  double alpha_;
  TailLevel tail_;

  // The exact test last asked for.
  double size_ = 0;
  double nullProportion_ = 0;
  std::optional<CriticalCount> lower_;
  std::optional<CriticalCount> upper_;
};

}  // namespace kelpower

#endif
