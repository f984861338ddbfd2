"""The list of all models for readers, from their pages.

    pages/models_md.py PAGES.json DOCUMENT [--check]

writes docs/models.md, or says whether it is up to date. The measured accuracy comes from docs/accuracy.md beside it.
"""

import json
import pathlib
import re
import sys

from formula import Formula

HEAD = """# The models

{counts}

Each entry names the file that holds the law and this page. In a formula P1, P2, .. are the parameters in the order of the
table, once per peak or term where it says so. `ansatz show NAME` prints the same in a terminal. *Error* is the largest
measured one of the value and of the derivatives, in units of the last place, scaled by the condition of the point
([accuracy.md](accuracy.md)); none is given where a model offers no derivatives.

"""


def title(family):
    return family.replace("_", " ").capitalize()


def counts(pages):
    """What the rows are, in one sentence."""
    reserved = [p for p in pages if p["reserved"]]
    laws = [p for p in pages if not p["reserved"] and p["name"] != "errtest"]
    same = [p for p in laws if p["same_as"]]
    return ("The %d names are %d reserved ones that compute nothing, one rehearsal of errors, and %d models. %d of these are "
            "the curve of another one in other parameters, so that there are %d distinct laws." %
            (len(pages), len(reserved), len(laws), len(same), len(laws) - len(same)))


def errors(document):
    """{name: (value, derivatives)} from the table of measured errors."""
    found = {}
    for line in document.read_text().splitlines():
        cells = [c.strip() for c in line.strip("|").split("|")]
        if len(cells) == 7 and re.fullmatch(r"\d+", cells[1]):
            found[cells[0]] = cells[3], cells[5]
    return found


def bounds(limits):
    lower, upper = limits["lower"], limits["upper"]
    if limits["zero_excluded"]:
        return "not 0"
    if lower is not None and upper is not None:
        between = "between {:g} and {:g}" if limits["lower_open"] and limits["upper_open"] else "{:g} to {:g}"
        return between.format(lower, upper)
    if lower is not None:
        return ("above {:g}" if limits["lower_open"] else "at least {:g}").format(lower)
    if upper is not None:
        return ("below {:g}" if limits["upper_open"] else "at most {:g}").format(upper)
    return ""


def row(number, p):
    role = {"reference": "held fixed in a fit"}.get(p["trait"], p["trait"].replace("_", " "))
    return "| %s | `%s` | %s | %s | %s |" % (number, p["symbol"], p["meaning"], role, bounds(p["limits"]))


def entry(page, error):
    yield "### %s" % page["name"]
    yield ""
    yield "%s. [%s](../%s)" % (page["title"], pathlib.Path(page["file"]).name, page["file"])
    yield ""
    if page["reserved"]:
        yield page["notes"]
        yield ""
        return
    yield "```math\n%s\n```" % Formula.of_page(page).latex()
    yield ""
    yield "| | | | | |\n|---|---|---|---|---|"
    for k, p in enumerate(page["parameters"]):
        yield row("P%d" % (k + 1), p)
    for p in page["block"]:
        yield row("per " + page["block_name"], p)
    yield ""
    names = ["x"] if page["inputs"] == 1 else ["x%d" % (k + 1) for k in range(page["inputs"])]
    where = ["%s %s" % (n, bounds(l)) for n, l in zip(names, page["x"]) if bounds(l)]
    facts = [("Defined for", ", ".join(where)),
             ("The same curve as", "`%s`" % page["same_as"] if page["same_as"] else ""),
             ("Known as", ", ".join(page["known_as"])),
             ("Source", page["source"]),
             ("Error", "value %s%s" % (error[0], "" if error[1] == "-" else ", derivatives %s" % error[1]) if error else "")]
    line = "; ".join("%s %s" % (k, v) if k[0] != "E" else "*%s:* %s" % (k, v) for k, v in facts if v)
    for text in (page["notes"], line + "." if line else ""):
        if text:
            yield text
            yield ""


def document(pages, errors_of):
    families = sorted({p["family"] for p in pages})
    yield HEAD.format(counts=counts(pages)).rstrip("\n")
    yield ""
    for family in families:
        group = [p for p in pages if p["family"] == family]
        yield "- [%s](#%s): %s" % (title(family), family.replace("_", "-"),
                                   ", ".join("[%s](#%s)" % (p["name"], p["name"].lower()) for p in group))
    yield ""
    for family in families:
        yield "## %s" % title(family)
        yield ""
        for page in pages:
            if page["family"] == family:
                yield from entry(page, errors_of.get(page["name"]))


def main():
    pages, target = json.loads(pathlib.Path(sys.argv[1]).read_text()), pathlib.Path(sys.argv[2])
    text = "\n".join(document(pages, errors(target.parent / "accuracy.md"))).rstrip() + "\n"
    if "--check" not in sys.argv:
        target.write_text(text)
    elif not target.exists() or target.read_text() != text:
        sys.exit("%s is out of date: run scripts/pages" % target)


if __name__ == "__main__":
    main()
