"""Trays of both protocols come and go while the program runs: trays_come_and_go_test.py KELDRA_DEMO."""

from desktop_test import DesktopTest, main

import screen
import tray


class TraysComeAndGoTest(DesktopTest):
    screen = screen

    def test_program_follows_from_tray_to_tray(self):
        program = self.start_program()
        for kind in ("trayer", "trayer", "xfce", "xfce", "trayer"):
            panel = self.start_panel(kind)
            program.open()
            screen.press("Escape")
            program.wait_until_closed()
            self.end(panel)
            # A killed panel's bus names exist a little longer, and a new panel would find them taken.
            program.wait_for("the panel should be gone",
                             lambda: not (tray.has_host() or screen.has_trayer() or screen.tray_item("keldra")))


if __name__ == "__main__":
    main("trayer", "xfce4-panel")
