"""The popover at the item in a panel's tray: tray_test.py KELDRA_DEMO trayer|xfce."""

import sys

from desktop_test import DesktopTest, main

import screen

KIND = sys.argv[2]


def centre(place):
    left, top, width, height = place
    return left + width // 2, top + height // 2


class TrayTest(DesktopTest):
    screen = screen

    def open_program(self, edge="top"):
        """Starts the program in an existing tray and opens the popover."""
        self.start_panel(KIND, edge)
        program = self.start_program()
        program.open()
        return program

    def test_popover_is_beside_the_item_at_every_edge(self):
        for edge in ("top", "bottom", "left"):
            program = self.open_program(edge)
            left, top, width, height = place = program.place()
            item = screen.tray_item("keldra")
            x, y = centre(item)
            screen_width, screen_height = screen.size()
            self.assertTrue(left >= 0 and top >= 0 and left + width <= screen_width and top + height <= screen_height,
                            f"{place} should be on the screen")
            gap = {"top": top - item[1] - item[3], "bottom": item[1] - top - height, "left": left - item[0] - item[2]}
            self.assertLess(abs(gap[edge]), 12, f"{place} should begin beside {item} at the {edge}")
            if edge == "left":
                self.assertTrue(top < y < top + height, f"{place} should be level with {item}")
            else:
                self.assert_arrow(place, x, top + 4 if edge == "top" else top + height - 5)
            self.doCleanups()

    def assert_arrow(self, place, x, y):
        """The popover's colour is at x, and not beside it."""
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
        screen.click(item, times=2)
        self.assert_stays_open(program)

    def test_menu_of_the_item(self):
        self.start_panel(KIND)
        program = self.start_program()
        # The menu's entries come from the program and may come late, and a panel that has just started may still move
        # its items. So the click may be repeated.
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
