"""Sine waves."""

from mpmath import exp, pi, sin
from laws import draw, row

wave = [(-1, 1), (-1, 1), (0.5, 3)]


@row("Sine", form="both", probe="plain", points=draw(10, P=wave + [(-2, 3)], x=(-3, 3)) + [([1, 0.5, -2, 3], 1.25)])
def sine(P, x):
    return P[1] + P[4] * sin(pi * (x - P[2]) / P[3])


@row("SineSqr", form="both", probe="plain", points=draw(10, P=wave + [(-2, 3)], x=(-3, 3))
     + [([1, 0.5, -2, 3], 1.25)])
def sine_squared(P, x):
    return P[1] + P[4] * sin(pi * (x - P[2]) / P[3]) ** 2


@row("SineDamp", form="both", probe="plain", points=draw(10, P=wave + [(0.5, 3), (-2, 3)], x=(-2, 3))
     + [([1, 0.5, 2, -3, 1.5], 1.25)])
def damped_sine(P, x):
    return P[1] + P[5] * exp(-x / P[4]) * sin(pi * (x - P[2]) / P[3])
