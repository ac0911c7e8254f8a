#ifndef KELPOWER_EXPORTS_CORRELATION_TESTS_H
#define KELPOWER_EXPORTS_CORRELATION_TESTS_H

#include <optional>

#include "correlation/pearson.h"
#include "correlation/spearman.h"
#include "kelpower.h"

// The tests as the exports have them: invalid input has the power -1.

namespace kelpower::exports {

/// What the exports of every correlation have in common.
class CorrelationTest {
public:
  virtual ~CorrelationTest() = default;

  /// -1 for invalid input.
  virtual double Power(double sampleSize, double alternative, double null) const = 0;

  /// Whether the power is known never to fall as the sample size grows.
  virtual bool NeverFalls() const = 0;

  virtual double Alpha() const = 0;

  /// The number of variables partialled out, 0 unless the correlation is a partial one.
  virtual double PartialledOut() const { return 0; }
};

class PearsonExport : public CorrelationTest {
public:
  explicit PearsonExport(const correlation::PearsonTest& test) : test_(test) {}
  double Power(double sampleSize, double alternative, double null) const override;
  bool NeverFalls() const override { return test_.NeverFalls(); }
  double Alpha() const override { return test_.level.alpha; }
  double PartialledOut() const override { return test_.partialledOut; }

private:
  correlation::PearsonTest test_;
};

inline PearsonExport PearsonTestOf(int oneSided, bool isCorrected, double alpha) {
  return PearsonExport({{alpha, oneSided != 0}, 0, isCorrected});
}

/// The test of a partial correlation always corrects the bias, and its intervals do not; that is intended.
inline PearsonExport PartialTestOf(double partialledOut, int oneSided, double alpha) {
  return PearsonExport({{alpha, oneSided != 0}, partialledOut, true});
}

class SpearmanExport : public CorrelationTest {
public:
  SpearmanExport(int varianceMethod, int oneSided, double alpha);
  double Power(double sampleSize, double alternative, double null) const override;
  bool NeverFalls() const override { return true; }
  double Alpha() const override { return level_.alpha; }

private:
  std::optional<correlation::RankVariance> variance_;
  correlation::Level level_;
};

/// None for an unknown method.
std::optional<correlation::RankVariance> RankVarianceOf(int varianceMethod);

/// The unrounded size at which `test` reaches a power; missing where none does. Powers of -1 take part in the search as
/// they are, so that a wanted power of -1 or below is reached by invalid input; that is intended.
double SizeForPower(const CorrelationTest& test, double alternative, double null, const correlation::Bracket& bracket,
                    double power, StopRequest* stop);

}  // namespace kelpower::exports

#endif
