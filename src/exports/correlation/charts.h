#ifndef KELPOWER_EXPORTS_CORRELATION_CHARTS_H
#define KELPOWER_EXPORTS_CORRELATION_CHARTS_H

#include "exports/correlation/tests.h"
#include "kelpower.h"

namespace kelpower::exports {

// The charts that every correlation test has, each built in one place from the test. All of them check the sample size,
// the level, the correlations and the step before anything else; powers are stored in single precision.

/// How a range of sample sizes that starts at 0 is taken. It starts at k + 4 and ends at k + 5000 otherwise, and its
/// ends differ unless both are 0.
enum class ZeroStart {
  Rejected,
  AsGiven,      ///< the points up to N = k + 3 are those of a rejected size
  Widest,       ///< stands for k + 4 to k + 5000
  AroundDesign  ///< stands for max(4, (1 - P) N) to (2 - P) N, with P the power at the size N at hand
};

struct SizeRange {
  int from;
  int to;
  ZeroStart zeroStart;
};

/// A test and the size at hand. Where the chart has an axis of sizes, that size is validated, and it centres an
/// automatic range.
struct ChartedTest {
  const CorrelationTest& test;
  double sampleSize;
};

XYPlot SizeCurve(const ChartedTest& charted, double alternative, double null, const SizeRange& range);
XYPlot NullCurve(const ChartedTest& charted, double alternative, double step);
XYPlot AlternativeCurve(const ChartedTest& charted, double null, double step);
XYPlot DifferenceCurve(const ChartedTest& charted, double null, double step);
XYZPlot SizeDifferenceSurface(const ChartedTest& charted, double alternative, double null, const SizeRange& range,
                              double step);
XYZPlot SizeNullSurface(const ChartedTest& charted, double alternative, double null, const SizeRange& range,
                        double step);
XYZPlot SizeAlternativeSurface(const ChartedTest& charted, double alternative, double null, const SizeRange& range,
                               double step);
XYZPlot NullAlternativeSurface(const ChartedTest& charted, double step);

}  // namespace kelpower::exports

#endif
