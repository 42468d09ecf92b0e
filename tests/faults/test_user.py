"""An ordinary user sees what root sees, but for the rows whose only source is root's."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

import machine

# Files that the kernel and the system give to root alone (0400, btmp 0660).
OF_ROOT = ("sys/firmware/dmi/tables/DMI", "sys/devices/virtual/dmi/id/product_serial", "var/log/btmp")
# The rows that go with them, by page; everything else has another source.
# The processor's socket stands in the firmware's table alone.
SOCKET = {(5, "Socket")}
# What is told of memory modules, where udev has not published the firmware's list of them. The total is then the
# kernel's, which is a little less.
MODULES = {(6, "Chip type"), (6, "Memory in use"), (6, "Available memory"), (6, "Modules installed"),
           (6, "Data bus width")}
ROWS_OF_ROOT = {
    # Cut to whole gigabytes, the kernel's total of the memory is one less.
    "desktop": SOCKET | MODULES | {(1, "RAM"), (6, "Total memory")},
    # The machine's serial number identifies it.
    "server": SOCKET | {(8, "Serial number")},
    # A kind of memory that only the firmware names.
    "removable": SOCKET | MODULES | {(6, "Type")},
}
# Rows of this machine that change from one run to the next.
LIVE = ("Virtual memory in use", "Memory in use", "Available memory", "Usage time", "Number of processes",
        "Total free space", "Space in use", "Free space", "Load percentage", "Current voltage",
        "Remaining usage time", "Speed", "Processor speed", "Report made")
NOBODY = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]
# Of all processes the program sees itself alone.
ALONE = ["unshare", "--mount", "--pid", "--fork", "--mount-proc"]
IS_ROOT = os.geteuid() == 0


def rows_of(text, titles):
    """(page, title of the row): value."""
    pages = machine.pages_of(text, titles)
    return {(number, row.partition(": ")[0]): row for number, page in enumerate(pages, 1) for row in page}


def differing(some, others):
    return {key for key in some.keys() | others.keys() if some.get(key) != others.get(key)}


class UserTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.folder.chmod(0o755)
        # Where it was built, others may not look.
        self.console = shutil.copy(machine.CONSOLE, self.folder / "console")

    def text_of(self, before, *arguments):
        return machine.text_of(*arguments, before=before, program=self.console)

    def test_recorded_machines(self):
        for name, user in machine.USERS.items():
            options = ["--user", user, "page", "all"]
            titles = machine.titles_of(name)
            of_root = rows_of(machine.text_of("--sysroot", str(machine.MACHINES / name), *options), titles)
            copy = machine.copy_of(name, self.folder / name)
            for file in OF_ROOT:
                if (copy / file).exists():
                    (copy / file).chmod(0)
            before = NOBODY if IS_ROOT else []
            of_user = rows_of(self.text_of(before, "--sysroot", str(copy), *options), titles)
            with self.subTest(machine=name):
                self.assertEqual(differing(of_root, of_user), ROWS_OF_ROOT.get(name, set()))

    @unittest.skipUnless(IS_ROOT, "only root can show what root sees")
    def test_this_machine(self):
        if subprocess.run([*ALONE, "true"], capture_output=True, check=False).returncode != 0:
            self.skipTest("no namespaces of one's own are allowed here")
        titles = machine.titles_of("notebook")
        for command in (["page", "all"], ["report", "text"]):
            def lines(before, command=command):
                text = self.text_of([*ALONE, *before], "--user", "root", *command)
                return [line for line in text.splitlines() if not line.lstrip(" ·").startswith(LIVE)]
            self.assertEqual(lines(NOBODY), lines([]))


if __name__ == "__main__":
    unittest.main()
