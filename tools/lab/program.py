"""The running program as a user operates it: waits for what the popover shows, and clicks its controls.

    program = Program(["bin/keldra-demo", "machine.json"], screen)
    program.open()
    program.click("mount disk0s1")
    program.wait_for_view("it should be mounted", lambda view: view.mounted_at("disk0s1"))
    program.end()

`screen` is the module for the desktop in use: screen.py or wayland_screen.py. A condition that does not hold in time
raises `Failure`.
"""

import contextlib
import subprocess
import time

import accessibility
from popover import View

# A refused unmount takes the program some five seconds.
PATIENCE_S = 15
_POLL_S = 0.03


class Failure(Exception):
    """An expected condition did not hold."""


class Program:
    def __init__(self, command, screen):
        self._screen = screen
        self._process = subprocess.Popen(command, stdin=subprocess.DEVNULL)

    def window(self):
        """The popover's window, or None while it is closed."""
        program = accessibility.find_application("keldra")
        windows = program.children() if program else []
        return next((window for window in windows if window.role == "frame" and window.is_showing()), None)

    def view(self):
        """None while the popover is closed."""
        window = self.window()
        return View(window) if window else None

    def place(self, title=None):
        """The place on the screen of the popover, or of its control with the title."""
        def found():
            window = self.window()
            view = View(window) if window and title else None
            control = view.button(title) or view.controls.get(title) if view else window
            return self._screen.place_of(control, window) if control else None
        return self.wait_for(f'there should be "{title}"' if title else "the popover should be open", found)

    def wait_for(self, what, condition):
        """The first true value of `condition`, which may use widgets that vanish."""
        deadline = time.monotonic() + PATIENCE_S
        while True:
            with contextlib.suppress(accessibility.Gone, subprocess.CalledProcessError):
                if value := condition():
                    return value
            if self._process.poll() is not None:
                raise Failure(f"{what}, but the program ended with status {self._process.returncode}")
            if time.monotonic() > deadline:
                raise Failure(what)
            time.sleep(_POLL_S)

    def wait_for_view(self, what, condition):
        def looked():
            view = self.view()
            return view if view and condition(view) else None
        return self.wait_for(what, looked)

    def wait_until_closed(self):
        self.wait_for("the popover should be closed", lambda: self.window() is None)

    def wait_for_item(self):
        """Where the program's item is in the tray."""
        return self.wait_for("an item should appear in the tray", lambda: self._screen.tray_item("keldra"))

    def open(self):
        """Opens the popover by a click on the item."""
        clicked = float("-inf")

        # A click right after the popover has closed is ignored as the one that closed it, so the click is repeated.
        def opened():
            nonlocal clicked
            window = self.window()
            item = self._screen.tray_item("keldra")
            if not window and item and time.monotonic() > clicked + 1:
                self._screen.click(item)
                clicked = time.monotonic()
            return window
        self.wait_for("the popover should open", opened)
        return self.wait_for_view("the popover should show its controls", lambda view: "Quit" in view.controls)

    def click(self, title):
        self._screen.click(self.place(title))

    def focus(self, title):
        """Moves the keyboard focus to the control by the Tab key."""
        def where():
            view = self.view()
            control = view and (view.button(title) or view.controls.get(title))
            return view and ("there" if control and control.is_focused() else "elsewhere")
        for _ in range(60):
            if self.wait_for("the popover should be open", where) == "there":
                return
            self._screen.press("Tab")
        raise Failure(f'the Tab key should reach "{title}"')

    def wait_for_end(self):
        try:
            status = self._process.wait(PATIENCE_S)
        except subprocess.TimeoutExpired:
            raise Failure("the program should end") from None
        if status != 0:
            raise Failure(f"the program should end with status 0, not {status}")

    def send(self, number):
        self._process.send_signal(number)

    def is_running(self):
        return self._process.poll() is None

    def end(self):
        """Ends the program, by force if need be. Its exit status is checked as in `wait_for_end`."""
        if self._process.poll() is None:
            self._process.terminate()
        try:
            self.wait_for_end()
        finally:
            self._process.kill()
            self._process.wait()
