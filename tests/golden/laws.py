"""The frame in which every law is stated once, in plain mathematics, and worked out with 50 digits.

A family's module states its rows:

    @row("Allometric1", form="both", points=draw(8, P=[(0.5, 3), (-2, 2)], x=(0.2, 5)))
    def allometric1(P, x):
        return P[1] * x ** P[2]

P is addressed from 1, as in the formulas. A law returns the value, or peaks(offset, contributions) of a
replicated model, or pair(y1, y2) of a model with two dependent variables. Number literals in a law are the
doubles that the model has, so a short constant is stated as it stands; combine them with P or x first
(1 / 3 alone would be rounded by Python).

Partial derivatives are taken from the law numerically, at a precision that leaves 50 digits; a slot that departs
from the true derivative on purpose is given by its own formula in `stated`. Beside each number stands its
condition: the sum of |d(number)/d(input) * input| over all inputs, which is by how much a relative
error in the inputs is magnified; the comparison is scaled by it.

The form of a model says what becomes of requests:

    both     a call for value and derivatives runs both paths
    one      a call for value and derivatives runs one path: the value's wins
    refuse   value only: a request for derivatives is refused with status 1
    ignore   value only: a request for derivatives is answered 0 and ignored
    own      request rules of its own, which its cases pin
"""

import random
from mpmath import mp, mpf, diff

mp.dps = 50

rows = []


class Value:
    """What a law returns: all entries of y, the first one being the one that is differentiated."""

    def __init__(self, *y):
        self.y = y


def peaks(offset, contributions):
    contributions = list(contributions)
    return Value(offset + sum(contributions), *contributions)


def pair(y1, y2):
    return Value(y1, y2)


def blocks(P, size, first=2):
    """The parameters of each peak or term: blocks(P, 3) of a Gauss gives (centre, width, area) per peak."""
    count = (len(P) - first) // size
    return [P[first + i * size:first + (i + 1) * size] for i in range(count)]


def draw(count, P, x, seed=0, n=None):
    """Generic points: `count` random draws from a range per parameter and per x, the same in every run."""
    source = random.Random(repr((P, x, seed)))
    ranges = x if isinstance(x, list) else [x]
    pick = lambda bounds: float("%.4g" % source.uniform(*bounds)) if isinstance(bounds, tuple) else float(bounds)
    return [([pick(b) for b in P], [pick(b) for b in ranges]) for _ in range(count)]


one_peak = dict(P=[(-1, 1), (-1, 1), (0.5, 2), (1, 4)], x=(-2, 2))
two_peaks = dict(P=[(-1, 1), (-1, 0), (0.5, 2), (1, 4), (0, 1), (0.5, 2), (-4, -1)], x=(-2, 2))
one_or_two = draw(6, **one_peak) + draw(6, **two_peaks)  # peaks of a centre, a width and a height or area


class Row:
    def __init__(self, name, law, form, points, query=None, probe="none", idle="zero", derivatives=None,
                 derivative_law=None, derivative_value=None, stated=None, unwritten=(), slack=1):
        assert form in ("both", "one", "refuse", "ignore", "own"), (name, form)
        self.name, self.law, self.form, self.points = name, law, form, points
        self.derivative_law = derivative_law
        self.derivative_value = derivative_value or derivative_law
        self.derivatives = form in ("both", "one") if derivatives is None else derivatives
        self.query = int(self.derivatives) if query is None else query
        self.probe, self.idle = probe, idle
        self.stated, self.unwritten, self.slack = stated or {}, set(unwritten), slack


def row(name, **facts):
    """States a row.

    form         what becomes of requests: "both", "one", "refuse", "ignore" or "own", as above
    points       [(parameters, x or [x1, x2, ..]), ...]
    query        answer to FF_QUERY_DERIV, by default the truth
    probe        "none", "plain", or "own"
    idle         what a call without any request bit returns: "zero", "flags", "one", or "own"
    derivatives  does the derivative path fill dyda? By default yes for "both" and "one"
    derivative_law  the law as the derivative path evaluates it, where its constants differ from the value path's
    derivative_value  the law by which the derivative path computes y, where that departs on purpose
    stated       {slot: formula} where a derivative slot departs from the true derivative on purpose
    unwritten    slots of dyda that the derivative path leaves alone at these points
    slack        factor on the tolerance, with the reason in a comment beside it
    """

    def enter(law):
        rows.append(Row(name, law, **facts))
        return law

    return enter


def drawn(name, *ranges, count=8, form="one", idle=None, extra=(), seed=0, **facts):
    """States a row at `count` points drawn from each (P, x), and at the extra ones; without a request the laws of one
    path return the flags."""
    points = [point for P, x in ranges for point in draw(count, P, x, seed)]
    idle = idle or ("flags" if form == "one" else "zero")
    return row(name, form=form, idle=idle, points=points + list(extra), **facts)


def own_draw(name, P, x, extra=()):
    """States a row at ten points that no other row has, whatever its ranges, and at the extra ones."""
    return drawn(name, (P, x), count=10, extra=extra, seed=name)


# Two reference points of an expected-value form, in either order.
references = [(0.5, 1.5), (1, 4), (4, 6), (5, 9)], (1.6, 3.9)
swapped = [(4, 6), (5, 9), (0.5, 1.5), (1, 4)], (7, 12)


def between(t1, y1, t3, y3, t):
    """The straight line through (t1, y1) and (t3, y3), at t."""
    return y1 + (y3 - y1) * (t - t1) / (t3 - t1)


def power_place(x, first, second, b):
    return (x ** b - first ** b) / (second ** b - first ** b)


def number(v):
    return mp.nstr(mpf(v), 20)


def condition(f, inputs):
    """sum of |df/du u| over all inputs u"""
    total = mpf(0)
    for i, u in enumerate(inputs):
        if u != 0:
            total += abs(partial(f, inputs, i) * u)
    return total


def partial(f, inputs, i):
    return diff(lambda u: f(inputs[:i] + [u] + inputs[i + 1:]), inputs[i])


def lines(row):
    yield "row %s form %s query %d probe %s idle %s derivatives %d slack %g" % (
        row.name, row.form, row.query, row.probe, row.idle, row.derivatives, row.slack)
    for params, x in row.points:
        x = x if isinstance(x, list) else [x]
        inputs = [mpf(float(v)) for v in params + x]
        split = lambda v: ([None] + v[:len(params)], v[len(params):])

        def output(formula, index=0):
            def f(v):
                P, xs = split(v)
                out = formula(P, *xs)
                return mpf(out.y[index]) if isinstance(out, Value) else mpf(out)
            return f

        yield "at %d %s x %d %s" % (len(params), " ".join(map(repr, map(float, params))), len(x),
                                    " ".join(map(repr, map(float, x))))
        def values(letter, law):
            P, xs = split(inputs)
            out = law(P, *xs)
            for index in range(len(out.y) if isinstance(out, Value) else 1):
                f = output(law, index)
                yield "%s %d %s %s" % (letter, index + 1, number(f(inputs)), mp.nstr(condition(f, inputs), 4))

        yield from values("y", row.law)
        if not row.derivatives:
            continue
        if row.derivative_value:
            yield from values("v", row.derivative_value)
        for k in range(1, len(params) + 1):
            if k in row.unwritten:
                continue
            if k in row.stated:
                f = output(row.stated[k])
            else:
                value = output(row.derivative_law or row.law)
                f = lambda v, k=k: partial(value, v, k - 1)
            yield "d %d %s %s%s" % (k, number(f(inputs)), mp.nstr(condition(f, inputs), 4),
                                    " stated" if k in row.stated else "")
