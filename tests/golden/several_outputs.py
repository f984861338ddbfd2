"""Models with two dependent variables, and implicit curves."""

from mpmath import cos, exp, pi, sin, sqrt
from laws import draw, pair, row

c, positive = (-2, 2), (0.5, 2)


@row("LineExp", form="ignore", points=draw(6, P=[c, c, c, c, positive], x=c) + draw(3, P=[c, c, c, c, (-2, -0.5)], x=c))
def lineexp(P, x):
    return pair(P[1] + P[3] * x, P[2] + P[4] * exp(x / P[5]))


@row("GaussianLorentz", form="ignore", points=draw(8, P=[c, c, (1, 3), (1, 3), positive, positive], x=c))
def gaussianlorentz(P, x):
    d = x - P[2]
    return pair(P[1] + P[3] / (sqrt(pi / 2) * P[5]) * exp(-2 * (d / P[5]) ** 2),
                P[1] + 2 * P[4] / pi * P[6] / (4 * d ** 2 + P[6] ** 2))


@row("HillBurk", form="ignore", points=draw(8, P=[(1, 3), positive, positive, c], x=[(0.1, 5), c]))
def hillburk(P, x1, x2):
    return pair(P[1] * x1 / (P[2] + x1), (P[4] * x2 + 1) / P[3])


far = [(3, 6), (-6, -3)]


@row("Ellipse", form="ignore", points=draw(7, P=[c, c, positive, (1, 2)], x=far) + [([0.1, -0.3, 2, -1], [0.5, -0.5])])
def ellipse(P, x1, x2):
    return ((x1 - P[1]) / P[3]) ** 2 + ((x2 - P[2]) / P[4]) ** 2 - 1


@row("Circle", form="ignore", points=draw(7, P=[c, c, positive], x=far) + [([0.1, -0.3, -2], [0.5, -0.5])])
def circle(P, x1, x2):
    return ellipse(P + [P[3]], x1, x2)


@row("PlaneMod", form="ignore", points=draw(8, P=3 * [c], x=3 * [c]))
def planemod(P, x1, x2, x3):
    return sin(P[1]) * cos(P[2]) * x1 + sin(P[1]) * sin(P[2]) * x2 + cos(P[1]) * x3 + P[3]
