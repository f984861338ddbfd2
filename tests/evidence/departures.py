"""Prints, as a table in Markdown, the numbers that depart from their law on purpose: the slots that the golden data
marks as stated, and the values of derivative requests that have a formula of their own."""

import collections
import pathlib
import sys

why = {
    "BiDoseResp": "ln 10 has ten digits, as in all slopes of this family that carry it",
    "Competition1": "ln 10 has ten digits",
    "Competition2": "ln 10 has ten digits",
    "Response1": "ln 10 has ten digits",
    "Response2": "ln 10 has ten digits",
    "Gauss": "the y of a derivative request has sqrt(2) with 13 digits, that of a value request has all",
    "Gaussian": "constants of 14 digits; the idle first slot of the second peak is reported as 1",
    "Gaussian2D": "with two peaks the angle of the first is the amplitude of the second; the slot holds the latter's derivative",
    "Log2P2EVP": "the distance of the two reference positions is missing as a factor, so they are right where it is 1",
    "LogarithmEVP": "the sign is the opposite one",
    "PearsonVII": "two terms are added that should be factors, constants are short: no derivative; the query says that there is none",
    "RationalTaylor": "the y of a derivative request pairs e with x2^2 instead of x1 x2",
    "Reciprocal0": "-P1/y^2 in the place of -x y^2",
    "SchulzFlory": "the factor 1 + (L - 1)/s in the place of L/s, with L = ln(w/M): right where s = 1",
}

found = collections.defaultdict(set)
for file in sorted((pathlib.Path(__file__).parents[1] / "golden").glob("*.txt")):
    for line in file.read_text().splitlines():
        words = line.split()
        if words[0] == "row":
            name = words[1]
        elif words[0] == "v":
            found[name].add("y")
        elif words[-1] == "stated":
            found[name].add("P" + words[1])
if found.keys() != why.keys():
    sys.exit("departures: %s" % ", ".join(sorted(found.keys() ^ why.keys())))
print("| Model | Slots | How they depart |\n|---|---|---|")
for name in sorted(found):
    print("| %s | %s | %s |" % (name, ", ".join(sorted(found[name], key=lambda s: (len(s), s))), why[name]))
