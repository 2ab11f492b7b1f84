"""The popover beside other programs, by keyboard and with a screen reader, on a desktop without a tray:
popover_test.py KELDRA_DEMO."""

import subprocess

from desktop_test import DesktopTest, main
from gi.repository import GLib

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
        # A later loss of activation would close a popover that has opened in the meantime.
        windows = accessibility.find_application("keldra").children()
        program.wait_for("the program should have noticed", lambda: not any(window.is_active() for window in windows))
        return subprocess.check_output(["xdotool", "getactivewindow"]).strip()

    def test_refusal_that_finds_the_popover_closed_becomes_a_notification(self):
        texts = []

        def notify(_method, arguments):
            texts.append(arguments[4])
            return GLib.Variant("(u)", (1,))
        kinds = ("s", "u", "s", "s", "s", "as", "a{sv}", "i")
        taken = "".join(f'<arg type="{kind}" direction="in"/>' for kind in kinds)
        method = f'<method name="Notify">{taken}<arg type="u" direction="out"/></method>'
        service = SessionService("org.freedesktop.Notifications", "/org/freedesktop/Notifications", method, notify)
        self.addCleanup(service.close)
        program = self.open_program()
        program.click("mount disk2s1")
        screen.press("alt+F4")
        program.wait_until_closed()
        program.wait_for("a notification should tell of the refusal",
                         lambda: "mount failed for disk2s1, status not privileged" in texts)

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
        """As a password prompt does. After the action, typing in that program closes the popover."""
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

    def test_screen_reader_tells_what_happens(self):
        announcements = accessibility.Announcements()
        self.addCleanup(announcements.close)
        program = self.open_program()
        row = [node for node in program.window().descendants() if node.role == "list item"][1]
        self.assertEqual(row.description, "Not mounted")
        program.focus("mount disk1s1")
        screen.press("Return")
        program.wait_for("the row should be busy", row.is_busy)
        self.assertEqual(program.view().button("mount disk1s1").description, "Working")
        view = program.wait_for_view("disk1s1 should be mounted", lambda view: view.mounted_at("disk1s1"))
        said = [f"disk1s1 mouted at {view.mounted_at('disk1s1')}"]
        program.wait_for("it should be said", lambda: announcements.texts == said)
        self.assertTrue(program.view().button("umount disk1s1").is_focused())
        self.assertEqual((row.description, row.is_busy()), ("Mounted", False))

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
