#include "correlation/correlation_charts.h"
#include "frame/charts.h"

using namespace kelpower;

extern "C" XYPlot PlotNOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                      int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                      int sampleSizeTo) {
  if (sampleSizeFrom == sampleSizeTo) return EmptyCurve();  // also at 0, unlike on the surfaces
  return SizeCurve({PearsonTest({alpha, oneSided}, 0, adjustBias == 1), sampleSize}, alternativeCorrelation,
                   nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AsGiven});
}

extern "C" XYPlot PlotNullOneSampPearson(double sampleSize, double alternativeCorrelation, int oneSided,
                                         std::uint8_t adjustBias, double alpha, double step) {
  return NullCurve({PearsonTest({alpha, oneSided}, 0, adjustBias == 1), sampleSize}, alternativeCorrelation, step);
}

extern "C" XYPlot PlotAlterOneSampPearson(double sampleSize, double nullCorrelation, int oneSided,
                                          std::uint8_t adjustBias, double alpha, double step) {
  return AlternativeCurve({PearsonTest({alpha, oneSided}, 0, adjustBias == 1), sampleSize}, nullCorrelation, step);
}

extern "C" XYPlot PlotRiskDiffOneSampPearson(double sampleSize, double nullCorrelation, int oneSided,
                                             std::uint8_t adjustBias, double alpha, double step) {
  return DifferenceCurve({PearsonTest({alpha, oneSided}, 0, adjustBias == 1), sampleSize}, nullCorrelation, step);
}

extern "C" XYZPlot PlotNRiskDiffOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                               int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                               int sampleSizeTo, double step) {
  return SizeDifferenceSurface({PearsonTest({alpha, oneSided}, 0, adjustBias == 1), sampleSize}, alternativeCorrelation,
                               nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Rejected}, step);
}

extern "C" XYZPlot PlotNNullOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                           int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                           int sampleSizeTo, double step) {
  return SizeNullSurface({PearsonTest({alpha, oneSided}, 0, adjustBias == 1), sampleSize}, alternativeCorrelation,
                         nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AsGiven}, step);
}

extern "C" XYZPlot PlotNAlterOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                            int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                            int sampleSizeTo, double step) {
  return SizeAlternativeSurface({PearsonTest({alpha, oneSided}, 0, adjustBias == 1), sampleSize},
                                alternativeCorrelation, nullCorrelation,
                                {sampleSizeFrom, sampleSizeTo, ZeroStart::AsGiven}, step);
}

extern "C" XYZPlot PlotNullAlterOneSampPearson(double sampleSize, int oneSided, std::uint8_t adjustBias, double alpha,
                                               double step) {
  return NullAlternativeSurface({PearsonTest({alpha, oneSided}, 0, adjustBias == 1), sampleSize}, step);
}
