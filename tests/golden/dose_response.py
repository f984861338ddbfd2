"""Dose-response and Boltzmann curves."""

from mpmath import exp, log, power
from laws import draw, partial, row


def short_ln10(law, *slots):
    """The slopes that carry ln 10 have it with ten digits."""
    def slope(k):
        return lambda P, x: partial(lambda v: law([None] + v, x), P[1:], k - 1) * 2.302585093 / log(10)
    return {k: slope(k) for k in slots}


def step(u):
    return 1 / (1 + exp(u))


def step10(u):
    return 1 / (1 + power(10, u))


# Steepness of either sign; points on both sides of the centre.
@row("Hill", form="both", points=draw(5, P=[(1, 4), (0.5, 2), (0.3, 2.5)], x=(0.3, 4)) +
     draw(4, P=[(-4, -1), (0.5, 2), (-2, -0.3)], x=(0.3, 3)))
def hill(P, x):
    return P[1] / (1 + (P[2] / x) ** P[3])


@row("Hill1", form="both", points=draw(5, P=[(-1, 1), (2, 4), (0.5, 2), (0.3, 2.5)], x=(0.3, 4)) +
     draw(4, P=[(2, 4), (-1, 1), (0.5, 2), (-2, -0.3)], x=(0.3, 3)))
def hill1(P, x):
    return P[1] + (P[2] - P[1]) / (1 + (P[3] / x) ** P[4])


@row("Logistic", form="one", points=draw(5, P=[(-1, 1), (2, 4), (0.5, 2), (0.3, 2.5)], x=(0.3, 3)) +
     draw(4, P=[(2, 4), (-1, 1), (0.5, 2), (-2, -0.3)], x=(0.3, 3)))
def logistic(P, x):
    return P[2] + (P[1] - P[2]) / (1 + (x / P[3]) ** P[4])


@row("Logistic5", form="one", points=draw(5, P=[(-1, 1), (2, 4), (0.5, 2), (0.3, 2.5), (0.5, 2)], x=(0.3, 3)) +
     draw(4, P=[(2, 4), (-1, 1), (0.5, 2), (-2, -0.3), (-2, -0.5)], x=(0.3, 3)))
def logistic5(P, x):
    return P[1] + (P[2] - P[1]) * (1 + (P[3] / x) ** P[4]) ** -P[5]


# Width, rate and slope of either sign.
@row("Boltzman", form="one", points=draw(5, P=[(-1, 1), (2, 4), (-1, 1), (0.7, 2)], x=(-1.5, 1.5)) +
     draw(4, P=[(2, 4), (-1, 1), (-1, 1), (-2, -0.7)], x=(-1.5, 1.5)))
def boltzman(P, x):
    return P[2] + (P[1] - P[2]) * step((x - P[3]) / P[4])


@row("BoltzIV", form="one", points=draw(5, P=[(-1, 1), (0.7, 2), (1, 3), (2, 4)], x=(-1.5, 1.5)) +
     draw(4, P=[(-1, 1), (-2, -0.7), (-3, -1), (-4, -2)], x=(-1.5, 1.5)))
def boltz_iv(P, x):
    return (x - P[4]) * P[3] * step((x - P[1]) / P[2])


@row("DoubleBoltzmann", form="one", points=draw(5, P=[(-1, 1), (2, 4), (0.2, 0.8), (-2, 0), (0, 2), (0.8, 2), (0.8, 2)],
                                              x=(-1, 1)) +
     draw(4, P=[(-1, 1), (-4, -2), (1.2, 2), (-2, 0), (0, 2), (-2, -0.8), (0.8, 2)], x=(-1, 1)))
def double_boltzmann(P, x):
    return P[1] + P[2] * (P[3] * step((x - P[4]) / P[6]) + (1 - P[3]) * step((x - P[5]) / P[7]))


def competition1(P, x):
    return P[2] + (P[1] - P[2]) * step10(x - P[3])


row("Competition1", form="one", stated=short_ln10(competition1, 3),
    points=draw(5, P=[(2, 4), (-1, 1), (-0.5, 0.5)], x=(-0.5, 0.5)) +
    draw(4, P=[(-1, 1), (2, 4), (-0.5, 0.5)], x=(-0.5, 0.5)))(competition1)


def response1(P, x):
    return P[1] + (P[2] - P[1]) * step10((P[3] - x) * P[4])


row("Response1", form="one", stated=short_ln10(response1, 3, 4),
    points=draw(5, P=[(-1, 1), (2, 4), (-0.5, 0.5), (0.5, 1.5)], x=(-0.5, 0.5)) +
    draw(4, P=[(-4, -2), (-1, 1), (-0.5, 0.5), (-1.5, -0.5)], x=(-0.5, 0.5)))(response1)


def competition2(P, x):
    return P[2] + (P[1] - P[2]) * (P[5] * step10(x - P[3]) + (1 - P[5]) * step10(x - P[4]))


row("Competition2", form="one", probe="plain", stated=short_ln10(competition2, 3, 4),
    points=draw(5, P=[(2, 4), (-1, 1), (-1, 0), (0, 1), (0.2, 0.8)], x=(-0.5, 0.5)) +
    draw(4, P=[(-1, 1), (2, 4), (0, 1), (-1, 0), (-1, -0.3)], x=(-0.5, 0.5)))(competition2)


def response2(P, x):
    return P[1] + (P[2] - P[1]) * step10((x - P[4]) * P[6]) + (P[3] - P[1]) * step10((P[5] - x) * P[7])


row("Response2", form="one", stated=short_ln10(response2, 4, 5, 6, 7),
    points=draw(5, P=[(-1, 1), (2, 4), (2, 4), (-1, 0), (0, 1), (0.5, 1.5), (0.5, 1.5)], x=(-0.5, 0.5)) +
    draw(4, P=[(-3, -2), (-1, 1), (-1, 1), (0, 1), (-1, 0), (-1.5, -0.5), (0.5, 1.5)], x=(-0.5, 0.5)))(response2)


def bi_dose_resp(P, x):
    return P[1] + (P[2] - P[1]) * (P[7] * step10((P[3] - x) * P[5]) + (1 - P[7]) * step10((P[4] - x) * P[6]))


row("BiDoseResp", form="one", stated=short_ln10(bi_dose_resp, 3, 4, 5, 6),
    points=draw(5, P=[(-1, 1), (2, 4), (-1, 0), (0, 1), (0.5, 1.5), (0.5, 1.5), (0.2, 0.8)], x=(-0.5, 0.5)) +
    draw(4, P=[(2, 4), (-1, 1), (-1, 0), (0, 1), (-1.5, -0.5), (0.5, 1.5), (1.2, 2)], x=(-0.5, 0.5)))(bi_dose_resp)
