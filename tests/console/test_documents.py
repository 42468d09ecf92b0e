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
        "Motherboard name: ASRock B450M Pro4", "Thank you for use Dervalin Ostrelum!")


class DocumentsTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="ostrelum-documents-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)

    def report(self, form):
        path = self.folder / f"report.{form}"
        subprocess.run([CONSOLE, "--sysroot", str(MACHINE), "--user", "ana", "report", form, "--output", str(path)],
                       check=True, timeout=60)
        return path

    def run_program(self, *command):
        subprocess.run(command, check=True, timeout=120, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def assertHolds(self, text):
        self.assertRegex(text, "(?s)" + ".*".join(HEADINGS))
        for row in ROWS:
            self.assertIn(row, text)

    @unittest.skipUnless(shutil.which("soffice"), "soffice (LibreOffice) is not installed")
    def test_word_processor_reads_the_rtf(self):
        path = self.report("rtf")
        self.run_program("soffice", f"-env:UserInstallation=file://{self.folder}/profile", "--headless", "--convert-to",
                         "txt:Text (encoded):UTF8", "--outdir", str(self.folder), str(path))
        self.assertHolds(path.with_suffix(".txt").read_text("utf-8-sig"))

    @unittest.skipUnless(shutil.which("chromium") and shutil.which("pdftotext"), "no chromium, or no pdftotext")
    def test_browser_reads_the_html(self):
        page, text = self.folder / "page.pdf", self.folder / "page.txt"
        self.run_program("chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                         "--disable-background-networking", "--disable-component-update", "--disable-sync",
                         f"--user-data-dir={self.folder}/profile", f"--print-to-pdf={page}",
                         self.report("html").as_uri())
        self.run_program("pdftotext", "-layout", str(page), str(text))
        self.assertHolds(text.read_text("utf-8"))


if __name__ == "__main__":
    unittest.main()
