"""The asymptotic regression law in its seven parameterisations."""

from mpmath import exp
from laws import draw, row

level, signed, rate, base, side = (1, 5), (-4, 4), (0.2, 2), (0.1, 0.9), (-2, 5)


def stated(name, parameters, extra=()):
    return row(name, form="E", idle="flags", points=draw(8, P=parameters, x=side) + list(extra))


at_zero = [([1.5, 0.5, 2.5], 0.0)]

stated("Asymptotic1", [level, signed, base], [([3, -2, 0.5], 0.0), ([3, 0, 0.5], 2.0)])(
    lambda P, x: P[1] - P[2] * P[3] ** x)
stated("Asymptotic2", [level, signed, rate])(lambda P, x: P[1] - P[2] * exp(-P[3] * x))
stated("Asymptotic3", [level, (-4, -2.5), rate])(lambda P, x: P[1] * (1 - exp(-P[3] * (x - P[2]))))
stated("Asymptotic4", [level, base, signed], at_zero)(lambda P, x: P[1] + (P[3] - P[1]) * P[2] ** x)
stated("Asymptotic5", [level, rate, signed])(lambda P, x: P[1] + (P[3] - P[1]) * exp(-P[2] * x))
stated("Asymptotic6", [level, (-1, 1), rate], at_zero)(lambda P, x: P[1] - exp(-(P[2] + P[3] * x)))
stated("Asymptotic7", [level, signed, rate], at_zero)(lambda P, x: P[1] + P[2] * (1 - exp(-P[3] * x)))
