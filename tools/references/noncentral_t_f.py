#!/usr/bin/python3
"""Reference values of the t and F functions of kelcommon, in multiple precision.

Writes one file a function into the folder given as argument (tests/kelcommon/references): arguments and value as
shortest round-trip doubles. Everything is summed from series of positive terms at 45 digits, or solved by Newton's
method on those sums, so that nothing is shared with the library's own algorithms but the definitions.
"""
import random
import sys

from mpmath import mp, mpf

mp.dps = 45
EPS = mpf(10) ** -42


def beta_odds(a, b, c):
    """Lower and upper tail of the incomplete beta function at odds c = y / (1 - y)."""
    y = c / (1 + c)
    if terms(a, b, y) > terms(b, a, 1 - y):
        upper = beta_series(b, a, 1 / c)
        return 1 - upper, upper
    lower = beta_series(a, b, c)
    return lower, 1 - lower


def terms(a, b, y):
    """About the number of terms of beta_series; its sum and one minus it both have digits to spare."""
    a, b, y = float(a), float(b), min(float(y), 1 - 1e-15)
    peak = max(0.0, (y * (a + b) - a) / (1 - y))
    return peak + min(100 / (1 - y), 15 * ((a + peak + 1) * (1 + (a + peak) / (b + 1))) ** 0.5 + 100)


def first_step(a, b, c):
    """y^a (1-y)^b / (a B(a, b))."""
    return mp.exp(a * mp.log(c) - (a + b) * mp.log1p(c) + mp.loggamma(a + b) - mp.loggamma(b) - mp.loggamma(a + 1))


def beta_series(a, b, c):
    """Sum of y^(a+k) (1-y)^b / ((a+k) B(a+k, b)), k = 0, 1, ..."""
    y = c / (1 + c)
    term = total = mpf(1)
    k = 0
    while term > EPS * total * (1 - y):
        term *= y * (a + b + k) / (a + k + 1)
        total += term
        k += 1
    return total * first_step(a, b, c)


def noncentral_f(x, df1, df2, noncentrality):
    """Lower and upper tail: Poisson mixture of incomplete beta functions, from its heaviest term outwards."""
    x, df1, df2, noncentrality = mpf(x), mpf(df1), mpf(df2), mpf(noncentrality)
    if x <= 0:
        return mpf(0), mpf(1)
    a, b, m, c = df1 / 2, df2 / 2, noncentrality / 2, df1 * x / df2
    if m == 0:
        return beta_odds(a, b, c)
    return mixture(a, b, m, c, lambda j: mp.exp(-m + j * mp.log(m) - mp.loggamma(j + 1)), lambda j: m / j)


def mixture(a, b, m, c, weight, ratio, offset=0):
    """Sum of weight(j) I_y(a + j, b) and of weight(j) (1 - I_y(a + j, b)); ratio(j) = weight(j) / weight(j - 1)."""
    y = c / (1 + c)
    top = int(m + 22 * mp.sqrt(m) + 120)
    bottom = 0 if m < 1000 else max(0, int(m - 30 * mp.sqrt(m)))
    lower_j, _ = beta_odds(a + top, b, c)
    _, upper_j = beta_odds(a + bottom, b, c)
    w = weight(mpf(top))
    step = first_step(a + top, b, c)
    lower = mpf(0)
    for j in range(top, bottom - 1, -1):
        lower += w * lower_j
        if j == bottom:
            break
        step *= (a + j) / (y * (a + b + j - 1))
        lower_j += step
        w /= ratio(mpf(j))
    w = weight(mpf(bottom))
    step = first_step(a + bottom, b, c)
    upper = mpf(0)
    for j in range(bottom, top + 1):
        upper += w * upper_j
        upper_j += step
        step *= y * (a + b + j) / (a + j + 1)
        w *= ratio(mpf(j + 1))
    return lower, upper


def noncentral_t(x, df, delta):
    """Distribution function; the wrong-side tail from the difference of two mixtures, at more digits."""
    x, df, delta = mpf(x), mpf(df), mpf(delta)
    if delta < 0:
        return complement_t(-x, df, -delta)
    if x >= 0:
        if x == 0:
            return mp.ncdf(-delta)
        even, odd = halves(x, df, delta)
        return mp.ncdf(-delta) + (even[0] + odd[0]) / 2
    even, odd = halves(-x, df, delta)
    return (even[1] - odd[1]) / 2


def complement_t(x, df, delta):
    """P(T > x), delta >= 0."""
    if x == 0:
        return mp.ncdf(delta)
    if x > 0:
        even, odd = halves(x, df, delta)
        return (even[1] + odd[1]) / 2
    return 1 - noncentral_t(x, df, delta)


def halves(x, df, delta):
    m, b, c = delta * delta / 2, df / 2, x * x / df
    if delta == 0:
        return beta_odds(mpf(1) / 2, b, c), (mpf(0), mpf(0))
    even = mixture(mpf(1) / 2, b, m, c, lambda j: mp.exp(-m + j * mp.log(m) - mp.loggamma(j + 1)), lambda j: m / j)
    odd = mixture(mpf(1), b, m, c,
                  lambda j: delta / mp.sqrt(2) * mp.exp(-m + j * mp.log(m) - mp.loggamma(j + mpf(3) / 2)),
                  lambda j: m / (j + mpf(1) / 2))
    return even, odd


def idf_f(p, df1, df2):
    p, a, b = mpf(p), mpf(df1) / 2, mpf(df2) / 2
    return solve_beta(p, 1 - p, a, b) * b / a


def idf_t(p, df):
    p, b = mpf(p), mpf(df) / 2
    if p == 0.5:
        return mpf(0)
    # |T|^2 / df has odds distribution beta(1/2, b); its lower tail is |2p - 1|, its upper 2 min(p, 1-p).
    c = solve_beta(abs(2 * p - 1), 2 * min(p, 1 - p), mpf(1) / 2, b)
    root = mp.sqrt(c * 2 * b)
    return root if p > 0.5 else -root


def solve_beta(p, q, a, b):
    """Odds c at which the lower tail is p and the upper is q = 1 - p: safeguarded Newton in log c, for the smaller."""
    low, high = mpf(-4000), mpf(4000)
    v = mp.log(a / b)
    goal = mp.log(min(p, q))
    for _ in range(400):
        c = mp.exp(v)
        lower, upper = beta_odds(a, b, c)
        if lower < mpf(10) ** -25 or upper < mpf(10) ** -25:
            if lower < upper:
                low = v
            else:
                high = v
            v = (v + (mp.log(a / b) if abs(v - mp.log(a / b)) > 1e-9 else (low + high) / 2)) / 2
            continue
        value = lower if p < q else upper
        density = a * first_step(a, b, c)
        error = mp.log(value) - goal
        step = error * value / density * (1 if p < q else -1)
        if (p < q) == (error > 0):
            high = v
        else:
            low = v
        if abs(step) < mpf(10) ** -12:
            return mp.exp(v - step)  # the next step would be of the order of 1e-24
        v = v - step if low < v - step < high else (low + high) / 2
    raise ArithmeticError((p, a, b))


def log_uniform(rng, low, high):
    return float(mp.exp(rng.uniform(float(mp.log(low)), float(mp.log(high)))))


def some_df(rng, high=1e7):
    kind = rng.random()
    if kind < 0.4:
        return float(rng.randint(1, 60))
    if kind < 0.6:
        return float(rng.choice([1, 2, 3, 4, 5, 10, 30, 99, 100, 1000, 10000, 100000]))
    return log_uniform(rng, 0.5, high)


def write(folder, name, rows):
    with open(f"{folder}/{name}.csv", "w", encoding="ascii") as out:
        out.write("function,a1,a2,a3,a4,a5,value,err\n")
        for arguments, value in rows:
            cells = [repr(float(v)) for v in arguments] + [""] * (5 - len(arguments))
            out.write(",".join([name] + cells + [repr(float(value)), ""]) + "\n")


def t_rows(rng, count):
    rows = []
    while len(rows) < count:
        df = some_df(rng)
        delta = rng.choice([0.0, rng.uniform(0, 1), rng.uniform(0, 5), rng.uniform(0, 12), log_uniform(rng, 1e-6, 100)])
        delta *= rng.choice([1, 1, -1])
        z = rng.uniform(-7, 7)
        spread = (1 + min(delta * delta, 1e4) / (2 * df)) ** 0.5
        x = rng.choice([delta + z * spread, delta + z * spread * (1 + 8 / df), z, -abs(z), 1.96])
        if df < 3 and rng.random() < 0.5:
            x *= log_uniform(rng, 1, 30)
        if x * x / df > 2e3:
            continue
        value = noncentral_t(x, df, delta)
        # The wrong-side tail is a difference of numbers below 1 at 45 digits.
        if value < mpf(10) ** (-25 if x < 0 < delta else -300):
            continue
        rows.append(((x, df, delta, 1e-12), value))
    return rows


def f_rows(rng, count):
    rows = []
    while len(rows) < count:
        df1 = some_df(rng, 1e6 if rng.random() < 0.05 else 500)
        df2 = some_df(rng, rng.choice([1e3, 1e5, 1e7]))
        noncentrality = rng.choice([0.0, rng.uniform(0, 20), rng.uniform(0, 50), log_uniform(rng, 1e-6, 1e4)])
        mean = 1 + noncentrality / df1
        sd = (2 * (df1 + 2 * noncentrality) / df1 ** 2 + 2 * mean ** 2 / df2) ** 0.5
        x = mean + rng.uniform(-6, 7) * sd
        if x <= 0 or rng.random() < 0.2:
            x = mean * log_uniform(rng, 1e-3, 10)
        c = df1 * x / df2
        if c > 1e3 or c * (df1 + df2) > 1e6 and df1 > 1e5:
            continue
        value = noncentral_f(x, df1, df2, noncentrality)[0]
        if value < mpf(10) ** -300:
            continue
        rows.append(((x, df1, df2, noncentrality, 1e-12), value))
    return rows


def probability(rng):
    return rng.choice([rng.uniform(0, 1), 0.95, 0.975, 0.99, 0.995, 0.05, 0.025, log_uniform(rng, 1e-12, 0.5),
                       1 - log_uniform(rng, 1e-12, 0.5), 0.5 + log_uniform(rng, 1e-9, 0.1)])


def main(folder):
    rng = random.Random(20240611)
    write(folder, "IdfT", [((p, df, 1e-40, 1e-30), idf_t(p, df))
                           for p, df in ((probability(rng), some_df(rng)) for _ in range(300))])
    write(folder, "IdfF", [((p, df1, df2), idf_f(p, df1, df2)) for p, df1, df2 in
                           ((probability(rng), some_df(rng, 500), some_df(rng, 1e6)) for _ in range(300))])
    write(folder, "NonCentralCdfT", t_rows(rng, 500))
    write(folder, "NonCentralCdfF", f_rows(rng, 400))


if __name__ == "__main__":
    main(sys.argv[1])
