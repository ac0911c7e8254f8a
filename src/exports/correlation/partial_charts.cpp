#include <cmath>

#include "exports/correlation/charts.h"
#include "exports/records.h"
#include "frame/checks.h"

using namespace kelpower;
using namespace kelpower::exports;

extern "C" XYPlot PlotNOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                      double nullCorrelation, int oneSided, double alpha, int sampleSizeFrom,
                                      int sampleSizeTo) {
  return SizeCurve({PartialTestOf(partialledOut, oneSided, alpha), sampleSize}, alternativeCorrelation, nullCorrelation,
                   {sampleSizeFrom, sampleSizeTo, ZeroStart::Widest});
}

extern "C" XYPlot PlotNullOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                         int oneSided, double alpha, double step) {
  return NullCurve({PartialTestOf(partialledOut, oneSided, alpha), sampleSize}, alternativeCorrelation, step);
}

extern "C" XYPlot PlotAlterOneSampPartial(double sampleSize, double partialledOut, double nullCorrelation, int oneSided,
                                          double alpha, double step) {
  return AlternativeCurve({PartialTestOf(partialledOut, oneSided, alpha), sampleSize}, nullCorrelation, step);
}

extern "C" XYPlot PlotRiskDiffOneSampPartial(double sampleSize, double partialledOut, double nullCorrelation,
                                             int oneSided, double alpha, double step) {
  return DifferenceCurve({PartialTestOf(partialledOut, oneSided, alpha), sampleSize}, nullCorrelation, step);
}

extern "C" XYZPlot PlotNRiskDiffOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                               double nullCorrelation, int oneSided, double alpha, int sampleSizeFrom,
                                               int sampleSizeTo, double step) {
  return SizeDifferenceSurface({PartialTestOf(partialledOut, oneSided, alpha), sampleSize}, alternativeCorrelation,
                               nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Widest}, step);
}

extern "C" XYZPlot PlotNNullOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                           double nullCorrelation, int oneSided, double alpha, int sampleSizeFrom,
                                           int sampleSizeTo, double step) {
  return SizeNullSurface({PartialTestOf(partialledOut, oneSided, alpha), sampleSize}, alternativeCorrelation,
                         nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Widest}, step);
}

extern "C" XYZPlot PlotNAlterOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                            double nullCorrelation, int oneSided, double alpha, int sampleSizeFrom,
                                            int sampleSizeTo, double step) {
  return SizeAlternativeSurface({PartialTestOf(partialledOut, oneSided, alpha), sampleSize}, alternativeCorrelation,
                                nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Widest}, step);
}

extern "C" XYZPlot PlotNullAlterOneSampPartial(double sampleSize, double partialledOut, int oneSided, double alpha,
                                               double step) {
  return NullAlternativeSurface({PartialTestOf(partialledOut, oneSided, alpha), sampleSize}, step);
}

// Numbers of variables partialled out from 0 to N - 5, so that the last test has two cases more than it needs.
extern "C" XYPlot PlotNPartialoutOneSampPartial(double sampleSize, double alternativeCorrelation,
                                                double nullCorrelation, int oneSided, double alpha) {
  const correlation::Level level(alpha, oneSided != 0);
  if (sampleSize <= 3) return EmptyCurve();
  if (RejectsCorrelation(alternativeCorrelation)) return EmptyCurve();
  if (RejectsCorrelation(nullCorrelation)) return EmptyCurve();
  if (RejectsOpenUnit(alpha)) return EmptyCurve();
  return Curve(CountedAxis(std::trunc(sampleSize) - 4, 0, 1), Precision::Single, [&](double partialledOut) {
    return PearsonExport({level, partialledOut, true}).Power(sampleSize, alternativeCorrelation, nullCorrelation);
  });
}
