"""The popover beside other programs and in the hands of people who use no pointer or see no screen, on a desktop
without a tray: popover_test.py KELDRA_DEMO."""

import subprocess

from desktop_test import DesktopTest, main
from gi.repository import GLib
from notification_service import NotificationService

import accessibility
import screen
from session_service import SessionService

OTHER = (950, 550, 200, 150)


class PopoverTest(DesktopTest):
    screen = screen

    def open_program(self):
        program = self.start_program()
        self.assertEqual(self.launch_again(), 0)
        self.assert_open(program)
        return program

    def open_other_program(self, program):
        """Its window, which is the active one, has the place OTHER."""
        self.start("xev", "-geometry", "{2}x{3}+{0}+{1}".format(*OTHER))
        name = ["xdotool", "getactivewindow", "getwindowname"]
        program.wait_for("another program's window should open",
                         lambda: subprocess.check_output(name).strip() == b"Event Tester")
        # A loss of activation that came later would close a popover which has opened meanwhile.
        windows = accessibility.find_application("keldra").children()
        program.wait_for("the program should have noticed", lambda: not any(window.is_active() for window in windows))
        return subprocess.check_output(["xdotool", "getactivewindow"]).strip()

    def test_second_launch_opens_the_popover_in_the_middle(self):
        program = self.open_program()
        left, top, width, height = program.place()
        screen_width, screen_height = screen.size()
        self.assertAlmostEqual(left + width / 2, screen_width / 2, delta=2)
        self.assertAlmostEqual(top + height / 2, screen_height / 2, delta=2)
        self.assertEqual(self.launch_again(), 0)
        self.assert_stays_open(program)
        screen.press("Escape")
        self.assert_stays_closed(program)
        self.assertEqual(self.launch_again(), 0)
        self.assert_stays_open(program)

    def test_refusal_that_finds_the_popover_closed_becomes_a_notification(self):
        service = NotificationService()
        self.addCleanup(service.close)
        program = self.open_program()
        program.click("mount disk2s1")
        screen.press("alt+F4")
        program.wait_until_closed()
        program.wait_for("a notification should tell of the refusal",
                         lambda: "mount failed for disk2s1, status not privileged" in service.texts)

    def test_clicks_inside_and_elsewhere(self):
        program = self.open_program()
        self.open_other_program(program)
        for button in (1, 3):
            self.launch_again()
            screen.click(program.place("Status"), button=button)
            self.assert_stays_open(program)
            screen.click(OTHER, button=button)
            self.assert_stays_closed(program)

    def test_another_program_takes_the_focus_meanwhile(self):
        """As a password prompt does. Afterwards, what is typed there closes the popover."""
        program = self.start_program()
        other = self.open_other_program(program)
        self.launch_again()
        program.click("mount disk1s1")
        subprocess.run(["xdotool", "windowfocus", "--sync", other], check=True)
        program.wait_for_view("disk1s1 should be mounted", lambda view: view.mounted_at("disk1s1"))
        self.assert_stays_open(program)
        subprocess.run(["xdotool", "keydown", "a"], check=True)
        self.assert_stays_open(program)
        subprocess.run(["xdotool", "keyup", "a"], check=True)
        self.assert_stays_closed(program)

    def focused(self, window):
        return next((node for node in window.descendants() if node.is_focused()), None)

    def press(self, program, key, window):
        """And gives the name of what has the keyboard then."""
        before = self.focused(window).name
        screen.press(key)

        def other():
            node = self.focused(window)
            return node.name if node and node.name != before else None
        return program.wait_for(f"the keyboard should leave {before}", other)

    def test_keyboard_comes_to_everything_in_order_and_is_seen(self):
        program = self.open_program()
        window = program.window()
        order = ["Partitions", "mount disk0s1", "mount disk1s1", "mount disk2s1", "Show all", "Force unmount",
                 "Launch at login", "Info", "Web site", "Quit"]
        self.assertEqual(self.focused(window).name, order[0])
        self.assertEqual([self.press(program, "Tab", window) for _ in order], order[1:] + order[:1])
        for name in order[:0:-1]:
            self.assertEqual(self.press(program, "shift+Tab", window), name)
            place = program.place(name)
            screen.wait_for_rest(place)
            focused = screen.colours(place)
            self.press(program, "shift+Tab", window)
            screen.wait_for_rest(place)
            self.assertNotEqual(screen.colours(place), focused, f"the keyboard should be seen at {name}")
            self.press(program, "Tab", window)

    def test_screen_reader_tells_what_happens(self):
        announcements = accessibility.Announcements()
        self.addCleanup(announcements.close)
        program = self.open_program()
        window = program.window()
        rows = [node for node in window.descendants() if node.role == "list item"]
        self.assertEqual([row.description for row in rows], ["Not mounted"] * 3)
        program.focus("mount disk1s1")
        screen.press("Return")
        program.wait_for("the row should be busy", rows[1].is_busy)
        self.assertEqual(program.view().button("mount disk1s1").description, "Working")
        path = program.wait_for_view("disk1s1 should be mounted",
                                     lambda view: view.mounted_at("disk1s1")).mounted_at("disk1s1")
        program.wait_for("it should be said", lambda: announcements.texts == [f"disk1s1 mouted at {path}"])
        self.assertEqual(self.focused(window).name, "umount disk1s1")
        self.assertEqual(rows[1].description, "Mounted")
        self.assertFalse(rows[1].is_busy())

    def test_follows_the_desktop_into_the_dark_and_back(self):
        light = GLib.Variant("(v)", (GLib.Variant("v", GLib.Variant("u", 2)),))
        read = '<method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>' \
               '<arg type="v" direction="out"/></method>'
        portal = SessionService("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", read,
                                lambda *_: light, "org.freedesktop.portal.Settings")
        self.addCleanup(portal.close)
        program = self.open_program()
        left, top, width, height = program.place()
        ground = (left + width // 3, top + height - 30, 1, 1)
        for number, is_dark in (1, True), (2, False), (1, True), (0, False):  # the palette is light
            portal.emit("SettingChanged", GLib.Variant("(ssv)", (
                "org.freedesktop.appearance", "color-scheme", GLib.Variant("u", number))))
            program.wait_for(f"{number} should make it {'dark' if is_dark else 'light'}",
                             lambda: (max(screen.colours(ground)[0]) < 100) == is_dark)


if __name__ == "__main__":
    main("xev")
