"""Recorded machines: what the console shows of each. Their pages were worked out by hand."""

import json
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "faults"))
import machine  # noqa: E402
from machine import MACHINES, USERS  # noqa: E402


class MachinesTest(unittest.TestCase):
    maxDiff = None

    def test_all_pages(self):
        for name, user in USERS.items():
            expected = machine.expected_pages(name)
            self.assertEqual(list(expected), list(machine.PAGES), name)
            text = machine.of(MACHINES / name, "--user", user, "page", "all")
            shown = machine.pages_of(text, machine.titles_of(name))
            for n, page in expected.items():
                with self.subTest(machine=name, page=n):
                    self.assertEqual(shown[n - 1], page.splitlines()[2:])

    def test_other_languages_and_users(self):
        """An administrator's page is the first one; here a user, a guest, and a name in the wrong case."""
        for variant in ("Spanish", "Dutch", "user-bela", "user-guest", "user-Alma"):
            of_user = variant.startswith("user-")
            options = ["--user", variant[5:]] if of_user else ["--user", "alma", "--language", variant]
            pages = machine.expected_pages("notebook", variant)
            self.assertEqual(len(pages), 1 if of_user else 8)
            for n, page in pages.items():
                with self.subTest(variant=variant, page=n):
                    self.assertEqual(machine.of(MACHINES / "notebook", *options, "page", str(n)), page)

    def test_what_no_page_shows(self):
        """Pages show the first of many objects; the rest is asked for."""
        for path in sorted(MACHINES.glob("*/expected/queries.json")):
            root = path.parent.parent
            for query, objects in json.loads(path.read_text("utf-8")).items():
                with self.subTest(machine=root.name, query=query):
                    self.assertEqual(json.loads(machine.of(root, "query", query)), objects)


class LinksTest(unittest.TestCase):
    def test_no_link_leads_out_of_the_root(self):
        """Recorded machines hold links to places that the machine of the test has, too."""
        links = {"etc/mtab": "/proc/self/mounts", "etc/passwd": "/../etc/passwd", "proc/self": "/proc/self"}
        out = ("etc/os-release", "proc/cpuinfo", "proc/uptime", "sys/block", "sys/class", "sys/devices/system")
        with tempfile.TemporaryDirectory() as root:
            for path, target in (links | {path: "../" * 40 + path for path in out}).items():
                place = pathlib.Path(root, path)
                place.parent.mkdir(parents=True, exist_ok=True)
                place.symlink_to(target)
            text = machine.of(root, "--user", USERS["nothing"], "page", "all")
            self.assertEqual(text, "\n".join(machine.expected_pages("nothing").values()))


if __name__ == "__main__":
    unittest.main()
