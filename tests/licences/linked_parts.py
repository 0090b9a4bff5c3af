# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails when the legal notes lack something that a program is linked with: a shared library that it asks
for, or a package that a CMake file of src/ links. The notes are read as a user reads them, from the
console's About box.
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

# How the notes call a package that CMake links.
NAMES = {"Qt6": "Qt 6", "QCustomPlotQt6": "QCustomPlot", "CLI11": "CLI11"}


def notes(console):
    with tempfile.TemporaryDirectory() as empty:
        done = subprocess.run([console, "--data-dir", empty, "--driver-dir", empty, "-"], timeout=60, text=True,
                              input="click MHelpAbout\nprint LizText\n", capture_output=True, check=True)
    return done.stdout


def shared_libraries(readelf, program):
    done = subprocess.run([readelf, "-d", program], capture_output=True, text=True, check=True)
    return re.findall(r"\(NEEDED\).*\[(.+)\]", done.stdout)


def packages(source):
    for file in sorted(source.rglob("CMakeLists.txt")):
        for links in re.findall(r"target_link_libraries\(([^)]*)\)", file.read_text(encoding="utf-8")):
            yield from re.findall(r"\b(\w+)::", links)


def main(readelf, source, console, *others):
    text = notes(console)
    components = re.findall(r"^(.+) \((.+)\)$", text, flags=re.MULTILINE)
    names = {name for name, _ in components}
    files = {file for _, files in components for file in files.split(", ")}
    wrong = []
    for program in (console, *others):
        linked = shared_libraries(readelf, program)
        if "libc.so.6" not in linked:
            wrong.append(f"{program}: {linked} can't be all")
        wrong += [f"{Path(program).name} is linked with {name}" for name in linked if name not in files]
    linked = set(packages(Path(source)))
    if "CLI11" not in linked:
        wrong.append("the CMake files are not read as they are written")
    wrong += [f"CMake links {name}" for name in sorted(linked) if NAMES.get(name) not in names]
    print("\n".join(f"{line}, which the legal notes don't name" for line in wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
