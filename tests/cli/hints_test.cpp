#include "hints.h"

#include <gtest/gtest.h>

#include <regex>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "run.h"

namespace {

/// What the program says to arguments that are wrong.
std::string Said(const std::string& arguments) {
  const Outcome run = RunProgram(Words(arguments));
  EXPECT_EQ(run.status, 2) << arguments;
  return run.err;
}

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(Hints, OtherNamesOfATestAreUnderstood) {
  const Outcome run = RunProgram(Words("mcnemar --p12 0.08 --p21 0.32 --power 0.8"));
  EXPECT_EQ(run.out, RunProgram(Words("paired-proportions --p12 0.08 --p21 0.32 --power 0.8")).out);
  for (const planner::Test& test : planner::Tests()) {
    for (const std::string& name : OtherNamesOf(test.name)) {
      EXPECT_EQ(planner::FindTest(name), nullptr) << name;
      EXPECT_EQ(HintForTest(name), "") << name << " is both understood and answered";
    }
  }
}

TEST(Hints, NameTheTestsThatAWordMayMean) {
  for (const char* word : {"t-test", "ttest"}) {
    EXPECT_TRUE(Holds(Said(word), "two-means for two groups, paired-means for pairs and mean for one sample")) << word;
  }
  EXPECT_TRUE(Holds(Said("fisher"), "two-proportions with --method conditional"));
  EXPECT_TRUE(Holds(Said("wilcoxon"), "mann-whitney for two groups, ordinal for ordered categories, signed-rank for"));
  EXPECT_TRUE(Holds(Said("chi-square"), "two-proportions"));
  EXPECT_TRUE(Holds(Said("chi-square"), "contingency, of tables and groups, goodness-of-fit"));
  EXPECT_TRUE(Holds(Said("variances"), "two-variances"));
}

TEST(Hints, SayThatAnotherTestIsAnother) {
  EXPECT_TRUE(Holds(Said("manova"), "there is no multivariate analysis of variance"));
  EXPECT_TRUE(Holds(Said("kruskal-wallis"), "is another test"));
}

TEST(Hints, LeadToMargins) {
  for (const char* word : {"equivalence", "tost", "non-inferiority"}) {
    EXPECT_TRUE(
        Holds(Said(word), "options of mean, paired-means, two-means, crossover, proportion and two-proportions"))
        << word;
  }
  EXPECT_TRUE(Holds(Said("crossover --total 24"), "--n gives the size of each sequence"));
  EXPECT_TRUE(Holds(Said("crossover --tost"), "--equivalence LOWER,UPPER"));
}

TEST(Hints, NameTheOptionThatTheTestHas) {
  EXPECT_TRUE(Holds(Said("two-means --total 80"), "--n gives the size of each group"));
  EXPECT_TRUE(Holds(Said("pearson --total 80"), "--n is the total sample size here"));
  EXPECT_TRUE(Holds(Said("two-means --n1 40"), "--n N1,N2"));
  EXPECT_TRUE(Holds(Said("paired-means --delta 5"), "--mean-difference"));
  EXPECT_TRUE(Holds(Said("two-proportions --delta 0.1"), "--risk-difference"));
  EXPECT_TRUE(Holds(Said("ordinal --or 2"), "--odds-ratio with --probabilities1"));
  EXPECT_TRUE(Holds(Said("mean --confidence 0.95"), "--alpha 0.05 for a confidence of 95%"));
  EXPECT_TRUE(Holds(Said("anova --d 0.5"), "--effect-f"));
  EXPECT_FALSE(Holds(Said("regression --d 0.5"), "--sd"));
}

TEST(Hints, ShortNamesOfEffectsAreUnderstood) {
  EXPECT_EQ(RunProgram(Words("two-means --d 0.5 --power 0.8")).out,
            RunProgram(Words("two-means --effect-d 0.5 --power 0.8")).out);
  EXPECT_EQ(RunProgram(Words("anova --f 0.25 --groups 3 --power 0.8")).out,
            RunProgram(Words("anova --effect-f 0.25 --groups 3 --power 0.8")).out);
  EXPECT_EQ(RunProgram(Words("pearson --rho 0.3 --power 0.8")).out,
            RunProgram(Words("pearson --r 0.3 --power 0.8")).out);
}

TEST(Hints, WriteANumberAsItWasMeant) {
  EXPECT_TRUE(Holds(Said("two-means --effect-d 0.5 --power 80"), "neither included: write 0.8."));
  EXPECT_TRUE(Holds(Said("two-means --effect-d 0.5 --power 80%"), ": write 0.8."));
  EXPECT_TRUE(Holds(Said("two-means --effect-d 0.5 --power 0,8"), ": write 0.8."));
  EXPECT_TRUE(Holds(Said("two-means --effect-d 0.5 --n 1,000"), ": write 1000."));
  EXPECT_TRUE(Holds(Said("pearson --r 0.3 --n 1,000"), ": write 1000."));
  EXPECT_FALSE(Holds(Said("anova --sd -3"), "write"));
}

TEST(Hints, OfEffectSizesTellWhichOptionIsMeant) {
  EXPECT_TRUE(Holds(Said("effect --f 5 --df 2,57"), "the F statistic is --f-statistic, Cohen's f is --effect-f"));
  EXPECT_TRUE(Holds(Said("effect --d 0.5 --n1 20"), "--n N1,N2"));
  EXPECT_TRUE(Holds(Said("effect --d 0.5 --alpha 0.1"), "--confidence 0.95"));
  EXPECT_TRUE(Holds(Said("effect --p 0.03"), "a p-value is no effect size"));
  EXPECT_TRUE(Holds(Said("effect --hedge-g 0.5 --n 20"), "did you mean --hedges-g?"));
  EXPECT_TRUE(Holds(Said("effects --d 0.5"), "did you mean effect?"));
  EXPECT_TRUE(Holds(Said("effect-size --d 0.5"), "effect sizes are converted by effect"));
  EXPECT_EQ(RunProgram(Words("effect --F 5 --df 2,57")).out, RunProgram(Words("effect --f-statistic 5 --df 2,57")).out);
}

// An option that a hint names must be one of the test's.
TEST(Hints, NameOnlyOptionsThatThereAre) {
  const std::regex option("--[a-z0-9-]+");
  const char* const typed[] = {
      "--total", "--n1",  "--delta", "--difference", "--effect", "--d",   "--f",    "--p",     "--p0",        "--mu",
      "--k",     "--rr",  "--or",    "--sigma",      "--beta",   "--std", "--h",    "--yates", "--level",     "--width",
      "--alpha", "--df1", "--mean1", "--sd2",        "--r1",     "--r2",  "--eta2", "--rd",    "--conf-level"};
  int hints = 0;
  std::vector<planner::Test> all = planner::Tests();
  all.push_back(planner::EffectSizes().inputs);
  for (const planner::Test& test : all) {
    for (const char* word : typed) {
      const std::string hint = HintForOption(test, word);
      for (std::sregex_iterator match(hint.begin(), hint.end(), option), end; match != end; ++match) {
        EXPECT_TRUE(planner::FindParameter(test, match->str().substr(2))) << test.name << ' ' << word << ": " << hint;
        ++hints;
      }
    }
  }
  EXPECT_GT(hints, 50);
}

}  // namespace
