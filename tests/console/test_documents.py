"""The report's documents in other programs: a word processor reads the RTF, a browser the HTML. Each test is skipped
where its program is not installed."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

CONSOLE = os.environ["OSTRELUM_CONSOLE"]
MACHINE = pathlib.Path(__file__).resolve().parent.parent / "machines" / "desktop"
HEADINGS = ("User account", "Computer", "Operating system", "Processor", "RAM", "Hard drives", "Bios", "Display",
            "Graphics card", "Keyboard", "Mouse", "Others hardware")
# Rows of the recorded machine that only a document that was read whole can show.
ROWS = ("Name: AMD Ryzen 3 3200G with Radeon Vega Graphics", "File system: ext4 - btrfs - ext4 - NTFS",
        "Motherboard name: ASRock B450M Pro4")


class DocumentsTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="ostrelum-documents-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)

    def report(self, form, name):
        path = self.folder / name
        subprocess.run([CONSOLE, "--sysroot", str(MACHINE), "--user", "ana", "report", form, "--output", str(path)],
                       check=True, timeout=60)
        return path

    def assertHolds(self, text):
        place = -1
        for heading in HEADINGS:
            found = text.find(heading, place + 1)
            self.assertGreater(found, place, f"{heading} is missing or out of order")
            place = found
        for row in ROWS:
            self.assertIn(row, text)
        self.assertIn("Thank you for use Dervalin Ostrelum!", text)

    @unittest.skipUnless(shutil.which("soffice"), "soffice (LibreOffice) is not installed")
    def test_word_processor_reads_the_rtf(self):
        path = self.report("rtf", "report.rtf")
        subprocess.run(["soffice", f"-env:UserInstallation=file://{self.folder}/profile", "--headless",
                        "--convert-to", "txt:Text (encoded):UTF8", "--outdir", str(self.folder), str(path)],
                       check=True, timeout=120, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.assertHolds(path.with_suffix(".txt").read_text("utf-8-sig"))

    @unittest.skipUnless(shutil.which("chromium"), "chromium is not installed")
    def test_browser_reads_the_html(self):
        path = self.report("html", "report.htm")
        page = self.folder / "page.pdf"
        subprocess.run(["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                        "--disable-background-networking", "--disable-component-update", "--disable-sync",
                        f"--user-data-dir={self.folder}/profile", f"--print-to-pdf={page}", path.as_uri()],
                       check=True, timeout=120, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if not shutil.which("pdftotext"):
            self.skipTest("pdftotext is not installed")
        text = subprocess.run(["pdftotext", "-layout", str(page), "-"], check=True, capture_output=True,
                              encoding="utf-8", timeout=60).stdout
        self.assertHolds(text)


if __name__ == "__main__":
    unittest.main()
