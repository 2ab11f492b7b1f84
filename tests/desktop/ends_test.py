"""The program exits on request, whatever it waits for, and starts beside a frozen session bus: ends_test.py
KELDRA_DEMO."""

import os
import signal
import subprocess
import time
import unittest.mock

from desktop_test import DesktopTest, main

import screen


class EndsTest(DesktopTest):
    screen = screen

    def assert_ends(self, program, number):
        program.send(number)
        told = time.monotonic()
        program.wait_for_end()
        self.assertLess(time.monotonic() - told, 6)

    def test_signal_ends_it_while_a_request_is_not_answered_but_no_hangup_that_was_ignored(self):
        handler = signal.signal(signal.SIGHUP, signal.SIG_IGN)
        program = self.start_program()
        signal.signal(signal.SIGHUP, handler)
        self.assertEqual(self.launch_again(), 0)
        program.click("mount disk3s1")
        program.send(signal.SIGHUP)
        self.assert_stays(program.is_running, "it should outlive its terminal")
        self.assert_ends(program, signal.SIGTERM)

    def test_frozen_session_bus_does_not_keep_it_from_coming_up(self):
        socket = f"{os.environ['XDG_RUNTIME_DIR']}/frozen"
        bus = self.start("dbus-daemon", "--session", "--nofork", f"--address=unix:path={socket}")
        self.wait_for("there should be a bus", lambda: os.path.exists(socket))
        bus.send_signal(signal.SIGSTOP)
        with unittest.mock.patch.dict(os.environ, DBUS_SESSION_BUS_ADDRESS=f"unix:path={socket}"), \
                unittest.mock.patch.object(self, "is_up", self.shows_a_window):
            program = self.start_program()
        self.assert_ends(program, signal.SIGINT)

    @staticmethod
    def shows_a_window():
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "keldra"], check=False)
        return found.returncode == 0


if __name__ == "__main__":
    main("xdotool")
