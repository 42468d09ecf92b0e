"""Each file of a machine broken in turn: every page still comes, and what does not depend on the file stays."""

import hashlib
import os
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import machine

BROKEN = ("notebook", "removable")
# How many files of each machine the normal run takes, always the same ones.
SAMPLE = 16
# Of some 130 rows, what hangs on the mount table, the most that hangs on one file.
MOST_ROWS = 20
# Rows that change beyond those that go when the file is missing, where there is text: half a name is a name.
MOST_BY_TEXT = 5
NO_TEXT = b"\xff\xfe\x01\x1b[31m\x7f\r\n\xff=\x00\xc2\x85\n" * 40
FAULTS = {
    "missing": lambda place, content: None,
    "empty": lambda place, content: place.write_bytes(b""),
    "a folder": lambda place, content: place.mkdir(),
    "a link to nothing": lambda place, content: place.symlink_to("/gone"),
    "zeros": lambda place, content: place.write_bytes(bytes(1 << 20)),
    "no text": lambda place, content: place.write_bytes(NO_TEXT),
    "cut": lambda place, content: place.write_bytes(content[:len(content) // 2]),
}
# Of a link nothing can be cut, and one to another place may well lead somewhere.
NOT_FOR_LINKS = ("a link to nothing", "cut")


def chosen_files(name):
    root = machine.MACHINES / name
    files = [path.relative_to(root) for path in root.rglob("*") if path.is_symlink() or path.is_file()]
    files = [file for file in files if file.parts[0] != "expected"]
    files.sort(key=lambda file: hashlib.sha256(bytes(file)).digest())
    return files if machine.LONG else files[:SAMPLE]


class Broken:
    """A copy of a machine in which one file is broken at a time."""

    def __init__(self, name, folder):
        self.titles = machine.titles_of(name)
        self.options = ("--sysroot", str(folder), "--user", machine.USERS[name])
        self.root = machine.copy_of(name, folder)
        self.whole = self.rows()

    def rows(self):
        pages = machine.pages_of(machine.text_of(*self.options, "page", "all"), self.titles)
        return {(page, row): text for page, rows in enumerate(pages, 1) for row, text in enumerate(rows)}

    def changed(self, file, fault):
        """The rows that are not as on the whole machine."""
        place = self.root / file
        link = os.readlink(place) if place.is_symlink() else None
        content = b"" if link else place.read_bytes()
        place.unlink()
        FAULTS[fault](place, content)
        try:
            rows = self.rows()
            if machine.LONG or fault == "no text":
                machine.text_of(*self.options, "report", "text")
        finally:
            if place.is_dir() and not place.is_symlink():
                place.rmdir()
            place.unlink(missing_ok=True)
            place.symlink_to(link) if link else place.write_bytes(content)
        return {row for row in self.whole.keys() | rows.keys() if self.whole.get(row) != rows.get(row)}

    def complaints(self, file):
        """What is wrong with the pages when this file is broken."""
        is_link = (self.root / file).is_symlink()
        gone = set()
        for fault in FAULTS:
            if is_link and fault in NOT_FOR_LINKS:
                continue
            try:
                rows = self.changed(file, fault)
            except AssertionError as error:
                yield f"{file}, {fault}: {error}"
                continue
            if fault == "missing":
                gone = rows
            with_text = len(gone) + MOST_BY_TEXT
            allowed = {"missing": MOST_ROWS, "cut": with_text, "no text": with_text}.get(fault, 0)
            if len(rows) > allowed and not rows <= gone:
                yield f"{file}, {fault}: changes (page, row) {sorted(rows - gone)}"


def complaints_of(name, files):
    with tempfile.TemporaryDirectory() as folder:
        broken = Broken(name, Path(folder, "root"))
        return [complaint for file in files for complaint in broken.complaints(file)]


class FilesTest(unittest.TestCase):
    def test_no_file_takes_the_others_rows_with_it(self):
        with ThreadPoolExecutor(2) as workers:
            for name in BROKEN:
                files = chosen_files(name)
                halves = workers.map(complaints_of, [name] * 2, [files[::2], files[1::2]])
                found = [complaint for half in halves for complaint in half]
                self.assertEqual(found, [], name)


if __name__ == "__main__":
    unittest.main()
