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
    for (std::size_t subject = 0; subject < groupOf_.size(); ++subject) {
      const double ofSubject = common * normal(engine);
      double sum = 0;
      for (std::size_t i = subject * times; i < (subject + 1) * times; ++i) {
        y_[i] = expected_[i] + ofSubject + own * normal(engine);
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
    model_.Add(Coded([this, which](int, int, int time) { return Deviation(time, which, study_.measurements); }),
               isTested);
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
