#ifndef KELPOWER_EXPORTS_RECORDS_H
#define KELPOWER_EXPORTS_RECORDS_H

#include <optional>

#include "frame/axes.h"
#include "frame/charts.h"
#include "kelpower.h"

// The records that charts are returned in.

namespace kelpower::exports {

/// The empty records: counts 0 and null arrays.
XYPlot EmptyCurve();
XYZPlot EmptySurface();

/// The records of the loops over axes; empty where there is no axis.
XYPlot Curve(const std::optional<Axis>& axis, Precision precision, ChartValue value);
XYZPlot SurfaceByRows(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                      FillLine fillRow);
XYZPlot SurfaceByColumns(const std::optional<Axis>& xAxis, const std::optional<Axis>& yAxis, Precision precision,
                         FillLine fillColumn);

}  // namespace kelpower::exports

#endif
