"""Wayland desktops of their own for a test, each in a window that fills a virtual X screen: mouse, keys and pictures are
that server's."""

import json
import os
import re
import shutil
import subprocess
import time

from desktop import CAPTION, Desktop, wait_for

NOBODY = 65534
SWAY = """output X11-1 resolution {0}x{1} position 0 0
output X11-1 scale {2}
output X11-1 background {3} solid_color
for_window [app_id=".*"] floating enable
focus_follows_mouse no
xwayland disable
"""
WESTON = """[core]
idle-time=0
[shell]
background-color=0xff{}
panel-position=none
animation=none
startup-animation=none
close-animation=none
"""


class WaylandDesktop(Desktop):
    """What all of them share. `scale` is the screen's."""

    def __init__(self, size=(1024, 768), ground="#ff0000", scale=1):
        self.scale, self.ground = scale, ground
        try:
            # The X screen under it has a colour of its own, so that it is seen when the desktop is there.
            super().__init__(compositor=False, ground="#000000", size=size)
            self.environment["QT_QPA_PLATFORM"] = "wayland"
            self._prepare_screen()
        except BaseException:
            self.close()
            raise

    def _prepare_screen(self):
        wanted = tuple(bytes.fromhex(self.ground[1:]))
        assert wait_for(lambda: self.pixel_at(self.size[0] // 2, 1) == wanted), "the desktop has no ground"
        self.park_mouse()

    def park_mouse(self):
        """Puts the mouse where every window is, so that it stands out of no ground. It has to move for that."""
        middle = [str(pixels // 2) for pixels in self.size]
        self.call("xdotool", "mousemove", "9", "9", "mousemove", *middle)

    def _socket(self, pattern):
        run = self.home / "run"
        found = wait_for(lambda: [path for path in run.glob(pattern) if path.is_socket()])
        assert found, "the desktop did not start"
        return found[0]

    def press_at(self, x, y, button=1, times=1):
        """Clicks at a pixel of the screen."""
        self.call("xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(times), "--delay", "60", str(button))

    def keys(self, *keys):
        self.call("xdotool", "key", "--delay", "60", *keys)

    def clipboard(self):
        done = subprocess.run(["wl-paste", "--no-newline"], env=self.environment, capture_output=True, timeout=30,
                              check=False)
        return done.stdout.decode("utf-8")

    def picture(self):
        """The screen, in a file of its own."""
        file = self.home / f"{time.monotonic_ns()}.png"
        self.call("import", "-window", "root", str(file))
        return file

    def box(self, picture, ground=None):
        """Left, top, width and height of what stands out of the screen's ground, or of another picture; None for
        nothing."""
        other = ["-compose", "difference", str(ground), "-composite"] if ground else []
        told = self.call("convert", str(picture), *other, "-fuzz", "2%", "-format", "%@", "info:")
        width, height, left, top = map(int, re.findall(r"\d+", told))
        return (left, top, width, height) if left < self.size[0] and (width, height) != self.size else None


class Sway(WaylandDesktop):
    """It draws the frames itself, and tells where its windows are."""

    def _start_window_manager(self):
        configuration = self.home / "sway"
        configuration.write_text(SWAY.format(*self.size, self.scale, self.ground), encoding="utf-8")
        self.environment.update(WLR_BACKENDS="x11", WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1")
        self.start(*self._as_anybody(), "sway", "-c", str(configuration))
        self.environment["WAYLAND_DISPLAY"] = self._socket("wayland-*").name
        self.environment["SWAYSOCK"] = str(self._socket("sway-ipc.*"))

    def _as_anybody(self):
        """It refuses to run as root, who may use what others have made."""
        if os.geteuid() != 0:
            return []
        self.home.chmod(0o711)
        shutil.chown(self.home / "run", NOBODY, NOBODY)
        return ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]

    def _nodes(self):
        nodes = [json.loads(self.call("swaymsg", "-t", "get_tree") or '{"nodes": [], "floating_nodes": []}')]
        for node in nodes:
            nodes += node["nodes"] + node["floating_nodes"]
        return nodes

    def all_windows(self):
        return [node for node in self._nodes() if node.get("pid")]

    def windows(self):
        return [node["id"] for node in self.all_windows() if node["name"] == CAPTION]

    def place(self, window):
        """In pixels of the screen."""
        node = next(node for node in self.all_windows() if node["id"] == window)
        client = node["window_rect"]
        inside = (node["rect"]["x"] + client["x"], node["rect"]["y"] + client["y"], client["width"], client["height"])
        return tuple(round(self.scale * number) for number in inside)

    def click(self, window, x, y, button=1):
        left, top, _, _ = self.place(window)
        self.press_at(left + round(self.scale * x), top + round(self.scale * y), button)

    def press_close(self, window):
        self.call("swaymsg", f"[con_id={window}]", "kill")


class Weston(WaylandDesktop):
    """It leaves the frames to the toolkit, and puts windows anywhere."""

    def _start_window_manager(self):
        configuration = self.home / "weston.ini"
        configuration.write_text(WESTON.format(self.ground[1:]), encoding="utf-8")
        self.start("weston", "--backend=x11-backend.so", "--use-pixman", f"--width={self.size[0]}",
                   f"--height={self.size[1]}", f"--scale={self.scale}", "-c", str(configuration))
        self.environment["WAYLAND_DISPLAY"] = self._socket("wayland-*").name


class Mutter(WaylandDesktop):
    """GNOME's desktop without its shell; it leaves the frames to the toolkit."""

    def _start_window_manager(self):
        self._start_bus()
        self.environment["MUTTER_DEBUG_DUMMY_MODE_SPECS"] = "{}x{}".format(*self.size)
        self.start("mutter", "--wayland", "--nested", "--no-x11", "--wayland-display=wayland-0")
        self.environment["WAYLAND_DISPLAY"] = self._socket("wayland-*").name

    def _prepare_screen(self):
        """Its ground is a picture that no setting here changes."""
