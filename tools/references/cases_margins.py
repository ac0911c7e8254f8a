#!/usr/bin/python3
"""Writes reference cases of means against margins: non-inferiority, superiority by a margin, equivalence.

Powers are means, over the distribution of the estimated standard error, of normal probabilities at 30 digits; noncentral
t and F of a library are not used. A size is the first whole one whose power reaches the target; the one before misses it.

    cases_margins.py mean > tests/cases/mean.jsonl
    cases_margins.py paired-means > tests/cases/paired-means.jsonl
    cases_margins.py two-means > tests/cases/two-means.jsonl
    cases_margins.py crossover > tests/cases/crossover.jsonl
"""

import json
import sys

from mpmath import mp, mpf

from margin_designs import DESIGNS, PUBLISHED

mp.dps = 30
COMPUTED = "multiple precision, tools/references/cases_margins.py"


def t_upper(t, df):
    """P(T > t) for t > 0."""
    return mp.betainc(df / 2, mpf(1) / 2, 0, df / (df + t * t), regularized=True) / 2


def t_quantile(tail, df):
    """The t with P(T > t) = tail."""
    if tail == mpf(1) / 2:
        return mpf(0)
    if tail > mpf(1) / 2:
        return -t_quantile(1 - tail, df)
    start = mp.sqrt(2) * mp.erfinv(1 - 2 * tail)
    if df < 3:
        start = 1 / (mp.pi * tail) if df < 2 else 1 / mp.sqrt(2 * tail)
    start *= 1 + (start**2 + 1) / (4 * df) if df >= 3 else 1
    return mp.findroot(lambda t: mp.log(t_upper(t, df) / tail), (start, start * mpf("1.01")), tol=1e-24)


def mean_over_u(g, df, limit, places):
    """E[g(u); u < limit], u^2 chi-square over its degrees of freedom, with pieces at `places` too."""
    b = df / 2
    height = mp.log(2) + b * mp.log(b) - mp.loggamma(b)

    def value(u):
        return mp.exp(height + (df - 1) * mp.log(u) - b * u * u) * g(u)

    spread = 1 / mp.sqrt(2 * df)
    ends = {1 + k * spread for k in (-16, -8, -4, -2, -1, 0, 1, 2, 4, 8, 16)} | set(places)
    ends |= {mpf(k) for k in ("0.001", "0.01", "0.1", "0.3", "0.6")} if df < 30 else set()
    low = mpf(0) if df < 300 else max(mpf(0), 1 - 18 * spread)
    high = min(limit, 1 + 18 * spread if df > 4 else mpf(14))
    if high <= low:
        low = mpf(0)
    inside = sorted(e for e in ends if low < e < high)
    return mp.quad(value, [low] + inside + [high]) if high > 0 else mpf(0)


def normal_between(low, high):
    if low >= high:
        return mpf(0)
    return (mp.erfc(low / mp.sqrt(2)) - mp.erfc(high / mp.sqrt(2))) / 2


def power_beyond(distance, t, df):
    """P(T' > t): Z + distance > t u."""
    places = [distance / t + k / t for k in (-8, -3, 0, 3, 8)] if t > 0 else []
    return mean_over_u(lambda u: mp.ncdf(distance - t * u), df, mp.inf, places)


def power_both(distance, t, df):
    return power_beyond(distance, t, df) + power_beyond(-distance, t, df)


def power_between(above, below, t, df):
    limit = (above + below) / (2 * t) if t > 0 else mp.inf
    places = [d / t + k / t for d in (above, below) for k in (-8, -3, 0, 3, 8)] if t > 0 else []
    return mean_over_u(lambda u: normal_between(t * u - above, below - t * u), df, limit, places)


def numbers(value):
    return [mpf(str(x)) for x in (value if isinstance(value, list) else [value])]


def sd_of_logs(cv):
    return mp.sqrt(mp.log1p(cv * cv))


def effect_of(inputs):
    if "mean-ratio" in inputs:
        return mp.log(mpf(str(inputs["mean-ratio"])))
    if "means" in inputs:
        first, second = numbers(inputs["means"])
        return first - second
    if "mean" in inputs:
        return mpf(str(inputs["mean"])) - mpf(str(inputs.get("test-value", 0)))
    return mpf(str(inputs["mean-difference"]))


def estimate(test, inputs, sizes):
    """Standard error and degrees of freedom."""
    n = [mpf(x) for x in sizes]
    if test == "mean":
        return mpf(str(inputs["sd"])) / mp.sqrt(n[0]), n[0] - 1
    if test == "paired-means":
        if "sd-difference" in inputs:
            sd = mpf(str(inputs["sd-difference"]))
        else:
            (a, b), r = numbers(inputs["sds"]), mpf(str(inputs["correlation"]))
            sd = mp.sqrt(a * a + b * b - 2 * r * a * b)
        return sd / mp.sqrt(n[0]), n[0] - 1
    df = n[0] + n[1] - 2
    if "cv" in inputs:
        sds = [sd_of_logs(mpf(str(inputs["cv"])))] * 2
    else:
        sds = numbers(inputs["sd"]) * (2 if len(numbers(inputs["sd"])) == 1 else 1)
    if test == "crossover":
        return sds[0] * mp.sqrt((1 / n[0] + 1 / n[1]) / 2), df
    a = [sds[0] ** 2 / n[0], sds[1] ** 2 / n[1]]
    if sds[0] != sds[1]:
        df = sum(a) ** 2 / (a[0] ** 2 / (n[0] - 1) + a[1] ** 2 / (n[1] - 1))
    return mp.sqrt(sum(a)), df


def power(test, inputs, sizes):
    error, df = estimate(test, inputs, sizes)
    alpha = mpf(str(inputs.get("alpha", 0.05)))
    effect = effect_of(inputs)
    scale = mp.log if "mean-ratio" in inputs else (lambda x: x)
    if "equivalence" in inputs:
        low, high = [scale(x) for x in numbers(inputs["equivalence"])]
        return power_between((effect - low) / error, (high - effect) / error, t_quantile(alpha, df), df)
    if "margin" in inputs:
        margin = scale(mpf(str(inputs["margin"])))
        is_above = margin >= 0 if "superiority" in inputs else margin <= 0
        distance = effect - margin if is_above else margin - effect
        return power_beyond(distance / error, t_quantile(alpha, df), df)
    if inputs.get("one-sided"):
        return power_beyond(abs(effect) / error, t_quantile(alpha, df), df)
    return power_both(effect / error, t_quantile(alpha / 2, df), df)


def whole(test, inputs, number):
    if test in ("mean", "paired-means"):
        return [number]
    return [number, max(2, int(mp.ceil(number * mpf(str(inputs.get("ratio", 1))))))]


def first_size(test, inputs):
    target = mpf(str(inputs["power"]))
    step = missed = 1
    while power(test, inputs, whole(test, inputs, missed + step)) < target:
        missed += step
        step *= 2
    reached = missed + step
    while reached - missed > 1:
        middle = (missed + reached) // 2
        if power(test, inputs, whole(test, inputs, middle)) < target:
            missed = middle
        else:
            reached = middle
    return reached


def sizes_given(test, inputs):
    n = inputs["n"] if isinstance(inputs["n"], list) else [inputs["n"]]
    return n * 2 if len(n) == 1 and test in ("two-means", "crossover") else n


def case(test, inputs, source=COMPUTED, value=None, within=1e-13):
    if "power" in inputs:
        reached = first_size(test, inputs)
        total = sum(whole(test, inputs, reached))
        name = "n" if test in ("mean", "paired-means") else "total"
        if value is not None and total != value:
            raise ValueError(f"{inputs} gives {total}, published is {value}")
        value, within = total, 0
    else:
        name = "power"
        computed = power(test, inputs, sizes_given(test, inputs))
        if value is not None and abs(computed - mpf(str(value))) > within:
            raise ValueError(f"{inputs} gives {mp.nstr(computed, 16)}, published is {value}")
        value = float(computed) if value is None else value
    request = {"test": test, "inputs": inputs}
    print(json.dumps({"request": request, "result": name, "value": value, "within": within, "source": source}), flush=True)


def main():
    test = sys.argv[1]
    for inputs in DESIGNS[test]:
        case(test, inputs)
    for inputs, value, within, source in PUBLISHED[test]:
        case(test, inputs, source, value, within)


if __name__ == "__main__":
    main()
