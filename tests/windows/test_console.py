"""The console under Wine, held against other ways of asking the same."""

import json
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
CONSOLE = os.environ["OSTRELUM_CONSOLE"]
# Wine's service does not know the others.
ANSWERED = ("Win32_BaseBoard", "Win32_BIOS", "Win32_ComputerSystem", "Win32_DesktopMonitor", "Win32_DiskDrive",
            "Win32_LogicalDisk", "Win32_OperatingSystem", "Win32_PhysicalMemory", "Win32_Processor",
            "Win32_SoundDevice", "Win32_VideoController")
# What changes from one moment to the next.
MOVING = {"FreePhysicalMemory", "FreeVirtualMemory", "FreeSpace", "LocalDateTime", "LoadPercentage",
          "CurrentClockSpeed", "NumberOfProcesses"}
LANGUAGES = {"English": ("Processor", "Unknown"), "Spanish": ("Procesador", "Desconocido"),
             "Dutch": ("Processor", "Onbekend")}


def wine(*command, code=0):
    done = subprocess.run([ROOT / "tools/under-wine", *command], capture_output=True, timeout=120)
    if code is not None and done.returncode != code:
        raise AssertionError(f"{command}: exit {done.returncode}: {done.stderr.decode('utf-8', 'replace')}")
    return done


def console(*arguments, code=0):
    return wine(CONSOLE, *arguments, code=code)


def query(wql, *options):
    return json.loads(console(*options, "query", wql).stdout)


def classes():
    """Properties and their types by class, as the console lists them."""
    listed, current = {}, None
    for line in console("classes").stdout.decode().splitlines():
        if line.startswith(" "):
            name, kind = line.split(":")
            current[name.strip()] = kind.strip()
        else:
            current = listed.setdefault(line, {})
    return listed


def wmic(name, property_name):
    """Every object's value in the words of Wine's own program."""
    out = wine("wmic", "path", name, "get", property_name, code=None).stdout.decode("utf-16", "replace")
    lines = [line.strip() for line in out.replace("\r", "").split("\n")]
    return lines[1:] if lines and lines[0].lower() == property_name.lower() else None


def as_wmic_writes(value):
    if value is None:
        return ""
    return str(value).upper() if isinstance(value, bool) else str(value).strip()


class ConsoleTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.classes = classes()
        cls.answers = {name: query(f"Select * from {name}") for name in cls.classes}

    def test_classes_answer_what_another_program_is_told(self):
        compared = 0
        for name, properties in self.classes.items():
            objects = self.answers[name]
            self.assertEqual(bool(objects), name in ANSWERED, name)
            for own in sorted(set(properties) & set(objects[0] if objects else ()) - MOVING):
                theirs = wmic(name, own)
                if theirs is not None:
                    ours = [as_wmic_writes(each[own]) for each in objects]
                    self.assertEqual(ours, theirs[:len(ours)], f"{name}.{own}")
                    compared += 1
        self.assertGreater(compared, 40)

    def test_types_are_the_schemas_own(self):
        kinds = {"string": str, "datetime": str, "uint64": str, "uint16": int, "uint32": int, "boolean": bool}
        for name, properties in self.classes.items():
            for own, kind in properties.items():
                for value in [each[own] for each in self.answers[name] if each.get(own) is not None]:
                    self.assertIsInstance(value, kinds[kind], f"{name}.{own}")
                    self.assertFalse(isinstance(value, int) and value < 0, f"{name}.{own}")

    def test_pages_in_three_languages(self):
        processor = self.answers["Win32_Processor"][0]["Name"].strip()
        for language, (title, unknown) in LANGUAGES.items():
            page = console("--language", language, "page", "5").stdout
            self.assertNotIn(b"\r", page)
            lines = page.decode().splitlines()
            self.assertEqual(lines[0], title)
            self.assertTrue(lines[2].endswith(": " + processor), lines[2])
            # Wine's service knows no socket.
            self.assertTrue(any(line.endswith(": " + unknown) for line in lines), page)
        everything = console("page", "all").stdout.decode()
        for title in ("Summary", "Operating system", "Hard drives", "Others hardware"):
            self.assertRegex(everything, f"(?m)^{title}$")

    def test_report_is_saved_as_it_is_shown(self):
        with tempfile.TemporaryDirectory() as folder:
            for language in LANGUAGES:
                path = Path(folder, f"informe ñ {language}.txt")
                console("--language", language, "report", "text", "--output", "Z:" + str(path).replace("/", "\\"))
                saved = path.read_bytes()
                self.assertIn(b"\r\n", saved)
                shown = console("--language", language, "report", "text").stdout.decode()
                # Times and free space go on between the two.
                def still(text):
                    return re.sub(r"\d+", "0", text)
                self.assertEqual(still(saved.decode("cp1252").replace("\r\n", "\n")), still(shown) + "\n")
            self.assertTrue(console("report", "rtf").stdout.startswith(b"{\\rtf1"))
            self.assertIn(b"</html>", console("report", "html").stdout)

    def test_arguments_of_any_letters(self):
        self.assertIn("Ünsal 木", console("--user", "Ünsal 木", "page", "2").stdout.decode())

    def test_mask_hides_also_what_no_page_reads(self):
        open_system = self.answers["Win32_OperatingSystem"][0]
        masked = query("Select * from Win32_OperatingSystem", "--mask")[0]
        self.assertEqual(set(open_system), set(masked))
        for name in ("SerialNumber", "CSName", "RegisteredUser"):
            if open_system.get(name):
                self.assertEqual(masked[name], "(hidden)", name)
        self.assertEqual(masked["Caption"], open_system["Caption"])

    def test_exit_codes_and_reasons(self):
        for arguments, code, words in (
                ((), 2, "Usage"),
                (("page", "14"), 2, "Usage"),
                (("--sysroot", "C:\\", "page", "1"), 2, "on this system"),
                (("record", "C:\\new"), 2, "on this system"),
                (("query", "Selct"), 1, "0x80041017"),
                (("report", "text", "--output", "C:\\none\\a.txt"), 1, "C:\\none\\a.txt")):
            done = console(*arguments, code=code)
            self.assertIn(words, done.stderr.decode(), arguments)
            self.assertEqual(done.stdout, b"", arguments)


if __name__ == "__main__":
    unittest.main()
