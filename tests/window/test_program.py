"""The whole program in a real window."""

import os
import shutil
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
            before, after, above, below = self.frame(desktop, window)
            self.assertGreater(above, below)
            self.assertAlmostEqual(left - before + (width + before + after) / 2, desktop.size[0] / 2, delta=1)
            self.assertAlmostEqual(top - above + (height + above + below) / 2, desktop.size[1] / 2, delta=1)

    def test_a_window_larger_than_the_screen_becomes_smaller(self):
        double = {"QT_SCALE_FACTOR": "2"}
        # The last is too small for letters that can be read: the frame's buttons and the options are seen.
        for size, environment, scale in (((1024, 600), {}, 1), ((1024, 600), double, 1), ((800, 480), {}, 0.82),
                                         ((480, 800), {}, 0.615), ((400, 300), {}, 0.6)):
            with self.subTest(size=size, environment=environment), Desktop(size=size) as desktop:
                desktop.environment.update(environment)
                desktop.start_program()
                window = desktop.window()
                left, top, width, height = desktop.place(window)
                self.assertAlmostEqual(width / 777, scale, delta=0.01)
                self.assertAlmostEqual(height / 553, scale, delta=0.01)
                before, after, above, below = self.frame(desktop, window)
                self.assertGreaterEqual(min(left - before, top - above), 0)
                if size != (400, 300):
                    self.assertLessEqual(left + width + after, size[0])
                    self.assertLessEqual(top + height + below, size[1])
                desktop.click(window, int(120 * scale), int((49 + 35 * 7 + 17) * scale))
                self.assertShows(desktop, "label: Bios")

    @staticmethod
    def frame(desktop, window):
        """Width of the window manager's frame on the left, on the right, above and below."""
        told = desktop.call("xprop", "-id", window, "-notype", "_NET_FRAME_EXTENTS").split("=")[1].split(",")
        return tuple(map(int, told))

    def test_it_comes_up_in_a_bare_session(self):
        with Desktop() as desktop:
            everything = dict(desktop.environment)
            # Another user may not read what of the libraries counts for no leak.
            display = {"DISPLAY": everything["DISPLAY"], "ASAN_OPTIONS": "detect_leaks=0"}
            # Where it was built, others may not look.
            copy = shutil.copy(PROGRAM, desktop.home)
            desktop.home.chmod(0o711)
            nobody = ("setpriv", "--reuid=65534", "--regid=65534", "--clear-groups") if os.geteuid() == 0 else ()
            sessions = {"no session bus": ((), {**everything, "DBUS_SESSION_BUS_ADDRESS": ""}),
                        "a home that is not there": ((), {**everything, "HOME": "/nowhere", "XDG_CONFIG_HOME": ""}),
                        "a home that is read alone": (nobody, {**display, "HOME": "/usr"}),
                        "nothing but a display": (nobody, display)}
            for name, (before, environment) in sessions.items():
                with self.subTest(session=name):
                    desktop.environment = environment
                    program = desktop.start(*map(shutil.which, before[:1]), *before[1:], copy)
                    desktop.environment = everything
                    self.assertTrue(wait_for(lambda: desktop.windows() or program.poll() is not None))
                    self.assertTrue(wait_for(lambda: near(desktop.pixel(desktop.window(), *PAGE), (255, 255, 255), 0)))
                    self.assertEqual(desktop.close_program(program, desktop.window()), 0)

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
