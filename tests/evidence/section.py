"""Replaces a generated part of a document: section.py DOCUMENT NAME < text

The part stands between the lines <!-- NAME: generated --> and <!-- end of NAME -->.
"""

import pathlib
import re
import sys


def replace(document, name, text):
    document = pathlib.Path(document)
    begin, end = "<!-- %s: generated -->" % name, "<!-- end of %s -->" % name
    old = document.read_text()
    pattern = re.compile(re.escape(begin) + ".*?" + re.escape(end), re.S)
    if not pattern.search(old):
        sys.exit("section: %s has no part named %s" % (document, name))
    document.write_text(pattern.sub(lambda _: "%s\n\n%s\n\n%s" % (begin, text.strip(), end), old))


if __name__ == "__main__":
    replace(sys.argv[1], sys.argv[2], sys.stdin.read())
