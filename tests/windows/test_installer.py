"""The installer and the archive for Windows, under Wine."""

import os
import re
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from wine_desktop import BUILD, KEY, MADE_PREFIX, ROOT, STATUS, WINE, WineDesktop, wait_for

NAME = "Dervalin Ostrelum"
PROGRAMS = {"dervalin-ostrelum.exe", "ostrelum-console.exe"}
FILES = PROGRAMS | {"README.txt", "LICENSE.txt", "NOTICES.txt"}
UNINSTALL = rf"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\{NAME}"
# The system's own libraries.
SYSTEM = MADE_PREFIX / "drive_c/windows/system32"
DONE, NOT_POSSIBLE = 0, 2


class InstallerTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(prefix="ostrelum-installer-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder, ignore_errors=True)
        subprocess.run([ROOT / "packaging/windows/make-packages", BUILD, cls.folder], check=True,
                       env=dict(os.environ, SOURCE_DATE_EPOCH=str(int(time.time()))))
        [cls.installer], [cls.archive] = cls.folder.glob("*-setup.exe"), cls.folder.glob("*.zip")

    def setUp(self):
        self.desktop = WineDesktop()
        self.addCleanup(self.desktop.close)
        [self.user] = (path for path in self.desktop.prefix.glob("drive_c/users/*") if path.name != "Public")
        self.place = self.user / "AppData/Local/Programs" / NAME
        self.shortcut = self.user / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs" / f"{NAME}.lnk"

    def run_windows(self, program, *arguments):
        """The program's exit code."""
        return subprocess.run([WINE, program, *arguments], env=self.desktop.environment, timeout=120, check=False,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode

    def start(self, program, *arguments):
        started = subprocess.Popen([WINE, program, *arguments], env=self.desktop.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(self.desktop.end, started)
        return started

    def entry(self):
        """The values under which the system lists the program as installed."""
        told = self.desktop.wine("reg", "query", UNINSTALL).decode("utf-8", "replace")
        return dict(re.findall(r"^ +(\w+) +REG_\w+ +(.*?)\r?$", told, re.M))

    def machine(self):
        """Every file of the user's, and his whole registry, but for what Wine itself writes."""
        exported = self.desktop.home / "user.reg"
        self.desktop.wine("reg", "export", r"HKCU\Software", f"Z:{exported}", "/y")
        keys = set(re.findall(r"^\[(.*)\]", exported.read_text("utf-16"), re.M))
        return {path for path in self.user.rglob("*") if "/Temp/" not in str(path)}, {key for key in keys if "Wine" not in key}

    def open_window(self):
        return self.desktop.wait(condition=lambda form: form.text(STATUS) not in ("", "Getting information..."))

    def uninstall(self):
        """As the system does it without a question, until it is done: the uninstaller goes on as a copy of itself."""
        program, switch = re.fullmatch(r'"(.*)" (\S+)', self.entry()["QuietUninstallString"]).groups()
        self.run_windows(program, switch)
        self.assertTrue(wait_for(lambda: not self.place.exists()), "the folder stays")

    def test_installed_started_from_the_menu_and_removed_without_a_trace_but_the_settings(self):
        # The system's folder and key of users' programs, which Wine does not make by itself.
        self.place.parent.mkdir(exist_ok=True)
        self.desktop.wine("reg", "add", UNINSTALL.rpartition("\\")[0], "/f")
        before = self.machine()
        self.assertEqual(self.run_windows(self.installer, "/S"), DONE)
        self.assertEqual({path.name for path in self.place.iterdir()}, FILES | {"uninstall.exe"})
        entry = self.entry()
        inside = "C:" + str(self.place).partition("drive_c")[2].replace("/", "\\")
        expected = {"DisplayName": NAME, "DisplayVersion": "2.5", "Publisher": "Alex Marenco", "InstallLocation": inside,
                    "UninstallString": f'"{inside}\\uninstall.exe"', "NoModify": "0x1", "NoRepair": "0x1"}
        self.assertEqual(expected, {name: entry.get(name) for name in expected})
        size = sum(path.stat().st_size for path in self.place.iterdir()) / 1024
        self.assertAlmostEqual(int(entry["EstimatedSize"], 16), size, delta=size / 10)

        self.assertEqual(self.run_windows("start", "/unix", self.shortcut), DONE)
        self.open_window()
        self.desktop.type("alt+F4")
        self.assertTrue(wait_for(lambda: not self.desktop.told()))
        self.uninstall()
        files, keys = self.machine()
        self.assertEqual(files, before[0])
        self.assertEqual({key for key in keys - before[1] if not KEY.startswith(key)}, set())
        self.assertIn("Language", self.desktop.settings())

    def test_an_open_program_is_closed_for_a_newer_version_and_one_that_stays_is_left_as_it_was(self):
        place = self.desktop.prefix / "drive_c/Own-place"
        self.assertEqual(self.run_windows(self.installer, "/S", r"/D=C:\Own-place"), DONE)
        self.place = place
        readme = place / "README.txt"
        program = self.start(place / "dervalin-ostrelum.exe")
        self.open_window()
        readme.write_text("older")
        # The folder is that of the version before.
        self.assertEqual(self.run_windows(self.installer, "/S"), DONE)
        self.assertEqual(program.wait(10), 0)
        self.assertNotEqual(readme.read_text(), "older")

        console = self.start(place / "ostrelum-console.exe", "page", "all")
        self.assertTrue(wait_for(lambda: b"ostrelum-console" in Path(f"/proc/{console.pid}/maps").read_bytes(), step=0.001))
        console.send_signal(signal.SIGSTOP)
        # The first of the files: none is replaced before it is known that all can be.
        first = place / "dervalin-ostrelum.exe"
        first.write_text("older")
        self.assertEqual(self.run_windows(self.installer, "/S"), NOT_POSSIBLE)
        self.assertEqual(first.read_text(errors="replace")[:5], "older")
        console.send_signal(signal.SIGCONT)
        self.assertEqual(console.wait(30), 0)
        (place / "own.txt").touch()
        self.run_windows(place / "uninstall.exe", "/S")
        self.assertTrue(wait_for(lambda: [path.name for path in place.iterdir()] == ["own.txt"]), "not what others put there")

    def test_the_archive_runs_from_any_folder(self):
        place = self.desktop.home / "Ñandú et al"
        shutil.unpack_archive(self.archive, place)
        [folder] = place.iterdir()
        self.assertEqual({path.name for path in folder.iterdir()}, FILES)
        for program in PROGRAMS:
            told = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", folder / program], capture_output=True, text=True, check=True)
            self.assertTrue("ProductVersion".encode("utf-16-le") in (folder / program).read_bytes(), f"{program} has no version")
            imported = {name.lower() for name in re.findall(r"DLL Name: (\S+)", told.stdout)}
            self.assertLessEqual(imported, {path.name for path in SYSTEM.iterdir()})
        self.start(folder / "dervalin-ostrelum.exe")
        self.open_window()


if __name__ == "__main__":
    unittest.main()
