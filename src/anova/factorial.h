#ifndef KELPOWER_ANOVA_FACTORIAL_H
#define KELPOWER_ANOVA_FACTORIAL_H

#include <optional>
#include <vector>

#include "anova/groups.h"
#include "frame/answer.h"

// Crossed fixed factors with all their interactions. The cells are the combinations of the levels, listed row by row
// with the last factor fastest.

namespace kelpower::anova {

/// The main effect of one factor or the interaction of several, in the model with all effects.
class FactorialTerm {
public:
  static constexpr int mostCells = 1000;

  /// The numbers of levels of the factors, and the numbers of those in the term, counted from 1. None where a factor has
  /// fewer than two levels, where there are more than `mostCells` cells, and where the term names no factor, one twice or
  /// one that is not there.
  static std::optional<FactorialTerm> Of(const std::vector<double>& levels, const std::vector<double>& term);

  int Cells() const { return cells_; }

  /// The product of the numbers of levels in the term, each less 1.
  double Df() const;

  /// (C mu)' [C diag(1/n) C']^-1 (C mu) / sd^2, where the rows of C span the contrasts of the term between unweighted
  /// means of cells: the hypothesis of "type III" (Searle 1987, Linear Models for Unbalanced Data, chapters 4 and 9).
  /// Refused where means or sizes do not fit the cells, or a size or `sd` is not above 0. It is 0 where the contrasts are
  /// within rounding of 0.
  Answer Noncentrality(PerGroup means, PerGroup sizes, double sd) const;

private:
  FactorialTerm() = default;

  std::vector<int> levels_;
  std::vector<bool> isInTerm_;
  int cells_ = 1;
};

}  // namespace kelpower::anova

#endif
