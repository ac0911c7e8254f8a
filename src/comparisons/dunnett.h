#ifndef KELPOWER_COMPARISONS_DUNNETT_H
#define KELPOWER_COMPARISONS_DUNNETT_H

#include <vector>

#include "frame/answer.h"

// Dunnett's test of several groups against one control, which holds the level of the family of comparisons (Dunnett
// 1955, "A multiple comparison procedure for comparing several treatments with a control", JASA 50; 1964, "New tables
// for multiple comparisons with a control", Biometrics 20). The sizes may differ.

namespace kelpower::comparisons {

/// Beyond this many groups the power is refused.
constexpr int mostTreatments = 1000;

/// Groups this many times as large as the control are refused: all comparisons are then one.
constexpr double mostTimesControl = 1e4;

/// At smaller levels and few degrees of freedom the critical value would lose digits.
constexpr double leastDunnettLevel = 1e-14;

/// Which of the comparisons are to be significant.
enum class Comparisons { Any, All };

/// The test at given sizes, the control's first.
class DunnettTest {
public:
  DunnettTest(const std::vector<double>& sizes, bool isOneSided, double alpha);

  /// False without a group, without degrees of freedom, without such a level, and for sizes that are refused.
  bool IsValid() const { return isValid_; }

  double Df() const { return df_; }

  /// What the t statistics are compared with: it is exceeded by one of them with probability alpha where all means are
  /// equal.
  double Critical() const { return critical_; }

  /// The power for one comparison, whose t statistic has that noncentrality.
  Answer PowerOfOne(double noncentrality) const;

  /// The power for any or all comparisons, from the noncentrality of each. One-sided, means above the control's count;
  /// two-sided, a difference of either sign.
  Answer Power(Comparisons which, const std::vector<double>& noncentralities) const;

  /// The noncentralities at the means of all groups in standard deviations, the control's first.
  std::vector<double> Noncentralities(const std::vector<double>& means) const;

private:
  /// Comparisons of one noncentrality and size. The numerator of the t statistic, in its standard deviations, is
  /// shared y + own e + noncentrality, y and e standard normal and y the control's. Here all is divided by own.
  struct Kind {
    double centre;  ///< the noncentrality
    double slope;   ///< shared / own
    double scale;   ///< 1 / own
    int count;
  };
  using Kinds = std::vector<Kind>;

  Kinds KindsAt(const std::vector<double>& noncentralities) const;
  double RejectionAt(const Kind& kind, double critical, double y) const;
  double AnyAt(const Kinds& kinds, double critical, double y) const;
  double AllAt(const Kinds& kinds, double critical, double y) const;
  double Given(Comparisons which, const Kinds& kinds, double critical) const;
  double Mean(Comparisons which, const Kinds& kinds, double critical) const;
  double CriticalValue(double alpha) const;
  double StartOfCritical(const Kinds& kinds, double alpha) const;
  double ImprovedCritical(const Kinds& kinds, double alpha, double critical) const;
  double BracketedCritical(const Kinds& kinds, double alpha) const;

  std::vector<double> sizes_;
  bool isOneSided_;
  double df_ = 0;
  double step_ = 1;
  double reach_ = 0;
  std::vector<double> weights_;  ///< of the nodes y = i step_, i from 0 on
  double critical_ = 0;
  bool isValid_ = false;
};

/// The half-width of the interval of one comparison, simultaneous with those of all.
double HalfWidthOfComparison(double sd, const std::vector<double>& sizes, std::size_t group, double alpha);

}  // namespace kelpower::comparisons

#endif
