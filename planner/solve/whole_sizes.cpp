#include "solve/whole_sizes.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace planner {
namespace {

/// How far the sawtooth of an exact power reaches: its teeth are some square roots of the size long. Where the work of a
/// power grows with the square of the size, large sizes are looked at less far.
double SpanToCheck(double number, bool isSlow) {
  const double span = 20 + 8 * std::sqrt(number);
  return std::ceil(isSlow ? std::min(span, 20 + 2e5 / number) : span);
}

/// Halves the way from a number that misses the target to one that reaches it.
double Between(double missed, double reached, Reaches reaches) {
  while (reached - missed > 1) {
    const double middle = std::floor(missed + (reached - missed) / 2);
    (reaches(middle) ? reached : missed) = middle;
  }
  return reached;
}

std::optional<double> Upwards(double missed, Reaches reaches) {
  for (double step = 1; missed < largestNumber; step *= 2) {
    const double next = std::min(missed + step, largestNumber);
    if (reaches(next)) return Between(missed, next, reaches);
    missed = next;
  }
  return std::nullopt;
}

double Downwards(double reached, double smallest, Reaches reaches) {
  for (double step = 1; reached > smallest; step *= 2) {
    const double next = std::max(reached - step, smallest);
    if (!reaches(next)) return Between(next, reached, reaches);
    reached = next;
  }
  return reached;
}

}  // namespace

WholeSizes::WholeSizes(const Test& test, const Inputs& inputs) : hasRatio_(inputs.Has("ratio")) {
  least_ = FindParameter(test, Name("n"))->limits.low;
  // Where some are lost, those who are enrolled come in whole clusters.
  if (inputs.Has("cluster-size") && !inputs.Has("dropout")) unit_ = inputs.Number("cluster-size");
  smallest_ = std::ceil(least_ / unit_);
  if (test.groups == 1) return;
  if (hasRatio_) {
    ratio_ = inputs.Number("ratio");
    return;
  }
  weights_ = inputs.Weights();
  const double sum = std::accumulate(weights_.begin(), weights_.end(), 0.0);
  for (double& weight : weights_) weight /= sum;
  smallest_ = least_ * static_cast<double>(weights_.size());
}

Numbers WholeSizes::At(double number) const {
  if (hasRatio_) return {Members(number), std::max(least_, Members(std::ceil(number * ratio_)))};
  if (weights_.empty()) return {number};
  Numbers sizes;
  for (double weight : weights_) sizes.push_back(std::max(least_, std::ceil(number * weight * (1 - 1e-15))));
  return sizes;
}

double WholeSizes::Members(double number) const {
  return unit_ == 1 ? number : std::ceil(number * unit_ * (1 - 1e-15));
}

bool WholeSizes::AreCountable(const Numbers& sizes) const { return NumberOf(sizes) < largestNumber; }

double WholeSizes::NumberOf(const Numbers& sizes) const {
  return weights_.empty() ? sizes.front() / unit_ : std::accumulate(sizes.begin(), sizes.end(), 0.0);
}

std::optional<double> FirstWhole(double start, double smallest, Reaches reaches) {
  const double first = std::clamp(std::ceil(start), smallest, largestNumber);
  return reaches(first) ? Downwards(first, smallest, reaches) : Upwards(first, reaches);
}

UnevenSizes AroundUneven(double number, double smallest, bool isSlow, Reaches reaches) {
  const double span = SpanToCheck(number, isSlow);
  UnevenSizes sizes{number, number};
  for (double tried = std::max(smallest, number - span); tried < number; ++tried) {
    if (!reaches(tried)) continue;
    sizes.first = tried;
    break;
  }
  for (double tried = number + span; tried > sizes.first; --tried) {
    if (reaches(tried)) continue;
    sizes.lasting = tried + 1;
    return sizes;
  }
  sizes.lasting = sizes.first;
  return sizes;
}

}  // namespace planner
