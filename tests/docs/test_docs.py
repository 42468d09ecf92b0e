"""What the documents say, against what is there: links, and the guide's table of rights against pages and their tests."""

import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "faults"))
import machine  # noqa: E402
import test_user  # noqa: E402

GUIDE = ROOT / "docs" / "guide"
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
CODE = re.compile(r"^```.*?^```|^ {4}.*?$|`[^`\n]*`", re.MULTILINE | re.DOTALL)


def documents():
    """All Markdown files but those in folders of builds, where there is no git too."""
    return [path for path in ROOT.rglob("*.md")
            if not any(part.startswith((".git", "build", "dist")) for part in path.relative_to(ROOT).parts)]


def anchors(path):
    headings = re.findall(r"^#+ (.*)$", path.read_text("utf-8"), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


class LinksTest(unittest.TestCase):
    def test_lead_to_something(self):
        for document in documents():
            for link in LINK.findall(CODE.sub("", document.read_text("utf-8"))):
                if "://" in link:
                    continue
                place, _, anchor = link.partition("#")
                target = (document.parent / place).resolve() if place else document
                with self.subTest(document=str(document.relative_to(ROOT)), link=link):
                    self.assertTrue(target.exists())
                    if anchor:
                        self.assertIn(anchor, anchors(target))

    def test_index_has_every_page_and_picture_of_the_guide(self):
        texts = {path: path.read_text("utf-8") for path in GUIDE.glob("*.md")}
        index = texts[GUIDE / "README.md"]
        for page in texts:
            if page.name != "README.md":
                self.assertIn(f"({page.name})", index)
        for picture in (GUIDE / "pictures").iterdir():
            self.assertTrue(any(f"pictures/{picture.name})" in text for text in texts.values()), picture.name)


class VersionTest(unittest.TestCase):
    def test_the_newest_change_is_in_the_version_that_is_built(self):
        built = re.search(r"project\(\w+ VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text("utf-8"))[1]
        newest = re.search(r"^## ([\d.]+)", (ROOT / "CHANGELOG.md").read_text("utf-8"), re.MULTILINE)[1]
        self.assertEqual(newest, built)


class RightsTest(unittest.TestCase):
    """The table of rights names each row by its title, or by all that it may have, and says which are root's."""

    @classmethod
    def setUpClass(cls):
        cls.rows = {}
        for section in (GUIDE / "rights.md").read_text("utf-8").split("\n## ")[1:]:
            number = int(section.split(" ")[0])
            for line in section.splitlines():
                cells = [cell.strip() for cell in line.strip("|").split("|")]
                if line.startswith("|") and cells[0] not in ("row", "---"):
                    cls.rows[number, tuple(cells[0].split(", or "))] = cells[2]

    def test_rows_are_those_of_the_pages(self):
        shown = set()
        for name in machine.USERS:
            # Where nothing is known, a title may be that of the page before.
            for number, page in machine.expected_pages(name).items() if name != "nothing" else ():
                shown |= {(number, row.partition(": ")[0]) for row in page.splitlines() if ": " in row}
        named = {(number, title) for number, titles in self.rows for title in titles}
        self.assertEqual(shown - named, set())
        for number, titles in self.rows:
            self.assertTrue(any((number, title) in shown for title in titles), (number, titles))

    def test_every_title_is_one_of_the_programs(self):
        texts = (ROOT / "frame" / "Lang_English.cpp").read_text("utf-8")
        for _, titles in self.rows:
            for title in titles:
                self.assertRegex(texts, f'"{re.escape(title)}:?"')

    def test_marks_of_root_are_the_rows_that_root_alone_sees(self):
        marked = {(number, titles[0]) for (number, titles), root in self.rows.items() if root.startswith("**root")}
        self.assertEqual(marked, set().union(*test_user.ROWS_OF_ROOT.values()))


if __name__ == "__main__":
    unittest.main()
