"""What a user reads is what is computed: the formula of every page, at every golden point of its row, against the law
that the golden data state independently.

    tests/formulas_test.py PAGES.json
"""

import json
import pathlib
import re
import sys
import unittest

tests = pathlib.Path(__file__).parent
sys.path.insert(0, str(tests.parent / "pages"))
from formula import Formula, FormulaError, real

# Errors are relative to what the inputs make of a relative error of their own, the condition beside each golden number.
# A golden number has 20 digits, and a law has its literals as doubles.
TOLERANCE = 2e-16

# Laws with constants of few digits, which the formula has in full: as far as those reach.
SHORT_CONSTANTS = {
    "Gauss": 4e-13,        # sqrt(pi/2) = 1.253314137316
    "Gaussian": 1e-14,     # ln 2 and the norm with 14 and 15 digits
    "PsdVoigt1": 1e-9,     # four constants of nine digits
    "PsdVoigt2": 1e-9,
    "PearsonVII": 5e-10,   # two gamma functions, good to 2e-10 each
    "Voigt5": 1e-6,        # a Voigt function by an approximation
}

# Voigt5 adds the shape of a peak to the next one, and is no Voigt function for negative widths. Its page says so.
WITHIN_FORMULA = {"Voigt5": lambda P: len(P) == 5 and min(P[3:]) > 0}

# Values that the golden data do not have, since the derivatives beside them do not exist.
BY_HAND = {"Power2": [([0.5, 2, 0.75, 1.5], [0.5], {1: (0, 1)})]}


def golden():
    """{name: [(parameters, x, {index of y: (value, condition)})]}"""
    points = {name: list(by_hand) for name, by_hand in BY_HAND.items()}
    for file in sorted((tests / "golden").glob("*.txt")):
        for line in file.read_text().splitlines():
            words = line.split()
            if words[0] == "row":
                name = words[1]
            elif words[0] == "at":
                count = int(words[1])
                parameters, x = words[2:2 + count], words[4 + count:]
                points.setdefault(name, []).append((list(map(float, parameters)), list(map(float, x)), {}))
            elif words[0] == "y":
                points[name][-1][2][int(words[1])] = tuple(map(real.mpf, words[2:4]))
    return points


def differences(formula, page, points):
    """How far each number that the formula gives at the points is from the golden one."""
    within = WITHIN_FORMULA.get(page["name"], lambda P: True)
    for parameters, x, expected in points:
        if formula.block_count(parameters) is None or not within(parameters):
            continue   # more parameters than the page describes
        values = list(formula.evaluate(parameters, x).values())
        if formula.block and page.get("components", True):
            values += formula.components(parameters, x)
        for index, value in enumerate(values, 1):
            want, condition = expected[index]
            yield abs(value - want) / (abs(want) + condition) if value != want else 0


def agrees(page, points, text=None):
    """Does the page's formula, or this one in its place, give the golden numbers?"""
    tolerance = SHORT_CONSTANTS.get(page["name"], TOLERANCE)
    try:
        return all(d <= tolerance for d in differences(Formula.of_page({**page, "formula": text or page["formula"]}),
                                                       page, points))
    except (FormulaError, ArithmeticError):
        return False


def mutants(text, symbols):
    """The formula with one sign, number or comparison changed, one symbol doubled or exchanged for another.

    Where exactly a case ends is left alone: points are not that close to it."""
    head = text.index("=") + 1
    for token in re.finditer(r" [-+<>]=? |\b\d+(\.\d+)?|[A-Za-z]\w*", text[head:]):
        was, condition = token[0], " for " in re.split(",|;", text[:head + token.start()])[-1]
        if was[0] == " ":
            changes = [was.translate(str.maketrans("+-<>", "-+><"))]
        elif was[0].isdigit():
            changes = [was + "1"]
        elif was in symbols:
            changes = ["(2 %s)" % was] + [symbols[symbols.index(was) - 1]] * (len(symbols) > 1)
        else:
            continue
        if not condition or set(was) & {"<", ">"}:
            yield from (text[:head + token.start()] + change + text[head + token.end():] for change in changes)


class Formulas(unittest.TestCase):
    def test_every_formula_is_the_law(self):
        for page in pages:
            with self.subTest(page["name"]):
                formula = Formula.of_page(page)
                self.assertTrue(agrees(page, laws[page["name"]]), max(differences(formula, page, laws[page["name"]])))
                self.assertTrue(any(True for _ in differences(formula, page, laws[page["name"]])), "nothing compared")
                for p in page["parameters"] + page["block"]:
                    self.assertEqual(p["symbol"] in formula.unused, p["meaning"].startswith("without effect on y"),
                                     p["symbol"])

    def test_a_wrong_formula_is_noticed(self):
        for page in pages:
            symbols = [p["symbol"] for p in page["parameters"] + page["block"]]
            survivors = [text for text in mutants(page["formula"], symbols) if agrees(page, laws[page["name"]], text)]
            with self.subTest(page["name"]):
                self.assertEqual(survivors, [])

    def test_what_a_reader_could_misread_is_refused(self):
        for text in ["a/b c", "a/b^2 c", "a/b/c", "a 2", "a(b + c)", "exp (a)", "exp a", "a^b^c", "a^-b", "|a|", "a*b",
                     "a b)", "unknown", "b,  b = a", "a,  c = b", "c,  c = d,  d = c", "a for b", "sum a", "exp(a, b)"]:
            with self.subTest(text), self.assertRaises(FormulaError):
                Formula("y = " + text, ["a", "b"])

    def test_latex_keeps_the_shape(self):
        for text, latex in {
            "y = a0 + sum A/(w sqrt(pi/2)) exp(-((x - xc)/w)^2)":
                r"y = a_0 + \sum_i \frac{A_i}{w_i\,\sqrt{\pi/2}}"
                r"\exp\left(-\left(\frac{x - x_{c,i}}{w_i}\right)^2\right)",
            "y = (a0/2) x^(-1/a0) - (x - 1) + sum A w^xc":
                r"y = \frac{a_0}{2}\,x^{-1/a_0} - (x - 1) + \sum_i A_i\,w_i^{x_{c,i}}",
            "y = 1/((a0/2) x - x/(2 a0)) + sum w A xc":
                r"y = \frac{1}{(a_0/2)\,x - x/(2\,a_0)} + \sum_i w_i\,A_i\,x_{c,i}",
            "y = a0 for x < 1, u otherwise,  u = sin(x)^2 abs(a0)":
                r"y = \begin{cases} a_0 & \text{for } x < 1 \\ u & \text{otherwise} \end{cases},\quad "
                r"u = \sin^2(x)\left|a_0\right|",
        }.items():
            with self.subTest(text):
                self.assertEqual(Formula(text, ["a0"], ["xc", "w", "A"]).latex(), latex)


if __name__ == "__main__":
    pages = [page for page in json.loads(pathlib.Path(sys.argv.pop()).read_text()) if not page["reserved"]]
    laws = golden()
    unittest.main()
