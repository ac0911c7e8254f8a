#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support.h"

// Tests of means against margins, as they are described.
namespace planner {
namespace {

Answer Asked(const std::string& arguments) {
  const Test& test = *FindTest(arguments.substr(0, arguments.find(' ')));
  return Solve(test, ValuesTyped(test, arguments));
}

double Power(const std::string& arguments) { return Asked(arguments).value; }

std::string Shows(const std::string& arguments) {
  for (const Entry& entry : MakeReport(Asked(arguments)).assumptions) {
    if (entry.name == "hypothesis") return entry.shown;
  }
  return "";
}

const char* const designs[] = {
    "mean --mean 1 --sd 4 --n 20",
    "paired-means --mean-difference 1 --sd-difference 4 --n 20",
    "paired-means --means 6,5 --sds 4,3 --correlation 0.3 --n 20",
    "two-means --means 6,5 --sd 4 --n 20,30",
    "two-means --mean-difference 1 --sd 4,6 --n 20,30",
    "two-means --mean-ratio 1.2 --cv 0.5 --n 20,30",
    "crossover --mean-difference 1 --sd 4 --n 10,9",
    "crossover --mean-ratio 1.2 --cv 0.5 --n 10,9",
};

bool IsRatio(const std::string& design) { return design.find("ratio") != std::string::npos; }

TEST(Margins, OfNoEffectAreTheOneSidedTest) {
  for (const std::string design : designs) {
    const std::string margin = IsRatio(design) ? " --margin 1" : " --margin 0";
    const double plain = Power(design + " --one-sided");
    EXPECT_NEAR(Power(design + margin + " --non-inferiority"), plain, 1e-14) << design;
    EXPECT_NEAR(Power(design + margin + " --superiority"), plain, 1e-14) << design;
  }
}

TEST(Margins, SayWhatIsToBeShown) {
  const std::string design = "two-means --mean-difference 0 --sd 4 --n 20 ";
  EXPECT_EQ(Shows(design + "--margin -2 --non-inferiority"), "the difference of the means is above -2");
  EXPECT_EQ(Shows(design + "--margin 2 --non-inferiority"), "the difference of the means is below 2");
  EXPECT_EQ(Shows(design + "--margin 2 --superiority"), "the difference of the means is above 2");
  EXPECT_EQ(Shows(design + "--margin -2 --superiority"), "the difference of the means is below -2");
  EXPECT_EQ(Shows(design + "--margin 0 --superiority"), "the difference of the means is above 0");
  EXPECT_EQ(Shows(design + "--equivalence -2,2"), "the difference of the means is between -2 and 2");
  const std::string ratio = "crossover --mean-ratio 1 --cv 0.4 --n 20 ";
  EXPECT_EQ(Shows(ratio + "--margin 0.8 --non-inferiority"), "the ratio of the means is above 0.8");
  EXPECT_EQ(Shows(ratio + "--margin 1.25 --non-inferiority"), "the ratio of the means is below 1.25");
  EXPECT_EQ(Shows(ratio + "--margin 1.25 --superiority"), "the ratio of the means is above 1.25");
  EXPECT_EQ(Shows(ratio), "");
}

TEST(Margins, MirrorEachOther) {
  const std::string spread = " --sd 4,6 --n 20,30";
  EXPECT_EQ(Power("two-means --mean-difference 0.5 --margin -2 --non-inferiority" + spread),
            Power("two-means --mean-difference -0.5 --margin 2 --non-inferiority" + spread));
  EXPECT_EQ(Power("two-means --mean-difference 0.5 --margin -2 --non-inferiority" + spread),
            Power("two-means --mean-difference -0.5 --margin 2 --non-inferiority" + spread));
  EXPECT_EQ(Power("two-means --mean-difference 0.5 --margin -2 --non-inferiority" + spread),
            Power("two-means --mean-difference 4.5 --margin 2 --superiority" + spread));
  EXPECT_NEAR(Power("crossover --mean-ratio 0.95 --cv 0.3 --n 12 --equivalence 0.8,1.25"),
              Power("crossover --mean-ratio 1.0526315789473684 --cv 0.3 --n 12 --equivalence 0.8,1.25"), 1e-14);
}

TEST(Margins, HaveTheFirstSizeThatReachesThePower) {
  for (const std::string arguments : {"two-means --mean-difference 0.5 --sd 4 --equivalence -2,2 --power ",
                                      "two-means --mean-difference 0 --sd 4 --margin -2 --non-inferiority --power ",
                                      "crossover --mean-ratio 0.95 --cv 0.4 --equivalence 0.8,1.25 --power "}) {
    for (const char* power : {"0.3", "0.8", "0.999"}) {
      const Answer found = Asked(arguments + power);
      EXPECT_EQ(found.sizes[0], found.sizes[1]);
      const std::string at = arguments.substr(0, arguments.find(" --power"));
      EXPECT_GE(found.value, std::stod(power));
      EXPECT_LT(Power(at + " --n " + std::to_string(static_cast<int>(found.sizes[0]) - 1)), std::stod(power));
    }
  }
}

TEST(Margins, AreFoundAsNumbersThatReachThePower) {
  const std::string groups = "two-means --sd 8 --n 60 --power 0.8 ";
  const auto difference = [](const Answer& answer) { return answer.inputs.Number("mean-difference"); };
  const double upper = difference(Asked(groups + "--equivalence -5,5"));
  EXPECT_GT(upper, 0);
  EXPECT_LT(upper, 5);
  EXPECT_NEAR(difference(Asked(groups + "--equivalence -5,5 --below")), -upper, 1e-9);
  EXPECT_GT(difference(Asked(groups + "--margin -2 --non-inferiority")), -2);
  EXPECT_LT(difference(Asked(groups + "--margin 2 --non-inferiority")), 2);
  EXPECT_GT(difference(Asked(groups + "--margin 2 --superiority")), 2);
  EXPECT_LT(difference(Asked(groups + "--margin -2 --superiority")), -2);

  const auto margin = [](const Answer& answer) { return answer.inputs.Number("margin"); };
  const std::string given = "two-means --sd 8 --n 60 --power 0.8 --mean-difference ";
  const double bad = margin(Asked(given + "0 --non-inferiority"));
  EXPECT_LT(bad, 0);
  EXPECT_NEAR(margin(Asked(given + "6 --superiority")), 6 + bad, 1e-9);
  EXPECT_NEAR(margin(Asked(given + "-6 --superiority")), -6 - bad, 1e-9);
  // Beyond no effect a margin would ask for the other direction.
  EXPECT_THROW(Asked(given + "4 --non-inferiority"), NoSolution);
  EXPECT_LT(margin(Asked("crossover --mean-ratio 1 --cv 0.3 --n 20 --power 0.8 --non-inferiority")), 1);
  EXPECT_GT(margin(Asked("crossover --mean-ratio 1 --cv 0.3 --n 20 --power 0.8 --non-inferiority")), 0);
}

TEST(Margins, OfASingleMeanMoveWithTheTestValue) {
  EXPECT_EQ(Power("mean --mean 101 --test-value 100 --sd 4 --n 20 --margin -2 --non-inferiority"),
            Power("mean --mean 1 --sd 4 --n 20 --margin -2 --non-inferiority"));
  const Answer found = Asked("mean --test-value 100 --sd 4 --n 20 --equivalence -5,5 --power 0.7");
  const Answer below = Asked("mean --test-value 100 --sd 4 --n 20 --equivalence -5,5 --power 0.7 --below");
  EXPECT_GT(found.inputs.Number("mean"), 100);
  EXPECT_NEAR(found.inputs.Number("mean") + below.inputs.Number("mean"), 200, 1e-9);
}

}  // namespace
}  // namespace planner
