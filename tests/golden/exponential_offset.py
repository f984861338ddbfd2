"""Exponential models from x = 0, the pulse without a baseline, the exponential by its rate."""

from mpmath import exp
from laws import blocks, draw, row

term, turned = [(0.5, 3), (0.5, 3)], [(-3, -0.5), (-3, -0.5)]


def points(terms):
    """Positive and negative times."""
    return [point for kind in (term, turned) for point in draw(6, P=[(-1, 2)] + kind * terms, x=(-2, 3))]


def decay(P, x):
    return P[1] + sum(A * exp(-x / T) for A, T in blocks(P, 2))


def growth(P, x):
    return P[1] + sum(A * exp(x / T) for A, T in blocks(P, 2))


for terms in (1, 2, 3):
    row("ExpDec%d" % terms, form="D", points=points(terms))(decay)
    row("ExpGro%d" % terms, form="D", points=points(terms))(growth)


@row("ExpAssoc2", form="D", points=points(2))
def association(P, x):
    return P[1] + sum(A * (1 - exp(-x / T)) for A, T in blocks(P, 2))


@row("Pulse1", form="D", points=draw(10, P=[(-1, 0), (-2, 3), (0.5, 2), (0.3, 3), (0.5, 3)], x=(0.5, 3))
     + [([1, 2, 0.5, 1.5, 1], 0.25)])
def pulse(P, x):
    d = x - P[1]
    return P[2] * (1 - exp(-d / P[3])) ** P[4] * exp(-d / P[5]) if d > 0 else 0 * x


@row("Exponential", form="D", points=draw(10, P=[(-1, 2), (-2, 3), (-1.5, 1.5)], x=(-2, 3)))
def exponential(P, x):
    return P[1] + P[2] * exp(P[3] * x)
