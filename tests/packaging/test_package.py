"""The package for Debian: what is in it, that it runs as it is installed, and that nothing of it stays."""

import hashlib
import os
import re
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.append(str(ROOT / "tests/window"))
from desktop import Desktop, wait_for  # noqa: E402

BUILD = Path(os.environ["OSTRELUM_BUILD"])
LONG = os.environ.get("OSTRELUM_LONG") == "1"
NAME = "dervalin-ostrelum"
SIZES = (16, 32, 48, 64, 128, 256)


def output(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, timeout=1200, **options).stdout


def entry_of(root):
    """The keys of the installed desktop entry."""
    text = (root / f"usr/share/applications/{NAME}.desktop").read_text(encoding="utf-8")
    return dict(line.split("=", 1) for line in text.splitlines() if "=" in line)


def listed(root, *left_out):
    """Every file and folder under a root with its size and mode, but for what stands under the folders left out."""
    paths = (path for path in sorted(root.rglob("*")) if not str(path.relative_to(root)).startswith(left_out))
    return [(str(path.relative_to(root)), path.lstat().st_mode, path.is_file() and path.lstat().st_size) for path in paths]


class PackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(prefix="ostrelum-package-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder, ignore_errors=True)
        # A common umask that lets a group write, which nobody may in what is installed.
        output("cpack", "-G", "DEB", "-B", str(cls.folder / "made"), cwd=BUILD, umask=0o002)
        [cls.package] = (cls.folder / "made").glob("*.deb")
        cls.unpacked = cls.folder / "unpacked"
        output("dpkg-deb", "-R", str(cls.package), str(cls.unpacked))

    def test_files_are_roots_and_all_may_read_them(self):
        packed = subprocess.run(["dpkg-deb", "--fsys-tarfile", self.package], check=True, capture_output=True).stdout
        (self.folder / "files.tar").write_bytes(packed)
        with tarfile.open(self.folder / "files.tar") as files:
            members = files.getmembers()
        self.assertGreater(len(members), 20)
        for member in members:
            program = member.isdir() or member.name.startswith("./usr/bin/")
            self.assertEqual((member.uname, member.gname, oct(member.mode)), ("root", "root", oct(0o755 if program else 0o644)),
                             member.name)

    def test_control_tells_what_the_programs_need_and_what_each_file_sums_up_to(self):
        control = (self.unpacked / "DEBIAN/control").read_text(encoding="utf-8")
        fields = dict(re.findall(r"^([\w-]+): (.*)", control, re.M))
        for library in ("libc6", "libqt6widgets6", "libudev1", "libxcb-xinput0"):
            self.assertRegex(fields["Depends"], rf"\b{library}\b")
        self.assertGreater(int(fields["Installed-Size"]), 1000)
        sums = dict(line.split("  ")[::-1] for line in (self.unpacked / "DEBIAN/md5sums").read_text().splitlines())
        files = {str(path.relative_to(self.unpacked)): hashlib.md5(path.read_bytes()).hexdigest()
                 for path in (self.unpacked / "usr").rglob("*") if path.is_file()}
        self.assertEqual(sums, files)

    def test_the_desktop_entry_starts_the_window_and_has_its_icon_in_all_sizes(self):
        entry = entry_of(self.unpacked)
        with Desktop() as desktop:
            desktop.environment["PATH"] = f"{self.unpacked}/usr/bin:{os.environ['PATH']}"
            program = desktop.start("sh", "-c", f"exec {entry['Exec']}")
            window = desktop.window()
            self.assertEqual(os.readlink(f"/proc/{program.pid}/exe"), f"{self.unpacked}/usr/bin/{NAME}")
            self.assertIn(f'"{entry["StartupWMClass"]}"', desktop.call("xprop", "-id", window, "WM_CLASS"))
            self.assertEqual(desktop.close_program(program, window), 0)
        icons = self.unpacked / "usr/share/icons/hicolor"
        self.assertTrue((icons / f"scalable/apps/{entry['Icon']}.svg").exists())
        for size in SIZES:
            picture = icons / f"{size}x{size}/apps/{entry['Icon']}.png"
            self.assertIn(f"PNG image data, {size} x {size},", output("file", str(picture)))

    def test_its_removal_leaves_nothing_but_the_users_settings(self):
        root, home = self.folder / "root", self.folder / "home"
        for name in ("info", "updates", "triggers"):
            (root / "var/lib/dpkg" / name).mkdir(parents=True)
        (root / "var/lib/dpkg/status").touch()
        home.mkdir()
        dpkg = ("dpkg", f"--root={root}", f"--log={self.folder}/log", "--force-not-root", "--force-bad-path",
                "--force-depends")
        kept = "var/lib/dpkg"
        before = listed(root, kept)
        output(*dpkg, "--install", str(self.package))
        told = output(str(root / "usr/bin/ostrelum-console"), "page", "4", env={"HOME": str(home)})
        self.assertIn("Operating system", told)
        self.assertGreater(len(listed(root, kept)), 20)
        output(*dpkg, "--purge", NAME)
        self.assertEqual(listed(root, kept), before)
        self.assertEqual(list((root / "var/lib/dpkg/info").glob(f"{NAME}*")), [])

    @unittest.skipUnless(LONG, "takes minutes and a network: OSTRELUM_LONG=1")
    @unittest.skipUnless(os.geteuid() == 0, "a system of its own takes root")
    def test_a_bare_system_installs_runs_and_removes_it(self):
        root = self.folder / "system"
        output("debootstrap", "--variant=minbase", "bookworm", str(root))
        shutil.copy(self.package, root / "tmp/package.deb")
        (root / "tmp/run").mkdir(mode=0o700)
        inside = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C", "HOME": "/root",
                  "XDG_RUNTIME_DIR": "/tmp/run"}

        def run(*command):
            return output("chroot", str(root), *command, env=inside)

        # What apt and its caches write counts for nothing, nor does what a library's own scripts leave.
        changing = ("var/log", "var/cache", "var/lib/apt", "var/lib/dpkg", "tmp", "root", "proc", "dev", "sys", "etc/ld.so.cache")
        before, packages = listed(root, *changing), run("dpkg-query", "-W")
        run("apt-get", "install", "-y", "--no-install-recommends", "/tmp/package.deb")
        with Desktop() as desktop:
            inside["DISPLAY"] = desktop.environment["DISPLAY"]
            program = desktop.start("env", "-i", *(f"{name}={value}" for name, value in inside.items()), "chroot", str(root), NAME)
            window = desktop.window()
            self.assertEqual(desktop.close_program(program, window), 0)
        self.assertTrue((root / f"root/.config/{NAME}/settings").exists())
        self.assertIn("Operating system", run("ostrelum-console", "page", "4"))
        run("apt-get", "purge", "-y", NAME)
        left = {path for path, *_ in listed(root, "tmp") if "ostrelum" in path}
        self.assertEqual(left, {f"root/.config/{NAME}", f"root/.config/{NAME}/settings"})
        run("apt-get", "autoremove", "--purge", "-y")
        self.assertEqual(run("dpkg-query", "-W"), packages)
        self.assertEqual(listed(root, *changing), before)


if __name__ == "__main__":
    unittest.main()
