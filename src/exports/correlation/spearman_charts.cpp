#include "exports/correlation/charts.h"

using namespace kelpower;
using namespace kelpower::exports;

extern "C" XYPlot PlotNOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                       int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                       int sampleSizeTo) {
  return SizeCurve({SpearmanExport(varianceMethod, oneSided, alpha), sampleSize}, alternativeCorrelation,
                   nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Rejected});
}

extern "C" XYPlot PlotNullOneSampSpearman(double sampleSize, double alternativeCorrelation, int varianceMethod,
                                          int oneSided, double alpha, double step) {
  return NullCurve({SpearmanExport(varianceMethod, oneSided, alpha), sampleSize}, alternativeCorrelation, step);
}

extern "C" XYPlot PlotAlterOneSampSpearman(double sampleSize, double nullCorrelation, int varianceMethod, int oneSided,
                                           double alpha, double step) {
  return AlternativeCurve({SpearmanExport(varianceMethod, oneSided, alpha), sampleSize}, nullCorrelation, step);
}

extern "C" XYPlot PlotRiskDiffOneSampSpearman(double sampleSize, double nullCorrelation, int varianceMethod,
                                              int oneSided, double alpha, double step) {
  return DifferenceCurve({SpearmanExport(varianceMethod, oneSided, alpha), sampleSize}, nullCorrelation, step);
}

extern "C" XYZPlot PlotNRiskDiffOneSampSpearman(double sampleSize, double alternativeCorrelation,
                                                double nullCorrelation, int varianceMethod, int oneSided, double alpha,
                                                int sampleSizeFrom, int sampleSizeTo, double step) {
  return SizeDifferenceSurface({SpearmanExport(varianceMethod, oneSided, alpha), sampleSize}, alternativeCorrelation,
                               nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Rejected}, step);
}

extern "C" XYZPlot PlotNNullOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                            int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                            int sampleSizeTo, double step) {
  return SizeNullSurface({SpearmanExport(varianceMethod, oneSided, alpha), sampleSize}, alternativeCorrelation,
                         nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AroundDesign}, step);
}

extern "C" XYZPlot PlotNAlterOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                             int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                             int sampleSizeTo, double step) {
  return SizeAlternativeSurface({SpearmanExport(varianceMethod, oneSided, alpha), sampleSize}, alternativeCorrelation,
                                nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AroundDesign}, step);
}

extern "C" XYZPlot PlotNullAlterOneSampSpearman(double sampleSize, int varianceMethod, int oneSided, double alpha,
                                                double step) {
  return NullAlternativeSurface({SpearmanExport(varianceMethod, oneSided, alpha), sampleSize}, step);
}
