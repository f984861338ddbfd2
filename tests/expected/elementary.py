#!/usr/bin/python3
"""Prints elementary.txt: the elementary functions at ordinary and at hard arguments, worked out with 1200 bits.

Each line: function, arguments, result rounded to a double (all as hexadecimal numbers).
"""

import random

from mpmath import mp, mpf

mp.prec = 1200  # sine and cosine of 2^1023 need that many
random.seed(20)


def rounded(v):
    """The nearest double. Python divides integers correctly rounded, also where the result is subnormal."""
    sign, mantissa, exponent, _ = v._mpf_
    size = mantissa << exponent if exponent >= 0 else mantissa / (1 << -exponent)
    return -float(size) if sign else float(size)


def line(name, function, *arguments):
    print(name, *(float(a).hex() for a in arguments), rounded(function(*map(mpf, arguments))).hex())


def spread(low, high, count):
    return [random.uniform(low, high) for _ in range(count)]


def scales(low, high, count):
    return [random.choice((-1, 1)) * 10 ** random.uniform(low, high) for _ in range(count)]


print("# The elementary functions, made by elementary.py.")
for t in spread(-745, 709.7, 60) + spread(-2, 2, 30) + scales(-20, 0, 15) + [709.78, -708.4, -744.9]:
    line("exp", mp.exp, t)
for t in [abs(s) for s in scales(-300, 300, 40)] + spread(0.5, 2, 40) + [1 + s for s in scales(-12, -1, 30)] + [5e-324]:
    line("log", mp.log, t)
powers = [(abs(a), b) for a, b in zip(scales(-3, 3, 60), spread(-80, 80, 60))]
powers += [(1 + s / 2, random.uniform(100, 700) / abs(s)) for s in scales(-9, -1, 30)]
powers += [(-random.randint(1, 30), random.randint(-60, 60)) for _ in range(15)]
powers += [(a, 0.5) for a in spread(0, 100, 10)] + [(10, -310.5), (2, 1023.9), (140, 140)]
for a, b in powers:
    line("pow", lambda a, b: mp.power(a, int(b)) if a < 0 else mp.power(a, b), a, b)
angles = spread(-10, 10, 60) + scales(-20, 0, 15) + scales(1, 15, 30) + scales(15, 308, 30)
angles += [float(k * mp.pi / 2) for k in list(range(-9, 10)) + [355, 1000, 4567, 10**6, 10**9, 123456789012345]]
angles += [355.0, 0.7853981633974483, 0.7853981633974484, 2.0**63, 2.0**64 + 4096, 1e22, 2.0**1023]
for t in angles:
    if t != 0:
        line("sin", mp.sin, t)
        line("cos", mp.cos, t)
for t in scales(-15, 0, 40) + spread(-5, 5, 40) + [18.0, 19.5, -22.5, 40.0, 800.0, -12000.0, 1e308]:
    line("tanh", mp.tanh, t) if abs(t) < 1000 else print("tanh", t.hex(), "0x1p+0" if t > 0 else "-0x1p+0")
for t in spread(-1, 1, 40) + scales(-15, -1, 15) + [random.choice((-1, 1)) * (1 - abs(s)) for s in scales(-14, -1, 25)]:
    line("acos", mp.acos, t)
for t in spread(-6, 6, 40) + spread(6, 26.5, 15) + scales(-15, 0, 15) + [-40.0, -1e6]:
    line("erfc", mp.erfc, t) if t > -9 else print("erfc", t.hex(), "0x1p+1")
for t in scales(-15, 0, 40) + [abs(s) for s in scales(0, 300, 30)] + [-0.999, -0.75]:
    line("log1p", mp.log1p, t) if t > -1 else None
