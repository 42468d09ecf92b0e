"""The whole program on Wayland desktops: one that draws the frames itself, and one that leaves them to the toolkit."""

import mmap
import shutil
import threading
import time
import unittest

from desktop import WindowTest, wait_for
from test_panels import TRANSPARENCY_THUMB, open_options, settings
from test_program import PAGE, near
from wayland import Sway, Weston

PAGES = ("Summary", "User account", "Computer", "Operating system", "Processor", "RAM", "Hard drives", "Bios", "Display",
         "Keyboard and mouse", "Removable memory", "CDs/DVDs", "Others hardware")
# A point of the page that is white, on a screen with the window in its middle.
WHITE_IN_THE_MIDDLE = (720, 600)
ACCEPT = (670, 479)
OPTIONS = (60, 15)
OPTIONS_MENU = (25, 14)
# In the first value of a page.
VALUE = (270, 146)


class Watch(threading.Thread):
    """Follows how much of one pixel is green, which the ground has nothing of, until it is told to stop."""

    def __init__(self, desktop, x, y):
        super().__init__()
        with open(desktop.frame_buffer, "rb") as file:
            self.screen = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        self.at = len(self.screen) - 4 * (desktop.size[0] * (desktop.size[1] - y) - x) + 1
        self.seen, self.running = [], True
        self.start()

    def run(self):
        while self.running:
            green = self.screen[self.at]
            if not self.seen or self.seen[-1] != green:
                self.seen.append(green)
            time.sleep(0.002)

    def stop(self):
        self.running = False
        self.join()
        return self.seen


@unittest.skipUnless(shutil.which("sway"), "there is no sway")
class SwayTest(WindowTest):
    def test_the_window_fades_and_is_as_transparent_as_the_panel_says(self):
        with Sway() as desktop:
            watch = Watch(desktop, *WHITE_IN_THE_MIDDLE)
            program = desktop.start_program()
            window = desktop.window()
            self.assertTrue(wait_for(lambda: near(desktop.pixel(window, *PAGE), (255, 255, 255), 0)), "not opaque")
            seen = watch.stop()
            self.assertEqual(seen, sorted(seen))
            self.assertGreater(len(seen), 3, "it comes up step by step")

            open_options(desktop, window, 1)
            self.assertShows(desktop, "label: 0 %")
            left, top, _, _ = desktop.place(window)
            x, y = left + TRANSPARENCY_THUMB[0], top + TRANSPARENCY_THUMB[1]
            desktop.call("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
            for step in range(1, 70):
                desktop.call("xdotool", "mousemove", str(x + 2 * step), str(y))
            # White at alpha 51 of 255 over red, while the button is still held.
            self.assertTrue(wait_for(lambda: near(desktop.pixel(window, *PAGE), (255, 51, 51), 2)))
            desktop.call("xdotool", "mouseup", "1")
            desktop.click(window, *ACCEPT)
            self.assertShows(desktop, "label: Summary")
            self.assertIn("\nTransparency = 80\n", desktop.read_settings())

            watch = Watch(desktop, *WHITE_IN_THE_MIDDLE)
            desktop.press_close(window)
            self.assertEqual(program.wait(10), 0)
            self.assertTrue(wait_for(lambda: watch.seen[-1] == 0))
            self.assertGreater(len(watch.stop()), 2, "it goes step by step")

    def test_the_mouse_opens_pages_and_menus_where_it_is_and_copies(self):
        with Sway() as desktop:
            desktop.write_settings(settings(ChkTrans=0))
            desktop.start_program()
            window = desktop.window()
            for number, title in enumerate(PAGES):
                desktop.click(window, 120, 49 + 35 * number + 17)
                self.assertShows(desktop, f"label: {title}")
            desktop.click(window, 120, 49 + 35 * 7 + 17)
            self.assertShows(desktop, "label: Bios")
            self.assertShows(desktop, "label: Done")
            time.sleep(0.5)
            for point, button, place in ((OPTIONS, 1, OPTIONS_MENU), (PAGE, 3, PAGE)):
                self.assertAt(desktop, window, place, lambda: desktop.click(window, *point, button=button))
                desktop.keys("Escape")
            # A tooltip stands below the mouse.
            left, top, _, _ = desktop.place(window)
            hover = ("xdotool", "mousemove", str(left + VALUE[0]), str(top + VALUE[1]))
            self.assertAt(desktop, window, VALUE, lambda: desktop.call(*hover), 24)
            desktop.click(window, *PAGE, button=3)
            time.sleep(0.5)
            desktop.keys("Up", "Return")
            copied = wait_for(desktop.clipboard)
            self.assertIsNotNone(copied)
            self.assertTrue(copied.startswith("Bios\r\n\r\nName: "), copied)

    def assertAt(self, desktop, window, point, act, tolerance=4):
        """What the act brings up has its top left corner at a point of the window."""
        before = desktop.picture()
        act()
        box = wait_for(lambda: desktop.box(desktop.picture(), before), 5, 0.3)
        self.assertIsNotNone(box, "nothing came up")
        left, top, _, _ = desktop.place(window)
        self.assertAlmostEqual(box[0], left + point[0], delta=tolerance)
        self.assertAlmostEqual(box[1], top + point[1], delta=tolerance)

    def test_the_keyboard_makes_and_saves_a_report(self):
        with Sway() as desktop:
            program = desktop.start_program()
            main = desktop.window()
            desktop.keys("Tab", "Return")
            time.sleep(0.5)
            desktop.keys("Down", "Down", "Return")
            self.assertShows(desktop, "Report made at")
            desktop.keys("Return")
            self.assertTrue(wait_for(lambda: len(desktop.all_windows()) == 3), "no dialog for saving came up")
            time.sleep(0.5)
            desktop.keys("ctrl+a")
            desktop.call("xdotool", "type", str(desktop.home / "report"))
            desktop.keys("Return")
            self.assertTrue(wait_for((desktop.home / "report.rtf").exists), "nothing was saved")
            desktop.keys("Escape")
            self.assertTrue(wait_for(lambda: desktop.windows() == [main]), "Escape closes a finished report")
            self.assertIsNone(program.poll())


@unittest.skipUnless(shutil.which("weston"), "there is no weston")
class WestonTest(WindowTest):
    def test_the_toolkits_frame_is_opaque_and_filling_the_screen_is_refused(self):
        with Weston() as desktop:
            desktop.write_settings(settings(Transparency=50))
            program = desktop.start_program()
            self.assertShows(desktop, "label: Done")
            for fill in (lambda left, top: desktop.press_at(left + 742, top + 14),
                         lambda left, top: desktop.press_at(left + 391, top + 14, times=2),
                         lambda left, top: desktop.keys("super+shift+m"),
                         lambda left, top: desktop.keys("super+shift+f"), None):
                left, top = self.framed_window(desktop)
                self.assertTrue(near(desktop.pixel_at(left + 80, top + 8), (239, 239, 239)))
                self.assertTrue(near(desktop.pixel_at(left + 3 + PAGE[0], top + 30 + PAGE[1]), (255, 128, 128)))
                if fill:
                    fill(left, top)
                    # It comes up anew.
                    time.sleep(0.7)
                self.assertIsNone(program.poll())

    def framed_window(self, desktop):
        """Where the window is with its frame, which has the size it should have."""
        desktop.park_mouse()
        framed = (777 + 3 + 3, 553 + 30 + 3)
        found = wait_for(lambda: (box := desktop.box(desktop.picture())) and box[2:] == framed and box, 10, 0.3)
        self.assertIsNotNone(found, desktop.box(desktop.picture()))
        return found[:2]


if __name__ == "__main__":
    unittest.main()
