"""Polynomials and the inverse-polynomial peak."""

from laws import blocks, draw, drawn, peaks, row


def polynomial(coefficients, x):
    return sum(c * x ** k for k, c in enumerate(coefficients))


coefficient = (-3, 3)
orders = ["Constant", "Line", "Parabola", "Cubic", "Poly4", "Poly5"]
for order, name in enumerate(orders):
    points = draw(8, [coefficient] * (order + 1), (-2, 2)) + [([2.0] * (order + 1), 0.0)]
    row(name, form="both", points=points)(lambda P, x: polynomial(P[1:], x))

some_counts = [point for n in (1, 2, 3, 6, 10, 12) for point in draw(3, [coefficient] * n, (-1.6, 1.6))]
row("PolyN", form="both", points=some_counts + [([2, 0, 3, 0, -1], 1.5)])(lambda P, x: polynomial(P[1:], x))


@row("PolyCtr5", form="ignore", query=0, points=draw(8, [coefficient] * 7, (-2, 2)) + [([1, 2, 3, 4, 5, 6, 7], 2.0)])
def poly_ctr5(P, x):
    return polynomial([P[1]] + P[3:], x - P[2])


a_peak = [(-2, 2), (1, 4), (-3, 5), (0.3, 1), (0.05, 0.4), (0.01, 0.1)]
inverse = draw(8, [coefficient] + a_peak, (-2, 2)) + draw(4, [coefficient] + a_peak * 2, (-2, 2))


@row("InvsPoly", form="both", probe="own", points=inverse + [([0.5, 1, 2, 3, 1, 0, 0], 2.5)])
def invs_poly(P, x):
    return peaks(P[1], [A / polynomial([1, a1, a2, a3], (2 * (x - c) / w) ** 2)
                        for c, w, A, a1, a2, a3 in blocks(P, 6)])


drawn("LineMod", ([(-3, 3), (-5, 5)], (-9, 9)), count=10)(lambda P, x: P[1] * x - P[1] * P[2])
