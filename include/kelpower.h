#ifndef KELPOWER_H
#define KELPOWER_H

/// \file
/// Statistical power analysis: power, sample size, precision and chart series of the supported tests.
///
/// Every function is plain, undecorated and free of state; any number of threads may call them at once. Nothing is
/// printed or kept between calls, and no pointer to a caller's array outlives the call it is passed to.
///
/// Nothing is thrown but std::bad_alloc, where memory runs out. Then nothing is leaked, no record is returned, and a
/// DoubleVector is as it was or holds missing values.
///
/// Recurring terms:
/// - *missing*: the system-missing value, the most negative finite double.
/// - *flag*: an int or a byte in which 0 means no and every other value yes, unless stated otherwise.
/// - Checks reject what lies outside a range and nothing else, so a NaN argument passes them. The result is then NaN,
///   with three exceptions. A NaN standard deviation of a contrast counts as 0 (power 1). Exact tests of proportions
///   give what comparing counts with NaN comes to: -2, 0, 1 or 2. A sample-size function gives the lower end of its
///   search.
/// - A search for a sample size doubles its upper end, at first 400 or so, until the bracket holds the size. A wanted
///   power of exactly 1 is reached by the first upper end at which the computed power rounds to 1.

#include <cstdint>
#include <vector>

// Where the sources are part of a larger library, it defines this as nothing.
#ifndef KELPOWER_API
#if defined(__GNUC__) && !defined(_WIN32)
#define KELPOWER_API __attribute__((visibility("default")))
#else
#define KELPOWER_API
#endif
#endif

/// A growable sequence of doubles, owned by the caller, into which sample-size functions of groups write group sizes.
/// Caller and library must be built against the same standard library.
using DoubleVector = std::vector<double>;

/// Lets the caller of a long computation end it. A null pointer means that it is never stopped.
class StopRequest {
public:
  virtual ~StopRequest() = default;

  /// Asked between steps, from the thread that called the library; true ends the computation with the missing value.
  virtual bool ShouldStop() = 0;
};

/// A curve: `count` points (x[i], y[i]). The arrays belong to the caller, who releases them with `FreeMemXYPlot`.
/// The empty record, the answer to invalid input, has count 0 and null arrays.
struct XYPlot {
  std::int32_t count;
  double* x;
  double* y;
};

/// A surface: z[i * yCount + j] is the value at (x[i], y[j]). The arrays belong to the caller, who releases them with
/// `FreeMemXYZPlot`. The empty record has counts 0 and null arrays.
struct XYZPlot {
  std::int32_t xCount;
  std::int32_t yCount;
  double* x;
  double* y;
  double* z;
};

extern "C" {

// ---------------------------------------------------------------------------------------------------------------------
// Frame
// ---------------------------------------------------------------------------------------------------------------------

/// Binomial coefficient C(n, k); 1 when `k` is 0 or `n`.
///
/// For fractional arguments: the product of the whole numbers from n - m + 1, truncated, to n, divided by that of the
/// whole numbers up to m, where m is the smaller of k and n - k. So it is 1 for k < 0 or k > n.
/// \param n number of things, any double
/// \param k number chosen, any double
/// \return the coefficient, plus infinity where it is not representable; NaN when an argument is (but k = 0 gives 1)
KELPOWER_API double Combination(double n, double k);

/// Inverse hyperbolic tangent, Fisher's z of a correlation.
/// \param x any double; a correlation
/// \return atanh(x), with plus and minus infinity at 1 and -1; `x` itself when |x| < 1e-12; -1 when |x| > 1
KELPOWER_API double InvTanh(double x);

/// Releases the arrays of a curve. `x` becomes null; `y` and `count` stay as they were, so a record must be released
/// only once.
/// \param record a record that this library returned
KELPOWER_API void FreeMemXYPlot(XYPlot* record);

/// Releases the arrays of a surface. `x` and `y` become null; `z` and the counts stay as they were, so a record must be
/// released only once.
/// \param record a record that this library returned
KELPOWER_API void FreeMemXYZPlot(XYZPlot* record);

// ---------------------------------------------------------------------------------------------------------------------
// One-way analysis of variance
// ---------------------------------------------------------------------------------------------------------------------
//
// Arguments shared by this section:
/// \param numGroups number of groups k, at least 2
/// \param groupMeans array of numGroups means
/// \param pooledSD within-group standard deviation, above 0, in the unit of the means
/// \param groupSizes array of numGroups sizes, in subjects; whole numbers are not required. Their sum is the total size
/// \param groupRatios array of numGroups allocation weights of any positive scale; only their ratios matter
/// \param groupSizesOut receives numGroups group sizes; earlier content is discarded, left alone on invalid input
/// \param sampleSize total size over all groups, in subjects
/// \param effectSize of the overall test: f, or a proportion of variance; of a contrast: L / pooledSD
/// \param isEtaSquared flag: the effect size is a proportion of variance explained (eta squared), not f
/// \param contrastCoefficients array of numGroups coefficients, which should sum to 0
/// \param isDirectional flag: one-sided t test in the direction of the effect, instead of the two-sided F test
/// \param firstGroup,secondGroup numbers of the two groups compared, 1 <= first < second <= numGroups
/// \param adjustment for all k (k - 1) / 2 comparisons: 0 Bonferroni, 1 Sidak, 2 none; any other value gives missing
/// \param alpha significance level, above 0 and below 1; of a half-width: 1 minus the confidence level
/// \param power wanted power; not checked
/// \param halfWidth wanted half-width of the confidence interval, in the unit of the means; not checked
/// \param from,to ends of the sample-size axis; 0 in either asks for a range around the design, 1 is invalid
/// \param esFrom,esTo ends of the effect-size axis; esTo = 0 asks for 0 to 1 (proportion of variance) or 0 to 2 (f)
/// \param sdFrom,sdTo ends of the standard-deviation axis; 0 in either asks for a range made from the means
/// \param stepFraction step of an axis as a fraction of its range, above 0
//
// Invalid input gives missing, an empty chart. Power values at which a test is not defined are missing.
// Method: Cohen, J. (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., ch. 8, with exact
// noncentral distributions; docs/anova.md has the formulas.

/// Total sample size: the sum of the group sizes, 0 when numGroups <= 0. Nothing is checked.
KELPOWER_API double SampleSizeTotal(int numGroups, const double* groupSizes);

/// Root mean square of the standardised effects of the groups: of the deviations of the means from their size-weighted
/// grand mean, with divisor numGroups - 1, in units of pooledSD. Missing for invalid input, alpha included.
KELPOWER_API double RMSSEOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                     double alpha);

/// Power of the overall F test for given means.
KELPOWER_API double PowerOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                     double alpha);

/// Power of the overall F test for a given effect size, which is not checked.
KELPOWER_API double PowerOverallTestwES(int numGroups, double effectSize, int isEtaSquared, const double* groupSizes,
                                        double alpha);

/// Total size at which the overall F test of given means reaches a power: the sum of the group sizes, each rounded up
/// and at least 2. An unreachable power gives 2 in every group.
KELPOWER_API double PowerReverseOverallTest(int numGroups, const double* groupMeans, double pooledSD,
                                            const double* groupRatios, double power, DoubleVector& groupSizesOut,
                                            double alpha);

/// The same for a given effect size.
KELPOWER_API double PowerReverseOverallTestwES(int numGroups, double effectSize, int isEtaSquared,
                                               const double* groupRatios, double power, DoubleVector& groupSizesOut,
                                               double alpha);

/// Total size at which the confidence interval of the grand mean has a half-width, spread over the groups as above.
KELPOWER_API double PowerReversebyHalfCIOverallTest(double halfWidth, int numGroups, const double* groupRatios,
                                                    double pooledSD, DoubleVector& groupSizesOut, double alpha);

/// Half-width t pooledSD / sqrt(sampleSize) of that interval. Nothing is checked.
KELPOWER_API double HalfCIOverallTest(double sampleSize, int numGroups, double pooledSD, double alpha);

/// Standardised contrast sum(c_i m_i) / pooledSD.
///
/// Coefficients that do not sum to 0 are repaired in the caller's array: the last becomes minus the sum of the others,
/// also when the result is missing because it then lies outside [-1, 1] or because pooledSD is not above 0.
KELPOWER_API double EffectSizeSC(int numGroups, const double* groupMeans, double pooledSD,
                                 double* contrastCoefficients);

/// Power of the test of a contrast of given means. Repairs the coefficients as `EffectSizeSC` does.
KELPOWER_API double PowerSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                            double* contrastCoefficients, int isDirectional, double alpha);

/// Power of the test of a contrast of given standardised effect. The coefficients are taken as they are.
KELPOWER_API double PowerSCwES(int numGroups, double effectSize, const double* groupSizes,
                               const double* contrastCoefficients, int isDirectional, double alpha);

/// Total size at which the test of a contrast reaches a power, spread over the groups as for the overall test. The
/// caller's coefficients are not repaired: the search works on a repaired copy.
KELPOWER_API double PowerReverseSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupRatios,
                                   double* contrastCoefficients, double power, DoubleVector& groupSizesOut,
                                   int isDirectional, double alpha);

/// The same for a given standardised effect.
KELPOWER_API double PowerReverseSCwES(int numGroups, double effectSize, const double* groupRatios,
                                      const double* contrastCoefficients, double power, DoubleVector& groupSizesOut,
                                      int isDirectional, double alpha);

/// Total size at which the confidence interval of a contrast has a half-width, spread over the groups as above.
KELPOWER_API double PowerReversebyHalfCISCTest(double halfWidth, int numGroups, const double* groupRatios,
                                               const double* contrastCoefficients, double pooledSD,
                                               DoubleVector& groupSizesOut, double alpha);

/// Half-width of the confidence interval of a contrast at a total size. `groupSizes` are relative weights. Nothing is
/// checked.
KELPOWER_API double HalfCISCTest(double sampleSize, int numGroups, const double* groupSizes,
                                 const double* contrastCoefficients, double pooledSD, double alpha);

/// Standardised difference (m_first - m_second) / pooledSD.
/// \param unused not used; may be null
KELPOWER_API double EffectSizePairwiseDiff(int numGroups, const double* groupMeans, double pooledSD, const void* unused,
                                           int firstGroup, int secondGroup);

/// Power of the two-sided test of the difference between two groups, at the adjusted level.
KELPOWER_API double PowerPairwiseDiff(int numGroups, const double* groupMeans, double pooledSD,
                                      const double* groupSizes, int firstGroup, int secondGroup, int adjustment,
                                      double alpha);

/// Total size at which that test reaches a power, spread over the groups as for the overall test. With an unknown
/// adjustment `groupSizesOut` holds missing values.
KELPOWER_API double PowerReversePairwiseDiff(int numGroups, const double* groupMeans, double pooledSD,
                                             const double* groupRatios, int firstGroup, int secondGroup, double power,
                                             DoubleVector& groupSizesOut, int adjustment, double alpha);

/// Total size at which the interval of the difference has a half-width. The group numbers are not checked.
KELPOWER_API double PowerReversebyHalfCIPairwiseDiff(double halfWidth, int numGroups, const double* groupRatios,
                                                     int firstGroup, int secondGroup, double pooledSD,
                                                     DoubleVector& groupSizesOut, int adjustment, double alpha);

/// Half-width of the interval of the difference. Only the adjustment is checked.
KELPOWER_API double HalfCIPairwiseDiff(double sampleSize, int numGroups, const double* groupSizes, int firstGroup,
                                       int secondGroup, double pooledSD, int adjustment, double alpha);

/// Power of the overall test against total size. At other totals than their own sum `groupSizes` are relative weights.
KELPOWER_API XYPlot PlotNOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                     int from, int to, double alpha);

/// The same for a given effect size.
KELPOWER_API XYPlot PlotNOverallTestFES(int numGroups, double effectSize, int isEtaSquared, const double* groupSizes,
                                        int from, int to, double alpha);

/// Power of the overall test against effect size. Values in single precision.
KELPOWER_API XYPlot PlotESOverallTest(int numGroups, int isEtaSquared, const double* groupSizes, double esFrom,
                                      double esTo, double alpha, double stepFraction);

/// Power of the overall test against the standard deviation. Values in single precision. `pooledSD` is only checked.
KELPOWER_API XYPlot PlotSDOverallTest(int numGroups, const double* groupMeans, double pooledSD,
                                      const double* groupSizes, double sdFrom, double sdTo, double alpha,
                                      double stepFraction);

/// Power of the overall test over total size (x) and standard deviation (y). A level of 1 and above is not invalid
/// here: every value is then missing.
KELPOWER_API XYZPlot PlotNaSDOverallTest(int numGroups, const double* groupMeans, double pooledSD,
                                         const double* groupSizes, int from, int to, double sdFrom, double sdTo,
                                         double alpha, double stepFraction);

/// Power of the overall test over total size (x) and effect size (y); levels as above. `effectSize` is that of the
/// design and serves the automatic range of sizes.
KELPOWER_API XYZPlot PlotNaESOverallTest(int numGroups, double effectSize, int isEtaSquared, const double* groupSizes,
                                         int from, int to, double esFrom, double esTo, double alpha,
                                         double stepFraction);

/// Power of the test of a contrast against total size. Repairs the coefficients at the first point that is computed.
KELPOWER_API XYPlot PlotNSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                            double* contrastCoefficients, int from, int to, int isDirectional, double alpha);

/// The same for a given standardised effect. There is no automatic range: 0 is a total size of 0.
KELPOWER_API XYPlot PlotNSCFES(int numGroups, double effectSize, const double* groupSizes,
                               const double* contrastCoefficients, int from, int to, int isDirectional, double alpha);

/// Power of the test of a contrast against the standard deviation. Values in single precision. Repairs the
/// coefficients.
KELPOWER_API XYPlot PlotSDSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                             double* contrastCoefficients, double sdFrom, double sdTo, int isDirectional, double alpha,
                             double stepFraction);

/// Power of the test of a contrast over total size (x) and standard deviation (y). Repairs the coefficients.
KELPOWER_API XYZPlot PlotNaSDSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                double* contrastCoefficients, int from, int to, double sdFrom, double sdTo,
                                int isDirectional, double alpha, double stepFraction);

// ---------------------------------------------------------------------------------------------------------------------
// Tests of means: one sample, paired samples, independent samples
// ---------------------------------------------------------------------------------------------------------------------
//
// Arguments shared by this section. All means, differences, standard deviations and half-widths of a call are in one
// unit.
/// \param sampleSize number of observations, or of pairs, above 1; whole numbers are not required
/// \param sampleSize1,sampleSize2 sizes of the two groups, each above 1; whole numbers are not required
/// \param totalSize both sizes together, above 1
/// \param ratio size of the second group divided by that of the first, above 0
/// \param mean,sd mean and standard deviation of the population under the alternative; sd above 0
/// \param testValue mean under the null hypothesis
/// \param mean1,sd1,mean2,sd2 mean and standard deviation of each group, or of each of the paired measurements
/// \param correlation between the paired measurements: from -1 to 1, not 0, and below 1 for the one-sided test
/// \param effectSize standardised effect d, a difference of means in standard deviations; any sign; not checked
/// \param alpha significance level, above 0 and below 1; of a half-width: 1 minus the confidence level
/// \param power wanted power; not checked. Above 1, or without an effect, no size reaches it, which gives missing
/// \param halfWidth wanted half-width of the two-sided confidence interval; not checked
/// \param results receives both group sizes at its end, the size of group 1 first. n1 is rounded up. n2 is the ratio
///   times the unrounded n1, rounded up and at least 2. Where no size is found, both are missing
/// \param directional flag: one-sided, not two-sided
/// \param minSampleSize,maxSampleSize ends of the sample-size axis: 2 or above, and ascending
/// \param minEffectSize,maxEffectSize ends of the effect-size axis. Of a two-sided chart: 0 or above, where a
///   minEffectSize of -5 stands for 0
/// \param minRatio,maxRatio ends of the axis of ratios; a 0 in either asks for m = 0.8 (totalSize - 2) and 1 / m
/// \param minMeanDifference,maxMeanDifference ends of the axis of raw differences mean1 - mean2. Two zeros, or
///   ends that do not ascend, ask for 5 times the difference of the means to either side of 0, or for 100 without a
///   difference
/// \param stepFraction step of an axis as a fraction of its range, above 0
/// \param ignored not used
//
// "Nondirectional" is the two-sided test with both tails counted. "Directional" is the one-sided test in the direction
// in which the effect lies: the sign of the effect is dropped. Functions that end in ES take a standardised effect
// size. Invalid input gives missing, two missing values in `results`, or an empty chart. A point of a chart at which
// the test is not defined is missing. Values of charts are rounded to single precision. Method: Cohen, J. (1988),
// Statistical Power Analysis for the Behavioral Sciences, 2nd ed., ch. 2, with the exact noncentral t distribution;
// docs/means.md has the formulas.

/// Effect size (mean - testValue) / sd. Missing when sd is 0; a negative sd is accepted.
KELPOWER_API double EffectSizeOneSample(double mean, double sd, double testValue);

/// Power of the two-sided one-sample test. Only sampleSize is checked.
KELPOWER_API double PowerOneSampleNondirectionalES(double sampleSize, double effectSize, double alpha);

/// The same for a given mean.
KELPOWER_API double PowerOneSampleNondirectional(double sampleSize, double mean, double sd, double testValue,
                                                 double alpha);

/// Power of the one-sided one-sample test.
KELPOWER_API double PowerOneSampleDirectionalES(double sampleSize, double effectSize, double alpha);

/// The same for a given mean.
KELPOWER_API double PowerOneSampleDirectional(double sampleSize, double mean, double sd, double testValue,
                                              double alpha);

/// Size, not rounded, at which the two-sided one-sample test reaches a power; at least 2. Nothing is checked.
KELPOWER_API double PowerReverseOneSampleNondirectionalES(double power, double effectSize, double alpha);

/// The same for a given mean; sd and alpha are checked.
KELPOWER_API double PowerReverseOneSampleNondirectional(double power, double mean, double sd, double testValue,
                                                        double alpha);

/// Size, not rounded, at which the one-sided one-sample test reaches a power; at least 2.
KELPOWER_API double PowerReverseOneSampleDirectionalES(double power, double effectSize, double alpha);

/// The same for a given mean.
KELPOWER_API double PowerReverseOneSampleDirectional(double power, double mean, double sd, double testValue,
                                                     double alpha);

/// Half-width t sd / sqrt(sampleSize) of the confidence interval of the mean. Nothing is checked.
KELPOWER_API double HalfCIOneSampleMeans(double sampleSize, double sd, double alpha);

/// Size, rounded up, at which the confidence interval of the mean has a half-width. Nothing is checked.
KELPOWER_API double PowerReversebyHalfCIOneSampleMeans(double halfWidth, double sd, double alpha);

/// Power of the one-sample test against size.
KELPOWER_API XYPlot PlotNOneSample(double ignored, double mean, double sd, int minSampleSize, int maxSampleSize,
                                   int directional, double testValue, double alpha);

/// The same for a given effect size.
KELPOWER_API XYPlot PlotNOneSampleFES(double effectSize, int minSampleSize, int maxSampleSize, int directional,
                                      double alpha);

/// Power of the one-sample test against effect size. Equal ends give one point.
KELPOWER_API XYPlot PlotESOneSample(double sampleSize, double minEffectSize, double maxEffectSize, int directional,
                                    double alpha, double stepFraction);

/// Power of the one-sample test over effect size (x) and size (y). From a span of 1,000 sizes on every second size is
/// taken, and the last one may lie one above maxSampleSize. Equal ends of the effect size are invalid.
KELPOWER_API XYZPlot PlotNaESOneSample(int minSampleSize, int maxSampleSize, double minEffectSize, double maxEffectSize,
                                       int directional, double alpha, double stepFraction);

/// Effect size (mean1 - mean2) / s of paired samples, where s is the standard deviation of the differences,
/// sqrt(sd1^2 + sd2^2 - 2 correlation sd1 sd2). A sd2 of 0 says that sd1 is s itself. Nothing is checked.
KELPOWER_API double EffectSizeRelated(double mean1, double sd1, double mean2, double sd2, double correlation);

/// Power of the two-sided paired test.
KELPOWER_API double PowerRelatedNondirectionalES(double sampleSize, double effectSize, double alpha);

/// The same for given means. sd1 must be above 0, sd2 not below 0. A correlation of 0 is refused, and so are equal
/// standard deviations with a correlation of 1 or -1.
KELPOWER_API double PowerRelatedNondirectional(double sampleSize, double mean1, double sd1, double mean2, double sd2,
                                               double correlation, double alpha);

/// Power of the one-sided paired test; the same function as `PowerOneSampleDirectionalES`.
KELPOWER_API double PowerRelatedDirectionalES(double sampleSize, double effectSize, double alpha);

/// The same for given means, checked as in `PowerRelatedNondirectional`; a correlation of 1 is refused too.
KELPOWER_API double PowerRelatedDirectional(double sampleSize, double mean1, double sd1, double mean2, double sd2,
                                            double correlation, double alpha);

/// Number of pairs, not rounded, at which the two-sided paired test reaches a power; at least 2.
KELPOWER_API double PowerReverseRelatedNondirectionalES(double power, double effectSize, double alpha);

/// The same for given means, checked as in `PowerRelatedNondirectional`.
KELPOWER_API double PowerReverseRelatedNondirectional(double power, double mean1, double sd1, double mean2, double sd2,
                                                      double correlation, double alpha);

/// Number of pairs, not rounded, at which the one-sided paired test reaches a power; the same function as
/// `PowerReverseOneSampleDirectionalES`.
KELPOWER_API double PowerReverseRelatedDirectionalES(double power, double effectSize, double alpha);

/// The same for given means, checked as in `PowerRelatedDirectional`.
KELPOWER_API double PowerReverseRelatedDirectional(double power, double mean1, double sd1, double mean2, double sd2,
                                                   double correlation, double alpha);

/// Half-width t s / sqrt(sampleSize) of the confidence interval of the mean difference, with s as in
/// `EffectSizeRelated`. Nothing is checked.
KELPOWER_API double HalfCIRelatedMeans(double sampleSize, double sd1, double sd2, double correlation, double alpha);

/// Number of pairs, rounded up, at which that interval has a half-width. Nothing is checked.
KELPOWER_API double PowerReversebyHalfCIRelatedMeans(double halfWidth, double sd1, double sd2, double correlation,
                                                     double alpha);

/// Power of the paired test against the number of pairs. With a correlation above 1 (one-sided: of 1 and above) every
/// value is missing.
KELPOWER_API XYPlot PlotNRelated(double ignored, double mean1, double sd1, double mean2, double sd2, int minSampleSize,
                                 int maxSampleSize, double correlation, int directional, double alpha);

/// The same for a given effect size.
KELPOWER_API XYPlot PlotNRelatedFES(double effectSize, int minSampleSize, int maxSampleSize, int directional,
                                    double alpha);

/// Power of the paired test against effect size, as `PlotESOneSample`.
KELPOWER_API XYPlot PlotESRelated(double sampleSize, double minEffectSize, double maxEffectSize, int directional,
                                  double alpha, double stepFraction);

/// Power of the paired test over effect size (x) and number of pairs (y), as `PlotNaESOneSample`.
KELPOWER_API XYZPlot PlotNaESRelated(int minSampleSize, int maxSampleSize, double minEffectSize, double maxEffectSize,
                                     int directional, double alpha, double stepFraction);

/// Effect size (mean1 - mean2) / sd of two groups. Missing when sd is 0; a negative sd is accepted.
KELPOWER_API double EffectSizeIndependent(double mean1, double mean2, double sd);

/// Power of the two-sided test of two groups: pooled when sd1 and sd2 are equal, else in the form of Welch.
KELPOWER_API double PowerIndependentNondirectional(double sampleSize1, double mean1, double sd1, double sampleSize2,
                                                   double mean2, double sd2, double alpha);

/// Power of the two-sided pooled test for a given effect size.
KELPOWER_API double PowerIndependentNondirectionalES(double sampleSize1, double sampleSize2, double effectSize,
                                                     double alpha);

/// Power of the one-sided test of two groups: pooled when sd1 and sd2 are equal, else in the form of Welch.
KELPOWER_API double PowerIndependentDirectional(double sampleSize1, double mean1, double sd1, double sampleSize2,
                                                double mean2, double sd2, double alpha);

/// Power of the one-sided pooled test for a given effect size.
KELPOWER_API double PowerIndependentDirectionalES(double sampleSize1, double sampleSize2, double effectSize,
                                                  double alpha);

/// Sizes at which the two-sided test of two groups reaches a power. Does nothing when `results` is not empty.
KELPOWER_API void PowerReverseIndependentNondirectional(double power, double ratio, double mean1, double sd1,
                                                        double mean2, double sd2, DoubleVector& results, double alpha);

/// The same for the one-sided test.
KELPOWER_API void PowerReverseIndependentDirectional(double power, double ratio, double mean1, double sd1, double mean2,
                                                     double sd2, DoubleVector& results, double alpha);

/// Sizes at which the two-sided pooled test reaches a power at a given effect size. Appends to what is in `results`.
KELPOWER_API void PowerReverseIndependentNondirectionalES(double power, double ratio, double effectSize,
                                                          DoubleVector& results, double alpha);

/// The same for the one-sided test.
KELPOWER_API void PowerReverseIndependentDirectionalES(double power, double ratio, double effectSize,
                                                       DoubleVector& results, double alpha);

/// Half-width t sqrt(sd1^2 / n1 + sd2^2 / n2) of the confidence interval of the difference of means. Nothing is
/// checked.
KELPOWER_API double HalfCIIndependentMeans(double sampleSize1, double sd1, double sampleSize2, double sd2,
                                           double alpha);

/// Sizes at which that interval has a half-width. Nothing is checked. Appends to what is in `results`.
KELPOWER_API void PowerReversebyHalfCIIndependentMeans(double halfWidth, double ratio, double sd1, double sd2,
                                                       DoubleVector& results, double alpha);

/// Power of the test of two groups against the ratio of their sizes: pooled when sd1 and sd2 are equal, else in the
/// form of Welch. The ends of the ratios must leave about one observation in either group:
/// 1 / (totalSize - 1) < minRatio and maxRatio < totalSize - 1. A value outside [0, 1] repeats its left neighbour; the
/// first point keeps its own.
KELPOWER_API XYPlot PlotRatioIndependent(double totalSize, double mean1, double sd1, double mean2, double sd2,
                                         double minRatio, double maxRatio, int directional, double alpha,
                                         double stepFraction);

/// The same for a given effect size, with the pooled test.
KELPOWER_API XYPlot PlotRatioIndependentFES(double totalSize, double effectSize, double minRatio, double maxRatio,
                                            int directional, double alpha, double stepFraction);

/// Power of the pooled test of two groups against effect size. Equal ends are invalid.
KELPOWER_API XYPlot PlotESIndepended(double sampleSize1, double sampleSize2, double minEffectSize, double maxEffectSize,
                                     int directional, double alpha, double stepFraction);

/// Power of the test of two groups against the raw difference of means, always in the form of Welch. The means set the
/// automatic range and nothing else.
/// \param step distance of the points, in the unit of the means, above 0
KELPOWER_API XYPlot PlotMeanDiffIndepended(double sampleSize1, double mean1, double sd1, double sampleSize2,
                                           double mean2, double sd2, double minMeanDifference, double maxMeanDifference,
                                           int directional, double alpha, double step);

/// Power of the pooled test over the ratio of sizes (x) and effect size (y). A value outside [0, 1], such as the
/// missing value at a ratio that leaves a group one observation, is replaced beyond the first column: in the first row
/// by the effect size before it, in the others by the missing value, unrounded.
KELPOWER_API XYZPlot PlotRatioaESIndependent(double totalSize, double minRatio, double maxRatio, double minEffectSize,
                                             double maxEffectSize, int directional, double alpha, double stepFraction);

/// Power of the test in the form of Welch over the ratio of sizes (x) and the raw difference of means (y), whose step
/// is twice stepFraction of its range. Values outside [0, 1] as in `PlotRatioaESIndependent`. The means set the
/// automatic range and nothing else.
KELPOWER_API XYZPlot PlotRatioaMeanDiffIndependent(double totalSize, double mean1, double sd1, double mean2, double sd2,
                                                   double minRatio, double maxRatio, double minMeanDifference,
                                                   double maxMeanDifference, int directional, double alpha,
                                                   double stepFraction);

// ---------------------------------------------------------------------------------------------------------------------
// One proportion
// ---------------------------------------------------------------------------------------------------------------------
//
// Arguments shared by this section:
/// \param sampleSize number of subjects N, at least 1; the exact test counts successes in whole ones
/// \param altProportion proportion p1 under the alternative hypothesis, from 0 to 1
/// \param nullProportion proportion p0 under the null hypothesis, from 0 to 1
/// \param proportion proportion p of an interval; not checked
/// \param method 0 for the normal approximation, any other value for the exact binomial test
/// \param oneSided flag: one-sided in the direction from p0 to p1 (downwards where they are equal), not two-sided
/// \param alpha significance level, above 0 and below 1; of a half-width: 1 minus the confidence level, not checked
/// \param continuityCorrection byte flag: corrects the normal approximation and the interval of Wilson by a half
///        subject. The half-width of Wald's interval is corrected for the value 1 alone, its sample size for any but 0
/// \param power wanted power; not checked
/// \param halfWidth wanted half-width of the confidence interval; not checked
/// \param ciMethod interval: 0 Wald, 1 logit with half a subject added to both counts, 2 logit, 3 Clopper-Pearson,
///        4 Jeffreys, 5 Wilson, 6 Agresti-Coull
/// \param minSampleSize,maxSampleSize ends of the sample-size axis, from 0 to 5,000; equal ends only at 0
/// \param step distance of the proportions along an axis: step, 2 step, ... below 1; above 0, at most 0.5
/// \param cancel asked before every step of a search, and by the exact power once for each count from its end of the
///        distribution to the critical value; true gives missing. May be null
//
// Invalid input gives -1, an empty chart. The exact power is -2 where a binomial probability has no value (a NaN
// proportion), and missing for sizes above 2,147,483,647. Chart values are in single precision; a chart point with
// invalid input is -1.
// Method: Fleiss, J. L., Levin, B. and Paik, M. C. (2003), Statistical Methods for Rates and Proportions, 3rd ed.,
// ch. 2, and exact binomial tails; docs/proportions.md has the formulas and the sources of the intervals.

/// Power of the test of one proportion.
KELPOWER_API double PowerOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                      int oneSided, double alpha, std::uint8_t continuityCorrection,
                                      StopRequest* cancel);

/// Sample size at which the test reaches a power. For the normal approximation it is not rounded. For the exact test it
/// is the smallest whole one that the search finds. Smaller ones can reach the power and larger ones miss it, because
/// the power of an exact test is a sawtooth. Proportions within 1e-14 of each other are invalid here, while the power
/// function accepts equal ones. Missing when no size has the power.
KELPOWER_API double PowerReverseOneSampBinom(double power, double altProportion, double nullProportion, int method,
                                             int oneSided, double alpha, std::uint8_t continuityCorrection,
                                             StopRequest* cancel);

/// Half-width of the confidence interval of a proportion. Nothing is checked; 0 for an unknown method.
KELPOWER_API double HalfCIOneSampBinom(double sampleSize, double proportion, int ciMethod, double alpha,
                                       std::uint8_t continuityCorrection);

/// Sample size, not rounded, at which the interval has a half-width. Nothing is checked; 400 for an unknown method.
KELPOWER_API double PowerReversebyHalfCIOneSampBinom(double halfWidth, double proportion, int ciMethod, double alpha,
                                                     std::uint8_t continuityCorrection, StopRequest* cancel);

/// Power against sample size. There is no automatic range; `sampleSize` is only checked.
KELPOWER_API XYPlot PlotNOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                      int oneSided, double alpha, int minSampleSize, int maxSampleSize,
                                      std::uint8_t continuityCorrection);

/// Power against the null proportion.
KELPOWER_API XYPlot PlotNullOneSampBinom(double sampleSize, double altProportion, int method, int oneSided,
                                         double alpha, std::uint8_t continuityCorrection, double step);

/// Power against the alternative proportion.
KELPOWER_API XYPlot PlotAlterOneSampBinom(double sampleSize, double nullProportion, int method, int oneSided,
                                          double alpha, std::uint8_t continuityCorrection, double step);

/// Power against the difference p1 - p0, from step - p0 in steps of `step`.
KELPOWER_API XYPlot PlotRiskDiffOneSampBionm(double sampleSize, double nullProportion, int method, int oneSided,
                                             double alpha, std::uint8_t continuityCorrection, double step);

/// Power over sample size (x) and the difference p1 - p0 (y). An end of 0 of the sizes asks for a range around the
/// design, from (1 - power) N to (2 - power) N.
KELPOWER_API XYZPlot PlotNRiskDiffOneSampBinom(double sampleSize, double altProportion, double nullProportion,
                                               int method, int oneSided, double alpha, int minSampleSize,
                                               int maxSampleSize, std::uint8_t continuityCorrection, double step);

/// Power over sample size (x) and null proportion (y); sizes as above.
KELPOWER_API XYZPlot PlotNNullOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                           int oneSided, double alpha, int minSampleSize, int maxSampleSize,
                                           std::uint8_t continuityCorrection, double step);

/// Power over sample size (x) and alternative proportion (y); sizes as above.
KELPOWER_API XYZPlot PlotNAlterOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                            int oneSided, double alpha, int minSampleSize, int maxSampleSize,
                                            std::uint8_t continuityCorrection, double step);

/// Power over null (x) and alternative proportion (y).
KELPOWER_API XYZPlot PlotNullAlterOneSampBinom(double sampleSize, int method, int oneSided, double alpha,
                                               std::uint8_t continuityCorrection, double step);

// ---------------------------------------------------------------------------------------------------------------------
// Two related proportions
// ---------------------------------------------------------------------------------------------------------------------
//
// Arguments shared by this section:
/// \param sampleSize number of pairs N, at least 2; the exact test counts discordant pairs in whole ones
/// \param discordant12,discordant21 probabilities of the two kinds of discordant pairs (success first, failure second,
///        and the reverse), at least 0, with a sum of at most 1
/// \param discordantCount12,discordantCount21 the same as expected counts, at least 0, with a sum of at most N
/// \param marginal1,marginal2 success proportions of the two measures, above 0 and below 1
/// \param marginalCount1,marginalCount2 the same as expected counts, above 0 and below N
/// \param correlation correlation of the two outcomes, from -1 to 1
/// \param oneSided flag: one-sided in the direction of the difference, not two-sided
/// \param exact 0 for the large-sample test, any other value for the exact sign test of the discordant pairs
/// \param alpha significance level, above 0 and below 1; of a half-width: 1 minus the confidence level, not checked
/// \param continuityCorrection byte flag: corrects Wald's interval; its half-width for the value 1 alone, its sample
///        size for any but 0
/// \param power wanted power; not checked
/// \param halfWidth wanted half-width of the confidence interval of p12 - p21; not checked
/// \param ciMethod interval: 0 Wald, 1 Agresti-Min, 2 Bonett-Price
/// \param minSampleSize,maxSampleSize ends of the sample-size axis, from 0 to 2,500
/// \param minRatio,maxRatio ends of the ratio axis; 0 in either asks for the widest range of the design, up to 3
/// \param step distance of the points along an axis, above 0; of the ratio axes as a fraction of their range
/// \param cancel asked before every step of a search and by the exact power once for each number of discordant pairs;
///        true gives missing. May be null
//
// Invalid input gives -1, an empty chart. The exact power is -2 where a binomial probability has no value (no
// discordant pairs, a NaN probability), and missing for sizes above 2,147,483,647. Chart values are in single
// precision; a chart point with invalid input is -1.
// Method: Connor, R. J. (1987), Sample size for testing differences in proportions for the paired-sample design,
// Biometrics 43, 207-211; docs/proportions.md has the formulas and the exact test.

/// Power of McNemar's test for given probabilities of discordant pairs.
KELPOWER_API double PowerbyPRelSampBionm(double sampleSize, double discordant12, double discordant21, int oneSided,
                                         int exact, double alpha, StopRequest* cancel);

/// The same for given counts of discordant pairs.
KELPOWER_API double PowerbyCRelSampBionm(double sampleSize, double discordantCount12, double discordantCount21,
                                         int oneSided, int exact, double alpha);

/// The same for given marginal proportions and their correlation. Probabilities within 1e-14 of 0 that come out of them
/// are 0.
KELPOWER_API double PowerbyMargPRelSampBionm(double sampleSize, double marginal1, double marginal2, double correlation,
                                             int oneSided, int exact, double alpha);

/// The same for given marginal counts and their correlation.
KELPOWER_API double PowerbyMargCRelSampBionm(double sampleSize, double marginalCount1, double marginalCount2,
                                             double correlation, int oneSided, int exact, double alpha);

/// Number of pairs at which the test reaches a power. For the large-sample test it is not rounded. For the exact test
/// it is the smallest whole one that the search finds. Nothing is checked. Missing when no size has the power.
KELPOWER_API double PowerReversebyPRelSampBionm(double power, double discordant12, double discordant21, int oneSided,
                                                int exact, double alpha, StopRequest* cancel);

/// The same for given marginal proportions and their correlation, which are checked.
KELPOWER_API double PowerReversebyMargPRelSampBionm(double power, double marginal1, double marginal2,
                                                    double correlation, int oneSided, int exact, double alpha,
                                                    StopRequest* cancel);

/// Half-width of the confidence interval of p12 - p21. Nothing is checked; 0 for an unknown method.
KELPOWER_API double HalfCIRelSampBinom(double sampleSize, double discordant12, double discordant21, int ciMethod,
                                       double alpha, std::uint8_t continuityCorrection);

/// Number of pairs at which the interval has a half-width, rounded up. Nothing is checked.
KELPOWER_API double PowerReversebyHalfCIRelSampBinom(double halfWidth, double discordant12, double discordant21,
                                                     int ciMethod, double alpha, std::uint8_t continuityCorrection,
                                                     StopRequest* cancel);

/// Power against the number of pairs. There is no automatic range.
KELPOWER_API XYPlot PlotNRelSampBionm(double sampleSize, double discordant12, double discordant21, int minSampleSize,
                                      int maxSampleSize, int oneSided, int exact, double alpha);

/// Power against the difference p12 - p21 for a given p12, in steps of `step` times 1 - p12.
KELPOWER_API XYPlot PlotRiskDiffRelSampBionm(double sampleSize, double discordant12, int oneSided, int exact,
                                             double alpha, double step);

/// Power against the ratio p12 / p21. Up to p12 = 0.5 the ratio varies p21 and is at least p12 / (1 - p12). Above, it
/// varies p12 and is at most (1 - p21) / p21. Given ends lie between 0.1 and 10.
KELPOWER_API XYPlot PlotRiskRatioRelSampBionm(double sampleSize, double discordant12, double discordant21,
                                              double minRatio, double maxRatio, int oneSided, int exact, double alpha,
                                              double step);

/// Power against the odds ratio of p12 to p21, which varies p21. It starts no lower than the square of the odds of p12
/// and ends at most 10 above that.
KELPOWER_API XYPlot PlotOddsRatioRelSampBionm(double sampleSize, double discordant12, double minRatio, double maxRatio,
                                              int oneSided, int exact, double alpha, double step);

/// Power against the correlation, from -1 to the largest that the marginal proportions allow.
KELPOWER_API XYPlot PlotCorrRelSampBionm(double sampleSize, double marginal1, double marginal2, int oneSided, int exact,
                                         double alpha, double step);

/// Power over p12 (x) and p21 (y); 0 where they are equal or their sum exceeds 1.
KELPOWER_API XYZPlot PlotPropRelSampBionm(double sampleSize, int oneSided, int exact, double alpha, double step);

/// Power over the marginal proportions (x and y), whose correlation lies inside (-1, 1); 0 where their sum exceeds 1.
KELPOWER_API XYZPlot PlotMargPropRelSampBionm(double sampleSize, double correlation, int oneSided, int exact,
                                              double alpha, double step);

// ---------------------------------------------------------------------------------------------------------------------
// Proportions of two independent samples
// ---------------------------------------------------------------------------------------------------------------------
//
// Arguments shared by this section:
/// \param sampleSize1,sampleSize2 group sizes N1 and N2, in subjects, at least 0.999999999999; need not be whole
/// \param totalSampleSize N1 + N2, at least 2
/// \param proportion1,proportion2 proportions p1 and p2 under the alternative, above 0 and below 1
/// \param exact flag: by enumeration of all tables; 0 for the large-sample formula
/// \param method 0 z test, 1 t test, 2 likelihood-ratio test, every other value the arcsine test (large-sample) or
///        the conditional test (exact)
/// \param oneSided flag: one-sided, in the direction in which p1 and p2 differ, instead of two-sided
/// \param alpha significance level, above 0 and below 1; of a half-width: 1 minus the confidence level
/// \param continuityCorrection flag of the z test and of some intervals
/// \param pooledVariance flag: the z test's standard error under equal proportions (large-sample only); the t test's
///        pooled variance
/// \param cancel ends a long exact computation or a search with missing; may be null. An exact test asks it once a
///        table, the conditional test once a total
/// \param sampleSizes the caller's vector, which receives N1 and N2
/// \param sizeRatio N2 / N1, above 0; not checked
/// \param power wanted power; not checked
/// \param halfWidth wanted half-width; not checked
/// \param ciMethod 0 Wald; 1 Agresti-Caffo, one success and one failure added; 2 the same with N + 3 as divisor; 3 half
///        a success and half a failure added; 4 divisor N - 1 with half a unit of a group's size added; 5 Newcombe's
///        combined score intervals
/// \param step step of an axis, as stated with each chart; above 0, at most 0.5
//
// The power of an invalid design is -1. It is -2 where a binomial distribution inside an exact test reports an error,
// and missing where the computation is cancelled or an exact test has a group above 2^31 - 1. Checks let NaN through:
// in an exact test a NaN size or level rejects no table, so the power is 0. Invalid input gives an empty chart. Charts
// store single precision.
// Methods and sources: docs/proportions-independent.md.

/// Power of a test of p1 = p2. The t test needs N1 + N2 > 2. The large-sample arcsine test needs half a subject or more
/// in the outcome of either group that its correction makes rarer.
///
/// Exact z, t and likelihood-ratio tests take time in proportion to N1 + N2 (with `cancel`, to the N1 N2 questions it
/// is asked), the conditional test to N1 N2.
/// \return the power; -1, -2 or missing as above
KELPOWER_API double PowerIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2,
                                      int exact, int method, int oneSided, double alpha,
                                      std::uint8_t continuityCorrection, std::uint8_t pooledVariance,
                                      StopRequest* cancel);

/// Group sizes at which a test reaches a power: N1 rounded up, N2 = sizeRatio N1 rounded up, both at least 1.
///
/// With `exact` = 1 the sizes are whole ones whose exact power reaches the wanted one, with N2 rounded to the nearest.
/// The search of method 3 ends by the z test, that of method 4 starts by it. Both sizes are missing when the power
/// cannot be reached and when `cancel` answers true. An unreachable power makes an exact search go on to groups of
/// 2^31. For methods 0 to 2 without `cancel` that takes no time. For the conditional test, and with a `cancel` that
/// never answers true, it has no practical end.
/// \param sampleSizes must be empty, else nothing is done
KELPOWER_API void PowerReverseIndSampBinom(double power, double proportion1, double proportion2,
                                           DoubleVector& sampleSizes, double sizeRatio, int exact, int method,
                                           int oneSided, double alpha, std::uint8_t continuityCorrection,
                                           std::uint8_t pooledVariance, StopRequest* cancel);

/// Half-width of the confidence interval of p1 - p2. Nothing is checked.
/// \param continuityCorrection Wald's method corrects for exactly 1, Newcombe's for every non-zero value
/// \return half of the interval's length; 0 for an unknown method
KELPOWER_API double HalfCIIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2,
                                       int ciMethod, double alpha, std::uint8_t continuityCorrection);

/// Group sizes at which that interval has a half-width: N1 rounded up, N2 = sizeRatio N1 rounded up and at least 2.
/// Earlier content of `sampleSizes` is discarded. Both are missing when the half-width is not reached.
/// \param continuityCorrection every non-zero value corrects, for Wald's method too
KELPOWER_API void PowerReversebyHalfCIIndSampBinom(double halfWidth, double proportion1, double proportion2,
                                                   DoubleVector& sampleSizes, double sizeRatio, int ciMethod,
                                                   double alpha, std::uint8_t continuityCorrection,
                                                   StopRequest* cancel);

/// Surface of power over N1 (x) and N2 (y): every whole size, every fifth from 251 sizes on, every tenth from 1002 on.
///
/// The large-sample arcsine test takes ends of 0, 2 and 2500 for automatic: from where it is valid to the planned size
/// beyond that. Other tests take ends as they are.
/// \param minSampleSize1,maxSampleSize1 ends of the N1 axis. But for arcsine the lower one is at least 0 and not 1
/// \param minSampleSize2,maxSampleSize2 ends of the N2 axis, likewise
KELPOWER_API XYZPlot PlotNIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2,
                                       int exact, int method, int oneSided, double alpha,
                                       std::uint8_t continuityCorrection, std::uint8_t pooledVariance,
                                       int minSampleSize1, int maxSampleSize1, int minSampleSize2, int maxSampleSize2);

/// Surface of power over p1 (x) and p2 (y), both step, 2 step, ... below 1. The given proportions are only checked.
KELPOWER_API XYZPlot PlotPropIndSampBinom(double sampleSize1, double sampleSize2, double proportion1,
                                          double proportion2, int exact, int method, int oneSided, double alpha,
                                          std::uint8_t continuityCorrection, std::uint8_t pooledVariance, double step);

/// Power over the ratio N2 / N1 of groups that share a total; sizes are not rounded.
/// \param minRatio,maxRatio ends, from 1 / (N - 1) to N - 1; 0 in either asks for the whole range without its ends
/// \param step as a fraction of the range
KELPOWER_API XYPlot PlotNRatioIndSampBinom(double totalSampleSize, double proportion1, double proportion2, int exact,
                                           int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                                           std::uint8_t pooledVariance, double minRatio, double maxRatio, double step);

/// Power over the risk difference p1 - p2: p1 - 1 + step, p1 - 1 + 2 step, ...
KELPOWER_API XYPlot PlotRiskDiffIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, int exact,
                                             int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                                             std::uint8_t pooledVariance, double step);

/// Power over the risk ratio p1 / p2.
/// \param minRatio,maxRatio ends; the lower above p1, or 0 to start one step above p1; the upper at most 10
/// \param step as a fraction of maxRatio - minRatio
KELPOWER_API XYPlot PlotRiskRatioIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, int exact,
                                              int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                                              std::uint8_t pooledVariance, double minRatio, double maxRatio,
                                              double step);

/// Power over the odds ratio of p1 to p2.
/// \param minRatio,maxRatio ends; the lower at least 0.1, or 0 to start at one third; the upper at most 10
/// \param step as a fraction of the range
KELPOWER_API XYPlot PlotOddsRatioIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, int exact,
                                              int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                                              std::uint8_t pooledVariance, double minRatio, double maxRatio,
                                              double step);

// ---------------------------------------------------------------------------------------------------------------------
// Correlations: Pearson, Spearman, partial
// ---------------------------------------------------------------------------------------------------------------------
//
// The test of one correlation against a null value, on the scale of Fisher's z = atanh(r) with its normal
// approximation. Arguments shared by this section:
/// \param sampleSize N, number of cases, whole numbers not required: above 3; for a Spearman power from 3 on; for a
///        partial correlation above 3 + `partialledOut`. On charts with an axis of sizes it is checked, and centres the
///        automatic range if there is one
/// \param partialledOut k, number of variables partialled out, at least 0; whole numbers are not required
/// \param alternativeCorrelation correlation under the alternative, in [-1, 1]
/// \param nullCorrelation correlation under the null hypothesis, in [-1, 1]
/// \param correlation expected sample correlation, the centre of an interval, in (-1, 1); not checked
/// \param oneSided flag: one-sided test, towards the alternative; downwards where it equals the null
/// \param adjustBias flag: mean and variance of z to the second order. Power, half-width and charts take only 1 for
///        yes, the searches every value but 0; that is intended
/// \param varianceMethod variance of z of a rank correlation: 0 Bonett and Wright, 1 Fieller, Hartley and Pearson,
///        2 Caruso and Cliff; any other gives power -1 and half-width 0
/// \param alpha significance level, in (0, 1); one below 5.6e-17 is rejected. Of a half-width: 1 minus the confidence
///        level, not checked
/// \param power wanted power; not checked
/// \param halfWidth wanted half-width of the confidence interval, on the scale of correlations; not checked
/// \param stop asked between the steps of a search; may be null
/// \param sampleSizeFrom,sampleSizeTo ends of the sample-size axis, which differ: from 4 to 5000, both plus
///        `partialledOut`; each chart says what a start at 0 does
/// \param step distance of the points on an axis of correlations or differences, above 0 and at most 0.5
//
// Powers for invalid input are -1, charts empty, sizes missing. Chart values are stored in single precision; the axis
// of correlations goes from -1 to 1, that of differences (alternative - null) from -1 - null to 1 - null. Method:
// Fisher (1921), Metron 1, 3-32; Hotelling (1953), J. R. Statist. Soc. B 15, 193-232; docs/correlation.md has the
// formulas and the sources of the variances of rank correlations.

/// Power of the test of a Pearson correlation.
KELPOWER_API double PowerbyOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                          int oneSided, std::uint8_t adjustBias, double alpha);

/// Power of the test of a Spearman correlation. At exactly 3 cases methods other than 2 give 1.
KELPOWER_API double PowerbyOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                           int varianceMethod, int oneSided, double alpha);

/// Power of the test of a partial correlation: that of a Pearson correlation with N - k cases and `adjustBias` 1.
KELPOWER_API double PowerbyOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                          double nullCorrelation, int oneSided, double alpha);

/// Sample size, not rounded, at which the test of a Pearson correlation reaches a power; missing when none does.
KELPOWER_API double PowerReversebyOneSampPearson(double power, double alternativeCorrelation, double nullCorrelation,
                                                 int oneSided, std::uint8_t adjustBias, double alpha,
                                                 StopRequest* stop);

/// Sample size, not rounded, at which the test of a Spearman correlation reaches a power; missing when none does.
KELPOWER_API double PowerReversebyOneSampSpearman(double power, double alternativeCorrelation, double nullCorrelation,
                                                  int varianceMethod, int oneSided, double alpha);

/// Sample size, not rounded, at which the test of a partial correlation reaches a power; missing when none does.
KELPOWER_API double PowerReversebyOneSampPartial(double power, double partialledOut, double alternativeCorrelation,
                                                 double nullCorrelation, int oneSided, double alpha);

/// Half-width of the confidence interval of a Pearson correlation: half the distance of its ends.
KELPOWER_API double HalfCIOneSampPearson(double sampleSize, double correlation, std::uint8_t adjustBias, double alpha);

/// Half-width of the confidence interval of a Spearman correlation.
KELPOWER_API double HalfCIOneSampSpearman(double sampleSize, double correlation, int varianceMethod, double alpha);

/// Half-width of the confidence interval of a partial correlation, never corrected for bias.
KELPOWER_API double HalfCIOneSampPartial(double sampleSize, double partialledOut, double correlation, double alpha);

/// Sample size, rounded up, at which the interval of a Pearson correlation has a half-width; missing when none has.
KELPOWER_API double PowerReversebyHalfCIOneSampPearson(double halfWidth, double correlation, std::uint8_t adjustBias,
                                                       double alpha, StopRequest* stop);

/// Sample size, rounded up, at which the interval of a Spearman correlation has a half-width; missing when none
/// has.
KELPOWER_API double PowerReversebyHalfCIOneSampSpearman(double halfWidth, double correlation, int varianceMethod,
                                                        double alpha, StopRequest* stop);

/// Sample size, rounded up, at which the interval of a partial correlation has a half-width; missing when none has.
KELPOWER_API double PowerReversebyHalfCIOneSampPartial(double halfWidth, double partialledOut, double correlation,
                                                       double alpha, StopRequest* stop);

/// Pearson: power over the sample size; a start at 0 is taken as it stands, and the points up to 3 hold -1.
KELPOWER_API XYPlot PlotNOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                        int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                        int sampleSizeTo);

/// Pearson: power over the null correlation.
KELPOWER_API XYPlot PlotNullOneSampPearson(double sampleSize, double alternativeCorrelation, int oneSided,
                                           std::uint8_t adjustBias, double alpha, double step);

/// Pearson: power over the alternative correlation.
KELPOWER_API XYPlot PlotAlterOneSampPearson(double sampleSize, double nullCorrelation, int oneSided,
                                            std::uint8_t adjustBias, double alpha, double step);

/// Pearson: power over the difference of the correlations.
KELPOWER_API XYPlot PlotRiskDiffOneSampPearson(double sampleSize, double nullCorrelation, int oneSided,
                                               std::uint8_t adjustBias, double alpha, double step);

/// Pearson: power over the sample size, in steps of 2 from a span of 1000 on, and the lower half of the
/// differences; no start at 0.
KELPOWER_API XYZPlot PlotNRiskDiffOneSampPearson(double sampleSize, double alternativeCorrelation,
                                                 double nullCorrelation, int oneSided, std::uint8_t adjustBias,
                                                 double alpha, int sampleSizeFrom, int sampleSizeTo, double step);

/// Pearson: power over the sample size and the null correlation; a start at 0 is taken as it stands.
KELPOWER_API XYZPlot PlotNNullOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                             int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                             int sampleSizeTo, double step);

/// Pearson: power over the sample size and the alternative correlation; a start at 0 is taken as it stands.
KELPOWER_API XYZPlot PlotNAlterOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                              int oneSided, std::uint8_t adjustBias, double alpha, int sampleSizeFrom,
                                              int sampleSizeTo, double step);

/// Pearson: power over the null correlation (x) and the alternative one (y).
KELPOWER_API XYZPlot PlotNullAlterOneSampPearson(double sampleSize, int oneSided, std::uint8_t adjustBias, double alpha,
                                                 double step);

/// Spearman: power over the sample size; no start at 0.
KELPOWER_API XYPlot PlotNOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                         int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                         int sampleSizeTo);

/// Spearman: power over the null correlation.
KELPOWER_API XYPlot PlotNullOneSampSpearman(double sampleSize, double alternativeCorrelation, int varianceMethod,
                                            int oneSided, double alpha, double step);

/// Spearman: power over the alternative correlation.
KELPOWER_API XYPlot PlotAlterOneSampSpearman(double sampleSize, double nullCorrelation, int varianceMethod,
                                             int oneSided, double alpha, double step);

/// Spearman: power over the difference of the correlations.
KELPOWER_API XYPlot PlotRiskDiffOneSampSpearman(double sampleSize, double nullCorrelation, int varianceMethod,
                                                int oneSided, double alpha, double step);

/// Spearman: power over the sample size, in steps of 2 from a span of 1000 on, and the lower half of the
/// differences; no start at 0.
KELPOWER_API XYZPlot PlotNRiskDiffOneSampSpearman(double sampleSize, double alternativeCorrelation,
                                                  double nullCorrelation, int varianceMethod, int oneSided,
                                                  double alpha, int sampleSizeFrom, int sampleSizeTo, double step);

/// Spearman: power over the sample size and the null correlation. A start at 0 stands for max(4, (1 - P) N) to
/// (2 - P) N, where P is the power at N = `sampleSize`.
KELPOWER_API XYZPlot PlotNNullOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                              int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                              int sampleSizeTo, double step);

/// Spearman: power over the sample size and the alternative correlation; a start at 0 as in
/// `PlotNNullOneSampSpearman`.
KELPOWER_API XYZPlot PlotNAlterOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                               int varianceMethod, int oneSided, double alpha, int sampleSizeFrom,
                                               int sampleSizeTo, double step);

/// Spearman: power over the null correlation (x) and the alternative one (y).
KELPOWER_API XYZPlot PlotNullAlterOneSampSpearman(double sampleSize, int varianceMethod, int oneSided, double alpha,
                                                  double step);

/// Partial correlation: power over the sample size; a start at 0 stands for k + 4 to k + 5000.
KELPOWER_API XYPlot PlotNOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                        double nullCorrelation, int oneSided, double alpha, int sampleSizeFrom,
                                        int sampleSizeTo);

/// Partial correlation: power over the null correlation.
KELPOWER_API XYPlot PlotNullOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                           int oneSided, double alpha, double step);

/// Partial correlation: power over the alternative correlation.
KELPOWER_API XYPlot PlotAlterOneSampPartial(double sampleSize, double partialledOut, double nullCorrelation,
                                            int oneSided, double alpha, double step);

/// Partial correlation: power over the difference of the correlations.
KELPOWER_API XYPlot PlotRiskDiffOneSampPartial(double sampleSize, double partialledOut, double nullCorrelation,
                                               int oneSided, double alpha, double step);

/// Partial correlation: power over the sample size, in steps of 2 from a span of 1000 on, and the lower half of the
/// differences; a start at 0 stands for k + 4 to k + 5000.
KELPOWER_API XYZPlot PlotNRiskDiffOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                                 double nullCorrelation, int oneSided, double alpha, int sampleSizeFrom,
                                                 int sampleSizeTo, double step);

/// Partial correlation: power over the sample size and the null correlation; a start at 0 stands for k + 4 to
/// k + 5000.
KELPOWER_API XYZPlot PlotNNullOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                             double nullCorrelation, int oneSided, double alpha, int sampleSizeFrom,
                                             int sampleSizeTo, double step);

/// Partial correlation: power over the sample size and the alternative correlation; a start at 0 stands for k + 4
/// to k + 5000.
KELPOWER_API XYZPlot PlotNAlterOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                              double nullCorrelation, int oneSided, double alpha, int sampleSizeFrom,
                                              int sampleSizeTo, double step);

/// Partial correlation: power over the null correlation (x) and the alternative one (y).
KELPOWER_API XYZPlot PlotNullAlterOneSampPartial(double sampleSize, double partialledOut, int oneSided, double alpha,
                                                 double step);

/// Partial correlation: power over the number of variables partialled out, from 0 to N - 5, N truncated.
KELPOWER_API XYPlot PlotNPartialoutOneSampPartial(double sampleSize, double alternativeCorrelation,
                                                  double nullCorrelation, int oneSided, double alpha);

// ---------------------------------------------------------------------------------------------------------------------
// Multiple linear regression
// ---------------------------------------------------------------------------------------------------------------------
//
// The F test that some predictors add nothing: all of them, or those beyond a reduced model. Arguments shared by this
// section:
/// \param sampleSize N, number of cases, at least p + 1, or p + 2 with an intercept; whole numbers are not required.
///        On surfaces it is checked, and centres the automatic range
/// \param predictors p, number of predictors of the full model, at least 1
/// \param testedPredictors q, number of predictors tested, from 1 to p
/// \param fullModelFit,reducedRSquared where `reducedRSquared` is 0, there is no reduced model and `fullModelFit` is
///        the multiple correlation R, in (-1, 1). Otherwise both are R squared, in (0, 1), the reduced one not the
///        larger
/// \param effectSize f^2, the variance explained by the tested predictors over the unexplained one; not checked. One
///        below 0 gives power 1 with fixed predictors and NaN with random ones
/// \param randomPredictors 0: predictors fixed by design, noncentral F with noncentrality N f^2. Otherwise:
///        multivariate normal predictors, exact distribution of the squared multiple correlation. Charts are drawn more
///        coarsely when it is exactly 1, and not at other values, which is intended
/// \param includeIntercept flag: the model has an intercept, so the error degrees of freedom are N - p - 1, not N - p
/// \param alpha significance level, in (0, 1); one below 5.6e-17 is rejected
/// \param power wanted power; not checked
/// \param sampleSizeFrom,sampleSizeTo ends of the sample-size axis, from p (p + 1 with an intercept) to p + 5000; 0 in
///        either asks for an automatic range
/// \param step distance of the points on the other axis, above 0
//
// Powers for invalid input are -1, charts empty, sizes missing.
// Method: Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., ch. 9; for random predictors
// Gurland (1968), J. R. Statist. Soc. B 30, 276-283. docs/regression.md has the formulas.

/// Power for given model fits.
KELPOWER_API double Powerbymlr(double sampleSize, double predictors, double testedPredictors, double fullModelFit,
                               double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                               double alpha);

/// Power for a given effect size.
KELPOWER_API double PowerbymlrwES(double sampleSize, double predictors, double testedPredictors, double effectSize,
                                  int randomPredictors, std::uint8_t includeIntercept, double alpha);

/// Sample size, not rounded, at which the test for given model fits reaches a power; missing when none does.
KELPOWER_API double PowerReversebymlr(double power, double predictors, double testedPredictors, double fullModelFit,
                                      double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                                      double alpha);

/// The same for a given effect size.
KELPOWER_API double PowerReversebymlrwES(double power, double predictors, double testedPredictors, double effectSize,
                                         int randomPredictors, std::uint8_t includeIntercept, double alpha);

/// Power over the sample size for given model fits, in single precision. Automatic range: p + 1, or p + 2 with an
/// intercept, to p + 5000. With `randomPredictors` 1 the steps are 5, 10, 20 and 50 from spans of 150, 500, 1000 and
/// 2000 on, and the last point may lie beyond the end. A reduced model that fits better than the full one gives points
/// of -1.
KELPOWER_API XYPlot PlotNmlr(double predictors, double testedPredictors, double fullModelFit, double reducedRSquared,
                             int randomPredictors, std::uint8_t includeIntercept, double alpha, int sampleSizeFrom,
                             int sampleSizeTo);

/// The same for a given effect size.
KELPOWER_API XYPlot PlotNmlrFES(double predictors, double testedPredictors, double effectSize, int randomPredictors,
                                std::uint8_t includeIntercept, double alpha, int sampleSizeFrom, int sampleSizeTo);

/// Power over f^2, from `step` to below 1, in single precision.
KELPOWER_API XYPlot PlotESmlr(double sampleSize, double predictors, double testedPredictors, int randomPredictors,
                              std::uint8_t includeIntercept, double alpha, double step);

/// Power over the multiple correlation R, from -1 + `step` to below 1, in single precision. A `step` that does not
/// divide 2 leaves out the last point below 1. With `randomPredictors` 1 the step is 0.05.
KELPOWER_API XYPlot PlotCorrmlr(double sampleSize, double predictors, double testedPredictors, int randomPredictors,
                                std::uint8_t includeIntercept, double alpha, double step);

/// Power over the sample size and the multiple correlation R, from -1 + `step` to below 1, in single precision.
/// Automatic range of the sizes: that of `PlotNmlr` with fixed predictors; with random ones max(p + 2, (1 - P) N) to
/// (2 - P) N, where P is the power at `sampleSize` and the given fits, which serve for nothing else. With
/// `randomPredictors` 1 the sizes go in steps of 2 from a span of 100 on, and R in steps of 0.05.
KELPOWER_API XYZPlot PlotNaCorrmlr(double sampleSize, double predictors, double testedPredictors, double fullModelFit,
                                   double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                                   double alpha, int sampleSizeFrom, int sampleSizeTo, double step);

/// The same over the sample size and f^2, from `step` to below 1.
KELPOWER_API XYZPlot PlotNaESmlr(double sampleSize, double predictors, double testedPredictors, double effectSize,
                                 int randomPredictors, std::uint8_t includeIntercept, double alpha, int sampleSizeFrom,
                                 int sampleSizeTo, double step);

}  // extern "C"

#endif
