#ifndef KELPOWER_CORRELATION_CORRELATION_H
#define KELPOWER_CORRELATION_CORRELATION_H

#include "frame/function_view.h"
#include "kelpower.h"

namespace kelpower {

/// The level and the direction of a test, with the critical value that follows.
struct CorrelationLevel {
  double alpha;
  bool isOneSided;
  double critical;

  CorrelationLevel(double level, int oneSided);

  /// The power of a statistic that is normal with mean `shift` and standard deviation `spread`. A one-sided test looks
  /// for the alternative above the null where it is above it, and below it otherwise.
  double Power(double shift, double spread, bool isAbove) const;
};

/// The test of a correlation against a null value, on Fisher's z scale. What differs between the coefficients is the
/// distribution of z under the alternative.
class CorrelationTest {
public:
  CorrelationTest(const CorrelationLevel& level, double partialledOut) : level_(level), partialledOut_(partialledOut) {}
  virtual ~CorrelationTest() = default;

  /// -1 for invalid input.
  virtual double Power(double sampleSize, double alternative, double null) const = 0;

  /// Whether the power is known never to fall as the sample size grows.
  virtual bool IsIncreasing() const = 0;

  const CorrelationLevel& Level() const { return level_; }

  /// The number of variables partialled out, 0 unless the correlation is a partial one.
  double PartialledOut() const { return partialledOut_; }

private:
  CorrelationLevel level_;
  double partialledOut_;
};

/// The test of a Pearson or partial correlation, where z has about the variance 1 / (N - 3 - k). The correction takes
/// the mean and the variance of z to the second order of 1 / (N - 1 - k) (Fisher 1921; Hotelling 1953).
class PearsonTest : public CorrelationTest {
public:
  PearsonTest(const CorrelationLevel& level, double partialledOut, bool isCorrected)
      : CorrelationTest(level, partialledOut), isCorrected_(isCorrected) {}
  double Power(double sampleSize, double alternative, double null) const override;

  /// Near the null and at few cases the correction for bias outweighs the difference of the correlations and falls.
  bool IsIncreasing() const override { return !isCorrected_; }

private:
  bool isCorrected_;
};

/// The test of a partial correlation, which always corrects the bias; its intervals do not.
inline PearsonTest PartialTest(double partialledOut, int oneSided, double alpha) {
  return {{alpha, oneSided}, partialledOut, true};
}

/// The test of a Spearman correlation.
class SpearmanTest : public CorrelationTest {
public:
  SpearmanTest(const CorrelationLevel& level, int varianceMethod)
      : CorrelationTest(level, 0), varianceMethod_(varianceMethod) {}
  double Power(double sampleSize, double alternative, double null) const override;

  /// Each of the variances of z falls as the sample size grows, and nothing else depends on it.
  bool IsIncreasing() const override { return true; }

private:
  int varianceMethod_;
};

/// The difference of Fisher's z of two correlations. Where either is 1 or -1 it is the largest double with its sign,
/// positive where both are 1 or both are -1; that is intended.
double FisherDifference(double alternative, double null);

/// Half the length of the interval from tanh(z - h) to tanh(z + h), without the cancellation of that difference.
double BackTransformedHalfWidth(double z, double h);

/// The normal quantile that half-widths of intervals at level 1 - alpha are multiplied by.
double IntervalQuantile(double alpha);

/// The size at which `test` reaches a power.
double SizeForPower(double power, const CorrelationTest& test, double alternative, double null, double lower,
                    double upper, StopRequest* stop);

/// The size, rounded up, at which `halfWidthAt` falls to a half-width.
double SizeForInterval(double halfWidth, FunctionView<double(double sampleSize)> halfWidthAt, double lower,
                       double upper, StopRequest* stop);

}  // namespace kelpower

#endif
