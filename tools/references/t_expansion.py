#!/usr/bin/env python3
"""Prints the coefficients of kelcommon/src/t_expansion.cpp.

With e = 1 / N^2 the normal deviate v of a quantile of t obeys, as a power series in e,
  v' = A exp((v^2 - z^2) / 2) / h(v^2 / N),  v = z + e q_1(z) + e^2 q_2(z) + ...
where h(s) = sqrt((s / 2) / sinh(s / 2)) and A makes the total one. The order e^j of its logarithm is
  q_j' - z q_j = r_j(z) + a_j
with r_j of the q before, and has one polynomial q_j, which is odd.

Usage: t_expansion.py
"""

from fractions import Fraction
from math import comb, factorial

ORDERS = 8


def bernoulli(last):
    numbers = [Fraction(1)]
    for m in range(1, last + 1):
        numbers.append(-sum(comb(m + 1, k) * numbers[k] for k in range(m)) / (m + 1))
    return numbers


def log_h(order):
    """The coefficient of s^(2 order) in log(h(s))."""
    k = 2 * order
    return -bernoulli(k)[k] / (2 * k * factorial(k))


def add(a, b):
    longer, shorter = (a, b) if len(a) >= len(b) else (b, a)
    return [x + y for x, y in zip(longer, shorter)] + longer[len(shorter):]


def multiply(a, b):
    product = [Fraction(0)] * max(len(a) + len(b) - 1, 0)
    for i, x in enumerate(a):
        for k, y in enumerate(b):
            product[i + k] += x * y
    return product


def scale(a, factor):
    return [factor * x for x in a]


def derivative(a):
    return [k * x for k, x in enumerate(a)][1:]


def multiply_series(a, b):
    """Product of two power series in e whose coefficients are polynomials in z."""
    product = [[] for _ in range(ORDERS + 1)]
    for i, x in enumerate(a):
        for k, y in enumerate(b[:ORDERS + 1 - i]):
            product[i + k] = add(product[i + k], multiply(x, y))
    return product


def powers(series):
    """The series to the powers 0, 1, 2, ..."""
    power = [[Fraction(1)]] + [[] for _ in range(ORDERS)]
    while True:
        yield power
        power = multiply_series(power, series)


def right_side(j, v, slopes):
    squared = multiply_series(v, v)
    r = scale(squared[j], Fraction(1, 2))
    for k, power in zip(range(j + 1), powers(multiply_series(squared, squared))):
        if k > 0:
            r = add(r, scale(power[j - k], -log_h(k)))
    for k, power in zip(range(j + 1), powers(slopes)):
        if k > 1:
            r = add(r, scale(power[j], Fraction((-1) ** k, k)))
    return r


def odd_solution(r):
    """The polynomial q with q' - z q = r but for a constant."""
    while r and r[-1] == 0:
        r = r[:-1]
    q = [Fraction(0)] * (len(r) + 1)
    for k in range(len(r) - 1, 0, -1):
        q[k - 1] = (k + 1) * q[k + 1] - r[k]
    return q[:-1]


def expansion():
    v = [[Fraction(0), Fraction(1)]] + [[] for _ in range(ORDERS)]
    slopes = [[] for _ in range(ORDERS + 1)]
    for j in range(1, ORDERS + 1):
        v[j] = odd_solution(right_side(j, v, slopes))
        slopes[j] = derivative(v[j])
    return v[1:]


def main():
    for q in expansion():
        print("{" + ", ".join(repr(float(c)) for c in reversed(q[1::2])) + "},")


if __name__ == "__main__":
    main()
