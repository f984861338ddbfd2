"""Exponentials that stand alone: decays, growths, association and pulses, from x = 0 or from a start time."""

from mpmath import exp
from laws import blocks, draw, drawn, row

positive, negative = [(0.5, 3), (0.5, 3)], [(-3, -0.5), (-3, -0.5)]


def from_zero(terms):
    """Positive and negative times."""
    return [point for kind in (positive, negative) for point in draw(6, P=[(-1, 2)] + kind * terms, x=(-2, 3))]


def decay(P, x):
    return P[1] + sum(A * exp(-x / T) for A, T in blocks(P, 2))


def growth(P, x):
    return P[1] + sum(A * exp(x / T) for A, T in blocks(P, 2))


for terms in (1, 2, 3):
    row("ExpDec%d" % terms, form="both", points=from_zero(terms))(decay)
    row("ExpGro%d" % terms, form="both", points=from_zero(terms))(growth)


@row("Lanczos3", form="both", probe="plain",
     points=draw(8, P=[(0.05, 1), (0.5, 2), (0.5, 1), (2, 4), (1, 2), (4, 6)], x=(0, 1.2))
     + [([1, -0.5, -2, 0.5, 1, 3], 1.0), ([1, 2, 3, 4, 5, 6], -0.5)])
def lanczos3(P, x):
    return P[1] * exp(-P[2] * x) + P[3] * exp(-P[4] * x) + P[5] * exp(-P[6] * x)


term = [(-2, 3), (0.5, 3)]


def from_start(count):
    """Baseline, start time on either side of x, and that many terms."""
    return dict(P=[(-1, 2), (-1, 1)] + term * count, x=(-1.5, 3))


def late_decay(P, x):
    return P[1] + sum(A * exp((P[2] - x) / T) for A, T in blocks(P, 2, first=3))


def late_growth(P, x):
    return P[1] + sum(A * exp((x - P[2]) / T) for A, T in blocks(P, 2, first=3))


for terms in (1, 2, 3):
    row("ExpDecay%d" % terms, form="both", points=draw(10, **from_start(terms)))(late_decay)
for terms in (1, 2):
    row("ExpGrow%d" % terms, form="both", points=draw(10, **from_start(terms)))(late_growth)

before = [([0.3, 2, 1, 0.5, 2, 1.5, 3, 0.7], 1.75), ([0.3, 2, 1, 0.5], -4.0)]


@row("Kinetic", form="ignore", points=before + [point for n in (1, 2, 3) for point in draw(5, **from_start(n))])
def kinetic(P, x):
    return P[1] + 0 * x if x < P[2] else late_decay(P, x)


@row("Exponential", form="both", points=draw(10, P=[(-1, 2), (-2, 3), (-1.5, 1.5)], x=(-2, 3)))
def exponential(P, x):
    return P[1] + P[2] * exp(P[3] * x)


def association(P, x):
    return P[1] + sum(A * (1 - exp(-x / T)) for A, T in blocks(P, 2))


row("ExpAssoc", form="both", points=draw(10, P=[(-1, 2)] + term * 2, x=(-2, 3)) + [([0.5, 1.5, -2, -1, -0.75], 0.5)])(
    association)
row("ExpAssoc2", form="both", points=from_zero(2))(association)


@row("Pulse", form="both", probe="plain",
     points=draw(10, P=[(-1, 2), (-1, 0), (-2, 3), (0.5, 2), (0.3, 3), (0.5, 3)], x=(0.5, 3))
     + [([0.7, 1, 2, 0.5, 1.5, 1], 0.25)])
def pulse(P, x):
    if x < P[2]:
        return P[1] + 0 * x
    return P[1] + P[3] * (1 - exp(-(x - P[2]) / P[4])) ** P[5] * exp(-(x - P[2]) / P[6])


@row("Pulse1", form="both", points=draw(10, P=[(-1, 0), (-2, 3), (0.5, 2), (0.3, 3), (0.5, 3)], x=(0.5, 3))
     + [([1, 2, 0.5, 1.5, 1], 0.25)])
def pulse1(P, x):
    d = x - P[1]
    return P[2] * (1 - exp(-d / P[3])) ** P[4] * exp(-d / P[5]) if d > 0 else 0 * x


# claims derivatives and has none
drawn("Reich", ([(-4, 4), (0.2, 1.5)] * 2, (-2, 5)), form="ignore", query=1)(
    lambda P, x: P[1] * exp(-P[2] * x) + P[3] * exp(-P[4] * x))
