#include "correlation/correlation_charts.h"

using namespace kelpower;

extern "C" XYPlot PlotNOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                       int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                       int sampleSizeTo) {
  return SizeCurve({SpearmanTest({alpha, oneSided}, varianceMethod), sampleSize}, alternativeCorrelation,
                   nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Rejected});
}

extern "C" XYPlot PlotNullOneSampSpearman(double sampleSize, double alternativeCorrelation, int varianceMethod,
                                          int oneSided, double alpha, double step) {
  return NullCurve({SpearmanTest({alpha, oneSided}, varianceMethod), sampleSize}, alternativeCorrelation, step);
}

extern "C" XYPlot PlotAlterOneSampSpearman(double sampleSize, double nullCorrelation, int varianceMethod, int oneSided,
                                           double alpha, double step) {
  return AlternativeCurve({SpearmanTest({alpha, oneSided}, varianceMethod), sampleSize}, nullCorrelation, step);
}

extern "C" XYPlot PlotRiskDiffOneSampSpearman(double sampleSize, double nullCorrelation, int varianceMethod,
                                              int oneSided, double alpha, double step) {
  return DifferenceCurve({SpearmanTest({alpha, oneSided}, varianceMethod), sampleSize}, nullCorrelation, step);
}

extern "C" XYZPlot PlotNRiskDiffOneSampSpearman(double sampleSize, double alternativeCorrelation,
                                                double nullCorrelation, int varianceMethod, int oneSided, double alpha,
                                                int sampleSizeFrom, int sampleSizeTo, double step) {
  return SizeDifferenceSurface({SpearmanTest({alpha, oneSided}, varianceMethod), sampleSize}, alternativeCorrelation,
                               nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Rejected}, step);
}

extern "C" XYZPlot PlotNNullOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                            int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                            int sampleSizeTo, double step) {
  return SizeNullSurface({SpearmanTest({alpha, oneSided}, varianceMethod), sampleSize}, alternativeCorrelation,
                         nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AroundDesign}, step);
}

extern "C" XYZPlot PlotNAlterOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                             int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                             int sampleSizeTo, double step) {
  return SizeAlternativeSurface({SpearmanTest({alpha, oneSided}, varianceMethod), sampleSize}, alternativeCorrelation,
                                nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AroundDesign}, step);
}

extern "C" XYZPlot PlotNullAlterOneSampSpearman(double sampleSize, int varianceMethod, int oneSided, double alpha,
                                                double step) {
  return NullAlternativeSurface({SpearmanTest({alpha, oneSided}, varianceMethod), sampleSize}, step);
}
