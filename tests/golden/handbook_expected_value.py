"""The expected-value forms of the two-parameter laws: the plain curve through the responses given."""

from mpmath import exp, log
from laws import draw, row


def law(name, P, x, *more, **facts):
    count = 9 - 3 * len(more)
    points = [point for ranges, position in ((P, x), *more) for point in draw(count, P=ranges, x=position)]
    return row(name, form="E", idle="flags", points=points, **facts)


def between(t1, y1, t3, y3, t):
    """The straight line through (t1, y1) and (t3, y3), at t."""
    return y1 + (y3 - y1) * (t - t1) / (t3 - t1)


two_points = [(0.5, 1.5), (1, 4), (4, 6), (5, 9)]
swapped = [(4, 6), (5, 9), (0.5, 1.5), (1, 4)]


@law("Log2P1EVP", [(0.5, 2), (1, 4), (1, 3)], (3, 9), ([(0.5, 2), (1, 4), (-3, -1)], (3, 9)))
def log_2p1_evp(P, x):
    shift = P[1] - exp(P[2] / P[3])
    return P[3] * log(x - shift)


def line(P, x):
    return between(P[1], exp(P[2]), P[3], exp(P[4]), x)


# The derivatives divide the exponentials by the line alone; the true ones have the distance P3 - P1 as well.
unit_apart = [4, (0.5, 2), 3, (0.5, 2)], (2.9, 4.1)
law("Log2P2EVP", [(0.5, 1.5), (-1, 1), (4, 6), (1, 2)], (1, 9), unit_apart, stated={
    1: lambda P, x: 1 / (P[3] - P[1]) - exp(P[4]) / line(P, x),
    2: lambda P, x: (P[3] - x) * exp(P[2]) / line(P, x),
    3: lambda P, x: exp(P[2]) / line(P, x) - 1 / (P[3] - P[1]),
    4: lambda P, x: (x - P[1]) * exp(P[4]) / line(P, x)})(lambda P, x: log(line(P, x)))


@law("BoxLucas1EVP", [(0.5, 2), (1, 9), (0.2, 0.8)], (3, 9), ([(-2, -1), (1, 9), (1.2, 2)], (1, 4)))
def box_lucas_1_evp(P, x):
    plateau = P[2] / (1 - exp(P[1] * log(P[3])))
    return plateau - plateau * exp(x * log(P[3]))


@law("Exp2PEVP", two_points, (1.6, 3.9), (swapped, (7, 12)))
def exp_2p_evp(P, x):
    return exp(between(P[1], log(P[2]), P[3], log(P[4]), x))


@law("FreundlichEVP", two_points, (1.6, 3.9), (swapped, (7, 12)))
def freundlich_evp(P, x):
    return exp(between(log(P[1]), log(P[2]), log(P[3]), log(P[4]), log(x)))


@law("HyperbolaEVP", two_points, (1.6, 3.9), (swapped, (7, 12)))
def hyperbola_evp(P, x):
    return 1 / between(1 / P[1], 1 / P[2], 1 / P[3], 1 / P[4], 1 / x)


@law("ReciprocalEVP", two_points, (1.6, 3.9), ([(4, 6), (5, 9), (0.5, 1.5), -2], (7, 12)))
def reciprocal_evp(P, x):
    return 1 / between(P[1], 1 / P[2], P[3], 1 / P[4], x)


@law("Ratkowsky2P1EVP", [(0.5, 2), (0.2, 0.8), (0.5, 3)], (3, 9), ([(1, 2), (-2, -1), (-0.3, -0.1)], (2.2, 3)))
def ratkowsky_2p1_evp(P, x):
    exponent = -log(1 - P[2]) / log(1 + P[3] * P[1])
    return 1 - exp(-exponent * log(1 + P[3] * x))


@law("Ratkowsky2P2EVP", [(1.5, 3), (1, 9), (0.5, 2)], (4, 9), ([(0.3, 0.6), (1, 9), (-2, -1)], (2, 3)))
def ratkowsky_2p2_evp(P, x):
    return P[2] * (1 - exp(-P[3] * log(x))) * (1 - exp(-P[3] * log(P[1])))


@law("Ratkowsky2P3EVP", [(0.5, 2), (1, 9), (-1, 3)], (-0.8, 9), ([(-4, -2), (1, 9), (0.3, 2)], (-9, -5)))
def ratkowsky_2p3_evp(P, x):
    scale = P[2] / exp(P[3] * log(abs(P[1] + 1)))
    return scale * exp(P[3] * log(abs(x + 1)))
