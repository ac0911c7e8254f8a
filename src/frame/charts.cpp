#include "frame/charts.h"

#include <limits>
#include <memory>

namespace kelpower {

namespace {

using Array = std::unique_ptr<double[]>;

Array NewArray(std::size_t count) { return Array(new double[count]); }

Array Positions(const Axis& axis) {
  Array positions = NewArray(static_cast<std::size_t>(axis.count));
  for (std::int32_t i = 0; i < axis.count; ++i) positions[static_cast<std::size_t>(i)] = axis.At(i);
  return positions;
}

/// A surface whose positions are set and whose values are not. Its arrays are released unless the record is taken.
struct BlankSurface {
  std::int32_t xCount;
  std::int32_t yCount;
  Array x;
  Array y;
  Array z;

  BlankSurface(const Axis& xAxis, const Axis& yAxis)
      : xCount(xAxis.count),
        yCount(yAxis.count),
        x(Positions(xAxis)),
        y(Positions(yAxis)),
        z(NewArray(static_cast<std::size_t>(xCount) * static_cast<std::size_t>(yCount))) {}

  XYZPlot Take() { return {xCount, yCount, x.release(), y.release(), z.release()}; }
};

}  // namespace

double Stored(double value, Precision precision) {
  return precision == Precision::Single ? static_cast<double>(static_cast<float>(value)) : value;
}

XYPlot EmptyCurve() { return {0, nullptr, nullptr}; }

XYZPlot EmptySurface() { return {0, 0, nullptr, nullptr, nullptr}; }

XYPlot Curve(const std::optional<Axis>& axis, Precision precision, ChartValue value) {
  if (!axis) return EmptyCurve();
  Array x = Positions(*axis);
  Array y = NewArray(static_cast<std::size_t>(axis->count));
  SurfaceLine(x.get(), axis->count, y.get(), 1, precision).Fill(value);
  return {axis->count, x.release(), y.release()};
}

void SurfaceLine::Fill(ChartValue value) const {
  double* target = values_;
  for (std::int32_t i = 0; i < count_; ++i, target += stride_) *target = Stored(value(positions_[i]), precision_);
}

XYZPlot SurfaceByRows(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                      FillLine fillRow) {
  if (!xAxis || !yAxis) return EmptySurface();
  BlankSurface surface(*xAxis, *yAxis);
  double* z = surface.z.get();
  for (std::ptrdiff_t i = 0; i < surface.xCount; ++i, z += surface.yCount) {
    fillRow(surface.x.get()[i], SurfaceLine(surface.y.get(), surface.yCount, z, 1, precision));
  }
  return surface.Take();
}

XYZPlot SurfaceByColumns(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                         FillLine fillColumn) {
  if (!xAxis || !yAxis) return EmptySurface();
  BlankSurface surface(*xAxis, *yAxis);
  for (std::ptrdiff_t j = 0; j < surface.yCount; ++j) {
    fillColumn(surface.y.get()[j],
               SurfaceLine(surface.x.get(), surface.xCount, surface.z.get() + j, surface.yCount, precision));
  }
  return surface.Take();
}

}  // namespace kelpower
