"""Recordings: a recorded machine shows what the machine itself shows, byte for byte, and holds nothing but that."""

import os
import pathlib
import re
import shutil
import stat
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "faults"))
import machine  # noqa: E402
import planted  # noqa: E402
from machine import MACHINES, USERS  # noqa: E402

# The sanitizers take ten times as long for each of a thousand answers: two machines stand for all, those with the most
# kinds of devices and of volumes.
FULL = {name: user for name, user in USERS.items() if not machine.is_sanitized() or name in ("notebook", "removable")}
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


# What a masked recording leaves out, and what is hidden as a whole.
LEFT_OUT = ('"DeviceID":', '"SerialNumber":', '"VolumeSerialNumber":', "Serial number:", "Start time:",
            "Number of bad passwords entered:", "Logon's number:", '"LastLogon":', '"BadPasswordCount":',
            '"NumberOfLogons":')


def any_of(words):
    return re.compile("|".join(map(re.escape, sorted(words, key=len, reverse=True))), re.IGNORECASE)


def neutral(line, told):
    """With what is hidden, and what is to be hidden, as one and the same."""
    line = re.sub(r"\(hidden[ 0-9]*\)", "(hidden)", told.sub("(hidden)", line))
    return re.sub(r"\(hidden\)(?:[ '@/.-]*\(hidden\))*", "(hidden)", line)


def identities(root):
    """The texts by which a recorded machine, its parts or its users can be recognised."""
    def read(path):
        return (root / path).read_text("utf-8") if (root / path).exists() else ""

    found = set(FURTHER) | {read("etc/machine-id").strip(), read("proc/sys/kernel/hostname").strip()}
    for path in root.glob("run/udev/data/*"):
        found |= set(UDEV_IDENTITY.findall(path.read_text("utf-8")))
    found |= set(QUERY_IDENTITY.findall("\n".join(shown(root).values())))
    found |= {path.read_text("utf-8").strip() for path in root.rglob("product_serial")}
    for line in read("etc/passwd").splitlines():
        name, _, number, _, full_name = line.split(":")[:5]
        found |= {name, full_name.partition(",")[0]} if 1000 <= int(number) < 60000 else set()
    return {text for text in found if text and "filled" not in text.lower() and text != "0123456789"} - COMMON


def shown(root, *options):
    """All that the console shows of a machine, but for the time at which the report was made."""
    classes = [line for line in machine.of(root, "classes").splitlines() if not line.startswith(" ")]
    texts = {name: machine.of(root, *options, "query", f"Select * from {name}") for name in classes}
    texts["pages"] = machine.of(root, *options, "page", "all")
    texts["report"] = machine.of(root, *options, "report", "text").partition("User account")[2]
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
        machine.of(root, *options, "record", str(self.folder / name))
        return self.folder / name

    def test_a_recording_shows_the_same(self):
        """The workbench has every fact that no file tells."""
        for name, user in (FULL | {"workbench": "eli"}).items():
            with self.subTest(machine=name):
                recording = self.record(MACHINES / name, name, "--user", user)
                self.assertEqual(shown(recording), shown(MACHINES / name, "--user", user))
                self.assertEqual(content(self.record(recording, name + "-again")), content(recording))

    def test_this_machine(self):
        recording = self.record("/", "live")
        again = self.record(recording, "again")
        self.assertEqual(shown(again), shown(recording))
        lasting = [[line for line in machine.of(root, "page", "all").splitlines() if not line.startswith(LIVE_ROWS)]
                   for root in ("/", recording)]
        self.assertEqual(*lasting)
        self.assertEqual(stat.S_IMODE(recording.stat().st_mode), 0o700)
        kinds = {stat.S_IFMT(path.lstat().st_mode) for path in recording.rglob("*")}
        self.assertLessEqual(kinds, {stat.S_IFREG, stat.S_IFDIR, stat.S_IFLNK})
        self.assertFalse((recording / "etc" / "shadow").exists())
        # The clock of this machine is a system call; its recording's is a file.
        self.assertGreater(float((recording / "proc" / "uptime").read_text().split()[0]), 0)

    def assertTellsNone(self, texts, identity):
        for name, text in texts.items():
            whole = os.fsencode(name) + b"\n" + (text if isinstance(text, bytes) else (text or "").encode())
            told = [word for word in identity
                    if re.search(rb"(?<!\w)" + re.escape(word.encode()) + rb"(?!\w)", whole, re.IGNORECASE)]
            self.assertEqual(told, [], name)

    def test_masked_tells_nobody(self):
        for name, user in FULL.items():
            with self.subTest(machine=name):
                root = MACHINES / name
                identity = identities(root) | ({user} - {"root"})
                recording = self.record(root, name, "--user", user, "--mask")
                self.assertTellsNone(content(recording), identity)
                plain = machine.of(root, "--user", user, "page", "all").splitlines()
                for texts in (shown(recording), shown(root, "--user", user, "--mask")):
                    self.assertTellsNone(texts, identity)
                    for before, after in zip(plain, texts["pages"].splitlines(), strict=True):
                        if before != after:
                            self.assertTrue(before.startswith(MASKED_ROWS), before)
                            self.assertRegex(after, "hidden|Unknown")

    def test_masked_holds_nothing_planted(self):
        """And all else that it shows is as it was."""
        root = planted.planted(self.folder / "machine")
        user = ("--user", planted.USER)
        recording = self.record(root, "masked", *user, "--mask")
        plain = shown(root, *user)
        told = any_of(planted.ALL)
        self.assertGreaterEqual(len(set(planted.ALL)), 100)
        reports = {form: machine.run("--sysroot", root, *user, "--mask", "report", form).stdout
                   for form in ("html", "rtf", "bbcode")}
        for form, document in reports.items():
            self.assertIn(b"(hidden)", document, form)
        for texts in (content(recording), shown(recording), shown(root, *user, "--mask"), reports):
            for name, text in texts.items():
                whole = name + "\n" + (text.decode("latin-1") if isinstance(text, bytes) else text or "")
                self.assertEqual(sorted(set(told.findall(whole))), [], name)
        # What the machine had before: an account and a label, which also stand for themselves.
        told = any_of(planted.ALL + ["root", "boot"])
        for texts in (shown(recording), shown(root, *user, "--mask")):
            for name, text in plain.items():
                for before, after in zip(text.splitlines(), texts[name].splitlines(), strict=True):
                    if not before.strip(" ·").startswith(LEFT_OUT):
                        self.assertEqual(neutral(after, told), neutral(before, told), name)

    def test_is_written_whole_or_not_at_all(self):
        for folder in ("used", "used/mine", "empty"):
            (self.folder / folder).mkdir()
        (self.folder / "file").write_text("kept")
        before = content(self.folder)
        for target in ("used", "file", "none/new"):
            with self.subTest(target=target):
                run = machine.run("--sysroot", MACHINES / "virtual", "record", self.folder / target)
                self.assertEqual((run.returncode, run.stdout), (1, b""))
                self.assertIn(target, run.stderr.decode())
                self.assertEqual(content(self.folder), before)
        gone = ("sh", "-c", 'mkdir "$0" && cd "$0" && rmdir "$0" && exec "$@"', str(self.folder / "gone"))
        run = machine.run("--sysroot", MACHINES / "virtual", "record", "new", before=gone)
        self.assertEqual((run.returncode, run.stderr), (1, b"ostrelum-console: new: No such file or directory\n"))
        self.record(MACHINES / "virtual", "empty/")
        self.assertTrue((self.folder / "empty" / "etc" / "passwd").exists())
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["empty", "file", "used"])

    @unittest.skipIf(machine.is_sanitized(), "the sanitizers need more room than there is")
    def test_ends_with_a_reason_where_memory_ends(self):
        root = machine.copy_of("virtual", self.folder / "crowded")
        (root / "proc/self/mountinfo").write_text("".join(
            f"{n} 1 8:{n} / /volume/{n} rw - ext4 /dev/volume{n} rw\n" for n in range(2, 30000)))
        codes = set()
        for megabytes in (20, 24, 32, 40, 48, 56):
            limited = ("sh", "-c", f'ulimit -v {megabytes << 10}; exec "$@"', "sh")
            run = machine.run("--sysroot", root, "record", self.folder / "recording", before=limited)
            with self.subTest(megabytes=megabytes):
                self.assertIn((run.returncode, run.stderr), (
                    (0, b""), (1, b"ostrelum-console: there is not enough memory\n")))
                self.assertEqual([path.name for path in self.folder.iterdir() if path.name != "recording"], ["crowded"])
            codes.add(run.returncode)
            shutil.rmtree(self.folder / "recording", ignore_errors=True)
        self.assertIn(1, codes)


if __name__ == "__main__":
    unittest.main()
