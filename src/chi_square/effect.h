#ifndef KELPOWER_CHI_SQUARE_EFFECT_H
#define KELPOWER_CHI_SQUARE_EFFECT_H

#include <vector>

#include "frame/answer.h"

namespace kelpower::chi_square {

/// The statistic whose noncentrality is asked for. Both have the same one in the limit of small effects; of large ones
/// that of the likelihood ratio is the better (Drost, Kallenberg, Moore and Oosterhoff 1989, Journal of the American
/// Statistical Association 84, 130-141).
enum class Statistic {
  Pearson,          ///< sum of (p1 - p0)^2 / p0, Cohen's w squared
  LikelihoodRatio,  ///< 2 sum of p1 log(p1 / p0)
};

/// The noncentrality per observation of the test that a variable has the proportions `null`, where it has those of
/// `expected`; both on any scale. Refused where the lists differ in length or have fewer than two entries, a null
/// proportion is not positive or another one negative.
Answer EffectOfFit(const std::vector<double>& null, const std::vector<double>& expected, Statistic statistic);

/// The same of the test that the rows and columns of a table are independent. The table has joint proportions row by row,
/// on any scale. Refused where it is no table of at least two rows and columns, an entry is negative, or a row or column
/// empty.
Answer EffectOfTable(const std::vector<double>& table, double rows, Statistic statistic);

/// The joint proportions of rows with these profiles, each on a scale of its own, and these shares; without shares the
/// rows are equally large. Empty where the lists do not fit together or a row or share has no sum.
std::vector<double> TableOfProfiles(const std::vector<double>& profiles, double rows,
                                    const std::vector<double>& shares = {});

/// The degrees of freedom of a table.
inline double TableDf(double rows, double columns) { return (rows - 1) * (columns - 1); }

/// Cramer's V of an effect w, and the reverse: w / sqrt(min(rows, columns) - 1), of which 1 is the largest. In a table of
/// two rows or columns it is w, which in one of two by two is |phi|.
double CramersV(double w, double rows, double columns);
double WOfCramersV(double v, double rows, double columns);

}  // namespace kelpower::chi_square

#endif
