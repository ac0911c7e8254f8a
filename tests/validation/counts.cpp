#include "validation/counts.h"

#include <cmath>
#include <memory>

namespace kelpower::validation {
namespace {

class CountStudy {
public:
  CountStudy(std::vector<CountedGroup> groups, Decision rejects)
      : groups_(std::move(groups)), rejects_(std::move(rejects)) {
    for (const CountedGroup& group : groups_) {
      categories_.emplace_back(group.proportions);
      counts_.insert(counts_.end(), group.proportions.size(), 0);
      logSizes_.push_back(std::lgamma(static_cast<double>(group.n) + 1));
      for (std::size_t i = 0; i + 1 < group.proportions.size(); ++i) cells_ *= static_cast<double>(group.n) + 1;
      outcomes_ *= Ways(static_cast<double>(group.n), static_cast<double>(group.proportions.size()) - 1);
    }
    if (cells_ <= kMostKept) known_.assign(static_cast<std::size_t>(cells_), Unknown);
  }

  bool CanBeCounted() const { return outcomes_ <= kMostCounted; }

  bool Draw(Engine& engine) {
    std::size_t from = 0;
    for (std::size_t group = 0; group < groups_.size(); ++group) {
      categories_[group].Draw(engine, groups_[group].n, counts_, from);
      from += groups_[group].proportions.size();
    }
    return Decided();
  }

  double Counted() { return CountedFrom(0, 0, 0, groups_[0].n, logSizes_[0]); }

private:
  enum Known : signed char { Unknown, Kept, Rejected };

  // Decisions that are remembered, and outcomes that are counted through.
  static constexpr double kMostKept = 4e6;
  static constexpr double kMostCounted = 4e6;

  /// How many counts of k + 1 categories there are.
  static double Ways(double n, double k) {
    double ways = 1;
    for (double i = 1; i <= k; ++i) ways *= (n + i) / i;
    return ways;
  }

  /// The decision for the counts, from memory where it was made before.
  bool Decided() {
    if (known_.empty()) return rejects_(counts_);
    std::size_t index = 0;
    std::size_t from = 0;
    for (const CountedGroup& group : groups_) {
      for (std::size_t i = 0; i + 1 < group.proportions.size(); ++i) {
        index = index * static_cast<std::size_t>(group.n + 1) + static_cast<std::size_t>(counts_[from + i]);
      }
      from += group.proportions.size();
    }
    if (known_[index] == Unknown) known_[index] = rejects_(counts_) ? Rejected : Kept;
    return known_[index] == Rejected;
  }

  /// The sum of the probabilities of the rejected outcomes that continue the counts so far.
  /// @param from where the counts of the group begin
  /// @param left its subjects without a category
  /// @param logMass the logarithm of the probability so far
  double CountedFrom(std::size_t group, std::size_t from, std::size_t category, long left, double logMass) {
    const Numbers& proportions = groups_[group].proportions;
    const double proportion = proportions[category];
    const bool isLast = category + 1 == proportions.size();
    double sum = 0;
    for (long count = isLast ? left : 0; count <= left; ++count) {
      if (count > 0 && proportion <= 0) break;
      const auto x = static_cast<double>(count);
      counts_[from + category] = x;
      const double mass = logMass - std::lgamma(x + 1) + (count > 0 ? x * std::log(proportion) : 0);
      if (!isLast) {
        sum += CountedFrom(group, from, category + 1, left - count, mass);
      } else if (group + 1 < groups_.size()) {
        sum += CountedFrom(group + 1, from + proportions.size(), 0, groups_[group + 1].n, mass + logSizes_[group + 1]);
      } else if (Decided()) {
        sum += std::exp(mass);
      }
    }
    return sum;
  }

  std::vector<CountedGroup> groups_;
  std::vector<Categories> categories_;
  Decision rejects_;
  Numbers counts_;
  Numbers logSizes_;
  double cells_ = 1;
  double outcomes_ = 1;
  std::vector<Known> known_;
};

}  // namespace

Study OfCounts(bool isExact, const std::vector<CountedGroup>& groups, const Decision& rejects) {
  const auto study = std::make_shared<CountStudy>(groups, rejects);
  Study made{isExact, [study](Engine& engine) { return study->Draw(engine); }};
  if (study->CanBeCounted()) made.counted = [study] { return study->Counted(); };
  return made;
}

}  // namespace kelpower::validation
