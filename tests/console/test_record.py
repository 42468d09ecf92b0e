"""Recordings: a recorded machine shows what the machine itself shows, byte for byte, and holds nothing but that."""

import os
import pathlib
import shutil
import stat
import subprocess
import tempfile
import unittest

from test_machines import CONSOLE, ENVIRONMENT, MACHINES, USERS, console

# Rows of this machine that change from one second to the next.
LIVE_ROWS = ("Usage time:", "Number of processes:", "Virtual memory in use:", "Memory in use:", "Available memory:",
             "Current/Maximum speed:", "Processor speed:", "Speed:", "Space in use:", "Free space:", "Total free space:",
             "Current voltage:", "Load percentage:", "Remaining usage time:", "Number of bad passwords", "Logon's number:")


def classes(root):
    return [line for line in console(root, "classes").splitlines() if not line.startswith(" ")]


def shown(root, *options):
    """All that the console shows of a machine, but for the time at which the report was made."""
    texts = {name: console(root, *options, "query", f"Select * from {name}") for name in classes(root)}
    texts["pages"] = console(root, *options, "page", "all")
    texts["report"] = console(root, *options, "report", "text").partition("User account")[2]
    return texts


def content(root):
    """Names under a folder, with what the files hold and where the links lead."""
    return {str(path.relative_to(root)): os.readlink(path) if path.is_symlink() else
            path.read_bytes() if path.is_file() else None for path in pathlib.Path(root).rglob("*")}


class RecordingTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="ostrelum-record-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)

    def record(self, root, name, *options):
        console(root, *options, "record", str(self.folder / name))
        return self.folder / name

    def test_a_recording_shows_the_same(self):
        for machine, user in USERS.items():
            with self.subTest(machine=machine):
                recording = self.record(MACHINES / machine, machine, "--user", user)
                self.assertEqual(shown(recording), shown(MACHINES / machine, "--user", user))
                self.assertEqual(content(self.record(recording, machine + "-again")), content(recording))

    def test_this_machine(self):
        recording = self.record("/", "live")
        again = self.record(recording, "again")
        self.assertEqual(shown(again), shown(recording))
        lasting = [[line for line in console(root, "page", "all").splitlines() if not line.startswith(LIVE_ROWS)]
                   for root in ("/", recording)]
        self.assertEqual(*lasting)
        self.assertEqual(stat.S_IMODE(recording.stat().st_mode), 0o700)
        kinds = {stat.S_IFMT(path.lstat().st_mode) for path in recording.rglob("*")}
        self.assertLessEqual(kinds, {stat.S_IFREG, stat.S_IFDIR, stat.S_IFLNK})
        self.assertFalse((recording / "etc" / "shadow").exists())

    def test_is_written_whole_or_not_at_all(self):
        (self.folder / "used").mkdir()
        (self.folder / "used" / "mine").write_text("kept")
        (self.folder / "file").write_text("kept")
        (self.folder / "empty").mkdir()
        before = content(self.folder)
        for target in ("used", "file", "none/new"):
            with self.subTest(target=target):
                run = subprocess.run([CONSOLE, "--sysroot", MACHINES / "virtual", "record", self.folder / target],
                                     capture_output=True, encoding="utf-8", env=ENVIRONMENT, timeout=60)
                self.assertEqual((run.returncode, run.stdout), (1, ""))
                self.assertIn(target, run.stderr)
                self.assertEqual(content(self.folder), before)
        self.record(MACHINES / "virtual", "empty/")
        self.assertTrue((self.folder / "empty" / "etc" / "passwd").exists())
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["empty", "file", "used"])


if __name__ == "__main__":
    unittest.main()
