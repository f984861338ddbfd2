"""Typesets formulas, in the shape in which they are written.

    pages/latex.py PAGES.json TARGET [--check]

writes the LaTeX of all pages as a C++ include of {"Name", "..."}, lines, or says whether it is up to date. It uses what
amsmath and the mathematics of the web have in common; in Markdown put it between $` and `$ or into a block ```math.
"""

import json
import pathlib
import re
import sys

from formula import FUNCTIONS, Blocks, Call, Formula, Number, Product, Quotient, Symbol, Terms

GREEK = {"eta", "nu", "pi", "tau"}
WORDS = {"bottom": r"\mathrm{bottom}", "top": r"\mathrm{top}", "dx": r"\mathit{dx}", "dV": r"\mathit{dV}",
         "logEC": r"\log \mathrm{EC}", "logIC": r"\log \mathrm{IC}"}
COMPARISONS = {"<": "<", "<=": r"\le", ">": ">", ">=": r"\ge"}


def braced(text):
    return text if len(text) == 1 else "{%s}" % text


def symbol(name, block=False):
    """xc is x with the index c, logEC50_1 has the indices 50 and 1; a symbol of a block has its number as well."""
    letters, rest = re.fullmatch(r"([A-Za-z]+)(.*)", name).groups()
    indices = re.findall(r"[0-9]+|[A-Za-z]+", rest)
    if letters in WORDS or letters in GREEK or len(letters) == 1:
        base = WORDS.get(letters, "\\" + letters if letters in GREEK else letters)
    else:
        base, tail = letters[0], letters[1:]
        indices.insert(0, tail if len(tail) < 3 else r"\mathrm{%s}" % tail)
    if block:
        indices.append("i")
    return base + ("_" + braced(",".join(indices)) if indices else "")


def parenthesised(text):
    tall = any(word in text for word in (r"\frac", r"\sum", r"\sqrt", r"\left"))
    return (r"\left(%s\right)" if tall else "(%s)") % text


class Printer:
    """One method per kind of node. Within a fraction and in an exponent, on a `small` line, quotients have a slash."""

    def __init__(self, formula):
        self.per_block, self.first_block = formula.per_block, formula.first_block

    def print(self, node, small=False):
        return getattr(self, type(node).__name__.lower())(node, small)

    def factor(self, node, small):
        text = self.print(node, small)
        return parenthesised(text) if isinstance(node, (Terms, Blocks) + (Quotient,) * small) else text

    def number(self, node, small):
        return node.text

    def symbol(self, node, small):
        return "i" if node.name == "i" else symbol(node.name, node.name in self.per_block)

    def call(self, node, small):
        inside = [self.print(a, small) for a in node.arguments]
        if node.function == "sqrt":
            return r"\sqrt{%s}" % inside[0]
        if node.function == "abs":
            return r"\left|%s\right|" % inside[0]
        if node.function == "absgamma":
            return r"\left|\Gamma%s\right|" % parenthesised(r"%s + \mathrm{i}\,%s" % tuple(inside))
        return FUNCTIONS[node.function][1] + parenthesised(r",\, ".join(inside))

    def power(self, node, small):
        exponent = "^" + braced(self.print(node.exponent, True))
        if isinstance(node.base, Call) and FUNCTIONS[node.base.function][1]:     # \sin^2(t)
            name = FUNCTIONS[node.base.function][1]
            return name + exponent + self.call(node.base, small)[len(name):]
        base = self.print(node.base, small)
        plain = isinstance(node.base, (Number, Symbol, Call))
        return (base if plain else parenthesised(base)) + exponent

    def product(self, node, small):
        text = ""
        for factor in (self.factor(f, small) for f in node.factors):
            spaces_itself = re.match(r"\\(left|ln|log|exp|sin|cos|tan|arc|coth|operatorname)", factor)
            text += (r"\," if text and not spaces_itself else "") + factor
        return text

    def quotient(self, node, small):
        if not small:
            return r"\frac{%s}{%s}" % (self.print(node.top, True), self.print(node.bottom, True))
        bottom = self.factor(node.bottom, True)
        if isinstance(node.bottom, Product):
            bottom = parenthesised(bottom)
        return self.factor(node.top, True) + "/" + bottom

    def terms(self, node, small):
        text = ""
        for sign, term in node.signed:
            text += " %s " % sign if text else sign.strip("+")
            text += self.factor(term, small) if isinstance(term, Terms) else self.print(term, small)
        return text

    def blocks(self, node, small):
        return r"\sum_%s " % ("{i \\ge 0}" if self.first_block == 0 else "i") + self.factor(node.term, small)

    def cases(self, node, small):
        lines = []
        for expression, condition in node.branches:
            text = self.print(expression)
            when = r"\text{otherwise}" if condition is None else r"\text{for } " + " ".join(
                COMPARISONS[part] if isinstance(part, str) else self.print(part, True) for part in condition)
            lines.append("%s%s & %s" % (r"\displaystyle " if r"\frac" in text else "", text, when))
        return r"\begin{cases} %s \end{cases}" % r" \\ ".join(lines)


def latex(formula):
    printer = Printer(formula)
    sides = [(symbol(name) if name != "0" else "0", tree) for name, tree in formula.outputs]
    sides += [(symbol(name, name in formula.per_block), tree) for name, tree in formula.definitions.items()]
    return r",\quad ".join("%s = %s" % (name, printer.print(tree)) for name, tree in sides)


def include(pages):
    yield "// The models' formulas as LaTeX. Written by pages/latex.py from the pages: change those instead."
    for page in pages:
        if not page["reserved"]:
            yield '{"%s", "%s"},' % (page["name"], latex(Formula.of_page(page)).replace("\\", "\\\\"))


def main(arguments):
    checking = "--check" in arguments
    source, target = [pathlib.Path(a) for a in arguments if not a.startswith("-")]
    text = "".join(line + "\n" for line in include(json.loads(source.read_text())))
    if not checking:
        target.write_text(text)
    elif not target.exists() or target.read_text() != text:
        sys.exit("out of date: %s; run scripts/pages" % target)


if __name__ == "__main__":
    main(sys.argv[1:])
