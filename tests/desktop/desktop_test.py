"""Shared by the tests on private desktops: a machine, the program on it, and panels that start and stop.

Each test file is a separate program, run on a private desktop: FILE_test.py KELDRA_DEMO [PANEL [-k TEST]...]. It exits
with 77 and a reason where something that it needs is not installed.
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

LAB = pathlib.Path(__file__).resolve().parents[2] / "tools" / "lab"
sys.path.insert(0, str(LAB))
import accessibility  # noqa: E402
import tray  # noqa: E402
from program import Program  # noqa: E402

PROGRAM = sys.argv[1]


# Mounts succeed at once on disk0s1 and late on disk1s1, are refused late on disk2s1, and never end on disk3s1.
ANSWERS = {}, {"delay": 1200}, {"delay": 1200, "refuse": {"mount": "not privileged"}}, {"delay": 60_000}
ESP = {"slice": 1, "media": "EFI System Partition", "volume": {"kind": "msdos", "name": "EFI"}}
MACHINE = {"disks": [{"unit": unit, "media": "Disk", "scheme": "GUID_partition_scheme", "partitions": [ESP | answers]}
                     for unit, answers in enumerate(ANSWERS)]}


class DesktopTest(unittest.TestCase):
    screen = None  # the module for the desktop in use

    def start(self, *command):
        quiet = subprocess.DEVNULL
        process = subprocess.Popen(command, stdin=quiet, stdout=quiet, stderr=quiet)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def comes_true(condition, patience_s=2):
        deadline = time.monotonic() + patience_s
        while not (value := condition()) and time.monotonic() < deadline:
            time.sleep(0.03)
        return value

    def wait_for(self, what, condition):
        self.assertTrue(self.comes_true(condition, 10), what)

    @staticmethod
    def end(process):
        """Kills the process, as in a crash."""
        process.kill()
        process.wait()

    def start_panel(self, kind, edge="top"):
        """Starts a panel and waits for its tray."""
        panel = self.start(LAB / "panel", kind, edge)
        self.wait_for("there should be a tray", tray.has_host if kind != "trayer" else self.screen.has_trayer)
        return panel

    def start_program(self):
        """Starts the program and waits until it is up, whether there is a tray or not."""
        with tempfile.NamedTemporaryFile("w", suffix=".json", delete=False) as file:
            json.dump(MACHINE, file)
        self.addCleanup(os.unlink, file.name)
        # As at login, because without a tray a start by the user opens the popover with a notice.
        program = Program(["env", "DESKTOP_AUTOSTART_ID=test", PROGRAM, file.name], self.screen)
        self.addCleanup(program.end)
        program.wait_for("the program should be up", self.is_up)
        return program

    @staticmethod
    def is_up():
        program = accessibility.find_application("keldra")
        return program and program.children()

    def launch_again(self):
        """The exit status of a second instance, which activates the first one and exits."""
        return subprocess.run([PROGRAM], stdin=subprocess.DEVNULL, timeout=10, check=False).returncode

    def assert_open(self, program):
        program.wait_for("the popover should be open", program.window)

    def assert_stays(self, condition, what):
        """Checks the condition for longer than a click takes to have its effects."""
        deadline = time.monotonic() + 0.5
        while time.monotonic() < deadline:
            self.assertTrue(condition(), what)
            time.sleep(0.03)

    def assert_stays_open(self, program):
        self.assert_open(program)
        self.assert_stays(program.window, "the popover should stay open")

    def assert_stays_closed(self, program):
        program.wait_until_closed()
        self.assert_stays(lambda: not program.window(), "the popover should stay closed")


def main(*needed):
    """Runs the tests of the file."""
    missing = [tool for tool in needed if not shutil.which(tool)]
    if missing:
        print(f"not possible here: there is no {missing[0]}", file=sys.stderr)
        sys.exit(77)
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]], verbosity=2)
