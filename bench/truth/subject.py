"""The machine that the console and the other programs are asked about, and the recordings that one is made of."""

import functools
import json
import os
import re
import shutil
import struct
import subprocess
import tarfile
from pathlib import Path

CONSOLE = os.environ.get("OSTRELUM_CONSOLE", str(Path(__file__).resolve().parents[2] / "build/bin/ostrelum-console"))
NEUTRAL = dict(os.environ, LC_ALL="C", TZ="UTC")
DATABASES = ("etc/systemd/hwdb", "etc/udev", "usr/lib/systemd/hwdb", "lib/systemd/hwdb", "usr/lib/udev", "lib/udev")


class NotCompared(Exception):
    """Why another program has nothing to say of this machine."""


def run(*command):
    """What a program prints, in English and UTC. It may end with an error and have said enough."""
    if not shutil.which(command[0]):
        raise NotCompared(f"{command[0]} is not installed")
    done = subprocess.run(list(map(str, command)), env=NEUTRAL, capture_output=True, timeout=60)
    text = done.stdout.decode("utf-8", "replace")
    if not text.strip():
        reason = done.stderr.decode("utf-8", "replace").strip() or "it prints nothing"
        raise NotCompared(f"{command[0]} cannot answer: {reason.splitlines()[0]}")
    return text


def natural(name):
    return [int(part) if part.isdigit() else part for part in re.split(r"(\d+)", name)]


class Subject:
    """This machine (no root) or a recorded one; `told` holds what other programs said when it was recorded."""

    def __init__(self, name, root=None, told=None):
        self.name, self.root, self.told, self.live = name, root, told or {}, root is None

    def console(self, *command):
        where = [] if self.live else ["--sysroot", str(self.root)]
        return subprocess.run([CONSOLE, *where, *command], env=NEUTRAL, capture_output=True, check=True).stdout.decode()

    @functools.lru_cache(maxsize=None)
    def query(self, name):
        return json.loads(self.console("query", f"Select * from {name}"))

    def first(self, name):
        if not self.query(name):
            raise NotCompared(f"the console has no {name}")
        return self.query(name)[0]

    def path(self, place):
        """The place under the root; links that stand as on the machine, from its "/", stay inside."""
        at = self.root or Path("/")
        for part in Path(place.lstrip("/")).parts:
            at = at / part
            while not self.live and at.is_symlink() and os.readlink(at).startswith("/"):
                at = self.root / os.readlink(at).lstrip("/")
        return at

    def read(self, place):
        """The bytes of a file, none for one that cannot be had."""
        try:
            return self.path(place).read_bytes()
        except OSError:
            return b""

    def text(self, place):
        return self.read(place).decode("utf-8", "replace").strip()

    def list(self, place):
        try:
            return sorted(os.listdir(self.path(place)), key=natural)
        except OSError:
            return []

    def has_names(self):
        """Whether there is systemd's compiled database of devices' names, or what it said of a recorded machine."""
        return bool(self.text("/.facts/hwdb")) or self.live and any("hwdb.bin" in self.list(folder) for folder in DATABASES)


def monitor_root(text, root):
    """A machine with one monitor, of the data in a file that edid-decode has written, and this machine's names."""
    digits = re.search(r"edid-decode \(hex\):\s*((?:[0-9a-f]{2}\s+)+)", text).group(1)
    card = root / "sys/devices/pci0000:00/0000:00:02.0/drm/card0"
    files = {card / "card0-DP-1/status": b"connected\n", card / "card0-DP-1/edid": bytes.fromhex(digits),
             root / "sys/bus/pci/devices/0000:00:02.0/class": b"0x030000\n"}
    code = re.search(r"Manufacturer: (\w+)", text)[1]
    try:
        names = re.search("ID_VENDOR_FROM_DATABASE=.*", run("systemd-hwdb", "query", f"acpi:{code}:"))
        files[root / ".facts/hwdb"] = f"acpi:{code}: {names[0]}\n".encode() if names else b""
    except NotCompared:
        pass
    for file, content in files.items():
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)
    (root / "sys/class/drm").mkdir(parents=True)
    for folder in (card, card / "card0-DP-1"):
        (root / "sys/class/drm" / folder.name).symlink_to(Path("../..") / folder.relative_to(root / "sys"))


def firmware_dump(table):
    """A file as dmidecode writes and reads it: an entry point (SMBIOS 3.3) and the table behind it."""
    fields = [b"_SM3_", 0, 0x18, 3, 3, 0, 1, 0, len(table), 0x20]
    fields[1] = -sum(struct.pack("<5s7BIQ", *fields)) % 256
    return struct.pack("<5s7BIQ", *fields).ljust(0x20, b"\0") + table


def subjects(arguments, scratch):
    """This machine, or each of the recordings: roots, packed roots, monitors (.txt) and firmware tables (.dmi)."""
    if not arguments:
        yield Subject("this machine")
    for number, argument in enumerate(map(Path, arguments)):
        root, told = argument if argument.is_dir() else Path(scratch) / str(number), {}
        if argument.suffix == ".txt":
            told["edid-decode"] = argument.read_text(encoding="utf-8", errors="replace")
            monitor_root(told["edid-decode"], root)
        elif argument.suffix == ".dmi":
            (root / "sys/firmware/dmi/tables").mkdir(parents=True)
            shutil.copy(argument, root / "sys/firmware/dmi/tables/DMI")
        elif not argument.is_dir():
            with tarfile.open(argument) as packed:
                packed.extractall(root)
            saved = argument.with_name(argument.name.removesuffix(".tar.gz") + ".expected")
            told = {"lscpu": saved.read_text()} if saved.exists() else {}
            root = next(root.iterdir()) if len(list(root.iterdir())) == 1 else root
        yield Subject(argument.name, root, told)
