"""The report dialog in a real window: made, saved by the desktop's own file dialog, closed by keyboard and mouse."""

import time
import unittest

from desktop import CAPTION, Desktop, wait_for


class ReportTest(unittest.TestCase):
    def open_report(self, desktop, main):
        """The dialog's window, by the options menu."""
        desktop.click(main, 60, 15)
        time.sleep(0.5)
        desktop.call("xdotool", "key", "Down", "Down", "Return")
        found = wait_for(lambda: [window for window in desktop.windows() if window != main])
        self.assertTrue(found, "no dialog came up")
        return found[0]

    def type_path(self, desktop, path):
        def focused():
            return desktop.call("xdotool", "getwindowfocus", "getwindowname").strip()
        self.assertTrue(wait_for(lambda: focused() not in ("", CAPTION)), "no dialog for saving came up")
        time.sleep(1)
        desktop.call("xdotool", "key", "ctrl+a")
        desktop.call("xdotool", "type", str(path))
        desktop.call("xdotool", "key", "Return")

    def test_keyboard_saves_and_closes(self):
        with Desktop() as desktop:
            program = desktop.start_program()
            main = desktop.window()
            heard = desktop.listen()
            dialog = self.open_report(desktop, main)
            self.assertTrue(wait_for(lambda: "Report made at" in heard.read_text(), 30, 0.3), "nobody says that it is made")
            self.assertIn("dialog: Make and save report as...", desktop.labels())
            file = desktop.home / "report.rtf"
            desktop.keys(dialog, "Return")
            self.type_path(desktop, desktop.home / "report")
            self.assertTrue(wait_for(file.exists), "nothing was saved")
            self.assertTrue(file.read_bytes().startswith(b"{\\rtf1\\ansi"))
            self.assertTrue(file.read_bytes().endswith(b"}\r\n \r\n"))

            desktop.keys(dialog, "Escape")
            self.assertTrue(wait_for(lambda: desktop.windows() == [main]), "Escape closes a finished report")
            self.assertIsNone(program.poll())

    def test_the_frame_closes_it_at_any_time(self):
        with Desktop() as desktop:
            program = desktop.start_program()
            main = desktop.window()
            for seconds in (0, 0.5, 2):
                dialog = self.open_report(desktop, main)
                time.sleep(seconds)
                desktop.press_close(dialog)
                self.assertTrue(wait_for(lambda: desktop.windows() == [main]), f"open after {seconds} s")
            desktop.press_close(main)
            self.assertEqual(program.wait(10), 0)


if __name__ == "__main__":
    unittest.main()
