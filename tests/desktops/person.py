"""A user of a whole desktop session: input, pictures, and the programs that the user starts there.

Pointer, keys and pictures belong to the screen that shows the session; programs start on the session's own displays.
"""

import contextlib
import ctypes
import json
import os
import pathlib
import re
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "lab"))
import accessibility  # noqa: E402
import screen  # noqa: E402
import tray  # noqa: E402
from popover import View  # noqa: E402

ROOM = pathlib.Path("/room")
_DISPLAYS = ("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY", "DESKTOP_SESSION", "XDG_SESSION_TYPE", "SESSION_MANAGER",
             "XDG_CURRENT_DESKTOP", "KDE_FULL_SESSION", "KDE_SESSION_VERSION", "SWAYSOCK")
_ESP = {"slice": 1, "media": "EFI System Partition"}
MACHINE = {"disks": [
    {"unit": 0, "media": "Disk", "scheme": "GUID_partition_scheme",
     "partitions": [_ESP | {"volume": {"kind": "msdos", "name": "EFI"}}]},
    {"unit": 1, "media": "Slow", "scheme": "GUID_partition_scheme",
     "partitions": [_ESP | {"volume": {"kind": "msdos", "name": "SLOW"}, "delay": 3000}]}]}
QUIET = {"stdin": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}


def session_environment():
    lines = (ROOM / "session.env").read_text().splitlines()
    told = dict(line.split("=", 1) for line in lines if line.split("=")[0] in _DISPLAYS)
    return {name: value for name, value in os.environ.items() if name not in _DISPLAYS} | told


def run(*words, inside=False):
    """The command's output; empty on failure. `inside`: on the session's displays."""
    return subprocess.run(words, stdout=subprocess.PIPE, check=False, timeout=20, **QUIET,
                          env=session_environment() if inside else None).stdout.decode(errors="replace").strip()


def wait_for(condition, seconds=5.0):
    """The first true value of the condition, or its last."""
    deadline = time.monotonic() + seconds
    while True:
        value = None
        with contextlib.suppress(accessibility.Gone, subprocess.SubprocessError, IndexError):
            value = condition()
        if value or time.monotonic() > deadline:
            return value
        time.sleep(0.05)


def pixels(place=None):
    return screen.colours(place or (0, 0, *screen.size()))


def colour_at(x, y):
    return pixels((x, y, 1, 1))[0]


def picture(name):
    screen.take_picture(ROOM / f"{name}.png")


class _CursorImage(ctypes.Structure):
    _fields_ = [(name, ctypes.c_short) for name in ("x", "y")] + \
        [(name, ctypes.c_ushort) for name in ("width", "height", "hot_x", "hot_y")] + \
        [("serial", ctypes.c_ulong), ("pixels", ctypes.POINTER(ctypes.c_ulong)), ("atom", ctypes.c_ulong),
         ("name", ctypes.c_char_p)]


def pointer_shape():
    """The pointer's picture: an arrow's is another one than that of a busy pointer."""
    xlib, fixes = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXfixes.so.3")
    xlib.XOpenDisplay.restype = ctypes.c_void_p
    fixes.XFixesGetCursorImage.restype = ctypes.POINTER(_CursorImage)
    display = ctypes.c_void_p(xlib.XOpenDisplay(None))
    image = fixes.XFixesGetCursorImage(display).contents
    shape = image.width, image.height, tuple(image.pixels[:image.width * image.height])
    xlib.XCloseDisplay(display)
    return shape


class Notices:
    """What programs tell the desktop to show, from now on."""

    def __init__(self):
        self._monitor = subprocess.Popen(["dbus-monitor", "interface=org.freedesktop.Notifications,member=Notify"],
                                         stdout=subprocess.PIPE, **QUIET)
        time.sleep(0.5)

    def end(self):
        """Their texts."""
        self._monitor.terminate()
        told = self._monitor.communicate()[0].decode(errors="replace")
        return re.findall(r'string "(.+)"', told)


def bounding_box(before, after, width):
    changed = [index for index, (one, other) in enumerate(zip(before, after)) if one != other]
    if not changed:
        return None
    columns, rows = [index % width for index in changed], [index // width for index in changed]
    return min(columns), min(rows), max(columns) - min(columns) + 1, max(rows) - min(rows) + 1


def luminance(colour):
    parts = [part / 3294.6 if part <= 10 else ((part + 14) / 269) ** 2.4 for part in colour]
    return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2]


def contrast(one, other):
    light, dark = sorted((luminance(one), luminance(other)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


class Keldra:
    def __init__(self, program):
        self.command = [program, ROOM / "machine.json"]
        self.command[1].write_text(json.dumps(MACHINE))
        self.process = subprocess.Popen(self.command, env=session_environment(), stdout=subprocess.DEVNULL, **QUIET)

    def again(self):
        subprocess.run(self.command, env=session_environment(), check=False, timeout=20, **QUIET)

    @staticmethod
    def windows():
        program = accessibility.find_application("keldra")
        return program.children() if program else []

    def window(self):
        return next((node for node in self.windows()
                     if node.is_showing() and any(child.name == "Quit" for child in node.descendants())), None)

    def view(self):
        window = self.window()
        return window and View(window)

    @staticmethod
    def _in_pixels(node, window):
        """Programs report places in their own units. On a screen of 100 dpi each unit has 1.04 pixels."""
        sizes = [re.findall(r"\d+", run("xdotool", "getwindowgeometry", "--shell", number, inside=True))
                 for number in run("xdotool", "search", "--onlyvisible", "--name", "^Keldra$", inside=True).split()]
        width = max((int(size[3]) for size in sizes), default=0)  # the item on an X11 tray is the smaller one
        ratio = width / window.place()[2] if width else 1
        return tuple(round(length * ratio) for length in node.place())

    def place(self):
        window = self.window()
        return window and self._in_pixels(window, window)

    def control(self, title):
        view, window = self.view(), self.window()
        node = view and (view.button(title) or view.controls.get(title))
        return node and self._in_pixels(node, window)

    def is_open(self, seconds=3.0):
        return bool(wait_for(self.window, seconds))

    def is_closed(self, seconds=2.0):
        return bool(wait_for(lambda: not self.window(), seconds))

    def stays(self, is_open, seconds=0.8):
        return not wait_for(lambda: bool(self.window()) != is_open, seconds)

    def watch(self, seconds):
        """Whether it was open, again and again for so long."""
        end = time.monotonic() + seconds
        seen = []
        while time.monotonic() < end:
            seen.append(bool(self.window()))
            time.sleep(0.05)
        return seen

    def close(self):
        if self.window():
            screen.press("Escape")
        self.is_closed()

    def end(self):
        self.process.terminate()
        with contextlib.suppress(subprocess.TimeoutExpired):
            self.process.wait(5)
        self.process.kill()
        self.process.wait()


def registered():
    return bool(tray.items()) or bool(run("xdotool", "search", "--class", "^keldra$", inside=True))


def shell(script):
    """The answer of GNOME's shell."""
    return run("gdbus", "call", "--session", "-d", "org.gnome.Shell", "-o", "/org/gnome/Shell",
               "-m", "org.gnome.Shell.Eval", script)
