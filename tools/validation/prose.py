"""The sentences of the page of validation."""

HEAD = """# Validation

Does a study reject as often as its power says? For every test studies were drawn and tested as their authors would test
them, and the share that rejects was held against the power. Nothing of the formula of a power goes into these studies:
the data are drawn from their distributions, the statistic is computed from the data, and it is compared with the critical
value of the test or with an exact p-value. The powers are those that the C interface answers, the same that the
program, Python, R and the planner page give. `make validate` does all of it and writes this page. It fails where a power
is not what its test does.

"""

READING = """## How to read the tables

A design stands in the words of the program: `kelpower {example}`.

**Exact powers** are claimed to be those of the test itself. Their table has the power, the share of the drawn studies
that rejected, and the difference in standard errors of that share. Such differences are due to chance: two of three are
below 1, one of 22 is beyond 2, one of 370 beyond 3. The page is refused if one is beyond {most:g}. Where the data are
counts, the probabilities of all outcomes that the test rejects are summed besides. This sum must agree with the power
within {rounding:g}, and the table has what is left.

**Approximations** are powers for large samples, or of another statistic than the one that is computed. Their test rejects
somewhat more or less often, and nothing is wrong with the program when it does. The table has the power, the probability
that the test rejects, and the difference of the power from it. That probability is counted over all outcomes or, where
that would be too many, drawn, with its standard error in parentheses. Each design states a bound; the page is refused
when the difference is beyond it, and also when the bound is more than {slack:g} too wide, so that bounds tell the size.
A bound holds for its design. Smaller samples are further off, larger ones less.

**Published values** are powers and sizes that books, papers and other programs print. What we answer agrees to their last
digit.
"""

# What is approximated, by test.
APPROXIMATED = {
    "ancova": "With `--approximate` the groups do not differ in the covariates; in the drawn studies they do, by chance.",
    "repeated-measures": "With an epsilon below 1 the corrected F test is taken as noncentral F. The variances of the linear "
                         "and the quadratic contrast were drawn as unequal as epsilon says.",
    "two-means": "Each study of Welch's test estimates its degrees of freedom. The power takes those of the standard "
                 "deviations expected.",
    "mann-whitney": "The power is normal, or that of a t test. The test is exact, and its level is below the one asked "
                    "for. A probability of superiority was drawn as a shift of normal values.",
    "signed-rank": "The power is normal, or that of a t test. The test is exact, and its level is below the one asked for.",
    "ordinal": "The power is normal. The test is that of ranks with the variance that ties leave, without a correction for "
               "continuity.",
    "proportion": "The z test takes the normal distribution for the binomial one. Counts are whole, so that its level is "
                  "another than the one asked for, and the power goes with it.",
    "two-proportions": "The powers for large samples take normal or t distributions for those of the tables. The tests are "
                       "those of the tables: a ratio or odds ratio by Farrington and Manning is the score test.",
    "paired-proportions": "The power for large samples takes the normal distribution for that of the counts.",
    "goodness-of-fit": "The power is that of noncentral chi-square, the distribution in large samples.",
    "contingency": "The power is that of noncentral chi-square, the distribution in large samples.",
    "pearson": "Fisher's z is taken as normal. Without `--adjust-bias` its mean is taken to be the z of the correlation; in "
               "small samples it is further from 0, so that the power is told too low.",
    "spearman": "Fisher's z of the rank correlation is taken as normal, with its standard error at the correlation "
                "expected; the studies take it at the one observed. The data are bivariate normal.",
    "partial": "Fisher's z is taken as normal, with its bias and variance to the second order. The variables that are "
               "partialled out were drawn, and both depend on them.",
    "two-correlations": "Fisher's z of both correlations is taken as normal, without its bias.",
    "dependent-correlations": "The difference of Fisher's z is taken as normal, with its standard error at the correlations "
                              "expected; the studies take it at those observed.",
}

NOT_COVERED = """## What it has found

A wrong source of data, and no wrong power. Counts were drawn by the binomial distribution of GNU's standard library at
first, and the studies of two designs of paired proportions were 3 and 3.5 standard errors off, and still 2 to 4 of them
with other seeds; the counted probabilities agreed with the exact power. That distribution is off by 1 % of a probability
where about ten are expected. Subjects are drawn one by one since.

## What is not validated here

Half-widths of intervals, searches for sizes and effects, loss of subjects and clusters. Widths and searches have tests of
their own ([reliability.md](reliability.md)). The numerical error of the powers is in [accuracy.md](accuracy.md), far
below what any number of studies could show. Data that are not as a test takes them to be, skewed values for a t test say,
were not drawn.

A contrast of repeated measurements is tested as the power takes it, against the error of all contrasts within subjects.
The critical value of Dunnett's test is the library's own. Its designs without any effect show that it keeps the level.
"""
