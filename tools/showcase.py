"""Takes the real window on a recorded machine through its states, by mouse and keys, and takes a picture of each."""

import os
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "window"))
from desktop import Desktop, wait_for  # noqa: E402
from showcase_screen import Screen, part_of  # noqa: E402

PROGRAM = os.environ.get("OSTRELUM_SHOWCASE", str(ROOT / "build/bin/ostrelum-showcase"))
# The account whose page each machine is made for.
USERS = {"notebook": "alma", "removable": "eva"}
GROUND = "#c8ccd2"
# Room for the window at twice its size with the frame that the window manager gives it.
SCREEN = (1640, 1200)
# Nothing but the family that the program's packages bring, so that pictures are the same everywhere.
FONTS = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/liberation</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <include ignore_missing="yes">/etc/fonts/conf.d</include>
</fontconfig>
"""

# Places in the window's own pixels.
OPTIONS = (60, 15)
ACCEPT = (670, 479)
ROW = (300, 172)
STATUS = (208, 486, 200, 18)
# The options menu's entries by how far down they are.
CUSTOMISE, REPORT, ABOUT = 1, 2, 3


class Window:
    """The showcase of a machine on a desktop of its own, from its first page on."""

    def __init__(self, machine, settings, scale):
        self.scale = scale
        self.desktop = self._make_desktop()
        try:
            self._open(machine, settings)
        except BaseException:
            self.close()
            raise

    def _make_desktop(self):
        return Desktop(compositor=False, ground=GROUND, size=SCREEN)

    def _start(self, machine, settings):
        desktop = self.desktop
        fonts = desktop.home / "fonts.conf"
        fonts.write_text(FONTS, encoding="utf-8")
        desktop.environment.update(QT_SCALE_FACTOR=str(self.scale), FONTCONFIG_FILE=str(fonts))
        desktop.write_settings("".join(f"{name} = {value}\n" for name, value in settings.items()))
        desktop.start(PROGRAM, "--sysroot", str(ROOT / "tests" / "machines" / machine), "--user", USERS[machine])

    def _open(self, machine, settings):
        desktop = self.desktop
        desktop.call("xdotool", "mousemove", "0", "0")
        self.screen = Screen(desktop.frame_buffer)
        self._start(machine, settings)
        self.window = desktop.window()
        self.place = self._framed_place()
        self.page = self.screen.settled(self.place, still=0.6)
        self.done = self._status(self.page)

    def _framed_place(self):
        """Where the client area is once the window manager has put its frame round it."""
        desktop = self.desktop
        if not wait_for(lambda: desktop.call("xdotool", "getactivewindow") == self.window):
            raise TimeoutError("the window manager did not take the window")
        return desktop.place(self.window)

    def _status(self, rows):
        return part_of(rows, *(self.scale * number for number in STATUS))

    def press(self, point, button=1):
        """Clicks and puts the pointer out of the picture."""
        x, y = (str(self.scale * number) for number in point)
        self.desktop.call("xdotool", "mousemove", "--window", self.window, x, y, "click", str(button),
                          "mousemove", "0", "0")

    def keys(self, *names):
        self.desktop.call("xdotool", "key", *names)

    def open_page(self, number):
        """The page, read to its end and its picture faded in."""
        self.press((120, 49 + 35 * (number - 1) + 17))
        return self._finished_page(self.page)

    def _finished_page(self, before):
        self.page = self.screen.settled(self.place, before)
        if self._status(self.page) != self.done:
            raise TimeoutError("the page does not say that it is done")
        return self.page

    def escape(self):
        """Leaves a menu or the report, back to the page."""
        self.keys("Escape")
        self.screen.wait_for(self.place, self.page)

    def row_menu(self):
        self.press(ROW, button=3)
        return self.screen.settled(self.place, self.page)

    def options_menu(self):
        self.press(OPTIONS)
        return self.screen.settled(self.place, self.page)

    def choose(self, entry, still=0.3):
        """What the options menu's entry brings up, over the window."""
        menu = self.options_menu()
        self.keys(*["Down"] * entry)
        menu = self.screen.settled(self.place, menu)
        self.keys("Return")
        shown = self.screen.settled(self.place, menu, still)
        if shown == self.page:
            shown = self.screen.settled(self.place, self.page, still, seconds=5)
        return shown

    def report(self):
        """The dialog with a finished report: it steps, then its picture fades."""
        shown = self.choose(REPORT, still=0.8)
        if len(self.desktop.windows()) != 2:
            raise TimeoutError("no dialog came up")
        return shown

    def accept(self):
        """Leaves a panel, back to the page collected anew."""
        panel = self.screen.rows(*self.place)
        self.press(ACCEPT)
        self._finished_page(panel)

    def close(self):
        self.desktop.close()


def states_of_a_machine(window):
    """Name and rows of every state."""
    yield "page 1", window.page
    for number in range(2, 14):
        yield f"page {number}", window.open_page(number)
    window.open_page(5)
    yield "row menu", window.row_menu()
    window.escape()
    yield "options menu", window.options_menu()
    window.escape()
    yield "report", window.report()
    window.escape()
    yield "customise", window.choose(CUSTOMISE)
    window.accept()
    yield "about", window.choose(ABOUT)
    window.accept()


def states_with_media(window):
    """The pages that have another face when a medium is in."""
    yield "page 11 with media", window.open_page(11)
    yield "page 12 with media", window.open_page(12)


def pictures(machine, states, settings, scale, make_window=Window):
    """Takes a showcase through some states; name and rows of each. Raises TimeoutError, with the state's
    predecessor, when one does not come."""
    last = "start"
    window = make_window(machine, settings, scale)
    try:
        for name, rows in states(window):
            last = name
            yield name, rows
    except TimeoutError as error:
        raise TimeoutError(f"after {last}: {error}") from error
    finally:
        window.close()
