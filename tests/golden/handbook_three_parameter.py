"""The three-parameter laws of the regression handbook, their expected-value forms, and "errtest"."""

from mpmath import exp, log, sqrt
from laws import draw, row


def law(name, formula, P, x, more=()):
    """A law of this family, at ten generic points and `more`."""
    row(name, form="E", idle="flags", points=draw(10, P, x, seed=name) + list(more))(formula)


def power_place(x, first, second, b):
    return (x ** b - first ** b) / (second ** b - first ** b)


def bl_neld_evp(P, x):
    first, second = P[2] ** -P[5], P[4] ** -P[5]
    return (first + (second - first) * (x - P[1]) / (P[3] - P[1])) ** (-1 / P[5])


law("LangmuirEXT1", lambda P, x: P[1] / (1 + x ** (P[3] - 1) / P[2]), [(1, 20), (0.1, 3), (-0.5, 1.6)], (0.2, 8))
law("LangmuirEXT2", lambda P, x: 1 / (P[1] + P[2] * x ** (P[3] - 1)), [(0.1, 2), (0.1, 3), (-0.5, 1.6)], (0.2, 8))
law("Freundlich3P", lambda P, x: P[1] + P[2] * x ** P[3], [(-3, 3), (-2, 4), (-1.5, 2.5)], (0.2, 8))
law("Freundlich3PEVP1", lambda P, x: P[3] + (P[2] - P[3]) * (x / P[1]) ** P[4],
    [(0.5, 4), (3, 9), (-2, 2), (-1.5, 2.5)], (0.2, 8), [([2, 5, 1, 0.7], 2.0)])
law("Freundlich3PEVP2", lambda P, x: P[2] + (P[4] - P[2]) * power_place(x, P[1], P[3], P[5]),
    [(0.5, 2), (1, 9), (4, 7), (-5, 5), (0.4, 2.5)], (0.2, 9),
    [([1.5, 3, 6, 8, -0.7], 2.5), ([1.5, 3, 6, 8, 0.7], 1.5), ([6, 3, 1.5, 8, 0.7], 1.5)])
law("FreundlichEXT", lambda P, x: P[1] * x ** (P[2] * x ** -P[3]), [(-2, 6), (-1, 2), (-0.5, 1)], (0.2, 8))
law("FreundlichEXTEVP", lambda P, x: P[2] * exp(P[3] * (x ** -P[4] * log(x) - P[1] ** -P[4] * log(P[1]))),
    [(0.5, 4), (-2, 6), (-1, 2), (-0.5, 1)], (0.2, 8), [([2.5, 4, 1, 0.3], 2.5)])
law("Gunary", lambda P, x: x / (P[1] + P[2] * x + P[3] * sqrt(x)), [(0.1, 4), (0.1, 2), (-0.3, 3)], (0.1, 9))
law("Holliday1", lambda P, x: P[1] / (1 + (P[2] + P[3] * x) * x), [(-5, 20), (0.05, 1), (-0.01, 0.3)], (-0.5, 9))
law("BlNeldSmp", lambda P, x: exp(-log(P[1] + P[2] * x) / P[3]), [(0.2, 2), (0.05, 0.8), (0.4, 3)], (-0.2, 9),
    [([4, -0.3, -1.5], 2.0), ([3, 0.5, -0.6], 4.0)])
law("BlNeld", lambda P, x: exp(-log(P[1] + P[2] * x ** P[4]) / P[3]), [(0.2, 2), (0.05, 0.8), (0.4, 3), (-1, 2)],
    (0.2, 9), [([3, 0.5, -0.6, 1.3], 4.0)])
law("BlNeldEVP", bl_neld_evp, [(0.5, 2), (6, 12), (4, 9), (1, 4), (0.4, 3)], (0.2, 9),
    [([1, 8, 6, 3, -0.8], 2.5), ([1, 8, 6, 3, 1.4], 1.0), ([6, 3, 1, 8, 1.4], 1.0)])
law("Harris", lambda P, x: 1 / (P[1] + P[2] * x ** P[3]), [(0.1, 2), (0.05, 1), (-0.5, 2.5)], (0.2, 8))
law("HarrisEVP", lambda P, x: 1 / (1 / P[2] + (1 / P[4] - 1 / P[2]) * power_place(x, P[1], P[3], P[5])),
    [(0.5, 2), (5, 9), (4, 7), (1, 4), (0.4, 2.5)], (0.5, 9),
    [([1.5, 8, 6, 3, -0.7], 2.5), ([1.5, -8, 6, -3, 0.7], 2.5), ([6, 3, 1.5, 8, 0.7], 1.5)])
law("Rational0", lambda P, x: (P[2] + P[3] * x) / (1 + P[1] * x), [(0.1, 2), (-3, 3), (-2, 4)], (-0.3, 9))
law("Rational1", lambda P, x: (1 + P[3] * x) / (P[1] + P[2] * x), [(-4, -1), (-2, -0.1), (-2, 4)], (-0.3, 9))
law("Rational2", lambda P, x: (P[2] + P[3] * x) / (P[1] + x), [(1, 4), (-3, 3), (-2, 4)], (-0.3, 9))
law("Rational3", lambda P, x: (P[2] + x) / (P[1] + P[3] * x), [(1, 4), (-3, 3), (0.1, 4)], (-0.2, 9))
law("Rational4", lambda P, x: P[3] + P[2] / (x + P[1]), [(1, 4), (-3, 3), (-2, 4)], (-0.5, 9), [([-5, 2, 1], 1.5)])
law("Belehradek", lambda P, x: P[1] * (x - P[2]) ** P[3], [(-2, 5), (-3, 1), (-2, 3)], (1.5, 9))
law("Log3P1", lambda P, x: P[1] - P[2] * log(x + P[3]), [(-2, 5), (-3, 3), (0.5, 4)], (0, 9))
law("Exp3P1", lambda P, x: P[1] * exp(P[2] / (x + P[3])), [(-2, 5), (-8, 8), (1, 4)], (0, 9), [([2, 3, -5], 1.5)])
law("Exp3P1Md", lambda P, x: exp(P[1] + P[2] / (x + P[3])), [(-2, 3), (-8, 8), (1, 4)], (0, 9), [([2, 3, -5], 1.5)])
law("Chapman", lambda P, x: P[1] * (1 - exp(-P[2] * x)) ** P[3], [(-3, 9), (0.3, 1), (-1, 3)], (1, 6),
    [([5, -0.6, 1.4], -2.0)])
law("Exp3P2", lambda P, x: exp(P[1] + P[2] * x + P[3] * x * x), [(-2, 2), (-1, 1), (-0.4, 0.2)], (-3, 4))
law("HyperbolaGen", lambda P, x: P[1] - P[2] * exp(-log(1 + P[3] * x) / P[4]), [(2, 9), (-2, 5), (0.1, 2), (0.3, 3)],
    (-0.3, 9), [([5, 3, 0.4, -2], 3.0)])
law("ExpGrowth", lambda P, x: P[1] * exp(x / P[2]), [(-2, 5), (1, 5)], (-3, 6), [([3, -2], 1.5)])

row("errtest", form="D", points=draw(8, [(-2, 2), (-2, 2), (4, 9)], (-3, 3)))(lambda P, x: P[1] + P[2] * x + 0 * P[3])
