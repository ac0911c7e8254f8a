"""The ufuncs give what the functions give."""

import pickle

import kelpower
import numpy as np
import pytest
from kelpower import ufuncs
from kelpower._ufunc_table import TABLE

# A number for each argument, at which all questions have an answer.
USUAL = {
    "alpha": 0.05, "coefficients": [1, 0, -1], "columns": 3, "correlation": 0.5, "correlation1": 0.5,
    "correlation2": 0.2, "covariates": 1, "cramers_v": 0.3, "cv": 0.5, "df": 3, "effect_d": 0.5, "effect_f": 0.3,
    "effect_f2": 0.15, "effect_q": 0.4, "effect_w": 0.3, "eta_squared": 0.1, "group": 2, "half_width": 3, "mean": 3,
    "mean1": 12, "mean2": 10, "mean_difference": 3, "mean_ratio": 1.3, "means": [10, 12, 15], "n": 30, "n1": 30,
    "n2": 40, "null": 0.5, "null_sd": 4, "odds_ratio": 2.5, "p12": 0.3, "p21": 0.1, "pair1": 1, "pair2": 3,
    "partialled_out": 2, "positive_average": 0.7, "power": 0.8, "predictors": 3, "proportion": 0.3,
    "proportion1": 0.2, "proportion2": 0.4, "r": 0.4, "r12": 0.5, "r13": 0.2, "r14": 0.2, "r23": 0.3, "r24": 0.3,
    "r34": 0.2, "r_squared": 0.2, "ratio": 1, "ratios": [1, 1, 1], "risk_difference": 0.2, "risk_ratio": 2, "rows": 3,
    "sd": 6, "sd1": 4, "sd2": 5, "sd_difference": 6, "superiority": 0.7, "test_value": 0, "variance_ratio": 2,
}  # fmt: skip
OF_PROPORTIONS = {"half_width": 0.1}
OF_CORRELATIONS = {"half_width": 0.1, "null": 0}
USUAL_OF = {
    "proportion": {"half_width": 0.1, "null": 0.2}, "two-proportions": OF_PROPORTIONS,
    "paired-proportions": OF_PROPORTIONS,
    "pearson": OF_CORRELATIONS, "spearman": OF_CORRELATIONS, "partial": OF_CORRELATIONS,
}  # fmt: skip
# Limits on both sides of the usual effects, and margins that these are on the right side of.
HYPOTHESES = {"non_inferiority": {"margin": -2}, "superiority": {"margin": 1},
              "equivalence": {"equivalence1": -2, "equivalence2": 8}}
OF_RATIOS = {"non_inferiority": {"margin": 0.8}, "superiority": {"margin": 1.1},
             "equivalence": {"equivalence1": 0.4, "equivalence2": 8}}
OF_SHARES = {"non_inferiority": {"margin": -0.1}, "superiority": {"margin": 0.05},
             "equivalence": {"equivalence1": -0.15, "equivalence2": 0.45}}
# At the usual numbers nothing reaches the power.
LARGER = {
    "paired_proportions_p21": {"n": 200}, "paired_proportions_correlation": {"n": 60},
    "mean_margin_non_inferiority": {"n": 5}, "crossover_margin_non_inferiority": {"n1": 5, "n2": 5},
    "two_means_margin_superiority": {"n1": 200, "n2": 200}, "paired_means_margin_superiority": {"n": 200},
    "proportion_margin_superiority": {"n": 500}, "two_proportions_margin_superiority": {"n1": 200, "n2": 200},
    **{f"two_proportions_{effect}_equivalence": {"n1": 200, "n2": 200}
       for effect in ("risk_difference", "risk_ratio", "odds_ratio")},
}  # fmt: skip


def usual_hypothesis(name, question):
    of_ratio = "mean_ratio" in [argument for argument, *_ in question.arguments] or "mean_ratio" in name
    found = OF_RATIOS if of_ratio else OF_SHARES if "proportion" in question.test else HYPOTHESES
    return next((found[hypothesis] for hypothesis in found if name.endswith(hypothesis)), {})


def usual_arguments(name):
    question = TABLE[name]
    usual = USUAL | USUAL_OF.get(question.test, {}) | usual_hypothesis(name, question) | LARGER.get(name, {})
    values = {argument: usual[argument] for argument, *_ in question.arguments}
    lists = {argument for argument, _, _, is_list in question.arguments if is_list}
    return {argument: [value] * 3 if argument in lists and not isinstance(value, list) else value
            for argument, value in values.items()}  # fmt: skip


def by_function(name, values):
    question = TABLE[name]
    inputs = dict(question.inputs)
    for (argument, given, entry, _), value in zip(question.arguments, values.values(), strict=True):
        if entry >= 0:
            inputs.setdefault(given, []).append(values[argument])
        else:
            inputs[given] = value
    answer = getattr(kelpower, question.test.replace("-", "_"))(**inputs)
    found = [(getattr(answer, result), entry) for result, entry, _ in question.outputs]
    is_list = question.outputs[0][2]
    return [value[entry] if isinstance(value, tuple) and not is_list else value for value, entry in found]


@pytest.mark.parametrize("name", TABLE)
def test_each_gives_what_the_function_gives(name):
    values = usual_arguments(name)
    found = getattr(ufuncs, name)(*values.values())
    found = found if isinstance(found, tuple) else (found,)
    for mine, other in zip(found, by_function(name, values), strict=True):
        assert np.array_equal(mine, other)


@pytest.mark.parametrize("name", TABLE)
def test_each_says_what_it_takes(name):
    made = getattr(ufuncs, name)
    assert isinstance(made, np.ufunc)
    assert made.nin == len(TABLE[name].arguments)
    assert made.__name__ == name
    for argument, *_ in TABLE[name].arguments:
        assert argument in made.__doc__


def test_they_are_ufuncs_in_every_way():
    power = ufuncs.two_means_power
    sizes = np.arange(10, 50)
    out = np.zeros(40)
    assert power(0.5, sizes, sizes, 0.05, out=out) is out
    where = sizes % 2 == 0
    assert np.array_equal(power(0.5, sizes, sizes, 0.05, where=where, out=np.zeros(40)) > 0, where)
    assert power(np.float32(0.5), 20, 20, np.float32(0.05)).dtype == np.float64
    assert power(np.ones((2, 1)), np.full((1, 3), 20), 20, 0.05).shape == (2, 3)
    assert np.array_equal(power(0.5, sizes[::-1], sizes[::-1], 0.05), out[::-1])


def test_groups_are_counted_at_each_call():
    assert ufuncs.anova_power(0.3, [20, 20, 20], 0.05) == kelpower.anova(effect_f=0.3, n=[20, 20, 20]).power
    assert ufuncs.anova_power(0.3, [20, 20, 20, 20], 0.05) == kelpower.anova(effect_f=0.3, n=[20] * 4).power
    n = ufuncs.anova_n(0.3, [0.8, 0.9], [1, 1, 2], 0.05)
    assert n.tolist() == [list(kelpower.anova(effect_f=0.3, power=power, ratios=[1, 1, 2]).n) for power in (0.8, 0.9)]


def test_no_answer_is_nan_with_numpys_warning():
    with pytest.warns(RuntimeWarning, match="invalid value encountered in two_means_power"):
        assert np.isnan(ufuncs.two_means_power(0.5, 1, 20, 0.05))
    with pytest.warns(RuntimeWarning, match="invalid value"):
        assert np.isnan(ufuncs.anova_power(0.3, [20], 0.05))
    assert np.isnan(ufuncs.two_means_power(np.nan, 20, 20, 0.05))
    with np.errstate(all="raise"):
        assert ufuncs.two_means_power(40, 1e9, 1e9, 0.05) == 1
        with pytest.raises(FloatingPointError):
            ufuncs.two_means_power(0.5, 1, 20, 0.05)


def test_endless_lists_have_no_answer():
    with pytest.warns(RuntimeWarning, match="invalid value"):
        assert np.isnan(ufuncs.anova_power(0.3, np.broadcast_to(20.0, (10**9,)), [0.05, 0.01])).all()
    with pytest.warns(RuntimeWarning, match="invalid value"):
        sizes = ufuncs.anova_n(0.3, 0.8, np.ones((2, 10_001)), 0.05)
    assert sizes.shape == (2, 10_001)
    assert np.isnan(sizes).all()


def test_ufuncs_of_other_questions_can_be_made():
    power = kelpower.ufunc("two-means", "effect_d", "n", one_sided=True)
    assert power(0.5, 64) == kelpower.two_means(effect_d=0.5, n=64, one_sided=True).power
    total = kelpower.ufunc(kelpower.two_means, "effect_d", result="total", power=0.9, dropout=0.1)
    assert total(0.5) == kelpower.two_means(effect_d=0.5, power=0.9, dropout=0.1).total
    sizes = kelpower.ufunc("two_means", "mean1", "mean2", sd=10, power=0.8)
    assert sizes(0, 5) == kelpower.two_means(means=[0, 5], sd=10, power=0.8).n


def test_what_makes_no_ufunc_is_said():
    with pytest.raises(kelpower.InputError):
        kelpower.ufunc("two-means", "effect_d", power=0.8, n=20, alpha=0.05, sd=1)
    with pytest.raises(ValueError, match="'size' is no input of two-means"):
        kelpower.ufunc("two-means", "size")
    with pytest.raises(ValueError, match="'n0' is no input of two-means"):
        kelpower.ufunc("two-means", "effect_d", "n0")
    with pytest.raises(ValueError, match="'survival' is not a test"):
        kelpower.ufunc("survival", "n")
    with pytest.raises(ValueError, match="'n' is no result"):
        kelpower.ufunc("two-means", "effect_d", "n", result="n")
    with pytest.raises(AttributeError):
        _ = ufuncs.nothing


def test_they_survive_pickling():
    assert pickle.loads(pickle.dumps(ufuncs.two_means_power)) is ufuncs.two_means_power


def test_made_ones_leave_nothing_behind():
    import tracemalloc

    def make():
        for _ in range(50):
            kelpower.ufunc("two-means", "effect_d", "n")(0.5, 20)

    make()
    tracemalloc.start()
    make()
    before = tracemalloc.get_traced_memory()[0]
    make()
    grown = tracemalloc.get_traced_memory()[0] - before
    tracemalloc.stop()
    assert grown < 20_000
