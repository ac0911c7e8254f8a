#ifndef KELPOWER_ANOVA_REPEATED_H
#define KELPOWER_ANOVA_REPEATED_H

#include "anova/groups.h"
#include "anova/one_effect.h"
#include "frame/answer.h"

// Subjects in groups, each measured several times: the split-plot or mixed analysis of variance. The measurements of a
// subject have the same variance and any two of them the same correlation (compound symmetry), for which the powers are
// exact.

namespace kelpower::anova {

enum class RepeatedEffect { Between, Within, Interaction };

/// What an effect size f is a ratio of. Each f^2 is a noncentrality per unit of its own, so that the same number means
/// different effects (Faul et al. 2007, Behavior Research Methods 39:175-191).
enum class RepeatedF {
  Means,   ///< standard deviation of the means over that of one measurement
  Sample,  ///< root of eta^2 / (1 - eta^2), with the partial eta^2 that analyses of a sample print: f^2 df2
  Cohen    ///< Cohen (1988), section 8.3: in the error of the effect, so that the correlation is in f already
};

struct RepeatedDesign {
  RepeatedEffect effect;
  double groups;
  double measurements;
  double correlation;  ///< of two measurements
  double epsilon;      ///< of Greenhouse and Geisser, how far the correlations are from equal ones; 1 where they are

  double Df1() const;
  double Df2(double totalSize) const;

  /// The test of the effect. Where epsilon is below 1, it is the corrected one, whose F is taken as noncentral with all
  /// of df1, df2 and the noncentrality times epsilon (Muller and Barton 1989, JASA 84:549-555). Its power is refused for
  /// numbers that are no design: fewer than two measurements, too few groups or subjects, a correlation at which the
  /// measurements have no common distribution, an epsilon outside [1 / (measurements - 1), 1].
  EffectTest TestAt(double totalSize, double alpha) const;

  /// Two-sided, of one contrast of the measurements with the error of all of them, which needs equal correlations:
  /// refused where epsilon is below 1.
  EffectTest ContrastTestAt(double totalSize, double alpha) const;

  /// The squared standard error of the effect in units of `sd`, with the sizes apart.
  double ErrorVariance() const;

  double NoncentralityOfF(double f, RepeatedF kind, double totalSize) const;

  /// Of a table of means, a row for each group. Between the groups, it is that of the means over the measurements; within
  /// the subjects, that of unweighted means over the groups ("type III"). Refused where means and sizes do not fit, or a
  /// size or `sd` is not above 0. It is 0 where the effect is within rounding of 0.
  Answer NoncentralityOfMeans(PerGroup means, PerGroup sizes, double sd) const;

  /// Of the contrast of the measurements' unweighted means over the groups. Refused like that of the means, and where
  /// there is not one coefficient for each measurement.
  Answer NoncentralityOfContrast(PerGroup coefficients, PerGroup means, PerGroup sizes, double sd) const;
};

}  // namespace kelpower::anova

#endif
