"""The popover beside other programs, on a desktop without a tray: popover_test.py KELDRA_DEMO."""

import subprocess

from desktop_test import DesktopTest, main
from notification_service import NotificationService

import accessibility
import screen

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


if __name__ == "__main__":
    main("xev")
