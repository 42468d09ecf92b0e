"""A server of 200 disks with a volume each: all of them come, in order, and at once."""

import os
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import machine

DISKS = 200
LABELS = [f"shelf{number}" for number in range(DISKS)]
TARGETS = ["(/)"] + [f"(/shelf/{number:02})" for number in range(1, DISKS)]
# The values that a row joins; every volume holds 400000000 blocks of 4 KiB, of which three quarters are free.
ROWS = {"Name": LABELS, "Drive letter": TARGETS, "Capacity": ["(1525.8 GB)"] * DISKS,
        "Space in use": ["(381.4 GB - 25%)"] * DISKS, "Internal name": ["ST16000NM004J"] * DISKS,
        "File system": ["xfs"] * DISKS, "Serial number": [f"{number:08X}" for number in range(DISKS)]}
# Seconds, on a busy machine and with sanitizers; it takes a tenth of one.
LONGEST = 20


class ManyDisksTest(unittest.TestCase):
    def test_every_disk_is_there_in_order(self):
        # Thousands of files are written sooner in memory.
        with tempfile.TemporaryDirectory(dir="/dev/shm" if os.access("/dev/shm", os.W_OK) else None) as folder:
            root = Path(folder, "root")
            make = machine.MACHINES / "make-big-server"
            subprocess.run([sys.executable, "-B", make, root, str(DISKS)], check=True, timeout=60)
            for command, mark in ((["page", "7"], ""), (["report", "text"], " · ")):
                start = time.monotonic()
                lines = machine.text_of("--sysroot", str(root), *command).splitlines()
                self.assertLess(time.monotonic() - start, LONGEST)
                for title, values in ROWS.items():
                    with self.subTest(command=command, title=title):
                        self.assertIn(f"{mark}{title}: {' - '.join(values)}", lines)


if __name__ == "__main__":
    unittest.main()
