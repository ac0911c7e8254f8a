#ifndef KELPOWER_PROPORTIONS_SIGNS_H
#define KELPOWER_PROPORTIONS_SIGNS_H

#include <vector>

#include "proportions/critical_counts.h"

namespace kelpower::proportions {

/// The probability P(X <= count) of a binomial count, kept up to date by recurrence while the number of trials and the
/// count grow by ones.
class RunningTail {
public:
  /// `failure` is 1 - success, given apart so that it keeps its digits.
  RunningTail(double trials, double count, double success, double failure);

  void AddTrial();
  void RaiseCount();

  double Trials() const { return trials_; }
  double Count() const { return count_; }
  double Tail() const { return tail_; }
  double TailAtNextCount() const { return tail_ + nextMass_; }

private:
  void Evaluate();

  double trials_;
  double count_;
  double success_;
  double failure_;
  double odds_;
  double tail_;
  double nextMass_;  ///< P(X = count + 1)
  int trialsSinceEvaluation_;
};

/// Where the exact sign test of m discordant pairs rejects: at most `lower` pairs are of the second kind, or at most
/// `upper` of the first; -1 when no number of pairs is so extreme.
struct SignRegion {
  double lower;
  double upper;
};

/// The regions of the sign test at a level per tail, for m = first, first + 1, ... discordant pairs. Each takes a few
/// arithmetic operations; the distribution function decides only where a tail comes within rounding of the level.
class SignRegions {
public:
  SignRegions(const TailLevel& tail, double first);

  const SignRegion& At(double discordant);

private:
  void Append();
  bool LowerReachesNext() const;
  double UpperFrom(double count) const;

  double level_;
  double first_;
  RunningTail tail_;
  double upper_;
  std::vector<SignRegion> regions_;
};

/// The power of the sign test given the number m of discordant pairs, for m = first, first + 1, ...
class SignPowers {
public:
  /// `second` is the probability that a discordant pair is of the second kind.
  SignPowers(Tails tails, double second, double first, SignRegions& regions);

  double At(double discordant);

private:
  double Append();

  Tails tails_;
  double first_;
  SignRegions* regions_;
  RunningTail lower_;  ///< pairs of the second kind
  RunningTail upper_;  ///< pairs of the first kind
  std::vector<double> powers_;
};

}  // namespace kelpower::proportions

#endif
