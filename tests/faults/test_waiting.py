"""No page waits: file systems that never answer, disks that sleep."""

import json
import os
import re
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import dead_mounts
import machine

# Six dead disks take little longer than the two seconds that one may take.
LONGEST = 8
TRACE = ["strace", "-f", "-qq", "-s", "4096", "-e", "trace=%file,ioctl", "-o"]


def can(*command):
    try:
        return subprocess.run(command, capture_output=True, timeout=30, check=False).returncode == 0
    except (OSError, subprocess.TimeoutExpired):
        return False


NAMESPACE = ["unshare", "--mount"] if os.geteuid() == 0 else ["unshare", "--user", "--map-root-user", "--mount"]
MOUNTS = os.access("/dev/fuse", os.W_OK) and can(*NAMESPACE, "true")
TRACES = can("strace", "-o", "/dev/null", "true")


@unittest.skipUnless(MOUNTS, "no mounts of one's own are allowed here, or there is no /dev/fuse")
class DeadMountsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.dead = [*NAMESPACE, sys.executable, "-B", dead_mounts.__file__, folder.name]
        # A mount that answered would make the rest prove nothing.
        asked = ["sh", "-c", f"cat /proc/self/mountinfo; ! timeout -s KILL 0.3 stat -f {self.folder}/far >/dev/null"]
        done = subprocess.run(self.dead + asked, capture_output=True, text=True, timeout=60, check=True)
        self.disks = dead_mounts.DISKS if " - fuseblk " in done.stdout else []

    def test_pages_and_report_come_and_nothing_far_is_touched(self):
        trace = self.folder / "trace"
        for command in (["page", "all"], ["report", "text"]):
            with self.subTest(command=command):
                start = time.monotonic()
                text = machine.text_of(*command, before=[*self.dead, *([*TRACE, str(trace)] if TRACES else [])])
                self.assertLess(time.monotonic() - start, LONGEST)
                self.assertIn("(/)", text)
                if TRACES:
                    touched = re.findall(rf'"{self.folder}/(\w+)', trace.read_text(errors="replace"))
                    self.assertEqual(set(touched), set(self.disks))

    def test_dead_volumes_are_listed_without_their_size(self):
        rows = json.loads(machine.text_of("query", "Select Name, Size from Win32_LogicalDisk", before=self.dead))
        sizes = {row["Name"]: row["Size"] for row in rows if row["Name"].startswith(str(self.folder))}
        self.assertEqual(sizes, {f"{self.folder}/{name}": None for name in [*self.disks, "far"]})
        self.assertTrue(next(row["Size"] for row in rows if row["Name"] == "/"))


@unittest.skipUnless(TRACES, "tracing is not permitted here")
class SleepingDiskTest(unittest.TestCase):
    # A sensor asks its disk, which wakes it; the rest the kernel keeps in memory.
    WAKING = re.compile(r"/(hwmon\d*|smart|temp\d+_input)(/|$)")

    def test_no_disk_is_opened_or_asked(self):
        """Only a place is taken of a device's node (O_PATH), which asks nothing of the device."""
        with tempfile.TemporaryDirectory() as folder:
            for command in (["page", "all"], ["report", "text"]):
                trace = Path(folder, "trace")
                machine.text_of(*command, before=[*TRACE, str(trace)])
                calls = trace.read_text(errors="replace")
                self.assertIn("openat2(", calls)
                opened = re.findall(r'open\w*\([^"]*"([^"]*)", (?!.*O_PATH)', calls)
                disks = [path for path in opened if Path(path).is_block_device() or self.WAKING.search(path)]
                self.assertEqual(disks, [])
                self.assertNotRegex(calls, r"ioctl\(\d+, (BLK|HDIO|SG_|CDROM|NVME)")


if __name__ == "__main__":
    unittest.main()
