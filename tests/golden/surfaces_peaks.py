"""Peak surfaces."""

from mpmath import cos, exp, log, sin
from laws import blocks, draw, peaks, row

offset, A, centre, width, xs = (-1, 1), (1, 3), (-1, 1), (0.5, 2), [(-2, 2), (-2, 2)]
peak = [A, centre, width, centre, width]
upright = draw(6, P=[offset] + peak, x=xs) + draw(4, P=[offset] + peak + [(-3, -1), (-1, 0), width, (0, 1), width], x=xs)
at_centre = [([1, 2, 0.5, 1, -0.5, 2], [0.5, 0.75]), ([1, 2, 0.5, 1, -0.5, 2], [1.5, -0.5])]


def bell(x1, x2, xc, wx, yc, wy):
    return exp(-((x1 - xc) / wx) ** 2 / 2 - ((x2 - yc) / wy) ** 2 / 2)


def lorentz(x1, x2, xc, wx, yc, wy):
    return 1 / ((1 + ((x1 - xc) / wx) ** 2) * (1 + ((x2 - yc) / wy) ** 2))


@row("Gauss2D", form="D", points=upright + at_centre)
def gauss2d(P, x1, x2):
    return peaks(P[1], [A * bell(x1, x2, *p) for A, *p in blocks(P, 5)])


def turned(x1, x2, A, xc, wx, yc, wy, t):
    u = (x1 - xc) * cos(t) + (x2 - yc) * sin(t)
    v = (x2 - yc) * cos(t) - (x1 - xc) * sin(t)
    return A * bell(u, v, 0, wx, 0, wy)


# The angle of a peak is at the same time the amplitude of the next.
def gaussian2d(P, x1, x2):
    return peaks(P[1], [turned(x1, x2, *P[i:i + 6]) for i in range(2, len(P) - 5, 5)])


row("Gaussian2D", form="D", points=draw(9, P=[offset] + peak + [(-2, 2)], x=xs)
    + [([1, 2, 0.5, 1, -0.5, 2, 0.7], [0.5, -0.5]), ([1, 2, 0.5, 1, -0.5, 2, 0.0], [1, 1])])(gaussian2d)
row("Gaussian2D", form="D", points=draw(4, P=[offset] + peak + peak + [(-2, 2)], x=xs),
    stated={7: lambda P, x1, x2: turned(x1, x2, 1, *P[8:13])})(gaussian2d)


@row("Lorentz2D", form="D", points=upright + at_centre)
def lorentz2d(P, x1, x2):
    return peaks(P[1], [A * lorentz(x1, x2, *p) for A, *p in blocks(P, 5)])


@row("Voigt2D", form="D", points=draw(6, P=[offset] + peak + [(0, 1)], x=xs)
     + draw(4, P=[offset] + peak + [(0, 1)] + peak + [(1, 2)], x=xs)
     + [(P + [0.25], x) for P, x in at_centre])
def voigt2d(P, x1, x2):
    return peaks(P[1], [A * ((1 - f) * bell(x1, x2, *p) + f * lorentz(x1, x2, *p)) for A, *p, f in blocks(P, 6)])


ridge = [A, (0.5, 2), (0.3, 1)]


@row("LogNormal2D", form="W", points=draw(6, P=[offset] + ridge + ridge + [(-2, 2)], x=[(0.5, 4), (0.5, 4)])
     + draw(3, P=[offset] + ridge + ridge + [(-2, 2)] + ridge + ridge + [(1, 2)], x=[(0.5, 4), (0.5, 4)])
     + draw(2, P=[offset, A, (-2, -1), (0.3, 1), A, (-2, -1), (-1, -0.3), A], x=[(-4, -1), (-4, -1)]))
def lognormal2d(P, x1, x2):
    def term(A1, c1, s1, A2, c2, s2, A12):
        e1, e2 = exp(-(log(x1 / c1) / s1) ** 2 / 2), exp(-(log(x2 / c2) / s2) ** 2 / 2)
        return A1 * e1 + A2 * e2 + A12 * e1 * e2
    return peaks(P[1], [term(*p) for p in blocks(P, 7)])


@row("Extreme2D", form="D", points=draw(6, P=[offset, (-1, 1), (-1, 1), A, centre, width], x=xs)
     + draw(3, P=[offset, (-1, 1), (-1, 1), A, centre, (-2, -0.5)], x=xs)
     + draw(3, P=[offset] + 2 * [(-1, 1), (-1, 1), A, centre, width], x=xs))
def extreme2d(P, x1, x2):
    peak = lambda t: exp(1 - exp(-t) - t)
    return peaks(P[1], [a * x2 + q * x2 ** 2 + A * peak((x1 - xc) / w) for a, q, A, xc, w in blocks(P, 5)])


# GaussLog and LogisticPeak answer a call with both bits by the bare offset; the cases pin that.
@row("GaussLog", form="own", query=0, derivatives=False,
     points=draw(6, P=[offset, A, centre, width, (0.5, 2), (0.3, 1)], x=[(-2, 2), (0.5, 4)])
     + draw(3, P=[offset] + 2 * [A, centre, width, (0.5, 2), (-1, -0.3)], x=[(-2, 2), (0.5, 4)]))
def gausslog(P, x1, x2):
    return peaks(P[1], [A * exp(-(((x1 - xc) / wx) ** 2 + (log(x2 / yc) / wy) ** 2) / 2)
                        for A, xc, wx, yc, wy in blocks(P, 5)])


@row("LogisticPeak", form="own", query=0, derivatives=False,
     points=draw(6, P=[offset, (-1, 1), A, centre, width], x=xs)
     + draw(3, P=[offset] + 2 * [(-1, 1), A, centre, width], x=xs))
def logisticpeak(P, x1, x2):
    bump = lambda e: 4 * e / (1 + e) ** 2
    return peaks(P[1], [A * bump(exp((xc - x1) / w)) + s * x2 for s, A, xc, w in blocks(P, 4)])
