"""Surfaces linear in their coefficients, and two rational ones."""

from mpmath import cos, sin
from laws import blocks, draw, peaks, row

c, xs = (-2, 2), [(-2, 2), (-2, 2)]


def linear(name, basis, xs=xs):
    """A common offset plus blocks of coefficients of the basis functions."""
    size = len(basis(0, 0))
    return row(name, form="D", points=draw(6, P=(size + 1) * [c], x=xs) + draw(4, P=(2 * size + 1) * [c], x=xs))(
        lambda P, x1, x2: peaks(P[1], [sum(a * f for a, f in zip(p, basis(x1, x2))) for p in blocks(P, size)]))


@row("Plane", form="D", points=draw(8, P=3 * [c], x=xs))
def plane(P, x1, x2):
    return P[1] + P[2] * x1 + P[3] * x2


linear("Parabola2D", lambda x, y: [x, y, x ** 2, y ** 2])
linear("Poly2D", lambda x, y: [x, y, x ** 2, y ** 2, x * y])
linear("Polynomial2D", lambda x, y: [x ** k for k in range(1, 6)] + [y ** k for k in range(1, 6)])
# The polynomials themselves: T1(s) = s, T2(s) = 2 s^2 - 1.
linear("Chebyshev2D", lambda x, y: [x, 2 * x ** 2 - 1, y, 2 * y ** 2 - 1, x * y], xs=[(-0.9, 0.9), (-0.9, 0.9)])
linear("Cosine", lambda x, y: [cos(x), cos(2 * x), cos(y), cos(2 * y), cos(x) * cos(y)])


@row("Fourier2D", form="D", points=draw(6, P=4 * [c] + [c, (0.5, 2), (-2, -0.5)], x=xs)
     + draw(4, P=[c] + 2 * (4 * [c] + [(0.5, 2), (0.5, 2)]), x=xs))
def fourier2d(P, x1, x2):
    return peaks(P[1], [p1 * cos(x1 / Lx) + p2 * sin(x1 / Lx) + p3 * cos(x2 / Ly) + p4 * sin(x2 / Ly)
                        for p1, p2, p3, p4, Lx, Ly in blocks(P, 6)])


ratio = 5 * [c] + 5 * [(0.1, 1)]
ratio_points = draw(6, P=ratio, x=[(0.2, 2), (0.2, 2)]) + draw(4, P=ratio + ratio, x=[(0.2, 2), (0.2, 2)])


def total(terms):
    return peaks(0, terms)


@row("Rational2D", form="D", query=0, points=ratio_points)
def rational2d(P, x, y):
    return total([(a + b * x + c * y + d * y ** 2 + e * y ** 3) / (1 + f * x + g * x ** 2 + h * x ** 3 + j * y + k * y ** 2)
                  for a, b, c, d, e, f, g, h, j, k in blocks(P, 10, first=1)])


def taylor(fifth):
    return lambda P, x, y: total([(a + b * x + c * y + d * y ** 2 + e * fifth(x, y))
                                  / (1 + f * x + g * x ** 2 + h * y + j * y ** 2 + k * x * y)
                                  for a, b, c, d, e, f, g, h, j, k in blocks(P, 10, first=1)])


# The derivative path returns a value in which the fifth coefficient goes with y^2.
row("RationalTaylor", form="D", query=0, points=ratio_points, derivative_value=taylor(lambda x, y: y ** 2))(
    taylor(lambda x, y: x * y))
