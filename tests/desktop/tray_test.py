"""The popover on the item in a panel's tray: tray_test.py KELDRA_DEMO trayer|xfce."""

import sys

from desktop_test import DesktopTest, main

import screen
import tray

KIND = sys.argv[2]


def centre(place):
    left, top, width, height = place
    return left + width // 2, top + height // 2


class TrayTest(DesktopTest):
    screen = screen

    def open_program(self, edge="top"):
        """A program with its popover open, in a tray that was there before."""
        self.start_panel(KIND, edge)
        program = self.start_program()
        program.open()
        return program

    def test_panel_is_killed_and_comes_back(self):
        panel = self.start_panel(KIND)
        program = self.start_program()
        for _ in range(2):
            program.wait_for_item()
            self.end(panel)
            # The panel's bus names outlive it a little, and a new one would find them taken.
            program.wait_for("the panel should be gone",
                             lambda: not (tray.has_host() or screen.has_trayer() or screen.tray_item("keldra")))
            panel = self.start_panel(KIND)
        program.open()

    def test_hangs_under_the_item(self):
        place, item = self.open_at("top")
        self.assertLess(abs(place[1] - item[1] - item[3]), 12, f"{place} should begin under {item}")
        self.assert_arrow(place, centre(item)[0], place[1] + 4)

    def test_stands_on_the_item(self):
        place, item = self.open_at("bottom")
        self.assertLess(abs(item[1] - place[1] - place[3]), 12, f"{place} should begin over {item}")
        self.assert_arrow(place, centre(item)[0], place[1] + place[3] - 5)

    def test_stands_beside_an_item_at_the_left(self):
        place, item = self.open_at("left")
        self.assertLess(abs(place[0] - item[0] - item[2]), 12, f"{place} should begin beside {item}")
        self.assertTrue(place[1] < centre(item)[1] < place[1] + place[3], f"{place} should be level with {item}")

    def test_stands_beside_an_item_at_the_right(self):
        place, item = self.open_at("right")
        self.assertLess(abs(item[0] - place[0] - place[2]), 12, f"{place} should begin beside {item}")
        self.assertTrue(place[1] < centre(item)[1] < place[1] + place[3], f"{place} should be level with {item}")

    def open_at(self, edge):
        program = self.open_program(edge)
        place, item = program.place(), screen.tray_item("keldra")
        self.assert_on_screen(place)
        return place, item

    def assert_arrow(self, place, x, y):
        """The popover's colour at x, and not beside it."""
        ground, arrow, *beside = (screen.colours((*pixel, 1, 1))[0] for pixel in (
            (place[0] + 10, place[1] + 40), (x, y), (x - 15, y), (x + 15, y)))
        self.assertEqual(arrow, ground, "the arrow should be on the item")
        self.assertNotIn(ground, beside, "the arrow should be narrow")

    def test_clicks_on_the_item(self):
        program = self.open_program()
        item = screen.tray_item("keldra")
        self.assert_stays_open(program)  # so that the next click is not the second of a double click
        screen.click(item)
        self.assert_stays_closed(program)
        screen.click(item)
        self.assert_stays_open(program)
        screen.press("Escape")
        self.assert_stays_closed(program)
        screen.click(item, times=2)
        self.assert_stays_open(program)

    def test_menu_of_the_item(self):
        self.start_panel(KIND)
        program = self.start_program()
        # The entries come from the program, and may come later than the menu; and a panel that has just started may
        # still move its items: then once more.
        for _ in range(3):
            left, top, width, height = item = program.wait_for_item()
            below = (left - 60, top + height + 2, width + 60, 60)
            before = screen.colours(below)
            screen.click(item, button=3)
            program.wait_for("a menu should open", lambda: screen.colours(below) != before)
            screen.wait_for_rest(below)
            screen.press("Down")
            screen.press("Return")  # "Open Keldra"
            if self.comes_true(program.window):
                break
            screen.press("Escape")
        self.assert_stays_open(program)


if __name__ == "__main__":
    main({"xfce": "xfce4-panel"}.get(KIND, KIND))
