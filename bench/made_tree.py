"""The folder of a recorded machine that is made by a script."""

import os
import pathlib


class Tree:
    def __init__(self, root):
        self.root = pathlib.Path(root)
        self.made = set()
        self.write("proc/sys/kernel/osrelease", "6.1.0")
        self.write("proc/sys/kernel/arch", "x86_64")

    def place(self, path):
        place = self.root / path
        if place.parent not in self.made:
            place.parent.mkdir(parents=True, exist_ok=True)
            self.made.add(place.parent)
        return place

    def write(self, path, content):
        self.place(path).write_bytes(content if isinstance(content, bytes) else f"{content}\n".encode())

    def write_all(self, folder, **files):
        for name, content in files.items():
            self.write(f"{folder}/{name}", content)

    def lines(self, path, lines):
        self.write(path, "\n".join(lines))

    def link(self, path, target):
        """A relative link, as the kernel makes them."""
        self.place(path).symlink_to(os.path.relpath(target, os.path.dirname(path)))

    def block(self, name, number, slaves=(), of="virtual/block", **files):
        folder = f"sys/devices/{of}/{name}"
        self.write_all(folder, dev=f"8:{number}", size=1 << 21, **files)
        self.link(f"sys/block/{name}", folder)
        self.link(f"sys/class/block/{name}", folder)
        for slave in slaves:
            self.link(f"{folder}/slaves/{slave}", f"sys/devices/{of}/{slave}")
        return folder

    def mounts(self, rows, spaces=True):
        """Rows of number, number of the mount below, number of the device, type and source."""
        lines = [f"{n} {below} {device} / /m/{n} rw - {kind} {source} rw" for n, below, device, kind, source in rows]
        self.lines("proc/self/mountinfo", ["1 0 8:99999 / / rw - ext4 /dev/none rw", *lines])
        if spaces:
            self.lines(".facts/statvfs", [f"/m/{row[0]} 4096 1000 500 500" for row in rows])
