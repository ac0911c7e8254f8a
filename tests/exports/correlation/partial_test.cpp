#include <gtest/gtest.h>

#include <cmath>

#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;

TEST(PowerbyOneSampPartial, WithoutVariablesPartialledOutIsThatOfPearson) {
  for (const int oneSided : {0, 1}) {
    for (const double alternative : {-1.0, -0.3, 0.1, 0.8, 1.0}) {
      EXPECT_EQ(PowerbyOneSampPartial(25, 0, alternative, 0.1, oneSided, 0.05),
                PowerbyOneSampPearson(25, alternative, 0.1, oneSided, 1, 0.05));
    }
  }
  EXPECT_EQ(HalfCIOneSampPartial(25, 0, 0.3, 0.05), HalfCIOneSampPearson(25, 0.3, 0, 0.05));
}

TEST(PowerbyOneSampPartial, LosesACaseForEveryVariable) {
  for (const double k : {1.0, 2.5, 10.0}) {
    EXPECT_NEAR(PowerbyOneSampPartial(30 + k, k, 0.4, 0, 0, 0.05), PowerbyOneSampPearson(30, 0.4, 0, 0, 1, 0.05),
                1e-15);
    EXPECT_EQ(HalfCIOneSampPartial(30 + k, k, 0.4, 0.05), HalfCIOneSampPearson(30, 0.4, 0, 0.05));
  }
}

TEST(PowerbyOneSampPartial, RejectsInvalidInput) {
  EXPECT_EQ(PowerbyOneSampPartial(8, 5, 0.4, 0, 0, 0.05), -1);
  EXPECT_GT(PowerbyOneSampPartial(8.5, 5, 0.4, 0, 0, 0.05), 0);
  EXPECT_EQ(PowerbyOneSampPartial(30, -0.5, 0.4, 0, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampPartial(30, 2, 1.4, 0, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampPartial(30, 2, 0.4, 1.4, 0, 0.05), -1);
  EXPECT_EQ(PowerbyOneSampPartial(30, 2, 0.4, 0, 0, 0), -1);
}

TEST(PowerReversebyOneSampPartial, MovesWithTheNumberOfVariables) {
  const double none = PowerReversebyOneSampPartial(0.8, 0, 0.3, 0, 0, 0.05);
  EXPECT_NEAR(PowerReversebyOneSampPartial(0.8, 10, 0.3, 0, 0, 0.05), none + 10, 1e-8);
  EXPECT_NEAR(PowerReversebyOneSampPearson(0.8, 0.3, 0, 0, 1, 0.05, nullptr), none, 1e-8);
  // The search starts at a size without a test, so it finds sizes below 14 too.
  const double small = PowerReversebyOneSampPartial(0.01, 10, 0.3, 0, 0, 0.05);
  EXPECT_GT(small, 13);
  EXPECT_LT(small, 14);
  EXPECT_NEAR(PowerbyOneSampPartial(small, 10, 0.3, 0, 0, 0.05), 0.01, 1e-9);
  EXPECT_TRUE(KelMV::IsMissing(PowerReversebyOneSampPartial(0.8, -1, 0.3, 0, 0, 0.05)));
}

TEST(PowerReversebyHalfCIOneSampPartial, MovesWithTheNumberOfVariables) {
  EXPECT_EQ(PowerReversebyHalfCIOneSampPartial(0.05, 0, 0.3, 0.05, nullptr), 1274);
  EXPECT_EQ(PowerReversebyHalfCIOneSampPartial(0.05, 7, 0.3, 0.05, nullptr), 1281);
}

}  // namespace
}  // namespace kelpower
