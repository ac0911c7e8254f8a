"""One function for each test. Written by tools/python/write.py from the descriptions of the tests."""

# ruff: noqa: E501
from __future__ import annotations

from typing import Any

from ._ask import asked, question

__all__ = ["anova", "contrast", "mean", "paired_means", "paired_proportions", "pairwise", "partial", "pearson", "proportion", "regression", "spearman", "two_means", "two_proportions"]


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

    Not for pairs or repeated measures, nor for a single comparison of groups: see contrast and pairwise.

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
        Numbers of the two groups compared. Two numbers like 52,47, each a whole number from 1 to 10000.
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


@question("mean")
def mean(
    *,
    mean: Any = None,
    test_value: Any = 0,
    sd: Any = None,
    effect_d: Any = None,
    n: Any = None,
    one_sided: Any = False,
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
    solve : {"effect_d", "mean", "sd", "test_value", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect on the lower side of none.

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

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.mean(mean=104, n=40, sd=10, test_value=100).power, 4)
    0.694
    >>> kelpower.mean(mean=104, power=0.8, sd=10, test_value=100).n
    52
    >>> kelpower.mean(effect_d=0.4, one_sided=True, power=0.8).n
    41
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
    power: Any = None,
    interval: Any = False,
    half_width: Any = None,
    alpha: Any = 0.05,
    comparisons: Any = None,
    dropout: Any = None,
    assurance: Any = None,
    effect_sd: Any = None,
    solve: Any = None,
) -> Any:
    """Paired-samples t test of means.

    Tests whether two measurements on the same units have the same mean.

    Not for two groups of different units: see two-means.

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
    solve : {"effect_d", "mean_difference", "sd_difference", "correlation", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

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

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.paired_means(correlation=0.6, means=[25, 21], n=30, sds=[8, 7]).power, 4)
    0.8787
    >>> kelpower.paired_means(correlation=0.6, means=[25, 21], one_sided=True, power=0.9, sds=[8, 7]).n
    26
    >>> kelpower.paired_means(mean_difference=4, power=0.9, sd_difference=8).n
    44
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
    n: Any = None,
    ratio: Any = 1,
    one_sided: Any = False,
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
) -> Any:
    """Independent-samples t test of two means.

    Tests whether two independent groups have the same mean: pooled when their standard deviations are equal, and in the
    form of Welch when they differ.

    Not for two measurements on the same units: see paired-means; more than two groups: see anova.

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
    n : array_like, optional
        Observations in each group. A whole number from 2 to 1000000000, or a list of such, one for each group.
    ratio : array_like of float, default 1
        Size of the second group over that of the first, in the sizes to find. A number from 0.001 to 1000.
    one_sided : bool, default False
        Test in the direction of the effect only.
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
    solve : {"effect_d", "mean_difference", "sd", "ratio", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.

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
    .. [1] Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., sections 2.2 and 2.3, with the
       noncentral t distribution.
    .. [2] Welch (1938), Biometrika 29, 350-362; Satterthwaite (1946), Biometrics Bulletin 2, 110-114; degrees of
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
    >>> round(kelpower.two_means(interval=True, n=40, sd=[10, 14]).half_width, 4)
    5.4247
    >>> kelpower.two_means(half_width=4, sd=[10, 14]).n
    (73, 73)

    """
    return asked("two-means", locals())


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
    solve : {"proportion", "null", "alpha", "assurance"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect on the lower side of none.
    stable : bool, default False
        Of an exact test: the size from which on all reach the power, in place of the first.

    Returns
    -------
    Result or Results
        The inputs and results as attributes; `Results` of arrays where an argument is one. Results are, as far as the
        question has them: ``level`` (level of each comparison); ``power`` (power); ``rejects_to`` (rejects up to this
        count); ``rejects_from`` (rejects from this count); ``attained_level`` (significance level attained); ``n``
        (sample size); ``lasting_n`` (all larger sizes reach it from); ``enrol`` (to enrol); ``half_width`` (half-
        width); ``assurance`` (assurance).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The arguments are allowed, but the question has no answer.

    References
    ----------
    .. [1] Clopper and Pearson (1934), Biometrika 26, 404-413.
    .. [2] Cohen (1988), chapter 6; each tail rejects at most alpha.
    .. [3] Fleiss, Levin and Paik (2003), Statistical Methods for Rates and Proportions, 3rd ed., section 2.5.

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

    Not for two measurements on the same subjects: see paired-proportions; more than two groups are not tested.

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
    solve : {"risk_difference", "risk_ratio", "odds_ratio", "ratio", "alpha"}, optional
        The number to solve for, where the sizes and the power or half-width are given.
    below : bool, default False
        Solve for an effect on the lower side of none.
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
        ``half_width`` (half-width); ``proportion2`` (second proportion).

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
    .. [2] D'Agostino, Chase and Belanger (1988), American Statistician 42, 198-202.
    .. [3] Fleiss, Levin and Paik (2003), Statistical Methods for Rates and Proportions, 3rd ed., chapter 4.
    .. [4] Newcombe (1998), Statistics in Medicine 17, 873-890, method 10.

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
        Solve for an effect on the lower side of none.
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


@question("pearson")
def pearson(
    *,
    r: Any = None,
    null: Any = 0,
    n: Any = None,
    one_sided: Any = False,
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

    Not for ranks: see spearman; with other variables held fixed: see partial.

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
        Solve for an effect on the lower side of none.

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
    .. [1] Fisher (1921), Metron 1, 3-32: variance 1 / (n - 3 - k), k variables partialled out.
    .. [2] Fisher (1921), Metron 1, 3-32: variance of z 1 / (n - 3).
    .. [3] Fisher (1921), Metron 1, 3-32; Hotelling (1953), Journal of the Royal Statistical Society B 15, 193-232: mean
       and variance of z to the second order.

    Examples
    --------
    >>> import kelpower
    >>> round(kelpower.pearson(n=84, r=0.3).power, 4)
    0.7955
    >>> round(kelpower.pearson(adjust_bias=True, n=84, null=0.2, one_sided=True, r=0.5).power, 4)
    0.9322
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
        Solve for an effect on the lower side of none.

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
        Solve for an effect on the lower side of none.

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
