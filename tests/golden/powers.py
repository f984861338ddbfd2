"""Powers of x, of a distance and of a line, with their modified and expected-value forms."""

from mpmath import exp, log
from laws import between, draw, drawn, own_draw, power_place, references, row, swapped

signed, away = (-4, 4), (0.3, 6)

# an exact power and the point where it is 1
drawn("Allometric1", ([signed, (-2, 3)], away), form="both", extra=[([2, 3], 1.0)])(lambda P, x: P[1] * x ** P[2])
drawn("Allometric2", ([signed, signed, (-2, 3)], away), form="both", extra=[([1, 2, 3], 1.0)])(
    lambda P, x: P[1] + P[2] * x ** P[3])

# one parameter, with the expected-value forms
exponent, base, above_one = (-2, 2), (0.1, 0.9), (1.5, 5)

drawn("Power", ([exponent], away), extra=[([0], 2.0), ([2], 1.0)])(lambda P, x: x ** P[1])
drawn("PowerEVP", ([above_one, away], away), extra=[([0.5, 0.25], 3.0), ([3, 2.5], 3.0)])(
    lambda P, x: P[2] ** (log(x) / log(P[1])))
drawn("Pareto", ([exponent], above_one), extra=[([1.5], 0.5)])(lambda P, x: 1 - x ** -P[1])
# P2 stays away from 0, where 1 - P2 loses digits
drawn("ParetoEVP", ([above_one, base], above_one), extra=[([2, -1.5], 3.0), ([0.5, 0.25], 0.3), ([3, 0.5], 3.0)])(
    lambda P, x: 1 - (1 - P[2]) ** (log(x) / log(P[1])))

positive_exponent = (0.3, 3)


@row("Power0", form="both", points=draw(10, P=[(-1, 1), (-1, 1), (-2, 3), (-2, 3)], x=(1.5, 4))
     + draw(5, P=[(-1, 1), (-1, 1), (-2, 3), (-2, 3)], x=(-4, -1.5)))
def power0(P, x):
    return P[1] + P[3] * abs(x - P[2]) ** P[4]


@row("Power1", form="both", points=draw(6, P=[(-1, 1), (-2, 3), positive_exponent], x=(1.5, 4))
     + draw(6, P=[(-1, 1), (-2, 3), positive_exponent], x=(-4, -1.5)))
def power1(P, x):
    return P[2] * abs(x - P[1]) ** P[3]


@row("Power2", form="both", points=draw(6, P=[(-1, 1), (-2, 3), positive_exponent, positive_exponent], x=(1.5, 4))
     + draw(6, P=[(-1, 1), (-2, 3), positive_exponent, positive_exponent], x=(-4, -1.5)))
def power2(P, x):
    return P[2] * abs(x - P[1]) ** (P[3] if x < P[1] else P[4])


positive = (0.3, 4)

for name in "Freundlich", "TimePow":
    drawn(name, ([(-3, 3), (-2, -0.2)], positive), ([(1, 20), positive], (0.01, 50)), count=5)(
        lambda P, x: P[1] * exp(P[2] * log(x)))
drawn("FreundlichMod1", ([(-3, 3), (-2, -0.3)], positive), ([(1, 20), positive], (0.01, 50)), count=5)(
    lambda P, x: P[1] * exp(log(x) / P[2]))


@drawn("FreundlichEVP", references, swapped, count=6)
def freundlich_evp(P, x):
    return exp(between(log(P[1]), log(P[2]), log(P[3]), log(P[4]), log(x)))


own_draw("Freundlich3P", [(-3, 3), (-2, 4), (-1.5, 2.5)], (0.2, 8))(lambda P, x: P[1] + P[2] * x ** P[3])
drawn("Freundlich3PMod", ([signed, signed, (0.4, 3)], away), form="both", extra=[([1, 2, -1.5], 2.5)])(
    lambda P, x: P[1] + P[2] * x ** (1 / P[3]))
own_draw("Freundlich3PEVP1", [(0.5, 4), (3, 9), (-2, 2), (-1.5, 2.5)], (0.2, 8), [([2, 5, 1, 0.7], 2.0)])(
    lambda P, x: P[3] + (P[2] - P[3]) * (x / P[1]) ** P[4])
own_draw("Freundlich3PEVP2", [(0.5, 2), (1, 9), (4, 7), (-5, 5), (0.4, 2.5)], (0.2, 9),
         [([1.5, 3, 6, 8, -0.7], 2.5), ([1.5, 3, 6, 8, 0.7], 1.5), ([6, 3, 1.5, 8, 0.7], 1.5)])(
    lambda P, x: P[2] + (P[4] - P[2]) * power_place(x, P[1], P[3], P[5]))
own_draw("FreundlichEXT", [(-2, 6), (-1, 2), (-0.5, 1)], (0.2, 8))(lambda P, x: P[1] * x ** (P[2] * x ** -P[3]))
own_draw("FreundlichEXTEVP", [(0.5, 4), (-2, 6), (-1, 2), (-0.5, 1)], (0.2, 8), [([2.5, 4, 1, 0.3], 2.5)])(
    lambda P, x: P[2] * exp(P[3] * (x ** -P[4] * log(x) - P[1] ** -P[4] * log(P[1]))))
own_draw("Belehradek", [(-2, 5), (-3, 1), (-2, 3)], (1.5, 9))(lambda P, x: P[1] * (x - P[2]) ** P[3])

drawn("Pow2P1", ([(1, 20), (0.3, 2)], (1.2, 9)), ([(-3, -1), (-2, -0.3)], (0.2, 0.9)), count=5)(
    lambda P, x: P[1] - P[1] / exp(P[2] * log(x)))
drawn("Pow2P2", ([(1, 20), (-2, 3)], (-0.8, 9)), count=10)(lambda P, x: P[1] * exp(P[2] * log(x + 1)))
drawn("Pow2P3", ([positive, positive], (0.2, 5)), ([(-0.1, -0.02), (-3, 3)], (1, 5)), count=5)(
    lambda P, x: 1 - exp(-P[2] * log(1 + P[1] * x)))


@drawn("Ratkowsky2P1EVP", ([(0.5, 2), (0.2, 0.8), (0.5, 3)], (3, 9)), ([(1, 2), (-2, -1), (-0.3, -0.1)], (2.2, 3)),
       count=6)
def ratkowsky_2p1_evp(P, x):
    exponent = -log(1 - P[2]) / log(1 + P[3] * P[1])
    return 1 - exp(-exponent * log(1 + P[3] * x))


@drawn("Ratkowsky2P2EVP", ([(1.5, 3), (1, 9), (0.5, 2)], (4, 9)), ([(0.3, 0.6), (1, 9), (-2, -1)], (2, 3)), count=6)
def ratkowsky_2p2_evp(P, x):
    return P[2] * (1 - exp(-P[3] * log(x))) * (1 - exp(-P[3] * log(P[1])))


@drawn("Ratkowsky2P3EVP", ([(0.5, 2), (1, 9), (-1, 3)], (-0.8, 9)), ([(-4, -2), (1, 9), (0.3, 2)], (-9, -5)), count=6)
def ratkowsky_2p3_evp(P, x):
    scale = P[2] / exp(P[3] * log(abs(P[1] + 1)))
    return scale * exp(P[3] * log(abs(x + 1)))


drawn("Cole", ([(-2, 3), signed, signed], [away, signed]), form="ignore")(
    lambda P, x1, x2: x1 ** P[1] * (P[2] + P[3] * x2))
