"""What desktops, software centres and manuals are given: valid for the tools that read it, and of one version."""

import re
import subprocess
import unittest
import xml.etree.ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
LINUX = ROOT / "packaging/linux"
ENTRY = LINUX / "dervalin-ostrelum.desktop"
METAINFO = LINUX / "org.example.dervalin.ostrelum.metainfo.xml"
LANGUAGES = {"", "es", "nl"}
XML_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def said_by(*command):
    done = subprocess.run(command, capture_output=True, text=True, timeout=60, check=False)
    return done.returncode, done.stdout + done.stderr


def found(pattern, path):
    return re.search(pattern, (ROOT / path).read_text(encoding="utf-8"), re.M).groups()


class FilesTest(unittest.TestCase):
    def test_the_tools_that_read_them_find_nothing_wrong(self):
        self.assertEqual(said_by("desktop-file-validate", ENTRY), (0, ""))
        self.assertEqual(said_by("appstreamcli", "validate", "--no-net", "--pedantic", METAINFO)[0], 0)
        for page in LINUX.glob("man/*.1"):
            # It looks for other manuals on this machine.
            said = said_by("mandoc", "-T", "lint", page)[1].splitlines()
            self.assertEqual([line for line in said if "referenced manual not found" not in line], [])

    def test_every_text_for_users_is_there_in_three_languages(self):
        texts = {}
        for key, language in re.findall(r"^(\w+)(?:\[(\w+)\])?=", ENTRY.read_text(encoding="utf-8"), re.M):
            texts.setdefault(key, set()).add(language)
        for key in ("Comment", "GenericName", "Keywords"):
            self.assertEqual(texts[key], LANGUAGES, key)
        root = xml.etree.ElementTree.parse(METAINFO).getroot()
        for parent in root.iter():
            for tag in ("summary", "p", "li", "caption"):
                languages = [each.get(XML_LANGUAGE, "") for each in parent.findall(tag)]
                self.assertEqual(languages.count(""), languages.count("es"), f"{parent.tag}: {tag}")
                self.assertEqual(languages.count(""), languages.count("nl"), f"{parent.tag}: {tag}")

    def test_they_are_of_the_programs_version_and_day(self):
        [version] = found(r'program_version = "(.*?)"', "figures/Program.h")
        day = found(r"\.year = (\d+), \.month = (\d+), \.day = (\d+)", "figures/Program.h")
        release = xml.etree.ElementTree.parse(METAINFO).find("releases/release")
        self.assertEqual((release.get("version"), release.get("date")), (version, "{}-{:0>2}-{:0>2}".format(*day)))
        self.assertEqual(found(r"^project\(.* VERSION (\S+) ", "CMakeLists.txt"), (version,))
        self.assertEqual(found(r'Ostrelum" version="(.*?)\.0\.0"', "packaging/windows/program.manifest"), (version,))
        self.assertEqual(found(r"\A\S+ \((.*?)-\d+\)", "packaging/linux/debian/changelog"), (version,))


if __name__ == "__main__":
    unittest.main()
