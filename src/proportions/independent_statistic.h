#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_STATISTIC_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_STATISTIC_H

#include <cstdint>
#include <vector>

#include "proportions/independent_design.h"
#include "proportions/independent_masses.h"

namespace kelpower::proportions {

/// The values f(origin), f(origin + step), ... of f(x) = x ln x, f(0) = 0, looked up where they are many times needed.
class XLogX {
public:
  XLogX() = default;
  XLogX(double origin, double step, std::int64_t count);

  double operator[](std::int64_t i) const;

private:
  double origin_ = 0;
  double step_ = 0;
  std::vector<double> values_;
};

/// The test statistic of an observed table with x1 of N1 and x2 of N2 successes. Its formulas are evaluated in one
/// fixed order, so that tables which tie with the critical value fall the same way everywhere.
class TableStatistic {
public:
  TableStatistic(const IndependentDesign& design, Alternative alternative, const GroupSize& group1,
                 const GroupSize& group2);

  bool Rejects(std::int64_t x1, std::int64_t x2) const;

  /// Up to which x2 the statistic falls as x2 grows; from there on it rises. -1 where it rises throughout.
  std::int64_t Turn(std::int64_t x1) const;

  const GroupSize& Group1() const { return group1_; }
  const GroupSize& Group2() const { return group2_; }

private:
  /// The observed proportions, moved off 0 and 1 in the two tables that have no variance.
  struct Observed {
    double p1;
    double p2;
  };
  Observed Proportions(double x1, double x2) const;
  double Signed(const Observed& observed) const;
  double Z(const Observed& observed) const;
  double T(const Observed& observed) const;
  bool RejectsLikelihoodRatio(std::int64_t x1, std::int64_t x2) const;
  std::int64_t TurnOfCorrected(std::int64_t x1) const;

  IndependentDesign design_;
  Alternative alternative_;
  GroupSize group1_;
  GroupSize group2_;
  double n1_;
  double n2_;
  double total_;
  double reciprocals_;  ///< 1 / N1 + 1 / N2
  double rootProduct_;  ///< sqrt(N1 N2)
  double critical_;
  XLogX counts_;
  XLogX remainders1_;  ///< f(N1 - x1)
  XLogX remainders2_;
  XLogX remainders_;  ///< f(N1 + N2 - x1 - x2)
};

/// The tables of one row, x1 fixed, that are not rejected: first <= x2 < end.
struct AcceptedRange {
  std::int64_t first;
  std::int64_t end;
};

/// Goes through the rows of the sample space. In each the statistic falls up to its turn and rises from there, so the
/// rejection region is what lies outside one range, and its ends move little from row to row.
class RejectionRows {
public:
  explicit RejectionRows(const TableStatistic& statistic) : statistic_(statistic) {}

  AcceptedRange Row(std::int64_t x1);

private:
  const TableStatistic& statistic_;
  AcceptedRange previous_{0, 0};
};

}  // namespace kelpower::proportions

#endif
