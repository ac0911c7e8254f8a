#include "nearest.h"

#include <gtest/gtest.h>

namespace {

TEST(Nearest, FindsTheTypo) {
  const std::vector<std::string> words{"--means", "--sd", "--n", "--power"};
  EXPECT_EQ(Nearest("--mean", words), "--means");
  EXPECT_EQ(Nearest("--meens", words), "--means");
  EXPECT_EQ(Nearest("--pwoer", words), "--power");
}

TEST(Nearest, TakesTwoLettersForATypoAndThreeForAnotherWord) {
  EXPECT_EQ(Nearest("--mxxns", {"--means"}), "--means");
  EXPECT_EQ(Nearest("--mxxxs", {"--means"}), "");
  EXPECT_EQ(Nearest("--sxx", {"--sds"}), "");
  EXPECT_EQ(Nearest("-xx", {"-sd"}), "");
}

TEST(Nearest, DoesNotCountTheDashesAsLetters) {
  EXPECT_EQ(Nearest("--d", {"--sd", "--n"}), "");
  EXPECT_EQ(Nearest("--f", {"--n"}), "");
  EXPECT_EQ(Nearest("--sdx", {"--sds"}), "--sds");
}

TEST(Nearest, DoesNotGuessWildly) {
  const std::vector<std::string> words{"--means", "--sd", "--n", "--power"};
  EXPECT_EQ(Nearest("-x", words), "");
  EXPECT_EQ(Nearest("", words), "");
  EXPECT_EQ(Nearest("--colour", words), "");
  EXPECT_EQ(Nearest(std::string(100000, 'm'), words), "");
  EXPECT_EQ(Nearest("--sd", {}), "");
}

}  // namespace
