"""The whole program in a real window."""

import subprocess
import time
import unittest

from desktop import Desktop, WindowTest, wait_for

KEY = "HKEY_CURRENT_USER\\Software\\Classes\\VirtualStore\\MACHINE\\SOFTWARE\\Dervalin\\Ostrelum"
# A point of the white page with no control on it.
PAGE = (600, 500)


def settings(**values):
    return f"[{KEY}]\n" + "".join(f"{name} = {value}\n" for name, value in values.items())


def near(colour, expected, tolerance=4):
    return all(abs(a - b) <= tolerance for a, b in zip(colour, expected))


class ProgramTest(WindowTest):
    def test_first_run_fades_in_and_out_and_ends_well(self):
        with Desktop() as desktop:
            program = desktop.start_program()
            window = desktop.window()
            self.assertTrue(wait_for(lambda: near(desktop.pixel(window, *PAGE), (255, 255, 255), 0)), "not opaque")
            for name, default in (("Language", "English"), ("ColorValue", "16750080"), ("ShineValue", "48"),
                                  ("ChkTrans", "1"), ("Transparency", "0")):
                self.assertRegex(desktop.read_settings(), f"(?m)^{name}\\b.*{default}")
            self.assertEqual(desktop.close_program(program, window), 0)

    def test_window_is_as_transparent_as_the_settings_say(self):
        with Desktop(ground="#ff0000") as desktop:
            desktop.write_settings(settings(Transparency=60))
            desktop.start_program()
            window = desktop.window()
            # White at alpha 102 of 255 over red.
            self.assertTrue(wait_for(lambda: near(desktop.pixel(window, *PAGE), (255, 102, 102))),
                            desktop.pixel(window, *PAGE))

    def test_without_a_compositor_nothing_breaks(self):
        with Desktop(compositor=False) as desktop:
            program = desktop.start_program()
            window = desktop.window()
            self.assertTrue(wait_for(lambda: near(desktop.pixel(window, *PAGE), (255, 255, 255), 0)))
            self.assertEqual(desktop.close_program(program, window), 0)

    def test_a_second_instance_shows_nothing_and_a_killed_one_leaves_no_lock(self):
        with Desktop() as desktop:
            first = desktop.start_program()
            desktop.window()
            self.assertEqual(desktop.start_program().wait(10), 0)
            self.assertEqual(len(desktop.windows()), 1)
            first.kill()
            first.wait()
            third = desktop.start_program()
            self.assertTrue(desktop.window())
            self.assertIsNone(third.poll())

    def test_bad_settings_are_replaced_and_foreign_lines_kept(self):
        with Desktop() as desktop:
            desktop.write_settings("garbage \x01 line\n" + settings(Transparency=81, ShineValue='"bright"',
                                                                    Language='" Dutch "')[:-1])
            desktop.start_program()
            desktop.window()
            self.assertShows(desktop, "Gebruikersaccount")
            text = desktop.read_settings()
            self.assertIn("garbage \x01 line\n", text)
            self.assertRegex(text, r"(?m)^Transparency\b.*\b0$")
            self.assertRegex(text, r"(?m)^ShineValue\b.*\b48$")

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

    def test_closing_during_the_fade_starts_it_over_and_still_ends(self):
        with Desktop() as desktop:
            program = desktop.start_program()
            window = desktop.window()
            desktop.press_close(window, times=3)
            self.assertEqual(desktop.close_program(program, window), 0)


if __name__ == "__main__":
    unittest.main()
