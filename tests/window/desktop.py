"""A desktop of its own for a test: X server, window manager, compositor, session bus and a fresh home."""

import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

PROGRAM = os.environ.get("OSTRELUM_PROGRAM", "build/bin/dervalin-ostrelum")
CAPTION = "Dervalin Ostrelum"
SETTINGS = "dervalin-ostrelum/settings"


def wait_for(condition, seconds=20, step=0.05):
    """The first true value of the condition; None when the time is over."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(step)
    return None


class Desktop:
    """`size` is the screen's, in pixels. The X server keeps the screen's picture in the file `frame_buffer`."""

    def __init__(self, compositor=True, ground="#ff0000", size=(1024, 768)):
        self.processes = []
        self.size = size
        self.home = Path(tempfile.mkdtemp(prefix="ostrelum-home-"))
        (self.home / "run").mkdir(mode=0o700)
        self.frame_buffer = self.home / "Xvfb_screen0"
        self.environment = dict(os.environ, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / "config"),
                                XDG_RUNTIME_DIR=str(self.home / "run"), QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                                LC_ALL="C.UTF-8", TZ="UTC", QT_QPA_PLATFORM="xcb")
        self.environment.pop("WAYLAND_DISPLAY", None)
        self._start_display()
        self.call("hsetroot", "-solid", ground)
        self._start_window_manager()
        if compositor:
            self.start("picom", "--backend", "xrender", "--config", "/dev/null")
        self._start_bus()

    def _start_display(self):
        read_end, write_end = os.pipe()
        screen = "{}x{}x24".format(*self.size)
        # Without -noreset the server begins anew when the first client has gone, and takes the second with it.
        server = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-screen", "0", screen, "-fbdir",
                                   str(self.home), "-nolisten", "tcp", "-noreset"], pass_fds=[write_end],
                                  stderr=subprocess.DEVNULL)
        os.close(write_end)
        self.processes.append(server)
        with os.fdopen(read_end) as numbers:
            self.environment["DISPLAY"] = ":" + numbers.readline().strip()

    def _start_window_manager(self):
        """Comes back when it does what it is asked.

        openbox goes to sleep over what it has received during its own start: a window that wanted to be shown then
        would wait for the next event. Asking again is that event.
        """
        self.start("openbox", "--sm-disable")
        done = wait_for(lambda: self.call("xdotool", "set_num_desktops", "1", "get_num_desktops") == "1")
        assert done, "no window manager"

    def _start_bus(self):
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"], env=self.environment,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.processes.append(bus)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self.call("gdbus", "call", "--session", "-d", "org.a11y.Bus", "-o", "/org/a11y/bus", "-m",
                  "org.a11y.Bus.GetAddress")

    def start(self, *command):
        process = subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        self.processes.append(process)
        return process

    def call(self, *command):
        """The command's standard output; empty when it fails."""
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=30)
        return done.stdout.strip() if done.returncode == 0 else ""

    def start_program(self):
        return self.start(PROGRAM)

    def windows(self):
        return self.call("xdotool", "search", "--onlyvisible", "--name", f"^{CAPTION}$").split()

    def window(self):
        """The program's window, waited for."""
        found = wait_for(self.windows)
        assert found, "no window came up"
        return found[0]

    def click(self, window, x, y, button=1):
        self.call("xdotool", "mousemove", "--window", window, str(x), str(y), "click", str(button))

    def keys(self, window, *keys):
        self.call("xdotool", "windowfocus", "--sync", window)
        for key in keys:
            self.call("xdotool", "key", key)
            time.sleep(0.1)

    def press_close(self, window):
        """Asks the window manager to close the window, as its close button does."""
        self.call("xdotool", "windowactivate", window)
        wait_for(lambda: self.call("xdotool", "getactivewindow") == window)
        self.call("xdotool", "key", "alt+F4")

    def close_program(self, program, window):
        """Closes the program's window, again if the window manager was not listening yet; the exit code."""
        for _ in range(5):
            self.press_close(window)
            if wait_for(lambda: program.poll() is not None, 3):
                break
        return program.poll()

    def clipboard(self):
        """The clipboard's text, line ends as they are."""
        done = subprocess.run(["xclip", "-selection", "clipboard", "-o"], env=self.environment,
                              capture_output=True, timeout=30, check=False)
        return done.stdout.decode("utf-8")

    def place(self, window):
        """Left, top, width and height of the window's client area on the screen."""
        # xdotool's own answer counts the window manager's frame twice.
        told = dict(line.split(":", 1) for line in self.call("xwininfo", "-id", window).splitlines() if ": " in line)
        return tuple(int(told[f"  {name}"]) for name in
                     ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def pixel(self, window, x, y):
        """The colour of a pixel of the window's client area as it is on the screen."""
        left, top, _, _ = self.place(window)
        return self.pixel_at(left + x, top + y)

    def pixel_at(self, x, y):
        crop = f"1x1+{x}+{y}"
        done = subprocess.run(["import", "-window", "root", "-crop", crop, "-depth", "8", "rgb:-"],
                              env=self.environment, capture_output=True, timeout=30, check=True)
        return tuple(done.stdout[:3])

    def write_settings(self, text):
        path = self.home / "config" / SETTINGS
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def read_settings(self):
        return (self.home / "config" / SETTINGS).read_text(encoding="utf-8")

    def labels(self):
        """What a screen reader finds in the window: the names of all that is showing."""
        reader = Path(__file__).with_name("read_screen.py")
        return self.call("/usr/bin/python3", str(reader)).splitlines()

    def listen(self):
        """The file with what a screen reader says by itself from now on, one text a line."""
        path = self.home / "heard"
        with path.open("w", encoding="utf-8") as heard:
            reader = Path(__file__).with_name("hear_announcements.py")
            self.processes.append(subprocess.Popen(["/usr/bin/python3", str(reader)], env=self.environment, stdout=heard))
        assert wait_for(path.read_text), "nobody listens"
        return path

    def close(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.send_signal(signal.SIGTERM)
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
            if process.stdout:
                process.stdout.close()
        shutil.rmtree(self.home, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *unused):
        self.close()


class WindowTest(unittest.TestCase):
    def assertShows(self, desktop, text):
        shown = wait_for(lambda: any(text in line for line in desktop.labels()), 10, 0.3)
        self.assertTrue(shown, f"{text!r} is not among {desktop.labels()}")
