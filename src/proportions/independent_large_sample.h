#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_LARGE_SAMPLE_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_LARGE_SAMPLE_H

#include "frame/rejection.h"
#include "proportions/independent_test.h"

namespace kelpower {

/// The large-sample power of a test at fixed group sizes; the critical value is found once.
class LargeSampleTest {
public:
  LargeSampleTest(const IndependentTest& test, double sampleSize1, double sampleSize2);

  double Power(double p1, double p2) const;

private:
  double PowerZ(double p1, double p2) const;
  double PowerT(double p1, double p2) const;
  double PowerLikelihoodRatio(double p1, double p2) const;
  double PowerArcsine(double p1, double p2) const;

  IndependentTest test_;
  double n1_;
  double n2_;
  double share1_;  ///< n1 / (n1 + n2)
  double share2_;
  double reciprocals_;  ///< 1 / n1 + 1 / n2
  double criticalZ_;
  TTest testT_;
};

}  // namespace kelpower

#endif
