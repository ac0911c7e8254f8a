#include "hints.h"

#include <algorithm>

namespace {

/// A word that can mean one test alone.
struct OtherName {
  std::string_view word;
  std::string_view test;
};

constexpr OtherName otherNames[] = {
    {"mcnemar", "paired-proportions"},
    {"mcnemar-test", "paired-proportions"},
    {"one-way-anova", "anova"},
    {"oneway", "anova"},
    {"two-way-anova", "factorial"},
    {"factorial-anova", "factorial"},
    {"three-way-anova", "factorial"},
    {"analysis-of-covariance", "ancova"},
    {"mixed-anova", "repeated-measures"},
    {"rm-anova", "repeated-measures"},
    {"repeated-measures-anova", "repeated-measures"},
    {"split-plot", "repeated-measures"},
    {"paired-t-test", "paired-means"},
    {"paired-ttest", "paired-means"},
    {"one-sample-t-test", "mean"},
    {"two-sample-t-test", "two-means"},
    {"independent-t-test", "two-means"},
    {"welch", "two-means"},
    {"binomial-test", "proportion"},
    {"one-proportion", "proportion"},
    {"pearson-correlation", "pearson"},
    {"spearman-correlation", "spearman"},
    {"partial-correlation", "partial"},
    {"multiple-regression", "regression"},
    {"cross-over", "crossover"},
    {"bioequivalence", "crossover"},
    {"rank-sum", "mann-whitney"},
    {"mann-whitney-u", "mann-whitney"},
    {"wilcoxon-mann-whitney", "mann-whitney"},
    {"wilcoxon-rank-sum", "mann-whitney"},
    {"wilcoxon-signed-rank", "signed-rank"},
    {"proportional-odds", "ordinal"},
    {"ordered-categories", "ordinal"},
    {"independence", "contingency"},
    {"crosstab", "contingency"},
    {"gof", "goodness-of-fit"},
    {"equality-of-variances", "two-variances"},
};

/// A word, and what is said to it.
struct Answer {
  std::string_view word;
  std::string_view text;
};

constexpr std::string_view tTests =
    "t tests are two-means for two groups, paired-means for pairs and mean for one sample";
constexpr std::string_view chiSquare =
    "chi-square tests are contingency, of tables and groups, goodness-of-fit, of one variable, and variance; that of two "
    "groups and two categories is two-proportions too: its z test squared";
constexpr std::string_view varianceTests = "tests of variances are variance, of one, and two-variances";
constexpr std::string_view fisher = "Fisher's exact test is two-proportions with --method conditional";
constexpr std::string_view ranks =
    "tests of ranks are mann-whitney for two groups, ordinal for ordered categories, signed-rank for pairs or one sample, "
    "and spearman";
constexpr std::string_view correlations =
    "correlations are pearson, spearman and partial, and two of them two-correlations and dependent-correlations";
constexpr std::string_view survival =
    "there is no test of survival times; two-proportions at a fixed time is another test";

constexpr std::string_view margins =
    "non-inferiority, superiority by a margin and equivalence are options of mean, paired-means, two-means, crossover, "
    "proportion and two-proportions";

constexpr std::string_view effectSizes = "effect sizes are converted by effect";

constexpr Answer answersToTests[] = {
    {"t-test", tTests},
    {"ttest", tTests},
    {"t", tTests},
    {"student", tTests},
    {"fisher", fisher},
    {"fisher-test", fisher},
    {"fisher-exact", fisher},
    {"chi-square", chiSquare},
    {"chisquare", chiSquare},
    {"chi-squared", chiSquare},
    {"chisq", chiSquare},
    {"chi2", chiSquare},
    {"manova", "there is no multivariate analysis of variance; anova is another test, of one outcome"},
    {"interaction", "interactions are factorial, of crossed factors, and repeated-measures with --effect interaction"},
    {"correlation", correlations},
    {"r", correlations},
    {"kendall", "there is no test of Kendall's tau; spearman is another test, of Spearman's rho"},
    {"f-test", "F tests are anova, of group means, regression, of predictors, and two-variances"},
    {"variances", varianceTests},
    {"levene", varianceTests},
    {"bartlett", varianceTests},
    {"wilcoxon", ranks},
    {"rank", ranks},
    {"ranks", ranks},
    {"nonparametric", ranks},
    {"kruskal-wallis", "there is no test of ranks of several groups; mann-whitney is another test, of two of them"},
    {"logistic", "there is no logistic regression; two-proportions with --odds-ratio tests a predictor of two groups"},
    {"log-rank", survival},
    {"logrank", survival},
    {"survival", survival},
    {"binomial", "tests of proportions are proportion, two-proportions and paired-proportions"},
    {"proportions", "tests of proportions are proportion, two-proportions and paired-proportions"},
    {"means", "tests of means are mean, two-means, paired-means and anova"},
    {"z-test", "z tests are proportion and two-proportions; with a standard deviation that is known, mean is near"},
    {"effect-size", effectSizes},
    {"effect-sizes", effectSizes},
    {"convert", effectSizes},
    {"odds-ratio", effectSizes},
    {"equivalence", margins},
    {"tost", margins},
    {"non-inferiority", margins},
    {"noninferiority", margins},
    {"superiority", margins},
    {"help", "write kelpower --help, or kelpower TEST --help"},
};

/// What is said to an option where the test has an input.
struct OptionAnswer {
  std::string_view option;
  std::string_view input;
  std::string_view text;
};

constexpr std::string_view sizesOfGroups = "--n gives the size of each group, so divide the total among them";
constexpr std::string_view sizesOfSequences = "--n gives the size of each sequence, so divide the total among the two";
constexpr std::string_view sizesOfTwo = "give the sizes of the groups as --n N1,N2";
constexpr std::string_view oneSided = "tests are two-sided unless --one-sided is given";
constexpr std::string_view confidence = "give --alpha 0.05 for a confidence of 95%";
constexpr std::string_view level = "--alpha is the significance level";

// Of effect, which has inputs of many tests.
constexpr Answer answersOfEffect[] = {
    {"--f", "the F statistic is --f-statistic, Cohen's f is --effect-f"},
    {"--alpha", "give --confidence 0.95 for an alpha of 0.05"},
    {"--conf-level", "give --confidence"},
    {"--confidence-level", "give --confidence"},
    {"--n1", sizesOfTwo},
    {"--n2", sizesOfTwo},
    {"--total", "--n gives the sizes of the groups, or that of the one sample"},
    {"--df1", "give both degrees of freedom as --df DF1,DF2"},
    {"--df2", "give both degrees of freedom as --df DF1,DF2"},
    {"--mean1", "give both means as --means M1,M2"},
    {"--mean2", "give both means as --means M1,M2"},
    {"--sd1", "give both standard deviations as --sd SD1,SD2"},
    {"--sd2", "give both standard deviations as --sd SD1,SD2"},
    {"--r1", "give both correlations as --correlations R1,R2"},
    {"--r2", "the square of a correlation is --r-squared; two correlations are --correlations R1,R2"},
    {"--eta2", "give --eta-squared"},
    {"--or", "give --odds-ratio"},
    {"--rr", "give --risk-ratio with --proportion1"},
    {"--rd", "give --risk-difference with --proportion1"},
    {"--p", "a p-value is no effect size: give the statistic, as --t or --f-statistic"},
    {"--effect-size", "give --effect-d, --effect-f, --effect-f2, --effect-h or --effect-q"},
    {"--effect", "give --effect-d, --effect-f, --effect-f2, --effect-h or --effect-q"},
};

constexpr OptionAnswer answersToOptions[] = {
    {"--total", "ratio", sizesOfGroups},
    {"--total", "ratios", sizesOfGroups},
    {"--total", "mean-ratio", sizesOfSequences},
    {"--total", "n", "--n is the total sample size here"},
    {"--n-total", "ratio", sizesOfGroups},
    {"--n-total", "ratios", sizesOfGroups},
    {"--n-total", "mean-ratio", sizesOfSequences},
    {"--n-total", "n", "--n is the total sample size here"},
    {"--n1", "ratio", sizesOfTwo},
    {"--n1", "ratios", sizesOfTwo},
    {"--n1", "mean-ratio", sizesOfTwo},
    {"--n2", "mean-ratio", sizesOfTwo},
    {"--n2", "ratio", sizesOfTwo},
    {"--n2", "ratios", sizesOfTwo},
    {"--npergroup", "ratio", "--n N gives each group the size N"},
    {"--npergroup", "ratios", "--n N gives each group the size N"},
    {"--npergroup", "mean-ratio", "--n N gives each sequence the size N"},
    {"--noninferiority", "non-inferiority", "give --margin with --non-inferiority"},
    {"--limits", "equivalence", "give --equivalence LOWER,UPPER"},
    {"--tost", "equivalence", "give --equivalence LOWER,UPPER"},
    {"--theta0", "mean-ratio", "give --mean-ratio, or --mean-difference"},
    {"--delta", "mean-difference", "give --mean-difference"},
    {"--delta", "risk-difference", "give --risk-difference with --proportion1"},
    {"--delta", "test-value",
     "give --mean and --test-value, or --effect-d for their difference in standard deviations"},
    {"--delta", "means", "give --means"},
    {"--diff", "mean-difference", "give --mean-difference"},
    {"--diff", "risk-difference", "give --risk-difference with --proportion1"},
    {"--difference", "mean-difference", "give --mean-difference"},
    {"--difference", "risk-difference", "give --risk-difference with --proportion1"},
    {"--effect", "effect-d", "give --effect-d"},
    {"--effect", "eta-squared", "give --effect-f or --eta-squared"},
    {"--effect", "effect-f", "give --effect-f"},
    {"--effect", "effect-f2", "give --effect-f2 or --r-squared"},
    {"--effect-size", "effect-d", "give --effect-d"},
    {"--effect-size", "eta-squared", "give --effect-f or --eta-squared"},
    {"--effect-size", "effect-f", "give --effect-f"},
    {"--effect-size", "effect-f2", "give --effect-f2 or --r-squared"},
    {"--d", "effect-f", "the effect size of several groups is --effect-f"},
    {"--f", "effect-d", "the effect size here is --effect-d"},
    {"--f", "effect-f2", "the effect size here is --effect-f2, the square of f"},
    {"--h", "risk-difference", "give the proportions themselves with --proportions"},
    {"--w", "risk-difference", "give the proportions themselves with --proportions"},
    {"--p", "proportions", "give --proportions P1,P2"},
    {"--p", "proportion", "give --proportion and --null"},
    {"--p1", "proportion1", "give --proportion1"},
    {"--p2", "proportion2", "give --proportion2"},
    {"--p0", "null", "give --null"},
    {"--mu", "test-value", "give --mean, and --test-value for the mean under the null hypothesis"},
    {"--null-mean", "test-value", "give --test-value"},
    {"--k", "groups", "give --groups"},
    {"--rho", "epsilon", "give --correlation"},
    {"--visits", "measurements", "give --measurements"},
    {"--cells", "levels", "give the levels of the factors with --levels"},
    {"--rr", "risk-ratio", "give --risk-ratio with --proportion1"},
    {"--or", "probabilities1", "give --odds-ratio with --probabilities1"},
    {"--or", "odds-ratio", "give --odds-ratio with --proportion1"},
    {"--probabilities", "probabilities1", "give --probabilities1, and --probabilities2 or --odds-ratio"},
    {"--proportions", "probabilities1", "give --probabilities1, and --probabilities2 or --odds-ratio"},
    {"--auc", "superiority", "give --superiority"},
    {"--p", "superiority", "give --superiority"},
    {"--distribution", "parent", "give --parent"},
    {"--variance", "sd", "--sd is the standard deviation, the root of the variance"},
    {"--sigma", "sd", "give --sd"},
    {"--std", "sd", "give --sd"},
    {"--allocation", "ratio", "give --ratio, the second size over the first"},
    {"--allocation", "ratios", "give --ratios"},
    {"--confidence", "alpha", confidence},
    {"--conf-level", "alpha", confidence},
    {"--confidence-level", "alpha", confidence},
    {"--level", "alpha", level},
    {"--sig-level", "alpha", level},
    {"--significance", "alpha", level},
    {"--beta", "power", "--power is 1 minus beta"},
    {"--sides", "one-sided", oneSided},
    {"--tails", "one-sided", oneSided},
    {"--alternative", "one-sided", oneSided},
    {"--two-sided", "one-sided", oneSided},
    {"--one-tailed", "one-sided", "give --one-sided"},
    {"--welch", "mean-difference", "--sd S1,S2 with two standard deviations that differ is Welch's test"},
    {"--unequal-variances", "mean-difference", "--sd S1,S2 with two standard deviations that differ is Welch's test"},
    {"--paired", "ratio", "paired measurements are another test: paired-means or paired-proportions"},
    {"--yates", "correction", "give --correction"},
    {"--pooled", "unpooled", "the standard error is pooled unless --unpooled is given"},
    {"--fisher", "method", "Fisher's test is --method conditional"},
    {"--width", "half-width", "--half-width is half of the width"},
    {"--margin", "half-width", "give --half-width"},
    {"--precision", "half-width", "give --half-width"},
};

}  // namespace

std::vector<std::string> OtherNamesOf(std::string_view test) {
  std::vector<std::string> names;
  for (const auto& [word, meant] : otherNames) {
    if (meant == test) names.emplace_back(word);
  }
  return names;
}

std::string HintForTest(std::string_view word) {
  const auto* found = std::find_if(std::begin(answersToTests), std::end(answersToTests),
                                   [&](const Answer& answer) { return answer.word == word; });
  return found == std::end(answersToTests) ? "" : std::string(found->text);
}

std::string HintForOption(const planner::Test& test, std::string_view option) {
  if (test.name == "effect") {
    for (const auto& [word, text] : answersOfEffect) {
      if (word == option) return std::string(text);
    }
  }
  for (const auto& [word, input, text] : answersToOptions) {
    if (word == option && planner::FindParameter(test, input)) return std::string(text);
  }
  return "";
}
