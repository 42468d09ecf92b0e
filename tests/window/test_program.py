"""The whole program in a real window."""

import time
import unittest

from desktop import PROGRAM, Desktop, WindowTest, wait_for

# A point of the white page with no control on it.
PAGE = (600, 500)


def near(colour, expected, tolerance=4):
    return all(abs(a - b) <= tolerance for a, b in zip(colour, expected))


class ProgramTest(WindowTest):
    def test_first_run_fades_in_and_out_and_ends_well_with_and_without_a_compositor(self):
        for compositor in (True, False):
            with self.subTest(compositor=compositor), Desktop(compositor) as desktop:
                program = desktop.start_program()
                window = desktop.window()
                self.assertTrue(wait_for(lambda: near(desktop.pixel(window, *PAGE), (255, 255, 255), 0)), "not opaque")
                for name, default in (("Language", "English"), ("ColorValue", "16750080"), ("ShineValue", "48"),
                                      ("ChkTrans", "1"), ("Transparency", "0")):
                    self.assertRegex(desktop.read_settings(), f"(?m)^{name}\\b.*{default}")
                self.assertEqual(desktop.close_program(program, window), 0)

    def test_a_second_instance_shows_nothing_and_a_killed_one_leaves_no_lock(self):
        with Desktop() as desktop:
            first = desktop.start_program()
            desktop.window()
            desktop.environment.pop("XDG_RUNTIME_DIR")
            self.assertEqual(desktop.start_program().wait(10), 0)
            self.assertEqual(len(desktop.windows()), 1)
            first.kill()
            first.wait()
            third = desktop.start_program()
            self.assertTrue(desktop.window())
            self.assertIsNone(third.poll())

    def test_the_window_with_its_frame_is_in_the_centre_whatever_stands_behind_the_programs_name(self):
        with Desktop() as desktop:
            desktop.start(PROGRAM, "-qwindowtitle", "Other", "-geometry", "300x200+0+0")
            window = desktop.window()
            self.assertIn("777x553", desktop.call("xwininfo", "-id", window, "-stats"))
            left, top, width, height = desktop.place(window)
            told = desktop.call("xprop", "-id", window, "-notype", "_NET_FRAME_EXTENTS").split("=")[1].split(",")
            before, after, above, below = map(int, told)
            self.assertGreater(above, below)
            self.assertAlmostEqual(left - before + (width + before + after) / 2, desktop.size[0] / 2, delta=1)
            self.assertAlmostEqual(top - above + (height + above + below) / 2, desktop.size[1] / 2, delta=1)

    def test_a_small_screen_shows_the_top_left_of_the_window_with_its_frame(self):
        with Desktop(size=(640, 400)) as desktop:
            desktop.start_program()
            window = desktop.window()
            left, top, _, _ = desktop.place(window)
            told = desktop.call("xprop", "-id", window, "-notype", "_NET_FRAME_EXTENTS").split("=")[1].split(",")
            before, _, above, _ = map(int, told)
            self.assertEqual((left - before, top - above), (0, 0))

    def test_mouse_opens_pages_and_copies_them(self):
        with Desktop() as desktop:
            desktop.start_program()
            window = desktop.window()
            desktop.click(window, 120, 49 + 35 * 7 + 5)
            self.assertShows(desktop, "Manufacturer: ")
            self.assertShows(desktop, "label: Done")
            desktop.click(window, *PAGE, button=3)
            time.sleep(0.5)
            desktop.call("xdotool", "key", "Up", "Return")
            copied = wait_for(desktop.clipboard)
            self.assertIsNotNone(copied)
            self.assertTrue(copied.startswith("Bios\r\n\r\nName: "), copied)

    def test_keyboard_opens_pages_and_the_menu(self):
        with Desktop() as desktop:
            program = desktop.start_program()
            window = desktop.window()
            desktop.keys(window, "Tab", "Tab", *["Down"] * 7, "Return")
            self.assertShows(desktop, "label: Bios")
            desktop.keys(window, "Home", "space")
            self.assertShows(desktop, "label: Summary")
            desktop.keys(window, "shift+Tab", "Return")
            time.sleep(0.5)
            desktop.keys(window, "Escape")
            self.assertIsNone(program.poll())
            desktop.keys(window, "Return")
            time.sleep(0.5)
            desktop.call("xdotool", "key", "Up", "Return")
            self.assertEqual(program.wait(10), 0, "the last entry of the menu ends the program")

    def test_rows_are_read_and_copied_and_the_page_is_collected_anew_by_keys(self):
        with Desktop() as desktop:
            heard = desktop.listen()
            program = desktop.start_program()
            window = desktop.window()
            desktop.keys(window, "Tab", "Tab", *["Down"] * 7, "Return")
            self.assertTrue(wait_for(lambda: "Bios. Done\n" in heard.read_text()), heard.read_text())
            desktop.keys(window, "Right", "Down", "ctrl+c")
            self.assertRegex(wait_for(desktop.clipboard), "^Manufacturer: .*")
            desktop.keys(window, "F5")
            self.assertTrue(wait_for(lambda: heard.read_text().count("Bios. Done\n") == 2), heard.read_text())
            desktop.keys(window, "Up", "ctrl+c")
            self.assertTrue(wait_for(lambda: desktop.clipboard().startswith("Name: ")), "the row kept the focus")
            desktop.keys(window, "F10", "Down", "Return")
            self.assertShows(desktop, "label: Customize")
            desktop.keys(window, "ctrl+q")
            self.assertEqual(program.wait(10), 0)


if __name__ == "__main__":
    unittest.main()
