#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails when an include breaks the layers, or a room below the front ends uses more than the standard
library and (in platform/posix alone) the system's own headers."""

import re
import sys
import tempfile
from pathlib import Path

# What each room may include beside itself.
SEES = {
    "util": set(),
    "platform": {"util"},
    "controls": {"platform", "util"},
    "sensors": {"platform", "util"},
    "forms": {"controls", "platform", "util"},
    "parser": {"platform", "util"},
    "driver": {"sensors", "platform", "util"},
    "measure": {"driver", "parser", "forms", "sensors", "controls", "platform", "util"},
}
SEES["ui"] = SEES["measure"] | {"measure"}
SEES["app"] = SEES["ui"] | {"ui"}
SEES["options"] = {"platform", "util"}  # the command line, read alike by both front ends
SEES["console"] = SEES["desktop"] = SEES["app"] | {"app", "options"}
FRONT_ENDS = {"options", "console", "desktop"}

STANDARD = set("""algorithm any array atomic bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes
    climits cmath compare complex concepts condition_variable csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib
    cstring ctime deque exception filesystem forward_list fstream functional future initializer_list iomanip ios iosfwd
    iostream iterator limits list locale map memory mutex new numbers numeric optional ostream queue random ranges ratio
    regex set shared_mutex span sstream stack stdexcept stop_token streambuf string string_view strstream system_error
    thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector
    version""".split())

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def findings(source):
    found = []
    for file in sorted(source.rglob("*")):
        if file.suffix not in (".cpp", ".h"):
            continue
        parts = file.relative_to(source).parts
        room = parts[0]
        for bracket, target in INCLUDE.findall(file.read_text(encoding="utf-8")):
            why = complaint(parts, room, bracket, target)
            if why:
                found.append(f"{'/'.join(parts)}: {target}: {why}")
    return found


def complaint(parts, room, bracket, target):
    if room not in SEES:
        return "no such room"
    if bracket == '"':
        other = target.split("/")[0]
        if other == room or other in SEES[room]:
            return None
        return f"{room} does not see {other}"
    if target in STANDARD or room in FRONT_ENDS or parts[:2] == ("platform", "posix"):
        return None
    return "not of the standard library"


def self_test():
    wrong = {
        "util/up.h": '#include "platform/host.h"',
        "driver/sideways.cpp": '#include "parser/math_parser.h"',
        "sensors/control.h": ' #  include "controls/grid.h"',
        "measure/up.h": '#include "ui/error_strip.h"',
        "app/toolkit.cpp": "#include <QWidget>",
        "platform/clock.cpp": "#include <unistd.h>",
        "elsewhere/x.h": "#include <string>",
        "driver/bare.h": '#include "session.h"',
    }
    right = {
        "platform/posix/files.cpp": "#include <unistd.h>",
        "console/options.cpp": '#include <CLI/CLI.hpp>\n#include "app/kelvra.h"',
        "measure/cycle.h": '#include "forms/forms.h"\n#include <vector>',
    }
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        for name, text in {**wrong, **right}.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text + "\n", encoding="utf-8")
        named = {line.split(":")[0] for line in findings(root)}
    return named == set(wrong)


if __name__ == "__main__":
    if sys.argv[1] == "--self-test":
        sys.exit(0 if self_test() else 1)
    problems = findings(Path(sys.argv[1]))
    print("\n".join(problems))
    sys.exit(1 if problems else 0)
