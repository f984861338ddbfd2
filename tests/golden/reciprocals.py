"""Reciprocals of lines, parabolas and powers, and quotients of lines."""

from mpmath import exp, log, sqrt
from laws import between, draw, drawn, own_draw, power_place, references, row

rate, base, away = (0.2, 1.5), (0.1, 0.9), (0.3, 6)

# Reciprocal0 has -P1/y^2 as its derivative
drawn("Reciprocal0", ([rate], (-0.4, 4)), stated={1: lambda P, x: -P[1] * (1 + P[1] * x) ** 2})(
    lambda P, x: 1 / (1 + P[1] * x))
drawn("Reciprocal0EVP", ([away, base], (0, 4)), extra=[([2, 0.25], 2.0), ([-2, -0.5], -3.0)])(
    lambda P, x: 1 / ((1 / P[2] - 1) * x / P[1] + 1))
drawn("Reciprocal1", ([away], (0, 4)), extra=[([-3], 1.0)])(lambda P, x: 1 / (P[1] + x))
drawn("Reciprocal1EVP", ([(0, 1), away], (1, 4)), extra=[([2, 3.5], 2.0), ([1, -3], 3.0)])(
    lambda P, x: P[2] / ((x - P[1]) * P[2] + 1))

positive = (0.3, 4)

drawn("Reciprocal", ([positive, positive], (0.1, 9)), ([(-3, -1), (0.01, 0.1)], (-5, 5)), count=5)(
    lambda P, x: 1 / (P[1] + P[2] * x))
drawn("ReciprocalMod", ([(-5, 5), positive], (0.1, 9)), ([(1, 9), (-0.1, -0.02)], (-5, 5)), count=5)(
    lambda P, x: P[1] / (1 + P[2] * x))
drawn("ReciprocalEVP", references, ([(4, 6), (5, 9), (0.5, 1.5), -2], (7, 12)), count=6)(
    lambda P, x: 1 / between(P[1], 1 / P[2], P[3], 1 / P[4], x))

drawn("Holliday", ([(1, 3), rate, rate], (-1, 5)), form="both")(lambda P, x: 1 / (P[1] + P[2] * x + P[3] * x * x))
own_draw("Holliday1", [(-5, 20), (0.05, 1), (-0.01, 0.3)], (-0.5, 9))(
    lambda P, x: P[1] / (1 + (P[2] + P[3] * x) * x))


@drawn("Nelder", ([rate, (1, 3), rate, rate], (-0.1, 5)), form="both")
def nelder(P, x):
    u = x + P[1]
    return u / (P[2] + P[3] * u + P[4] * u * u)


own_draw("BlNeld", [(0.2, 2), (0.05, 0.8), (0.4, 3), (-1, 2)], (0.2, 9), [([3, 0.5, -0.6, 1.3], 4.0)])(
    lambda P, x: exp(-log(P[1] + P[2] * x ** P[4]) / P[3]))
own_draw("BlNeldSmp", [(0.2, 2), (0.05, 0.8), (0.4, 3)], (-0.2, 9), [([4, -0.3, -1.5], 2.0), ([3, 0.5, -0.6], 4.0)])(
    lambda P, x: exp(-log(P[1] + P[2] * x) / P[3]))
own_draw("BlNeldEVP", [(0.5, 2), (6, 12), (4, 9), (1, 4), (0.4, 3)], (0.2, 9),
         [([1, 8, 6, 3, -0.8], 2.5), ([1, 8, 6, 3, 1.4], 1.0), ([6, 3, 1, 8, 1.4], 1.0)])(
    lambda P, x: between(P[1], P[2] ** -P[5], P[3], P[4] ** -P[5], x) ** (-1 / P[5]))
own_draw("Harris", [(0.1, 2), (0.05, 1), (-0.5, 2.5)], (0.2, 8))(lambda P, x: 1 / (P[1] + P[2] * x ** P[3]))
own_draw("HarrisEVP", [(0.5, 2), (5, 9), (4, 7), (1, 4), (0.4, 2.5)], (0.5, 9),
         [([1.5, 8, 6, 3, -0.7], 2.5), ([1.5, -8, 6, -3, 0.7], 2.5), ([6, 3, 1.5, 8, 0.7], 1.5)])(
    lambda P, x: 1 / (1 / P[2] + (1 / P[4] - 1 / P[2]) * power_place(x, P[1], P[3], P[5])))
own_draw("Gunary", [(0.1, 4), (0.1, 2), (-0.3, 3)], (0.1, 9))(lambda P, x: x / (P[1] + P[2] * x + P[3] * sqrt(x)))

coefficient = (-3, 3)


@row("Rational", form="both", points=draw(10, [coefficient, coefficient, (1, 4), (0.1, 2)], (-0.4, 6)))
def rational(P, x):
    return (P[1] + P[2] * x) / (P[3] + P[4] * x)


own_draw("Rational0", [(0.1, 2), (-3, 3), (-2, 4)], (-0.3, 9))(lambda P, x: (P[2] + P[3] * x) / (1 + P[1] * x))
own_draw("Rational1", [(-4, -1), (-2, -0.1), (-2, 4)], (-0.3, 9))(lambda P, x: (1 + P[3] * x) / (P[1] + P[2] * x))
own_draw("Rational2", [(1, 4), (-3, 3), (-2, 4)], (-0.3, 9))(lambda P, x: (P[2] + P[3] * x) / (P[1] + x))
own_draw("Rational3", [(1, 4), (-3, 3), (0.1, 4)], (-0.2, 9))(lambda P, x: (P[2] + x) / (P[1] + P[3] * x))
own_draw("Rational4", [(1, 4), (-3, 3), (-2, 4)], (-0.5, 9), [([-5, 2, 1], 1.5)])(
    lambda P, x: P[3] + P[2] / (x + P[1]))


@drawn("MWChang", ([(-4, 4), rate, rate, (1, 2), (-4, 4)], away), form="ignore", extra=[([2, 0.5, 3, -1, 2], 1.5)])
def mw_chang(P, x):
    b = 1 + P[3] * x
    return P[1] * (b - 1) / b
