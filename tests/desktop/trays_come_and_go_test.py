"""Trays of both protocols come and go while the program runs: trays_come_and_go_test.py KELDRA_DEMO."""

from desktop_test import DesktopTest, main

import screen
import tray


class TraysComeAndGoTest(DesktopTest):
    screen = screen

    def test_program_follows_from_one_protocol_to_the_other(self):
        program = self.start_program()
        for _ in range(2):
            panel = self.start_panel("trayer")
            program.wait_for("its icon should be docked", lambda: screen.docked_icon("keldra"))
            self.open_and_close(program)
            self.end(panel)
            panel = self.start_panel("xfce")
            program.wait_for("its item should be registered", tray.items)
            self.open_and_close(program)
            self.end(panel)

    @staticmethod
    def open_and_close(program):
        program.open()
        screen.press("Escape")
        program.wait_until_closed()


if __name__ == "__main__":
    main("trayer", "xfce4-panel")
