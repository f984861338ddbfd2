"""Rectangular hyperbolas, powers of a distance, sine waves."""

from mpmath import exp, pi, sin
from laws import draw, row


@row("Hyperbl", form="D", points=draw(10, P=[(-2, 4), (0.5, 3)], x=(0.2, 5)) + [([2, -1], 0.25)])
def hyperbola(P, x):
    return P[1] * x / (P[2] + x)


@row("Dhyperbl", form="D", points=draw(10, P=[(1, 4), (0.5, 3), (-4, 4), (0.5, 3), (-1, 1)], x=(0.2, 5))
     + [([2, -1, 3, -2, 0.5], 0.25)])
def double_hyperbola(P, x):
    return P[1] * x / (P[2] + x) + P[3] * x / (P[4] + x) + P[5] * x


exponent = (0.3, 3)


@row("Power0", form="D", points=draw(10, P=[(-1, 1), (-1, 1), (-2, 3), (-2, 3)], x=(1.5, 4))
     + draw(5, P=[(-1, 1), (-1, 1), (-2, 3), (-2, 3)], x=(-4, -1.5)))
def power0(P, x):
    return P[1] + P[3] * abs(x - P[2]) ** P[4]


@row("Power1", form="D", points=draw(6, P=[(-1, 1), (-2, 3), exponent], x=(1.5, 4))
     + draw(6, P=[(-1, 1), (-2, 3), exponent], x=(-4, -1.5)))
def power1(P, x):
    return P[2] * abs(x - P[1]) ** P[3]


@row("Power2", form="D", points=draw(6, P=[(-1, 1), (-2, 3), exponent, exponent], x=(1.5, 4))
     + draw(6, P=[(-1, 1), (-2, 3), exponent, exponent], x=(-4, -1.5)))
def power2(P, x):
    return P[2] * abs(x - P[1]) ** (P[3] if x < P[1] else P[4])


wave = [(-1, 1), (-1, 1), (0.5, 3)]


@row("Sine", form="D", probe="plain", points=draw(10, P=wave + [(-2, 3)], x=(-3, 3)) + [([1, 0.5, -2, 3], 1.25)])
def sine(P, x):
    return P[1] + P[4] * sin(pi * (x - P[2]) / P[3])


@row("SineSqr", form="D", probe="plain", points=draw(10, P=wave + [(-2, 3)], x=(-3, 3))
     + [([1, 0.5, -2, 3], 1.25)])
def sine_squared(P, x):
    return P[1] + P[4] * sin(pi * (x - P[2]) / P[3]) ** 2


@row("SineDamp", form="D", probe="plain", points=draw(10, P=wave + [(0.5, 3), (-2, 3)], x=(-2, 3))
     + [([1, 0.5, 2, -3, 1.5], 1.25)])
def damped_sine(P, x):
    return P[1] + P[5] * exp(-x / P[4]) * sin(pi * (x - P[2]) / P[3])
