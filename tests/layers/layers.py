#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails when an include breaks the layers of src/rooms.txt, when a room below the front ends uses more
than the standard library and (in platform/posix alone) the system's own headers, or when the page that
explains the rooms shows another table."""

import re
import sys
import tempfile
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


def self_test():
    wrong = {
        "util/up.h": '#include "platform/host.h"',
        "driver/sideways.cpp": '#include "parser/math_parser.h"',
        "measure/control.cpp": '#include "controls/grid.h"',
        "measure/form.cpp": '#include "forms/forms.h"',
        "sensors/control.h": ' #  include "controls/grid.h"',
        "measure/up.h": '#include "ui/error_strip.h"',
        "app/toolkit.cpp": "#include <QWidget>",
        "platform/clock.cpp": "#include <unistd.h>",
        "elsewhere/x.h": "#include <string>",
        "driver/bare.h": '#include "session.h"',
    }
    right = {
        "platform/posix/files.cpp": '#include <unistd.h>\n#include "posix/files.h"',
        "console/include/console/options.h": '#include <CLI/CLI.hpp>\n#include "app/kelvra.h"',
        "ui/calc_grid.cpp": '#include "forms/forms.h"\n#include "parser/math_parser.h"\n#include <vector>',
    }
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        table = (Path(__file__).parents[2] / "src" / "rooms.txt").read_text(encoding="utf-8")
        for name, text in {**wrong, **right, "rooms.txt": table, "page.md": f"```\n{table}```\n"}.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text + "\n", encoding="utf-8")
        named = {line.split(":")[0] for line in findings(root)}
        same = not page_differs(root, root / "page.md")
        (root / "page.md").write_text(f"```\n{table}attic app\n```\n", encoding="utf-8")
        return named == set(wrong) and same and page_differs(root, root / "page.md")


if __name__ == "__main__":
    if sys.argv[1] == "--self-test":
        sys.exit(0 if self_test() else 1)
    problems = findings(Path(sys.argv[1]))
    if page_differs(Path(sys.argv[1]), Path(sys.argv[2])):
        problems.append(f"{sys.argv[2]} shows another table than rooms.txt")
    print("\n".join(problems))
    sys.exit(1 if problems else 0)
