"""Recorded machines: what the console shows of each. Their pages were worked out by hand."""

import difflib
import json
import os
import pathlib
import subprocess
import tempfile
import unittest

CONSOLE = os.environ["OSTRELUM_CONSOLE"]
MACHINES = pathlib.Path(__file__).resolve().parent.parent / "machines"
USERS = {"notebook": "alma", "desktop": "ana", "armboard": "orla", "virtual": "root", "server": "oper",
         "removable": "eva", "nothing": "nobody-here"}
LANGUAGES = ("Spanish", "Dutch")
PAGES = range(1, 14)
# Neutral regional forms, whatever the machine of the test has.
ENVIRONMENT = {"LC_ALL": "C", "TZ": "UTC0", "PATH": os.environ.get("PATH", ""),
               "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "")}


def console(root, *arguments):
    result = subprocess.run([CONSOLE, "--sysroot", str(root), *arguments], capture_output=True, encoding="utf-8",
                            env=ENVIRONMENT, timeout=120)
    if result.returncode != 0:
        raise AssertionError(f"{' '.join(arguments)}: code {result.returncode}\n{result.stderr}")
    return result.stdout


def divided(text, titles):
    """The pages of a text that holds them all, each known by the title that it begins with."""
    pages = []
    for title in titles[1:]:
        page, _, rest = text.partition(f"\n{title}\n\n")
        pages.append(page)
        text = f"{title}\n\n{rest}"
    return pages + [text]


def expected_pages(folder):
    return {int(path.stem.removeprefix("page-")): path.read_text("utf-8") for path in folder.glob("page-*.txt")}


class MachinesTest(unittest.TestCase):
    maxDiff = None

    def assertShows(self, shown, expected, of):
        if shown == expected:
            return
        lines = difflib.unified_diff(expected.splitlines(), shown.splitlines(), "by hand", "shown", lineterm="", n=20)
        self.fail(f"{of}\n" + "\n".join(lines))

    def test_all_pages(self):
        for machine, user in USERS.items():
            expected = expected_pages(MACHINES / machine / "expected")
            self.assertEqual(sorted(expected), list(PAGES), machine)
            text = console(MACHINES / machine, "--user", user, "page", "all")
            shown = divided(text, [expected[n].partition("\n")[0] for n in PAGES])
            for n in PAGES:
                with self.subTest(machine=machine, page=n):
                    self.assertShows(shown[n - 1], expected[n], f"{machine}, page {n}")

    def test_other_languages(self):
        for language in LANGUAGES:
            expected = expected_pages(MACHINES / "notebook" / "expected" / language)
            self.assertTrue(expected)
            for n, page in sorted(expected.items()):
                with self.subTest(language=language, page=n):
                    shown = console(MACHINES / "notebook", "--user", USERS["notebook"], "--language", language, "page",
                                    str(n))
                    self.assertShows(shown, page, f"{language}, page {n}")

    def test_other_users(self):
        """An administrator's page is the first one; here a user, a guest, and a name in the wrong case."""
        for user in ("bela", "guest", "Alma"):
            with self.subTest(user=user):
                page = (MACHINES / "notebook" / "expected" / f"user-{user}" / "page-2.txt").read_text("utf-8")
                self.assertShows(console(MACHINES / "notebook", "--user", user, "page", "2"), page, user)

    def test_what_no_page_shows(self):
        """Pages show the first of many objects; the rest is asked for."""
        for path in sorted(MACHINES.glob("*/expected/queries.json")):
            machine = path.parent.parent
            for query, objects in json.loads(path.read_text("utf-8")).items():
                with self.subTest(machine=machine.name, query=query):
                    self.assertEqual(json.loads(console(machine, "query", query)), objects)


class LinksTest(unittest.TestCase):
    def test_no_link_leads_out_of_the_root(self):
        """Recorded machines hold links to places that the machine of the test has, too."""
        links = {
            "etc/mtab": "/proc/self/mounts",
            "etc/os-release": "../" * 40 + "etc/os-release",
            "etc/passwd": "/../etc/passwd",
            "proc/cpuinfo": "../" * 40 + "proc/cpuinfo",
            "proc/self": "/proc/self",
            "proc/uptime": "../" * 40 + "proc/uptime",
            "sys/block": "../" * 40 + "sys/block",
            "sys/class": "../" * 40 + "sys/class",
            "sys/devices/system": "../" * 40 + "sys/devices/system",
        }
        with tempfile.TemporaryDirectory() as root:
            for path, target in links.items():
                place = pathlib.Path(root, path)
                place.parent.mkdir(parents=True, exist_ok=True)
                place.symlink_to(target)
            expected = expected_pages(MACHINES / "nothing" / "expected")
            text = console(root, "--user", USERS["nothing"], "page", "all")
            self.assertEqual(text, "\n".join(expected[n] for n in PAGES))


if __name__ == "__main__":
    unittest.main()
