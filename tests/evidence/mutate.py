"""Makes small faults in the library's sources, one at a time, and runs the tests against each.

    scripts/mutate                all of them; writes the figures into docs/evidence.md
    scripts/mutate --sample 40    so many, spread evenly; fails unless each is caught or explained
    scripts/mutate FILE ..        those in some files, one line per fault
    --show                        lists every fault, made in the sources as a diff would show it

The choice is the same in every run. A fault that no test sees is either explained in equivalent.txt beside this
file - it changes nothing that a host can observe - or a gap in the tests.
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import random
import re
import shlex
import subprocess
import sys
import tempfile
import threading

from section import replace

root = pathlib.Path(__file__).resolve().parents[2]
build = root / "build/release"
per_file = {"models": 3, "special": 6, "protocol": 8, "catalogue": 4}

# Kinds of faults: a pattern in a line of code, and what takes its place.
code = re.compile(r'"(?:\\.|[^"\\])*"|//.*')
number = r"(?<![\w.\[])(?:\d+\.\d+|\d+)(?![\w.\]])"


def next_digit(match):
    text = match.group()
    digit = next((k for k in range(len(text) - 1, -1, -1) if text[k].isdigit()), 0)
    return text[:digit] + str((int(text[digit]) + 1) % 10) + text[digit + 1:]


def to(*pairs):
    table = dict(pairs)
    return lambda match: table[match.group()]


kinds = [
    ("sign", r"(?<=[\w)\]]) [+-] (?=[\w(-])", to((" + ", " - "), (" - ", " + "))),
    ("sign", r" \+= | -= ", to((" += ", " -= "), (" -= ", " += "))),
    ("sign", r"(?<=[=(,?:] )-(?=[a-zA-Z(])|(?<=\()-(?=[a-zA-Z(])|(?<=return )-(?=[a-zA-Z(])", lambda m: ""),
    ("product for quotient", r"(?<=[\w)\]]) [*/] (?=[\w(-])", to((" * ", " / "), (" / ", " * "))),
    ("comparison", r" (?:<|<=|>|>=|==|!=) ", to((" < ", " <= "), (" <= ", " < "), (" > ", " >= "), (" >= ", " > "),
                                                (" == ", " != "), (" != ", " == "))),
    ("condition", r" && | \|\| ", to((" && ", " || "), (" || ", " && "))),
    ("index", r"(?<=\b[PpdcxyA])\[\d+\]|(?<=\bdyda)\[\d+\]|(?<=\bxs)\[\d+\]",
     lambda m: "[%d]" % (int(m.group()[1:-1]) + 1)),
    ("index", r"(?<=[\w)\]]) [+-] 1(?=[\])])", lambda m: ""),
    ("slot not marked", r"(?<=fail\(at), 1(?=[,)])|(?<=fail_slots\(at), 1(?=[,)])|, \d(?=\);$)", lambda m: ""),
    ("constant", number, next_digit),
    ("reset dropped", r"\bclear_error\(\);|\berrno = before;", lambda m: ";"),
    ("reset dropped", r"\bfail(?:_all)?\(at", lambda m: m.group().replace("fail", "reject")),
    ("reset added", r"\breject(?:_all)?\(at", lambda m: m.group().replace("reject", "fail")),
    ("statement dropped", r"^\s+(?:dyda|d|y)\[[^=]*\] \+?= .*;$", lambda m: ";"),
    ("statement dropped", r"^\s+if \(.*\) return .*;$", lambda m: ";"),
    ("statement dropped", r"^\s+if \(.*\) continue;$", lambda m: ";"),
    ("error test", r"\b(?:math|range|domain)_error\(\)",
     to(("math_error()", "range_error()"), ("range_error()", "math_error()"), ("domain_error()", "math_error()"))),
    ("error test", r"\b(?:math|range)_error\(\)",
     to(("math_error()", "domain_error()"), ("range_error()", "false"))),
    ("guard", r"\b(?:safe_exp|safe_pow|clamped_exp)\(",
     to(("safe_exp(", "exp("), ("safe_pow(", "pow("), ("clamped_exp(", "safe_exp("))),
    ("function", r"\b(?:sin|cos|exp|log1p|std::fabs|std::max|std::min)\(",
     to(("sin(", "cos("), ("cos(", "sin("), ("exp(", "expm1("), ("log1p(", "log("), ("std::fabs(", "("),
        ("std::max(", "std::min("), ("std::min(", "std::max("))),
    ("answer", r"return (?:success|failure);|\bends_call\b|\bIdle::(?:flags|one)\b|\btrue\b|\bfalse\b|\.query = \d",
     to(("return success;", "return failure;"), ("return failure;", "return success;"), ("ends_call", "success"),
        ("Idle::flags", "Idle::zero"), ("Idle::one", "Idle::zero"), ("true", "false"), ("false", "true"),
        (".query = 0", ".query = 1"), (".query = 1", ".query = 0"))),
    ("form", r"\b(BothPaths|OnePath)(?=<)", to(("BothPaths", "OnePath"), ("OnePath", "BothPaths"))),
]
assigned = re.compile(r"^(\s+(?:dyda|d)\[)([^\]]+)(\] = .*)$")


class Mutant:
    def __init__(self, path, kind, line, old, new):
        self.path, self.kind, self.line, self.old, self.new = path, kind, line, old, new
        self.caught = None
        self.by = ""

    def key(self):
        return (self.path, " ".join("".join(self.old).split()), " ".join("".join(self.new).split()))

    def text(self):
        lines = (root / self.path).read_text().split("\n")
        lines[self.line:self.line + len(self.old)] = self.new
        return "\n".join(lines)

    def changed(self):
        """The lines that differ, before and after."""
        pairs = [(o.strip(), n.strip()) for o, n in zip(self.old, self.new) if o != n]
        return "; ".join(o for o, _ in pairs), "; ".join(n for _, n in pairs)


def candidates(path):
    """Every fault of every kind that this file allows, by kind."""
    lines = (root / path).read_text().split("\n")
    found = {}
    for k, line in enumerate(lines):
        if re.match(r"\s*(#|//|template|namespace|using|static_assert|extern)", line):
            continue
        hidden = [m.span() for m in code.finditer(line)]
        for kind, pattern, replacement in kinds:
            for m in re.finditer(pattern, line):
                if any(a <= m.start() < b for a, b in hidden):
                    continue
                new = line[:m.start()] + replacement(m) + line[m.end():]
                found.setdefault(kind, []).append(Mutant(path, kind, k, [line], [new]))
        if k + 1 < len(lines):
            first, second = assigned.match(line), assigned.match(lines[k + 1])
            if first and second and first.group(2) != second.group(2):
                new = [first.group(1) + second.group(2) + first.group(3),
                       second.group(1) + first.group(2) + second.group(3)]
                found.setdefault("slots exchanged", []).append(
                    Mutant(path, "slots exchanged", k, lines[k:k + 2], new))
    return found


def chosen(path, seed):
    """In the order in which they are tried: one of each kind in turn, shuffled."""
    source = random.Random("%d %s" % (seed, path))
    groups = [source.sample(group, len(group)) for _, group in sorted(candidates(path).items())]
    source.shuffle(groups)
    order = []
    while any(groups):
        order += [group.pop() for group in groups if group]
    return order


# --- building -------------------------------------------------------------------------------------------------


def run(command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)


class Build:
    """What the release build compiled, and from what."""

    def __init__(self):
        deps = run(["ninja", "-C", build, "-t", "deps"], text=True).stdout
        self.users = {}
        for entry in deps.split("\n\n"):
            lines = entry.strip().split("\n")
            target = lines[0].split(":")[0]
            for dep in lines[1:]:
                dep = os.path.normpath(build / dep.strip())
                self.users.setdefault(os.path.relpath(dep, root), []).append(target)
        commands = json.loads((build / "compile_commands.json").read_text())
        self.command = {re.search(r" -o (\S+) ", c["command"]).group(1): c for c in commands}
        self.library = sorted(o for o in self.command if "ansatz_release_objects" in o)
        self.inside = sorted(o for o in self.command if "inside_test.dir" in o)

    def source(self, output):
        return os.path.relpath(self.command[output]["file"], root)

    def compile(self, output, text_of, into, level):
        """Compiles one object, or with a list of them one object of all, from mutated sources."""
        outputs = output if isinstance(output, list) else [output]
        words = shlex.split(self.command[outputs[0]]["command"])
        words = words[:words.index("-o")]
        words = [w for w in words if not w.startswith(("-O", "-W", "-I" + str(root / "src")))]
        overlay = into / "overlay"
        for path, text in text_of.items():
            target = overlay / os.path.relpath(path, "src")
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text(text)
        sources = [overlay / os.path.relpath(self.source(o), "src") if self.source(o) in text_of
                   else root / self.source(o) for o in outputs]
        whole = sources[0]
        if len(sources) > 1:
            whole = into / "whole.cpp"
            whole.write_text("".join('#include "%s"\n' % s for s in sources))
        object_file = into / (re.sub(r"\W", "_", outputs[0]) + ".o")
        done = run(words + ["-w", level, "-I", overlay, "-I", root / "src", "-o", object_file, "-c", whole])
        return object_file if done.returncode == 0 else None


def test(mutant, project, level="-O1"):
    """Sets mutant.caught to True or False, or leaves it None where the fault does not compile."""
    users = project.users.get(mutant.path, []) or [o for o in project.command if project.source(o) == mutant.path]
    library = [o for o in project.library if o in users]
    inside = [o for o in project.inside if o in users]
    text_of = {mutant.path: mutant.text()}
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        objects = [build / o for o in project.library if o not in library]
        if library:
            # Many users of a header are compiled as one source.
            parts = [library] if len(library) > 3 else library
            for part in parts:
                compiled = project.compile(part, text_of, folder, "-O0" if part is library else level)
                if not compiled:
                    return
                objects.append(compiled)
        shared = folder / os.readlink(build / "src/libansatz.so")
        run(["cc", "-shared", "-fPIC", "-Wl,-soname," + shared.name, "-Wl,-Bsymbolic", "-o", shared, *objects,
             build / "src/exports.ld", "-lm"], check=True)
        environment = dict(os.environ, LD_LIBRARY_PATH=str(folder))
        # The test of the export list reads the built library, not this one; the slow test comes last.
        for tests in ("-SharedLibrary.*:*ExtrapolatedDifferences", "*ExtrapolatedDifferences"):
            if fails(mutant, [build / "tests/models_test", "--gtest_filter=" + tests], environment):
                return
        tests = [build / o for o in project.inside if o not in inside]
        for output in inside:
            compiled = project.compile(output, text_of, folder, "-O0")
            if not compiled:
                mutant.caught, mutant.by = True, "inside_test does not compile"
                return
            tests.append(compiled)
        program = folder / "inside_test"
        run(["c++", "-o", program, *tests, *objects, "-lgtest_main", "-lgtest", "-lm"], check=True)
        fails(mutant, [program], environment)


def fails(mutant, command, environment):
    try:
        done = run(command + ["--gtest_brief=1", "--gtest_fail_fast"], env=environment, timeout=60, errors="replace",
                   text=True)
        mutant.caught = done.returncode != 0
        failed = re.search(r"\[  FAILED  \] ([\w/.]+)", done.stdout)
        mutant.by = failed.group(1) if failed else "crash" if mutant.caught else ""
    except subprocess.TimeoutExpired:
        mutant.caught, mutant.by = True, "never ends"
    return mutant.caught


def same_code(mutant, project):
    """Does the compiler make the same code of the fault as of the source?"""
    users = [o for o in project.library if o in project.users.get(mutant.path, [])]
    if len(users) > 3:
        return False
    with tempfile.TemporaryDirectory() as folder:
        for output in users:
            codes = []
            for text in (mutant.text(), (root / mutant.path).read_text()):
                compiled = project.compile(output, {mutant.path: text}, pathlib.Path(folder), "-O2")
                if not compiled:
                    return False
                codes.append(run(["objdump", "-d", "-s", "-j", ".text", "-j", ".rodata", compiled]).stdout)
            if codes[0] != codes[1]:
                return False
    return True


# --- choice, figures ------------------------------------------------------------------------------------------


def explanations():
    """equivalent.txt: blocks of the file, - the line, + the faulty line, then the reason."""
    known = {}
    for block in (pathlib.Path(__file__).parent / "equivalent.txt").read_text().split("\n\n"):
        lines = [l for l in block.split("\n") if l and not l.startswith("#")]
        if not lines:
            continue
        old = " ".join(" ".join(l[1:] for l in lines if l[0] == "-").split())
        new = " ".join(" ".join(l[1:] for l in lines if l[0] == "+").split())
        known[lines[0], old, new] = " ".join(l.strip() for l in lines[1:] if l[0] not in "-+")
    return known


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--sample", type=int)
    parser.add_argument("--show", action="store_true")
    parser.add_argument("--per-file", type=int)
    parser.add_argument("--seed", type=int, default=1, help="another choice of faults; writes nothing")
    parser.add_argument("files", nargs="*")
    arguments = parser.parse_args()

    project = Build()
    paths = sorted(str(p.relative_to(root)) for p in (root / "src").rglob("*") if p.suffix in (".cpp", ".h"))
    paths.remove("src/protocol/host_arithmetic.h")  # for Windows only, where its own tests run
    paths = [p for p in paths if any(f in p for f in arguments.files)] if arguments.files else paths
    queues = {}
    for path in paths:
        order = chosen(path, arguments.seed)
        if order:
            queues[path] = (order, arguments.per_file or per_file[path.split("/")[1]])
    if arguments.sample:
        few = random.Random(arguments.seed).sample(sorted(queues), min(arguments.sample, len(queues)))
        queues = {path: (queues[path][0], 1) for path in few if not path.startswith("src/protocol/")}

    for program in ("tests/models_test", "tests/inside_test"):
        if run([build / program, "--gtest_brief=1"]).returncode != 0:
            sys.exit("mutate: %s fails without any fault" % program)

    lock = threading.Lock()
    known = explanations()

    def work(path):
        order, wanted = queues[path]
        tested = []
        for mutant in order:
            if len(tested) == wanted:
                break
            test(mutant, project)
            if mutant.caught is None:
                continue
            if not mutant.caught and mutant.key() not in known and same_code(mutant, project):
                continue # not a fault
            tested.append(mutant)
            with lock:
                if arguments.show or not mutant.caught:
                    print("%s %s:%d %s\n  - %s\n  + %s\n  %s" % (
                        "caught  " if mutant.caught else "SURVIVED", path, mutant.line + 1, mutant.kind,
                        *mutant.changed(), mutant.by or known.get(mutant.key(), "unexplained")), flush=True)
        return tested

    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        mutants = [m for tested in pool.map(work, sorted(queues, key=lambda p: "protocol" in p)) for m in tested]

    survived = [m for m in mutants if not m.caught]
    unexplained = [m for m in survived if m.key() not in known]
    print("%d faults, %d caught, %d explained, %d not" % (
        len(mutants), len(mutants) - len(survived), len(survived) - len(unexplained), len(unexplained)))
    if not arguments.files and not arguments.sample and not arguments.per_file and arguments.seed == 1:
        replace(root / "docs/evidence.md", "mutation", figures(mutants, survived, known))
    sys.exit(1 if unexplained else 0)


def figures(mutants, survived, known):
    lines = ["| Kind of fault | Made | Caught |", "|---|---|---|"]
    names = sorted({m.kind for m in mutants})
    for kind in names + [None]:
        group = [m for m in mutants if kind in (None, m.kind)]
        caught = sum(m.caught for m in group)
        lines.append("| %s | %d | %d |" % (kind or "**all**", len(group), caught))
    lines += ["", "| Not caught | The line | The fault | Why it changes nothing |", "|---|---|---|---|"]
    quoted = lambda text: "`%s`" % text.replace("|", "\\|")
    for m in sorted(survived, key=lambda m: (m.path, m.line)):
        old, new = m.changed()
        lines.append("| %s | %s | %s | %s |" % (
            m.path[4:], quoted(old), quoted(new), known.get(m.key(), "**a gap in the tests**")))
    return "\n".join(lines)


if __name__ == "__main__":
    main()
