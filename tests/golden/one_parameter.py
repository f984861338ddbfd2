"""The one-parameter laws of the handbook, with their modified and expected-value forms."""

from mpmath import exp, log
from laws import draw, row

signed, rate, base, positive, above_one = (-2, 2), (0.2, 1.5), (0.1, 0.9), (0.3, 6), (1.5, 5)


def entered(name, parameters, x=(-1, 4), idle="flags", extra=(), **facts):
    return row(name, form="E", idle=idle, points=draw(8, P=parameters, x=x) + list(extra), **facts)


entered("Logarithm", [signed], x=(2.5, 9), idle="zero")(lambda P, x: log(x - P[1]))
# the derivative by P2 has the opposite sign on purpose
entered("LogarithmEVP", [(-2, 0), signed], x=(9, 20), stated={2: lambda P, x: exp(P[2]) / (x - P[1] - exp(P[2]))})(
    lambda P, x: log(x - P[1] - exp(P[2])))

# Reciprocal0 has -P1/y^2 as its derivative
entered("Reciprocal0", [rate], x=(-0.4, 4), stated={1: lambda P, x: -P[1] * (1 + P[1] * x) ** 2})(
    lambda P, x: 1 / (1 + P[1] * x))
entered("Reciprocal0EVP", [positive, base], x=(0, 4), extra=[([2, 0.25], 2.0), ([-2, -0.5], -3.0)])(
    lambda P, x: 1 / ((1 / P[2] - 1) * x / P[1] + 1))
entered("Reciprocal1", [positive], x=(0, 4), extra=[([-3], 1.0)])(lambda P, x: 1 / (P[1] + x))
entered("Reciprocal1EVP", [(0, 1), positive], x=(1, 4), extra=[([2, 3.5], 2.0), ([1, -3], 3.0)])(
    lambda P, x: P[2] / ((x - P[1]) * P[2] + 1))

entered("Power", [signed], x=positive, extra=[([0], 2.0), ([2], 1.0)])(lambda P, x: x ** P[1])
entered("PowerEVP", [above_one, positive], x=positive, extra=[([0.5, 0.25], 3.0), ([3, 2.5], 3.0)])(
    lambda P, x: P[2] ** (log(x) / log(P[1])))
entered("Pareto", [signed], x=above_one, extra=[([1.5], 0.5)])(lambda P, x: 1 - x ** -P[1])
# P2 stays away from 0, where 1 - P2 loses digits
entered("ParetoEVP", [above_one, base], x=above_one, extra=[([2, -1.5], 3.0), ([0.5, 0.25], 0.3), ([3, 0.5], 3.0)])(
    lambda P, x: 1 - (1 - P[2]) ** (log(x) / log(P[1])))

entered("Exp1P1", [signed])(lambda P, x: exp(x - P[1]))
entered("ExponentEVP", [signed, signed], extra=[([2, 3], 2.0)])(lambda P, x: P[2] * exp(x - P[1]))

entered("Exp1P2", [rate], extra=[([-0.7], 2.0), ([0], 2.0)])(lambda P, x: exp(-P[1] * x))
entered("Exp1P2Md", [base], extra=[([1.5], 2.5)])(lambda P, x: P[1] ** x)
entered("Exponent2EVP", [positive, base], extra=[([-2, 1.5], 3.0), ([2, 0.7], 2.0)])(lambda P, x: P[2] ** (x / P[1]))
entered("Exp1P4", [rate], x=(1, 4), extra=[([-0.7], 2.0)])(lambda P, x: 1 - exp(-P[1] * x))
entered("Exp1P4Md", [base], x=(1, 4), extra=[([1.5], 2.5)])(lambda P, x: 1 - P[1] ** x)
entered("Exponent3EVP", [positive, base], x=(1, 4), extra=[([-2, -1.5], 3.0), ([2, 0.7], 2.0)])(
    lambda P, x: 1 - (1 - P[2]) ** (x / P[1]))
entered("Exp1P3", [rate], extra=[([-0.7], 2.0)])(lambda P, x: P[1] * exp(-P[1] * x))
entered("Exp1P3Md", [base], extra=[([1.5], 2.5)])(lambda P, x: -log(P[1]) * P[1] ** x)
