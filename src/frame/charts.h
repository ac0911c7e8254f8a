#ifndef KELPOWER_FRAME_CHARTS_H
#define KELPOWER_FRAME_CHARTS_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "frame/axes.h"
#include "frame/function_view.h"

namespace kelpower {

/// How the values of a chart are stored. Single precision rounds each to a 32-bit float and widens it back; the missing
/// value becomes minus infinity.
enum class Precision { Single, Double };

double Stored(double value, Precision precision);

using Values = std::unique_ptr<double[]>;

/// The points (x[i], y[i]) of a curve; no arrays where there is no axis.
struct CurvePoints {
  std::int32_t count = 0;
  Values x;
  Values y;
};

/// z[i * yCount + j] is the value at (x[i], y[j]); no arrays where either axis is missing.
struct SurfacePoints {
  std::int32_t xCount = 0;
  std::int32_t yCount = 0;
  Values x;
  Values y;
  Values z;
};

using ChartValue = FunctionView<double(double position)>;

/// The curve of `value` over an axis.
CurvePoints PointsOfCurve(const std::optional<Axis>& axis, Precision precision, ChartValue value);

/// The points of a surface that share one coordinate.
class SurfaceLine {
public:
  SurfaceLine(const double* positions, std::int32_t count, double* values, std::ptrdiff_t stride, Precision precision)
      : positions_(positions), count_(count), values_(values), stride_(stride), precision_(precision) {}

  /// Stores `value` at every position along the line.
  void Fill(ChartValue value) const;

private:
  const double* positions_;
  std::int32_t count_;
  double* values_;
  std::ptrdiff_t stride_;
  Precision precision_;
};

using FillLine = FunctionView<void(double fixed, const SurfaceLine& line)>;

/// The surface over two axes, filled row by row: `fillRow(x, row)` fills the values at `x` over all y. So what depends
/// on x alone is computed once a row.
SurfacePoints PointsByRows(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                           FillLine fillRow);

/// The same, filled column by column: `fillColumn(y, column)` fills the values at `y` over all x.
SurfacePoints PointsByColumns(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                              FillLine fillColumn);

}  // namespace kelpower

#endif
