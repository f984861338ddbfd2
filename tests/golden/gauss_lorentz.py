"""The peaks "Gauss" and "Lorentz"."""

from mpmath import exp, pi, sqrt
from laws import blocks, draw, peaks, row

one_peak = dict(P=[(-1, 1), (-1, 1), (0.5, 2), (1, 4)], x=(-2, 2))
two_peaks = dict(P=[(-1, 1), (-1, 0), (0.5, 2), (1, 4), (0, 1), (0.5, 2), (-4, -1)], x=(-2, 2))
points = draw(6, **one_peak) + draw(6, **two_peaks)


def gauss(root_2):
    return lambda P, x: peaks(P[1], [A / (w * 1.253314137316) * exp(-((x - c) * root_2 / w) ** 2)
                                     for c, w, A in blocks(P, 3)])


row("Gauss", form="D", points=points + [([1, 3, 0.5, 2], 3.0)], derivative_law=gauss(1.414213562373))(gauss(sqrt(2)))


@row("Lorentz", form="D", probe="plain", points=points)
def lorentz(P, x):
    return peaks(P[1], [2 * A / pi * w / (4 * (x - c) ** 2 + w ** 2) for c, w, A in blocks(P, 3)])
