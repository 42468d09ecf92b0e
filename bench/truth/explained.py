"""Differences that are known, and why the console's value stands: a row holds for one property and one other program,
and only for values that its test allows. docs/provider.md tells the same to people."""

# Who makes the monitors with letters that are registered for somebody else, and who that is.
MAKERS = {"ASUS": "Ancor Communications Inc", "CSOT": "California Institute of Technology", "Chunghwa": "cPATH",
          "Tianma": "Thermotrex Corporation", "Samsung": "Seiko Epson Corporation"}
CPU, VIDEO, MONITOR = "Win32_Processor", "Win32_VideoController", "Win32_DesktopMonitor"


def has_card(machine):
    return "SD" in [machine.text(f"/sys/block/{name}/device/type") for name in machine.list("/sys/block")]


# The tests get the machine, our value and theirs. Only x86 has boost, and none beyond 5 times the rated clock.
ROWS = (
    (f"{CPU}.MaxClockSpeed", "lscpu", "the rated clock, not the highest for a moment",
     lambda m, ours, theirs: m.first(CPU)["Architecture"] in (0, 9) and ours < theirs < 5 * ours),
    (f"{CPU}.MaxClockSpeed", "lscpu", "the clock in the name, as its maker rounds it",
     lambda m, ours, theirs: f"@ {ours / 1000:.2f}GHz" in m.first(CPU)["Name"] and abs(ours - theirs) < 10),
    (f"{CPU}.L3CacheSize", "lscpu", "one cache that all share, which an emulator numbers as two",
     lambda m, ours, theirs: m.text("/sys/devices/system/cpu/cpu0/cache/index3/size") == f"{ours}K"),
    (f"{MONITOR}.MonitorManufacturer", "edid_decode", "a short name, without a hardware database",
     lambda m, ours, theirs: not m.has_names() and all(map(str.startswith, theirs, ours))),
    (f"{MONITOR}.MonitorManufacturer", "edid_decode", "letters that are registered for somebody else",
     lambda m, ours, theirs: all(a == b or MAKERS.get(a) == b for a, b in zip(ours, theirs))),
    (f"{MONITOR}.Name", "edid_decode", "a byte beyond ASCII stands for a blank, not for the end",
     lambda m, ours, theirs: all(map(str.startswith, ours, theirs))),
    (f"{VIDEO}.Name", "lspci", "the driver's own name of the card",
     lambda m, ours, theirs: theirs == f"NVIDIA Corporation {ours}"),
    (f"{VIDEO}.Name", "lspci", "driver or numbers, as no list at hand knows the card",
     lambda m, ours, theirs: (theirs.startswith("Vendor ") or not m.has_names()) and " " not in ours),
    ("Win32_DiskDrive.Caption", "lsblk", "lsblk has the kernel's text alone, cut to 16 characters",
     lambda m, ours, theirs: ours.startswith(theirs) and 15 <= len(theirs) <= 16),
    ("Win32_CDROMDrive.Name", "lsblk", "with its maker", lambda m, ours, theirs: ours.endswith(" " + theirs)),
    ("Win32_CDROMDrive.Size", "lsblk", "the kernel's figure for a drive without a disc",
     lambda m, ours, theirs: (ours, theirs) == (None, str(2097151 * 512))),
    ("Win32_LogicalDisk.DriveType", "lsblk", "a memory card can be taken out",
     lambda m, ours, theirs: (ours, theirs) == (2, 3) and has_card(m)),
    ("Win32_DiskDrive.InterfaceType", "lsblk", "a memory card can be taken out",
     lambda m, ours, theirs: (ours, theirs) == ("USB", "SCSI") and has_card(m)),
    ("Win32_BIOS.SerialNumber", "dmidecode", "a text that nobody filled in",
     lambda m, ours, theirs: (ours, theirs) == (None, "0123456789")),
    ("Win32_Battery.EstimatedChargeRemaining", "acpi", "the battery's own percentage; acpi divides two charges",
     lambda m, ours, theirs: abs(ours - theirs) == 1),
    ("Win32_NetworkLoginProfile.Privileges", "getent", "a guest", lambda m, ours, theirs: ours == 0 and all(
        one["Name"].startswith("guest") for one in m.query("Win32_NetworkLoginProfile") if one["Privileges"] == 0)),
)


def reason(machine, where, peer, ours, theirs):
    """Why the difference is none of ours to fix; nothing if it is not known."""
    rows = (row[2:] for row in ROWS if row[:2] == (where, peer))
    return next((why for why, allows in rows if allows(machine, ours, theirs)), None)
