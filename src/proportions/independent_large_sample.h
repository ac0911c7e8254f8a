#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_LARGE_SAMPLE_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_LARGE_SAMPLE_H

#include "frame/answer.h"
#include "frame/rejection.h"
#include "proportions/independent_design.h"

namespace kelpower::proportions {

/// What the power of the z test is made of.
struct ZStatistic {
  double nullError;   ///< standard error of the difference in the critical value: the pooled one where the test pools
  double error;       ///< under the alternative
  double correction;  ///< for continuity
};

/// The large-sample power of a test at fixed group sizes; the critical value is found once.
class LargeSampleTest {
public:
  LargeSampleTest(const IndependentDesign& design, double sampleSize1, double sampleSize2);

  /// Refused for an arcsine test whose sizes do not carry its correction.
  Answer Power(double p1, double p2) const;

  /// Of the z test.
  ZStatistic Statistic(double p1, double p2) const;

  /// What the power of the other tests is made of: the noncentrality of the t test, positive where it is one-sided, the
  /// root of that of the likelihood-ratio test, and the mean of the arcsine test's normal statistic.
  double Noncentrality(double p1, double p2) const;

  double CriticalZ() const { return criticalZ_; }
  const TTest& CriticalT() const { return testT_; }

private:
  double NoncentralityT(double p1, double p2) const;
  double RootOfLikelihoodRatio(double p1, double p2) const;
  double MeanOfArcsine(double p1, double p2) const;
  double PowerZ(double p1, double p2) const;
  double PowerT(double p1, double p2) const;
  double PowerLikelihoodRatio(double p1, double p2) const;
  Answer PowerArcsine(double p1, double p2) const;

  IndependentDesign design_;
  double n1_;
  double n2_;
  double share1_;  ///< n1 / (n1 + n2)
  double share2_;
  double reciprocals_;  ///< 1 / n1 + 1 / n2
  double criticalZ_;
  TTest testT_;
};

}  // namespace kelpower::proportions

#endif
