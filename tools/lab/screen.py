"""Input and pictures on an X screen: pointer, keyboard, colours and the items in the tray.

Lengths and places are in the programs' units, before the screen's scale.
"""

import os
import re
import subprocess
import time

import accessibility
import tray

_SCALE = int(os.environ.get("QT_SCALE_FACTOR", 1))


def _run(*words):
    return subprocess.run(words, check=True, capture_output=True, stdin=subprocess.DEVNULL).stdout


def _crop(place):
    return ("-crop", "{2}x{3}+{0}+{1}".format(*(_SCALE * length for length in place))) if place else ()


def _pixels(place=None):
    return _run("import", "-window", "root", *_crop(place), "-depth", "8", "rgb:-")


def size():
    width, height = _run("xdotool", "getdisplaygeometry").split()
    return int(width) // _SCALE, int(height) // _SCALE


def place_of(node, _window):
    """Where a widget of the popover is on the screen: (left, top, width, height)."""
    return node.place()


def click(place, button=1, times=1):
    """Clicks in the middle of (left, top, width, height)."""
    left, top, width, height = place
    _run("xdotool", "mousemove", str(_SCALE * (left + width // 2)), str(_SCALE * (top + height // 2)),
         "click", "--repeat", str(times), "--delay", "60", str(button))


def press(key):
    _run("xdotool", "key", key)


def hide_window(name):
    """Waits for the window and hides it."""
    _run("xdotool", "search", "--sync", "--onlyvisible", "--name", f"^{name}", "windowunmap")


def move_pointer(x, y):
    _run("xdotool", "mousemove", str(_SCALE * x), str(_SCALE * y))


def wait_for_rest(place=None):
    """Waits until the place stops changing, three seconds at most."""
    before, deadline = None, time.monotonic() + 3
    while (now := _pixels(place)) != before and time.monotonic() < deadline:
        before = now
        time.sleep(0.1)


def take_picture(file_name, place=None):
    """Saves a picture of the place or the whole screen when it has stopped changing."""
    wait_for_rest(place)
    _run("import", "-window", "root", *_crop(place), "+repage", str(file_name))


def colours(place):
    """The colours of the pixels, row by row, as (red, green, blue)."""
    pixels = _pixels(place)
    return list(zip(pixels[0::3], pixels[1::3], pixels[2::3]))


def ink_colour(place):
    """"red" or "blue" if that is the colour of the writing there, else None."""
    triples = colours(place)
    red = sum(r - max(g, b) > 80 for r, g, b in triples)
    blue = sum(b - r > 80 for r, g, b in triples)
    if max(red, blue) < 20:
        return None
    return "red" if red > blue else "blue"


def tray_item(window_class):
    """Where the tray shows that program's item, or None."""
    return docked_icon(window_class) or _item_in_panel()


def _trays():
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "^trayer$"], capture_output=True,
                          stdin=subprocess.DEVNULL, check=False).stdout.split()


def has_trayer():
    return bool(_trays())


def docked_icon(window_class):
    """In a tray of the X11 protocol: the program's own window inside the tray's."""
    for tray_window in _trays():
        tree = _run("xwininfo", "-tree", "-id", tray_window).decode()
        icon = re.search(rf'" "{window_class}"\)\s+(\d+)x(\d+)\S+\s+\+(-?\d+)\+(-?\d+)', tree)
        if icon:
            width, height, left, top = (int(length) // _SCALE for length in icon.groups())
            return left, top, width, height
    return None


# A panel paints the items of StatusNotifierItem itself. The only item is the last widget that the panel shows.
def _item_in_panel():
    panel = accessibility.find_application("xfce4-panel")
    if not panel or not tray.items():
        return None
    shown = [node.place() for node in panel.descendants() if node.role in ("filler", "push button")]
    place = next((place for place in reversed(shown) if place[2] > 1), None)
    return tuple(place) if place else None
