"""Logarithms of x or of a line, with their expected-value forms."""

from mpmath import exp, log
from laws import between, drawn, own_draw

signed, positive = (-2, 2), (0.3, 4)

drawn("Logarithm", ([signed], (2.5, 9)), idle="zero")(lambda P, x: log(x - P[1]))
# the derivative by P2 has the opposite sign on purpose
drawn("LogarithmEVP", ([(-2, 0), signed], (9, 20)), stated={2: lambda P, x: exp(P[2]) / (x - P[1] - exp(P[2]))})(
    lambda P, x: log(x - P[1] - exp(P[2])))
drawn("Log2P1", ([(-3, 0), (-2, 3)], (0.5, 8)), ([(2, 4), (0.5, 2)], (4.5, 20)), count=5)(
    lambda P, x: P[2] * log(x - P[1]))


@drawn("Log2P1EVP", ([(0.5, 2), (1, 4), (1, 3)], (3, 9)), ([(0.5, 2), (1, 4), (-3, -1)], (3, 9)), count=6)
def log_2p1_evp(P, x):
    shift = P[1] - exp(P[2] / P[3])
    return P[3] * log(x - shift)


drawn("Log2P2", ([(0.2, 3), (0.1, 2)], (0.5, 8)), ([(5, 9), (-1, -0.2)], (-3, 3)), count=5)(
    lambda P, x: log(P[1] + P[2] * x))


def line(P, x):
    return between(P[1], exp(P[2]), P[3], exp(P[4]), x)


# The derivatives divide the exponentials by the line alone; the true ones have the distance P3 - P1 as well.
unit_apart = [4, (0.5, 2), 3, (0.5, 2)], (2.9, 4.1)
drawn("Log2P2EVP", ([(0.5, 1.5), (-1, 1), (4, 6), (1, 2)], (1, 9)), unit_apart, count=6, stated={
    1: lambda P, x: 1 / (P[3] - P[1]) - exp(P[4]) / line(P, x),
    2: lambda P, x: (P[3] - x) * exp(P[2]) / line(P, x),
    3: lambda P, x: exp(P[2]) / line(P, x) - 1 / (P[3] - P[1]),
    4: lambda P, x: (x - P[1]) * exp(P[4]) / line(P, x)})(lambda P, x: log(line(P, x)))

own_draw("Log3P1", [(-2, 5), (-3, 3), (0.5, 4)], (0, 9))(lambda P, x: P[1] - P[2] * log(x + P[3]))
drawn("Bradley", ([(-5, 5), positive], (0.05, 0.6)), ([(1, 20), (-4, -0.5)], (2, 9)), count=5)(
    lambda P, x: P[1] * log(P[2] * log(1 / x)))
