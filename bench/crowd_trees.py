"""Recorded machines with thousands of one thing: a function for each crowd, which fills a tree with so many."""

import struct


def mapped_volumes(tree, count):
    """Volumes of the device mapper that only their names lead to."""
    for n in range(count):
        folder = tree.block(f"dm-{n}", n, ["sda"])
        tree.write(f"{folder}/dm/name", f"volume{n}")
    tree.block("sda", count, of="pci0000:00/ata1")
    tree.mounts([(n + 2, 1, f"0:{n + 1}", "btrfs", f"/dev/mapper/volume{n}") for n in range(count)])


def ring(tree, count):
    """Devices that have each other as slaves."""
    for n in range(count):
        tree.block(f"dm-{n}", n + 1, [f"dm-{(n + step) % count}" for step in (1, 2, 3)])
    tree.mounts([(n + 2, 1, f"8:{n + 1}", "ext4", f"/dev/dm-{n}") for n in range(count)])


def stack(tree, count):
    """Devices each of which lies on the next."""
    for n in range(count):
        tree.block(f"dm-{n}", n + 1, [f"dm-{n + 1}"] if n + 1 < count else [])
    tree.mounts([(n + 2, 1, f"8:{n + 1}", "ext4", f"/dev/dm-{n}") for n in range(count)])


def shared_stripes(tree, count):
    """Volumes on one that lies on as many disks."""
    for n in range(count):
        tree.block(f"sd{n}", count + n + 2)
        tree.block(f"dm-{n}", n + 2, ["md0"])
    tree.block("md0", 1, [f"sd{n}" for n in range(count)])
    tree.mounts([(n + 2, 1, f"8:{n + 2}", "ext4", f"/dev/dm-{n}") for n in range(count)])


def links_of_volumes(tree, count):
    """Volumes whose labels and identities stand in the names of links alone."""
    for n in range(count):
        tree.block(f"sd{n}", n + 1, of="pci0000:00/ata1")
        tree.link(f"dev/disk/by-label/label{n}", f"dev/sd{n}")
        tree.link(f"dev/disk/by-uuid/{n:08x}-0000-4000-8000-000000000000", f"dev/sd{n}")
    tree.mounts([(n + 2, 1, f"8:{n + 1}", "xfs", f"/dev/sd{n}") for n in range(count)])


def chained_mounts(tree, count):
    """Mounts that lie on each other, at the bottom on a network's."""
    tree.mounts([(n + 2, n + 1 if n else 1, f"0:{n + 1}", "nfs4" if n == 0 else "xfs", f"/dev/sd{n}")
                 for n in range(count)])


def plain_mounts(tree, count):
    """A table without numbers, in which each second mount is a network's."""
    tree.lines("proc/self/mounts", [f"source{n} /m/{n // 2}{'/below' * (n % 2)} {'nfs4' if n % 2 == 0 else 'xfs'} rw 0 0"
                                    for n in range(count)])


def memory_cards(tree, count):
    """Cards in slots of the machine, mounted."""
    for n in range(count):
        folder = tree.block(f"mmcblk{n}", n + 1, of="platform/mmc")
        tree.write_all(f"{folder}/device", type="SD", name="CARD")
    tree.mounts([(n + 2, 1, f"8:{n + 1}", "vfat", f"/dev/mmcblk{n}") for n in range(count)])


def sticks(tree, count):
    """Sticks that are plugged in and not mounted."""
    for n in range(count):
        folder = tree.block(f"sd{n}x", 2 * n + 1, of="pci0000:00/usb1/1-1", removable=1)
        tree.write_all(f"{folder}/sd{n}x1", dev=f"8:{2 * n + 2}", size=1 << 20, partition=1)
        tree.link(f"sys/class/block/sd{n}x1", f"{folder}/sd{n}x1")
        tree.lines(f"run/udev/data/b8:{2 * n + 2}", ["E:ID_FS_TYPE=vfat", f"E:ID_FS_LABEL_ENC=STICK{n}"])
    tree.mounts([])


def partitions(tree, count):
    folder = tree.block("sda", 1, of="pci0000:00/ata1")
    for n in range(1, count + 1):
        tree.write_all(f"{folder}/sda{n}", dev=f"8:{n + 1}", size=1 << 20, partition=n)
        tree.link(f"sys/class/block/sda{n}", f"{folder}/sda{n}")
    tree.mounts([(n + 2, 1, f"8:{n + 1}", "ext4", f"/dev/sda{n}") for n in range(1, count)])


def discs(tree, count):
    for n in range(count):
        folder = tree.block(f"sr{n}", n + 1, of="pci0000:00/ata1")
        tree.write_all(f"{folder}/device", vendor="MAKER", model=f"DVD {n}")
    names = "\t".join(f"sr{n}" for n in range(count))
    tree.lines("proc/sys/dev/cdrom/info", [f"drive name:\t\t{names}"] + [
        f"Can {what}:\t\t" + "\t".join("1" * count)
        for what in ("read DVD", "write CD-R", "write CD-RW", "write DVD-R", "write DVD-RAM")])
    tree.mounts([(n + 2, 1, f"8:{n + 1}", "iso9660", f"/dev/sr{n}") for n in range(count)])


def monitor(number):
    """A block of data (EDID 1.4) with a checksum."""
    block = bytearray(128)
    block[:8] = b"\0\xff\xff\xff\xff\xff\xff\0"
    struct.pack_into(">H", block, 8, 0x10AC)
    struct.pack_into("<H", block, 10, number & 0xFFFF)
    block[18:20] = b"\1\4"
    block[127] = -sum(block) % 256
    return bytes(block)


def graphics_cards(tree, count):
    """Cards on PCI and elsewhere, each with a monitor."""
    for n in range(count):
        slot = f"0000:{n >> 8:02x}:{n & 255:02x}.0"
        device = f"sys/devices/pci0000:00/{slot}" if n % 2 else f"sys/devices/platform/gpu{n}"
        if n % 2:
            tree.write_all(device, **{"class": "0x030000", "vendor": "0x10de", "device": f"0x{n:04x}"})
            tree.link(f"sys/bus/pci/devices/{slot}", device)
        tree.write("sys/bus/drivers/gpu/uevent", "") if n == 0 else None
        tree.link(f"{device}/driver", "sys/bus/drivers/gpu")
        port = f"{device}/drm/card{n}/card{n}-DP-1"
        tree.write_all(port, status="connected", enabled="enabled", edid=monitor(n))
        tree.link(f"{device}/drm/card{n}/device", device)
        tree.link(f"sys/class/drm/card{n}", f"{device}/drm/card{n}")
        tree.link(f"sys/class/drm/card{n}-DP-1", port)
    tree.lines(".facts/modes", [f"card{n}-DP-1 1920 1080 32 60000" for n in range(count)])


def connectors(tree, count):
    device = "sys/devices/pci0000:00/0000:00:02.0"
    tree.write_all(device, **{"class": "0x030000"})
    tree.link("sys/bus/pci/devices/0000:00:02.0", device)
    tree.write(f"{device}/drm/card0/uevent", "")
    tree.link("sys/class/drm/card0", f"{device}/drm/card0")
    for n in range(1, count + 1):
        tree.write_all(f"{device}/drm/card0/card0-DP-{n}", status="connected", enabled="enabled", edid=monitor(n))
        tree.link(f"sys/class/drm/card0-DP-{n}", f"{device}/drm/card0/card0-DP-{n}")


def sound_cards(tree, count):
    """Half with a codec, half without."""
    for n in range(count):
        slot = f"0000:{n >> 8:02x}:{n & 255:02x}.0"
        folder = f"sys/devices/pci0000:00/{slot}/sound/card{n}"
        tree.write(f"{folder}/id", f"CARD{n}")
        tree.link(f"sys/class/sound/card{n}", folder)
        tree.write_all(f"sys/bus/pci/devices/{slot}", vendor="0x8086", device=f"0x{n:04x}")
        if n % 2:
            tree.write_all(f"{folder}/hwC{n}D0", vendor_name="Maker", chip_name=f"Codec {n}", afg="0x1")
            tree.link(f"sys/class/sound/hwC{n}D0", f"{folder}/hwC{n}D0")
    tree.lines("proc/asound/cards", [f" {n} [CARD{n}  ]: HDA-Intel - Card {n}" for n in range(count)])
    database(tree, count)


def database(tree, count):
    """Answers of a hardware database, none of which is the one that is looked for."""
    tree.lines(".facts/hwdb", [f"pci:v{n:08X} ID_VENDOR_FROM_DATABASE=Maker {n}" for n in range(count)])


def input_devices(tree, count):
    """Keyboards and mice, each hardware of its own, that udev does not know."""
    for n in range(count):
        hardware = f"sys/devices/pci0000:00/usb1/1-{n}"
        folder = f"{hardware}/1-{n}:1.0/input/input{n}"
        tree.write(f"{folder}/name", f"Device {n}")
        tree.write_all(f"{folder}/id", bustype="0003", vendor=f"{n:04x}")
        keys = ("10000 0 0 0 0", "3") if n % 2 else ("fffffffffffffffe", "0")
        tree.write_all(f"{folder}/capabilities", key=keys[0], rel=keys[1], abs="0")
        tree.link(f"sys/class/input/input{n}", folder)
    database(tree, count)


def processors(tree, count, packages=1):
    for n in range(count):
        folder = f"sys/devices/system/cpu/cpu{n}"
        tree.write(f"{folder}/topology/physical_package_id", n % packages)
        tree.write(f"{folder}/cpufreq/scaling_cur_freq", 2000000)
        for index, level in enumerate((1, 2, 3)):
            tree.write_all(f"{folder}/cache/index{index}", level=level, type="Unified", size="512K",
                           shared_cpu_map=f"{n:x}")
    tree.write("sys/devices/system/cpu/online", f"0-{count - 1}")
    tree.lines("proc/cpuinfo", [f"processor\t: {n}\nmodel name\t: Made\ncpu MHz\t\t: 2000.000\n" for n in range(count)])


def packages(tree, count):
    """As many processors of one core each, and a long table of the firmware."""
    processors(tree, count, count)
    socket = bytes([4, 0x1A]) + bytes(22) + b"\x41" + bytes(1)
    tree.write("sys/firmware/dmi/tables/DMI", (socket + b"Socket\0\0") * count)


def unnumbered_processors(tree, count):
    """A list of processors beside a long text that numbers none."""
    tree.write("sys/devices/system/cpu/online", f"0-{count - 1}")
    tree.lines("proc/cpuinfo", [f"line {n} : of a long text" for n in range(20 * count)] + ["cpu MHz : 2000"])


def repeated_ranges(tree, count):
    tree.write("sys/devices/system/cpu/online", "0-65535," * count)


def memory_modules(tree, count):
    """Published by udev, described by the firmware, known to the controllers."""
    keys = {"TYPE": "DDR4", "FORM_FACTOR": "DIMM", "SIZE": 1 << 33, "LOCATOR": "DIMM", "TOTAL_WIDTH": 64}
    tree.lines("run/udev/data/+dmi:id", [f"E:MEMORY_DEVICE_{n}_{key}={value}"
                                        for n in range(count) for key, value in keys.items()])


def modules_of_controllers(tree, count):
    for n in range(count):
        tree.write_all(f"sys/devices/system/edac/mc/mc0/dimm{n}", size=8192, dimm_label=f"DIMM {n}",
                       dimm_mem_type="Unbuffered-DDR4")


def memory_blocks(tree, count):
    tree.write("sys/devices/system/memory/block_size_bytes", "8000000")
    for n in range(count):
        tree.write(f"sys/devices/system/memory/memory{n}/state", "online")


def login(name, number):
    return struct.pack("<hxxi32s4s32s256s4xiii36x", 7, 1, b"pts/0", b"", name.encode(), b"", 0, 1700000000 + number, 0)


def accounts(tree, count):
    tree.lines("etc/passwd", [f"user{n}:x:{1000 + n}:{1000 + n}:Name {n}:/home:/bin/sh" for n in range(count)])
    tree.lines("etc/group", ["sudo:x:27:" + ",".join(f"user{n}" for n in range(count))] +
               [f"user{n}:x:{1000 + n}:" for n in range(count)])
    logins = b"".join(login(f"user{n}", n) for n in range(count))
    tree.write("var/log/wtmp", logins)
    tree.write("var/log/wtmp.1", logins)
    tree.write(".facts/id", "uid=1000(user0)")
    tree.lines(".facts/zone", [f"{1700000000 + n} 60" for n in range(count)])


def batteries(tree, count):
    for n in range(count):
        tree.write_all(f"sys/class/power_supply/BAT{n}", type="Battery", status="Discharging", energy_now=1, power_now=1,
                       energy_full=2, voltage_now=12000000, manufacturer="MAKER", model_name=f"M{n}", serial_number=n)


def processes(tree, count):
    for n in range(1, count + 1):
        tree.write(f"proc/{n}/stat", f"{n} (task {n}) S 1 1 1 0 -1 4194304 0 0 0 0 1 1 0 0 20 0 1 0 1 0 0")


def boot_settings(tree, count):
    for n in range(count):
        tree.write(f"etc/default/grub.d/{n}.cfg", f"GRUB_TIMEOUT={n}")


CROWDS = (mapped_volumes, ring, stack, shared_stripes, links_of_volumes, chained_mounts, plain_mounts, memory_cards, sticks,
          partitions, discs, graphics_cards, connectors, sound_cards, input_devices, processors, packages,
          unnumbered_processors, repeated_ranges, memory_modules, modules_of_controllers, memory_blocks, accounts, batteries,
          processes, boot_settings)
