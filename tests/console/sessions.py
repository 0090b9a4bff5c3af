#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The console as a program: what it takes from its input, when it fails, and how it ends."""

import os
import pathlib
import resource
import signal
import subprocess
import sys
import tempfile
import unittest

LONGEST_RUN_S = 60
SIMULATION = "."  # a driver folder without drivers
BENCH = sys.argv.pop()
CONSOLE = sys.argv.pop()


class Session(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="kelvra-test-")
        self.addCleanup(folder.cleanup)
        self.data = pathlib.Path(folder.name)

    def command(self, *words, drivers=SIMULATION):
        return [CONSOLE, "--data-dir", str(self.data), "--driver-dir", drivers,
                "--clock", "2005-03-07 12:00:00", "--seed", "1", *words]

    def expect(self, script, output="", errors="", status=0, words=(), drivers=SIMULATION,
               before=None):
        """Runs the script; before() has been called in the console's process."""
        done = subprocess.run(
            self.command(*words, drivers=drivers), cwd=self.data, input=script.encode("latin-1"),
            capture_output=True, timeout=LONGEST_RUN_S, preexec_fn=before, check=False)
        self.assertEqual((done.stdout.decode(), done.stderr.decode(), done.returncode),
                         (output, errors, status))

    def start(self, drivers=SIMULATION):
        console = subprocess.Popen(self.command(drivers=drivers), cwd=self.data, bufsize=0,
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        for end in [console.stdin.close, console.stdout.close, console.wait, console.kill]:
            self.addCleanup(end)  # the last one first
        return console

    def test_any_bytes_are_taken_line_by_line(self):
        long_text = "x" * 100_000
        for script, output in [
                ("", ""),
                ("echo a\r\necho b\r\n", "a\nb\n"),
                ("\n\r\n   \n# echo c\n  # echo d\n  echo  e \n", " e \n"),
                ("echo\necho \n", "\n\n"),
                ("echo a\0b\n", "a\0b\n"),
                ("echo \xff\xe2\x82\xac\n", "\ufffd\u20ac\n"),
                ("echo " + long_text, long_text + "\n")]:
            with self.subTest(script[:20]):
                self.expect(script, output)

    def test_a_session_ends_at_the_first_command_that_fails(self):
        for command, why in [
                ("\xff\x01", "there is no command \ufffd\x01"),
                ("click", "the name of a control is missing"),
                ("click Nothing", "there is no control Nothing"),
                ("click SensInfo", "SensInfo is disabled"),  # its frame is
                ("type ScopePoints 5", "ScopePoints is hidden"),  # its page is
                ("type StartIt 5", "not for a button"),
                ("click Frame1", "several windows have a Frame1"),
                ("choose TimeSensor_select_new Never", "the list has no entry Never"),
                ("choose TimeSensor_select_new #3", "the list has no entry #3"),
                ("cell ResultGrid 1 6", "the grid has no such cell"),
                ("resize MDIMain 1 x", "width and height are whole numbers of twips"),
                ("wait passes 1", "no measurement runs"),
                ("wait ms -1", "wait passes N [MS], wait ms N or wait idle"),
                ("wait passes 1 soon", "wait passes N [MS], wait ms N or wait idle")]:
            with self.subTest(command):
                self.expect(f"# first\n{command}\necho not reached\n", status=1,
                            errors=f"error: 2: {why}\n")

    def test_a_script_goes_on_inside_the_handler_that_runs(self):
        self.expect("click StartIt\nwait passes 2\nwait ms 5\necho measured\nclick StopIt\n"
                    "wait idle\nwait idle\necho idle\n",
                    "> click StartIt\n> wait passes 2\n> wait ms 5\n> echo measured\nmeasured\n"
                    "> click StopIt\n> wait idle\n> wait idle\n> echo idle\nidle\n",
                    words=["--echo"])

    def test_a_wait_for_passes_fails_when_the_measurement_or_its_time_ends_before(self):
        self.expect("cell ResultGrid 1 0\ncell ResultGrid 2 0\nclick StartIt\nwait passes 1\n",
                    "message: Kelvra | No operational sensor selected\n",
                    "error: 4: the measurement ended before the passes were complete\n", 1)
        self.expect("click StartIt\nwait passes 1 60000\necho no\n", drivers=BENCH, status=1,
                    errors="error: 2: the time ran out before the passes were complete\n")
        self.expect("click StartIt\nwait passes 2 60000\nclick StopIt\nwait idle\n")

    def test_a_closed_input_is_an_empty_one_and_a_closed_output_fails(self):
        self.expect("echo not read\n", before=lambda: os.close(0))
        self.expect("echo a\n", status=1, before=lambda: os.close(1))

    def test_a_line_without_an_end_is_refused_at_its_limit(self):
        self.expect("x" * 20_000_000, errors="error: 1: the line is longer than 1 MiB\n", status=1)

    def test_a_file_size_limit_fails_the_save_and_leaves_no_part(self):
        why = f"The settings could not be saved: {self.data}/Kelvra.INI: File too large\n"
        self.expect("", drivers=BENCH, errors=why,
                    before=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0)))
        self.assertEqual({path.name for path in self.data.iterdir()},
                         {"kelvra-save.lock", "kelvra-use.lock"})

    def test_an_input_is_answered_before_the_next_line_is_there(self):
        console = self.start()
        for written, line in [
                (b"echo one\n", b"one\n"),
                (b"click StartIt\nwait passes 1\nprint ConSensors\n", b"Simulation Mode\n"),
                (b"click StopIt\nwait idle\nprint Sta", None), (b"rtIt\necho two\n", b"\n"),
                (b"", b"two\n")]:
            console.stdin.write(written)
            if line is not None:
                self.assertEqual(console.stdout.readline(), line)

    def test_the_end_of_the_input_a_termination_and_a_failure_run_the_exit_routine(self):
        for last, status in [(b"", 0), (b"wait passes 1000000000\n", 1), (b"click StartIt\n", 1)]:
            console = self.start(BENCH)
            console.stdin.write(b"click StartIt\necho measuring\n" + last)
            self.assertEqual(console.stdout.readline(), b"measuring\n")
            if last.startswith(b"wait"):
                console.send_signal(signal.SIGTERM)  # the input is still open
            else:
                console.stdin.close()
            self.assertEqual(console.wait(LONGEST_RUN_S), status)
            settings = self.data / "Kelvra.INI"
            self.assertIn("[PS-101;100001_MODE]", settings.read_text())
            settings.unlink()

    def test_a_script_that_cannot_be_read_is_wrong_usage(self):
        self.expect("", words=["no such script.kel"], status=2,
                    errors="The script no such script.kel can't be read: "
                           "No such file or directory\n")


if __name__ == "__main__":
    unittest.main()
