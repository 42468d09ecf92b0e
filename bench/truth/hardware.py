"""Processor, firmware, monitors, graphics, sound, input and battery, as other programs see them. Each function gives
rows: a property, our value, theirs. A value of theirs that is None was not told and is not compared."""

import re
import tempfile

from subject import NotCompared, firmware_dump, run

CPU, VIDEO = "Win32_Processor", "Win32_VideoController"


class Near(int):
    """A number that changes while it is asked for: equal within 5 %."""

    def __eq__(self, other):
        return abs(self - other) <= 0.05 * max(self, other)


def rows(name, ours, theirs):
    """The objects of a class beside what another program tells of each, in the same order."""
    yield f"count({name})", len(ours), len(theirs)
    for mine, other in zip(ours, theirs):
        yield from ((f"{name}.{key}", mine[key], value) for key, value in other.items())


def labels(text):
    return dict(re.findall(r"^\s*([\w() -]+?):[ \t]+(.*?)\s*$", text, re.M))


def over_file(content, *command):
    """What a program prints of a file with that content."""
    with tempfile.NamedTemporaryFile() as file:
        file.write(content)
        file.flush()
        return run(*(file.name if word == "FILE" else word for word in command))


def kilobytes(text):
    """ "2 MiB (2 instances)", or bytes without a unit."""
    number, unit = text.split()[:2]
    return round(float(number) * {"KiB": 1, "MiB": 1024, "GiB": 1024**2}.get(unit, 1 / 1024))


def lscpu(machine):
    where = [] if machine.live else ["--sysroot", machine.root]
    text = machine.told.get("lscpu") or run("lscpu", "-B", *where)
    told, ours = labels(text), machine.first(CPU)
    kinds = {"x86_64": 9, "i686": 0, "aarch64": 12, "armv7l": 5}
    names = [name for name in re.findall(r"^Model name:\s+(.*)$", text, re.M) if name != "-"]
    tops = [float(speed) for speed in re.findall(r"CPU max MHz:\s+([\d.]+)", text)]
    theirs = {"Manufacturer": told.get("Vendor ID"), "MaxClockSpeed": round(max(tops)) if tops else None,
              "Architecture": kinds.get(told["Architecture"]) if machine.live else None}
    yield from ((f"{CPU}.{key}", ours[key], value) for key, value in theirs.items())
    yield f"{CPU}.Name", sorted(ours["Name"].split(" + ")), sorted(names)
    if int("0" + told.get("Socket(s)", "").strip("-")):
        yield f"count({CPU})", len(machine.query(CPU)), int(told["Socket(s)"])
    if "CPU family" in told:
        theirs = f"Family {told['CPU family']} Model {told['Model']} Stepping {told['Stepping']}"
        yield f"{CPU}.Caption", ours["Caption"].split(" ", 1)[-1], theirs
    for level in (2, 3):
        caches = [kilobytes(told[key]) for key in (f"L{level} cache", f"L{level}d cache") if key in told]
        sizes = [cpu[f"L{level}CacheSize"] or 0 for cpu in machine.query(CPU)]
        yield f"{CPU}.L{level}CacheSize", sum(sizes), sum(caches)
    online = [part.split("-") for part in told["On-line CPU(s) list"].split(",")]
    cores = re.search(r"Number of cores: *(\d+)", machine.console("page", "5"))
    yield "page 5.Number of cores", int(cores[1]), sum(int(each[-1]) - int(each[0]) + 1 for each in online)
    clocks = [float(clock) for clock in run("lscpu", "-e=MHZ", *where).split()[1:] if clock != "-"]
    if clocks and len(machine.query(CPU)) == 1:
        exact = Near if machine.live else int
        yield f"{CPU}.CurrentClockSpeed", exact(ours["CurrentClockSpeed"]), exact(round(sum(clocks) / len(clocks)))


# Texts of dmidecode and what the CIM schema calls them.
FORMS = {"Unknown": 0, "Other": 1, "Row Of Chips": 14, "Die": 1, "DIMM": 8, "RIMM": 11, "SODIMM": 12, "FB-DIMM": 24}
TYPES = {"Unknown": 0, "Other": 1, "DRAM": 2, "RAM": 9, "SDRAM": 17, "DDR": 20, "DDR2": 21, "DDR3": 24, "DDR4": 26,
         "LPDDR3": 29, "LPDDR4": 30, "DDR5": 34, "LPDDR5": 35}
UNITS = {"bytes": 1, "kB": 1024, "MB": 1024**2, "GB": 1024**3, "TB": 1024**4}
FIRMWARE = (("Win32_BIOS.Manufacturer", "BIOS", "Vendor"), ("Win32_BIOS.SMBIOSBIOSVersion", "BIOS", "Version"),
            ("Win32_BIOS.SerialNumber", "System", "Serial Number"), ("Win32_BIOS.ReleaseDate", "BIOS", "Release Date"),
            ("Win32_ComputerSystem.Manufacturer", "System", "Manufacturer"),
            ("Win32_ComputerSystem.Model", "System", "Product Name"),
            ("Win32_BaseBoard.Manufacturer", "Base Board", "Manufacturer"),
            ("Win32_BaseBoard.Product", "Base Board", "Product Name"))


def told(text):
    """A text that the maker filled in; what stands in for one is in no comparison."""
    filling = r"to be filled.*|default string|not specified|unknown|none|<.*>|system (product name|manufacturer)|\s*"
    return None if re.fullmatch(filling, text or "", re.I) else text


def dmidecode(machine):
    table = machine.read("/sys/firmware/dmi/tables/DMI")
    if not table:
        raise NotCompared("there is no firmware table")
    text = over_file(firmware_dump(table), "dmidecode", "-q", "--from-dump", "FILE")
    parts = [(part.strip().partition("\n")[0], labels(part)) for part in text.split("\n\n")]
    first = dict(reversed(parts))
    for where, title, label in FIRMWARE:
        name, key = where.split(".")
        ours = (machine.query(name) or [{}])[0].get(key)
        theirs = told(first.get(title + " Information", {}).get(label))
        if label == "Release Date" and theirs:
            month, day, year = theirs.split("/")
            ours, theirs = (ours or "")[:8], year + month + day
        yield where, ours, theirs
    modules = [module(fields) for title, fields in parts if title == "Memory Device" and fitted(fields)]
    # All memory as one object, where there are no modules, has an empty locator.
    fitted_here = [each for each in machine.query("Win32_PhysicalMemory") if each["DeviceLocator"] != ""]
    yield from rows("Win32_PhysicalMemory", fitted_here, modules)
    sockets = [{"SocketDesignation": told(fields["Socket Designation"])} for title, fields in parts
               if title == "Processor Information" and fields["Status"].startswith("Populated")]
    if machine.query(CPU):
        yield from rows(CPU, machine.query(CPU), sockets)


def fitted(fields):
    return fields.get("Size", "No").split()[0] != "No" and fields.get("Type") not in ("Flash", "ROM")


def module(fields):
    number, _, unit = fields["Size"].partition(" ")
    width = fields["Total Width"].split()[0]
    return {"Capacity": str(int(number) * UNITS[unit]) if number.isdigit() else None,
            "DeviceLocator": told(fields["Locator"]), "FormFactor": FORMS.get(fields["Form Factor"], "?"),
            "MemoryType": TYPES.get(fields["Type"], "?"), "TotalWidth": int(width) if width.isdigit() else None}


def edid_decode(machine):
    connectors = [f"/sys/class/drm/{name}" for name in machine.list("/sys/class/drm")]
    edids = [data for connector in connectors if machine.text(connector + "/status") == "connected"
             and (data := machine.read(connector + "/edid"))]
    if not edids:
        raise NotCompared("no monitor tells its data")
    saved = machine.told.get("edid-decode")
    texts = [saved or over_file(data, "edid-decode", "FILE") for data in edids]
    # Which card draws which monitor is the kernel's matter: monitors are compared as a set.
    for key, theirs in (("Name", monitor_name), ("MonitorManufacturer", monitor_maker)):
        ours = [each[key] or "" for each in machine.query("Win32_DesktopMonitor")]
        yield f"Win32_DesktopMonitor.{key}", sorted(ours), sorted(map(theirs, texts))
    if len(texts) == 1 and len(machine.query(VIDEO)) == 1:
        yield from rows(VIDEO, machine.query(VIDEO), [refresh_limits(texts[0])])


def monitor_name(text):
    """A product name that fills its 13 places goes on in the next."""
    names, strings = ([name for name in re.findall(label + r": '(.*)'", text) if name.strip()]
                      for label in ("Display Product Name", "Alphanumeric Data String"))
    if names:
        full = next((n for n, name in enumerate(names) if len(name) < 13 or name.endswith(" ")), len(names))
        return "".join(names[:full + 1]).strip()
    if strings:
        return strings[-1].strip()
    maker, product = (re.search(label + r": (\w+)", text)[1] for label in ("Manufacturer", "Model"))
    return f"{maker} {int(product):04X}"


def monitor_maker(text):
    code = re.search(r"Manufacturer: (\w+)", text)[1]
    name = re.search("ID_VENDOR_FROM_DATABASE=(.*)", run("systemd-hwdb", "query", f"acpi:{code}:"))
    return name[1] if name else code


def refresh_limits(text):
    """Of the range that the monitor tells, else of its modes."""
    limits = re.search(r"Monitor ranges.*: (\d+)-(\d+) Hz V", text)
    rates = limits.groups() if limits else re.findall(r" \d+x\d+i?\s+([\d.]+) Hz", text)
    numbers = [round(float(rate)) for rate in rates] or [None]
    return {"MinRefreshRate": min(numbers), "MaxRefreshRate": max(numbers)}


def lspci(machine):
    folder = "/sys/bus/pci/devices/"
    slots = [slot for slot in machine.list(folder) if machine.text(f"{folder}{slot}/class").startswith("0x03")
             and machine.text(f"{folder}{slot}/vendor")]
    if not slots:
        raise NotCompared("no graphics card on PCI")
    slots.sort(key=lambda slot: (machine.text(f"{folder}{slot}/boot_vga") != "1", not has_monitor(machine, slot)))
    dump = "".join(config_space(machine, folder + slot) for slot in slots)
    text = over_file(dump.encode(), "lspci", "-F", "FILE", "-D", "-vmm")
    cards = {fields["Slot"]: fields for fields in map(labels, text.split("\n\n")) if "Slot" in fields}
    yield from rows(VIDEO, machine.query(VIDEO), [{"Name": card_name(cards[slot])} for slot in slots])
    if machine.live:
        drivers = [{"InstalledDisplayDrivers": labels(run("lspci", "-vmmks", slot)).get("Driver")} for slot in slots]
        yield from rows(VIDEO, machine.query(VIDEO), drivers)


def has_monitor(machine, slot):
    own = machine.list(f"/sys/bus/pci/devices/{slot}/drm")
    cards = tuple(card + "-" for card in own if re.fullmatch(r"card\d+", card))
    return any(machine.text(f"/sys/class/drm/{name}/status") == "connected"
               for name in machine.list("/sys/class/drm") if name.startswith(cards))


def card_name(fields):
    """The names between brackets are those on the box."""
    return " ".join(re.sub(r".*?\[(.*?)\].*", r"\1", fields[key]) for key in ("Vendor", "Device"))


def config_space(machine, folder):
    """A device in the form that lspci reads: the numbers of device and class where the standard has them."""
    numbers = [int(machine.text(f"{folder}/{file}"), 16) for file in ("vendor", "device", "class")]
    head = b"".join((numbers[0].to_bytes(2, "little"), numbers[1].to_bytes(2, "little"), bytes(5),
                     numbers[2].to_bytes(3, "little"))).ljust(64, b"\0")
    lines = (f"{at:02x}: {head[at:at + 16].hex(' ')}\n" for at in range(0, 64, 16))
    return f"{folder.rpartition('/')[2]} Device\n" + "".join(lines) + "\n"


def sound_codecs(machine):
    """The kernel's own listing of the codecs of HD-audio cards."""
    files = [f"/proc/asound/{card}/{file}" for card in machine.list("/proc/asound") if re.fullmatch(r"card\d+", card)
             for file in machine.list(f"/proc/asound/{card}") if file.startswith("codec#")]
    theirs = [labels(text)["Codec"] for text in map(machine.text, files) if "AFG Function" in text]
    if not theirs:
        raise NotCompared("no card lists a codec")
    # Those of monitors come last.
    theirs.sort(key=lambda name: "HDMI" in name)
    yield from rows("Win32_SoundDevice", machine.query("Win32_SoundDevice"), [{"Name": name} for name in theirs])


def input_devices(machine):
    """The kernel's list of input devices, with what has opened each: "mouse0" is a pointer, "sysrq" a keyboard."""
    pattern = r'Name="(.*)"\n.*\nS: Sysfs=(.*)\n.*\nH: Handlers=(.*)'
    devices = re.findall(pattern, machine.text("/proc/bus/input/devices"))
    if not devices:
        raise NotCompared("there is no list of input devices")
    for name, handler in (("Win32_Keyboard", "sysrq"), ("Win32_PointingDevice", "mouse")):
        theirs = {name for name, place, opened in devices if handler in opened and "/virtual/input/" not in place}
        yield f"{name}.Name", sorted({each["Name"] for each in machine.query(name)}), sorted(theirs)


def acpi(machine):
    text = run("acpi", "-b", "-d", machine.path("/sys/class"))
    left, ours = re.search(r"(\d+):(\d+):\d+ remaining", text), machine.first("Win32_Battery")
    yield "Win32_Battery.EstimatedChargeRemaining", ours["EstimatedChargeRemaining"], int(re.search(r"(\d+)%", text)[1])
    yield "Win32_Battery.EstimatedRunTime", ours["EstimatedRunTime"], left and 60 * int(left[1]) + int(left[2])


def upower(machine):
    if not machine.live:
        raise NotCompared("it knows this machine alone")
    batteries = [line for line in run("upower", "-e").splitlines() if "battery_" in line]
    theirs = [labels(run("upower", "-i", device)) for device in batteries]
    yield from rows("Win32_Battery", machine.query("Win32_Battery"), [
        {"Name": it.get("model"), "EstimatedChargeRemaining": int(it["percentage"].rstrip("%"))} for it in theirs])


def xrandr(machine):
    if not machine.live:
        raise NotCompared("it knows this machine alone")
    shown = re.search(r" connected primary (\d+)x(\d+)\+", run("xrandr"))
    keys = ("CurrentHorizontalResolution", "CurrentVerticalResolution")
    yield from rows(VIDEO, machine.query(VIDEO)[:1], [dict(zip(keys, map(int, shown.groups())))] if shown else [])
