// Lets each allocation of a call fail in turn: the reply says so, nothing is leaked, and the next call is answered.

#include <gtest/gtest.h>
#include <kelplan.h>

#include <cmath>
#include <cstdint>
#include <string>

#include "limited_memory.h"

namespace {

using keltest::LimitedMemory;

struct Asked {
  int (*door)(const char*, const kelplan_options*, char**);
  const char* request;
};

const Asked requests[] = {
    {kelplan_solve, R"({"test":"two-means","inputs":{"effect-d":0.5,"power":0.8},"explain":true,"densities":true})"},
    {kelplan_solve, R"({"test":"two-means","inputs":{"effect-d":[0.5,0],"power":[0.8,0.9]}})"},
    {kelplan_solve, R"({"test":"two-means","inputs":{"effect-d":0.5,"power":[2,"x"]},"names":"underscore"})"},
    {kelplan_solve, R"({"test":"anova","inputs":{"means":[1,2,3],"sd":2}})"},
    {kelplan_solve, R"({"test":"two-means","inputs":{"effect-d":0.5,"power":0.8,"dropout":0.1,"comparisons":2}})"},
    {kelplan_solve, R"({"test":"nothing"})"},
    {kelplan_solve, "["},
    {kelplan_convert, R"({"inputs":{"t":2.3,"n":20},"explain":true})"},
};

struct Outcome {
  int status;
  std::string reply;
};

Outcome Answered(const Asked& asked, std::int64_t failing) {
  char* answer = nullptr;
  int status = 0;
  {
    const LimitedMemory limit(failing, SIZE_MAX);
    status = asked.door(asked.request, nullptr, &answer);
  }
  Outcome outcome{status, answer ? answer : ""};
  kelplan_free(answer);
  return outcome;
}

TEST(Memory, ARequestWithoutItHasAnError) {
  ASSERT_NE(kelplan_describe(), nullptr);
  for (const Asked& request : requests) {
    SCOPED_TRACE(request.request);
    const Outcome whole = Answered(request, INT64_MAX);
    std::int64_t failing = 1;
    for (;; ++failing) {
      const std::int64_t live = keltest::LiveAllocations();
      {
        const Outcome outcome = Answered(request, failing);
        if (outcome.status != KELPLAN_NO_MEMORY) {
          EXPECT_EQ(outcome.status, whole.status);
          EXPECT_EQ(outcome.reply, whole.reply);
          break;
        }
        EXPECT_NE(outcome.reply.find("\"kind\":\"memory\""), std::string::npos);
      }
      EXPECT_EQ(keltest::LiveAllocations(), live) << "allocation " << failing;
    }
    EXPECT_GT(failing, 3);
  }
}

TEST(Memory, ABatchWithoutItHasAStatus) {
  const char* const request = R"({"test":"two-means","inputs":{"power":0.8},"columns":["effect-d"]})";
  kelplan_batch* batch = nullptr;
  std::int64_t failing = 1;
  for (int status = KELPLAN_NO_MEMORY; status != KELPLAN_OK; ++failing) {
    const std::int64_t live = keltest::LiveAllocations();
    {
      const LimitedMemory limit(failing, SIZE_MAX);
      status = kelplan_prepare(request, &batch, nullptr);
    }
    ASSERT_TRUE(status == KELPLAN_OK || status == KELPLAN_NO_MEMORY);
    if (status == KELPLAN_NO_MEMORY) {
      EXPECT_EQ(keltest::LiveAllocations(), live) << failing;
    }
  }
  EXPECT_GT(failing, 10);
  const double effect = 0.5;
  const double* columns[] = {&effect};
  double total = 0;
  double* results[8] = {};
  results[2] = &total;  // after the two sizes
  int status = -1;
  int rows = 0;
  for (failing = 1; status != KELPLAN_OK; ++failing) {
    const LimitedMemory limit(failing, SIZE_MAX);
    const int call = kelplan_run(batch, 1, columns, nullptr, results, nullptr, &status, sizeof(int), nullptr);
    ASSERT_TRUE(call == KELPLAN_OK || call == KELPLAN_NO_MEMORY);
    if (call == KELPLAN_OK && status == KELPLAN_NO_MEMORY) {
      EXPECT_TRUE(std::isnan(total));
      ++rows;
    }
  }
  EXPECT_GT(rows, 0);
  EXPECT_EQ(total, 128);
  kelplan_release(batch);
}

}  // namespace
