"""The function that converts effect sizes. Written by tools/python/write.py from their description."""

# ruff: noqa: E501
from __future__ import annotations

from collections.abc import Sequence
from typing import Any

from numpy.typing import NDArray

from ._effect_sizes import EffectSizes, converted

Floats = Sequence[float] | NDArray[Any]


def effect(
    *,
    means: Floats | None = None,
    mean_difference: float | None = None,
    sd: float | Floats | None = None,
    sd_difference: float | None = None,
    correlation: float | None = None,
    mean: float | None = None,
    test_value: float = 0,
    t: float | None = None,
    f_statistic: float | None = None,
    df: float | Floats | None = None,
    one_sample: bool = False,
    effect_d: float | None = None,
    hedges_g: float | None = None,
    superiority: float | None = None,
    effect_f: float | None = None,
    effect_f2: float | None = None,
    eta_squared: float | None = None,
    r_squared: float | None = None,
    predictors: float | None = None,
    r: float | None = None,
    correlations: Floats | None = None,
    effect_q: float | None = None,
    proportions: Floats | None = None,
    events: Floats | None = None,
    counts: Floats | None = None,
    proportion1: float | None = None,
    odds_ratio: float | None = None,
    risk_ratio: float | None = None,
    risk_difference: float | None = None,
    effect_h: float | None = None,
    n: float | Floats | None = None,
    confidence: float = 0.95,
) -> EffectSizes:
    """Convert what a study reports into effect sizes.

    What is given decides what is converted; these go together:

    - Means and standard deviations of two groups: ``means`` and ``sd`` (with ``n``); or ``mean_difference`` and ``sd``
      (with ``n``).
    - t test of two groups: ``t`` and ``n``; or ``t`` and ``df``.
    - Effect sizes of two groups: ``effect_d`` (with ``n``); or ``hedges_g`` and ``n``; or ``superiority`` (with ``n``).
    - One sample, or pairs: ``mean`` and ``sd`` (with ``test_value``, ``n``); or ``means`` and ``sd`` and
      ``correlation`` (with ``n``); or ``mean_difference`` and ``sd_difference`` (with ``n``); or ``t`` and ``n`` and
      ``one_sample``; or ``t`` and ``df`` and ``one_sample``; or ``effect_d`` and ``n`` and ``one_sample``.
    - Analysis of variance: ``f_statistic`` and ``df`` (with ``n``); or ``eta_squared``; or ``eta_squared`` and ``df``
      (with ``n``); or ``effect_f``; or ``effect_f`` and ``df`` (with ``n``).
    - Regression: ``r_squared``; or ``r_squared`` and ``predictors`` and ``n``; or ``effect_f2``; or ``effect_f2`` and
      ``predictors`` and ``n``.
    - Correlations: ``r`` (with ``n``); or ``correlations`` (with ``n``); or ``effect_q`` and ``r``.
    - Proportions and counts of two groups: ``proportions`` (with ``n``); or ``events`` and ``n``; or ``counts``; or
      ``proportion1`` and ``odds_ratio`` (with ``n``); or ``proportion1`` and ``risk_ratio`` (with ``n``); or
      ``proportion1`` and ``risk_difference`` (with ``n``); or ``proportion1`` and ``effect_h`` (with ``n``); or
      ``odds_ratio``.

    Parameters
    ----------
    means : array_like, optional
        Means of two groups, or of the two measurements of pairs. Two numbers like 52,47.
    mean_difference : float, optional
        First mean minus the second, or mean of the differences of pairs. A number.
    sd : array_like, optional
        Standard deviation within the groups, or one for each. A number above 0, or a list of such.
    sd_difference : float, optional
        Standard deviation of the differences of pairs. A number above 0.
    correlation : float, optional
        Correlation of the two measurements of pairs. A number between -1 and 1, neither included.
    mean : float, optional
        Mean of one sample. A number.
    test_value : float, default 0
        What the mean of one sample is compared with. A number.
    t : float, optional
        t of two groups, or of one sample or pairs with `one_sample`. A number.
    f_statistic : float, optional
        F of an analysis of variance or a regression. A number of at least 0.
    df : array_like, optional
        Degrees of freedom: of t one number, of an F test two. A number above 0, or a list of such.
    one_sample : bool, default False
        The effect is that of one sample, or of the differences of pairs.
    effect_d : float, optional
        Cohen's d: first mean minus the second, in standard deviations. A number from -1000000 to 1000000.
    hedges_g : float, optional
        Hedges' g: d corrected for its bias. A number from -1000000 to 1000000.
    superiority : float, optional
        Probability that someone of the first group has more than someone of the second. A number between 0 and 1,
        neither included.
    effect_f : float, optional
        Cohen's f of group means. A number from 0 to 1000000.
    effect_f2 : float, optional
        Cohen's f squared of a regression. A number from 0 to 1000000000000.
    eta_squared : float, optional
        Share of the variance that groups explain. A number of at least 0 and below 1.
    r_squared : float, optional
        Share of the variance that predictors explain. A number of at least 0 and below 1.
    predictors : float, optional
        Number of predictors of a regression. A whole number from 1 to 1000000.
    r : float, optional
        Correlation; with `effect_q` the first of two. A number between -1 and 1, neither included.
    correlations : array_like, optional
        Correlations in two independent groups. Two numbers like 0.3,0.5, each a number between -1 and 1, neither
        included.
    effect_q : float, optional
        Cohen's q: difference of two correlations as Fisher's z. A number.
    proportions : array_like, optional
        Proportions in two groups. Two numbers like 0.3,0.5, each a number from 0 to 1.
    events : array_like, optional
        Numbers of people in two groups who had the event. Two numbers like 1,2, each a whole number of at least 0.
    counts : array_like, optional
        a table of counts: with and without the event in the first group, then in the second. 4 numbers, each a whole
        number from 0 to 1000000000.
    proportion1 : float, optional
        Proportion in the first group, that of reference. A number from 0 to 1.
    odds_ratio : float, optional
        Odds in the second group over those in the first. A number above 0.
    risk_ratio : float, optional
        Second proportion over the first. A number of at least 0.
    risk_difference : float, optional
        Second proportion minus the first. A number from -1 to 1.
    effect_h : float, optional
        Cohen's h: second proportion minus the first, as angles. A number.
    n : array_like, optional
        Size of the study: of two groups one for each, or one that both have. A whole number from 1 to 1000000000, or a
        list of such.
    confidence : float, default 0.95
        Confidence of the intervals, which need the sizes of the study. A number between 0 and 1, neither included.

    Returns
    -------
    EffectSizes
        The effect sizes that follow, as attributes, with ``_lower`` and ``_upper`` where the interval is known: ``d``
        (Cohen's d); ``g`` (Hedges' g); ``superiority`` (probability of superiority); ``u3`` (Cohen's U3);
        ``approximate_odds_ratio`` (odds ratio, approximate); ``noncentrality`` (noncentrality); ``dz`` (Cohen's dz);
        ``gz`` (Hedges' gz); ``f`` (Cohen's f); ``f2`` (f squared); ``eta_squared`` (eta squared); ``omega_squared``
        (omega squared); ``r_squared`` (R squared); ``adjusted_r_squared`` (adjusted R squared); ``r`` (correlation r);
        ``fisher_z`` (Fisher's z); ``q`` (Cohen's q); ``second_r`` (second correlation); ``proportion1`` (first
        proportion); ``proportion2`` (second proportion); ``risk_difference`` (risk difference (second minus first));
        ``risk_ratio`` (risk ratio (second over first)); ``odds_ratio`` (odds ratio (second over first));
        ``log_odds_ratio`` (logarithm of the odds ratio); ``h`` (Cohen's h (second minus first)); ``approximate_d``
        (Cohen's d, approximate); ``approximate_r`` (correlation r, approximate).

    Raises
    ------
    InputError
        An argument is wrong, or arguments do not go together.
    NoSolution
        The effect size cannot be computed.

    Examples
    --------
    >>> import kelpower
    >>> kelpower.effect(means=[52, 47], n=[20, 25], sd=[10, 12]).sentence
    "From means of 52 and 47 with standard deviations of 10 and 12 in groups of 20 and 25, Cohen's d is 0.448 (95% confidence interval -0.15 to 1.041)."
    >>> kelpower.effect(n=[20, 20], t=2.3).sentence
    "From a t of 2.3 in groups of 20 and 20, Cohen's d is 0.7273 (95% confidence interval 0.08199 to 1.364)."
    >>> kelpower.effect(effect_d=0.5).sentence
    "From a Cohen's d of 0.5, the probability of superiority is 0.6382."
    >>> kelpower.effect(n=20, one_sample=True, t=2.3).sentence
    "From a t of one sample or of pairs of 2.3 in a sample of 20, Cohen's dz is 0.5143 (95% confidence interval 0.04098 to 0.9758)."
    >>> kelpower.effect(df=[2, 57], f_statistic=4.2).sentence
    "From an F of 4.2 on 2 and 57 degrees of freedom, Cohen's f is 0.3839 (95% confidence interval 0.0477 to 0.6177)."
    >>> kelpower.effect(n=50, predictors=3, r_squared=0.3).sentence
    'From an R squared of 0.3 with 3 predictors in a sample of 50, f squared is 0.4286 (95% confidence interval 0.07228 to 0.8186).'
    >>> kelpower.effect(confidence=0.9, n=50, r=0.3).sentence
    'From a correlation of 0.3 in a sample of 50, the correlation is 0.3 (90% confidence interval 0.06948 to 0.5001).'
    >>> kelpower.effect(correlations=[0.5, 0.3], n=[60, 80]).sentence
    "From correlations of 0.5 and 0.3 in groups of 60 and 80, Cohen's q is 0.2398 (95% confidence interval -0.1027 to 0.5823)."
    >>> kelpower.effect(counts=[10, 90, 5, 95]).sentence
    'From counts of 10, 90, 5 and 95, the odds ratio of the second group over the first is 0.4737 (95% confidence interval 0.1559 to 1.44).'
    >>> kelpower.effect(odds_ratio=2, proportion1=0.3).sentence
    'From an odds ratio of 2 and a first proportion of 0.3, the second proportion is 0.4615.'

    """
    given = locals()
    defaults = effect.__kwdefaults__ or {}
    return converted({name: value for name, value in given.items() if value is not defaults[name]})
