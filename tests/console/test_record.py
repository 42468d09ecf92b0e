"""Recordings: a recorded machine shows what the machine itself shows, byte for byte, and holds nothing but that."""

import os
import pathlib
import re
import shutil
import stat
import subprocess
import tempfile
import unittest

from test_machines import CONSOLE, ENVIRONMENT, MACHINES, USERS, console

# Rows of this machine that change from one second to the next.
LIVE_ROWS = ("Usage time:", "Number of processes:", "Virtual memory in use:", "Memory in use:",
             "Available memory:", "Current/Maximum speed:", "Processor speed:", "Speed:", "Space in use:",
             "Free space:", "Total free space:", "Current voltage:", "Load percentage:", "Remaining usage time:",
             "Number of bad passwords", "Logon's number:")


# Keys under which udev's records, and properties under which queries, tell whose machine it is.
UDEV_IDENTITY = re.compile(r"^E:(?:ID_SERIAL|ID_FS_UUID|ID_FS_LABEL|DM_NAME|\w+_SERIAL_NUMBER)\w*=(.+)$", re.MULTILINE)
QUERY_IDENTITY = re.compile(r'"(?:SerialNumber|VolumeSerialNumber|VolumeName|RegisteredUser|Domain)": "(.+)"')
# What else the recorded machines have of it: serial numbers of monitors, servers, who built the kernel, volumes.
FURTHER = {"1AB2C3D4", "HCHW301122", "10.0.0.5", "buildd", "mockbuild", "nvme0n1p3_crypt", "4107", "EXAMPLE.TEST",
           "CASA", "DATOS USB", "FOTOS", "Respaldo", "Casa y fotos", "c3d2e1f0-0a1b-4c2d-8e3f-405162738495"}
# Words that are also said without meaning anybody.
COMMON = {"boot", "EFI", "fedora", "scratch", "Windows", "WORKGROUP", "guest", "Not Specified", "uninitialized"}
MASKED_ROWS = ("Name:", "Domain:", "Workgroup:", "Serial number:", "Registered by:", "Drive letter:", "Start time:",
               "Number of bad passwords entered:", "Logon's number:")


def identities(root):
    """The texts by which a recorded machine, its parts or its users can be recognised."""
    def read(path):
        return (root / path).read_text("utf-8") if (root / path).exists() else ""

    found = set(FURTHER) | {read("etc/machine-id").strip(), read("proc/sys/kernel/hostname").strip()}
    for path in root.glob("run/udev/data/*"):
        found |= set(UDEV_IDENTITY.findall(path.read_text("utf-8")))
    found |= set(QUERY_IDENTITY.findall("\n".join(text for text in shown(root).values())))
    found |= {path.read_text("utf-8").strip() for path in root.rglob("product_serial")}
    for line in read("etc/passwd").splitlines():
        name, _, number, _, full_name = line.split(":")[:5]
        found |= {name, full_name.partition(",")[0]} if 1000 <= int(number) < 60000 else set()
    return {text for text in found if text and "filled" not in text.lower() and text != "0123456789"} - COMMON


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
        # The clock of this machine is a system call; its recording's is a file.
        self.assertGreater(float((recording / "proc" / "uptime").read_text().split()[0]), 0)

    def assertTellsNone(self, texts, identity, of):
        for name, text in texts.items():
            told = [word for word in identity
                    if re.search(rb"(?<!\w)" + re.escape(word.encode()) + rb"(?!\w)", text, re.IGNORECASE)]
            self.assertEqual(told, [], f"{of}, {name}")

    def test_masked_tells_nobody(self):
        for machine, user in USERS.items():
            with self.subTest(machine=machine):
                root = MACHINES / machine
                identity = identities(root) | ({user} - {"root"})
                recording = self.record(root, machine, "--user", user, "--mask")
                held = content(recording)
                self.assertTellsNone({name: name.encode() + b"\n" + (held[name] if isinstance(held[name], bytes) else
                                                                     (held[name] or "").encode())
                                      for name in held}, identity, "recording")
                of_recording, of_machine = shown(recording), shown(root, "--user", user, "--mask")
                for texts in (of_recording, of_machine):
                    self.assertTellsNone({name: text.encode() for name, text in texts.items()}, identity, "shown")
                plain = console(root, "--user", user, "page", "all").splitlines()
                for texts in (of_recording, of_machine):
                    for before, after in zip(plain, texts["pages"].splitlines(), strict=True):
                        if before != after:
                            self.assertTrue(before.startswith(MASKED_ROWS), before)
                            self.assertRegex(after, "hidden|Unknown")

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
