#include "assurance/means.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/counts.h"
#include "frame/rejection.h"
#include "support/reference_rows.h"
#include "support/share_of_studies.h"

namespace kelpower::assurance {
namespace {

TEST(AssuranceOfMeans, AgreesWithMultiplePrecision) {
  const auto rows = ReferenceRows(KELPOWER_REFERENCES "/means.csv");
  ASSERT_GT(rows.size(), 30u);
  for (const auto& row : rows) {
    const MeanEstimate estimate{row[0], row[1], row[2], row[3], 1};
    EXPECT_NEAR(*Assurance(estimate, {row[4], row[5]}, row[6]), row[7], 1e-13) << row[4] << ' ' << row[6];
  }
}

TEST(AssuranceOfMeans, IsTheShareOfStudiesOfOneSample) {
  const int size = 24;
  const double t = IntervalQuantileT(0.05, size - 1);
  const auto share = Simulate(
      20000, 1, [&](auto& engine) { return t * std::sqrt(DrawNormal(engine, size, 10, 3).variance / size) <= 1.3; });
  EXPECT_LT(share.StandardErrorsFrom(*Assurance(MeanEstimate::OfMean(3), {1.3, 0.05}, size)), kMostStandardErrors);
}

// Pairs with a correlation of 0.6: the standard deviation of the differences is sqrt(3^2 + 4^2 - 2 0.6 3 4).
TEST(AssuranceOfMeans, IsTheShareOfStudiesOfPairs) {
  const int size = 30;
  const double t = IntervalQuantileT(0.1, size - 1);
  const auto share = Simulate(20000, 2, [&](auto& engine) {
    std::normal_distribution<double> normal;
    double sum = 0;
    double squares = 0;
    for (int i = 0; i < size; ++i) {
      const double shared = normal(engine);
      const double difference = 3 * shared - 4 * (0.6 * shared + 0.8 * normal(engine));
      sum += difference;
      squares += difference * difference;
    }
    const double variance = (squares - sum * sum / size) / (size - 1);
    return t * std::sqrt(variance / size) <= 1.05;
  });
  const double sd = std::sqrt(9 + 16 - 2 * 0.6 * 12);
  EXPECT_LT(share.StandardErrorsFrom(*Assurance(MeanEstimate::OfMean(sd), {1.05, 0.1}, size)), kMostStandardErrors);
}

TEST(AssuranceOfMeans, IsTheShareOfStudiesOfTwoGroups) {
  const int n1 = 12;
  const int n2 = 24;
  const double t = IntervalQuantileT(0.05, n1 + n2 - 2);
  const auto share = Simulate(20000, 3, [&](auto& engine) {
    const Moments one = DrawNormal(engine, n1, 0, 5);
    const Moments two = DrawNormal(engine, n2, 2, 5);
    const double pooled = ((n1 - 1) * one.variance + (n2 - 1) * two.variance) / (n1 + n2 - 2);
    return t * std::sqrt(pooled * (1.0 / n1 + 1.0 / n2)) <= 3.9;
  });
  EXPECT_LT(share.StandardErrorsFrom(*Assurance(MeanEstimate::OfDifference(5, 2), {3.9, 0.05}, n1)),
            kMostStandardErrors);
}

TEST(AssuranceOfMeans, IsTheShareOfStudiesOfAContrast) {
  const int sizes[] = {8, 8, 16};
  const double t = IntervalQuantileT(0.05, 29);
  const auto share = Simulate(20000, 4, [&](auto& engine) {
    double squares = 0;
    for (const int size : sizes) squares += (size - 1) * DrawNormal(engine, size, 1, 2).variance;
    return t * std::sqrt(squares / 29 * (1.0 / 8 + 0.25 / 8 + 0.25 / 16)) <= 1.7;
  });
  const MeanEstimate estimate = MeanEstimate::OfContrast({1, -0.5, -0.5}, {1, 1, 2}, 2);
  EXPECT_LT(share.StandardErrorsFrom(*Assurance(estimate, {1.7, 0.05}, 32)), kMostStandardErrors);
}

TEST(AssuranceOfMeans, OfADifferenceIsThatOfItsContrast) {
  const Wish wish{3, 0.05};
  const MeanEstimate contrast = MeanEstimate::OfContrast({1, -1}, {1, 3}, 4);
  EXPECT_DOUBLE_EQ(*Assurance(MeanEstimate::OfDifference(4, 3), wish, 10), *Assurance(contrast, wish, 40));
}

/// The first size by trying every one.
double FirstByTrying(const MeanEstimate& estimate, const Wish& wish, double assurance) {
  double size = estimate.smallest;
  while (*Assurance(estimate, wish, size) < assurance) ++size;
  return size;
}

TEST(AssuranceOfMeans, FirstSizesAreThoseFoundByTryingAll) {
  for (const double assurance : {1e-9, 0.001, 0.04, 0.3, 0.5, 0.9, 0.9999}) {
    for (const double halfWidth : {0.08, 0.2, 0.5, 1.0, 3.0}) {
      for (const double alpha : {0.001, 0.05, 0.5, 0.95}) {
        const Wish wish{halfWidth, alpha};
        for (const MeanEstimate& estimate :
             {MeanEstimate::OfMean(1), MeanEstimate::OfDifference(0.7, 1), MeanEstimate::OfDifference(0.5, 0.2),
              MeanEstimate::OfContrast({1, 0, 0, 0, 0, -1}, {1, 1, 3, 1, 1, 1}, 0.4)}) {
          EXPECT_EQ(*FirstSize(estimate, wish, assurance), FirstByTrying(estimate, wish, assurance))
              << assurance << ' ' << halfWidth << ' ' << alpha << ' ' << estimate.groups;
        }
      }
    }
  }
}

// With a thousand means the degrees of freedom grow much faster than the size: the assurance rises to 0.122 at three
// of them, because t falls, falls to 0.001 and rises for good.
TEST(AssuranceOfMeans, FirstSizesAreFoundBeforeAValley) {
  const MeanEstimate estimate{1, 434, 1, 1000, 1001};
  const Wish wish{1, 0.05};
  EXPECT_EQ(*FirstSize(estimate, wish, 0.12), FirstByTrying(estimate, wish, 0.12));
  EXPECT_LT(*FirstSize(estimate, wish, 0.12), 1010);
  EXPECT_LT(*Assurance(estimate, wish, 1200), 0.001);
  EXPECT_EQ(*FirstSize(estimate, wish, 0.9), FirstByTrying(estimate, wish, 0.9));
}

TEST(AssuranceOfMeans, GivesEachGroupAnObservation) {
  EXPECT_EQ(MeanEstimate::OfMean(1).smallest, 2);
  EXPECT_EQ(MeanEstimate::OfDifference(1, 1).smallest, 2);
  EXPECT_EQ(MeanEstimate::OfDifference(1, 0.2).smallest, 5);
  EXPECT_EQ(MeanEstimate::OfContrast({1, -1, 0}, {1, 1, 1}, 1).smallest, 4);
  EXPECT_EQ(MeanEstimate::OfContrast({1, -1, 0}, {4, 4, 2}, 1).smallest, 5);
}

// What the bisection rests on: from 14 degrees of freedom, as many as groups, and c = 0.7 on.
TEST(AssuranceOfMeans, RisesWhereTheSearchTakesItToRise) {
  for (const double groups : {1.0, 2.0, 5.0, 40.0}) {
    for (const double alpha : {0.001, 0.05, 0.3, 0.9}) {
      for (const double halfWidth : {0.07, 0.1, 0.3, 0.6}) {
        const MeanEstimate estimate{1, 1, 1, groups, 1};
        double last = 0;
        for (double size = groups + std::max(groups, 14.0); size < 3000; size += size < 300 ? 1 : 17) {
          const double t = IntervalQuantileT(alpha, size - groups);
          if (size * halfWidth * halfWidth < 0.7 * t * t) continue;
          const double assurance = *Assurance(estimate, {halfWidth, alpha}, size);
          EXPECT_GE(assurance, last - 1e-14) << groups << ' ' << alpha << ' ' << halfWidth << ' ' << size;
          last = assurance;
        }
        EXPECT_GT(last, 0.9);
      }
    }
  }
}

TEST(AssuranceOfMeans, ExceedsTheSizeOfTheExpectedHalfWidth) {
  // An interval of half-width 0.5 sd takes 18 at the expected variance.
  EXPECT_LT(*Assurance(MeanEstimate::OfMean(1), {0.5, 0.05}, 18), 0.6);
  EXPECT_EQ(*FirstSize(MeanEstimate::OfMean(1), {0.5, 0.05}, 0.5), 18);
  EXPECT_EQ(*FirstSize(MeanEstimate::OfMean(1), {0.5, 0.05}, 0.9), 24);
}

TEST(AssuranceOfMeans, SaysWhyThereIsNone) {
  const MeanEstimate mean = MeanEstimate::OfMean(1);
  EXPECT_EQ(Assurance(mean, {0.5, 0.05}, 1).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(mean, {0.5, 0}, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(mean, {-0.5, 0.05}, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(MeanEstimate::OfMean(0), {0.5, 0.05}, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSize(mean, {0.5, 0.05}, 1).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSize(mean, {0, 0.05}, 0.9).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSize(mean, {1e-5, 0.05}, 0.9).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSize(MeanEstimate::OfDifference(1, 0), {1, 0.05}, 0.9).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSize(MeanEstimate::OfContrast({}, {}, 1), {1, 0.05}, 0.9).Reason(), NoValue::Refused);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(Assurance(mean, {nan, 0.05}, 20).ValueOr(0)));
  EXPECT_EQ(FirstSize(mean, {nan, 0.05}, 0.9).Reason(), NoValue::NotReached);
}

TEST(AssuranceOfMeans, FindsSizesOfMillions) {
  const MeanEstimate mean = MeanEstimate::OfMean(1);
  const Wish wish{5e-5, 0.05};
  const double size = *FirstSize(mean, wish, 0.8);
  EXPECT_GT(size, 1.5e9);
  EXPECT_LT(*Assurance(mean, wish, size - 100), 0.8);
  EXPECT_GE(*Assurance(mean, wish, size), 0.8);
}

}  // namespace
}  // namespace kelpower::assurance
