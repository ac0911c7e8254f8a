#ifndef KELPOWER_TESTS_SUPPORT_CHART_RECORDS_H
#define KELPOWER_TESTS_SUPPORT_CHART_RECORDS_H

#include <vector>

#include "kelpower.h"

// What the tests of charts share.
namespace kelpower {

/// A value as most charts store it.
inline double Single(double value) { return static_cast<double>(static_cast<float>(value)); }

inline bool IsEmpty(const XYPlot& plot) { return plot.count == 0 && plot.x == nullptr && plot.y == nullptr; }

inline bool IsEmpty(const XYZPlot& plot) {
  return plot.xCount == 0 && plot.yCount == 0 && plot.x == nullptr && plot.y == nullptr && plot.z == nullptr;
}

/// A curve that is released at the end of its scope.
struct CurveRecord : XYPlot {
  explicit CurveRecord(XYPlot record) : XYPlot(record) {}
  CurveRecord(const CurveRecord&) = delete;
  CurveRecord& operator=(const CurveRecord&) = delete;
  ~CurveRecord() { FreeMemXYPlot(this); }
};

/// A surface that is released at the end of its scope.
struct SurfaceRecord : XYZPlot {
  explicit SurfaceRecord(XYZPlot record) : XYZPlot(record) {}
  SurfaceRecord(const SurfaceRecord&) = delete;
  SurfaceRecord& operator=(const SurfaceRecord&) = delete;
  ~SurfaceRecord() { FreeMemXYZPlot(this); }
  double At(int i, int j) const { return z[i * yCount + j]; }
};

/// The positions of a curve, which is released.
inline std::vector<double> TakeX(XYPlot plot) {
  const CurveRecord curve(plot);
  return {curve.x, curve.x + curve.count};
}

}  // namespace kelpower

#endif
