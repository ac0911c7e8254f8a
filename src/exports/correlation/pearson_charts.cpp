#include "exports/correlation/charts.h"
#include "exports/records.h"

using namespace kelpower;
using namespace kelpower::exports;

extern "C" XYPlot PlotNOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                      int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                      int sampleSizeTo) {
  if (sampleSizeFrom == sampleSizeTo) return EmptyCurve();  // also at 0, unlike on the surfaces
  return SizeCurve({PearsonTestOf(oneSided, adjustBias == 1, alpha), sampleSize}, alternativeCorrelation,
                   nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AsGiven});
}

extern "C" XYPlot PlotNullOneSampPearson(double sampleSize, double alternativeCorrelation, int oneSided,
                                         std::uint8_t adjustBias, double alpha, double step) {
  return NullCurve({PearsonTestOf(oneSided, adjustBias == 1, alpha), sampleSize}, alternativeCorrelation, step);
}

extern "C" XYPlot PlotAlterOneSampPearson(double sampleSize, double nullCorrelation, int oneSided,
                                          std::uint8_t adjustBias, double alpha, double step) {
  return AlternativeCurve({PearsonTestOf(oneSided, adjustBias == 1, alpha), sampleSize}, nullCorrelation, step);
}

extern "C" XYPlot PlotRiskDiffOneSampPearson(double sampleSize, double nullCorrelation, int oneSided,
                                             std::uint8_t adjustBias, double alpha, double step) {
  return DifferenceCurve({PearsonTestOf(oneSided, adjustBias == 1, alpha), sampleSize}, nullCorrelation, step);
}

extern "C" XYZPlot PlotNRiskDiffOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                               int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                               int sampleSizeTo, double step) {
  return SizeDifferenceSurface({PearsonTestOf(oneSided, adjustBias == 1, alpha), sampleSize}, alternativeCorrelation,
                               nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::Rejected}, step);
}

extern "C" XYZPlot PlotNNullOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                           int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                           int sampleSizeTo, double step) {
  return SizeNullSurface({PearsonTestOf(oneSided, adjustBias == 1, alpha), sampleSize}, alternativeCorrelation,
                         nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AsGiven}, step);
}

extern "C" XYZPlot PlotNAlterOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                            int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                            int sampleSizeTo, double step) {
  return SizeAlternativeSurface({PearsonTestOf(oneSided, adjustBias == 1, alpha), sampleSize}, alternativeCorrelation,
                                nullCorrelation, {sampleSizeFrom, sampleSizeTo, ZeroStart::AsGiven}, step);
}

extern "C" XYZPlot PlotNullAlterOneSampPearson(double sampleSize, int oneSided, std::uint8_t adjustBias, double alpha,
                                               double step) {
  return NullAlternativeSurface({PearsonTestOf(oneSided, adjustBias == 1, alpha), sampleSize}, step);
}
