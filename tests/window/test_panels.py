"""The customise and the about panel in a real window."""

import subprocess
import time
import unittest
from itertools import cycle
from pathlib import Path

from desktop import Desktop, WindowTest, wait_for
from test_program import near

KEY = "HKEY_CURRENT_USER\\Software\\Classes\\VirtualStore\\MACHINE\\SOFTWARE\\Dervalin\\Ostrelum"
PICTURES = Path(__file__).resolve().parents[2] / "art/pictures"
# A point of the skin with no control on it, and the end of the colour slider's track.
SKIN = (400, 526)
COLOUR_TRACK = (208 + 17 + 40, 144 + 170 + 8)
TRANSPARENCY_THUMB = (208 + 276 + 20, 144 + 75 + 8)
LINK = (208 + 215, 139 + 222)


def settings(**values):
    return f"[{KEY}]\n" + "".join(f"{name} = {value}\n" for name, value in values.items())


def open_options(desktop, window, entry):
    """Chooses an entry of the options menu, counted from 1."""
    desktop.click(window, 60, 15)
    time.sleep(0.5)
    desktop.call("xdotool", "key", *["Down"] * entry, "Return")


class PanelTest(WindowTest):
    def test_the_keyboard_customises_and_enter_accepts(self):
        with Desktop() as desktop:
            program = desktop.start_program()
            window = desktop.window()
            self.assertTrue(wait_for(lambda: near(desktop.pixel(window, 400, 300), (255, 255, 255))))
            before = desktop.pixel(window, *SKIN)
            open_options(desktop, window, 1)
            self.assertShows(desktop, "label: Customize")
            desktop.keys(window, "Down", "Tab", *["Page_Down"] * 2)
            self.assertShows(desktop, "label: Personalizar")
            tinted = wait_for(lambda: not near(desktop.pixel(window, *SKIN), before, 8))
            self.assertTrue(tinted, "the skin follows the slider")
            desktop.keys(window, "Tab", "Left", "Tab", "space", "Return")
            self.assertShows(desktop, "label: Resumen")
            # The shine's first step rounds back to the shine there was, so it stays as it is stored.
            for line in ('Language = "Spanish"', "SCV = 192", f"ColorValue = {0x8400FF}", "ChkTrans = 0", "ShineValue = 48"):
                self.assertIn(f"\n{line}\n", desktop.read_settings())
            self.assertEqual(desktop.close_program(program, window), 0)

    def test_dragging_changes_the_opacity_at_once_and_closing_stores_nothing(self):
        with Desktop() as desktop:
            desktop.write_settings(settings(SCV=122))
            program = desktop.start_program()
            window = desktop.window()
            self.assertTrue(wait_for(lambda: near(desktop.pixel(window, 400, 300), (255, 255, 255))))
            stored = desktop.read_settings()
            open_options(desktop, window, 1)
            self.assertShows(desktop, "label: 0 %")
            x, y = TRANSPARENCY_THUMB
            desktop.call("xdotool", "mousemove", "--window", window, str(x), str(y), "mousedown", "1")
            for step in range(1, 60):
                desktop.call("xdotool", "mousemove", "--window", window, str(x + 2 * step), str(y))
            # White at alpha 51 of 255 over red, while the button is still held.
            self.assertTrue(wait_for(lambda: near(desktop.pixel(window, 600, 300), (255, 51, 51))))
            desktop.call("xdotool", "mouseup", "1")
            desktop.click(window, *COLOUR_TRACK)
            self.assertEqual(desktop.close_program(program, window), 0)
            self.assertEqual(desktop.read_settings(), stored)

    def test_both_links_open_in_the_browser(self):
        with Desktop() as desktop:
            opened = desktop.home / "opened"
            browser = desktop.home / "xdg-open"
            browser.write_text(f'#!/bin/sh\necho "$1" >> {opened}\n', encoding="utf-8")
            browser.chmod(0o755)
            desktop.environment["PATH"] = f"{desktop.home}:{desktop.environment['PATH']}"
            desktop.start_program()
            window = desktop.window()
            open_options(desktop, window, 4)
            self.assertTrue(wait_for(opened.exists))
            open_options(desktop, window, 3)
            self.assertShows(desktop, "label: About...")
            desktop.click(window, *LINK)
            addresses = wait_for(lambda: len(opened.read_text().split()) == 2 and opened.read_text().split())
            self.assertEqual(addresses, ["https://dervalin.example.org/ostrelum", "https://terhaar.example.org"])
            desktop.keys(window, "Tab", "Tab", "Return")
            self.assertShows(desktop, "label: Summary")

    def test_a_screen_of_double_scale_gets_pictures_of_double_size(self):
        with Desktop(size=(1700, 1250)) as desktop:
            desktop.write_settings(settings(ChkTrans=0))
            desktop.environment["QT_SCALE_FACTOR"] = "2"
            desktop.start_program()
            window = desktop.window()
            summary = self.pixels("convert", f"{PICTURES}/Sec1@2x.png")
            # The default colour adds 0, 150 and 255 to each level, and the shine of 24 less 244.
            band = bytes(max(0, min(255, level + shift)) for level, shift in
                         zip(self.pixels("convert", f"{PICTURES}/S2@2x.png"), cycle((-220, -70, 35))))
            for crop, picture in (("96x96+1352+104", summary), ("1152x62+340+0", band)):
                def shows(crop=crop, picture=picture):
                    return self.pixels("import", "-window", window, "-crop", crop, desktop=desktop) == picture
                self.assertTrue(wait_for(shows), crop)

    @staticmethod
    def pixels(program, *source, desktop=None):
        """Red, green and blue of each pixel of a picture that ImageMagick reads."""
        return subprocess.run([program, *source, "-depth", "8", "rgb:-"], capture_output=True, timeout=30, check=True,
                              env=desktop.environment if desktop else None).stdout


if __name__ == "__main__":
    unittest.main()
