"""Disks, volumes, memory, accounts and the operating system, as other programs see them. Rows as in hardware.py."""

import hmac
import json
import locale
import re
import shlex
from datetime import datetime, timezone

from hardware import Near, labels, rows
from subject import NotCompared, natural, run

OS, DISK, PROFILE = "Win32_OperatingSystem", "Win32_LogicalDisk", "Win32_NetworkLoginProfile"
# What is no drive: made by software, or a part of a soldered memory card.
MADE = r"(zram|ram|loop|nbd|md|fd|mtd|rbd|drbd)\d|mmcblk\d+(boot|rpmb)"
TRANSPORTS = {"usb": "USB", "sata": "IDE", "ata": "IDE", "ieee1394": "1394", "nvme": "SCSI", "sas": "SCSI",
              "fc": "SCSI", "spi": "SCSI", "iscsi": "SCSI", "virtio": "SCSI", "mmc": "SCSI"}
FAT = ("FAT12", "FAT16", "FAT32")
TYPES = {"vfat": FAT, "msdos": FAT, "ntfs": ("NTFS",), "ntfs3": ("NTFS",), "fuseblk": ("NTFS", "exFAT"),
         "exfat": ("exFAT",), "iso9660": ("CDFS",), "udf": ("UDF",)}
SYSTEM = r"/(proc|sys|dev|snap|var/lib/(docker|containers|containerd|flatpak|lxcfs|snapd))(/|$)|/run/(?!media/|live/)"


def lsblk(machine):
    where = [] if machine.live else ["--sysroot", machine.root]
    columns = "NAME,MODEL,TRAN,RM,SIZE,TYPE,MOUNTPOINTS"
    devices = json.loads(run("lsblk", "-J", "-b", "-o", columns, *where))["blockdevices"]
    if not devices:
        raise NotCompared("lsblk sees no disk")
    devices.sort(key=lambda device: natural(device["name"]))
    optical = [device for device in devices if device["name"].startswith("sr")]
    disks = [device for device in devices if device not in optical and not re.match(MADE, device["name"])]
    yield from rows("Win32_DiskDrive", machine.query("Win32_DiskDrive"), [
        {"Caption": disk["model"] and disk["model"].strip(), "InterfaceType": TRANSPORTS.get(disk["tran"]),
         "Partitions": sum(part["type"] == "part" and part["size"] > 1024 for part in disk.get("children", []))}
        for disk in disks])
    yield from rows("Win32_CDROMDrive", machine.query("Win32_CDROMDrive"), [
        {"Name": drive["model"] and drive["model"].strip(), "Size": str(drive["size"])} for drive in optical])
    kinds = dict(kind for device in devices for kind in kinds_of_volumes(device, device["rm"]))
    for volume in machine.query(DISK):
        yield f"{DISK}.DriveType", volume["DriveType"], kinds.get(volume["Name"])


def kinds_of_volumes(device, removable):
    """Where the volumes of a device are mounted, with the kind that follows from the whole disk."""
    kind = 5 if device["name"].startswith("sr") else 6 if "ram" in device["name"] else 2 if removable else 3
    yield from ((target, kind) for target in device["mountpoints"] if target)
    for child in device.get("children", []):
        yield from kinds_of_volumes(child, removable)


def mounts(machine):
    columns = "TARGET,SOURCE,FSTYPE,MAJ:MIN" + (",SIZE,AVAIL,LABEL,UUID" if machine.live else "")
    tables = [table for name in ("mountinfo", "mounts") if (table := machine.path(f"/proc/self/{name}")).exists()]
    if not tables:
        raise NotCompared("no mounts are recorded")
    where = [] if machine.live else ["--kernel", "--tab-file", tables[0]]
    return json.loads(run("findmnt", "-J", "-l", "-b", "-o", columns, *where))["filesystems"]


def findmnt(machine):
    table = mounts(machine)
    seen = {mount["target"]: mount for mount in table}
    volumes = [volume for volume in machine.query(DISK) if volume["Name"] in seen]
    for ours, theirs in ((volume, seen[volume["Name"]]) for volume in volumes):
        allowed = TYPES.get(theirs["fstype"], (theirs["fstype"],))
        yield f"{DISK}.FileSystem", ours["FileSystem"], ours["FileSystem"] if ours["FileSystem"] in allowed else allowed
        if machine.live:
            yield f"{DISK}.Size", ours["Size"], str(theirs["size"])
            yield f"{DISK}.FreeSpace", Near(ours["FreeSpace"]), Near(theirs["avail"])
            yield f"{DISK}.VolumeName", ours["VolumeName"], theirs["label"]
            yield f"{DISK}.VolumeSerialNumber", ours["VolumeSerialNumber"], serial(theirs["uuid"], ours["FileSystem"])
    # And every mounted device is among the volumes, by this mount or by another one of it.
    key = "maj:min" if all(mount["maj:min"] for mount in table) else "source"
    listed = {seen[volume["Name"]][key] for volume in volumes}
    for mount in table:
        efi = mount["fstype"] == "vfat" and mount["target"] in ("/boot", "/boot/efi", "/efi")
        if re.match("/dev/(?!loop)", mount["source"]) and not re.match(SYSTEM, mount["target"]) and not efi:
            yield f"{DISK}.Caption", mount["target"] if mount[key] in listed else None, mount["target"]


def serial(identity, kind):
    digits = (identity or "").replace("-", "").upper()
    if not re.fullmatch("[0-9A-F]{8,}", digits) or kind in ("CDFS", "UDF"):
        return None
    return digits[-8:] if kind == "NTFS" else digits[:8]


def device_links(machine):
    """The links that udev makes of the labels and identities of file systems."""
    sources = {mount["target"]: mount["source"].rpartition("/")[2] for mount in mounts(machine)}
    names = {(kind, link.readlink().name): link.name.encode().decode("unicode_escape") for kind in ("label", "uuid")
             if (folder := machine.path(f"/dev/disk/by-{kind}")).exists() for link in folder.iterdir()}
    if not names:
        raise NotCompared("udev has made no links")
    for ours in machine.query(DISK):
        device = sources.get(ours["Name"])
        yield f"{DISK}.VolumeName", ours["VolumeName"], names.get(("label", device))
        identity = serial(names.get(("uuid", device)), ours["FileSystem"])
        yield f"{DISK}.VolumeSerialNumber", ours["VolumeSerialNumber"], identity


def free(machine):
    """What free tells; of a recorded machine the kernel's table, added up here."""
    if machine.live:
        told = {line.split(":")[0]: list(map(int, line.split()[1:])) for line in run("free", "-k").splitlines()[1:]}
        total, available, swap, swap_free = told["Mem"][0], told["Mem"][5], told["Swap"][0], told["Swap"][2]
    else:
        told = {label: int(number.split()[0]) for label, number in labels(machine.text("/proc/meminfo")).items()}
        if "MemTotal" not in told:
            raise NotCompared("no memory is recorded")
        total, swap, swap_free = told["MemTotal"], told.get("SwapTotal", 0), told.get("SwapFree", 0)
        available = told.get("MemAvailable", sum(told.get(key, 0) for key in ("MemFree", "Buffers", "Cached")))
    ours, number = machine.first(OS), Near if machine.live else int
    yield f"{OS}.TotalVirtualMemorySize", int(ours["TotalVirtualMemorySize"]), total + swap
    yield f"{OS}.FreePhysicalMemory", number(ours["FreePhysicalMemory"]), number(available)
    yield f"{OS}.FreeVirtualMemory", number(ours["FreeVirtualMemory"]), number(available + swap_free)


def assignments(text):
    pairs = (part.partition("=") for line in text.splitlines() for part in shlex.split(line, comments=True)[:1])
    return {name: value for name, equals, value in pairs if equals}


def uname(machine):
    """uname and stat, the distribution's files, and the names that Python knows for Windows' numbers of languages."""
    ours = machine.first(OS)
    release = assignments(machine.text("/etc/os-release") or machine.text("/usr/lib/os-release"))
    point = re.fullmatch(r"\d+\.(\d+)", machine.text("/etc/debian_version")) if release.get("ID") == "debian" else None
    told = run("uname", "-a") if machine.live else machine.text("/.facts/uname")
    number = re.search(r" (\d+\.\d+)\.", told)
    yield f"{OS}.Caption", ours["Caption"], release.get("PRETTY_NAME")
    yield f"{OS}.ServicePackMajorVersion", ours["ServicePackMajorVersion"], point and int(point[1])
    yield f"{OS}.Version", re.search(r"\d+\.\d+", ours["Version"] or " 0.0")[0], number and number[1]
    wide = re.search("x86_64|aarch64|ppc64|riscv64|s390x", told)
    yield f"{OS}.OSArchitecture", "64" in (ours["OSArchitecture"] or ""), bool(wide) if told else None
    files = assignments(machine.text("/etc/locale.conf")) or assignments(machine.text("/etc/default/locale"))
    language = re.match("[a-z]{2,3}_[A-Z]{2}", files.get("LANG") or (machine.live and run("locale")[5:]) or "")
    name = language and language[0].replace("no_", "nb_")
    yield f"{OS}.OSLanguage", locale.windows_locale.get(ours["OSLanguage"]), name
    births = [run("stat", "-c", "%W", path) for path in ("/", "/etc/machine-id")] if machine.live else [
        line.split()[1] for line in machine.text("/.facts/btime").splitlines()]
    date = min((datetime.fromtimestamp(int(birth), timezone.utc) for birth in births), default=None)
    known = date and date.year >= 2000
    yield f"{OS}.InstallDate", (ours["InstallDate"] or "")[:14], date.strftime("%Y%m%d%H%M%S") if known else None
    if re.fullmatch("(?!0{32})[0-9a-f]{32}", identity := machine.text("/etc/machine-id")):
        yield f"{OS}.SerialNumber", ours["SerialNumber"], application_id(bytes.fromhex(identity))


def application_id(identity):
    """As sd_id128_get_machine_app_specific makes it of the identity of the machine and the program's own."""
    digest = bytearray(hmac.digest(identity, bytes.fromhex("5b0e9c41d72a4f83961dc374ae5820b9"), "sha256")[:16])
    digest[6], digest[8] = digest[6] & 0x0F | 0x40, digest[8] & 0x3F | 0x80
    return digest.hex()


def ps(machine):
    if not machine.live:
        raise NotCompared("a recorded machine runs nothing")
    # The kernel's own threads are children of number 2, and it is one itself. This ps counts too.
    programs = [line for line in run("ps", "-e", "-o", "pid=,ppid=").splitlines() if "2" not in line.split()]
    yield f"{OS}.NumberOfProcesses", Near(machine.first(OS)["NumberOfProcesses"]), Near(len(programs))


def getent(machine):
    """Accounts and groups; of a recorded machine from its tables."""
    texts = [run("getent", name) if machine.live else machine.text(f"/etc/{name}") for name in ("passwd", "group")]
    passwd, group = ([line.split(":") for line in text.splitlines() if ":" in line] for text in texts)
    users = {each[0]: each for each in passwd if each[2] == "0" or 1000 <= int(each[2]) <= 60000}
    if not users:
        raise NotCompared("no accounts are recorded")
    masters = [each for each in group if each[0] in ("sudo", "wheel", "admin", "root")]
    master = {name for name, user in users.items() for each in masters
              if name in each[3].split(",") or user[3] == each[2]}
    for each in (PROFILE, "Win32_UserAccount"):
        yield f"{each}.Name", sorted(one["Name"] for one in machine.query(each)), sorted(users)
    for each in machine.query(PROFILE):
        yield f"{PROFILE}.Privileges", each["Privileges"], 2 if each["Name"] in master else 1
    people = sorted((int(user[2]), user[4].split(",")[0] or user[0]) for user in users.values() if user[2] != "0")
    host = run("hostname").strip() if machine.live else machine.text("/etc/hostname") or None
    yield "Win32_UserAccount.Domain", machine.first("Win32_UserAccount")["Domain"], host
    if people and machine.query(OS):
        yield f"{OS}.RegisteredUser", machine.first(OS)["RegisteredUser"], people[0][1]


def last(machine):
    """The log of logins and the one before it."""
    files = [file for name in ("wtmp", "wtmp.1") if (file := machine.path(f"/var/log/{name}")).exists()]
    width = 384  # of a record on this kind of processor; "last" knows no other
    if not files or any(file.stat().st_size % width for file in files):
        raise NotCompared("no logins are recorded, or on another kind of processor")
    lines = [line for file in files for line in run("last", "-w", "--time-format", "iso", "-f", file).splitlines()]
    for ours in machine.query(PROFILE):
        times = [re.search(r"\d{4}-\d\d-\d\dT[\d:]+", line)[0] for line in lines if line.split()[:1] == [ours["Name"]]]
        yield f"{PROFILE}.NumberOfLogons", ours["NumberOfLogons"], len(times)
        yield f"{PROFILE}.LastLogon", (ours["LastLogon"] or "")[:14], re.sub("[-T:]", "", max(times)) if times else None
