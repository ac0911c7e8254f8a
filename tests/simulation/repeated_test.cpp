#include "anova/repeated.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "simulation/linear_model.h"
#include "support/share_of_studies.h"

namespace kelpower::anova {
namespace {

/// Subjects in groups, each measured several times.
struct Study {
  RepeatedDesign design;
  std::vector<double> means;  // a row for each group
  std::vector<double> sizes;
  double sd;

  int Times() const { return static_cast<int>(design.measurements); }
  int Groups() const { return static_cast<int>(design.groups); }

  std::vector<int> GroupOfSubjects() const {
    std::vector<int> groupOf;
    for (int group = 0; group < Groups(); ++group) {
      const auto size = static_cast<std::size_t>(sizes[static_cast<std::size_t>(group)]);
      groupOf.insert(groupOf.end(), size, group);
    }
    return groupOf;
  }
};

/// The numbers of a column, given for each subject and measurement.
Column Coded(const Study& study, const std::function<double(int subject, int group, int time)>& value) {
  Column column;
  const std::vector<int> groupOf = study.GroupOfSubjects();
  for (int subject = 0; subject < static_cast<int>(groupOf.size()); ++subject) {
    for (int time = 0; time < study.Times(); ++time) {
      column.push_back(value(subject, groupOf[static_cast<std::size_t>(subject)], time));
    }
  }
  return column;
}

/// Subjects, measurements and their interaction with the groups, the tested effect last.
LinearModel ModelWithinSubjects(const Study& study) {
  LinearModel model;
  const int subjects = static_cast<int>(study.GroupOfSubjects().size());
  for (int of = 0; of < subjects; ++of) {
    model.Add(Coded(study, [of](int subject, int, int) { return subject == of ? 1 : 0; }), false);
  }
  const bool testsWithin = study.design.effect == RepeatedEffect::Within;
  for (const bool isTested : {false, true}) {
    for (int which = 0; which < study.Times() - 1; ++which) {
      const auto ofTime = [&, which](int time) { return Deviation(time, which, study.Times()); };
      if (testsWithin == isTested) model.Add(Coded(study, [&](int, int, int time) { return ofTime(time); }), isTested);
      if (testsWithin != isTested) {
        for (int group = 0; group < study.Groups() - 1; ++group) {
          model.Add(Coded(study, [&, group](int, int of,
                                            int time) { return Deviation(of, group, study.Groups()) * ofTime(time); }),
                    isTested);
        }
      }
    }
  }
  return model;
}

LinearModel ModelBetweenGroups(const Study& study) {
  const std::vector<int> groupOf = study.GroupOfSubjects();
  LinearModel model;
  model.Add(Column(groupOf.size(), 1), false);
  for (int group = 1; group < study.Groups(); ++group) {
    Column indicator;
    for (int of : groupOf) indicator.push_back(of == group ? 1 : 0);
    model.Add(indicator, true);
  }
  return model;
}

void ExpectPowerOfStudies(const Study& study, unsigned seed) {
  const bool isBetween = study.design.effect == RepeatedEffect::Between;
  const LinearModel model = isBetween ? ModelBetweenGroups(study) : ModelWithinSubjects(study);
  const std::vector<int> groupOf = study.GroupOfSubjects();
  const auto total = static_cast<double>(groupOf.size());
  ASSERT_EQ(model.Tested(), study.design.Df1());
  const EffectTest test = study.design.TestAt(total, 0.05);
  const double power = *test.Power(*study.design.NoncentralityOfMeans(study.means, study.sizes, study.sd));

  const double common = study.sd * std::sqrt(study.design.correlation);
  const double own = study.sd * std::sqrt(1 - study.design.correlation);
  const Column expected = Coded(study, [&](int, int group, int time) {
    return study.means[static_cast<std::size_t>(group * study.Times() + time)];
  });
  Column y(expected.size());
  Column subjectMeans(groupOf.size());
  const auto times = static_cast<std::size_t>(study.Times());
  const auto rejects = [&](std::mt19937_64& engine) {
    std::normal_distribution<double> normal(0, 1);
    for (std::size_t subject = 0; subject < groupOf.size(); ++subject) {
      const double ofSubject = common * normal(engine);
      double sum = 0;
      for (std::size_t i = subject * times; i < (subject + 1) * times; ++i) {
        y[i] = expected[i] + ofSubject + own * normal(engine);
        sum += y[i];
      }
      subjectMeans[subject] = sum / study.design.measurements;
    }
    return model.F(isBetween ? subjectMeans : y) > test.AtCriticalValue()->critical;
  };
  EXPECT_LT(Simulate(1000000, seed, rejects).StandardErrorsFrom(power), kMostStandardErrors) << power;
}

const std::vector<double> table = {10, 10, 11, 10, 12, 14};

TEST(RepeatedStudies, InteractionIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({{RepeatedEffect::Interaction, 2, 3, 0.5, 1}, table, {5, 3}, 2}, 21);
}

TEST(RepeatedStudies, EffectWithinSubjectsOfUnequalGroupsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({{RepeatedEffect::Within, 2, 3, 0.3, 1}, table, {2, 6}, 2}, 22);
}

TEST(RepeatedStudies, EffectBetweenGroupsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({{RepeatedEffect::Between, 2, 3, 0.6, 1}, table, {6, 4}, 1.5}, 23);
}

}  // namespace
}  // namespace kelpower::anova
