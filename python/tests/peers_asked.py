"""What statsmodels and pingouin are asked in their own tests, as questions to kelpower.

A translation takes the arguments of a call there and answers with `Asked`: a test of ours, its inputs, how its answer
becomes the number of the other package, and for sizes what the other package's unrounded number is in our sizes.
"""

import json
import math
from collections.abc import Callable
from dataclasses import dataclass
from typing import Any

import kelpower

RIGHT = {"larger": 1, "greater": 1, "smaller": -1, "less": -1, "two-sided": 0}
DEPRECATED = "2s"


class Untranslated(Exception):
    """kelpower has no such question."""


@dataclass
class Asked:
    test: str
    inputs: dict[str, Any]
    number: Callable[[Any], float]  # of our answer, in the terms of the other package
    unrounded: Callable[[float], float] | None = None  # of a size there, before we round it up

    def answer(self):
        return getattr(kelpower, self.test)(**self.inputs)


@dataclass
class Family:
    """A test with one effect and one size, by the names that it has with us."""

    test: str
    effect: str
    to_effect: Callable[[float], float] = lambda effect: effect
    from_effect: Callable[[float], float] = lambda effect: effect
    to_size: Callable[[float], float] = lambda size: size
    from_size: Callable[[float], float] = lambda size: size
    fixed: dict[str, Any] | None = None
    has_sides: bool = True


def first(size):
    return size[0] if isinstance(size, tuple) else size


def whole(size):
    """A size for our functions: whole where rounding of the arithmetic alone keeps it from that."""
    return round(size) if abs(size - round(size)) < 1e-9 * size else size


def direction(alternative):
    """1 or -1 for a one-sided alternative, 0 for a two-sided one; any other word is passed on to us as it is."""
    return RIGHT.get(alternative, alternative)


def ask(family, effect, size, alpha, power, alternative):
    """The question whose one missing number is None.

    A one-sided test of ours is in the direction of its effect. The power in the other direction is the complement of
    that at the complement of the level: P(T < t(alpha)) = 1 - P(T > t(1 - (1 - alpha))).
    """
    side = direction(alternative)
    if side == DEPRECATED:
        raise Untranslated("a deprecated word for an alternative")
    if isinstance(side, str):
        return Asked(family.test, {family.effect: effect, "n": size, "one_sided": side}, lambda _: math.nan)
    fixed = dict(family.fixed or {})
    if family.has_sides:
        fixed["one_sided"] = side != 0
    turned = side != 0 and (side * effect < 0 if effect is not None else power < alpha)
    if turned and size is None and power is not None and power >= alpha:
        raise Untranslated("a sample size in the direction opposite to the effect")

    def turn(probability):
        return 1 - probability if turned else probability

    inputs = {}
    if effect is not None:
        inputs[family.effect] = family.to_effect(abs(effect))
    if size is not None:
        inputs["n"] = whole(family.to_size(size))
    if alpha is not None:
        inputs["alpha"] = turn(alpha)
    if power is not None:
        inputs["power"] = turn(power)
    inputs |= fixed
    if power is None:
        return Asked(family.test, inputs, lambda answer: turn(answer.power))
    if size is None:
        return Asked(family.test, inputs, lambda answer: family.from_size(first(answer.n)), family.to_size)
    if alpha is None:
        return Asked(family.test, inputs | {"solve": "alpha"}, lambda answer: turn(answer.alpha))
    sign = (-1 if turned else 1) * (side or 1)
    return Asked(family.test, inputs | {"solve": family.effect},
                 lambda answer: sign * family.from_effect(getattr(answer, family.effect)))


MEAN = Family("mean", "effect_d")
PAIRED_MEANS = Family("paired_means", "effect_d")


def normal(share=1.0):
    """A z test whose statistic has the mean effect * sqrt(share * size).

    Fisher's z of a correlation r in n cases is normal with the mean atanh(r) sqrt(n - 3).
    """
    return Family("pearson", "r", to_effect=math.tanh, from_effect=math.atanh, to_size=lambda size: size * share + 3,
                  from_size=lambda size: (size - 3) / share)


def ask_normal_groups(effect, first_size, alpha, power, ratio, alternative):
    """A z test of two groups, or of one where the ratio is 0."""
    if ratio != 0 and ratio is not None:
        return ask(normal(ratio / (1 + ratio)), effect, first_size, alpha, power, alternative)
    if ratio == 0:
        return ask(normal(), effect, first_size, alpha, power, alternative)
    asked = ask(normal(), effect, None, alpha, power, alternative)

    def ratio_of(answer):
        share = (answer.n - 3) / first_size
        return share / (1 - share)

    return Asked(asked.test, asked.inputs, ratio_of, lambda ratio: first_size * ratio / (1 + ratio) + 3)


def ask_t_groups(effect, first_size, alpha, power, ratio, alternative):
    if ratio is None:
        asked = ask(Family("two_means", "effect_d"), effect, first_size, alpha, power, alternative)
        if direction(alternative) * effect < 0:
            raise Untranslated("a sample size in the direction opposite to the effect")
        inputs = {key: value for key, value in asked.inputs.items() if key != "solve"} | {"solve": "ratio"}
        return Asked(asked.test, inputs, lambda answer: answer.n[1] / answer.n[0], lambda ratio: first_size * ratio)
    if first_size is None:
        return ask(Family("two_means", "effect_d", fixed={"ratio": ratio}), effect, None, alpha, power, alternative)
    sizes = Family("two_means", "effect_d", to_size=lambda _: 0)
    asked = ask(sizes, effect, first_size, alpha, power, alternative)
    asked.inputs["n"] = (whole(first_size), whole(first_size * ratio))
    return asked


def statsmodels_t(effect_size=None, nobs=None, alpha=None, power=None, df=None, alternative="two-sided"):
    return ask(MEAN, effect_size, nobs, alpha, power, alternative)


def statsmodels_t_groups(effect_size=None, nobs1=None, alpha=None, power=None, ratio=1, alternative="two-sided"):
    return ask_t_groups(effect_size, nobs1, alpha, power, ratio, alternative)


def statsmodels_normal(effect_size, nobs, alpha, alternative="two-sided"):
    return ask(normal(), effect_size, nobs, alpha, None, alternative)


def statsmodels_normal_het(diff, nobs, alpha, alternative="two-sided"):
    return ask(normal(), diff, nobs, alpha, None, alternative)


def statsmodels_normal_groups(effect_size=None, nobs1=None, alpha=None, power=None, ratio=1,
                              alternative="two-sided"):
    return ask_normal_groups(effect_size, nobs1, alpha, power, ratio, alternative)


def statsmodels_anova(effect_size=None, nobs=None, alpha=None, power=None, k_groups=2):
    family = Family("anova", "effect_f", to_size=lambda total: total / k_groups, has_sides=False,
                    from_size=lambda size: size * k_groups, fixed={"groups": k_groups})
    return ask(family, effect_size, nobs, alpha, power, "two-sided")


def ask_regression(effect_f2, predictors, error_degrees, alpha, power, extra_cases=1):
    """An F test of regression; without the extra case it has no intercept."""
    if predictors is None:
        raise Untranslated("the number of predictors as the unknown")
    family = Family("regression", "effect_f2", has_sides=False,
                    to_size=lambda degrees: degrees + predictors + extra_cases,
                    from_size=lambda size: size - predictors - extra_cases,
                    fixed={"predictors": predictors} | ({} if extra_cases else {"no_intercept": True}))
    return ask(family, effect_f2, error_degrees, alpha, power, "two-sided")


def statsmodels_f(effect_size=None, df2=None, df1=None, alpha=None, ncc=1):
    return ask_regression(effect_size**2, df1, df2, alpha, None, ncc)


def statsmodels_f_solved(effect_size=None, df_num=None, df_denom=None, alpha=None, power=None, nobs=None, junk=None):
    """What is called df_num there are the degrees of freedom of the error."""
    if junk is not None:
        return Asked("regression", {"junk": junk}, lambda _: math.nan)
    asked = ask_regression(None if effect_size is None else effect_size**2, df_denom, df_num, alpha, power)
    if effect_size is not None:
        return asked
    return Asked(asked.test, asked.inputs, lambda answer: math.sqrt(answer.effect_f2))


def statsmodels_f2(effect_size=None, df_num=None, df_denom=None, alpha=None, power=None):
    return ask_regression(effect_size, df_num, df_denom, alpha, power)


def statsmodels_proportions(diff, prop2, nobs1, ratio=1, alpha=0.05, value=0, alternative="two-sided",
                            return_results=True):
    side = direction(alternative)
    turned = side * diff < 0
    inputs = {"proportions": (prop2 + diff, prop2), "one_sided": side != 0,
              "n": (whole(nobs1), whole(nobs1 * ratio)), "alpha": 1 - alpha if turned else alpha}
    return Asked("two_proportions", inputs,
                 lambda answer: 1 - answer.power if turned else answer.power)


def statsmodels_proportions_size(diff, prop2, power, ratio=1, alpha=0.05, value=0, alternative="two-sided"):
    if direction(alternative) == DEPRECATED:
        raise Untranslated("a deprecated word for an alternative")
    if direction(alternative) not in RIGHT.values():
        return Asked("two_proportions", {"proportions": (prop2 + diff, prop2), "n": 10, "one_sided": alternative},
                     lambda _: math.nan)
    return Asked("two_proportions", {"proportions": (prop2 + diff, prop2), "power": power, "ratio": ratio,
                                     "alpha": alpha, "one_sided": direction(alternative) != 0},
                 lambda answer: answer.n[0], lambda size: size)


def statsmodels_one_tail(diff, power, alpha, std_null=1.0, std_alternative=None):
    """Translated where the standard deviations are those of two proportions."""
    if not isinstance(std_null, dict) or std_null["operation"] != "attribute":
        raise Untranslated("a z test with any standard deviations")
    return statsmodels_proportions_size(diff, std_null["operands"][0]["arguments"]["prop2"], power, alpha=2 * alpha)


def statsmodels_interval(count, nobs, alpha=0.05, method="normal"):
    return Asked("proportion", {"proportion": count / nobs, "n": nobs, "alpha": alpha, "interval": True,
                                "interval_method": {"normal": "wald"}[method]},
                 lambda answer: (count / nobs - answer.half_width, count / nobs + answer.half_width))


def statsmodels_interval_size(proportion, half_length, alpha=0.05):
    return Asked("proportion", {"proportion": proportion, "half_width": half_length, "alpha": alpha,
                                "interval_method": "wald"}, lambda answer: answer.n, lambda size: size)


@dataclass
class Converted:
    """An effect size, converted."""

    inputs: dict[str, Any]
    name: str
    unrounded = None

    def answer(self):
        request = {"inputs": self.inputs, "names": "underscore"}
        return json.loads(kelpower._core.convert(json.dumps(request).encode())[1])["results"]

    def number(self, answer):
        return answer[self.name]


def statsmodels_effect(prop1, prop2):
    """Cohen's h, which is that of the second proportion minus the first with us."""
    return Converted({"proportions": [prop2, prop1]}, "h")


def pingouin_t(d=None, n=None, power=None, alpha=0.05, contrast="two-samples", alternative="two-sided"):
    if contrast == "two-samples":
        return ask_t_groups(d, n, alpha, power, 1, alternative)
    return ask(MEAN if contrast == "one-sample" else PAIRED_MEANS, d, n, alpha, power, alternative)


def pingouin_t_groups(nx, ny, d=None, power=None, alpha=0.05, alternative="two-sided"):
    return ask_t_groups(d, nx, alpha, power, ny / nx, alternative)


def pingouin_anova(eta_squared=None, k=None, n=None, power=None, alpha=0.05):
    if k is None:
        raise Untranslated("the number of groups as the unknown")
    return ask(Family("anova", "eta_squared", fixed={"groups": k}, has_sides=False), eta_squared, n, alpha, power,
               "two-sided")


def pingouin_repeated(eta_squared=None, m=None, n=None, power=None, alpha=0.05, corr=0.5, epsilon=1):
    """The F test of m repeated measures, where it has whole degrees of freedom.

    F has m - 1 and (n - 1)(m - 1) degrees of freedom and the noncentrality f^2 n m / (1 - corr): that of m - 1
    predictors without an intercept in n (m - 1) cases, and for two measures that of the paired t test.
    """
    if m is None:
        raise Untranslated("the number of repeated measures as the unknown")
    if epsilon != 1:
        raise Untranslated("degrees of freedom that are not whole")
    factor = m / ((m - 1) * (1 - corr))

    def to_f2(eta):
        return eta / (1 - eta) * factor

    def from_f2(effect):
        return effect / (factor + effect)

    if m == 2:
        family = Family("paired_means", "effect_d", to_effect=lambda eta: math.sqrt(to_f2(eta)),
                        from_effect=lambda effect: from_f2(effect**2))
    else:
        family = Family("regression", "effect_f2", to_f2, from_f2, to_size=lambda size: size * (m - 1),
                        from_size=lambda size: size / (m - 1), has_sides=False,
                        fixed={"predictors": m - 1, "no_intercept": True})
    return ask(family, eta_squared, n, alpha, power, "two-sided")


def pingouin_correlation(r=None, n=None, power=None, alpha=0.05, alternative="two-sided"):
    return ask(Family("pearson", "r", fixed={"adjust_bias": True}), r, n, alpha, power, alternative)


def pingouin_chi_square(dof, w=None, n=None, power=None, alpha=0.05):
    """With one degree of freedom chi-square is the square of a normal statistic with the mean w sqrt(n)."""
    if dof != 1:
        raise Untranslated("chi-square tests of more than one degree of freedom")
    return ask(normal(), w, n, alpha, power, "two-sided")


TRANSLATIONS = {
    "TTestPower.power": statsmodels_t, "TTestPower.solve_power": statsmodels_t, "ttest_power": statsmodels_t,
    "TTestIndPower.power": statsmodels_t_groups, "TTestIndPower.solve_power": statsmodels_t_groups,
    "NormalIndPower.power": statsmodels_normal_groups, "NormalIndPower.solve_power": statsmodels_normal_groups,
    "normal_power": statsmodels_normal, "normal_power_het": statsmodels_normal_het,
    "ftest_anova_power": statsmodels_anova, "FTestAnovaPower.power": statsmodels_anova,
    "FTestAnovaPower.solve_power": statsmodels_anova, "ftest_power": statsmodels_f,
    "FTestPower.power": statsmodels_f_solved, "FTestPower.solve_power": statsmodels_f_solved,
    "FTestPowerF2.power": statsmodels_f2, "FTestPowerF2.solve_power": statsmodels_f2,
    "power_proportions_2indep": statsmodels_proportions, "normal_sample_size_one_tail": statsmodels_one_tail,
    "samplesize_proportions_2indep_onetail": statsmodels_proportions_size,
    "proportion_effectsize": statsmodels_effect, "proportion_confint": statsmodels_interval,
    "samplesize_confint_proportion": statsmodels_interval_size,
    "power_ttest": pingouin_t, "power_ttest2n": pingouin_t_groups, "power_anova": pingouin_anova,
    "power_rm_anova": pingouin_repeated, "power_corr": pingouin_correlation, "power_chi2": pingouin_chi_square,
}


def asked(question):
    """The translation of a call."""
    if question["call"] not in TRANSLATIONS:
        raise Untranslated(f"no question like {question['call']}")
    return TRANSLATIONS[question["call"]](**{name: value_of(value) for name, value in question["arguments"].items()})


def value_of(value):
    """A number, or what we answer where the other package's own answer is the argument."""
    if not isinstance(value, dict) or value.get("operation") == "attribute":
        return value
    if "call" in value:
        one = asked(value)
        return one.number(one.answer())
    values = [value_of(operand) for operand in value["operands"]]
    if value["operation"] == "ceil":
        return math.ceil(values[0] - 1e-9)
    if value["operation"] == "item" and isinstance(values[0], tuple):
        return values[0][values[1]]
    if value["operation"] == "subtract":
        return values[0] - values[1]
    if value["operation"] == "divide":
        return values[0] / values[1]
    raise Untranslated(f"no question like {value['operation']}")
