"""A recorded machine is closed: whatever its tree holds, nothing of this machine is read for it, and nobody here asked."""

import re
import shutil
import tempfile
import unittest
from pathlib import Path

import calls
import machine

# Calls that take a path, ask another program or ask the system; and where their descriptors lead (-y).
TRACE = ["strace", "-f", "-qq", "-y", "-s", "4096", "-e", "trace=%file,%network,getuid,uname,sysinfo", "-o"]
# Whether the tree is this very machine's; what kind of file the output is; what time it is for whoever makes a report.
HARMLESS = re.compile(r'newfstatat\((AT_FDCWD\S*, "/"|[012]<\S+, ""), |openat\(AT_FDCWD\S*, "/usr/share/zoneinfo/')
# What else stands in a call: the text of a link that is made or read, and the folder that no absolute path begins at.
NO_PLACE = re.compile(r'(?<=symlink\()"[^"]*", |(?<=>, "", )"[^"]*"|AT_FDCWD<[^>]*>(?=, "/)|"/proc/self/fd/\d+"')
PLACE = re.compile(r'<([^>]*)>|(?<=[( ])"(/[^"]*)"')
LINKS = {"etc/os-release": "/../../../../../../etc/os-release", "proc/meminfo": "/proc/self/root/proc/meminfo",
         "sys/class/dmi": "/proc/self/cwd", "etc/passwd": "../../../../../../etc/passwd"}


def hostile_copy(name, folder):
    """A machine with links that lead out of it, what needs looking up elsewhere, and names that a terminal obeys."""
    root = machine.copy_of(name, folder)
    for link, target in LINKS.items():
        place = root / link
        shutil.rmtree(place, ignore_errors=True)
        place.unlink(missing_ok=True)
        place.parent.mkdir(parents=True, exist_ok=True)
        place.symlink_to(target)
    (root / "proc/self/mountinfo").write_text("28 1 254:1 / / rw - ext4 /dev/root rw\n"
                                              "29 28 0:44 / /a\\012\x1b[2J rw - btrfs LABEL=a rw\n")
    (root / ".facts").mkdir(exist_ok=True)
    (root / ".facts/env").write_text("UserName=\x1b]0;eve\x07\x9b2J\r\n")
    return root


def strangers(trace, inside):
    """The calls behind the opening of the tree, the first of those folders, that lead out of all of them."""
    lines = [line.partition(" ")[2].strip() for line in trace.read_text(errors="replace").splitlines()]
    first = next(i for i, line in enumerate(lines) if f'"{inside[0]}", ' in line and "O_PATH" in line)
    for call in lines[first + 1:]:
        shown = NO_PLACE.sub("", call)
        # The kernel keeps such a path in the tree.
        if "RESOLVE_IN_ROOT" in call:
            shown = re.sub('"[^"]*"', "", shown)
        places = ["".join(found) for found in PLACE.findall(shown)]
        if not HARMLESS.match(call) and not (places and all(place.startswith(inside) for place in places)):
            yield call


@unittest.skipUnless(calls.can_trace(), "tracing is not permitted here")
class ClosedTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def check(self, root, *command):
        trace = self.folder / "trace"
        machine.text_of("--sysroot", str(root), *command, before=[*TRACE, str(trace)])
        # A recording is made beside its place, under its name with a dot before it and letters behind.
        inside = (str(root), str(self.folder / "copy"), str(self.folder / ".copy."))
        found = list(strangers(trace, inside))
        shutil.rmtree(self.folder / "copy", ignore_errors=True)
        self.assertEqual(found, [], command)

    def test_nothing_outside_the_tree_is_touched(self):
        """A recording asks for every page, the report and every class."""
        for name in ("notebook", "removable", "server"):
            root = hostile_copy(name, self.folder / name)
            for command in (["page", "all"], ["report", "text"], ["--mask", "report", "text"],
                            ["record", str(self.folder / "copy")]):
                self.check(root, *command)


if __name__ == "__main__":
    unittest.main()
