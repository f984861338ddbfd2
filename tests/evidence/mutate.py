"""Makes small faults in the sources, one at a time, and runs the tests against each.

    scripts/mutate                all of them; writes the figures into docs/evidence.md
    scripts/mutate --sample 40    so many, from all folders; fails unless each is caught or explained
    scripts/mutate FILE ..        those in some files, one line per fault that no test sees
    --show                        lists every fault, made in the sources as a diff would show it

The choice is the same in every run. A fault that no test sees is either explained in equivalent.txt beside this
file - it changes nothing that a user can observe - or a gap in the tests.
"""

import argparse
import concurrent.futures
import itertools
import json
import os
import pathlib
import random
import re
import resource
import shlex
import signal
import subprocess
import sys
import tempfile
import threading

from section import replace

root = pathlib.Path(__file__).resolve().parents[2]
build = root / "build/release"

# How many faults: per file of the library, by folder, and one per so many lines of what surrounds it.
per_file = {"models": 3, "special": 6, "protocol": 8, "catalogue": 4}
lines_per_fault = {"host": 16, "tools": 16, "batch": 6}
left_out = ("src/protocol/host_arithmetic.h", # for Windows only, where its own tests run
            "src/calls/")                     # what other builds replace
sample_share = {"src": 0.5, "host": 0.15, "tools": 0.2, "batch": 0.15}

# What a fault in a folder is tried with, in this order: a program and its tests. Slow ones come last.
command_tests = [("tests/host/command_tests", "-*Draw*"), ("tests/host/command_tests", "*Draw*")]
suites = {
    # The test of the export list reads the built library, not this one.
    "src": [("tests/models_test", "-SharedLibrary.*:*ExtrapolatedDifferences"),
            ("tests/models_test", "*ExtrapolatedDifferences"), ("tests/inside_test", "*")],
    "host": [("tests/host/host_tests", "*"), *command_tests],
    "tools": command_tests,
    "batch": [("tests/batch_test", "*"), ("tests/host/host_tests", "*")],
}
runs = {"tests/host/command_tests": "tools/ansatz"} # which program a test starts

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
# Faults of what surrounds the models: the general ones of these, and some that fit options, tables and weights.
general = ("sign", "product for quotient", "comparison", "condition", "constant", "statement dropped", "function",
           "answer")
value = r"[*&]?[\w.:]+(?:->\w+|\[\w+\]|\(\))*"
opposites = to(*(pair for a, b in (("lower", "upper"), ("low", "high"), ("minCoeff", "maxCoeff"), ("left", "right"),
                                   ("top", "bottom"), ("wide", "narrow")) for pair in ((a, b), (b, a))))


def half_exponent(match):
    digits, exponent = match.group().split("e")
    return "%se%d" % (digits, int(exponent) // 2)


outer_kinds = [k for k in kinds if k[0] in general] + [
    ("constant", r"(?<![\w.])\d+(?:\.\d+)?e-?\d+", half_exponent),
    ("constant", r"(?<=\[)\d+(?=\])", next_digit),
    ("arguments exchanged", r"(?<=[(,{\[ ])(?<!max\()(?<!min\()(%s), (%s)(?=[,)}\]])" % (value, value),
     lambda m: "%s, %s" % (m[2], m[1])),
    ("arguments exchanged", r"\b((?:const )?[\w:]+[&*]? )(\w+), \1(\w+)(?=[,)])",
     lambda m: "%s%s, %s%s" % (m[1], m[3], m[1], m[2])),
    ("argument dropped", r"(?<=, )\w+\.[\w.]+(?=[,)}])", lambda m: "{}"),
    ("option dropped", r"->(?!type_name|capture_default_str)\w+\([\w:.]*\)(?=$|;|->)", lambda m: ""),
    ("entry dropped", r"^\s+\{.*\},$", lambda m: ""),
    ("condition", r"(?<=\bif )\((.*)\) (?=\{$|return\b|throw\b|continue;|break;)", lambda m: "(!(%s)) " % m[1]),
    ("condition", r"(?<=[( ])!(?=[\w(])", lambda m: ""),
    ("statement dropped", r"^\s+(?!return\b|throw\b|if\b|for\b|while\b)[\w:.*>-]+(?:[\[(.]| [-+*/|]?= ).*;$",
     lambda m: ";"),
    ("statement dropped", r"^\s+(?:if|for|while) \(.*\) (?!return\b|continue;).*;$", lambda m: ";"),
    ("opposite", r"\b(?:lower|upper|low|high|minCoeff|maxCoeff|left|right|top|bottom|wide|narrow)(?=\d?\b)|"
                 r"(?<=\bat_)(?:lower|upper)\b", opposites),
    ("factor dropped", r"(?<![\w.)])[\w.]+(?:\([\w, .]*\))? \* (?=[\w(])| [*/] [\w.]+(?:\([\w, .]*\))?(?=[;,) ])",
     lambda m: ""),
    ("factor dropped", r"\.cwise\w+\([\w.()]*?\)", lambda m: ""),
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
    text = (root / path).read_text()
    lines = text.split("\n")
    texts = r'R"\(.*?\)"|^ANSATZ_PAGE\(.*?\n\n' # help, and what pages say
    passed_over = {k for m in re.finditer(texts, text, re.S | re.M)
                   for k in range(text.count("\n", 0, m.start()), text.count("\n", 0, m.end()) + 1)}
    found = {}
    for k, line in enumerate(lines):
        if k in passed_over or re.match(r"\s*(#|//|template|namespace|using|static_assert|extern)", line):
            continue
        hidden = [m.span() for m in code.finditer(line)]
        for kind, pattern, replacement in kinds if path.startswith("src/") else outer_kinds:
            for m in re.finditer(pattern, line):
                if any(a <= m.start() < b for a, b in hidden):
                    continue
                new = line[:m.start()] + replacement(m) + line[m.end():]
                if new == line:
                    continue
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
    """What the release build compiled, from what, and how it linked the programs that test."""

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
        programs = {program for suite in suites.values() for program, _ in suite} | set(runs.values())
        self.link = {}
        for line in run(["ninja", "-C", build, "-t", "commands", *sorted(programs)], text=True).stdout.split("\n"):
            for command in line.split(" && "):
                made = re.search(r" -o (\S+)|^\S*ar qc (\S+)", command)
                if made and " -c " not in command and ".ld" not in made.group():
                    self.link[made.group(1) or made.group(2)] = shlex.split(command)

    def source(self, output):
        return os.path.relpath(self.command[output]["file"], root)


class Trial:
    """A copy of the sources, by links, with a fault in it, and what is made from it: objects, libraries, programs."""

    def __init__(self, project, path, text, level, folder):
        self.project, self.level, self.folder = project, level, pathlib.Path(folder)
        self.sources = self.folder / "sources"
        for top in ("include", "src", "pages", "host", "tools", "batch", "tests"):
            for place, _, names in os.walk(root / top):
                copy = self.sources / os.path.relpath(place, root)
                copy.mkdir(parents=True)
                for name in names:
                    if name.endswith((".cpp", ".h", ".hpp", ".inc", ".inl")):
                        os.symlink(os.path.join(place, name), copy / name)
        (self.sources / path).unlink()
        (self.sources / path).write_text(text)
        self.users = set(project.users.get(path, []))
        # Many models that use a header are compiled as one source.
        objects = "ansatz_batch_loops" if path.startswith("batch/") else "ansatz_release_objects"
        library = sorted(o for o in self.users if objects in o)
        self.as_one = library if len(library) > 3 else []
        self.ready = {}

    def compile(self, outputs, level):
        """Compiles one object of one source or of several."""
        words = shlex.split(self.project.command[outputs[0]]["command"])
        words = [w.replace("-I%s/" % root, "-I") for w in words[:words.index("-o")] if not w.startswith(("-O", "-W"))]
        sources = [self.project.source(o) for o in outputs]
        if len(sources) > 1:
            (self.sources / "whole.cpp").write_text("".join('#include "%s"\n' % s for s in sources))
            sources = ["whole.cpp"]
        made = self.folder / (re.sub(r"\W", "_", outputs[0]) + level + ".o")
        done = run(words + ["-w", level, "-o", made, "-c", sources[0]], cwd=self.sources)
        if done.returncode != 0:
            raise DoesNotCompile(outputs[0])
        return str(made)

    def made(self, target):
        """Where this target is, made again if the fault is in it. None for an object that is part of another one."""
        if target not in self.ready:
            self.ready[target] = self.make(target)
        return self.ready[target]

    def make(self, target):
        if target in self.as_one:
            return self.compile(self.as_one, "-O0") if target == self.as_one[0] else None
        if target in self.users and target in self.project.command:
            return self.compile([target], self.level)
        words = self.project.link.get(target)
        if not words:
            return target
        inputs = [w if w == target else self.made(w) for w in words]
        if inputs == words:
            return target
        name = re.search(r"-Wl,-soname,(\S+)", " ".join(words))
        made = str(self.folder / (name.group(1) if name else os.path.basename(target)))
        if run([made if w == target else w for w in inputs if w], cwd=build).returncode != 0:
            raise DoesNotCompile("the link of " + target)
        return made


class DoesNotCompile(Exception):
    pass


def level(path):
    return "-O1" if path.startswith("src/") else "-O0"


def test(mutant, project):
    """Sets mutant.caught to True or False, or leaves it None where the fault does not compile."""
    with tempfile.TemporaryDirectory() as folder:
        trial = Trial(project, mutant.path, mutant.text(), level(mutant.path), folder)
        environment = dict(os.environ, LD_LIBRARY_PATH=folder, TMPDIR=folder)
        try:
            for program, tests in suites[mutant.path.split("/")[0]]:
                if program in runs:
                    environment["ANSATZ_COMMAND"] = str(build / trial.made(runs[program]))
                if fails(mutant, [build / trial.made(program), "--gtest_filter=" + tests], environment):
                    return
        except DoesNotCompile as fault:
            if str(fault).startswith("tests/"):
                mutant.caught, mutant.by = True, "%s does not compile" % fault


def fails(mutant, command, environment):
    with subprocess.Popen(command + ["--gtest_brief=1", "--gtest_fail_fast"], env=environment, errors="replace",
                          text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          start_new_session=True) as process:
        try:
            printed = process.communicate(timeout=60)[0]
            mutant.caught = process.returncode != 0
            failed = re.search(r"\[  FAILED  \] ([\w/.]+)", printed)
            mutant.by = failed.group(1) if failed else "crash" if mutant.caught else ""
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL) # with the commands that the test started
            mutant.caught, mutant.by = True, "never ends"
    return mutant.caught


def same_code(mutant, project):
    """Does the compiler make the same code of the fault as of the source?"""
    users = [o for o in project.users.get(mutant.path, []) if not o.startswith("tests/") and o in project.command]
    users = [o for o in users if "fma" not in o and "batch_loops" not in o]
    if len(users) > 3:
        return False
    for output in users:
        codes = []
        for text in (mutant.text(), (root / mutant.path).read_text()):
            with tempfile.TemporaryDirectory() as folder:
                try:
                    compiled = Trial(project, mutant.path, text, "-O2", folder).compile([output], "-O2")
                except DoesNotCompile:
                    return False
                os.rename(compiled, folder + "/one.o") # objdump prints the name
                codes.append(run(["objdump", "-d", "-s", "-j", ".text", "-j", ".rodata", "one.o"], cwd=folder).stdout)
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
    for path in {path for path, _, _ in known}:
        made = {m.key() for group in candidates(path).values() for m in group} if (root / path).exists() else set()
        for key in known:
            if key[0] == path and key not in made:
                sys.exit("mutate: equivalent.txt explains what can no longer be made in %s:\n  - %s\n  + %s" % key)
    return known


def sources():
    paths = sorted(str(p.relative_to(root)) for folder in suites for p in (root / folder).rglob("*")
                   if p.suffix in (".cpp", ".h", ".hpp"))
    return [p for p in paths if not p.startswith(left_out)]


def how_many(path):
    folder, inner = path.split("/")[:2]
    if folder == "src":
        return per_file[inner]
    if path.endswith(".hpp"):
        return 2 # all that use it are compiled again
    return len((root / path).read_text().split("\n")) // lines_per_fault[folder] + 1


def drawn(wanted, count, seed):
    """So many faults of all folders, but not of headers with many users, which would take too long, nor of the
    pictures, whose faults are not all caught or explained yet."""
    source = random.Random(seed)
    few = {}
    for folder, share in sample_share.items():
        paths = [p for p in sorted(wanted) if p.startswith(folder + "/") and p.endswith(".cpp")
                 and not p.startswith(("tools/plot", "tools/plane", "tools/gnuplot"))]
        paths = source.sample(paths, len(paths))
        for path in itertools.islice(itertools.cycle(paths), round(count * share)):
            few[path] = few.get(path, 0) + 1
    return few


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--sample", type=int)
    parser.add_argument("--show", action="store_true")
    parser.add_argument("--per-file", type=int)
    parser.add_argument("--seed", type=int, default=1, help="another choice of faults; writes nothing")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("files", nargs="*")
    arguments = parser.parse_args()

    known = explanations()
    project = Build()
    wanted = {path: arguments.per_file or how_many(path) for path in sources()
              if not arguments.files or any(f in path for f in arguments.files)}
    if arguments.sample:
        wanted = drawn(wanted, arguments.sample, arguments.seed)
    orders = {path: iter(chosen(path, arguments.seed)) for path in wanted}
    for program in sorted({program for path in wanted for program, _ in suites[path.split("/")[0]]}):
        if run([build / program, "--gtest_brief=1"]).returncode != 0:
            sys.exit("mutate: %s fails without any fault" % program)
    resource.setrlimit(resource.RLIMIT_AS, (8 << 30, 8 << 30)) # a fault may ask for memory without end

    lock = threading.Lock()

    def work(mutant):
        """Is it a fault?"""
        test(mutant, project)
        if mutant.caught is None or (not mutant.caught and mutant.key() not in known and same_code(mutant, project)):
            return False
        with lock:
            if arguments.show or not mutant.caught:
                print("%s %s:%d %s\n  - %s\n  + %s\n  %s" % (
                    "caught  " if mutant.caught else "SURVIVED", mutant.path, mutant.line + 1, mutant.kind,
                    *mutant.changed(), mutant.by or known.get(mutant.key(), "unexplained")), flush=True)
        return True

    mutants = []
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        while True: # what was no fault is made up for in the next round
            tries = [m for path, order in orders.items() for m in itertools.islice(order, wanted[path])]
            if not tries:
                break
            for mutant, is_fault in zip(tries, pool.map(work, tries)):
                if is_fault:
                    mutants.append(mutant)
                    wanted[mutant.path] -= 1

    survived = [m for m in mutants if not m.caught]
    unexplained = [m for m in survived if m.key() not in known]
    print(table(("Folder", "Faults", "Caught", "Explained"), (
        (folder, len(group), sum(m.caught for m in group), sum(not m.caught and m.key() in known for m in group))
        for folder in suites for group in [[m for m in mutants if m.path.startswith(folder + "/")]] if group)))
    print("%d faults, %d caught, %d explained, %d not" % (
        len(mutants), len(mutants) - len(survived), len(survived) - len(unexplained), len(unexplained)))
    if not arguments.files and not arguments.sample and not arguments.per_file and arguments.seed == 1:
        replace(root / "docs/evidence.md", "mutation", figures(mutants, survived, known))
    sys.exit(1 if unexplained else 0)


def table(header, rows):
    lines = [header, ["---"] * len(header), *rows]
    return "\n".join("| %s |" % " | ".join(str(cell) for cell in line) for line in lines).replace(" --- ", "---")


def figures(mutants, survived, known):
    counts = lambda groups: [(name, len(group), sum(m.caught for m in group)) for name, group in groups]
    folders = [(f, [m for m in mutants if m.path.startswith(f + "/")]) for f in suites] + [("**all**", mutants)]
    kinds_made = [(k, [m for m in mutants if m.kind == k]) for k in sorted({m.kind for m in mutants})]
    quoted = lambda text: "`%s`" % text.replace("|", "\\|")
    return "\n\n".join((
        table(("Folder", "Made", "Caught"), counts(folders)),
        table(("Kind of fault", "Made", "Caught"), counts(kinds_made)),
        table(("Not caught", "The line", "The fault", "Why it changes nothing"), (
            (m.path, *map(quoted, m.changed()), known.get(m.key(), "**a gap in the tests**"))
            for m in sorted(survived, key=lambda m: (m.path, m.line))))))


if __name__ == "__main__":
    main()
