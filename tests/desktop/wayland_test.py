"""The popover where no program may place its windows or watch others' input: wayland_test.py KELDRA_DEMO."""

import subprocess

from desktop_test import DesktopTest, main

import wayland_screen


class WaylandTest(DesktopTest):
    screen = wayland_screen

    def setUp(self):
        wayland_screen.hands()  # before the program looks for input devices

    def test_second_launch_keyboard_and_activation_elsewhere(self):
        program = self.start_program()
        self.assertEqual(self.launch_again(), 0)
        self.assert_stays_open(program)
        program.focus("mount disk0s1")
        wayland_screen.press("space")
        program.wait_for_view("disk0s1 should be mounted", lambda view: view.mounted_at("disk0s1"))
        wayland_screen.press("Escape")
        self.assert_stays_closed(program)
        self.launch_again()
        self.assert_stays_open(program)
        subprocess.run(["swaymsg", "workspace", "elsewhere"], check=True, capture_output=True)
        self.assert_stays_closed(program)

    def test_clicks(self):
        self.start_panel("swaybar")
        program = self.start_program()
        program.open()
        program.click("mount disk0s1")
        program.wait_for_view("disk0s1 should be mounted", lambda view: view.mounted_at("disk0s1"))
        self.assert_stays_open(program)  # so that the next click is not the second of a double click
        item = wayland_screen.tray_item("keldra")
        wayland_screen.click(item)
        self.assert_stays_closed(program)
        wayland_screen.click(item)
        self.assert_stays_open(program)


if __name__ == "__main__":
    main("swaybar")
