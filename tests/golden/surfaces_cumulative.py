"""Surfaces made of distribution functions, dose-response curves, exponentials and powers."""

from mpmath import erf, exp, log, sqrt
from laws import blocks, draw, peaks, row

offset, A, centre, width, xs = (-1, 1), (1, 3), (-1, 1), (0.5, 2), [(-1, 3), (-1, 3)]
step = [A, centre, width, centre, width]
points = draw(7, P=[offset] + step, x=xs) + draw(3, P=[offset] + step + [(-3, -1), centre, width, centre, width], x=xs)
turned_round = draw(3, P=[offset, A, centre, (-2, -0.5), centre, (-2, -0.5)], x=[(-3, 1), (-3, 1)])


# A call with both bits ends with the bare offset; the cases pin that.
@row("GaussCum", form="own", query=0, derivatives=False, points=points + turned_round)
def gausscum(P, x1, x2):
    rise = lambda x, c, w: (1 + erf((x - c) / (sqrt(2) * w))) / 2
    return peaks(P[1], [A * rise(x1, xc, wx) * rise(x2, yc, wy) for A, xc, wx, yc, wy in blocks(P, 5)])


@row("LogisticCum", form="D", points=points + turned_round)
def logisticcum(P, x1, x2):
    rise = lambda x, c, w: 1 / (1 + exp(-(x - c) / w))
    return peaks(P[1], [A * rise(x1, xc, wx) * rise(x2, yc, wy) for A, xc, wx, yc, wy in blocks(P, 5)])


@row("ExtremeCum", form="W", points=draw(6, P=[offset] + 2 * [A, centre, width] + [A], x=xs)
     + draw(3, P=[offset] + 2 * (2 * [A, centre, width] + [(-3, -1)]), x=xs)
     + draw(2, P=[offset] + 2 * [A, centre, (-2, -0.5)] + [A], x=[(-3, 1), (-3, 1)]))
def extremecum(P, x1, x2):
    def term(A1, xc, wx, A2, yc, wy, A12):
        F1, F2 = exp(-exp((xc - x1) / wx)), exp(-exp((yc - x2) / wy))
        return A1 * F1 + A2 * F2 + A12 * F1 * F2
    return peaks(P[1], [term(*p) for p in blocks(P, 7)])


dose, slope = (0.5, 3), (0.5, 2)


@row("DoseResp", form="D", points=draw(6, P=[offset, A, dose, slope, dose, slope], x=[(0.2, 6), (0.2, 6)])
     + draw(3, P=[offset] + 2 * [A, dose, slope, dose, (-2, -0.5)], x=[(0.2, 6), (0.2, 6)]))
def doseresp(P, x1, x2):
    response = lambda x, D, h: 1 / (1 + (x / D) ** -h)
    return peaks(P[1], [A * response(x1, D1, h1) * response(x2, D2, h2) for A, D1, h1, D2, h2 in blocks(P, 5)])


@row("Exponential2D", form="D", points=draw(6, P=[offset, A, width, width], x=xs)
     + draw(3, P=[offset] + 2 * [A, width, (-2, -0.5)], x=xs))
def exponential2d(P, x1, x2):
    return peaks(P[1], [A * exp(-x1 / t1) * exp(-x2 / t2) for A, t1, t2 in blocks(P, 3)])


@row("Power2D", form="D", query=0, points=draw(6, P=[offset, A, (-2, 3), A, (-2, 3), A], x=[(0.2, 3), (0.2, 3)])
     + draw(3, P=[offset] + 2 * [A, (-2, 3), (-3, -1), (-2, 3), A], x=[(0.2, 3), (0.2, 3)]))
def power2d(P, x1, x2):
    return peaks(P[1], [a * x1 ** p + c * x2 ** q + d * x1 ** p * x2 ** q for a, p, c, q, d in blocks(P, 5)])
