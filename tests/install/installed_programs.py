# SPDX-License-Identifier: GPL-3.0-or-later
"""Installs a build into an empty folder and starts the programs there, as somebody would who has no
build folder: version and help, a script on the virtual sensors, the desktop until it is asked to end.
"""

import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

LONGEST_WAIT_S = 60
SCRIPT = "print ConSensors\nclick StartIt\nwait passes 2\nclick StopIt\nwait idle\n"


def run(*words, **how):
    return subprocess.run([str(word) for word in words], check=False, timeout=LONGEST_WAIT_S, text=True,
                          **{"capture_output": True, **how})


def check(program, done, output, status=0):
    if done.returncode != status:
        sys.exit(f"{program}: status {done.returncode}, not {status}\n{done.stderr}")
    if output is not None and done.stdout != output:
        sys.exit(f"{program} wrote {done.stdout!r}, not {output!r}")


def says_what_it_is(program, version):
    check(program, run(program, "--version"), f"{program.name} {version}\n")
    check(program, run(program, "--help"), None)
    check(program, run(program, "--help-me"), "", status=2)
    with open("/dev/full", "w", encoding="utf-8") as full:
        for option in ("--help", "--version"):
            done = run(program, option, capture_output=False, stdout=full, stderr=subprocess.PIPE)
            check(program, done, None, status=1)


def measures(console, sensors, data):
    done = run(console, "--driver-dir", sensors, "--data-dir", data, input=SCRIPT)
    check(console, done, "6 sensors connected\n")


def ends_when_asked(desktop, data):
    """Without drivers the debug log gets its first line during start-up. By then a request to end is
    watched for."""
    with subprocess.Popen([str(desktop), "--data-dir", str(data), "DEBUG"]) as running:
        deadline = time.monotonic() + LONGEST_WAIT_S
        while not (data / "DebugKelvra.txt").exists() and running.poll() is None:
            if time.monotonic() > deadline:
                running.kill()
                sys.exit("the desktop does not start")
            time.sleep(0.05)
        running.terminate()
        try:
            status = running.wait(LONGEST_WAIT_S)
        except subprocess.TimeoutExpired:
            running.kill()
            sys.exit("the desktop does not end")
    if status != 0:
        sys.exit(f"the desktop ended with status {status}")


def main(cmake, build, sensors, version, *programs):
    with tempfile.TemporaryDirectory(prefix="kelvra-install-") as folder:
        prefix = Path(folder) / "prefix"
        installed = run(cmake, "--install", build, "--prefix", prefix)
        check("install", installed, None)
        for name in programs:
            says_what_it_is(prefix / "bin" / name, version)
        measures(prefix / "bin" / "kelvra-console", sensors, Path(folder) / "console")
        for page in ("index.html", "7110.html", "help.css", "search.js"):  # where the programs look for it
            if not (prefix / "bin" / "../share/doc/kelvra/help" / page).is_file():
                sys.exit(f"{page} of the guide is not installed")
        if "kelvra" in programs:
            ends_when_asked(prefix / "bin" / "kelvra", Path(folder) / "desktop")
            for file in ("applications/kelvra.desktop", "icons/hicolor/scalable/apps/kelvra.svg"):
                if not (prefix / "share" / file).exists():
                    sys.exit(f"{file} is not installed")


if __name__ == "__main__":
    for variable in [name for name in os.environ if name.startswith("KELVRA_")]:
        del os.environ[variable]
    main(*sys.argv[1:])
