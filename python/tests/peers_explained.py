"""Checks of the reasons why other packages answer differently.

Each takes a case and tells whether the reason that peers/differences.json gives for it is true.
"""

import math
from statistics import NormalDist

import kelpower
import pytest
from peers_asked import asked, value_of

NORMAL = NormalDist()


def answer_with(case, **changes):
    """Our number for the question of a case with other inputs."""
    one = asked(case["question"])
    one.inputs.update(changes)
    return one.number(one.answer())


def encloses(case, sizes):
    """Whether our powers at some sizes enclose the expected one."""
    powers = [answer_with(case, n=size) for size in sizes]
    if case["relation"] == "answers":
        return all(math.isfinite(power) for power in powers)
    if case["relation"] == "less":
        return all(power < case["expected"] for power in powers)
    return min(powers) < case["expected"] < max(powers)


def sizes_are_whole(case):
    """A size with a fraction is refused, and the powers at the whole sizes around it enclose the expected one."""
    one = asked(case["question"])
    with pytest.raises(kelpower.InputError):
        one.answer()
    return encloses(case, [tuple(map(rounding, one.inputs["n"])) for rounding in (math.floor, math.ceil)])


def size_is_rounded_up(case):
    """The power is that of the size rounded up; one less gives a power on the other side of the expected one."""
    size = asked(case["question"]).inputs["n"]
    return size == round(size) and encloses(case, [size - 1, size])


def smallest_size_reaches_it(case):
    """Every size reaches the target, so that none has it exactly; we answer with the least that there may be."""
    one = asked(case["question"])
    answer = one.answer()
    changes = {"n": answer.n, "power": None}
    power = getattr(kelpower, one.test)(**(one.inputs | changes)).power
    with pytest.raises(kelpower.InputError):
        getattr(kelpower, one.test)(**(one.inputs | changes | {"n": answer.n - 1}))
    return power > one.inputs["power"]


def answer_has_the_power(case):
    """The question has an answer: our power at the effect found is the one that was given."""
    given = case["question"]["arguments"]
    effect = value_of(case["question"])
    back = {"call": case["question"]["call"], "arguments": {**given, "effect_size": effect, "power": None}}
    return effect < 0 and abs(value_of(back) - given["power"]) < 1e-9


def student_probability(t, degrees):
    """P(T < t) by Simpson's rule."""
    scale = math.exp(math.lgamma((degrees + 1) / 2) - math.lgamma(degrees / 2)) / math.sqrt(degrees * math.pi)

    def density(x):
        return scale * (1 + x * x / degrees) ** (-(degrees + 1) / 2)

    steps = 2000
    width = t / steps
    inner = sum((4 if i % 2 else 2) * density(i * width) for i in range(1, steps))
    return 0.5 + width / 3 * (density(0) + inner + density(t))


def root(function, target, low, high):
    """Where a monotone function has a value, by bisection."""
    rises = function(high) > function(low)
    for _ in range(60):
        middle = (low + high) / 2
        if (function(middle) < target) == rises:
            low = middle
        else:
            high = middle
    return (low + high) / 2


def approximation_with_t(r, n, alpha, sides):
    """The power of pwr.r.test: Fisher's z with the first term of its bias against the z of t's critical value."""
    t = root(lambda x: student_probability(x, n - 2), 1 - alpha / sides, 0, 50)
    critical = math.atanh(math.sqrt(t * t / (t * t + n - 2)))
    z = math.atanh(r) + r / (2 * (n - 1))
    power = NORMAL.cdf((z - critical) * math.sqrt(n - 3))
    return power + (NORMAL.cdf((-z - critical) * math.sqrt(n - 3)) if sides == 2 else 0)


def approximation_by_hotelling(r, n, alpha, sides):
    """Our power with adjust_bias: mean and variance of Fisher's z to the second order (docs/correlation.md)."""
    m = n - 1
    bias = r * (1 + (r**2 + 5) / (4 * m) + (3 * r**4 + 2 * r**2 + 11) / (8 * m * m)) / (2 * m)
    shift = (math.atanh(r) + bias) * math.sqrt(n - 3)
    spread = math.sqrt((1 + (4 - r * r) / (2 * m) + (22 - 6 * r**2 - 3 * r**4) / (6 * m * m)) * (n - 3) / m)
    critical = NORMAL.inv_cdf(1 - alpha / sides)
    power = NORMAL.cdf((shift - critical) / spread)
    return power + (1 - NORMAL.cdf((shift + critical) / spread) if sides == 2 else 0)


def by_approximation(case, power_of):
    """The number that a case asks for, by one approximation of the power."""
    given = {"alpha": 0.05, "alternative": "two-sided", **case["question"]["arguments"]}
    r, n, alpha, power = (given.get(name) for name in ("r", "n", "alpha", "power"))
    sides = 2 if given["alternative"] == "two-sided" else 1
    sign = -1 if given["alternative"] == "less" else 1
    if power is None:
        return power_of(sign * r, n, alpha, sides)
    if alpha is None:
        return root(lambda level: power_of(sign * r, n, level, sides), power, 1e-9, 0.9)
    return sign * root(lambda effect: power_of(effect, n, alpha, sides), power, 1e-9, 1 - 1e-9)


def correlation_is_approximated_otherwise(case):
    """Each number follows from its own approximation: theirs at their tolerance, ours to eight digits."""
    theirs, ours = (by_approximation(case, one) for one in (approximation_with_t, approximation_by_hotelling))
    tolerance = case["absolute"] + case["relative"] * abs(case["expected"])
    return abs(theirs - case["expected"]) <= tolerance and abs(ours - value_of(case["question"])) <= 1e-8


def correlation_has_an_answer(case):
    """Four cases are enough for Fisher's z, whose variance is 1 / (n - 3)."""
    return abs(by_approximation(case, approximation_by_hotelling) - value_of(case["question"])) <= 1e-8
