"""Writes the golden data of every family, NAME.py -> NAME.txt, or with --check compares it with what is there."""

import importlib
import pathlib
import sys

import laws

here = pathlib.Path(__file__).parent
checking = "--check" in sys.argv
chosen = [a for a in sys.argv[1:] if not a.startswith("-")]
stale = []
for module in sorted(here.glob("*.py")):
    if module.stem in ("laws", "make") or chosen and module.stem not in chosen:
        continue
    laws.rows.clear()
    importlib.import_module(module.stem)
    text = "".join(line + "\n" for row in laws.rows for line in laws.lines(row))
    target = here / (module.stem + ".txt")
    if not checking:
        target.write_text(text)
    elif not target.exists() or target.read_text() != text:
        stale.append(target.name)
    print(module.stem, len(laws.rows), "rows", flush=True)
if stale:
    sys.exit("out of date: %s; run scripts/golden" % ", ".join(stale))
