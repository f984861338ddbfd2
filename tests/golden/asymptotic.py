"""Asymptotic regression, and single exponentials with their modified and expected-value forms."""

from mpmath import exp, log
from laws import between, drawn, own_draw, references, swapped

level, signed, rate, base, side = (1, 5), (-4, 4), (0.2, 2), (0.1, 0.9), (-2, 5)
at_zero = [([1.5, 0.5, 2.5], 0.0)]

# the asymptotic regression law in its seven parameterisations
drawn("Asymptotic1", ([level, signed, base], side), extra=[([3, -2, 0.5], 0.0), ([3, 0, 0.5], 2.0)])(
    lambda P, x: P[1] - P[2] * P[3] ** x)
drawn("Asymptotic2", ([level, signed, rate], side))(lambda P, x: P[1] - P[2] * exp(-P[3] * x))
drawn("Asymptotic3", ([level, (-4, -2.5), rate], side))(lambda P, x: P[1] * (1 - exp(-P[3] * (x - P[2]))))
drawn("Asymptotic4", ([level, base, signed], side), extra=at_zero)(lambda P, x: P[1] + (P[3] - P[1]) * P[2] ** x)
drawn("Asymptotic5", ([level, rate, signed], side))(lambda P, x: P[1] + (P[3] - P[1]) * exp(-P[2] * x))
drawn("Asymptotic6", ([level, (-1, 1), rate], side), extra=at_zero)(lambda P, x: P[1] - exp(-(P[2] + P[3] * x)))
drawn("Asymptotic7", ([level, signed, rate], side), extra=at_zero)(
    lambda P, x: P[1] + P[2] * (1 - exp(-P[3] * x)))

rate = (0.2, 1.5)

drawn("BoxLucas1", ([signed, rate], (1, 6)), form="both", extra=[([3, -0.5], 2.0)])(
    lambda P, x: P[1] * (1 - exp(-P[2] * x)))
drawn("BoxLucas2", ([(1, 2), (0.1, 0.4)], (0.5, 5)), form="both", extra=[([0.3, 1.5], 1.0)])(
    lambda P, x: P[1] * (exp(-P[2] * x) - exp(-P[1] * x)) / (P[1] - P[2]))
drawn("BoxLucas1Mod", ([(1, 20), (0.2, 0.9)], (-2, 8)), ([(-3, 3), (1.1, 2)], (0.5, 4)), count=5)(
    lambda P, x: P[1] - P[1] * exp(x * log(P[2])))


@drawn("BoxLucas1EVP", ([(0.5, 2), (1, 9), (0.2, 0.8)], (3, 9)), ([(-2, -1), (1, 9), (1.2, 2)], (1, 4)), count=6)
def box_lucas_1_evp(P, x):
    plateau = P[2] / (1 - exp(P[1] * log(P[3])))
    return plateau - plateau * exp(x * log(P[3]))


# yield and fertilizer
drawn("YldFert", ([signed, signed, base], side), form="both")(lambda P, x: P[1] + P[2] * P[3] ** x)
drawn("YldFert1", ([signed, signed, rate], side), form="both")(lambda P, x: P[1] + P[2] * exp(-P[3] * x))

drawn("Stirling", ([signed, signed, rate], (1, 4)), form="both", extra=[([1, 2, -0.75], 2.0)])(
    lambda P, x: P[1] + P[2] * (exp(P[3] * x) - 1) / P[3])
drawn("Shah", ([signed, signed, signed, base], side), form="both")(
    lambda P, x: P[1] + P[2] * x + P[3] * P[4] ** x)
drawn("ExpLinear", ([signed, (0.5, 3), signed, signed], side), form="both", extra=[([1, -2, 3, 4], 1.5)])(
    lambda P, x: P[1] * exp(-x / P[2]) + P[3] + P[4] * x)

# one parameter, with the modified and expected-value forms
signed, side, positive, late = (-2, 2), (-1, 4), (0.3, 6), (1, 4)

drawn("Exp1P1", ([signed], side))(lambda P, x: exp(x - P[1]))
drawn("ExponentEVP", ([signed, signed], side), extra=[([2, 3], 2.0)])(lambda P, x: P[2] * exp(x - P[1]))
drawn("Exp1P2", ([rate], side), extra=[([-0.7], 2.0), ([0], 2.0)])(lambda P, x: exp(-P[1] * x))
drawn("Exp1P2Md", ([base], side), extra=[([1.5], 2.5)])(lambda P, x: P[1] ** x)
drawn("Exponent2EVP", ([positive, base], side), extra=[([-2, 1.5], 3.0), ([2, 0.7], 2.0)])(
    lambda P, x: P[2] ** (x / P[1]))
drawn("Exp1P3", ([rate], side), extra=[([-0.7], 2.0)])(lambda P, x: P[1] * exp(-P[1] * x))
drawn("Exp1P3Md", ([base], side), extra=[([1.5], 2.5)])(lambda P, x: -log(P[1]) * P[1] ** x)
drawn("Exp1P4", ([rate], late), extra=[([-0.7], 2.0)])(lambda P, x: 1 - exp(-P[1] * x))
drawn("Exp1P4Md", ([base], late), extra=[([1.5], 2.5)])(lambda P, x: 1 - P[1] ** x)
drawn("Exponent3EVP", ([positive, base], late), extra=[([-2, -1.5], 3.0), ([2, 0.7], 2.0)])(
    lambda P, x: 1 - (1 - P[2]) ** (x / P[1]))

# two and three
drawn("Exp2P", ([(1, 20), (0.2, 0.9)], (-2, 8)), ([(-3, 3), (1.1, 2)], (-4, 4)), count=5)(
    lambda P, x: P[1] * exp(x * log(P[2])))
drawn("Exp2PMod1", ([(1, 20), (-2, -0.2)], (-2, 8)), ([(-3, 3), (0.1, 2)], (-4, 4)), count=5)(
    lambda P, x: P[1] * exp(x * P[2]))
drawn("Exp2PMod2", ([(-2, 2), (-2, -0.2)], (-2, 8)), ([(-3, 3), (0.1, 2)], (-4, 4)), count=5)(
    lambda P, x: exp(P[1]) * exp(x * P[2]))
drawn("Exp2PEVP", references, swapped, count=6)(lambda P, x: exp(between(P[1], log(P[2]), P[3], log(P[4]), x)))
own_draw("Exp3P1", [(-2, 5), (-8, 8), (1, 4)], (0, 9), [([2, 3, -5], 1.5)])(
    lambda P, x: P[1] * exp(P[2] / (x + P[3])))
own_draw("Exp3P1Md", [(-2, 3), (-8, 8), (1, 4)], (0, 9), [([2, 3, -5], 1.5)])(
    lambda P, x: exp(P[1] + P[2] / (x + P[3])))
own_draw("Exp3P2", [(-2, 2), (-1, 1), (-0.4, 0.2)], (-3, 4))(lambda P, x: exp(P[1] + P[2] * x + P[3] * x * x))
own_draw("ExpGrowth", [(-2, 5), (1, 5)], (-3, 6), [([3, -2], 1.5)])(lambda P, x: P[1] * exp(x / P[2]))
