#ifndef KELPOWER_CAPI_PICTURE_H
#define KELPOWER_CAPI_PICTURE_H

#include "call.h"
#include "model/chart.h"

namespace kelplan {

/// Adds what a chart needs to be drawn besides its points, so that all front ends have the same captions: titles, the
/// labels of its curves, the texts of its designs and, of a surface, the lines of equal power.
void WritePicture(Reply& reply, const planner::ChartData& chart);

}  // namespace kelplan

#endif
