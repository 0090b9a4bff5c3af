# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails when the page of the script language names other commands than the program knows.

A command of the page is the first word in the first column of its table of commands.
"""

import re
import sys
from pathlib import Path


def known_commands(source):
    table = re.search(r"^constexpr Command Commands\[\] = \{\n(.*?)^\};", source, re.MULTILINE | re.DOTALL)
    return set(re.findall(r'\{"(\w+)",', table[1]))


def named_commands(page):
    table = re.search(r"^\| command \|.*?\n\n", page, re.MULTILINE | re.DOTALL)
    rows = table[0].splitlines()[2:]
    return {word for row in rows for word in re.findall(r"`(\w+)[^`]*`", row.split(" | ")[0])}


def main(table_file, page_file):
    known = known_commands(Path(table_file).read_text(encoding="utf-8"))
    named = named_commands(Path(page_file).read_text(encoding="utf-8"))
    wrong = [f"{page_file} does not name the command {name}" for name in sorted(known - named)]
    wrong += [f"{page_file} names {name}, which is no command" for name in sorted(named - known)]
    print("\n".join(wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
