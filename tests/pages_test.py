"""What the pages say beside their formulas, held against those formulas and against the golden data.

    tests/pages_test.py PAGES.json [FAMILY ..]
"""

import json
import pathlib
import re
import sys
import unittest

tests = pathlib.Path(__file__).parent
sys.path.insert(0, str(tests.parent / "pages"))
from formula import Formula, FormulaError, real

POINTS = 7  # of the typical range, at which laws are compared


def typical(page, blocks=None):
    """The typical parameters, with so many blocks only, and points of x over the typical range."""
    parameters = page["typical"]["parameters"]
    if blocks and page["block"]:
        parameters = parameters[:len(page["parameters"]) + blocks * len(page["block"])]
    at = lambda bounds, share: bounds[0] + (bounds[1] - bounds[0]) * share
    shares = [(k + 0.37) / POINTS for k in range(POINTS)]
    ranges = [page["typical"]["x"], page["typical"]["x2"], page["typical"]["x2"]][:page["inputs"]]
    return parameters, [[at(ranges[0], s)] + [at(r, (2.4 * s) % 1) for r in ranges[1:]] for s in shares]


def slots(page, count):
    """The parameter of each slot."""
    lead, block = page["parameters"], page["block"]
    return [lead[k] if k < len(lead) else block[(k - len(lead)) % len(block)] for k in range(count)]


def allows(limits, value):
    lower, upper = limits["lower"], limits["upper"]
    return not (lower is not None and (value < lower or limits["lower_open"] and value == lower) or
                upper is not None and (value > upper or limits["upper_open"] and value == upper) or
                limits["zero_excluded"] and value == 0)


class Pages(unittest.TestCase):
    def test_each_says_what_it_is(self):
        for page in pages:
            with self.subTest(page["name"]):
                self.assertRegex(page["title"], r"^[A-Z0-9].*[^.]$")
                self.assertNotIn("constant", [p["trait"] for p in page["parameters"] + page["block"]
                                              if p["meaning"].startswith(("offset", "area", "centre", "width"))])

    def test_the_typical_curve_lies_within_the_limits(self):
        for page in pages:
            with self.subTest(page["name"]):
                parameters, points = typical(page)
                self.assertGreater(len(parameters), 0)
                for p, value in zip(slots(page, len(parameters)), parameters):
                    self.assertTrue(allows(p["limits"], value), (p["symbol"], value))
                for x in points:
                    for limits, value in zip(page["x"], x):
                        self.assertTrue(allows(limits, value), value)

    def test_the_law_stays_in_other_units(self):
        """x by 4, y by 8, x2 by 16: parameters by their dimensions, the law by 8."""
        for page in pages:
            with self.subTest(page["name"]):
                formula, (parameters, points) = Formula.of_page(page), typical(page)
                x_by, y_by, x2_by = 4 if page["scales"]["x"] else 1, 8 if page["scales"]["y"] else 1, 16
                x2_by = x2_by if page["scales"]["x"] else 1
                unit = lambda d: real.mpf(x_by) ** d["x"] * real.mpf(y_by) ** d["y"] * real.mpf(x2_by) ** d["x2"]
                turned = [value * unit(p["dimension"]) for p, value in zip(slots(page, len(parameters)), parameters)]
                for x in points:
                    y = formula.evaluate(parameters, x)
                    there = formula.evaluate(turned, [v * by for v, by in zip(x, (x_by, x2_by, x_by))])
                    for name in y:
                        want = y[name] * (1 if page["implicit"] else y_by)
                        self.assertLess(abs(there[name] - want), 1e-25 * (1 + abs(want)), (x, name))

    def test_equal_curves_are_equal(self):
        by_name = {page["name"]: page for page in everything}
        for page in pages:
            if not page["same_as"]:
                continue
            with self.subTest(page["name"]):
                other, arguments = re.fullmatch(r"(\w+)\((.*)\)", page["same_as"]).groups()
                other = by_name[other]
                self.assertEqual(other["same_as"], "", "the other one is the same as a third one")
                given = dict(argument.split(" = ", 1) for argument in re.split(r", (?=\w+ = )", arguments))
                symbols = [p["symbol"] for p in page["parameters"] + page["block"]]
                self.assertEqual(list(given), [p["symbol"] for p in other["parameters"] + other["block"]])
                parameters, points = typical(page, blocks=1)
                mapped = [Formula("y = " + text, symbols).evaluate(parameters, [0])["y"]
                          for text in given.values()]
                for x in points:
                    here, there = Formula.of_page(page).evaluate(parameters, x), Formula.of_page(other).evaluate(mapped, x)
                    for name in here:
                        self.assertLess(abs(here[name] - there[name]), 1e-25 * (1 + abs(here[name])), x)

    def test_departures_are_those_of_the_golden_law(self):
        """A slot that the golden law states by its own formula, and that differs visibly from the true one."""
        stated = {}
        for file in (tests / "golden").glob("*.txt"):
            for line in file.read_text().splitlines():
                words = line.split()
                if words[0] == "row":
                    name = words[1]
                elif words[0] == "d" and words[-1] == "stated":
                    stated.setdefault(name, set()).add(int(words[1]))
        for page in pages:
            with self.subTest(page["name"]):
                said = {d["slot"] for d in page["departures"]}
                size = len(page["parameters"]) + len(page["block"])
                known = {slot for slot in stated.get(page["name"], ()) if slot <= size}
                if not page["true_derivatives"]:
                    self.assertTrue(said or not known, "which slots?")
                self.assertLessEqual({d["slot"] for d in page["departures"] if not d["where"]},
                                     known or set(range(1, size + 1)))


def load(path, families):
    everything = [page for page in json.loads(pathlib.Path(path).read_text()) if not page["reserved"]]
    return everything, [page for page in everything if not families or page["family"] in families]


if __name__ == "__main__":
    everything, pages = load(sys.argv[1], sys.argv[2:])
    unittest.main(argv=sys.argv[:1])
