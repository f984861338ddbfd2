"""The formulas of the models' pages: read, worked out and typeset. docs/formulas.md describes their grammar.

    gauss = Formula("y = y0 + sum A/(w sqrt(pi/2)) exp(-2 ((x - xc)/w)^2)", ["y0"], block=["xc", "w", "A"])
    gauss.evaluate([0, 1, 2, 3], [1])   # {"y": mpf(..)}, of the offset and one peak
    gauss.latex()                       # y = y_0 + \\sum_i \\frac{A_i}{..
"""

import re
from dataclasses import dataclass

from mpmath import mp

real = mp.clone()
real.dps = 50


class FormulaError(ValueError):
    pass


def voigt(d, gauss, lorentz):
    """A Gaussian and a Lorentzian of these full widths at half maximum, convolved: of area 1, at distance d."""
    s = gauss / (2 * real.sqrt(2 * real.log(2)))
    z = real.mpc(d, lorentz / 2) / (s * real.sqrt(2))
    return (real.exp(-z ** 2) * real.erfc(-1j * z)).real / (s * real.sqrt(2 * real.pi))


# name: (what it computes, its LaTeX before the parenthesis; those without are typeset otherwise)
FUNCTIONS = {
    "exp": (real.exp, r"\exp"), "ln": (real.log, r"\ln"), "log10": (real.log10, r"\log_{10}"),
    "sqrt": (real.sqrt, None), "abs": (abs, None), "sign": (real.sign, r"\operatorname{sgn}"),
    "sin": (real.sin, r"\sin"), "cos": (real.cos, r"\cos"), "tan": (real.tan, r"\tan"),
    "acos": (real.acos, r"\arccos"), "atan": (real.atan, r"\arctan"),
    "tanh": (real.tanh, r"\tanh"), "coth": (real.coth, r"\coth"),
    "erf": (real.erf, r"\operatorname{erf}"), "erfc": (real.erfc, r"\operatorname{erfc}"),
    "gamma": (real.gamma, r"\Gamma"), "absgamma": (lambda a, b: abs(real.gamma(real.mpc(a, b))), None),
    "I1": (lambda u: real.besseli(1, u), "I_1"), "voigt": (voigt, "V"),
}
ARGUMENTS = {"absgamma": 2, "voigt": 3}
RESERVED = {*FUNCTIONS, "pi", "sum", "i", "for", "otherwise"}


# The tree. It keeps the shape in which the formula is written: nothing is reordered or simplified.

@dataclass(frozen=True)
class Number:
    text: str


@dataclass(frozen=True)
class Symbol:
    name: str


@dataclass(frozen=True)
class Call:
    function: str
    arguments: tuple


@dataclass(frozen=True)
class Power:
    base: object
    exponent: object


@dataclass(frozen=True)
class Product:
    factors: tuple


@dataclass(frozen=True)
class Quotient:
    top: object
    bottom: object


@dataclass(frozen=True)
class Terms:
    """Terms with the signs before them; the first is "+" where nothing is written."""
    signed: tuple


@dataclass(frozen=True)
class Blocks:
    """The sum over the peaks or terms."""
    term: object


@dataclass(frozen=True)
class Cases:
    """(expression, condition) each; the condition of `otherwise` is None, others are (a, "<", b, "<", c)."""
    branches: tuple


def children(node):
    """The expressions directly below a node."""
    if isinstance(node, Cases):
        return [e for value, condition in node.branches for e in (value, *(condition or ())[::2])]
    if isinstance(node, Terms):
        return [term for _, term in node.signed]
    fields = vars(node).values()
    return [e for field in fields for e in (field if isinstance(field, tuple) else [field]) if not isinstance(e, str)]


def symbols(node):
    if isinstance(node, Symbol):
        return {node.name}
    return set().union(*map(symbols, children(node)))


COMPARE = {"<": lambda a, b: a < b, "<=": lambda a, b: a <= b, ">": lambda a, b: a > b, ">=": lambda a, b: a >= b}
TOKEN = re.compile(r"(?P<space> *)(?:(?P<number>\d+(?:\.\d+)?)|(?P<name>[A-Za-z][A-Za-z0-9_]*)"
                   r"|(?P<sign><=|>=|[-+/^(),;=<>])|(?P<end>$))")


class Parser:
    """Recursive descent; one method per rule of docs/formulas.md."""

    def __init__(self, text):
        self.text, self.tokens, at = text, [], 0
        while not self.tokens or self.tokens[-1].lastgroup != "end":
            token = TOKEN.match(text, at)
            if not token:
                raise FormulaError("%s: cannot read %r" % (text, text[at:at + 8]))
            self.tokens.append(token)
            at = token.end()
        self.position = 0

    def kind(self, ahead=0):
        return self.tokens[min(self.position + ahead, len(self.tokens) - 1)].lastgroup

    def peek(self, ahead=0):
        token = self.tokens[min(self.position + ahead, len(self.tokens) - 1)]
        return token[token.lastgroup]

    def spaced(self):
        return bool(self.tokens[self.position]["space"])

    def take(self, *wanted):
        text = self.peek()
        if wanted and text not in wanted:
            self.fail("%s is wanted" % " or ".join(wanted))
        self.position += 1
        return text

    def fail(self, why):
        at = self.tokens[self.position].start()
        raise FormulaError("%s, before %r: %s" % (self.text[:at], self.text[at:], why))

    def formula(self):
        equations, definitions = [self.equation()], {}
        while self.peek() == ";":
            self.take()
            equations.append(self.equation())
        while self.peek() == ",":
            self.take()
            name, value = self.equation()
            if name in definitions:
                self.fail("%s is defined twice" % name)
            definitions[name] = value
        if self.kind() != "end":
            self.fail("the formula should end here")
        return equations, definitions

    def equation(self):
        if self.kind() not in ("name", "number"):
            self.fail("a name is wanted")
        name = self.take()
        self.take("=")
        return name, self.cases()

    def cases(self):
        value = self.expression()
        if self.peek() != "for":
            return value
        branches = []
        while True:
            if self.take("for", "otherwise") == "otherwise":
                branches.append((value, None))
                break
            branches.append((value, self.condition()))
            if self.peek() != "," or self.peek(2) == "=":
                break
            self.take()
            value = self.expression()
        return Cases(tuple(branches))

    def condition(self):
        parts = [self.expression(), self.take(*COMPARE), self.expression()]
        if self.peek() in COMPARE:
            parts += [self.take(), self.expression()]
        return tuple(parts)

    def expression(self):
        signed = []
        while not signed or self.peek() in ("+", "-"):
            sign = self.take() if signed or self.peek() == "-" else "+"
            signed.append((sign, self.term()))
        return signed[0][1] if len(signed) == 1 and signed[0][0] == "+" else Terms(tuple(signed))

    def term(self):
        if self.peek() != "sum":
            return self.product()
        self.take()
        return Blocks(self.product())

    def product(self):
        factors, divided, open_ended = [self.power()], False, False
        while True:
            if self.peek() == "/":
                if divided:
                    self.fail("a product has one / only")
                self.take()
                group = self.peek() == "("
                bottom = self.power()
                open_ended = not group or isinstance(bottom, Power)
                factors = [Quotient(factors[0] if len(factors) == 1 else Product(tuple(factors)), bottom)]
                divided = True
            elif self.kind() == "number":
                self.fail("the number of a product comes first")
            elif self.peek() == "(" or self.kind() == "name" and self.peek() not in ("for", "otherwise"):
                if not self.spaced():
                    self.fail("a space is wanted between factors")
                if open_ended:
                    self.fail("a factor behind a quotient: put the quotient or its denominator in parentheses")
                factors.append(self.power())
            else:
                return factors[0] if len(factors) == 1 else Product(tuple(factors))

    def power(self):
        base = self.atom()
        if self.peek() != "^":
            return base
        self.take()
        if self.peek() in FUNCTIONS or self.kind() not in ("name", "number") and self.peek() != "(":
            self.fail("an exponent is a number, a symbol or in parentheses")
        return Power(base, self.atom())

    def atom(self):
        if self.kind() == "number":
            return Number(self.take())
        if self.peek() == "(":
            self.take()
            inner = self.expression()
            self.take(")")
            return inner
        if self.kind() != "name" or self.peek() in ("sum", "for", "otherwise"):
            self.fail("a number, a symbol, a function or ( is wanted")
        name = self.take()
        if name not in FUNCTIONS:
            return Symbol(name)
        if self.peek() != "(" or self.spaced():
            self.fail("the parenthesis of %s is wanted at once" % name)
        self.take()
        arguments = [self.expression()]
        while self.peek() == ",":
            self.take()
            arguments.append(self.expression())
        self.take(")")
        if len(arguments) != ARGUMENTS.get(name, 1):
            self.fail("%s takes %d arguments" % (name, ARGUMENTS.get(name, 1)))
        return Call(name, tuple(arguments))


class Formula:
    """outputs: (name, tree) per equation, the name being y, y1, y2 or 0; definitions: {name: tree}."""

    def __init__(self, text, parameters, block=(), first_block=1, inputs=1):
        self.text, self.parameters, self.block, self.first_block = text, list(parameters), list(block), first_block
        self.variables = ["x"] if inputs == 1 else ["x%d" % (i + 1) for i in range(inputs)]
        self.outputs, self.definitions = Parser(text).formula()
        self.check()

    @classmethod
    def of_page(cls, page):
        """From a page as JSON."""
        names = lambda key: [p["symbol"] for p in page.get(key, [])]
        return cls(page["formula"], names("parameters"), names("block"), page.get("first_block", 1),
                   page.get("inputs", 1))

    def check(self):
        """Names that are missing, taken twice or out of place."""
        names = [name for name, _ in self.outputs]
        self.insist(names in (["y"], ["0"]) or len(names) > 1 and names == ["y%d" % (i + 1) for i in range(len(names))],
                    "the outputs are y, or 0, or y1, y2, ..")
        everything = self.parameters + self.block + self.variables + list(self.definitions)
        self.insist(len(set(everything)) == len(everything), "two things have one name")
        self.insist(not RESERVED & set(everything), "a symbol has the name of a function or a word")

        uses = {name: self.closure(symbols(tree)) for name, tree in self.definitions.items()}
        self.insist(not any(name in below for name, below in uses.items()), "a definition goes round in a circle")
        used = self.closure(set().union(*(symbols(tree) for _, tree in self.outputs)))
        unknown = used - {*everything, "pi"} - ({"i"} if self.block else set())
        self.insist(not unknown, "unknown: " + " ".join(sorted(unknown)))
        self.insist(used >= set(self.definitions), "a definition is without use")
        self.unused = [name for name in self.parameters + self.block if name not in used]

        self.per_block = {"i", *self.block}
        self.per_block |= {name for name, below in uses.items() if below & self.per_block}
        for name, tree in self.outputs + list(self.definitions.items()):
            self.check_sums(tree, name in self.per_block)

    def insist(self, holds, why):
        if not holds:
            raise FormulaError("%s: %s" % (self.text, why))

    def closure(self, names):
        """The names together with all that their definitions use."""
        below = set().union(names, *(symbols(self.definitions[name]) for name in names & set(self.definitions)))
        return names if below == names else self.closure(below)

    def check_sums(self, node, inside):
        if isinstance(node, Blocks):
            self.insist(self.block and not inside, "a sum without peaks or terms, or within a sum")
        if isinstance(node, Symbol):
            self.insist(inside or node.name not in self.per_block, "a peak's or term's symbol outside the sum")
        for child in children(node):
            self.check_sums(child, inside or isinstance(node, Blocks))

    def block_count(self, parameters):
        """Number of peaks or terms among this many parameters; None where the numbers do not match."""
        rest = len(parameters) - len(self.parameters)
        if not self.block:
            return None if rest else 0
        return None if rest < 0 or rest % len(self.block) else rest // len(self.block)

    def evaluate(self, parameters, x):
        """{output: value} with 50 digits; parameters in slot order, one x per variable."""
        known, blocks = self.given(parameters, x)
        return {name: self.value(tree, known, blocks) for name, tree in self.outputs}

    def components(self, parameters, x):
        """What each peak or term adds to y."""
        known, blocks = self.given(parameters, x)
        tree = self.outputs[0][1]
        if isinstance(tree, Cases):
            tree = self.case(tree, known, ())
        terms = [term for _, term in tree.signed] if isinstance(tree, Terms) else [tree]
        summed = [term for term in terms if isinstance(term, Blocks)]
        return [real.fsum(self.value(term, known, [block]) for term in summed) for block in blocks]

    def given(self, parameters, x):
        """The values of the symbols, and those of each block."""
        count, first, size = self.block_count(parameters), len(self.parameters), len(self.block)
        if count is None or len(x) != len(self.variables):
            raise FormulaError("%s: wrong number of parameters or variables" % self.text)
        parameters = [real.mpf(p) for p in parameters]
        known = dict(zip(self.variables + ["pi"], [*map(real.mpf, x), +real.pi]))
        known.update(zip(self.parameters, parameters))
        return known, [{"i": real.mpf(self.first_block + k), **dict(zip(self.block, parameters[first + k * size:]))}
                       for k in range(count)]

    def case(self, node, known, blocks):
        """The expression of the first condition that holds."""
        of = lambda child: self.value(child, known, blocks)
        for expression, condition in node.branches:
            parts = condition or ()
            if all(COMPARE[sign](of(a), of(b)) for a, sign, b in zip(parts[::2], parts[1::2], parts[2::2])):
                return expression
        raise FormulaError("%s: no case holds" % self.text)

    def value(self, node, known, blocks):
        value = self.computed(node, known, blocks)
        if not isinstance(value, real.mpf):
            raise FormulaError("%s: not a real number" % self.text)
        return value

    def computed(self, node, known, blocks):
        of = lambda child: self.value(child, known, blocks)
        if isinstance(node, Number):
            return real.mpf(node.text)
        if isinstance(node, Symbol):
            return known[node.name] if node.name in known else of(self.definitions[node.name])
        if isinstance(node, Call):
            return FUNCTIONS[node.function][0](*map(of, node.arguments))
        if isinstance(node, Power):
            return of(node.base) ** of(node.exponent)
        if isinstance(node, Product):
            return real.fprod(map(of, node.factors))
        if isinstance(node, Quotient):
            return of(node.top) / of(node.bottom)
        if isinstance(node, Terms):
            return real.fsum(of(term) if sign == "+" else -of(term) for sign, term in node.signed)
        if isinstance(node, Blocks):
            return real.fsum(self.value(node.term, {**known, **block}, ()) for block in blocks)
        return of(self.case(node, known, blocks))

    def latex(self):
        from latex import latex
        return latex(self)
