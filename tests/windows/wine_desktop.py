"""A desktop on which the program for Windows runs under Wine, in a prefix of its own, and a second program that reads what
its windows say."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path += [str(ROOT / "tests/window"), str(ROOT / "tools")]
from desktop import Desktop, wait_for  # noqa: E402
from showcase_screen import Screen  # noqa: E402

BUILD = ROOT / "build-windows"
PROGRAM = os.environ.get("OSTRELUM_PROGRAM", str(BUILD / "bin/dervalin-ostrelum.exe"))
CONSOLE = os.environ.get("OSTRELUM_CONSOLE", str(BUILD / "bin/ostrelum-console.exe"))
READER = os.environ.get("OSTRELUM_READER", str(BUILD / "bin/read-window.exe"))
MADE_PREFIX = Path(os.environ.get("OSTRELUM_WINEPREFIX", BUILD / "wine"))
WINE, SERVER = "/usr/lib/wine/wine64", "/usr/lib/wine/wineserver64"
KEY = r"HKEY_CURRENT_USER\Software\Classes\VirtualStore\MACHINE\SOFTWARE\Dervalin\Ostrelum"

# Controls by their numbers: the place in the form's design, counted from 1.
TITLE, TITLES, VALUES, NO_DRIVE, STATUS, OPTIONS, SECTIONS, OPEN_SECTION = 1, 4, 16, 30, 34, 45, 46, 60
COLOUR, TRANSPARENCY, PERCENT, LINK, ACCEPT = 71, 77, 78, 90, 91
MADE, SAVE, CLOSE = 4, 7, 8
ROWS = 12
# The options menu's entries by how far down they are.
CUSTOMISE, REPORT, ABOUT = 1, 2, 3


class Window:
    """What a window said: its kind, the place of its client area on the screen, its opacity, its title, its controls by their
    numbers, and the texts that it shows."""

    def __init__(self, kind, opacity, enabled, left, top, width, height, title):
        self.kind, self.opacity, self.enabled, self.title = kind, int(opacity), enabled == "1", title
        self.left, self.top, self.width, self.height = map(int, (left, top, width, height))
        self.controls = {}
        self.texts = []

    def add(self, number, shows, enabled, left, top, width, height, text):
        place = tuple(map(int, (left, top, width, height)))
        self.controls[int(number)] = (shows == "1", enabled == "1", place, text)
        self.texts += [text] if shows == "1" and text else []

    def shows(self, number):
        return number in self.controls and self.controls[number][0]

    def takes_input(self, number):
        return number in self.controls and self.controls[number][1]

    def place(self, number):
        return self.controls[number][2]

    def text(self, number):
        """What the control shows; empty where it is not to be seen."""
        return self.controls[number][3] if self.shows(number) else ""

    def page(self):
        """Title and rows as they stand on the page."""
        return [self.text(TITLE)] + [self.text(TITLES + row) + self.text(VALUES + row) for row in range(ROWS)]


class WineDesktop(Desktop):
    """Places of the mouse are the screen's: Wine draws some frames itself, as part of the window. `fonts` is the text of a
    file for fontconfig."""

    def __init__(self, fonts=None, **options):
        super().__init__(**options)
        self.screen = Screen(self.frame_buffer)
        if fonts:
            # Wine looks for fonts when its server starts.
            self.environment["FONTCONFIG_FILE"] = str(self.home / "fonts.conf")
            (self.home / "fonts.conf").write_text(fonts, encoding="utf-8")
        try:
            self._copy_prefix()
        except BaseException:
            self.close()
            raise

    def _start_bus(self):
        """No program of Windows asks for one."""

    def _copy_prefix(self):
        subprocess.run([ROOT / "tools/under-wine", "cmd", "/c", "exit"], check=True, timeout=300)
        # Beside the first one: the system's files are links to the same.
        self.prefix = Path(tempfile.mkdtemp(prefix="wine-", dir=MADE_PREFIX.parent))
        subprocess.run(["cp", "-al", f"{MADE_PREFIX}/.", self.prefix], check=True)
        for registry in self.prefix.glob("*.reg"):
            registry.unlink()
            shutil.copy2(MADE_PREFIX / registry.name, registry)
        for folder in filter(Path.is_symlink, self.prefix.glob("drive_c/users/*/Desktop")):
            folder.unlink()
            folder.symlink_to(self.home)
        self.environment.update(WINEPREFIX=str(self.prefix), WINEDEBUG="-all",
                                WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d")
        # Wine's server, services and desktop outlive the first program that needs them, whose output they keep open.
        for command in ([SERVER, "-p"], [WINE, READER]):
            subprocess.run(command, env=self.environment, check=True, stdin=subprocess.DEVNULL,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.reader = subprocess.Popen([WINE, READER], env=self.environment, stdin=subprocess.PIPE,
                                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.processes.append(self.reader)

    def wine(self, *command):
        """A program's standard output, whatever it ends with."""
        return subprocess.run([WINE, *command], env=self.environment, capture_output=True, timeout=120).stdout

    def start_program(self, **variables):
        return subprocess.Popen([WINE, PROGRAM], env=self.environment | variables, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def memory(self, program):
        """What the program holds of the machine's memory, in KB."""
        status = Path(f"/proc/{program.pid}/status").read_text(encoding="utf-8")
        return int(re.search(r"VmRSS:\s+(\d+)", status)[1])

    def end(self, program):
        """Ends the program if it is still there."""
        program.kill()
        program.wait()
        assert wait_for(lambda: not self.told()), "the windows of a killed program stay"

    def told(self):
        """The windows of the program, the one in front first."""
        self.reader.stdin.write(b"\n")
        self.reader.stdin.flush()
        answer = b""
        while not answer.endswith(b"\x1d"):
            more = self.reader.stdout.read1()
            assert more, "the reader has ended"
            answer += more
        windows = []
        for record in answer.decode().replace("\r\n", "\n").split("\x1e")[:-1]:
            fields = record.split("\x1f")[:-1]
            if fields[0].isalpha():
                windows.append(Window(*fields))
            else:
                windows[-1].add(*fields)
        for window in windows:
            if window.kind == "form" and ACCEPT not in window.controls:
                window.kind = "report"
        return windows

    def wait(self, kind="form", condition=lambda window: True, seconds=30):
        """The window in front, once it is of that kind and the condition holds for it."""
        def fitting():
            windows = self.told()
            return windows and windows[0].kind == kind and condition(windows[0]) and windows[0]
        found = wait_for(fitting, seconds, 0.01)
        assert found, f"in front is {[(each.kind, each.title, each.texts) for each in self.told()]}"
        return found

    def press_at(self, x, y, button=1):
        self.call("xdotool", "mousemove", str(x), str(y), "click", str(button))

    def press(self, window, number, button=1):
        left, top, width, height = window.place(number)
        self.press_at(left + width // 2, top + height // 2, button)

    def choose(self, window, entry):
        """Chooses an entry of the options menu, by how far down it is."""
        self.press(window, OPTIONS)
        self.wait("menu")
        self.type(*["Down"] * entry, "Return")

    def type(self, *keys):
        self.call("xdotool", "key", *keys)

    def copy(self, text):
        """Puts a text on the clipboard, as another program."""
        subprocess.run(["xclip", "-selection", "clipboard", "-i"], env=self.environment, input=text.encode(), check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def colour(self, x, y):
        """Red, green and blue of a pixel of the screen."""
        blue, green, red, _ = self.screen.rows(x, y, 1, 1)[0]
        return red, green, blue

    def settings(self):
        """The value of each setting, a number in hexadecimal."""
        told = self.wine("reg", "query", KEY).decode("utf-8", "replace")
        return dict(re.findall(r"^ +(\w+) +REG_\w+ +(.*?)\r?$", told, re.M))

    def write_settings(self, **values):
        """A number as it is, a text in quotes; nothing else stands there then."""
        file = self.home / "settings.reg"
        lines = [f'"{name}"=' + (f"dword:{value:08x}" if isinstance(value, int) else f'"{value}"')
                 for name, value in values.items()]
        file.write_text("\r\n".join(["REGEDIT4", "", f"[-{KEY}]", "", f"[{KEY}]", *lines, ""]))
        self.wine("reg", "import", f"Z:{file}")

    def close(self):
        subprocess.run([SERVER, "-k"], env=self.environment, check=False)
        if hasattr(self, "reader"):
            self.reader.stdin.close()
        super().close()
        shutil.rmtree(getattr(self, "prefix", ""), ignore_errors=True)
