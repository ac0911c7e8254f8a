#include "frame/answer.h"

#include <gtest/gtest.h>

#include "frame/stop.h"
#include "support/stop_requests.h"

namespace kelpower {
namespace {

TEST(Answer, IsANumberOrAReason) {
  const Answer number = 2.5;
  EXPECT_TRUE(number);
  EXPECT_EQ(*number, 2.5);
  EXPECT_EQ(number.ValueOr(1), 2.5);
  EXPECT_FALSE(number.Reason());

  const Answer none = NoValue::Stopped;
  EXPECT_FALSE(none);
  EXPECT_EQ(none.Reason(), NoValue::Stopped);
  EXPECT_EQ(none.ValueOr(1), 1);
}

TEST(Stop, IsAskedOnceAStepUntilItAnswersTrue) {
  keltest::CountingStop third(3);
  EXPECT_FALSE(StopsWithin(third, 2));
  EXPECT_TRUE(StopsWithin(third, 5));
  EXPECT_EQ(third.asked, 3);
  EXPECT_TRUE(AnswersStop(third));
}

TEST(Stop, NeverEndsAnythingWhenEmpty) {
  EXPECT_FALSE(AnswersStop({}));
  EXPECT_FALSE(StopsWithin({}, 1e18));  // at once
}

}  // namespace
}  // namespace kelpower
