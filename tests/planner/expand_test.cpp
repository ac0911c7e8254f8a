#include "words/expand.h"

#include <gtest/gtest.h>

namespace planner {
namespace {

std::string Expanded(const std::string& text) {
  return Expand(
      text, [](std::string_view name) { return '<' + std::string(name) + '>'; },
      [](std::string_view name) { return name == "yes"; });
}

TEST(Expand, ReplacesNames) {
  EXPECT_EQ(Expanded("a {b} c {d}."), "a <b> c <d>.");
  EXPECT_EQ(Expanded("{b}"), "<b>");
  EXPECT_EQ(Expanded("plain"), "plain");
  EXPECT_EQ(Expanded(""), "");
}

TEST(Expand, ChoosesByFlags) {
  EXPECT_EQ(Expanded("{yes?one:two}-sided"), "one-sided");
  EXPECT_EQ(Expanded("{no?one:two}-sided"), "two-sided");
  EXPECT_EQ(Expanded("{no?only when set}x"), "x");
}

TEST(Expand, LeavesAnUnclosedBraceAlone) { EXPECT_EQ(Expanded("a {b"), "a {b"); }

}  // namespace
}  // namespace planner
