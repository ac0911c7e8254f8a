"""One function for each test. Written by tools/python/write.py from the descriptions of the tests."""

# ruff: noqa: E501
from __future__ import annotations

from typing import Any

from ._ask import asked, question

__all__ = ["ancova", "anova", "contingency", "contrast", "crossover", "dependent_correlations", "dunnett", "factorial", "goodness_of_fit", "mann_whitney", "mean", "ordinal", "paired_means", "paired_proportions", "pairwise", "partial", "pearson", "proportion", "regression", "repeated_measures", "signed_rank", "spearman", "tukey", "two_correlations", "two_means", "two_proportions", "two_variances", "variance"]


@question("anova")
def anova(
    *,
    means: Any = None,
    sd: Any = None,
    effect_f: Any = None,
    eta_squared: Any = None,
    n: Any = None,
    ratios: Any = None,
    groups: Any = None,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """One-way analysis of variance: overall F test.

    Tests whether the means of several independent groups are all equal.

    Not for several factors, see factorial; nor with covariates, see ancova; nor for repeated measures, see repeated-
    measures; nor for a single comparison of groups, see contrast and pairwise.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    means : array_like, optional
        Mean expected in each group. A list like 1,2,3, each entry a number.
    sd : array_like of float, optional
        Standard deviation within the groups. A number above 0.
    effect_f : array_like of float, optional
        Standard deviation of the group means over that within the groups. A number from 0 to 1000000.
    eta_squared : array_like of float, optional
        Proportion of variance explained by the groups. A number of at least 0 and below 1.
    n : array_like, optional
        Observations in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratios : array_like, optional
        Shares of the groups in the sizes to find, on any scale; default equal. A number from 0.001 to 1000, or a list
        of such, one for each group.
    groups : array_like of float, optional
        Number of groups, where no list tells it. A whole number from 2 to 10000.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_f", "eta_squared", "sd", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_f`` (effect size f); ``eta_squared`` (eta squared); ``level`` (level of each
        comparison); ``total`` (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each
        group); ``enrol_total`` (to enrol in total); ``half_width`` (half-width).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 8, with the noncentral
       F distribution.
    .. [2] Hahn and Meeker (1991), Statistical Intervals, section 4.2, with the error of the model.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.anova(means=[10, 12, 15], n=[20, 20, 20], sd=6).power, 4)
    0.6332
    >>> kelpower.anova(means=[10, 12, 15], power=0.9, sd=6).n
    (37, 37, 37)
    >>> kelpower.anova(effect_f=0.25, power=0.8, ratios=[2, 1, 1]).n
    (79, 40, 40)
    >>> round(kelpower.anova(groups=3, interval=True, n=20, sd=6).half_width, 4)
    1.5511
    >>> kelpower.anova(groups=3, half_width=1.5, sd=6).n
    (22, 22, 22)

    """
    return asked("anova", locals())


@question("contrast")
def contrast(
    *,
    coefficients: Any = None,
    means: Any = None,
    sd: Any = None,
    effect_d: Any = None,
    n: Any = None,
    ratios: Any = None,
    one_sided: Any = False,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    assurance: Any = None,
    solve: Any = None,
) -> Any:
    """One-way analysis of variance: specified contrast.

    Tests whether a weighted sum of group means, with weights that sum to zero, is zero.

    Not for the question whether any means differ at all: see anova; all pairs of groups: see pairwise.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    coefficients : array_like, optional
        Weight of each group's mean; they sum to zero. A list like 1,2,3, each entry a number from -1000000 to 1000000.
    means : array_like, optional
        Mean expected in each group. A list like 1,2,3, each entry a number.
    sd : array_like of float, optional
        Standard deviation within the groups. A number above 0.
    effect_d : array_like of float, optional
        Contrast of the means over the standard deviation. A number from -1000000 to 1000000.
    n : array_like, optional
        Observations in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratios : array_like, optional
        Shares of the groups in the sizes to find, on any scale; default equal. A number from 0.001 to 1000, or a list
        of such, one for each group.
    one_sided : bool, default False
        Test in the direction of the contrast only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    assurance : array_like of float, optional
        Probability that the interval of the data is as narrow as `half_width` says. A number from 0.001 to 0.999999.
    solve : {"effect_d", "sd", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_d`` (standardized contrast d); ``level`` (level of each comparison); ``total``
        (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each group); ``enrol_total``
        (to enrol in total); ``half_width`` (half-width); ``assurance`` (assurance).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Maxwell and Delaney (2004), Designing Experiments and Analyzing Data, 2nd ed., chapters 4 and 5.
    .. [2] Maxwell and Delaney (2004), Designing Experiments and Analyzing Data, 2nd ed., chapters 4 and 5, with the
       noncentral F distribution, or t for one side.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.contrast(coefficients=[-0.5, -0.5, 1], means=[10, 12, 15], n=20, sd=6).power, 4)
    0.6676
    >>> kelpower.contrast(coefficients=[-0.5, -0.5, 1], means=[10, 12, 15], one_sided=True, power=0.9, sd=6).n
    (30, 30, 30)
    >>> kelpower.contrast(coefficients=[1, -1, 0], effect_d=0.5, power=0.8, ratios=[1, 1, 2]).n
    (64, 64, 127)
    >>> round(kelpower.contrast(coefficients=[-0.5, -0.5, 1], interval=True, n=[20, 20, 30], sd=6).half_width, 4)
    2.8925
    >>> kelpower.contrast(coefficients=[-0.5, -0.5, 1], half_width=2, sd=6).n
    (53, 53, 53)

    """
    return asked("contrast", locals())


@question("pairwise")
def pairwise(
    *,
    pair: Any = None,
    means: Any = None,
    sd: Any = None,
    effect_d: Any = None,
    n: Any = None,
    ratios: Any = None,
    groups: Any = None,
    adjust: Any = 'bonferroni',
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """One-way analysis of variance: pairwise difference.

    Tests whether two of the groups have equal means, at a level adjusted for all pairs of groups.

    Not for a single comparison that was planned beforehand: see contrast; two groups alone: see two-means.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    pair : array_like, optional
        Numbers of the two groups compared. Two numbers like 1,2, each a whole number from 1 to 10000.
    means : array_like, optional
        Mean expected in each group. A list like 1,2,3, each entry a number.
    sd : array_like of float, optional
        Standard deviation within the groups. A number above 0.
    effect_d : array_like of float, optional
        Difference of the two means over the standard deviation. A number from -1000000 to 1000000.
    n : array_like, optional
        Observations in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratios : array_like, optional
        Shares of the groups in the sizes to find, on any scale; default equal. A number from 0.001 to 1000, or a list
        of such, one for each group.
    groups : array_like of float, optional
        Number of groups, where no list tells it. A whole number from 2 to 10000.
    adjust : {"bonferroni", "sidak", "none"}, default 'bonferroni'
        Adjustment of the significance level for all pairs of groups. ``bonferroni``: with Bonferroni's adjustment for
        all pairs of groups; ``sidak``: with Sidak's adjustment for all pairs of groups; ``none``: without adjustment
        for other pairs of groups.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_d", "sd", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_d`` (standardized difference d); ``level_per_comparison`` (significance level of the
        comparison); ``total`` (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each
        group); ``enrol_total`` (to enrol in total); ``half_width`` (half-width).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Maxwell and Delaney (2004), Designing Experiments and Analyzing Data, 2nd ed., chapters 4 and 5.
    .. [2] Maxwell and Delaney (2004), Designing Experiments and Analyzing Data, 2nd ed., chapters 4 and 5, with the
       noncentral F distribution, or t for one side.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.pairwise(means=[10, 12, 15], n=20, pair=[1, 3], sd=6).power, 4)
    0.5694
    >>> kelpower.pairwise(adjust='sidak', means=[10, 12, 15], pair=[1, 3], power=0.9, sd=6).n
    (40, 40, 40)
    >>> round(kelpower.pairwise(groups=3, interval=True, n=20, pair=[1, 2], sd=6).half_width, 4)
    4.6802
    >>> kelpower.pairwise(adjust='none', groups=3, half_width=4, pair=[1, 2], sd=6).n
    (19, 19, 19)

    """
    return asked("pairwise", locals())


@question("tukey")
def tukey(
    *,
    pair: Any = None,
    means: Any = None,
    sd: Any = None,
    effect_d: Any = None,
    n: Any = None,
    ratios: Any = None,
    groups: Any = None,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """One-way analysis of variance: Tukey's test of all pairs.

    Tests which groups differ in their means, all pairs at one level for the whole family.

    Not for comparisons with a control alone: see dunnett; the question whether any means differ at all: see anova; a
    single comparison that was planned beforehand: see contrast.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    pair : array_like, optional
        Numbers of the two groups whose difference is to be found; without it, any two. Two numbers like 1,2, each a
        whole number from 1 to 10000.
    means : array_like, optional
        Mean expected in each group. A list like 1,2,3, each entry a number.
    sd : array_like of float, optional
        Standard deviation within the groups. A number above 0.
    effect_d : array_like of float, optional
        Difference of the pair's means over the standard deviation; without a pair, of the two means farthest apart,
        with the others midway. A number from -1000000 to 1000000.
    n : array_like, optional
        Observations in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratios : array_like, optional
        Shares of the groups in the sizes to find, on any scale; default equal. A number from 0.001 to 1000, or a list
        of such, one for each group.
    groups : array_like of float, optional
        Number of groups, where no list tells it. A whole number from 2 to 10000.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_d", "sd", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_d`` (standardized difference d); ``largest_difference`` (largest standardized
        difference); ``total`` (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each
        group); ``enrol_total`` (to enrol in total); ``half_width`` (half-width).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Tukey (1953), The problem of multiple comparisons; Kramer (1956), Extension of multiple range tests to group
       means with unequal numbers of replications, Biometrics 12.
    .. [2] Tukey (1953), The problem of multiple comparisons; Kramer (1956), Extension of multiple range tests to group
       means with unequal numbers of replications, Biometrics 12; Hartley (1942), The range in random samples,
       Biometrika 32, for the range.
    .. [3] Tukey (1953), The problem of multiple comparisons; Kramer (1956), Extension of multiple range tests to group
       means with unequal numbers of replications, Biometrics 12; with the noncentral t distribution.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.tukey(means=[10, 12, 15], n=20, sd=6).power, 4)
    0.6315
    >>> round(kelpower.tukey(means=[10, 12, 15], n=[20, 20, 30], pair=[1, 3], sd=6).power, 4)
    0.6874
    >>> kelpower.tukey(means=[10, 12, 15], power=0.8, sd=6).n
    (29, 29, 29)
    >>> kelpower.tukey(effect_d=0.5, groups=4, pair=[1, 2], power=0.9).n
    (120, 120, 120, 120)
    >>> round(kelpower.tukey(groups=3, interval=True, n=20, pair=[1, 2], sd=6).half_width, 4)
    4.5659
    >>> kelpower.tukey(groups=3, half_width=4, pair=[1, 2], sd=6).n
    (26, 26, 26)

    """
    return asked("tukey", locals())


@question("dunnett")
def dunnett(
    *,
    group: Any = None,
    all_comparisons: Any = False,
    means: Any = None,
    sd: Any = None,
    effect_d: Any = None,
    n: Any = None,
    ratios: Any = None,
    groups: Any = None,
    one_sided: Any = False,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """One-way analysis of variance: Dunnett's test of groups against a control.

    Tests which groups differ in their means from a control, at one level for all comparisons.

    Not for all pairs of groups: see tukey; a single comparison that was planned beforehand: see contrast; two groups
    alone: see two-means.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    group : array_like of float, optional
        Number of the group whose difference from the control is to be found, from 2 on. A whole number from 2 to 10000.
    all_comparisons : bool, default False
        The differences of all groups from the control are to be found.
    means : array_like, optional
        Mean expected in each group, the control's first. A list like 1,2,3, each entry a number.
    sd : array_like of float, optional
        Standard deviation within the groups. A number above 0.
    effect_d : array_like of float, optional
        Difference of each group's mean from the control's over the standard deviation. A number from -1000000 to
        1000000.
    n : array_like, optional
        Observations in each group, the control first. A whole number from 1 to 1000000000, or a list of such, one for
        each group.
    ratios : array_like, optional
        Shares of the groups in the sizes to find, the control first, on any scale; default equal. A number from 0.001
        to 1000, or a list of such, one for each group.
    groups : array_like of float, optional
        Number of groups, where no list tells it. A whole number from 2 to 10000.
    one_sided : bool, default False
        Test for means above the control's only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_d", "sd", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_d`` (standardized difference d); ``total`` (total sample size); ``power`` (power);
        ``n`` (group sizes); ``enrol`` (to enrol in each group); ``enrol_total`` (to enrol in total); ``half_width``
        (half-width).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Dunnett (1955), A multiple comparison procedure for comparing several treatments with a control, Journal of
       the American Statistical Association 50; (1964), New tables for multiple comparisons with a control, Biometrics
       20.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.dunnett(means=[10, 12, 15], n=20, sd=6).power, 4)
    0.6539
    >>> round(kelpower.dunnett(all_comparisons=True, means=[10, 13, 15], n=[30, 20, 20], one_sided=True, sd=6).power, 4)
    0.3799
    >>> kelpower.dunnett(means=[10, 12, 15], power=0.8, sd=6).n
    (28, 28, 28)
    >>> kelpower.dunnett(effect_d=0.6, group=2, groups=4, power=0.9, ratios=[2, 1, 1, 1]).n
    (113, 57, 57, 57)
    >>> round(kelpower.dunnett(group=2, groups=3, interval=True, n=20, sd=6).half_width, 4)
    4.3035
    >>> kelpower.dunnett(group=2, groups=3, half_width=4, sd=6).n
    (23, 23, 23)

    """
    return asked("dunnett", locals())


@question("factorial")
def factorial(
    *,
    levels: Any = None,
    term: Any = None,
    means: Any = None,
    sd: Any = None,
    effect_f: Any = None,
    eta_squared: Any = None,
    n: Any = None,
    ratios: Any = None,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """Factorial analysis of variance: F test of one effect (type III).

    Tests a main effect or an interaction of crossed factors.

    Not for factors that the same subjects go through, see repeated-measures; nor for a single comparison of cells, see
    contrast with the cells as groups.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    levels : array_like, optional
        Numbers of levels of the crossed factors: 2,3 makes 6 cells. A whole number from 2 to 1000, or a list of such.
    term : array_like, optional
        Factors of the effect to test: 1 for the first, 1,2 for an interaction. A whole number from 1 to 1000, or a list
        of such.
    means : array_like, optional
        Mean expected in each cell, row by row, with the last factor fastest. A list like 1,2,3, each entry a number.
    sd : array_like of float, optional
        Standard deviation within the cells. A number above 0.
    effect_f : array_like of float, optional
        Standard deviation of the group means over that within the groups. A number from 0 to 1000000.
    eta_squared : array_like of float, optional
        Variance of the effect over that and the variance within the cells. A number of at least 0 and below 1.
    n : array_like, optional
        Observations in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratios : array_like, optional
        Shares of the groups in the sizes to find, on any scale; default equal. A number from 0.001 to 1000, or a list
        of such, one for each group.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_f", "eta_squared", "sd", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_f`` (effect size f); ``eta_squared`` (partial eta squared); ``level`` (level of each
        comparison); ``total`` (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each
        group); ``enrol_total`` (to enrol in total).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Searle (1987), Linear Models for Unbalanced Data, chapters 4 and 9, and Cohen (1988), Statistical Power
       Analysis for the Behavioral Sciences, 2nd ed., chapter 8, with the noncentral F distribution.

    Examples
    --------
    >>> import kelpower
    >>> kelpower.factorial(effect_f=0.25, levels=[2, 3], power=0.8, term=[1, 2]).n
    (27, 27, 27, 27, 27, 27)
    >>> round(kelpower.factorial(levels=[2, 3], means=[10, 12, 15, 10, 11, 12], n=25, sd=4, term=[1, 2]).power, 4)
    0.3756
    >>> round(kelpower.factorial(levels=[2, 3], means=[10, 12, 15, 10, 11, 12], n=[20, 20, 20, 30, 30, 30], sd=4, term=1).power, 4)
    0.5107
    >>> kelpower.factorial(eta_squared=0.06, levels=[2, 2, 2], power=0.9, term=[1, 2, 3]).n
    (21, 21, 21, 21, 21, 21, 21, 21)

    """
    return asked("factorial", locals())


@question("ancova")
def ancova(
    *,
    means: Any = None,
    sd: Any = None,
    effect_f: Any = None,
    covariates: Any = 1,
    r_squared: Any = 0,
    n: Any = None,
    ratios: Any = None,
    groups: Any = None,
    approximate: Any = False,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """Analysis of covariance: F test of the adjusted group means.

    Tests whether the means of several groups are equal once covariates are accounted for.

    Not for covariates of different slopes in the groups, nor for repeated measures, see repeated-measures; without
    covariates see anova.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    means : array_like, optional
        Mean expected in each group at the same values of the covariates. A list like 1,2,3, each entry a number.
    sd : array_like of float, optional
        Standard deviation within the groups, before the covariates have explained any. A number above 0.
    effect_f : array_like of float, optional
        Standard deviation of the adjusted group means over sd. A number from 0 to 1000000.
    covariates : array_like of float, default 1
        Number of covariates. A whole number from 0 to 1000.
    r_squared : array_like of float, default 0
        Share of the variance within the groups that the covariates explain; 0 where sd is the residual one. A number of
        at least 0 and below 1.
    n : array_like, optional
        Observations in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratios : array_like, optional
        Shares of the groups in the sizes to find, on any scale; default equal. A number from 0.001 to 1000, or a list
        of such, one for each group.
    groups : array_like of float, optional
        Number of groups, where no list tells it. A whole number from 2 to 10000.
    approximate : bool, default False
        As if the groups did not differ in the covariates: the power is a little less.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_f", "sd", "r_squared", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_f`` (effect size f); ``eta_squared`` (partial eta squared); ``level`` (level of each
        comparison); ``total`` (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each
        group); ``enrol_total`` (to enrol in total).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., section 8.3.5.
    .. [2] Shieh (2020), Psychometrika 85:101-120, with the distribution of B for any number of groups: docs/ancova.md.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.ancova(means=[400, 450, 500], n=21, r_squared=0.3, sd=120).power, 4)
    0.8042
    >>> kelpower.ancova(means=[400, 450, 500], power=0.8, r_squared=0.3, sd=120).n
    (21, 21, 21)
    >>> kelpower.ancova(covariates=3, effect_f=0.25, groups=2, power=0.9, r_squared=0.4, ratios=[2, 1]).n
    (71, 36)
    >>> round(kelpower.ancova(approximate=True, covariates=2, effect_f=0.25, groups=3, n=60).power, 4)
    0.8546

    """
    return asked("ancova", locals())


@question("repeated-measures")
def repeated_measures(
    *,
    effect: Any = None,
    measurements: Any = None,
    means: Any = None,
    coefficients: Any = None,
    sd: Any = None,
    effect_f: Any = None,
    eta_squared: Any = None,
    f_of: Any = 'means',
    correlation: Any = None,
    epsilon: Any = 1,
    n: Any = None,
    ratios: Any = None,
    groups: Any = None,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """Repeated-measures analysis of variance: F test of one effect.

    Tests an effect between groups, within subjects, or the interaction of both, of repeated measures.

    Not for two measurements of one group, see paired-means; nor for groups alone, see anova; nor for subjects who miss
    measurements.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    effect : {"between", "within", "interaction"}, optional
        Effect to test. ``between``: effect between groups; ``within``: effect within subjects; ``interaction``:
        interaction of groups and measurements.
    measurements : array_like of float, optional
        Number of measurements of each subject. A whole number from 2 to 1000.
    means : array_like, optional
        Mean expected of each measurement, a row for each group. A list like 1,2,3, each entry a number.
    coefficients : array_like, optional
        In place of all differences of the measurements: one for each, with a sum of 0. A list like 1,2,3, each entry a
        number.
    sd : array_like of float, optional
        Standard deviation of one measurement within the groups. A number above 0.
    effect_f : array_like of float, optional
        Standard deviation of the effect over that which f-of says. A number from 0 to 1000000.
    eta_squared : array_like of float, optional
        F^2 / (1 + f^2) of the same f. A number of at least 0 and below 1.
    f_of : {"means", "sample", "cohen"}, default 'means'
        What the effect size is of: the means, a sample's analysis, or Cohen's f. ``cohen``: Cohen.
    correlation : array_like of float, optional
        Correlation of any two measurements of a subject. A number between -1 and 1, neither included.
    epsilon : array_like of float, default 1
        How equal the correlations are (Greenhouse and Geisser); 1 where they are equal. A number above 0 and of at most
        1.
    n : array_like, optional
        Subjects in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratios : array_like, optional
        Shares of the groups in the sizes to find, on any scale; default equal. A number from 0.001 to 1000, or a list
        of such, one for each group.
    groups : array_like of float, optional
        Number of groups; 1 where nothing tells it. A whole number from 1 to 10000.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_f", "eta_squared", "sd", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_f`` (effect size f of the means); ``level`` (level of each comparison); ``total``
        (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each group); ``enrol_total``
        (to enrol in total).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Faul, Erdfelder, Lang and Buchner (2007), Behavior Research Methods 39:175-191, with the noncentral F
       distribution.
    .. [2] Muller and Barton (1989), Journal of the American Statistical Association 84:549-555.

    Examples
    --------
    >>> import kelpower
    >>> kelpower.repeated_measures(correlation=0.5, effect='interaction', effect_f=0.25, groups=2, measurements=4, power=0.8).n
    (12, 12)
    >>> round(kelpower.repeated_measures(correlation=0.2, effect='within', means=[1.5, 2.5, 2, 0], measurements=4, n=83, sd=5).power, 4)
    0.9027
    >>> round(kelpower.repeated_measures(correlation=0.6, effect='interaction', epsilon=0.8, means=[10, 10, 10, 10, 11, 13], measurements=3, n=[30, 20], sd=4).power, 4)
    0.6736
    >>> kelpower.repeated_measures(coefficients=[1, 1, 1, -3], correlation=0.2, effect='within', means=[1.5, 2.5, 2, 0], measurements=4, power=0.9, sd=5).n
    (71,)
    >>> kelpower.repeated_measures(effect='within', eta_squared=0.06, f_of='sample', groups=2, measurements=3, power=0.9).n
    (52, 52)

    """
    return asked("repeated-measures", locals())


@question("mean")
def mean(
    *,
    mean: Any = None,
    test_value: Any = 0,
    sd: Any = None,
    effect_d: Any = None,
    n: Any = None,
    one_sided: Any = False,
    margin: Any = None,
    non_inferiority: Any = False,
    superiority: Any = False,
    equivalence: Any = None,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    population: Any = None,
    assurance: Any = None,
    effect_sd: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """One-sample t test of a mean.

    Tests whether the mean of a population is a fixed value.

    Not for two groups: see two-means; two measurements on the same units: see paired-means.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    mean : array_like of float, optional
        Mean expected in the population. A number.
    test_value : array_like of float, default 0
        Mean under the null hypothesis. A number.
    sd : array_like of float, optional
        Standard deviation in the population. A number above 0.
    effect_d : array_like of float, optional
        Difference of the mean from the test value over the standard deviation. A number from -1000000 to 1000000.
    n : array_like of float, optional
        Observations in the sample. A whole number from 2 to 1000000000.
    one_sided : bool, default False
        Test in the direction of the effect only.
    margin : array_like of float, optional
        Margin that the difference of the mean from the test value is to be beyond. A number.
    non_inferiority : bool, default False
        Show that one is not worse than the other by `margin`: below no effect, larger values are better.
    superiority : bool, default False
        Show that one is better than the other by `margin`: above no effect, larger values are better.
    equivalence : array_like, optional
        Lower and upper limit that the difference of the mean from the test value is to be between. Two numbers like
        52,47.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    population : array_like of float, optional
        Size of the population that the sample is drawn from. A whole number from 2 to 1000000000000000.
    assurance : array_like of float, optional
        Probability that the interval of the data is as narrow as `half_width` says. A number from 0.001 to 0.999999.
    effect_sd : array_like of float, optional
        Standard deviation of a normal uncertainty about the effect, in the unit of `mean`, or of `effect_d`. A number
        above 0.
    solve : {"effect_d", "mean", "sd", "test_value", "margin", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_d`` (effect size d); ``level`` (level of each comparison); ``expected_power``
        (expected power); ``expected_power_limit`` (limit of the expected power); ``power`` (power); ``n`` (sample
        size); ``enrol`` (to enrol); ``half_width`` (half-width); ``assurance`` (assurance).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 2, with the noncentral
       t distribution.
    .. [2] Hahn and Meeker (1991), Statistical Intervals, section 4.2.
    .. [3] Schuirmann (1987), J. Pharmacokinet. Biopharm. 15, 657-680; exact by Owen (1965), Biometrika 52, 437-446, and
       Phillips (1990), J. Pharmacokinet. Biopharm. 18, 137-144; Cohen (1988), Statistical Power Analysis for the
       Behavioral Sciences, 2nd ed., chapter 2.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.mean(mean=104, n=40, sd=10, test_value=100).power, 4)
    0.694
    >>> kelpower.mean(mean=104, power=0.8, sd=10, test_value=100).n
    52
    >>> kelpower.mean(effect_d=0.4, one_sided=True, power=0.8).n
    41
    >>> kelpower.mean(alpha=0.025, margin=-3, mean=101, non_inferiority=True, power=0.8, sd=10, test_value=100).n
    52
    >>> round(kelpower.mean(equivalence=[-4, 4], mean=101, n=70, sd=10, test_value=100).power, 4)
    0.7934
    >>> round(kelpower.mean(interval=True, n=40, sd=10).half_width, 4)
    3.1982
    >>> kelpower.mean(half_width=2.5, sd=10).n
    64

    """
    return asked("mean", locals())


@question("paired-means")
def paired_means(
    *,
    means: Any = None,
    sds: Any = None,
    correlation: Any = None,
    mean_difference: Any = None,
    sd_difference: Any = None,
    effect_d: Any = None,
    n: Any = None,
    one_sided: Any = False,
    margin: Any = None,
    non_inferiority: Any = False,
    superiority: Any = False,
    equivalence: Any = None,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    assurance: Any = None,
    effect_sd: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Paired-samples t test of means.

    Tests whether two measurements on the same units have the same mean.

    Not for two groups of different units: see two-means; two treatments of each subject in two orders: see crossover.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    means : array_like, optional
        Means expected of the two measurements. Two numbers like 52,47.
    sds : array_like, optional
        Standard deviations of the two measurements. Two numbers like 52,47, each a number above 0.
    correlation : array_like of float, optional
        Correlation between the two measurements. A number from -1 to 1.
    mean_difference : array_like of float, optional
        Mean expected of the differences, in place of `means`. A number.
    sd_difference : array_like of float, optional
        In place of `sds` and `correlation`. A number above 0.
    effect_d : array_like of float, optional
        Mean of the differences over their standard deviation. A number from -1000000 to 1000000.
    n : array_like of float, optional
        Pairs of measurements. A whole number from 2 to 1000000000.
    one_sided : bool, default False
        Test in the direction of the effect only.
    margin : array_like of float, optional
        Margin that the mean difference is to be beyond. A number.
    non_inferiority : bool, default False
        Show that one is not worse than the other by `margin`: below no effect, larger values are better.
    superiority : bool, default False
        Show that one is better than the other by `margin`: above no effect, larger values are better.
    equivalence : array_like, optional
        Lower and upper limit that the mean difference is to be between. Two numbers like 52,47.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    assurance : array_like of float, optional
        Probability that the interval of the data is as narrow as `half_width` says. A number from 0.001 to 0.999999.
    effect_sd : array_like of float, optional
        Standard deviation of a normal uncertainty about the effect, in the unit of the mean difference, or of
        `effect_d`. A number above 0.
    solve : {"effect_d", "mean_difference", "sd_difference", "correlation", "margin", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_d`` (effect size d); ``level`` (level of each comparison); ``expected_power``
        (expected power); ``expected_power_limit`` (limit of the expected power); ``power`` (power); ``n`` (sample
        size); ``enrol`` (to enrol); ``half_width`` (half-width); ``assurance`` (assurance).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., section 2.3.5, with the
       noncentral t distribution.
    .. [2] Hahn and Meeker (1991), Statistical Intervals, section 4.2, of the differences.
    .. [3] Schuirmann (1987), J. Pharmacokinet. Biopharm. 15, 657-680; exact by Owen (1965), Biometrika 52, 437-446, and
       Phillips (1990), J. Pharmacokinet. Biopharm. 18, 137-144; Cohen (1988), Statistical Power Analysis for the
       Behavioral Sciences, 2nd ed., section 2.3.5.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.paired_means(correlation=0.6, means=[25, 21], n=30, sds=[8, 7]).power, 4)
    0.8787
    >>> kelpower.paired_means(correlation=0.6, means=[25, 21], one_sided=True, power=0.9, sds=[8, 7]).n
    26
    >>> kelpower.paired_means(mean_difference=4, power=0.9, sd_difference=8).n
    44
    >>> kelpower.paired_means(margin=3, mean_difference=0, non_inferiority=True, power=0.8, sd_difference=8).n
    46
    >>> round(kelpower.paired_means(correlation=0.6, equivalence=[-3, 3], means=[25, 25], n=50, sds=[8, 7]).power, 4)
    0.8518
    >>> round(kelpower.paired_means(correlation=0.6, interval=True, n=30, sds=[8, 7]).half_width, 4)
    2.5271
    >>> kelpower.paired_means(correlation=0.6, half_width=2, sds=[8, 7]).n
    47

    """
    return asked("paired-means", locals())


@question("two-means")
def two_means(
    *,
    means: Any = None,
    mean_difference: Any = None,
    sd: Any = None,
    effect_d: Any = None,
    mean_ratio: Any = None,
    cv: Any = None,
    n: Any = None,
    ratio: Any = 1,
    one_sided: Any = False,
    margin: Any = None,
    non_inferiority: Any = False,
    superiority: Any = False,
    equivalence: Any = None,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    cluster_size: Any = None,
    icc: Any = None,
    cluster_cv: Any = None,
    assurance: Any = None,
    effect_sd: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Independent-samples t test of two means.

    Tests whether two independent groups have the same mean: pooled when their standard deviations are equal, and in the
    form of Welch when they differ.

    Not for two measurements on the same units: see paired-means; two treatments of each subject in turn: see crossover;
    more than two groups: see anova.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    means : array_like, optional
        Mean expected in each group. A list like 1,2,3, each entry a number.
    mean_difference : array_like of float, optional
        First mean minus the second, in place of `means`. A number.
    sd : array_like, optional
        Standard deviation in each group. A number above 0, or a list of such, one for each group.
    effect_d : array_like of float, optional
        Difference of the means over the common standard deviation. A number from -1000000 to 1000000.
    mean_ratio : array_like of float, optional
        First mean over the second, of lognormal data, which are tested on the log scale. A number above 0.
    cv : array_like of float, optional
        Standard deviation over the mean of the data in each group, with `mean_ratio`. A number above 0 and of at most
        1000000.
    n : array_like, optional
        Observations in each group. A whole number from 2 to 1000000000, or a list of such, one for each group.
    ratio : array_like of float, default 1
        Size of the second group over that of the first, in the sizes to find. A number from 0.001 to 1000.
    one_sided : bool, default False
        Test in the direction of the effect only.
    margin : array_like of float, optional
        Margin that the difference or ratio of the means is to be beyond. A number.
    non_inferiority : bool, default False
        Show that one is not worse than the other by `margin`: below no effect, larger values are better.
    superiority : bool, default False
        Show that one is better than the other by `margin`: above no effect, larger values are better.
    equivalence : array_like, optional
        Lower and upper limit that the difference or ratio of the means is to be between. Two numbers like 52,47.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    cluster_size : array_like of float, optional
        Members of a cluster, on average, where whole clusters are assigned. A number from 1 to 1000000.
    icc : array_like of float, optional
        Correlation between the members of a cluster. A number from 0 to 1.
    cluster_cv : array_like of float, optional
        Standard deviation of the cluster sizes over their mean. A number from 0 to 100.
    assurance : array_like of float, optional
        Probability that the interval of the data is as narrow as `half_width` says. A number from 0.001 to 0.999999.
    effect_sd : array_like of float, optional
        Standard deviation of a normal uncertainty about the effect, in the unit of the means, or of `effect_d`. A
        number above 0.
    solve : {"effect_d", "mean_difference", "sd", "ratio", "mean_ratio", "cv", "margin", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_d`` (effect size d); ``level`` (level of each comparison); ``design_effect`` (design
        effect); ``total`` (total sample size); ``clusters`` (clusters in each group); ``expected_power`` (expected
        power); ``expected_power_limit`` (limit of the expected power); ``power`` (power); ``n`` (group sizes);
        ``enrol`` (to enrol in each group); ``enrol_total`` (to enrol in total); ``half_width`` (half-width);
        ``assurance`` (assurance).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Blackwelder (1982), Controlled Clinical Trials 3, 345-353, with the noncentral t distribution; Welch (1938),
       Biometrika 29, 350-362; Satterthwaite (1946), Biometrics Bulletin 2, 110-114; degrees of freedom at the standard
       deviations expected.
    .. [2] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., sections 2.2 and 2.3, with the
       noncentral t distribution.
    .. [3] Schuirmann (1987), J. Pharmacokinet. Biopharm. 15, 657-680; exact by Owen (1965), Biometrika 52, 437-446, and
       Phillips (1990), J. Pharmacokinet. Biopharm. 18, 137-144; Cohen (1988), Statistical Power Analysis for the
       Behavioral Sciences, 2nd ed., sections 2.2 and 2.3.
    .. [4] Welch (1938), Biometrika 29, 350-362; Satterthwaite (1946), Biometrics Bulletin 2, 110-114; degrees of
       freedom at the standard deviations expected.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.two_means(means=[52, 47], n=40, sd=[10, 14]).power, 4)
    0.4417
    >>> round(kelpower.two_means(effect_d=0.6, n=[90, 60], one_sided=True).power, 4)
    0.9737
    >>> kelpower.two_means(means=[52, 47], power=0.8, ratio=2, sd=[10, 14]).n
    (63, 126)
    >>> kelpower.two_means(effect_d=0.5, power=0.8).n
    (64, 64)
    >>> kelpower.two_means(cluster_size=20, dropout=0.15, effect_d=0.5, icc=0.05, power=0.8).n
    (125, 125)
    >>> round(kelpower.two_means(n=[35, 50], power=0.8, sd=10).mean_difference, 4)
    6.247
    >>> kelpower.two_means(alpha=0.025, margin=-2, mean_difference=0, non_inferiority=True, power=0.9, sd=6).n
    (191, 191)
    >>> round(kelpower.two_means(margin=2, means=[52, 47], n=90, sd=[10, 14], superiority=True).power, 4)
    0.501
    >>> kelpower.two_means(equivalence=[-2, 2], mean_difference=0.5, power=0.8, sd=4).n
    (91, 91)
    >>> round(kelpower.two_means(cv=0.4, equivalence=[0.8, 1.25], mean_ratio=0.95, n=80).power, 4)
    0.8756
    >>> round(kelpower.two_means(interval=True, n=40, sd=[10, 14]).half_width, 4)
    5.4247
    >>> kelpower.two_means(half_width=4, sd=[10, 14]).n
    (73, 73)

    """
    return asked("two-means", locals())


@question("crossover")
def crossover(
    *,
    mean_difference: Any = None,
    sd: Any = None,
    mean_ratio: Any = None,
    cv: Any = None,
    n: Any = None,
    one_sided: Any = False,
    margin: Any = None,
    non_inferiority: Any = False,
    superiority: Any = False,
    equivalence: Any = None,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """2x2 crossover: t test of two treatments.

    Tests whether two treatments have the same mean when every subject receives both, half of them in the reverse order;
    for lognormal data, such as those of bioequivalence, their ratio.

    Not for two groups that receive one treatment each: see two-means; two measurements without periods: see paired-
    means.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    mean_difference : array_like of float, optional
        Mean under the first treatment minus that under the second. A number.
    sd : array_like of float, optional
        Standard deviation within subjects. A number above 0.
    mean_ratio : array_like of float, optional
        First mean over the second, of lognormal data, which are tested on the log scale. A number above 0.
    cv : array_like of float, optional
        Standard deviation within subjects over the mean of the data, with `mean_ratio`. A number above 0 and of at most
        1000000.
    n : array_like, optional
        Subjects in each of the two sequences of treatments. A whole number from 1 to 1000000000, or a list of such, one
        for each group.
    one_sided : bool, default False
        Test in the direction of the effect only.
    margin : array_like of float, optional
        Margin that the difference or ratio of the means is to be beyond. A number.
    non_inferiority : bool, default False
        Show that one is not worse than the other by `margin`: below no effect, larger values are better.
    superiority : bool, default False
        Show that one is better than the other by `margin`: above no effect, larger values are better.
    equivalence : array_like, optional
        Lower and upper limit that the difference or ratio of the means is to be between. Two numbers like 52,47.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"mean_difference", "mean_ratio", "sd", "cv", "margin", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``total`` (total sample size); ``power`` (power); ``n``
        (group sizes); ``enrol`` (to enrol in each group); ``enrol_total`` (to enrol in total); ``half_width`` (half-
        width).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Blackwelder (1982), Controlled Clinical Trials 3, 345-353, with the noncentral t distribution; Jones and
       Kenward (2014), Design and Analysis of Cross-Over Trials, 3rd ed., chapter 2.
    .. [2] Jones and Kenward (2014), Design and Analysis of Cross-Over Trials, 3rd ed., chapter 2.
    .. [3] Schuirmann (1987), J. Pharmacokinet. Biopharm. 15, 657-680; exact by Owen (1965), Biometrika 52, 437-446, and
       Phillips (1990), J. Pharmacokinet. Biopharm. 18, 137-144; Jones and Kenward (2014), Design and Analysis of Cross-
       Over Trials, 3rd ed., chapter 2.

    Examples
    --------
    >>> import kelpower
    >>> kelpower.crossover(cv=0.25, equivalence=[0.8, 1.25], mean_ratio=0.95, power=0.8).n
    (14, 14)
    >>> round(kelpower.crossover(cv=0.25, equivalence=[0.8, 1.25], mean_ratio=0.95, n=12).power, 4)
    0.7391
    >>> round(kelpower.crossover(alpha=0.025, cv=0.25, margin=0.8, mean_ratio=0.95, n=[18, 17], non_inferiority=True).power, 4)
    0.8086
    >>> round(kelpower.crossover(mean_difference=3, n=20, sd=5).power, 4)
    0.7438
    >>> round(kelpower.crossover(equivalence=[0.8, 1.25], mean_ratio=1, n=12, power=0.9).cv, 4)
    0.2305
    >>> round(kelpower.crossover(interval=True, n=12, sd=5).half_width, 4)
    2.9934
    >>> kelpower.crossover(half_width=2, sd=5).n
    (26, 26)

    """
    return asked("crossover", locals())


@question("mann-whitney")
def mann_whitney(
    *,
    effect_d: Any = None,
    parent: Any = 'normal',
    superiority: Any = None,
    method: Any = None,
    n: Any = None,
    ratio: Any = 1,
    one_sided: Any = False,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Wilcoxon-Mann-Whitney test of two independent groups.

    Tests by ranks whether the values of one of two independent groups tend to be larger.

    Not for ordered categories or many ties: see ordinal; pairs or one sample: see signed-rank; a difference of means:
    see two-means.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    effect_d : array_like of float, optional
        Shift of the first group from the second over the standard deviation of the values. A number from -1000000 to
        1000000.
    parent : {"normal", "logistic", "laplace", "uniform", "minimum"}, default 'normal'
        Distribution of the values, which the effect shifts. ``laplace``: Laplace; ``minimum``: least favourable.
    superiority : array_like of float, optional
        Probability that a value of the first group exceeds one of the second; ties count half. A number from 0 to 1.
    method : {"are", "noether", "lehmann"}, optional
        Approximation of the power: by the asymptotic relative efficiency (of a shift unless given), by Noether's
        formula, or by Lehmann's. ``are``: A.R.E.; ``noether``: Noether; ``lehmann``: Lehmann.
    n : array_like, optional
        Observations in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratio : array_like of float, default 1
        Size of the second group over that of the first, in the sizes to find. A number from 0.001 to 1000.
    one_sided : bool, default False
        Test in the direction of the effect only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_d", "superiority", "ratio", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``superiority`` (probability of superiority); ``level`` (level of each comparison); ``total``
        (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each group); ``enrol_total``
        (to enrol in total).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Lehmann (1975), Nonparametrics: Statistical Methods Based on Ranks, section 2.3.
    .. [2] Lehmann (1975), Nonparametrics: Statistical Methods Based on Ranks, section 2.4; Al-Sunduqchi (1990),
       dissertation, University of Wyoming.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.mann_whitney(effect_d=0.5, n=50).power, 4)
    0.6765
    >>> kelpower.mann_whitney(effect_d=0.5, power=0.8).n
    (67, 67)
    >>> round(kelpower.mann_whitney(effect_d=0.375, method='lehmann', n=[134, 67], parent='laplace').power, 4)
    0.8472
    >>> kelpower.mann_whitney(one_sided=True, power=0.9, ratio=2, superiority=0.65).n
    (48, 96)
    >>> kelpower.mann_whitney(effect_d=0.5, method='noether', parent='logistic', power=0.8).n
    (61, 61)
    >>> round(kelpower.mann_whitney(n=[30, 40], power=0.8).effect_d, 4)
    0.7029

    """
    return asked("mann-whitney", locals())


@question("signed-rank")
def signed_rank(
    *,
    effect_d: Any = None,
    parent: Any = 'normal',
    positive_average: Any = None,
    method: Any = None,
    n: Any = None,
    one_sided: Any = False,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Wilcoxon signed-rank test of one sample or of pairs.

    Tests by signed ranks whether values, or the differences of pairs, are centred at 0.

    Not for two independent groups: see mann-whitney; differences that are not symmetric, of which a sign test of their
    directions is left: see proportion --null 0.5 --exact; a mean: see mean or paired-means.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    effect_d : array_like of float, optional
        Shift of the differences from 0 over their standard deviation. A number from -1000000 to 1000000.
    parent : {"normal", "logistic", "laplace", "uniform", "minimum"}, default 'normal'
        Distribution of the values, which the effect shifts. ``laplace``: Laplace; ``minimum``: least favourable.
    positive_average : array_like of float, optional
        Probability that the average of two of the differences is above 0. A number from 0 to 1.
    method : {"are", "noether", "lehmann"}, optional
        Approximation of the power: by the asymptotic relative efficiency (of a shift unless given), by Noether's
        formula, or by Lehmann's. ``are``: A.R.E.; ``noether``: Noether; ``lehmann``: Lehmann.
    n : array_like of float, optional
        Observations in the sample, or pairs. A whole number from 2 to 1000000000.
    one_sided : bool, default False
        Test in the direction of the effect only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_d", "positive_average", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``positive_average`` (probability of a positive average); ``level`` (level of each
        comparison); ``power`` (power); ``n`` (sample size); ``enrol`` (to enrol).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Lehmann (1975), Nonparametrics: Statistical Methods Based on Ranks, section 4.2.
    .. [2] Lehmann (1975), Nonparametrics: Statistical Methods Based on Ranks, section 4.3.
    .. [3] Noether (1987), Journal of the American Statistical Association 82, 645-647.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.signed_rank(effect_d=0.5, n=35).power, 4)
    0.8007
    >>> kelpower.signed_rank(effect_d=0.5, power=0.8).n
    35
    >>> round(kelpower.signed_rank(effect_d=0.4, method='lehmann', n=40, one_sided=True, parent='laplace').power, 4)
    0.8915
    >>> round(kelpower.signed_rank(n=20, positive_average=0.87).power, 4)
    0.8175
    >>> kelpower.signed_rank(positive_average=0.7, power=0.9).n
    88
    >>> round(kelpower.signed_rank(n=30, power=0.8).effect_d, 4)
    0.5425

    """
    return asked("signed-rank", locals())


@question("ordinal")
def ordinal(
    *,
    probabilities1: Any = None,
    probabilities2: Any = None,
    odds_ratio: Any = None,
    method: Any = 'obrien-castelloe',
    n: Any = None,
    ratio: Any = 1,
    one_sided: Any = False,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Wilcoxon-Mann-Whitney test of ordered categories.

    Tests by ranks whether one of two independent groups tends to higher categories of an ordinal outcome.

    Not for categories without an order; values without ties: see mann-whitney; two categories: see two-proportions.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    probabilities1 : array_like, optional
        Probability of each category in the first group, from the lowest category to the highest. A list like 1,2,3,
        each entry a number from 0 to 1.
    probabilities2 : array_like, optional
        The same in the second group. A list like 1,2,3, each entry a number from 0 to 1.
    odds_ratio : array_like of float, optional
        Odds of a higher category in the second group over those in the first, the same at each cut (proportional odds).
        A number above 0 and of at most 1000000.
    method : {"obrien-castelloe", "whitehead", "happ-bathke-brunner"}, default 'obrien-castelloe'
        Approximation of the power. ``obrien-castelloe``: O'Brien and Castelloe's formula; ``whitehead``: Whitehead's
        formula; ``happ-bathke-brunner``: Happ, Bathke and Brunner's formula.
    n : array_like, optional
        Observations in each group. A whole number from 1 to 1000000000, or a list of such, one for each group.
    ratio : array_like of float, default 1
        Size of the second group over that of the first, in the sizes to find. A number from 0.001 to 1000.
    one_sided : bool, default False
        Test in the direction of the effect only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"odds_ratio", "ratio", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``superiority`` (probability of superiority); ``level`` (level of each comparison); ``total``
        (total sample size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each group); ``enrol_total``
        (to enrol in total).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Happ, Bathke and Brunner (2019), Statistics in Medicine 38, 363-375.
    .. [2] O'Brien and Castelloe (2006), SUGI 31, paper 209.

    Examples
    --------
    >>> import kelpower
    >>> kelpower.ordinal(power=0.8, probabilities1=[0.1, 0.2, 0.4, 0.2, 0.1], probabilities2=[0.05, 0.1, 0.35, 0.3, 0.2]).n
    (73, 73)
    >>> kelpower.ordinal(method='whitehead', odds_ratio=2, power=0.9, probabilities1=[0.1, 0.2, 0.4, 0.2, 0.1]).n
    (143, 143)
    >>> round(kelpower.ordinal(n=50, one_sided=True, probabilities1=[0.01, 0.04, 0.2, 0.5, 0.2, 0.04, 0.01], probabilities2=[0.01, 0.03, 0.15, 0.35, 0.3, 0.1, 0.06]).power, 4)
    0.6512
    >>> round(kelpower.ordinal(method='happ-bathke-brunner', n=[120, 60], probabilities1=[0.3, 0.4, 0.2, 0.1], probabilities2=[0.2, 0.3, 0.3, 0.2]).power, 4)
    0.713
    >>> round(kelpower.ordinal(n=60, power=0.8, probabilities1=[0.1, 0.2, 0.4, 0.2, 0.1]).odds_ratio, 4)
    2.5368

    """
    return asked("ordinal", locals())


@question("variance")
def variance(
    *,
    variance_ratio: Any = None,
    sd: Any = None,
    null_sd: Any = None,
    n: Any = None,
    one_sided: Any = False,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Chi-square test of a variance.

    Tests whether the variance of a normal population is a fixed value.

    Not for populations that are not normal, however large the sample; the variances of two groups: see two-variances.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    variance_ratio : array_like of float, optional
        Variance expected over that under the null hypothesis. A number from 1e-06 to 1000000.
    sd : array_like of float, optional
        Standard deviation expected in the population. A number above 0.
    null_sd : array_like of float, optional
        Standard deviation under the null hypothesis. A number above 0.
    n : array_like of float, optional
        Observations in the sample. A whole number from 2 to 1000000000.
    one_sided : bool, default False
        Test in the direction of the effect only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"variance_ratio", "sd", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``power`` (power); ``variance_ratio`` (ratio of the
        variances); ``n`` (sample size); ``enrol`` (to enrol).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] NIST/SEMATECH e-Handbook of Statistical Methods, section 1.3.5.8; exact for normal populations, with half of
       the level in each tail of the two-sided test.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.variance(n=60, null_sd=10, sd=12).power, 4)
    0.5488
    >>> kelpower.variance(one_sided=True, power=0.8, variance_ratio=1.5).n
    74
    >>> kelpower.variance(null_sd=10, power=0.9, sd=8).n
    111
    >>> round(kelpower.variance(n=60, null_sd=10, power=0.8).sd, 4)
    12.8516

    """
    return asked("variance", locals())


@question("two-variances")
def two_variances(
    *,
    variance_ratio: Any = None,
    sd: Any = None,
    n: Any = None,
    ratio: Any = 1,
    one_sided: Any = False,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """F test of two variances.

    Tests whether two independent normal populations have the same variance.

    Not for populations that are not normal, however large the samples; one variance against a fixed value: see
    variance.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    variance_ratio : array_like of float, optional
        First variance over the second. A number from 1e-06 to 1000000.
    sd : array_like, optional
        Standard deviation in each group. A list like 1,2,3, each entry a number above 0.
    n : array_like, optional
        Observations in each group. A whole number from 2 to 1000000000, or a list of such, one for each group.
    ratio : array_like of float, default 1
        Size of the second group over that of the first, in the sizes to find. A number from 0.001 to 1000.
    one_sided : bool, default False
        Test in the direction of the effect only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"variance_ratio", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``total`` (total sample size); ``power`` (power);
        ``variance_ratio`` (ratio of the variances (first over second)); ``n`` (group sizes); ``enrol`` (to enrol in
        each group); ``enrol_total`` (to enrol in total).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] NIST/SEMATECH e-Handbook of Statistical Methods, section 1.3.5.9; exact for normal populations, with half of
       the level in each tail of the two-sided test.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.two_variances(n=40, sd=[12, 8]).power, 4)
    0.7052
    >>> kelpower.two_variances(power=0.8, variance_ratio=1.5).n
    (193, 193)
    >>> kelpower.two_variances(one_sided=True, power=0.9, ratio=2, variance_ratio=2).n
    (55, 110)
    >>> round(kelpower.two_variances(n=[40, 60], power=0.8).power, 4)
    0.8

    """
    return asked("two-variances", locals())


@question("proportion")
def proportion(
    *,
    proportion: Any = None,
    null: Any = None,
    n: Any = None,
    exact: Any = False,
    one_sided: Any = False,
    correction: Any = False,
    interval_method: Any = 'wilson',
    margin: Any = None,
    non_inferiority: Any = False,
    superiority: Any = False,
    equivalence: Any = None,
    margin_scale: Any = 'difference',
    standard_error: Any = 'limit',
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    population: Any = None,
    assurance: Any = None,
    solve: Any = None,
    below: Any = False,
    stable: Any = False,
) -> Any:
    """Test of one proportion.

    Tests whether a proportion differs from a given value.

    Not for two groups: see two-proportions; two measurements on the same subjects: see paired-proportions.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    proportion : array_like of float, optional
        Proportion expected. A number from 0 to 1.
    null : array_like of float, optional
        Proportion under the null hypothesis. A number between 0 and 1, neither included.
    n : array_like of float, optional
        Number of observations. A whole number from 1 to 1000000000.
    exact : bool, default False
        Exact binomial test in place of the normal approximation.
    one_sided : bool, default False
        Test in the direction of the proportion expected only.
    correction : bool, default False
        Correct the normal approximation for continuity.
    interval_method : {"wald", "adjusted-logit", "logit", "clopper-pearson", "jeffreys", "wilson", "agresti-coull"},
    default 'wilson'
        Confidence interval of the proportion. ``wald``: Wald; ``adjusted-logit``: adjusted logit; ``clopper-pearson``:
        Clopper-Pearson; ``jeffreys``: Jeffreys; ``wilson``: Wilson; ``agresti-coull``: Agresti-Coull.
    margin : array_like of float, optional
        Margin that the difference from the null proportion is to be beyond. A number.
    non_inferiority : bool, default False
        Show that one is not worse than the other by `margin`: below no effect, larger values are better.
    superiority : bool, default False
        Show that one is better than the other by `margin`: above no effect, larger values are better.
    equivalence : array_like, optional
        Lower and upper limit that the difference from the null proportion is to be between. Two numbers like 52,47.
    margin_scale : {"difference", "ratio", "odds-ratio"}, default 'difference'
        Whether margin and limits of equivalence are a difference, a ratio or an odds ratio. ``odds-ratio``: odds ratio.
    standard_error : {"limit", "observed"}, default 'limit'
        Where a z test with a margin takes its standard error. ``limit``: at the limit; ``observed``: at the proportion
        observed.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    population : array_like of float, optional
        Size of the population that the sample is drawn from. A whole number from 2 to 1000000000000000.
    assurance : array_like of float, optional
        Probability that the interval of the data is as narrow as `half_width` says. A number from 0.001 to 0.999999.
    solve : {"proportion", "null", "margin", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.
    stable : bool, default False
        Of an exact test: the size from which on all reach the power, in place of the first.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``power`` (power); ``rejects_to`` (rejects up to this
        count); ``rejects_from`` (rejects from this count); ``attained_level`` (significance level attained); ``n``
        (sample size); ``lasting_n`` (all larger sizes reach it from); ``enrol`` (to enrol); ``half_width`` (half-
        width); ``assurance`` (assurance); ``lower_limit`` (proportion to be above); ``upper_limit`` (proportion to be
        below); ``equivalent_from`` (equivalence from this count); ``equivalent_to`` (equivalence up to this count).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Chow, Shao, Wang and Lokhnygina (2018), Sample Size Calculations in Clinical Research, 3rd ed., section 4.1;
       each limit's test rejects at most alpha.
    .. [2] Clopper and Pearson (1934), Biometrika 26, 404-413.
    .. [3] Cohen (1988), chapter 6; each tail rejects at most alpha.
    .. [4] Fleiss, Levin and Paik (2003), Statistical Methods for Rates and Proportions, 3rd ed., section 2.5.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.proportion(below=True, n=60, null=0.5, power=0.8).proportion, 4)
    0.3227
    >>> round(kelpower.proportion(n=60, null=0.5, proportion=0.65).power, 4)
    0.6485
    >>> round(kelpower.proportion(exact=True, n=20, null=0.65, one_sided=True, proportion=0.8).power, 4)
    0.4114
    >>> kelpower.proportion(exact=True, null=0.8, power=0.8, proportion=0.65).n
    72
    >>> round(kelpower.proportion(interval=True, interval_method='clopper-pearson', n=40, proportion=0.2).half_width, 4)
    0.133
    >>> kelpower.proportion(half_width=0.07, interval_method='wald', proportion=0.4).n
    189
    >>> kelpower.proportion(alpha=0.025, margin=-0.1, non_inferiority=True, null=0.85, power=0.8, proportion=0.9).n
    54
    >>> round(kelpower.proportion(equivalence=[-0.1, 0.1], exact=True, n=500, null=0.6, proportion=0.6).power, 4)
    0.9965
    >>> kelpower.proportion(exact=True, margin=1.5, margin_scale='ratio', null=0.1, power=0.8, proportion=0.25, superiority=True).n
    101

    """
    return asked("proportion", locals())


@question("two-proportions")
def two_proportions(
    *,
    proportions: Any = None,
    proportion1: Any = None,
    proportion2: Any = None,
    risk_difference: Any = None,
    risk_ratio: Any = None,
    odds_ratio: Any = None,
    n: Any = None,
    ratio: Any = 1,
    method: Any = 'z',
    exact: Any = False,
    unpooled: Any = False,
    correction: Any = False,
    one_sided: Any = False,
    interval_method: Any = 'newcombe',
    margin: Any = None,
    non_inferiority: Any = False,
    superiority: Any = False,
    equivalence: Any = None,
    margin_scale: Any = 'difference',
    margin_method: Any = 'farrington-manning',
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    cluster_size: Any = None,
    icc: Any = None,
    cluster_cv: Any = None,
    solve: Any = None,
    below: Any = False,
    stable: Any = False,
) -> Any:
    """Test of two independent proportions.

    Tests whether two independent groups have the same proportion.

    Not for two measurements on the same subjects: see paired-proportions; more than two groups: see contingency.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    proportions : array_like, optional
        Proportion expected in each group. A list like 1,2,3, each entry a number between 0 and 1, neither included.
    proportion1 : array_like of float, optional
        Proportion expected in the first group, that of reference. A number between 0 and 1, neither included.
    proportion2 : array_like of float, optional
        Proportion expected in the second group. A number between 0 and 1, neither included.
    risk_difference : array_like of float, optional
        Second proportion minus the first. A number between -1 and 1, neither included.
    risk_ratio : array_like of float, optional
        Second proportion over the first. A number above 0.
    odds_ratio : array_like of float, optional
        Odds in the second group over those in the first. A number above 0.
    n : array_like, optional
        Observations in each group. A whole number from 2 to 1000000000, or a list of such, one for each group.
    ratio : array_like of float, default 1
        Size of the second group over that of the first, in the sizes to find. A number from 0.001 to 1000.
    method : {"z", "t", "likelihood-ratio", "arcsine", "conditional"}, default 'z'
        Test of the difference; conditional is always exact. ``z``: z test; ``t``: t test; ``likelihood-ratio``:
        likelihood-ratio test; ``arcsine``: arcsine test; ``conditional``: conditional (Fisher) test.
    exact : bool, default False
        Sum over all tables in place of the large-sample formula.
    unpooled : bool, default False
        Do not take the proportions (z) or the variances (t) to be equal in the standard error.
    correction : bool, default False
        Correct the z test or the interval for continuity.
    one_sided : bool, default False
        Test in the direction of the difference only.
    interval_method : {"wald", "agresti-caffo", "uniform-prior", "brown-li-jeffreys", "hauck-anderson", "newcombe"},
    default 'newcombe'
        Confidence interval of the difference. ``wald``: Wald; ``agresti-caffo``: Agresti-Caffo; ``brown-li-jeffreys``:
        Brown-Li-Jeffreys; ``hauck-anderson``: Hauck-Anderson; ``newcombe``: Newcombe.
    margin : array_like of float, optional
        Margin that the difference or ratio of the proportions (second group to first) is to be beyond. A number.
    non_inferiority : bool, default False
        Show that one is not worse than the other by `margin`: below no effect, larger values are better.
    superiority : bool, default False
        Show that one is better than the other by `margin`: above no effect, larger values are better.
    equivalence : array_like, optional
        Lower and upper limit that the difference or ratio of the proportions (second group to first) is to be between.
        Two numbers like 52,47.
    margin_scale : {"difference", "ratio", "odds-ratio"}, default 'difference'
        Whether margin and limits of equivalence are a difference, a ratio or an odds ratio. ``odds-ratio``: odds ratio.
    margin_method : {"farrington-manning", "miettinen-nurminen", "wald", "pooled"}, default 'farrington-manning'
        Standard error of a test with a margin; pooled is for comparison only. ``farrington-manning``: Farrington-
        Manning score test; ``miettinen-nurminen``: Miettinen-Nurminen score test; ``wald``: Wald (unpooled) z test;
        ``pooled``: pooled z test.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    cluster_size : array_like of float, optional
        Members of a cluster, on average, where whole clusters are assigned. A number from 1 to 1000000.
    icc : array_like of float, optional
        Correlation between the members of a cluster. A number from 0 to 1.
    cluster_cv : array_like of float, optional
        Standard deviation of the cluster sizes over their mean. A number from 0 to 100.
    solve : {"risk_difference", "risk_ratio", "odds_ratio", "ratio", "margin", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.
    stable : bool, default False
        Of an exact test: the size from which on all reach the power, in place of the first.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``risk_difference`` (risk difference (second minus first)); ``risk_ratio`` (risk ratio
        (second over first)); ``odds_ratio`` (odds ratio (second over first)); ``attained_level`` (level attained at the
        common proportion); ``level`` (level of each comparison); ``design_effect`` (design effect); ``total`` (total
        sample size); ``clusters`` (clusters in each group); ``power`` (power); ``n`` (group sizes); ``lasting_n`` (all
        larger sizes reach it from); ``enrol`` (to enrol in each group); ``enrol_total`` (to enrol in total);
        ``half_width`` (half-width); ``proportion2`` (second proportion); ``attained_at_margin`` (significance level
        attained).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Agresti (2013), Categorical Data Analysis, 3rd ed., section 3.5: binomial probabilities of the tables,
       rejected by the large-sample critical value.
    .. [2] Chan (1998), Statistics in Medicine 17, 1403-1413; Chan and Zhang (1999), Biometrics 55, 1202-1209.
    .. [3] D'Agostino, Chase and Belanger (1988), American Statistician 42, 198-202.
    .. [4] Farrington and Manning (1990), Statistics in Medicine 9, 1447-1454.
    .. [5] Fleiss, Levin and Paik (2003), Statistical Methods for Rates and Proportions, 3rd ed., chapter 4.
    .. [6] Newcombe (1998), Statistics in Medicine 17, 873-890, method 10.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.two_proportions(n=50, proportions=[0.5, 0.75]).power, 4)
    0.7402
    >>> round(kelpower.two_proportions(exact=True, method='likelihood-ratio', n=[40, 60], proportions=[0.8, 0.6]).power, 4)
    0.5828
    >>> kelpower.two_proportions(one_sided=True, power=0.8, proportions=[0.022, 0.001]).n
    (318, 318)
    >>> kelpower.two_proportions(method='conditional', power=0.8, proportions=[0.5, 0.75]).n
    (64, 64)
    >>> kelpower.two_proportions(method='arcsine', power=0.9, proportion1=0.3, ratio=2, risk_ratio=1.5).n
    (173, 346)
    >>> kelpower.two_proportions(correction=True, odds_ratio=0.5, power=0.8, proportion1=0.5, unpooled=True).n
    (146, 146)
    >>> round(kelpower.two_proportions(method='t', n=[50, 100], proportion1=0.5, risk_difference=-0.25).power, 4)
    0.8813
    >>> round(kelpower.two_proportions(interval=True, n=[70, 80], proportions=[0.8, 0.6]).half_width, 4)
    0.1407
    >>> kelpower.two_proportions(half_width=0.1, interval_method='wald', proportions=[0.8, 0.6]).n
    (154, 154)
    >>> kelpower.two_proportions(alpha=0.025, margin=-0.1, non_inferiority=True, power=0.8, proportions=[0.85, 0.85]).n
    (207, 207)
    >>> round(kelpower.two_proportions(margin=0.95, margin_scale='ratio', n=200, non_inferiority=True, proportion1=0.8, risk_ratio=1.1).power, 4)
    0.9551
    >>> kelpower.two_proportions(equivalence=[-0.1, 0.1], margin_method='wald', power=0.8, proportions=[0.5, 0.5]).n
    (429, 429)
    >>> round(kelpower.two_proportions(equivalence=[-0.2, 0.2], exact=True, n=[90, 110], proportions=[0.6, 0.65]).power, 4)
    0.6808

    """
    return asked("two-proportions", locals())


@question("paired-proportions")
def paired_proportions(
    *,
    p12: Any = None,
    p21: Any = None,
    proportion1: Any = None,
    proportion2: Any = None,
    correlation: Any = None,
    n: Any = None,
    exact: Any = False,
    one_sided: Any = False,
    correction: Any = False,
    interval_method: Any = 'wald',
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
    stable: Any = False,
) -> Any:
    """McNemar's test of two proportions measured on the same subjects.

    Tests whether two proportions measured on the same subjects differ.

    Not for two groups of different subjects: see two-proportions.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    p12 : array_like of float, optional
        Proportion of pairs with success first and failure second. A number from 0 to 1.
    p21 : array_like of float, optional
        Proportion of pairs with failure first and success second. A number from 0 to 1.
    proportion1 : array_like of float, optional
        Proportion of successes in the first measure. A number between 0 and 1, neither included.
    proportion2 : array_like of float, optional
        Proportion of successes in the second measure. A number between 0 and 1, neither included.
    correlation : array_like of float, optional
        Correlation of the two outcomes of a pair. A number from -1 to 1.
    n : array_like of float, optional
        Number of pairs. A whole number from 2 to 1000000000.
    exact : bool, default False
        Exact test of the discordant pairs in place of the large-sample test.
    one_sided : bool, default False
        Test in the direction of the difference only.
    correction : bool, default False
        Correct the interval for continuity.
    interval_method : {"wald", "agresti-min", "bonett-price"}, default 'wald'
        Confidence interval of the difference. ``wald``: Wald; ``agresti-min``: Agresti-Min; ``bonett-price``: Bonett-
        Price.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"p12", "p21", "proportion1", "proportion2", "correlation", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.
    stable : bool, default False
        Of an exact test: the size from which on all reach the power, in place of the first.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``power`` (power); ``attained_level`` (significance
        level attained); ``p12`` (first kind of discordant pairs); ``p21`` (second kind of discordant pairs); ``n``
        (sample size); ``lasting_n`` (all larger sizes reach it from); ``enrol`` (to enrol); ``half_width`` (half-
        width).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Agresti (2013), Categorical Data Analysis, 3rd ed., section 11.1.
    .. [2] Miettinen (1968), Biometrics 24, 339-352; each tail of the sign test rejects at most alpha.
    .. [3] Miettinen (1968), Biometrics 24, 339-352; each tail of the sign test rejects at most alpha / 2.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.paired_proportions(exact=True, n=50, one_sided=True, p12=0.08, p21=0.32).power, 4)
    0.8394
    >>> round(kelpower.paired_proportions(correlation=0.3, exact=True, n=60, proportion1=0.6, proportion2=0.4).power, 4)
    0.6692
    >>> kelpower.paired_proportions(one_sided=True, p12=0.08, p21=0.32, power=0.8).n
    41
    >>> round(kelpower.paired_proportions(interval=True, n=100, p12=0.3, p21=0.1).half_width, 4)
    0.1176
    >>> kelpower.paired_proportions(half_width=0.1, interval_method='bonett-price', p12=0.3, p21=0.1).n
    140

    """
    return asked("paired-proportions", locals())


@question("goodness-of-fit")
def goodness_of_fit(
    *,
    proportions: Any = None,
    null_proportions: Any = None,
    estimated: Any = 0,
    likelihood_ratio: Any = False,
    effect_w: Any = None,
    df: Any = None,
    n: Any = None,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """Chi-square test of goodness of fit.

    Tests whether the categories of a variable have fixed proportions.

    Not for two variables or groups: see contingency; two categories and few observations: see proportion with its exact
    test.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    proportions : array_like, optional
        Proportions expected in the categories, on any scale. A list like 1,2,3, each entry a number from 0 to
        1000000000000.
    null_proportions : array_like, optional
        Proportions under the null hypothesis, on any scale; default equal. A list like 1,2,3, each entry a number above
        0 and of at most 1000000000000.
    estimated : array_like of float, default 0
        Parameters of the null proportions that the data will estimate. A whole number from 0 to 1000.
    likelihood_ratio : bool, default False
        The likelihood-ratio test in place of Pearson's; both differ for large effects only.
    effect_w : array_like of float, optional
        Root of the sum of (expected - null)^2 / null over the cells. A number from 0 to 1000.
    df : array_like of float, optional
        Degrees of freedom of chi-square. A whole number from 1 to 1000000.
    n : array_like of float, optional
        Observations in total. A whole number from 2 to 1000000000.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_w", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_w`` (effect size w); ``level`` (level of each comparison); ``power`` (power); ``n``
        (sample size); ``enrol`` (to enrol).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 7; Guenther (1977),
       The American Statistician 31, 83-85.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.goodness_of_fit(n=41, proportions=[0.28, 0.72]).power, 4)
    0.8044
    >>> kelpower.goodness_of_fit(null_proportions=[9, 3, 3, 1], power=0.9, proportions=[0.5, 0.25, 0.15, 0.1]).n
    246
    >>> kelpower.goodness_of_fit(df=20, effect_w=0.1, power=0.8).n
    2097
    >>> kelpower.goodness_of_fit(likelihood_ratio=True, power=0.8, proportions=[0.5, 0.3, 0.2]).n
    70

    """
    return asked("goodness-of-fit", locals())


@question("contingency")
def contingency(
    *,
    table: Any = None,
    profiles: Any = None,
    rows: Any = None,
    columns: Any = None,
    ratios: Any = None,
    likelihood_ratio: Any = False,
    effect_w: Any = None,
    cramers_v: Any = None,
    df: Any = None,
    n: Any = None,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """Chi-square test of independence in a contingency table.

    Tests whether two categorical variables are independent, or several groups have the same proportions of categories.

    Not for two groups of few observations: see two-proportions with its exact tests; pairs: see paired-proportions; one
    variable against fixed proportions: see goodness-of-fit.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    table : array_like, optional
        Joint proportions expected, row by row, on any scale. A list like 1,2,3, each entry a number from 0 to
        1000000000000.
    profiles : array_like, optional
        Proportions expected within each row, row by row, in place of `table`. A list like 1,2,3, each entry a number
        from 0 to 1000000000000.
    rows : array_like of float, optional
        Number of rows. A whole number from 2 to 1000.
    columns : array_like of float, optional
        Number of columns, where no list tells it. A whole number from 2 to 1000.
    ratios : array_like, optional
        Shares of the rows in the study, on any scale; default equal. A list like 1,2,3, each entry a number from 0.001
        to 1000.
    likelihood_ratio : bool, default False
        The likelihood-ratio test in place of Pearson's; both differ for large effects only.
    effect_w : array_like of float, optional
        Root of the sum of (expected - null)^2 / null over the cells. A number from 0 to 1000.
    cramers_v : array_like of float, optional
        W over the root of the smaller number of rows or columns less 1. A number from 0 to 1.
    df : array_like of float, optional
        Degrees of freedom of chi-square. A whole number from 1 to 1000000.
    n : array_like of float, optional
        Observations in total. A whole number from 2 to 1000000000.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_w", "cramers_v", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_w`` (effect size w); ``cramers_v`` (Cramer's V); ``phi`` (phi); ``df`` (degrees of
        freedom); ``level`` (level of each comparison); ``power`` (power); ``n`` (sample size); ``enrol`` (to enrol).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 7; Guenther (1977),
       The American Statistician 31, 83-85.

    Examples
    --------
    >>> import kelpower
    >>> kelpower.contingency(columns=4, effect_w=0.3, power=0.8, rows=3).n
    152
    >>> round(kelpower.contingency(columns=4, cramers_v=0.2, n=150, rows=3).power, 4)
    0.738
    >>> round(kelpower.contingency(n=230, rows=2, table=[0.05, 0.35, 0.1, 0.075, 0.25, 0.175]).power, 4)
    0.8023
    >>> kelpower.contingency(power=0.8, profiles=[0.3, 0.5, 0.2, 0.4, 0.4, 0.2, 0.5, 0.3, 0.2], ratios=[1, 1, 2], rows=3).n
    346
    >>> kelpower.contingency(df=5, effect_w=0.3, power=0.95).n
    220

    """
    return asked("contingency", locals())


@question("pearson")
def pearson(
    *,
    r: Any = None,
    null: Any = 0,
    n: Any = None,
    one_sided: Any = False,
    exact: Any = False,
    adjust_bias: Any = False,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    assurance: Any = None,
    effect_sd: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Test of a Pearson correlation.

    Tests whether the Pearson correlation of two variables is a given value.

    Not for ranks: see spearman; with other variables held fixed: see partial; two correlations: see two-correlations
    and dependent-correlations.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    r : array_like of float, optional
        Correlation expected. A number between -1 and 1, neither included.
    null : array_like of float, default 0
        Correlation under the null hypothesis. A number between -1 and 1, neither included.
    n : array_like of float, optional
        Number of cases. A whole number from 4 to 1000000000.
    one_sided : bool, default False
        Test in the direction of the correlation expected only.
    exact : bool, default False
        Exact test, by the distribution of r in bivariate normal samples, in place of Fisher's z.
    adjust_bias : bool, default False
        Correct Fisher's z for its bias in small samples.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    assurance : array_like of float, optional
        Probability that the interval of the data is as narrow as `half_width` says. A number from 0.001 to 0.999999.
    effect_sd : array_like of float, optional
        Standard deviation of a normal uncertainty about the effect, on the scale of Fisher's z: 0.1 is about 0.1 of a
        small correlation. A number above 0.
    solve : {"r", "null", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``expected_power`` (expected power);
        ``expected_power_limit`` (limit of the expected power); ``power`` (power); ``n`` (sample size); ``enrol`` (to
        enrol); ``half_width`` (half-width); ``assurance`` (assurance).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Fisher (1915), Biometrika 10, 507-521; Hotelling (1953), Journal of the Royal Statistical Society B 15,
       193-232; each tail rejects alpha / 2.
    .. [2] Fisher (1921), Metron 1, 3-32: variance 1 / (n - 3 - k), k variables partialled out.
    .. [3] Fisher (1921), Metron 1, 3-32: variance of z 1 / (n - 3).
    .. [4] Fisher (1921), Metron 1, 3-32; Hotelling (1953), Journal of the Royal Statistical Society B 15, 193-232: mean
       and variance of z to the second order.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.pearson(n=84, r=0.3).power, 4)
    0.7955
    >>> round(kelpower.pearson(adjust_bias=True, n=84, null=0.2, one_sided=True, r=0.5).power, 4)
    0.9322
    >>> round(kelpower.pearson(exact=True, n=30, null=0.6, r=0.3).power, 4)
    0.5259
    >>> kelpower.pearson(exact=True, power=0.8, r=0.2).n
    193
    >>> kelpower.pearson(power=0.9, r=0.3).n
    113
    >>> round(kelpower.pearson(interval=True, n=84, r=0.3).half_width, 4)
    0.1959
    >>> kelpower.pearson(half_width=0.05, r=0.7).n
    404

    """
    return asked("pearson", locals())


@question("spearman")
def spearman(
    *,
    r: Any = None,
    null: Any = 0,
    n: Any = None,
    one_sided: Any = False,
    variance: Any = 'bonett-wright',
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Test of a Spearman correlation.

    Tests whether the Spearman correlation of two variables is a given value.

    Not for linear relations of normal variables: see pearson, which needs fewer cases.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    r : array_like of float, optional
        Correlation expected. A number between -1 and 1, neither included.
    null : array_like of float, default 0
        Correlation under the null hypothesis. A number between -1 and 1, neither included.
    n : array_like of float, optional
        Number of cases. A whole number from 3 to 1000000000.
    one_sided : bool, default False
        Test in the direction of the correlation expected only.
    variance : {"bonett-wright", "fieller", "caruso-cliff"}, default 'bonett-wright'
        Approximation of the variance of Fisher's z of a rank correlation. ``bonett-wright``: Bonett and Wright;
        ``fieller``: Fieller, Hartley and Pearson; ``caruso-cliff``: Caruso and Cliff.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"r", "null", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``power`` (power); ``n`` (sample size); ``enrol`` (to
        enrol); ``half_width`` (half-width).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Bonett and Wright (2000), Psychometrika 65, 23-28: variance of z (1 + r^2 / 2) / (n - 3).
    .. [2] Fieller, Hartley and Pearson (1957), Biometrika 44, 470-481: variance of z 1.06 / (n - 3).

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.spearman(n=84, r=0.3).power, 4)
    0.7779
    >>> round(kelpower.spearman(n=84, null=0.2, one_sided=True, r=0.5, variance='fieller').power, 4)
    0.9169
    >>> kelpower.spearman(power=0.9, r=0.3).n
    118
    >>> round(kelpower.spearman(interval=True, n=84, r=0.3).half_width, 4)
    0.2002
    >>> kelpower.spearman(half_width=0.05, r=0.7).n
    503

    """
    return asked("spearman", locals())


@question("partial")
def partial(
    *,
    r: Any = None,
    null: Any = 0,
    partialled_out: Any = None,
    n: Any = None,
    one_sided: Any = False,
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    assurance: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Test of a partial correlation.

    Tests whether the partial correlation of two variables, given others, is a given value.

    Not for several predictors at once: see regression; without other variables: see pearson.

    What is left out is what is solved for: the power of a design, the sample size for a power, the half-width of the
    confidence interval of a design, the sample size for a half-width, or with the sizes and a target another number,
    such as the effect that is detected. Numbers may be arrays, which are broadcast together; lists such as sizes of
    groups then have their entries along the last axis.

    Parameters
    ----------
    r : array_like of float, optional
        Correlation expected. A number between -1 and 1, neither included.
    null : array_like of float, default 0
        Correlation under the null hypothesis. A number between -1 and 1, neither included.
    partialled_out : array_like of float, optional
        Number of variables partialled out. A whole number from 0 to 100000.
    n : array_like of float, optional
        Number of cases. A whole number from 4 to 1000000000.
    one_sided : bool, default False
        Test in the direction of the correlation expected only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    interval : bool, default False
        Ask for the half-width of the confidence interval at the sizes given.
    half_width : array_like of float, optional
        Half-width of the interval to reach; asks for the sample size. A number above 0.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    assurance : array_like of float, optional
        Probability that the interval of the data is as narrow as `half_width` says. A number from 0.001 to 0.999999.
    solve : {"r", "null", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``power`` (power); ``n`` (sample size); ``enrol`` (to
        enrol); ``half_width`` (half-width); ``assurance`` (assurance).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Fisher (1921), Metron 1, 3-32: variance 1 / (n - 3 - k), k variables partialled out.
    .. [2] Fisher (1921), Metron 1, 3-32; Hotelling (1953), Journal of the Royal Statistical Society B 15, 193-232: mean
       and variance of z to the second order.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.partial(n=84, partialled_out=3, r=0.3).power, 4)
    0.7854
    >>> round(kelpower.partial(n=84, null=0.2, one_sided=True, partialled_out=3, r=0.5).power, 4)
    0.9242
    >>> kelpower.partial(partialled_out=3, power=0.9, r=0.3).n
    115
    >>> round(kelpower.partial(interval=True, n=84, partialled_out=3, r=0.3).half_width, 4)
    0.1996
    >>> kelpower.partial(half_width=0.05, partialled_out=3, r=0.7).n
    407

    """
    return asked("partial", locals())


@question("two-correlations")
def two_correlations(
    *,
    correlations: Any = None,
    effect_q: Any = None,
    n: Any = None,
    ratio: Any = 1,
    one_sided: Any = False,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """Test of two independent correlations.

    Tests whether two independent groups have the same Pearson correlation of two variables.

    Not for two correlations in one sample: see dependent-correlations; one correlation against a given value: see
    pearson.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    correlations : array_like, optional
        Correlation expected in each group. A list like 1,2,3, each entry a number between -1 and 1, neither included.
    effect_q : array_like of float, optional
        Difference of Fisher's z of the two correlations, in place of `correlations`. A number.
    n : array_like, optional
        Observations in each group. A whole number from 4 to 1000000000, or a list of such, one for each group.
    ratio : array_like of float, default 1
        Size of the second group over that of the first, in the sizes to find. A number from 0.001 to 1000.
    one_sided : bool, default False
        Test in the direction of the difference only.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"effect_q", "ratio", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_q`` (effect size q); ``level`` (level of each comparison); ``total`` (total sample
        size); ``power`` (power); ``n`` (group sizes); ``enrol`` (to enrol in each group); ``enrol_total`` (to enrol in
        total).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Fisher (1921), Metron 1, 3-32; Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed.,
       chapter 4.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.two_correlations(correlations=[0.75, 0.88], n=[51, 260]).power, 4)
    0.7264
    >>> kelpower.two_correlations(correlations=[0.5, 0.3], power=0.8).n
    (277, 277)
    >>> kelpower.two_correlations(correlations=[0.5, 0.3], one_sided=True, power=0.9, ratio=2).n
    (226, 452)
    >>> kelpower.two_correlations(effect_q=0.3, power=0.8).n
    (178, 178)

    """
    return asked("two-correlations", locals())


@question("dependent-correlations")
def dependent_correlations(
    *,
    r12: Any = None,
    r13: Any = None,
    r34: Any = None,
    r14: Any = None,
    r23: Any = None,
    r24: Any = None,
    n: Any = None,
    one_sided: Any = False,
    null_correlations: Any = 'first',
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
    below: Any = False,
) -> Any:
    """Test of two dependent correlations.

    Tests whether two Pearson correlations in one sample are the same: of variables 1 and 2 with 1 and 3, or with 3 and
    4.

    Not for correlations in two independent groups: see two-correlations; one correlation against a given value: see
    pearson.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    r12 : array_like of float, optional
        Correlation of variables 1 and 2, the first of those compared. A number between -1 and 1, neither included.
    r13 : array_like of float, optional
        Correlation of variables 1 and 3, compared with `r12` where `r34` is not given. A number between -1 and 1,
        neither included.
    r34 : array_like of float, optional
        Correlation of variables 3 and 4, compared with `r12` where no variable is in common. A number between -1 and 1,
        neither included.
    r14 : array_like of float, optional
        Correlation of variables 1 and 4. A number between -1 and 1, neither included.
    r23 : array_like of float, optional
        Correlation of variables 2 and 3. A number between -1 and 1, neither included.
    r24 : array_like of float, optional
        Correlation of variables 2 and 4. A number between -1 and 1, neither included.
    n : array_like of float, optional
        Number of cases. A whole number from 4 to 1000000000.
    one_sided : bool, default False
        Test in the direction of the correlation expected only.
    null_correlations : {"first", "average", "expected"}, default 'first'
        What the two correlations compared are under the null hypothesis, for the standard error there. ``first``: with
        both correlations as the first; ``average``: with both correlations as their average; ``expected``: at the
        correlations expected.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"r34", "r13", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect smaller than none, such as a negative difference or a ratio below 1.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_q`` (difference of Fisher's z); ``level`` (level of each comparison); ``power``
        (power); ``n`` (sample size); ``enrol`` (to enrol).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Dunn and Clark (1969), Journal of the American Statistical Association 64, 366-377; Steiger (1980),
       Psychological Bulletin 87, 245-251.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.dependent_correlations(n=144, one_sided=True, r12=0.4, r13=0.2, r23=0.5).power, 4)
    0.8012
    >>> kelpower.dependent_correlations(null_correlations='average', power=0.8, r12=0.4, r13=0.2, r23=0.5).n
    175
    >>> kelpower.dependent_correlations(one_sided=True, power=0.8, r12=0.1, r13=0.5, r14=0.4, r23=-0.4, r24=0.8, r34=0.2).n
    886
    >>> round(kelpower.dependent_correlations(below=True, n=144, power=0.8, r12=0.4, r23=0.5).r13, 4)
    0.1734

    """
    return asked("dependent-correlations", locals())


@question("regression")
def regression(
    *,
    r_squared: Any = None,
    r_squared_reduced: Any = None,
    effect_f2: Any = None,
    predictors: Any = None,
    tested: Any = None,
    n: Any = None,
    random: Any = False,
    no_intercept: Any = False,
    power: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    solve: Any = None,
) -> Any:
    """F test of predictors in multiple linear regression.

    Tests whether some or all predictors of a multiple linear regression add nothing.

    Not for outcomes of two values, such as cured or not; the correlation with a single predictor: see pearson.

    What is left out is what is solved for: the power of a design, the sample size for a power, or with the sizes and a
    target another number, such as the effect that is detected. Numbers may be arrays, which are broadcast together;
    lists such as sizes of groups then have their entries along the last axis.

    Parameters
    ----------
    r_squared : array_like of float, optional
        Proportion of variance that all predictors explain. A number of at least 0 and below 1.
    r_squared_reduced : array_like of float, optional
        Proportion of variance that the predictors that are not tested explain. A number of at least 0 and below 1.
    effect_f2 : array_like of float, optional
        Variance explained by the tested predictors over the unexplained one. A number from 0 to 1000.
    predictors : array_like of float, optional
        Number of predictors in the model. A whole number from 1 to 100000.
    tested : array_like of float, optional
        Number of predictors tested, unless all are. A whole number from 1 to 100000.
    n : array_like of float, optional
        Number of cases. A whole number from 2 to 1000000000.
    random : bool, default False
        Predictors vary from sample to sample, normally, rather than being fixed.
    no_intercept : bool, default False
        The model has no intercept.
    power : array_like of float, optional
        Power to reach; asks for the sample size. A number between 0 and 1, neither included.
    alpha : array_like of float, default 0.05
        Significance level; intervals have confidence 1 - alpha. A number between 0 and 1, neither included.
    comparisons : array_like of float, optional
        Comparisons or endpoints that share `alpha` (Bonferroni). A whole number from 1 to 1000000.
    dropout : array_like of float, optional
        Share of those enrolled who are lost, of sizes that are found. A number of at least 0 and below 1.
    solve : {"r_squared", "effect_f2", "r_squared_reduced", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``effect_f2`` (effect size f2); ``level`` (level of each comparison); ``power`` (power);
        ``n`` (sample size); ``enrol`` (to enrol).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 9, with the
       noncentrality n f^2.
    .. [2] Gatsonis and Sampson (1989), Psychological Bulletin 106, 516-524; Lee (1972), Biometrika 59, 175-189.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.regression(effect_f2=0.1111111, n=95, predictors=5).power, 4)
    0.6736
    >>> round(kelpower.regression(n=95, predictors=5, r_squared=0.1, random=True).power, 4)
    0.6626
    >>> kelpower.regression(power=0.8, predictors=6, r_squared=0.3, r_squared_reduced=0.25, tested=2).n
    139
    >>> kelpower.regression(alpha=0.01, effect_f2=0.0714286, power=0.8, predictors=9, tested=4).n
    242

    """
    return asked("regression", locals())
