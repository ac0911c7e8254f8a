#include "comparisons/tukey.h"

#include <algorithm>
#include <cmath>

#include "comparisons/shifted_range.h"
#include "frame/checks.h"
#include "frame/rejection.h"
#include "kelcommon/chi_integral.h"
#include "kelcommon/distributions.h"

namespace kelpower::comparisons {

namespace {

constexpr double rootTwo = 1.41421356237309504880;

bool AreFinite(const std::vector<double>& values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

}  // namespace

TukeyTest::TukeyTest(int groups, double df, double alpha) : groups_(groups), df_(df) {
  if (groups < 2 || !(df > 0) || !(alpha > 0 && alpha < 1)) return;
  critical_ = kelcommon::IsfStudentizedRange(alpha, groups, df);
  isValid_ = critical_ >= 0;
}

double TukeyTest::CriticalT() const { return critical_ / rootTwo; }

Answer TukeyTest::PowerOfPair(double noncentrality) const {
  if (!isValid_ || std::isnan(noncentrality)) return NoValue::Refused;
  return std::min(TTest{df_, CriticalT()}.PowerBothTails(std::fabs(noncentrality)), 1.0);
}

// Given u, the estimated standard deviation in units of the true one, no pair is significant where the range of the
// means is at most q u.
Answer TukeyTest::PowerOfAnyPair(const std::vector<double>& means) const {
  if (!isValid_ || static_cast<int>(means.size()) != groups_ || groups_ > mostGroups) return NoValue::Refused;
  if (!AreFinite(means)) return NoValue::Refused;
  const ShiftedRange range(means);
  const double none = kelcommon::MeanOverChi([&](double u) { return range.Below(critical_ * u); }, df_);
  return std::min(std::max(1 - none, 0.0), 1.0);
}

double NoncentralityOfPair(double difference, double size1, double size2) {
  return difference / std::sqrt(1 / size1 + 1 / size2);
}

Answer PowerOfPair(double difference, double size1, double size2, int groups, double totalSize, double alpha) {
  if (!(size1 > 0 && size2 > 0)) return NoValue::Refused;
  return TukeyTest(groups, totalSize - groups, alpha).PowerOfPair(NoncentralityOfPair(difference, size1, size2));
}

Answer PowerOfAnyPair(const std::vector<double>& means, double size, double alpha) {
  if (means.size() < 2 || means.size() > mostGroups || !(size > 1)) return NoValue::Refused;
  const int groups = static_cast<int>(means.size());
  std::vector<double> inStandardErrors = means;
  for (double& mean : inStandardErrors) mean = (mean - means.front()) * std::sqrt(size);
  return TukeyTest(groups, groups * (size - 1), alpha).PowerOfAnyPair(inStandardErrors);
}

double HalfWidthOfPair(double sd, double size1, double size2, int groups, double totalSize, double alpha) {
  const TukeyTest test(groups, totalSize - groups, alpha);
  if (!test.IsValid()) return std::nan("");
  return test.CriticalT() * sd * std::sqrt(1 / size1 + 1 / size2);
}

}  // namespace kelpower::comparisons
