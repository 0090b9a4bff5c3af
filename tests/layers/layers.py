#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails when an include breaks the layers of src/rooms.txt, when a room below the front ends uses more
than the standard library and (in platform/posix alone) the system's own headers, or when the page that
explains the rooms shows another table."""

import re
import sys
from pathlib import Path

FRONT_ENDS = {"options", "console", "desktop"}

STANDARD = set("""algorithm any array atomic bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes
    climits cmath compare complex concepts condition_variable csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib
    cstring ctime deque exception filesystem forward_list fstream functional future initializer_list iomanip ios iosfwd
    iostream iterator limits list locale map memory mutex new numbers numeric optional ostream queue random ranges ratio
    regex set shared_mutex span sstream stack stdexcept stop_token streambuf string string_view strstream system_error
    thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector
    version""".split())

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def table_rows(text):
    return [line.split() for line in text.splitlines() if line and not line.startswith("#")]


def rooms_seen(text):
    """Each room with all that it sees, directly or through what it sees."""
    seen = {}
    for room, *lower in table_rows(text):
        seen[room] = set(lower).union(*(seen[name] for name in lower))
    return seen


def findings(source):
    seen = rooms_seen((source / "rooms.txt").read_text(encoding="utf-8"))
    found = []
    for file in sorted(source.rglob("*")):
        if file.suffix not in (".cpp", ".h"):
            continue
        parts = file.relative_to(source).parts
        for bracket, target in INCLUDE.findall(file.read_text(encoding="utf-8")):
            why = complaint(seen, parts, bracket, target)
            if why:
                found.append(f"{'/'.join(parts)}: {target}: {why}")
    return found


def complaint(seen, parts, bracket, target):
    room = parts[0]
    if room not in seen:
        return "no such room"
    own_system = parts[:2] == ("platform", "posix")
    if bracket == '"':
        other = target.split("/")[0]
        if other == room or other in seen[room] or (own_system and other == "posix"):
            return None
        return f"{room} does not see {other}"
    if target in STANDARD or room in FRONT_ENDS or own_system:
        return None
    return "not of the standard library"


def page_differs(source, page):
    """The page repeats the table, row by row, in a block of its own."""
    table = table_rows((source / "rooms.txt").read_text(encoding="utf-8"))
    blocks = re.findall(r"^```\n(.*?)^```$", page.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL)
    return all(table_rows(block) != table for block in blocks)


if __name__ == "__main__":
    problems = findings(Path(sys.argv[1]))
    if page_differs(Path(sys.argv[1]), Path(sys.argv[2])):
        problems.append(f"{sys.argv[2]} shows another table than rooms.txt")
    print("\n".join(problems))
    sys.exit(1 if problems else 0)
