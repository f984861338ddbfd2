"""Replaces a generated part of a document: section.py DOCUMENT NAME [measured] < text

The part stands between the lines <!-- NAME: generated --> and <!-- end of NAME -->. What was measured is followed by
the machine that it was measured on.
"""

import os
import pathlib
import platform
import re
import subprocess
import sys


def machine():
    model = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    compiler = subprocess.run(["c++", "--version"], stdout=subprocess.PIPE, text=True).stdout.split("\n")[0]
    return "Measured on: %s, %d cores; %s; %s." % (
        model.group(1) if model else platform.machine(), os.cpu_count(), compiler, " ".join(platform.libc_ver()))


def replace(document, name, text, measured=False):
    if measured:
        text = "%s\n\n%s" % (text.strip(), machine())
    document = pathlib.Path(document)
    begin, end = "<!-- %s: generated -->" % name, "<!-- end of %s -->" % name
    old = document.read_text()
    pattern = re.compile(re.escape(begin) + ".*?" + re.escape(end), re.S)
    if not pattern.search(old):
        sys.exit("section: %s has no part named %s" % (document, name))
    document.write_text(pattern.sub(lambda _: "%s\n\n%s\n\n%s" % (begin, text.strip(), end), old))


if __name__ == "__main__":
    replace(sys.argv[1], sys.argv[2], sys.stdin.read(), sys.argv[3:] == ["measured"])
