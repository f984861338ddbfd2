"""The handbook models that carry a name of their own."""

from mpmath import exp
from laws import draw, row

signed, scale, rate, base, away = (-4, 4), (1, 5), (0.2, 1.5), (0.1, 0.9), (0.3, 6)


def stated(name, parameters, x=(-2, 5), form="D", extra=(), **facts):
    return row(name, form=form, points=draw(8, P=parameters, x=x) + list(extra), **facts)


stated("Shah", [signed, signed, signed, base])(lambda P, x: P[1] + P[2] * x + P[3] * P[4] ** x)

# yield and fertilizer
stated("YldFert", [signed, signed, base])(lambda P, x: P[1] + P[2] * P[3] ** x)
stated("YldFert1", [signed, signed, rate])(lambda P, x: P[1] + P[2] * exp(-P[3] * x))

# power laws; an exact power and the point where it is 1
stated("Allometric1", [signed, (-2, 3)], x=away, extra=[([2, 3], 1.0)])(lambda P, x: P[1] * x ** P[2])
stated("Allometric2", [signed, signed, (-2, 3)], x=away, extra=[([1, 2, 3], 1.0)])(
    lambda P, x: P[1] + P[2] * x ** P[3])
stated("Freundlich3PMod", [signed, signed, (0.4, 3)], x=away, extra=[([1, 2, -1.5], 2.5)])(
    lambda P, x: P[1] + P[2] * x ** (1 / P[3]))
stated("Cole", [(-2, 3), signed, signed], x=[away, signed], form="W")(
    lambda P, x1, x2: x1 ** P[1] * (P[2] + P[3] * x2))

# rational forms
stated("Holliday", [(1, 3), rate, rate], x=(-1, 5))(lambda P, x: 1 / (P[1] + P[2] * x + P[3] * x * x))
stated("MicMent", [scale, scale], x=away, extra=[([2, 5], -3.0), ([2, 5], -8.0), ([2, -5], 3.0)])(
    lambda P, x: P[1] * x / (P[2] + x))
stated("MichaelisMenten", [scale, scale], x=away, form="E")(lambda P, x: P[1] * x / (P[2] + x))
stated("BatesWatts", [rate, rate, signed], x=[away, away], form="W")(
    lambda P, x1, x2: P[3] * P[1] * x1 / (1 + P[1] * x1 + P[2] * x2))


@stated("Nelder", [rate, (1, 3), rate, rate], x=(-0.1, 5))
def nelder(P, x):
    u = x + P[1]
    return u / (P[2] + P[3] * u + P[4] * u * u)


@stated("MWChang", [signed, rate, rate, (1, 2), signed], x=away, form="W", extra=[([2, 0.5, 3, -1, 2], 1.5)])
def mw_chang(P, x):
    b = 1 + P[3] * x
    return P[1] * (b - 1) / b


# exponentials
stated("BoxLucas1", [signed, rate], x=(1, 6), extra=[([3, -0.5], 2.0)])(lambda P, x: P[1] * (1 - exp(-P[2] * x)))
stated("BoxLucas2", [(1, 2), (0.1, 0.4)], x=(0.5, 5), extra=[([0.3, 1.5], 1.0)])(
    lambda P, x: P[1] * (exp(-P[2] * x) - exp(-P[1] * x)) / (P[1] - P[2]))
stated("Stirling", [signed, signed, rate], x=(1, 4), extra=[([1, 2, -0.75], 2.0)])(
    lambda P, x: P[1] + P[2] * (exp(P[3] * x) - 1) / P[3])
# claims derivatives and has none
stated("Reich", [signed, rate, signed, rate], form="W", query=1)(
    lambda P, x: P[1] * exp(-P[2] * x) + P[3] * exp(-P[4] * x))
stated("ExpLinear", [signed, (0.5, 3), signed, signed], extra=[([1, -2, 3, 4], 1.5)])(
    lambda P, x: P[1] * exp(-x / P[2]) + P[3] + P[4] * x)
