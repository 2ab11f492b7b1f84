"""A person's hands and eyes on an X screen: pointer, keyboard, pictures, colours and the icons in the tray."""

import re
import subprocess
import time


def _run(*words):
    return subprocess.run(words, check=True, capture_output=True, stdin=subprocess.DEVNULL).stdout


def _pixels(place=None):
    crop = ("-crop", "{2}x{3}+{0}+{1}".format(*place)) if place else ()
    return _run("import", "-window", "root", *crop, "-depth", "8", "rgb:-")


def click(place):
    """A left click in the middle of (left, top, width, height)."""
    left, top, width, height = place
    _run("xdotool", "mousemove", str(left + width // 2), str(top + height // 2), "click", "1")


def press(key):
    _run("xdotool", "key", key)


def take_picture(file_name):
    """Of the whole screen, once it has come to rest."""
    before, deadline = None, time.monotonic() + 3
    while (now := _pixels()) != before and time.monotonic() < deadline:
        before = now
    _run("import", "-window", "root", str(file_name))


def tray_icon(window_class):
    """Where the tray shows that program's icon, or None."""
    for panel in _run("xdotool", "search", "--all", "--class", "--name", "^(trayer|panel)$").split():
        tree = _run("xwininfo", "-tree", "-id", panel).decode()
        icon = re.search(rf'" "{window_class}"\)\s+(\d+)x(\d+)\S+\s+\+(-?\d+)\+(-?\d+)', tree)
        if icon:
            width, height, left, top = map(int, icon.groups())
            return left, top, width, height
    return None


def ink_colour(place):
    """"red" or "blue" if that is the colour of the writing there, else None."""
    pixels = _pixels(place)
    triples = list(zip(pixels[0::3], pixels[1::3], pixels[2::3]))
    red = sum(r - max(g, b) > 80 for r, g, b in triples)
    blue = sum(b - r > 80 for r, g, b in triples)
    if max(red, blue) < 20:
        return None
    return "red" if red > blue else "blue"
