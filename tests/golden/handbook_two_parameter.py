"""The two-parameter laws of the handbook, plain and modified."""

from mpmath import exp, log
from laws import draw, row


def law(name, *ranges):
    """One row; each range is (P1, P2, x) and is drawn from equally."""
    count = 9 // len(ranges) + 1
    points = [point for P1, P2, x in ranges for point in draw(count, P=[P1, P2], x=x)]
    return row(name, form="E", idle="flags", points=points)


positive = (0.3, 4)

law("Log2P1", ((-3, 0), (-2, 3), (0.5, 8)), ((2, 4), (0.5, 2), (4.5, 20)))(lambda P, x: P[2] * log(x - P[1]))
law("Log2P2", ((0.2, 3), (0.1, 2), (0.5, 8)), ((5, 9), (-1, -0.2), (-3, 3)))(lambda P, x: log(P[1] + P[2] * x))
law("BoxLucas1Mod", ((1, 20), (0.2, 0.9), (-2, 8)), ((-3, 3), (1.1, 2), (0.5, 4)))(
    lambda P, x: P[1] - P[1] * exp(x * log(P[2])))
law("Exp2P", ((1, 20), (0.2, 0.9), (-2, 8)), ((-3, 3), (1.1, 2), (-4, 4)))(
    lambda P, x: P[1] * exp(x * log(P[2])))
law("Exp2PMod1", ((1, 20), (-2, -0.2), (-2, 8)), ((-3, 3), (0.1, 2), (-4, 4)))(
    lambda P, x: P[1] * exp(x * P[2]))
law("Exp2PMod2", ((-2, 2), (-2, -0.2), (-2, 8)), ((-3, 3), (0.1, 2), (-4, 4)))(
    lambda P, x: exp(P[1]) * exp(x * P[2]))
for name in "Freundlich", "TimePow":
    law(name, ((-3, 3), (-2, -0.2), positive), ((1, 20), positive, (0.01, 50)))(
        lambda P, x: P[1] * exp(P[2] * log(x)))
law("FreundlichMod1", ((-3, 3), (-2, -0.3), positive), ((1, 20), positive, (0.01, 50)))(
    lambda P, x: P[1] * exp(log(x) / P[2]))
law("RectHyperbola", ((1, 20), positive, (0.1, 5)), ((-3, -1), (-0.1, -0.02), (1, 5)))(
    lambda P, x: P[1] / (1 + 1 / (P[2] * x)))
law("HyperbolaMod", (positive, positive, (0.1, 9)), ((-3, -1), (20, 30), (-5, 5)))(
    lambda P, x: 1 / (P[1] + P[2] / x))
law("Reciprocal", (positive, positive, (0.1, 9)), ((-3, -1), (0.01, 0.1), (-5, 5)))(
    lambda P, x: 1 / (P[1] + P[2] * x))
law("ReciprocalMod", ((-5, 5), positive, (0.1, 9)), ((1, 9), (-0.1, -0.02), (-5, 5)))(
    lambda P, x: P[1] / (1 + P[2] * x))
law("LineMod", ((-3, 3), (-5, 5), (-9, 9)))(lambda P, x: P[1] * x - P[1] * P[2])
law("Pow2P3", (positive, positive, (0.2, 5)), ((-0.1, -0.02), (-3, 3), (1, 5)))(
    lambda P, x: 1 - exp(-P[2] * log(1 + P[1] * x)))
law("Pow2P1", ((1, 20), (0.3, 2), (1.2, 9)), ((-3, -1), (-2, -0.3), (0.2, 0.9)))(
    lambda P, x: P[1] - P[1] / exp(P[2] * log(x)))
law("Pow2P2", ((1, 20), (-2, 3), (-0.8, 9)))(lambda P, x: P[1] * exp(P[2] * log(x + 1)))
law("Bradley", ((-5, 5), positive, (0.05, 0.6)), ((1, 20), (-4, -0.5), (2, 9)))(
    lambda P, x: P[1] * log(P[2] * log(1 / x)))


# P1 - y (1 - x) in the derivative by P2 cancels in proportion to P2: no large ones here.
@law("BET", ((1, 20), (2, 12), (0.05, 0.8)), ((1, 5), (-0.5, 0.5), (1.2, 1.5)))
def bet(P, x):
    return P[1] * P[2] * x / ((1 - x) * (1 + (P[2] - 1) * x))


@law("BETMod", ((0.01, 0.2), (0.1, 1), (0.2, 0.8)), ((1, 3), (-0.5, 3), (1.3, 2)))
def bet_mod(P, x):
    return x / ((1 - x) * (P[1] + (P[1] + P[2]) * x))
