"""The peaks "GaussAmp", "Gaussian", "LogistPK" and "Extreme"."""

from mpmath import cosh, exp
from laws import Value, blocks, draw, peaks, row

one_peak = dict(P=[(-1, 1), (-1, 1), (0.5, 2), (1, 4)], x=(-2, 2))
two_peaks = dict(P=[(-1, 1), (-1, 0), (0.5, 2), (1, 4), (0, 1), (0.5, 2), (-4, -1)], x=(-2, 2))
points = draw(6, **one_peak) + draw(6, **two_peaks)


@row("GaussAmp", form="E", probe="plain", points=points + [([1, 0.5, -2, 3], 1.5), ([1, 0.5, 2, 3], 0.5)])
def gauss_amp(P, x):
    return peaks(P[1], [A * exp(-((x - c) / w) ** 2 / 2) for c, w, A in blocks(P, 3)])


def four_by_four(P):
    return [P[i + 1:i + 4] for i in range(1, len(P), 4)]


def gaussian_by_centre(P, x, peak):
    c, A, w = four_by_four(P)[peak]
    u = 2 * (x - c) / w
    return A * exp(-u ** 2 * 0.69314718055994) / (w * 1.06446701943122) * u * 2.77258872223978 / w


# The second peak's first slot is idle: the value ignores it and its derivative is reported as 1.
def gaussian(P, x):
    return peaks(P[1], [A * exp(-(2 * (x - c) / w) ** 2 * 0.69314718055994) / (w * 1.06446701943122)
                        for c, A, w in four_by_four(P)])


row("Gaussian", form="own", probe="plain", idle="own", derivatives=True,
    points=draw(6, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2)], x=(-2, 2))
    + draw(4, P=[(-1, 1), (-1, 0), (1, 4), (0.5, 2), (5, 6), (0, 1), (-4, -1), (0.5, 2)], x=(-2, 2))
    + [([0, 0, 1, 1], 0.5), ([1, 0.5, 3, -2], 1.5)],
    stated={2: lambda P, x: gaussian_by_centre(P, x, 0), 5: lambda P, x: 1 + 0 * x,
            6: lambda P, x: gaussian_by_centre(P, x, 1)})(gaussian)


@row("LogistPK", form="V", points=points + [([0, 1, 0.5, 2], 16.0), ([0, 1, 0.5, 2], -14.0)])
def logist_pk(P, x):
    return peaks(P[1], [A / cosh((x - c) / (2 * w)) ** 2 for c, w, A in blocks(P, 3)])


@row("Extreme", form="E", points=points + [([0, 1, 0.5, 2], 16.0), ([0, 1, 0.5, 2], 1.0)])
def extreme(P, x):
    return peaks(P[1], [A * exp(1 - (x - c) / w - exp((c - x) / w)) for c, w, A in blocks(P, 3)])
