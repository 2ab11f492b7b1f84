"""Goes through what a person expects of the program on one desktop: table.py KELDRA_DEMO DESKTOP x11|wayland.

Prints a line for each cell of the table: its name, "yes", "no" or "-", and what was seen. Pictures are in /room.
"""

import os
import pathlib
import re
import subprocess
import sys
import time

from person import (Keldra, Notices, bounding_box, colour_at, contrast, picture, pixels, pointer_shape, registered,
                    run, screen, session_environment, shell, tray, wait_for)

PROGRAM, DESKTOP, SERVER = sys.argv[1:4]
WIDTH, HEIGHT = screen.size()
NO_TRAY = bool(os.environ.get("EXTENSIONS"))
X11_TRAYS = ("cinnamon",)
SCREENS = int(os.environ.get("SCREENS", "1"))
WALLPAPER = (WIDTH // 4, HEIGHT * 3 // 4)
OTHER = (100, 300, 300, 200)


# What cannot be had, and who decides it. The README says what a person can do there instead.
LIMITS = {
    ("gnome", "wayland", "closes: panel"): "GNOME tells X11 programs nothing of clicks on its own parts",
    ("gnome", "wayland", "closes: wallpaper"): "GNOME tells X11 programs nothing of clicks on its own parts",
    ("plasma", "wayland", "closes: panel"): "KWin tells X11 programs nothing of clicks on its own parts",
    ("sway", "wayland", "closes: panel"): "sway tells X11 programs nothing of clicks on its bar",
    ("sway", "wayland", "arrow"): "sway puts floating windows in the middle of the screen",
    ("sway", "wayland", "windows"): "sway knows neither lists of windows nor windows that stay above",
    ("sway", "wayland", "above full screen"): "sway shows nothing above a full-screen window",
    ("sway", "wayland", "theme"): "sway tells of none",
    ("lxqt", "x11", "theme"): "LXQt tells of none",
}


def tell(cell, good, seen=""):
    limit = None if good else LIMITS.get((DESKTOP, SERVER, cell))
    print(f"{cell}\t{'yes' if good else '-' if limit else 'no'}\t{limit or seen}", flush=True)


def work_area():
    """Of the first screen, where the items are."""
    told = re.findall(r"\d+", run("xprop", "-root", "_NET_WORKAREA", inside=True).partition("=")[2])
    left, top, width, height = map(int, told[:4]) if len(told) >= 4 else (0, 26, WIDTH, HEIGHT - 26)
    return left, top, width, height


def click(x, y, button=1, times=1):
    screen.click((x, y, 0, 0), button, times)


def settle():
    """Waits until the desktop has shown its greeting and painted itself."""
    wait_for(tray.has_host, 40 if not NO_TRAY and DESKTOP not in X11_TRAYS else 0)
    time.sleep(float(os.environ.get("SETTLE", 8)))
    if DESKTOP == "gnome":
        screen.press("Escape")
        shell("Main.overview.hide(); Main.messageTray._banner && Main.messageTray._banner.destroy(); 1")
        time.sleep(2)
    screen.move_pointer(*WALLPAPER)
    wait_for_quiet(5)


def wait_for_quiet(seconds):
    """Until the screen has stayed the same for so long: panels load their parts late, and move the others."""
    last, since, deadline = None, time.monotonic(), time.monotonic() + 40
    while time.monotonic() < min(since + seconds, deadline):
        now = pixels()
        if now != last:
            last, since = now, time.monotonic()
        time.sleep(0.5)


def start():
    """The program without the demo's own window, the place of its item, and how long that took to be there.

    No interface tells where the item is, but only the item's picture changes while the popover is open."""
    started = time.monotonic()
    program = Keldra(PROGRAM)
    wait_for(registered, 8)
    seconds = time.monotonic() - started
    machine = wait_for(lambda: run("xdotool", "search", "--onlyvisible", "--name", "^Machine", inside=True))
    run("xdotool", "windowunmap", machine or "0", inside=True)
    time.sleep(1)
    screen.wait_for_rest()
    if time.localtime().tm_sec > 50:  # the panel's clock must not change meanwhile
        time.sleep(11)
    before = pixels()
    program.again()
    program.is_open()
    time.sleep(1)
    left, top, width, height = work_area()
    after = [old if left <= index % WIDTH < left + width and top <= index // WIDTH < top + height else new
             for index, (old, new) in enumerate(zip(before, pixels()))]
    item = bounding_box(before, after, WIDTH)
    program.close()
    return program, item, seconds


class Visit:
    def __init__(self):
        self.program, self.item, seconds = start()
        picture("1-item")
        self.middle = self.item and (self.item[0] + self.item[2] // 2, self.item[1] + self.item[3] // 2)
        tell("item", bool(self.item) and seconds < 1.5, f"{self.item}, after {seconds:.1f} s")

    def click_item(self, times=None, across=0):
        click(self.middle[0] + across, self.middle[1], times=times or (2 if DESKTOP == "gnome" else 1))

    def open(self):
        if not self.program.window():
            time.sleep(0.5)
            self.click_item()
        self.program.is_open()
        time.sleep(0.6)
        return self.program.place()

    def press(self, title):
        """By way of the popover: Xwayland learns from the second motion over a window where the pointer is."""
        left, top, width, height = place = self.program.control(title)
        screen.move_pointer(left + 2, top + height // 2)
        time.sleep(0.3)
        screen.click(place)

    @staticmethod
    def ground(place):
        """The popover's colour, at a place without text."""
        return colour_at(place[0] + place[2] // 2, place[1] + place[3] - 40)

    def picture_of_item(self):
        colours = pixels(self.item)
        left, top, width, height = self.item
        ground = colour_at(max(left - 2, 0), top + height // 2)
        readable = [colour for colour in colours if contrast(colour, ground) >= 3]
        best = max(contrast(colour, ground) for colour in colours)
        tell("picture", len(readable) > width * height / 6, f"{best:.1f} to 1 on {ground}")

    def pointer(self):
        screen.move_pointer(*WALLPAPER)
        time.sleep(0.5)
        before = pointer_shape()
        self.open()
        screen.move_pointer(*WALLPAPER)
        time.sleep(1.5)
        opened = pointer_shape()
        self.click_item()
        self.program.is_closed()
        screen.move_pointer(*WALLPAPER)
        time.sleep(1.5)
        tell("pointer", opened == before == pointer_shape())

    def place(self):
        place = self.open()
        picture("2-open")
        left, width = self.middle[0] * SCREENS // WIDTH * (WIDTH // SCREENS), WIDTH // SCREENS
        tell("click", place and left <= place[0] and place[0] + place[2] <= left + width + 1, f"{place}")
        if not place:
            return
        area = work_area()
        tell("in work area", place[0] >= area[0] and place[1] >= area[1] - 1
             and place[0] + place[2] <= area[0] + area[2] + 1
             and place[1] + place[3] <= area[1] + area[3] + 1, f"{place} in {area}")
        hangs = self.middle[1] < HEIGHT / 2
        screen.move_pointer(*WALLPAPER)  # a large one covers the arrow
        time.sleep(0.3)
        row = place[1] + 5 if hangs else place[1] + place[3] - 6
        line = pixels((place[0], row, place[2], 1))
        ground = self.ground(place)
        arrow = [x for x, colour in enumerate(line) if max(abs(a - b) for a, b in zip(colour, ground)) < 12]
        tip = arrow and place[0] + (arrow[0] + arrow[-1]) / 2
        tell("arrow", bool(arrow) and abs(tip - self.middle[0]) <= 2, f"tip {tip}, item {self.middle[0]}")

    def again(self):
        def closes(what, act):
            self.open()
            time.sleep(0.3)
            act()
            tell(f"closes: {what}", self.program.is_closed() and self.program.stays(False))
            time.sleep(0.6)
        closes("item", self.click_item)
        closes("Escape", lambda: screen.press("Escape"))
        closes("panel", lambda: click(WIDTH // 3, self.middle[1]))
        screen.press("Escape")
        time.sleep(0.5)
        closes("wallpaper", lambda: click(*WALLPAPER))
        self.program.close()
        time.sleep(1)
        self.click_item(times=2)
        tell("double click", self.program.is_open() and self.program.stays(True, 1.2))
        if DESKTOP != "gnome":
            time.sleep(0.5)
            screen.move_pointer(self.middle[0] + self.item[2] // 3, self.middle[1])
            run("xdotool", "mousedown", "1")
            seen = self.program.watch(0.6)
            run("xdotool", "mouseup", "1")
            # A panel tells of a click when the button goes down, when it is let go, or not at all if that took long.
            seen += self.program.watch(1.5)
            tell("held", sorted(seen, reverse=True) == seen)

    def windows(self):
        self.program.close()
        other = self.other_window()
        before = run("xdotool", "getactivewindow", inside=True)
        place = self.open()
        if DESKTOP == "gnome":
            listed = shell("global.get_window_actors().map(a => a.meta_window).filter(w => !w.skip_taskbar)"
                           ".map(w => w.title).join()")
            tell("windows", "Keldra" not in re.split(r"[',\"]", listed), listed)
        else:
            name = run("xdotool", "search", "--onlyvisible", "--name", "^Keldra$", inside=True).split()
            states = " ".join(run("xprop", "-id", window, "_NET_WM_STATE", inside=True) for window in name)
            tell("windows", "SKIP_TASKBAR" in states and "ABOVE" in states, states[-80:])
        closed = other and (click(OTHER[0] + 150, OTHER[1] + 150), self.program.is_closed())[1]
        tell("closes: window", closed and self.program.stays(False))
        self.open()
        self.program.close()
        time.sleep(0.3)
        after = run("xdotool", "getactivewindow", inside=True)
        tell("focus returns", before == after and bool(place), f"{before} {after}")
        other.kill()
        other.wait()

    def above_full_screen(self):
        """The item is covered as well, so that only a second start can open the popover."""
        self.program.close()
        other = self.other_window("-fullscreen", "-bg", "navy")
        time.sleep(1)
        covered = colour_at(*self.middle)
        self.program.again()
        self.program.is_open()
        time.sleep(1)
        place = self.program.place()
        picture("8-full-screen")
        seen = place and self.program.control("Quit")
        tell("above full screen", bool(seen) and colour_at(place[0] + 30, place[1] + place[3] - 40) != covered, f"{place}")
        self.program.close()
        other.kill()
        other.wait()

    @staticmethod
    def other_window(*options):
        other = subprocess.Popen(["xterm", "-geometry", "40x12+{0}+{1}".format(*OTHER), *options],
                                 env=session_environment())
        wait_for(lambda: run("xdotool", "search", "--onlyvisible", "--class", "xterm", inside=True))
        time.sleep(1)
        click(OTHER[0] + 150, OTHER[1] + 150)
        time.sleep(0.5)
        return other

    def busy(self):
        self.open()
        self.press("mount disk1s1")
        time.sleep(0.6)
        self.click_item()
        tell("busy", self.program.stays(True, 1.2))
        wait_for(lambda: self.program.view() and self.program.view().mounted_at("disk1s1"), 6)

    def info(self):
        def shown():
            self.open()
            self.press("Info")
            return wait_for(lambda: next((node for node in self.program.windows()
                                          if node.role == "dialog" and node.is_showing()), None))
        sizes = []
        for _ in range(3):
            window = shown()
            time.sleep(0.7)
            sizes.append(window and tuple(window.place()[2:]))
            picture("3-info")
            run("xdotool", "search", "--name", "^About Keldra", "windowminimize", inside=True)
            time.sleep(0.7)
        window = shown()
        tell("info", window and window.is_active() and len(set(sizes)) == 1, str(sizes))
        screen.press("Escape")
        time.sleep(0.5)

    def theme(self):
        words, *values = {
            "gnome": ("gsettings set org.gnome.desktop.interface color-scheme", "prefer-dark", "default"),
            "cinnamon": ("gsettings set org.cinnamon.desktop.interface gtk-theme", "Adwaita-dark", "Adwaita"),
            "mate": ("gsettings set org.mate.interface gtk-theme", "BlackMATE", "Menta"),
            "xfce": ("xfconf-query -c xsettings -p /Net/ThemeName -n -t string -s", "Adwaita-dark", "Adwaita"),
            "plasma": ("plasma-apply-colorscheme", "BreezeDark", "BreezeLight"),
        }.get(DESKTOP, ("",))
        if not values:
            return tell("theme", False)
        seen = []
        for value in values:
            run(*words.split(), value, inside=True)
            screen.move_pointer(*WALLPAPER)
            time.sleep(2)
            self.picture_of_item()
            place = self.open()
            seen.append(max(self.ground(place)) if place else -1)
            picture(f"4-theme-{len(seen)}")
        if DESKTOP == "plasma":
            run("plasma-apply-desktoptheme", "breeze-dark", inside=True)
            screen.move_pointer(*WALLPAPER)
            time.sleep(2)
            picture("4-theme-dark-panel")
            self.picture_of_item()
        tell("theme", 0 <= seen[0] < 110 and seen[1] > 160, str(seen))

    @staticmethod
    def choose_mount(menu):
        """The entry below "Open Keldra". On sway by mouse: it gives keys to windows alone, and the menu is none."""
        if DESKTOP != "sway":
            for key in ("Down", "Down", "Return"):
                screen.press(key)
                time.sleep(0.2)
            return
        left, top = menu[0] + menu[2] // 2, menu[1] + 35
        for step in range(10):
            screen.move_pointer(left - 40 + 4 * step, top)
            time.sleep(0.08)
        click(left, top)

    def login(self):
        """The program has a login item, so a session manager that restores programs must leave it out."""
        if DESKTOP != "xfce":  # the others restore nothing
            return
        self.program.close()
        run("gdbus", "call", "--session", "-d", "org.xfce.SessionManager", "-o", "/org/xfce/SessionManager",
            "-m", "org.xfce.Session.Manager.Checkpoint", "table", inside=True)
        sessions = pathlib.Path.home() / ".cache" / "sessions"
        saved = wait_for(lambda: "".join(path.read_text() for path in sessions.glob("xfce4-session-*")))
        restored = re.findall(r"_Program=(.*)", saved or "")
        tell("login", restored and not any("keldra" in program for program in restored), " ".join(restored))

    def menu(self):
        self.program.close()
        screen.move_pointer(*WALLPAPER)
        screen.wait_for_rest()
        time.sleep(0.5)
        before = pixels()
        notices = Notices()
        click(*self.middle, button=1 if DESKTOP == "gnome" else 3)
        time.sleep(1.2)
        picture("5-menu")
        menu = bounding_box(before, pixels(), WIDTH)
        self.choose_mount(menu)
        mounted = wait_for(lambda: any("disk0s1" in path for path in os.listdir("/tmp")), 0.1)
        time.sleep(1.5)
        notice = bounding_box(before, pixels(), WIDTH)
        picture("6-after-menu")
        tell("menu", menu and menu[2] > 60 and not self.program.window(), f"{menu} {mounted or ''}")
        told = [text for text in notices.end() if "disk0s1" in text]
        tell("menu's outcome", told and notice and notice[2] > 150 and notice[3] > 60, f"{'; '.join(told)} {notice}")


def visit_without_tray():
    started = time.monotonic()
    program = Keldra(PROGRAM)
    opened = program.is_open(4)
    tell("no tray", opened and time.monotonic() - started < 2, f"{time.monotonic() - started:.1f} s")
    picture("7-no-tray")
    program.end()


STEPS = {
    "all": (Visit.picture_of_item, Visit.place, Visit.pointer, Visit.again, Visit.windows, Visit.above_full_screen,
            Visit.busy, Visit.info, Visit.theme, Visit.login, Visit.menu),
    "place": (Visit.picture_of_item, Visit.place),
}


def main():
    settle()
    if NO_TRAY:
        return visit_without_tray()
    visit = Visit()
    try:
        if not visit.item:
            return None
        for step in STEPS.get(os.environ.get("CELLS"), STEPS["all"]):
            try:
                step(visit)
            except Exception as problem:  # the other cells can still be checked
                tell(step.__name__, False, f"{type(problem).__name__}: {problem}")
    finally:
        visit.program.end()


if __name__ == "__main__":
    main()
