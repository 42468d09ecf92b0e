"""The program for Windows as a showcase: under Wine, and of this machine, since recordings are shown on Linux alone."""

import sys

from showcase import FONTS, GROUND, ROOT, SCREEN, Window

sys.path.insert(0, str(ROOT / "tests/windows"))
from wine_desktop import PROGRAM, WineDesktop  # noqa: E402, F401

DPI = 96


class WindowsWindow(Window):
    def _make_desktop(self):
        return WineDesktop(fonts=FONTS, compositor=False, ground=GROUND, size=SCREEN)

    def _start(self, machine, settings):
        dpi = str(self.scale * DPI)
        self.desktop.wine("reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD", "/d", dpi, "/f")
        self.desktop.write_settings(**settings)
        self.desktop.processes.append(self.desktop.start_program())
