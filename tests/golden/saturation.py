"""Saturation, binding and adsorption: rectangular hyperbolas and their kin."""

from mpmath import exp, log
from laws import between, draw, drawn, own_draw, references, row, swapped

scale, rate, signed, away, positive = (1, 5), (0.2, 1.5), (-4, 4), (0.3, 6), (0.3, 4)

drawn("MicMent", ([scale, scale], away), form="both", extra=[([2, 5], -3.0), ([2, 5], -8.0), ([2, -5], 3.0)])(
    lambda P, x: P[1] * x / (P[2] + x))
drawn("MichaelisMenten", ([scale, scale], away), idle="zero")(lambda P, x: P[1] * x / (P[2] + x))


@row("Binding1", form="one", points=draw(5, P=[(1, 4), (0.5, 2)], x=(0.3, 4)) +
     draw(4, P=[(-4, -1), (-2, -0.5)], x=(3, 5)))
def binding1(P, x):
    return P[1] * x / (P[2] + x)


@row("Binding2", form="one", points=draw(5, P=[(1, 4), (1, 4), (0.5, 2), (3, 6)], x=(0.3, 4)) +
     draw(4, P=[(-4, -1), (1, 4), (-2, -0.5), (0.5, 2)], x=(3, 5)))
def binding2(P, x):
    return P[1] * x / (P[3] + x) + P[2] * x / (P[4] + x)


@row("Hyperbl", form="both", points=draw(10, P=[(-2, 4), (0.5, 3)], x=(0.2, 5)) + [([2, -1], 0.25)])
def hyperbola(P, x):
    return P[1] * x / (P[2] + x)


@row("Dhyperbl", form="both", points=draw(10, P=[(1, 4), (0.5, 3), (-4, 4), (0.5, 3), (-1, 1)], x=(0.2, 5))
     + [([2, -1, 3, -2, 0.5], 0.25)])
def double_hyperbola(P, x):
    return P[1] * x / (P[2] + x) + P[3] * x / (P[4] + x) + P[5] * x


drawn("RectHyperbola", ([(1, 20), positive], (0.1, 5)), ([(-3, -1), (-0.1, -0.02)], (1, 5)), count=5)(
    lambda P, x: P[1] / (1 + 1 / (P[2] * x)))
drawn("HyperbolaMod", ([positive, positive], (0.1, 9)), ([(-3, -1), (20, 30)], (-5, 5)), count=5)(
    lambda P, x: 1 / (P[1] + P[2] / x))
drawn("HyperbolaEVP", references, swapped, count=6)(
    lambda P, x: 1 / between(1 / P[1], 1 / P[2], 1 / P[3], 1 / P[4], 1 / x))
own_draw("HyperbolaGen", [(2, 9), (-2, 5), (0.1, 2), (0.3, 3)], (-0.3, 9), [([5, 3, 0.4, -2], 3.0)])(
    lambda P, x: P[1] - P[2] * exp(-log(1 + P[3] * x) / P[4]))
own_draw("LangmuirEXT1", [(1, 20), (0.1, 3), (-0.5, 1.6)], (0.2, 8))(
    lambda P, x: P[1] / (1 + x ** (P[3] - 1) / P[2]))
own_draw("LangmuirEXT2", [(0.1, 2), (0.1, 3), (-0.5, 1.6)], (0.2, 8))(
    lambda P, x: 1 / (P[1] + P[2] * x ** (P[3] - 1)))


# P1 - y (1 - x) in the derivative by P2 cancels in proportion to P2: no large ones here.
@drawn("BET", ([(1, 20), (2, 12)], (0.05, 0.8)), ([(1, 5), (-0.5, 0.5)], (1.2, 1.5)), count=5)
def bet(P, x):
    return P[1] * P[2] * x / ((1 - x) * (1 + (P[2] - 1) * x))


@drawn("BETMod", ([(0.01, 0.2), (0.1, 1)], (0.2, 0.8)), ([(1, 3), (-0.5, 3)], (1.3, 2)), count=5)
def bet_mod(P, x):
    return x / ((1 - x) * (P[1] + (P[1] + P[2]) * x))


drawn("BatesWatts", ([rate, rate, signed], [away, away]), form="ignore")(
    lambda P, x1, x2: P[3] * P[1] * x1 / (1 + P[1] * x1 + P[2] * x2))
