#include "exports/records.h"

namespace kelpower::exports {

namespace {

/// Passes the arrays on to the caller.
XYZPlot Taken(SurfacePoints surface) {
  return {surface.xCount, surface.yCount, surface.x.release(), surface.y.release(), surface.z.release()};
}

}  // namespace

XYPlot EmptyCurve() { return {0, nullptr, nullptr}; }

XYZPlot EmptySurface() { return {0, 0, nullptr, nullptr, nullptr}; }

XYPlot Curve(const std::optional<Axis>& axis, Precision precision, ChartValue value) {
  CurvePoints curve = PointsOfCurve(axis, precision, value);
  return {curve.count, curve.x.release(), curve.y.release()};
}

XYZPlot SurfaceByRows(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                      FillLine fillRow) {
  return Taken(PointsByRows(xAxis, yAxis, precision, fillRow));
}

XYZPlot SurfaceByColumns(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                         FillLine fillColumn) {
  return Taken(PointsByColumns(xAxis, yAxis, precision, fillColumn));
}

}  // namespace kelpower::exports

// The last array of each record keeps its address: the record's counts and that pointer stay what they were.

extern "C" void FreeMemXYPlot(XYPlot* record) {
  delete[] record->x;
  record->x = nullptr;
  delete[] record->y;
}

extern "C" void FreeMemXYZPlot(XYZPlot* record) {
  delete[] record->x;
  record->x = nullptr;
  delete[] record->y;
  record->y = nullptr;
  delete[] record->z;
}
