"""Statistical distributions and two physical laws of one variable."""

from mpmath import coth, exp, gamma, log, mpf
from laws import blocks, draw, pair, peaks, row


# c and b are decimal logarithms of the mass at the top and of the scale.
def masses(x, c, b):
    return mpf(10) ** x, mpf(10) ** c, mpf(10) ** b


def schulz_flory_peak(x, c, b):
    w, M, s = masses(x, c, b)
    return (w / M) ** (M / s) * exp((M - w) / s)


def schulz_flory_by_centre(P, x, c, b, A):
    """Departs from the law's A g L / s unless s = 1."""
    w, M, s = masses(x, c, b)
    L, Ag = log(w / M), A * schulz_flory_peak(x, c, b)
    return (Ag + (L - 1) * Ag / s) * M * log(mpf(10))


@row("SchulzFlory", form="both", stated={2: lambda P, x: schulz_flory_by_centre(P, x, *P[2:5]),
                                      5: lambda P, x: schulz_flory_by_centre(P, x, *P[5:8])},
     points=draw(7, P=[(-1, 1), (0.4, 1), (0, 0.8), (1, 3), (0.4, 1), (0, 0.8), (-3, -1)], x=(0, 1.3)))
def schulz_flory(P, x):
    return peaks(P[1], [A * schulz_flory_peak(x, c, b) for c, b, A in blocks(P, 3)])


@row("SchulzFlory", form="both", points=draw(6, P=[(-1, 1), (0.2, 0.7), 0, (1, 3)], x=(0, 1)))
def schulz_flory_of_scale_one(P, x):
    """At s = 1 all derivatives are the law's."""
    return schulz_flory(P, x)


@row("Laplace", form="refuse", idle="one", points=draw(8, P=[(-1, 1), (-1, 1), (0.5, 2)], x=(-3, 3))
     + draw(3, P=[(-1, 1), (-1, 1), (-2, -0.5)], x=(-3, 3)))
def laplace(P, x):
    return pair(P[1] + exp(-abs(x - P[2]) / P[3]) / (2 * P[3]), exp(-abs(x - P[2]) / P[3]) / (2 * P[3]))


# Points in every branch of the logarithm of the gamma function.
@row("Poisson", form="refuse", idle="one", points=draw(5, P=[(-1, 1), (0.5, 6)], x=(1.5, 12))
     + draw(3, P=[(-1, 1), (0.5, 6)], x=(-0.99, -0.5)) + draw(3, P=[(-1, 1), (0.5, 6)], x=(-0.5, 0.5))
     + draw(3, P=[(-1, 1), (0.5, 6)], x=(0.5, 1.5)) + draw(3, P=[(-1, 1), (0.5, 6)], x=(-4.9, -1.1))
     + draw(3, P=[(-1, 1), (15, 25)], x=(12, 40)) + [([0.5, 3], 0.0), ([0.5, 3], 1.0), ([0.5, 3], 4.0)])
def poisson(P, x):
    probability = P[2] ** x * exp(-P[2]) / abs(gamma(x + 1))
    return pair(P[1] + probability, probability)


@row("Rayleigh", form="one", idle="one", points=draw(8, P=[(0.5, 2)], x=(0.8, 3)) + [([2.0], 1.0), ([1.0], 3.0)])
def rayleigh(P, x):
    return 1 - exp(-x ** 2 / (2 * P[1] ** 2))


@row("Gumbel", form="refuse", idle="one", points=draw(8, P=[(-1, 1), (0.5, 2)], x=(-1, 2))
     + draw(3, P=[(-1, 1), (-2, -0.5)], x=(-2, 1)))
def gumbel(P, x):
    return 1 - exp(-exp((x - P[1]) / P[2]))


@row("Pareto2", form="one", idle="one", points=draw(8, P=[(0.5, 3), (0.5, 2)], x=(2.5, 8)) + [([1.5, 3], 1.0)])
def pareto2(P, x):
    return 1 - (P[2] / x) ** P[1]


@row("Langevin", form="both", points=draw(6, P=[(-1, 1), (-1, 1), (1, 3)], x=(2, 8))
     + draw(3, P=[(-1, 1), (-1, 1), (1, 3), (0, 1), (-3, -1)], x=(-8, -2)) + [([0, 1, 2], 200.0)])
def langevin(P, x):
    return peaks(P[1], [A * (coth(x - c) - 1 / (x - c)) for c, A in blocks(P, 2)])


@row("Weibull", form="refuse", idle="one", points=draw(8, P=[(-1, 1), (0.5, 2), (0.7, 3), (-1, 0)], x=(0.2, 3)))
def weibull(P, x):
    u = (x - P[4]) / P[2]
    density = P[3] / P[2] * u ** (P[3] - 1) * exp(-u ** P[3])
    return pair(P[1] + density, density)


@row("Goldman", form="one", query=0, idle="one",
     points=draw(8, P=[(0.01, 0.1), (100, 150), (10, 20), (100, 150), (280, 310)], x=(1, 20))
     + [([-0.02, 140, 12, 140, 300], 20.0)])
def goldman(P, x):
    u = log((P[2] * P[1] + x) / (P[3] * P[1] + P[4])) * P[5] * mpf(8.314) / 96485
    return pair(u, u)
