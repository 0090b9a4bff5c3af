# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs NAME.kel through the console twice, each time in a fresh data folder, and compares.

Both runs must give the same bytes everywhere: output, errors, status, every file of the data folder.
They must also give what stands beside the script: NAME.out is the output, NAME.err the errors (none
without it), NAME.status the exit status (0 without it), NAME.log the debug log (DEBUG is then on the
command line), and every file of NAME.files is one of the data folder in the end. Of a file there whose
name ends in ".lines", each line is to be one of the file's, in that order. Log and files are kept here
with LF, and wanted with the CR LF that Kelvra writes.

NAME.bench is the scenario of the virtual sensors (the built-in one without it), NAME.data is copied
into the data folder first (whose path is DATA in the output), NAME.args holds words for the console instead of its driver folder, one a
line.
"""

import difflib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

LONGEST_RUN_S = 120  # a script that hangs is a failure, however slow the machine


def read(path):
    return path.read_bytes() if path.exists() else b""


def read_with_cr_lf(path):
    return path.read_bytes().replace(b"\n", b"\r\n")


def run(console, driver_dir, script):
    """What a run leaves behind, by name."""
    args = read(script.with_suffix(".args")).decode().splitlines() or ["--driver-dir", driver_dir]
    words = ["DEBUG"] if script.with_suffix(".log").exists() else []
    env = {name: value for name, value in os.environ.items() if not name.startswith("KELVRA_")}
    env |= {"LC_ALL": "C", "TZ": "UTC"}
    scenario = script.with_suffix(".bench")
    if scenario.exists():
        env["KELVRA_BENCH"] = str(scenario)
    with tempfile.TemporaryDirectory(prefix="kelvra-script-") as temp:
        data = pathlib.Path(temp) / "data"
        data.mkdir()
        if script.with_suffix(".data").exists():
            shutil.copytree(script.with_suffix(".data"), data, dirs_exist_ok=True)
        done = subprocess.run(
            [console, "--data-dir", str(data), "--clock", "2005-03-07 12:00:00", "--seed", "1", *args,
             *words, str(script)],
            cwd=data, env=env, capture_output=True, stdin=subprocess.DEVNULL, timeout=LONGEST_RUN_S,
            check=False)
        output = done.stdout.replace(bytes(data), b"DATA")
        left = {"output": output, "errors": done.stderr, "status": b"%d\n" % done.returncode}
        for path in sorted(data.rglob("*")):
            if path.is_file():
                left[f"data/{path.relative_to(data)}"] = path.read_bytes()
    return left


def expected(script):
    """What stands beside the script, by the same names."""
    wanted = {"output": read(script.with_suffix(".out")), "errors": read(script.with_suffix(".err")),
              "status": read(script.with_suffix(".status")) or b"0\n"}
    if script.with_suffix(".log").exists():
        wanted["data/DebugKelvra.txt"] = read_with_cr_lf(script.with_suffix(".log"))
    folder = script.with_suffix(".files")
    for path in folder.rglob("*"):
        if path.is_file():
            wanted[f"data/{path.relative_to(folder)}"] = read_with_cr_lf(path)
    return wanted


def has_lines(wanted, got):
    """Whether the wanted lines are among those that are there, in their order."""
    rest = iter(got.splitlines())
    return all(line in rest for line in wanted.splitlines())


def differences(title, wanted, got):
    shown = [text.decode(errors="backslashreplace").replace("\r\n", "\\r\n").splitlines()
             for text in (wanted or b"", got or b"")]
    return [title, *difflib.unified_diff(*shown, "wanted", "got", lineterm="")]


def main(console, driver_dir, script):
    script = pathlib.Path(script).resolve()
    first, second = (run(console, driver_dir, script) for _ in range(2))
    wrong = []
    for name, wanted in expected(script).items():
        got = first.get(name.removesuffix(".lines"))
        right = got == wanted
        if name.endswith(".lines"):
            right = got is not None and has_lines(wanted, got)
        if not right:
            wrong += differences(name, wanted, got)
    for name in sorted(first.keys() | second.keys()):
        if first.get(name) != second.get(name):
            wrong += differences(f"{name} (second run)", first.get(name), second.get(name))
    print("\n".join(wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
