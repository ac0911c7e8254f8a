#!/usr/bin/env python3
"""Prints the rational functions of log_gamma.cpp and normal.cpp, with their largest errors between the nodes.

Each is the quotient of two polynomials of degree 6 that agrees with the function at 13 Chebyshev nodes of the interval,
which is within a small factor of the best one. The errors are those of the function that the quotient serves, with the
coefficients as the compiler rounds them.

Usage: rational_fits.py          (needs mpmath)
"""
from mpmath import cos, log, lu_solve, matrix, mp, mpf, pi, polyval, sqrt

mp.dps = 50
DEGREE = 6
HALF = mpf(1) / 2


def scaled_gamma_rest(s):
    """(1/12 - x log G(x)) x^2 with G the scaled gamma function and x = 1 / sqrt(s)."""
    x = 1 / sqrt(s)
    return (mpf(1) / 12 - x * (mp.loggamma(x) - (x - HALF) * log(x) + x - log(2 * pi) / 2)) / s


def away_from(x, *zeros):
    """Quotients of two functions with the same zero are taken beside it."""
    return x + (mpf(10) ** -20 if any(abs(x - zero) < mpf(10) ** -20 for zero in zeros) else 0)


def log_gamma_from_1_to_2(z):
    z = away_from(z, 0, 1)
    return mp.loggamma(1 + z) / (z * (z - 1)) - HALF


def log_gamma_from_2_to_4(z):
    z = away_from(z, 1)
    return mp.loggamma(1 + z) / (z * (z - 1)) - mpf(3) / 8


def normal_quantile(tail):
    """The z with upper probability `tail`, by Newton's method on the logarithm."""
    z = sqrt(-2 * log(tail)) - 1 if tail < 0.05 else (HALF - tail) * 2.5
    for _ in range(200):
        value = mp.erfc(z / sqrt(2)) / 2
        step = log(value / tail) * value / (mp.exp(-z * z / 2) / sqrt(2 * pi))
        z += step
        if abs(step) < mpf(10) ** -40:
            return z
    raise ArithmeticError(tail)


def normal_centre(square):
    return (normal_quantile(HALF - sqrt(square)) / sqrt(square) if square > 1e-25 else sqrt(2 * pi)) - mpf(5) / 2


def normal_shoulder(u):
    s = u + mpf(9) / 4
    return normal_quantile(mp.exp(-s * s / 2)) - s * s / 4


def normal_tail(s):
    return s - normal_quantile(mp.exp(-s * s / 2))


def solve(function, low, high):
    count = 2 * DEGREE + 1
    equations, values = matrix(count, count), matrix(count, 1)
    for i in range(count):
        v = (low + high) / 2 + (high - low) / 2 * cos(pi * (2 * i + 1) / (2 * count))
        values[i] = function(v)
        for j in range(DEGREE + 1):
            equations[i, j] = v ** j
        for j in range(1, DEGREE + 1):
            equations[i, DEGREE + j] = -values[i] * v ** j
    solution = list(lu_solve(equations, values))
    return solution[:DEGREE + 1], [mpf(1)] + solution[DEGREE + 1:]


def print_fit(name, function, low, high, weight):
    low, high = mpf(low), mpf(high)
    numerator, denominator = solve(function, low, high)
    checks = 300
    worst = mpf(0)
    for i in range(checks + 1):
        v = (low + high) / 2 - (high - low) / 2 * cos(pi * i / checks)
        exact = [polyval([mpf(float(c)) for c in reversed(p)], v) for p in (numerator, denominator)]
        worst = max(worst, abs(exact[0] / exact[1] - function(v)) * weight(v))
    print(f"// {name}, from {mp.nstr(low, 6)} to {mp.nstr(high, 6)}: {mp.nstr(worst, 2)}")
    for coefficients in (numerator, denominator):
        print("{" + ", ".join(repr(float(c)) for c in coefficients) + "},")


def main():
    print_fit("scaled gamma from 1 to 2", scaled_gamma_rest, HALF ** 2, 1, lambda s: s ** 1.5)
    print_fit("scaled gamma from 2 on", scaled_gamma_rest, 1e-6, HALF ** 2, lambda s: s ** 1.5)
    print_fit("log gamma from 1 to 2", log_gamma_from_1_to_2, 0, 1, lambda z: 1)
    print_fit("log gamma from 2 to 4", log_gamma_from_2_to_4, 1, 3, lambda z: 1)
    print_fit("normal centre", normal_centre, 0, HALF ** 4, lambda square: mpf(1) / 2.5)
    relative = lambda s: 1 / normal_quantile(mp.exp(-s * s / 2))
    print_fit("normal shoulder", normal_shoulder, -0.59, 0.55, lambda u: relative(u + mpf(9) / 4))
    for low, high in ((2.8, 5), (5, 9), (9, 18), (18, 38.7)):
        print_fit("normal tail", normal_tail, low, high, relative)


if __name__ == "__main__":
    main()
