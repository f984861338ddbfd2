"""Exponential models from a start time: decays, growths, two-phase association, the pulse."""

from mpmath import exp
from laws import blocks, draw, row

term = [(-2, 3), (0.5, 3)]


def start(count):
    """Baseline, start time on either side of x, and that many terms."""
    return dict(P=[(-1, 2), (-1, 1)] + term * count, x=(-1.5, 3))


def decay(P, x):
    return P[1] + sum(A * exp((P[2] - x) / T) for A, T in blocks(P, 2, first=3))


def growth(P, x):
    return P[1] + sum(A * exp((x - P[2]) / T) for A, T in blocks(P, 2, first=3))


for terms in (1, 2, 3):
    row("ExpDecay%d" % terms, form="D", points=draw(10, **start(terms)))(decay)
for terms in (1, 2):
    row("ExpGrow%d" % terms, form="D", points=draw(10, **start(terms)))(growth)

before = [([0.3, 2, 1, 0.5, 2, 1.5, 3, 0.7], 1.75), ([0.3, 2, 1, 0.5], -4.0)]


@row("Kinetic", form="W", points=before + [point for n in (1, 2, 3) for point in draw(5, **start(n))])
def kinetic(P, x):
    return P[1] + 0 * x if x < P[2] else decay(P, x)


@row("ExpAssoc", form="D", points=draw(10, P=[(-1, 2)] + term * 2, x=(-2, 3))
     + [([0.5, 1.5, -2, -1, -0.75], 0.5)])
def association(P, x):
    return P[1] + P[2] * (1 - exp(-x / P[3])) + P[4] * (1 - exp(-x / P[5]))


@row("Pulse", form="D", probe="plain",
     points=draw(10, P=[(-1, 2), (-1, 0), (-2, 3), (0.5, 2), (0.3, 3), (0.5, 3)], x=(0.5, 3))
     + [([0.7, 1, 2, 0.5, 1.5, 1], 0.25)])
def pulse(P, x):
    if x < P[2]:
        return P[1] + 0 * x
    return P[1] + P[3] * (1 - exp(-(x - P[2]) / P[4])) ** P[5] * exp(-(x - P[2]) / P[6])
