"""Input and pictures on the screen of tools/lab/wayland-desktop, with the interface of screen.py."""

import functools
import json
import subprocess
import time

import tray
from wayland_hands import Hands

_SIZE = (1280, 800)


def _run(*words):
    return subprocess.run(words, check=True, capture_output=True, stdin=subprocess.DEVNULL).stdout


@functools.cache
def hands():
    return Hands(_SIZE)


def size():
    return _SIZE


def popover_place():
    """From the compositor, or None. A program itself does not know where its windows are."""
    def windows(node):
        yield node
        for child in node["nodes"] + node["floating_nodes"]:
            yield from windows(child)
    for window in windows(json.loads(_run("swaymsg", "-r", "-t", "get_tree"))):
        if window["name"] == "Keldra":
            outer, inner = window["rect"], window["window_rect"]
            return outer["x"] + inner["x"], outer["y"] + inner["y"], inner["width"], inner["height"]
    return None


def place_of(node, window):
    """Where a widget of the popover is on the screen: (left, top, width, height)."""
    left, top, width, height = node.place()
    window_left, window_top, _, _ = window.place()
    x, y, _, _ = popover_place()
    return left - window_left + x, top - window_top + y, width, height


def click(place):
    left, top, width, height = place
    hands().click(left + width // 2, top + height // 2)


def press(key):
    hands().press(key)


def hide_window(name):
    """Moves the window out of sight, wherever the program places it."""
    _run("swaymsg", f'for_window [title="^{name}"] move to scratchpad')


def move_pointer(x, y):
    hands().move(x, y)


def take_picture(file_name, place=None):
    """Saves a picture of the place or the whole screen when it has stopped changing."""
    part = ("-g", "{},{} {}x{}".format(*place)) if place else ()
    before, deadline = None, time.monotonic() + 3
    while (now := _run("grim", *part, "-t", "ppm", "-")) != before and time.monotonic() < deadline:
        before = now
    _run("grim", *part, str(file_name))


def tray_item(_name):
    """Where the bar at the top shows the item, or None."""
    if not tray.items():
        return None
    workspace = json.loads(_run("swaymsg", "-r", "-t", "get_workspaces"))[0]["rect"]
    height = workspace["y"]
    return (_SIZE[0] - height, 0, height, height) if height else None
