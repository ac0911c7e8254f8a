#ifndef KELPOWER_PROPORTIONS_RUNNING_MASS_H
#define KELPOWER_PROPORTIONS_RUNNING_MASS_H

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::proportions {

/// P(count) of a binomial count, kept up to date by recurrence while the count moves away from the mode.
class RunningMass {
public:
  RunningMass(double size, double p, double count) : size_(size), p_(p), odds_(p / (1 - p)), count_(count) {
    Evaluate();
  }

  double Value() const { return mass_; }

  void RaiseCount() {
    mass_ *= (size_ - count_) / (count_ + 1) * odds_;
    count_ += 1;
    CountStep();
  }

  void LowerCount() {
    mass_ *= count_ / (size_ - count_ + 1) / odds_;
    count_ -= 1;
    CountStep();
  }

private:
  static constexpr int stepsPerEvaluation = 64;  // the recurrence then stays within 1e-14

  void CountStep() {
    if (++stepsSinceEvaluation_ == stepsPerEvaluation) Evaluate();
  }

  void Evaluate() {
    long error = 0;
    mass_ = KelMath::KelDistFun::PdfBin(count_, size_, p_, error);
    stepsSinceEvaluation_ = 0;
  }

  double size_;
  double p_;
  double odds_;
  double count_;
  double mass_ = 0;
  int stepsSinceEvaluation_ = 0;
};

}  // namespace kelpower::proportions

#endif
