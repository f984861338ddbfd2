"""The asymmetric and chromatographic peaks."""

from mpmath import atan, besseli, cosh, erfc, exp, fabs, gamma, log, mpf, pi, sqrt, tanh
from laws import blocks, draw, one_or_two, peaks, row

value_only = dict(form="refuse", probe="plain")


def sum_of(size, peak):
    """The law of a common offset and peaks of `size` parameters each."""
    return lambda P, x: peaks(P[1], [peak(x, *block) for block in blocks(P, size)])


@row("PearsonIV", form="ignore", probe="own",
     points=draw(8, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2), (-2, 2), (0.6, 5)], x=(-2, 2))
     + draw(4, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2), (-20, 20), (9, 30)], x=(-2, 2))
     + [([0, 0, 1, 1, 50, 0.51], -20.0), ([0, 0, 1, 1, 100, 200], -0.3), ([0, 0, 1, 1, 100, 0.6], -120.0),
        ([0, 0, 1, 1, 0.5, 200], 0.1), ([0, 1, 2, 0.5, 1.5, 2], 16.0), ([0, 1, 2, 0.5, 1.5, 2], -14.0)])
def pearson4(P, x):
    c, A, w, nu, m = P[2:7]
    z = (x - c) / w
    k = 2 ** (2 * m - 2) * abs(gamma(m + nu / 2 * 1j)) ** 2 / (pi * gamma(2 * m - 1))
    return P[1] + A * k / w * (1 + z ** 2) ** -m * exp(-nu * atan(z))


@row("LogistPK", form="refuse", points=one_or_two + [([0, 1, 0.5, 2], 16.0), ([0, 1, 0.5, 2], -14.0)])
def logist_pk(P, x):
    return peaks(P[1], [A / cosh((x - c) / (2 * w)) ** 2 for c, w, A in blocks(P, 3)])


@row("Extreme", form="one", points=one_or_two + [([0, 1, 0.5, 2], 16.0), ([0, 1, 0.5, 2], 1.0)])
def extreme(P, x):
    return peaks(P[1], [A * exp(1 - (x - c) / w - exp((c - x) / w)) for c, w, A in blocks(P, 3)])


def bigaussian(x, c, H, w1, w2):
    return H * exp(-((x - c) / (w1 if x < c else w2)) ** 2 / 2)


row("BiGaussian", form="both", query=0, probe="plain",
    points=draw(8, P=[(-1, 1), (-0.5, 0.5), (1, 4), (0.5, 1), (1, 2)], x=(-2, 2))
    + draw(3, P=[(-1, 1), (-1, 0), (1, 4), (0.5, 1), (1, 2), (0, 1), (-4, -1), (0.5, 1), (1, 2)], x=(-2, 2))
    + [([0, 0.5, 2, -1, -2], 1.0)])(sum_of(4, bigaussian))


def asymptgauss(x, c, A, w, a):
    d = x - c
    return A * exp(-4 * log(2) * (d * (1 + exp(-a * d)) / (2 * w)) ** 2)


row("asymptgauss", form="both",
    points=draw(8, P=[(-1, 1), (-1, 1), (1, 4), (1, 3), (-1, 1)], x=(-2, 2))
    + draw(3, P=[(-1, 1), (-1, 0), (1, 4), (1, 3), (-1, 1), (0, 1), (-4, -1), (1, 3), (-1, 1)], x=(-2, 2))
    + [([0, 0.5, 2, 1, 0], 1.0)])(sum_of(4, asymptgauss))


def asym2sig(x, c, A, w1, w2, w3):
    d = x - c
    return A / (1 + exp(-(d + w1 / 2) / w2)) * (1 - 1 / (1 + exp(-(d - w1 / 2) / w3)))


row("Asym2Sig", **value_only,
    points=draw(8, P=[(-1, 1), (-1, 1), (1, 4), (0, 2), (0.3, 1), (0.3, 1)], x=(-3, 3))
    + draw(3, P=[(-1, 1), (-1, 1), (1, 4), (0, 2), (0.3, 1), (0.3, 1),
                 (-1, 1), (-4, -1), (0, 2), (0.3, 1), (0.3, 1)], x=(-3, 3))
    + [([0, 1, 2, 0.5, 0.5, 0.25], 16.0), ([0, 1, 2, 0.5, 0.5, 0.25], -14.0)])(sum_of(5, asym2sig))


def beta(x, c, A, w, p, q):
    z, r = (x - c) / w, p + q - 2
    left, right = 1 + r / (p - 1) * z, 1 - r / (q - 1) * z
    return A * left ** (p - 1) * right ** (q - 1) if left > 0 and right > 0 else mpf(0)


# On a steep flank the exponents of the two powers, about 40 each, nearly cancel.
row("Beta", form="both", slack=2,
    points=draw(10, P=[(-1, 1), (-0.1, 0.1), (1, 4), (2, 4), (2, 5), (2, 5)], x=(-0.6, 0.6))
    + draw(3, P=[(-1, 1), (-0.3, 0.1), (1, 4), (2, 4), (2, 5), (2, 5),
                 (-0.1, 0.3), (-4, -1), (2, 4), (2, 5), (2, 5)], x=(-0.2, 0.2))
    + [([1, 0, 3, 2, 1.25, 6], 0.4), ([1, 0, 3, 2, 1500, 1200], 0.03),
       ([1, 0, 3, 2, 3, 4], 2.0), ([1, 0, 3, 2, 3, 4], -2.0)])(sum_of(5, beta))


def weibull3(x, c, A, w1, k):
    S = (x - c) / w1 + ((k - 1) / k) ** (1 / k)
    if S <= 0:
        return mpf(0)
    return A * ((k - 1) / k) ** ((1 - k) / k) * S ** (k - 1) * exp(-S ** k + (k - 1) / k)


row("Weibull3", **value_only,
    points=draw(8, P=[(-1, 1), (0, 1), (1, 4), (1, 3), (1.5, 4)], x=(0, 3))
    + draw(3, P=[(-1, 1), (0, 1), (1, 4), (1, 3), (1.5, 4), (0, 1), (-4, -1), (1, 3), (1.5, 4)], x=(0, 3))
    + [([0, 1, 2, 0.5, 1.25], 16.0), ([1, 1, 2, 0.5, 1.5], 0.0), ([1, 1, 2, 0.5, 30], 1.1)])(sum_of(4, weibull3))


def log_normal(x, c, w, A):
    return A / (sqrt(2 * pi) * w * x) * exp(-log(x / c) ** 2 / (2 * w ** 2)) if x > 0 else mpf(0)


row("LogNormal", form="both", probe="plain",
    points=draw(8, P=[(-1, 1), (1, 3), (0.3, 0.9), (1, 4)], x=(0.5, 5))
    + draw(3, P=[(-1, 1), (1, 2), (0.3, 0.9), (1, 4), (2, 3), (0.3, 0.9), (-4, -1)], x=(0.5, 5))
    + [([0, 2, 0.5, 3], 200.0), ([1, 2, 0.5, 3], 0.0), ([1, 2, 0.5, 3], -1.0)])(sum_of(3, log_normal))


def giddings(x, c, w, A):
    if x <= 0:
        return mpf(0)
    return A / w * sqrt(c / x) * besseli(1, 2 * sqrt(c * x) / w) * exp(-(x + c) / w)


row("Giddings", form="both",
    points=draw(8, P=[(-1, 1), (1, 5), (0.1, 1), (1, 4)], x=(0.5, 6))
    + draw(3, P=[(-1, 1), (1, 3), (0.1, 1), (1, 4), (3, 5), (0.1, 1), (-4, -1)], x=(0.5, 6))
    + [([0, 0.5, 20, 3], 0.3), ([0, 5, 0.25, 3], 5.1),     # 2 sqrt(c x)/w is 0.04, 40.4,
       ([1, 100, 0.01, 3], 101.0),                         # 2e4
       ([1, 1, 2e-6, 3], 1.001), ([0, 1, 2e-6, 3], 1.04),  # and 1e6
       ([1, 2, 0.5, 3], 0.0), ([1, 2, 0.5, 3], -1.0)])(sum_of(3, giddings))


def gauss_mod(x, A, c, w, t):
    return A / (2 * t) * exp(w ** 2 / (2 * t ** 2) - (x - c) / t) * erfc((w / t - (x - c) / w) / sqrt(mpf(2)))


row("GaussMod", **value_only,
    points=draw(8, P=[(-1, 1), (1, 4), (-1, 1), (0.5, 2), (0.5, 2)], x=(-2, 4))
    + draw(3, P=[(-1, 1), (1, 4), (-1, 0), (0.5, 2), (0.5, 2), (-4, -1), (0, 1), (0.5, 2), (0.5, 2)], x=(-2, 4))
    + [([0, 3, 0, 1, t], x) for t in (1e-3, 1 / 60, 0.1, 10, 1000) for x in (-8.0, -1.3, 0.0, 1.7, 8.0)]
    + [([0, 3, 1, 0.5, 2], 16.0), ([0, 3, 1, 0.5, 2], -8.0), ([0, 3, 0, 1, 0.5], 2.0)])(sum_of(4, gauss_mod))


def gram_charlier(edgeworth):
    def peak(x, A, c, w, a3, a4):
        z = (x - c) / w
        series = 1 + a3 / 6 * (z ** 3 - 3 * z) + a4 / 24 * (z ** 4 - 6 * z ** 2 + 3)
        series += edgeworth * 10 * a3 ** 2 / 720 * (z ** 6 - 15 * z ** 4 + 45 * z ** 2 - 15)
        return A / (w * sqrt(2 * pi)) * exp(-z ** 2 / 2) * series
    return sum_of(5, peak)


one_gcas = dict(P=[(-1, 1), (1, 4), (-1, 1), (0.5, 2), (-0.5, 0.5), (-0.5, 0.5)], x=(-2, 2))
two_gcas = dict(P=one_gcas["P"] + [(-4, -1), (0, 1), (0.5, 2), (0.5, 1), (0.5, 1)], x=(-2, 2))
for name, edgeworth in ("GCAS", 0), ("ECS", 1):
    row(name, **value_only, points=draw(8, **one_gcas) + draw(3, **two_gcas))(gram_charlier(edgeworth))


def cce(x, c1, A, w, B, k2, c2, k3, c3):
    rise = 1 - (1 - tanh(k2 * (x - c2))) / 2
    return A * (exp(-(x - c1) ** 2 / (2 * w)) + B * rise * exp(-k3 / 2 * (fabs(x - c3) + (x - c3))))


one_cce = [(-1, 1), (1, 4), (0.5, 2), (0.1, 1), (1, 3), (0, 1), (0.5, 2), (0, 1)]
row("CCE", **value_only,
    points=draw(8, P=[(-1, 1)] + one_cce, x=(-2, 4)) + draw(3, P=[(-1, 1)] + 2 * one_cce, x=(-2, 4))
    + [([0, 0, 2, 0.5, 1, 2, 0.5, 1, 1], -12.0), ([0, 0, 2, 0.5, 1, 2, 0.5, 1, 1], 30.0)])(sum_of(8, cce))
