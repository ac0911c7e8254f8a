#include "proportions/one_sample_test.h"

#include <cmath>

#include "frame/checks.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "proportions/exact_search.h"
#include "proportions/results.h"

namespace kelpower {

using KelCommon::KelMV;
using KelMath::KelDistFun;

bool RejectsProportion(double proportion) { return proportion < 0 || proportion > 1; }

OneSampleTest::OneSampleTest(int method, int oneSided, double alpha, std::uint8_t continuityCorrection)
    : isExact_(method != 0),
      isOneSided_(oneSided != 0),
      isCorrected_(continuityCorrection != 0),
      alpha_(alpha),
      tail_(isOneSided_ ? alpha : alpha / 2) {}

double OneSampleTest::Power(double size, double altProportion, double nullProportion, StopRequest* stop) {
  if (size < 1) return kInvalid;
  if (RejectsProportion(altProportion)) return kInvalid;
  if (RejectsProportion(nullProportion)) return kInvalid;
  if (RejectsAlpha(alpha_)) return kInvalid;
  return isExact_ ? ExactPower(size, altProportion, nullProportion, stop)
                  : NormalPower(size, altProportion, nullProportion);
}

// P(|Z0| > z) for Z0 = sqrt(N) (X/N - p0) / s0, with X/N normal of mean p1 and standard deviation s1 / sqrt(N). At p1 =
// 0 or 1 the quotients are infinite and the power is 0 or 1; at p1 = -0 the root is -0, whose sign must not turn them.
double OneSampleTest::NormalPower(double size, double altProportion, double nullProportion) const {
  const double shift = std::sqrt(size) * (nullProportion - altProportion);
  const double s0 = std::sqrt((1 - nullProportion) * nullProportion);
  const double s1 = std::fabs(std::sqrt((1 - altProportion) * altProportion));
  const double correction = isCorrected_ ? 1 / (2 * std::sqrt(size)) : 0;

  const auto below = [&] { return KelDistFun::CdfStdNorm((shift - s0 * tail_.z - correction) / s1); };
  const auto above = [&] { return 1 - KelDistFun::CdfStdNorm((s0 * tail_.z + shift + correction) / s1); };
  if (!isOneSided_) return below() + above();
  return altProportion > nullProportion ? above() : below();
}

// P(X <= lower) + P(X > upper) for X ~ Binomial(N, p1).
double OneSampleTest::ExactPower(double size, double altProportion, double nullProportion, StopRequest* stop) {
  if (size > kLargestCount) return KelMV::Missing();
  SetNull(size, nullProportion);
  const bool usesUpper = !isOneSided_ || altProportion > nullProportion;
  const bool usesLower = !isOneSided_ || !usesUpper;
  if (usesLower && StopsWithin(stop, Lower().steps)) return KelMV::Missing();
  if (usesUpper && StopsWithin(stop, Upper().steps)) return KelMV::Missing();

  long upperError = 0;
  long lowerError = 0;
  const double above = usesUpper ? 1 - KelDistFun::CdfBin(Upper().count, size, altProportion, upperError) : 0;
  const double below = usesLower ? KelDistFun::CdfBin(Lower().count, size, altProportion, lowerError) : 0;
  if (upperError != 0 || lowerError != 0) return kNoProbability;
  return above + below;
}

void OneSampleTest::SetNull(double size, double nullProportion) {
  if (size == size_ && nullProportion == nullProportion_) return;
  size_ = size;
  nullProportion_ = nullProportion;
  lower_.reset();
  upper_.reset();
}

const CriticalCount& OneSampleTest::Lower() {
  if (!lower_) lower_ = LowerCritical(size_, nullProportion_, tail_);
  return *lower_;
}

const CriticalCount& OneSampleTest::Upper() {
  if (!upper_) upper_ = UpperCritical(size_, nullProportion_, tail_);
  return *upper_;
}

}  // namespace kelpower
