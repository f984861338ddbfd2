"""Growth curves."""

from mpmath import exp
from laws import draw, own_draw, row


@row("Richards", form="both", points=draw(9, P=[(1, 4), (-1, 1), (-1.5, 1.5), (0.5, 2)], x=(-1, 1)))
def richards(P, x):
    return P[1] / (1 + exp(-(P[3] * x + P[2]) / P[4])) ** P[4]


# Before and after the start; rates of either sign.
@row("MnMolecular", form="both", points=draw(5, P=[(1, 4), (-1, 0), (0.5, 1.5)], x=(0.4, 2)) +
     draw(4, P=[(-4, -1), (0, 1), (-1.5, -0.5)], x=(-2, -0.4)) + [([2, 1, 0.75], 0.5)])
def mn_molecular(P, x):
    return P[1] * (1 - exp(-(x - P[2]) * P[3]))


@row("MnMolecular1", form="both", points=draw(5, P=[(1, 4), (-3, -1), (0.5, 1.5)], x=(-1, 2)) +
     draw(4, P=[(-4, -1), (1, 3), (-1.5, -0.5)], x=(-1, 2)))
def mn_molecular1(P, x):
    return P[1] - P[2] * exp(-P[3] * x)


@row("SLogistic1", form="one", points=draw(9, P=[(1, 4), (-1, 1), (-1.5, 1.5)], x=(-1.5, 1.5)))
def slogistic1(P, x):
    return P[1] / (1 + exp(-(x - P[2]) * P[3]))


# Also a negative initial value, before the pole. Not close to x == 0, where the slope by the ceiling vanishes.
@row("SLogistic2", form="one", points=draw(6, P=[(0.3, 1), (1.5, 4), (0.3, 1.5)], x=(0.2, 1)) +
     draw(3, P=[(0.3, 1), (1.5, 4), (0.3, 1.5)], x=(-0.6, -0.2)) +
     [([-0.5, 2, 0.75], -0.5), ([-1, 3, 0.5], -0.25)])
def slogistic2(P, x):
    return P[2] / (1 + (P[2] - P[1]) / P[1] * exp(-4 * P[3] * x / P[2]))


@row("SLogistic3", form="one", points=draw(9, P=[(1, 4), (0.5, 3), (0.3, 1.5)], x=(-1, 2)))
def slogistic3(P, x):
    return P[1] / (1 + P[2] * exp(-P[3] * x))


@row("SGompertz", form="both", points=draw(9, P=[(1, 4), (-1, 1), (0.5, 1.5)], x=(-1, 2)))
def sgompertz(P, x):
    return P[1] * exp(-exp(-(x - P[2]) * P[3]))


# Shapes below and above 1, where the law changes its sign. Not late in the growth, where the slope by the shape
# vanishes: it is the difference of two logarithms.
@row("SRichards1", form="both", points=draw(5, P=[(2, 4), (-1, 0), (-0.5, 0.5), (0.5, 1.5)], x=(0, 0.8)) +
     draw(5, P=[(0.5, 3), (-1, 1), (1.5, 3), (0.5, 1.5)], x=(-1, 2)))
def srichards1(P, x):
    sign = -1 if P[3] < 1 else 1
    return (P[1] ** (1 - P[3]) + sign * exp(-(x - P[2]) * P[4])) ** (1 / (1 - P[3]))


@row("SRichards2", form="both", points=draw(5, P=[(1, 4), (-1, 0), (0.1, 0.7), (0.5, 1.5)], x=(0.1, 0.8)) +
     draw(5, P=[(1, 4), (-1, 1), (1.5, 3), (0.5, 1.5)], x=(-1, 2)))
def srichards2(P, x):
    return P[1] * (1 - (1 - P[3]) * exp(-(x - P[2]) * P[4])) ** (1 / (1 - P[3]))


@row("SWeibull1", form="both", points=draw(9, P=[(1, 4), (-1, 0), (0.5, 2.5), (0.5, 1.5)], x=(0.5, 1)))
def sweibull1(P, x):
    return P[1] * (1 - exp(-((x - P[2]) * P[4]) ** P[3]))


@row("SWeibull2", form="both", points=draw(6, P=[(2, 4), (-1, 1), (0.5, 2.5), (0.5, 1.5)], x=(0.5, 1.5)) +
     draw(3, P=[(-4, -2), (-1, 1), (-1.5, -0.5), (0.5, 1.5)], x=(0.5, 1.5)))
def sweibull2(P, x):
    return P[1] - (P[1] - P[2]) * exp(-(P[4] * x) ** P[3])


own_draw("Chapman", [(-3, 9), (0.3, 1), (-1, 3)], (1, 6), [([5, -0.6, 1.4], -2.0)])(
    lambda P, x: P[1] * (1 - exp(-P[2] * x)) ** P[3])


@row("Slogistic4", form="one", points=draw(5, P=[(-1, 1), (2, 4), (-1, 1), (0.5, 1.5)], x=(-1.5, 1.5)) +
     draw(4, P=[(2, 4), (-1, 1), (-1, 1), (-1.5, -0.5)], x=(-1.5, 1.5)))
def slogistic4(P, x):
    return P[2] + (P[1] - P[2]) / (1 + exp(-(x - P[3]) * P[4]))
