#include "frame/charts.h"

namespace kelpower {

namespace {

Values NewArray(std::size_t count) { return Values(new double[count]); }

Values Positions(const Axis& axis) {
  Values positions = NewArray(static_cast<std::size_t>(axis.count));
  for (std::int32_t i = 0; i < axis.count; ++i) positions[static_cast<std::size_t>(i)] = axis.At(i);
  return positions;
}

/// A surface whose positions are set and whose values are not.
SurfacePoints BlankSurface(const Axis& xAxis, const Axis& yAxis) {
  SurfacePoints surface;
  surface.xCount = xAxis.count;
  surface.yCount = yAxis.count;
  surface.x = Positions(xAxis);
  surface.y = Positions(yAxis);
  surface.z = NewArray(static_cast<std::size_t>(xAxis.count) * static_cast<std::size_t>(yAxis.count));
  return surface;
}

}  // namespace

double Stored(double value, Precision precision) {
  return precision == Precision::Single ? static_cast<double>(static_cast<float>(value)) : value;
}

CurvePoints PointsOfCurve(const std::optional<Axis>& axis, Precision precision, ChartValue value) {
  CurvePoints curve;
  if (!axis) return curve;
  curve.count = axis->count;
  curve.x = Positions(*axis);
  curve.y = NewArray(static_cast<std::size_t>(axis->count));
  SurfaceLine(curve.x.get(), axis->count, curve.y.get(), 1, precision).Fill(value);
  return curve;
}

void SurfaceLine::Fill(ChartValue value) const {
  double* target = values_;
  for (std::int32_t i = 0; i < count_; ++i, target += stride_) *target = Stored(value(positions_[i]), precision_);
}

SurfacePoints PointsByRows(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                           FillLine fillRow) {
  if (!xAxis || !yAxis) return {};
  SurfacePoints surface = BlankSurface(*xAxis, *yAxis);
  double* z = surface.z.get();
  for (std::ptrdiff_t i = 0; i < surface.xCount; ++i, z += surface.yCount) {
    fillRow(surface.x.get()[i], SurfaceLine(surface.y.get(), surface.yCount, z, 1, precision));
  }
  return surface;
}

SurfacePoints PointsByColumns(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                              FillLine fillColumn) {
  if (!xAxis || !yAxis) return {};
  SurfacePoints surface = BlankSurface(*xAxis, *yAxis);
  for (std::ptrdiff_t j = 0; j < surface.yCount; ++j) {
    fillColumn(surface.y.get()[j],
               SurfaceLine(surface.x.get(), surface.xCount, surface.z.get() + j, surface.yCount, precision));
  }
  return surface;
}

}  // namespace kelpower
