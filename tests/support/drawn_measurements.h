#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_MEASUREMENTS_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_MEASUREMENTS_H

#include <cmath>
#include <functional>
#include <random>
#include <utility>
#include <vector>

#include "support/linear_model.h"

namespace kelpower {

enum class MeasuredEffect { Between, Within, Interaction };

/// Subjects in groups, each measured several times, any two measurements equally correlated.
struct MeasuredStudy {
  MeasuredEffect effect;
  int measurements;
  double correlation;
  std::vector<double> means;  // a row for each group
  std::vector<double> sizes;
  double sd;
  /// Of three measurements: how far the correlations are from equal ones. The variances of the linear and the quadratic
  /// contrast are 1 + `inequality` and 1 - `inequality` times those of equal correlations.
  double inequality = 0;
  /// Not empty where one contrast of the measurements is tested in place of all their differences.
  std::vector<double> coefficients = {};

  int Groups() const { return static_cast<int>(sizes.size()); }
};

/// The analysis of variance of drawn studies, by a model with the tested effect last.
class MeasuredAnalysis {
public:
  explicit MeasuredAnalysis(MeasuredStudy study) : study_(std::move(study)), groupOf_(GroupOfEach(study_.sizes)) {
    if (study_.effect == MeasuredEffect::Between) {
      ModelBetweenGroups();
    } else {
      ModelWithinSubjects();
    }
    y_.resize(groupOf_.size() * static_cast<std::size_t>(study_.measurements));
    subjectMeans_.resize(groupOf_.size());
    expected_ = Coded([this](int, int group, int time) {
      return study_.means[static_cast<std::size_t>(group * study_.measurements + time)];
    });
  }

  const LinearModel& Model() const { return model_; }

  template <typename Engine>
  double F(Engine& engine) {
    std::normal_distribution<double> normal(0, 1);
    const double common = study_.sd * std::sqrt(study_.correlation);
    const double own = study_.sd * std::sqrt(1 - study_.correlation);
    const auto times = static_cast<std::size_t>(study_.measurements);
    std::vector<double> rest(times);
    for (std::size_t subject = 0; subject < groupOf_.size(); ++subject) {
      const double ofSubject = common * normal(engine);
      for (double& each : rest) each = own * normal(engine);
      if (study_.inequality > 0) MakeUnequal(rest);
      double sum = 0;
      for (std::size_t time = 0; time < times; ++time) {
        const std::size_t i = subject * times + time;
        y_[i] = expected_[i] + ofSubject + rest[time];
        sum += y_[i];
      }
      subjectMeans_[subject] = sum / study_.measurements;
    }
    return model_.F(study_.effect == MeasuredEffect::Between ? subjectMeans_ : y_);
  }

private:
  /// The numbers of a column, given for each subject and measurement.
  Column Coded(const std::function<double(int subject, int group, int time)>& value) const {
    Column column;
    for (int subject = 0; subject < static_cast<int>(groupOf_.size()); ++subject) {
      for (int time = 0; time < study_.measurements; ++time) {
        column.push_back(value(subject, groupOf_[static_cast<std::size_t>(subject)], time));
      }
    }
    return column;
  }

  void ModelBetweenGroups() {
    model_.Add(Column(groupOf_.size(), 1), false);
    for (const Column& indicator : Indicators(groupOf_, study_.Groups())) model_.Add(indicator, true);
  }

  /// Stretches the linear contrast of three numbers and shrinks the quadratic one.
  void MakeUnequal(std::vector<double>& of) const {
    const double linear = (of[2] - of[0]) / 2 * (std::sqrt(1 + study_.inequality) - 1);
    const double quadratic = (of[0] - 2 * of[1] + of[2]) / 6 * (std::sqrt(1 - study_.inequality) - 1);
    of[0] += quadratic - linear;
    of[1] -= 2 * quadratic;
    of[2] += quadratic + linear;
  }

  /// Subjects, measurements and their interaction with the groups.
  void ModelWithinSubjects() {
    for (int of = 0; of < static_cast<int>(groupOf_.size()); ++of) {
      model_.Add(Coded([of](int subject, int, int) { return subject == of ? 1 : 0; }), false);
    }
    const bool testsWithin = study_.effect == MeasuredEffect::Within;
    for (const bool isTested : {false, true}) {
      for (int which = 0; which < study_.measurements - 1; ++which) {
        if (testsWithin == isTested) {
          AddTimes(which, isTested);
        } else {
          AddInteractions(which, isTested);
        }
      }
    }
  }

  void AddTimes(int which, bool isTested) {
    const bool hasContrast = !study_.coefficients.empty();
    model_.Add(Coded([&](int, int, int time) { return BesideContrast(time, which); }), isTested && !hasContrast);
    if (hasContrast && which == study_.measurements - 2) {
      model_.Add(Coded([&](int, int, int time) { return study_.coefficients[static_cast<std::size_t>(time)]; }), true);
    }
  }

  /// A column of the measurements, less what it has of the contrast that is tested.
  double BesideContrast(int time, int which) const {
    double along = 0;
    double squares = 0;
    for (std::size_t i = 0; i < study_.coefficients.size(); ++i) {
      along += study_.coefficients[i] * Deviation(static_cast<int>(i), which, study_.measurements);
      squares += study_.coefficients[i] * study_.coefficients[i];
    }
    const double column = Deviation(time, which, study_.measurements);
    return squares > 0 ? column - along / squares * study_.coefficients[static_cast<std::size_t>(time)] : column;
  }

  void AddInteractions(int which, bool isTested) {
    for (int group = 0; group < study_.Groups() - 1; ++group) {
      model_.Add(Coded([this, which, group](int, int of, int time) {
                   return Deviation(of, group, study_.Groups()) * Deviation(time, which, study_.measurements);
                 }),
                 isTested);
    }
  }

  MeasuredStudy study_;
  std::vector<int> groupOf_;
  LinearModel model_;
  Column expected_;
  Column y_;
  Column subjectMeans_;
};

}  // namespace kelpower

#endif
