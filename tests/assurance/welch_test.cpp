#include "assurance/welch.h"

#include <gtest/gtest.h>

#include <cmath>

#include "assurance/means.h"
#include "frame/rejection.h"
#include "support/reference_rows.h"
#include "support/share_of_studies.h"

namespace kelpower::assurance {
namespace {

TEST(AssuranceOfWelch, AgreesWithMultiplePrecision) {
  const auto rows = ReferenceRows(KELPOWER_REFERENCES "/welch.csv");
  ASSERT_GT(rows.size(), 5u);
  for (const auto& row : rows) {
    EXPECT_NEAR(*Assurance(UnequalGroups{row[0], row[1]}, {row[2], row[3]}, row[4], row[5]), row[6], 1e-11)
        << row[4] << ' ' << row[5];
  }
}

TEST(AssuranceOfWelch, IsTheShareOfStudies) {
  const int n1 = 15;
  const int n2 = 45;
  const auto share = Simulate(15000, 5, [&](auto& engine) {
    const double a1 = DrawNormal(engine, n1, 0, 5).variance / n1;
    const double a2 = DrawNormal(engine, n2, 1, 2).variance / n2;
    const double df = (a1 + a2) * (a1 + a2) / (a1 * a1 / (n1 - 1) + a2 * a2 / (n2 - 1));
    return IntervalQuantileT(0.05, df) * std::sqrt(a1 + a2) <= 2.8;
  });
  EXPECT_LT(share.StandardErrorsFrom(*Assurance(UnequalGroups{5, 2}, {2.8, 0.05}, n1, n2)), kMostStandardErrors);
}

// A standard deviation that hardly counts leaves the interval of the other group's mean.
TEST(AssuranceOfWelch, TendsToThatOfOneMean) {
  EXPECT_NEAR(*Assurance(UnequalGroups{1, 1e-9}, {0.5, 0.05}, 20, 30),
              *Assurance(MeanEstimate::OfMean(1), {0.5, 0.05}, 20), 1e-10);
  EXPECT_NEAR(*Assurance(UnequalGroups{1e-9, 1}, {0.5, 0.05}, 1e6, 20),
              *Assurance(MeanEstimate::OfMean(1), {0.5, 0.05}, 20), 1e-10);
}

TEST(AssuranceOfWelch, IsTheSameWithGroupsSwapped) {
  EXPECT_NEAR(*Assurance(UnequalGroups{1, 4}, {2, 0.05}, 11, 30), *Assurance(UnequalGroups{4, 1}, {2, 0.05}, 30, 11),
              1e-12);
}

TEST(AssuranceOfWelch, FirstSizesAreThoseFoundByTryingAll) {
  for (const double ratio : {0.5, 1.0, 3.0}) {
    for (const double assurance : {0.05, 0.5, 0.9}) {
      for (const double halfWidth : {1.0, 3.0}) {
        const UnequalGroups groups{1, 3};
        const Wish wish{halfWidth, 0.05};
        double size = std::ceil(std::max(2.0, 2 / ratio));
        while (*Assurance(groups, wish, size, ratio * size) < assurance) ++size;
        EXPECT_EQ(*FirstSize(groups, wish, ratio, assurance), size) << ratio << ' ' << assurance << ' ' << halfWidth;
      }
    }
  }
}

// At 54 in the large group the assurance has a peak of 0.00034: with five in the small one the quantile of t falls fast.
TEST(AssuranceOfWelch, FirstSizesAreFoundBeforeAValley) {
  const UnequalGroups groups{1, 1};
  const Wish wish{0.5, 0.001};
  double size = 20;
  while (*Assurance(groups, wish, size, 0.1 * size) < 0.0003) ++size;
  EXPECT_LT(size, 60);
  EXPECT_EQ(*FirstSize(groups, wish, 0.1, 0.0003), size);
  EXPECT_LT(*Assurance(groups, wish, 110, 11), 0.0003);
}

// What the bisection rests on.
TEST(AssuranceOfWelch, FallsAtMostOnceAndRisesFromThereOn) {
  for (const double ratio : {0.1, 0.5, 1.0, 8.0}) {
    for (const double sd2 : {0.1, 1.0, 5.0}) {
      for (const double halfWidth : {0.15, 0.5}) {
        for (const double alpha : {0.001, 0.05, 0.5}) {
          bool hasRisen = false;
          double last = 2;
          for (double n = std::ceil(15 / std::min(1.0, ratio)); n < 1e6 && last != 1; n = std::ceil(n * 1.12)) {
            const double assurance = *Assurance(UnequalGroups{1, sd2}, {halfWidth, alpha}, n, ratio * n);
            if (assurance > last + 1e-11) hasRisen = true;
            EXPECT_FALSE(hasRisen && assurance < last - 1e-11) << ratio << ' ' << sd2 << ' ' << halfWidth << ' ' << n;
            last = assurance;
          }
          EXPECT_GT(last, 0.999);
        }
      }
    }
  }
}

TEST(AssuranceOfWelch, SaysWhyThereIsNone) {
  const UnequalGroups groups{1, 2};
  EXPECT_EQ(Assurance(groups, {1, 0.05}, 1, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(groups, {1, 1}, 20, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(UnequalGroups{1, -2}, {1, 0.05}, 20, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSize(groups, {1, 0.05}, 0, 0.9).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSize(groups, {1e-6, 0.05}, 1, 0.9).Reason(), NoValue::NotReached);
  EXPECT_EQ(*Assurance(groups, {0, 0.05}, 20, 20), 0);
  EXPECT_EQ(*Assurance(groups, {HUGE_VAL, 0.05}, 20, 20), 1);
}

}  // namespace
}  // namespace kelpower::assurance
