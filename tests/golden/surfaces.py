"""Surfaces: peaks, linear and rational ones, and products of distribution functions and responses."""

from mpmath import cos, erf, exp, log, sin, sqrt
from laws import blocks, draw, peaks, row

offset, A, centre, width, xs = (-1, 1), (1, 3), (-1, 1), (0.5, 2), [(-2, 2), (-2, 2)]
peak = [A, centre, width, centre, width]
upright = draw(6, P=[offset] + peak, x=xs) + draw(
    4, P=[offset] + peak + [(-3, -1), (-1, 0), width, (0, 1), width], x=xs)
at_centre = [([1, 2, 0.5, 1, -0.5, 2], [0.5, 0.75]), ([1, 2, 0.5, 1, -0.5, 2], [1.5, -0.5])]


def bell(x1, x2, xc, wx, yc, wy):
    return exp(-((x1 - xc) / wx) ** 2 / 2 - ((x2 - yc) / wy) ** 2 / 2)


def lorentz(x1, x2, xc, wx, yc, wy):
    return 1 / ((1 + ((x1 - xc) / wx) ** 2) * (1 + ((x2 - yc) / wy) ** 2))


@row("Gauss2D", form="both", points=upright + at_centre)
def gauss2d(P, x1, x2):
    return peaks(P[1], [A * bell(x1, x2, *p) for A, *p in blocks(P, 5)])


def turned(x1, x2, A, xc, wx, yc, wy, t):
    u = (x1 - xc) * cos(t) + (x2 - yc) * sin(t)
    v = (x2 - yc) * cos(t) - (x1 - xc) * sin(t)
    return A * bell(u, v, 0, wx, 0, wy)


# The angle of a peak is at the same time the amplitude of the next.
def gaussian2d(P, x1, x2):
    return peaks(P[1], [turned(x1, x2, *P[i:i + 6]) for i in range(2, len(P) - 5, 5)])


row("Gaussian2D", form="both", points=draw(9, P=[offset] + peak + [(-2, 2)], x=xs)
    + [([1, 2, 0.5, 1, -0.5, 2, 0.7], [0.5, -0.5]), ([1, 2, 0.5, 1, -0.5, 2, 0.0], [1, 1])])(gaussian2d)
row("Gaussian2D", form="both", points=draw(4, P=[offset] + peak + peak + [(-2, 2)], x=xs),
    stated={7: lambda P, x1, x2: turned(x1, x2, 1, *P[8:13])})(gaussian2d)


@row("Lorentz2D", form="both", points=upright + at_centre)
def lorentz2d(P, x1, x2):
    return peaks(P[1], [A * lorentz(x1, x2, *p) for A, *p in blocks(P, 5)])


@row("Voigt2D", form="both", points=draw(6, P=[offset] + peak + [(0, 1)], x=xs)
     + draw(4, P=[offset] + peak + [(0, 1)] + peak + [(1, 2)], x=xs)
     + [(P + [0.25], x) for P, x in at_centre])
def voigt2d(P, x1, x2):
    return peaks(P[1], [A * ((1 - f) * bell(x1, x2, *p) + f * lorentz(x1, x2, *p)) for A, *p, f in blocks(P, 6)])


ridge = [A, (0.5, 2), (0.3, 1)]


@row("LogNormal2D", form="ignore", points=draw(6, P=[offset] + ridge + ridge + [(-2, 2)], x=[(0.5, 4), (0.5, 4)])
     + draw(3, P=[offset] + ridge + ridge + [(-2, 2)] + ridge + ridge + [(1, 2)], x=[(0.5, 4), (0.5, 4)])
     + draw(2, P=[offset, A, (-2, -1), (0.3, 1), A, (-2, -1), (-1, -0.3), A], x=[(-4, -1), (-4, -1)]))
def lognormal2d(P, x1, x2):
    def term(A1, c1, s1, A2, c2, s2, A12):
        e1, e2 = exp(-(log(x1 / c1) / s1) ** 2 / 2), exp(-(log(x2 / c2) / s2) ** 2 / 2)
        return A1 * e1 + A2 * e2 + A12 * e1 * e2
    return peaks(P[1], [term(*p) for p in blocks(P, 7)])


@row("Extreme2D", form="both", points=draw(6, P=[offset, (-1, 1), (-1, 1), A, centre, width], x=xs)
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


c = (-2, 2)


def linear(name, basis, xs=xs):
    """A common offset plus blocks of coefficients of the basis functions."""
    size = len(basis(0, 0))
    return row(name, form="both", points=draw(6, P=(size + 1) * [c], x=xs) + draw(4, P=(2 * size + 1) * [c], x=xs))(
        lambda P, x1, x2: peaks(P[1], [sum(a * f for a, f in zip(p, basis(x1, x2))) for p in blocks(P, size)]))


@row("Plane", form="both", points=draw(8, P=3 * [c], x=xs))
def plane(P, x1, x2):
    return P[1] + P[2] * x1 + P[3] * x2


linear("Parabola2D", lambda x, y: [x, y, x ** 2, y ** 2])
linear("Poly2D", lambda x, y: [x, y, x ** 2, y ** 2, x * y])
linear("Polynomial2D", lambda x, y: [x ** k for k in range(1, 6)] + [y ** k for k in range(1, 6)])
# The polynomials themselves: T1(s) = s, T2(s) = 2 s^2 - 1.
linear("Chebyshev2D", lambda x, y: [x, 2 * x ** 2 - 1, y, 2 * y ** 2 - 1, x * y], xs=[(-0.9, 0.9), (-0.9, 0.9)])
linear("Cosine", lambda x, y: [cos(x), cos(2 * x), cos(y), cos(2 * y), cos(x) * cos(y)])


@row("Fourier2D", form="both", points=draw(6, P=4 * [c] + [c, (0.5, 2), (-2, -0.5)], x=xs)
     + draw(4, P=[c] + 2 * (4 * [c] + [(0.5, 2), (0.5, 2)]), x=xs))
def fourier2d(P, x1, x2):
    return peaks(P[1], [p1 * cos(x1 / Lx) + p2 * sin(x1 / Lx) + p3 * cos(x2 / Ly) + p4 * sin(x2 / Ly)
                        for p1, p2, p3, p4, Lx, Ly in blocks(P, 6)])


ratio = 5 * [c] + 5 * [(0.1, 1)]
ratio_points = draw(6, P=ratio, x=[(0.2, 2), (0.2, 2)]) + draw(4, P=ratio + ratio, x=[(0.2, 2), (0.2, 2)])


def total(terms):
    return peaks(0, terms)


@row("Rational2D", form="both", query=0, points=ratio_points)
def rational2d(P, x, y):
    return total([(a + b * x + c * y + d * y ** 2 + e * y ** 3)
                  / (1 + f * x + g * x ** 2 + h * x ** 3 + j * y + k * y ** 2)
                  for a, b, c, d, e, f, g, h, j, k in blocks(P, 10, first=1)])


def taylor(fifth):
    return lambda P, x, y: total([(a + b * x + c * y + d * y ** 2 + e * fifth(x, y))
                                  / (1 + f * x + g * x ** 2 + h * y + j * y ** 2 + k * x * y)
                                  for a, b, c, d, e, f, g, h, j, k in blocks(P, 10, first=1)])


# The derivative path returns a value in which the fifth coefficient goes with y^2.
row("RationalTaylor", form="both", query=0, points=ratio_points, derivative_value=taylor(lambda x, y: y ** 2))(
    taylor(lambda x, y: x * y))

forward = [(-1, 3), (-1, 3)]
steps = draw(7, P=[offset] + peak, x=forward) + draw(
    3, P=[offset] + peak + [(-3, -1), centre, width, centre, width], x=forward)
turned_round = draw(3, P=[offset, A, centre, (-2, -0.5), centre, (-2, -0.5)], x=[(-3, 1), (-3, 1)])


# A call with both bits ends with the bare offset; the cases pin that.
@row("GaussCum", form="own", query=0, derivatives=False, points=steps + turned_round)
def gausscum(P, x1, x2):
    rise = lambda x, c, w: (1 + erf((x - c) / (sqrt(2) * w))) / 2
    return peaks(P[1], [A * rise(x1, xc, wx) * rise(x2, yc, wy) for A, xc, wx, yc, wy in blocks(P, 5)])


@row("LogisticCum", form="both", points=steps + turned_round)
def logisticcum(P, x1, x2):
    rise = lambda x, c, w: 1 / (1 + exp(-(x - c) / w))
    return peaks(P[1], [A * rise(x1, xc, wx) * rise(x2, yc, wy) for A, xc, wx, yc, wy in blocks(P, 5)])


@row("ExtremeCum", form="ignore", points=draw(6, P=[offset] + 2 * [A, centre, width] + [A], x=forward)
     + draw(3, P=[offset] + 2 * (2 * [A, centre, width] + [(-3, -1)]), x=forward)
     + draw(2, P=[offset] + 2 * [A, centre, (-2, -0.5)] + [A], x=[(-3, 1), (-3, 1)]))
def extremecum(P, x1, x2):
    def term(A1, xc, wx, A2, yc, wy, A12):
        F1, F2 = exp(-exp((xc - x1) / wx)), exp(-exp((yc - x2) / wy))
        return A1 * F1 + A2 * F2 + A12 * F1 * F2
    return peaks(P[1], [term(*p) for p in blocks(P, 7)])


dose, slope = (0.5, 3), (0.5, 2)


@row("DoseResp", form="both", points=draw(6, P=[offset, A, dose, slope, dose, slope], x=[(0.2, 6), (0.2, 6)])
     + draw(3, P=[offset] + 2 * [A, dose, slope, dose, (-2, -0.5)], x=[(0.2, 6), (0.2, 6)]))
def doseresp(P, x1, x2):
    response = lambda x, D, h: 1 / (1 + (x / D) ** -h)
    return peaks(P[1], [A * response(x1, D1, h1) * response(x2, D2, h2) for A, D1, h1, D2, h2 in blocks(P, 5)])


@row("Exponential2D", form="both", points=draw(6, P=[offset, A, width, width], x=forward)
     + draw(3, P=[offset] + 2 * [A, width, (-2, -0.5)], x=forward))
def exponential2d(P, x1, x2):
    return peaks(P[1], [A * exp(-x1 / t1) * exp(-x2 / t2) for A, t1, t2 in blocks(P, 3)])


@row("Power2D", form="both", query=0, points=draw(6, P=[offset, A, (-2, 3), A, (-2, 3), A], x=[(0.2, 3), (0.2, 3)])
     + draw(3, P=[offset] + 2 * [A, (-2, 3), (-3, -1), (-2, 3), A], x=[(0.2, 3), (0.2, 3)]))
def power2d(P, x1, x2):
    return peaks(P[1], [a * x1 ** p + c * x2 ** q + d * x1 ** p * x2 ** q for a, p, c, q, d in blocks(P, 5)])
