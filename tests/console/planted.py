"""A machine with a hundred identities, each wherever a file or a name has room for it."""

import pathlib
import shutil

import machine

USER = "alma"
ACCOUNTS = {"zephyra": "Zephyra Quillon", "borislav": "Borislav Tarnova"}
STRANGERS = ["nightowl", "dawnbird", "mariotte"]  # administrators without an account
GROUPS = ["kestrelclub", "$6$saltcellar$9xQ2"]
MACHINE_ID = "7f3a9c51d2e84b06a1c5f0e7934bd826"
HOST, DOMAIN, REALM, WORKGROUP = "larchwood", "fernbrook.example", "QUARRY.TEST", "MOSSVALE"
BUILDER = "tinkerer@anvilhouse"
VOLUME_GROUPS = ["pinevault", "cedar-vault"]
VOLUMES = ["otterden", "badgerden", "hareden"]
LABELS = ["Urlaub2019", "Familie Quillon", "SICHERUNG"]
FOLDERS = ["zephyra-fotos", "Steuer Borislav", "erbschaft"]
SERVERS = ["larchnas", "192.168.77.31"]
SERIALS = [f"QX{n:02}7K{n * 37 % 100:02}ZR" for n in range(30)]
NUMBERS = [f"naa.5002538e4{n:07x}" for n in range(3)]
UUIDS = [f"{n * 2654435761 % 2**32:08x}-1b2c-4d3e-8f90-a1b2c3d4e5{n:02x}" for n in range(24)] + ["7A3C-19F4"]
ADDRESSES = [f"c4:d3:8c:5e:7{n % 10}:{n:02x}" for n in range(12)] + [f"F0-9E-4A-11-22-{n:02X}" for n in range(4)]

# What no maker says by chance, and what is known to be somebody's by where else it stands.
UNMISTAKABLE = [*SERIALS, *(number[4:] for number in NUMBERS), *UUIDS, *ADDRESSES, MACHINE_ID, "Urlaub2019"]
NAMES = [USER, "Kestrel", "bela", *ACCOUNTS, "Quillon", "Tarnova", *STRANGERS, HOST, DOMAIN, REALM, *VOLUME_GROUPS,
         *VOLUMES, *LABELS, *FOLDERS, *SERVERS]
# What stands in a place from which it is known.
KNOWN = UNMISTAKABLE + NAMES + BUILDER.split("@")
ALL = KNOWN + GROUPS + [WORKGROUP]

# Names that people give, and texts that makers write, by the names of their files.
GIVEN = ("name", "manufacturer", "product", "model_name")
MADE = ("model", "sys_vendor", "product_name", "board_vendor", "board_name", "bios_vendor", "bios_version",
        "vendor_name", "chip_name")


def put(root, path, text):
    file = root / path
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(text, "utf-8")


def add(root, path, text):
    put(root, path, ((root / path).read_text("utf-8") if (root / path).exists() else "") + text)


def lead(root, path, target):
    (root / path).parent.mkdir(parents=True, exist_ok=True)
    (root / path).symlink_to(target)


def plant_accounts(root):
    # A guest is known by his name alone, and so by none when that is hidden.
    accounts = (root / "etc/passwd").read_text("utf-8").splitlines(keepends=True)
    put(root, "etc/passwd", "".join(line for line in accounts if not line.startswith("guest")))
    for number, (name, full_name) in enumerate(ACCOUNTS.items(), 1101):
        add(root, "etc/passwd",
            f"{name}:{GROUPS[1]}:{number}:{number}:{full_name},Room 7,{SERIALS[0]}:/home/{name}:/bin/sh\n")
        put(root, f"run/faillock/{name}", "")
    add(root, "etc/group", f"wheel:{GROUPS[1]}:10:{','.join([*STRANGERS, *ACCOUNTS])}\n{GROUPS[0]}:x:77:{USER}\n")
    put(root, "etc/machine-id", MACHINE_ID + "\n")
    put(root, "proc/sys/kernel/hostname", f"{HOST}.{DOMAIN}\n")
    put(root, "proc/sys/kernel/domainname", DOMAIN + "\n")
    put(root, "etc/krb5.keytab", REALM)
    put(root, "etc/krb5.conf", f"[libdefaults]\ndefault_realm = {REALM}\n[realms]\n{REALM} = {{ kdc = {HOST} }}\n")
    put(root, "etc/samba/smb.conf", f"[global]\nworkgroup = {WORKGROUP}\nserver string = {HOST}\n")
    put(root, "proc/77/stat", f"77 ({STRANGERS[0]}) S 1 77 77 0 -1 4194304 0\n")
    put(root, "proc/version", f"Linux version 6.1 ({BUILDER}) (gcc 12) #1 SMP PREEMPT 2024-11-22\n")
    add(root, ".facts/env", f"UserName={USER}\nLANG=en_GB.{HOST}\nMAIL={USER}@{DOMAIN}\n")


def plant_volumes(root):
    volumes = [f"{group.replace('-', '--')}-{volume}" for group, volume in zip(VOLUME_GROUPS * 2, VOLUMES)]
    mounts, spaces = "", ""
    for n, (name, label, folder) in enumerate(zip(volumes, LABELS, FOLDERS), 7):
        home = f"sys/devices/virtual/block/dm-{n}"
        put(root, f"{home}/dev", f"254:{n}\n")
        put(root, f"{home}/dm/name", name + "\n")
        put(root, f"{home}/slaves/nvme0n1p3", "")
        for list_of in ("sys/block", "sys/class/block"):
            lead(root, f"{list_of}/dm-{n}", f"/{home}")
        group, volume = VOLUME_GROUPS[(n - 7) % 2], VOLUMES[n - 7]
        lead(root, f"dev/{group}/{volume}", f"/dev/mapper/{name}")
        lead(root, f"dev/mapper/{name}", f"../dm-{n}")
        lead(root, f"dev/disk/by-uuid/{UUIDS[n]}", f"../../dm-{n}")
        lead(root, f"dev/disk/by-label/{label.replace(' ', chr(92) + 'x20')}", f"../../{group}/{volume}")
        put(root, f"run/udev/data/b254:{n}",
            f"S:{group}/{volume}\nE:ID_FS_UUID={UUIDS[n]}\nE:ID_FS_LABEL_ENC={label}\nE:DM_VG_NAME={group}\n"
            f"E:DM_LV_NAME={volume}\nE:DM_NAME={name}\nE:ID_PART_ENTRY_UUID={UUIDS[n + 8]}\n" if n != 8 else "")
        target = f"/media/{USER}/{folder}".replace(" ", "\\040")
        number = "0:77" if n == 9 else f"254:{n}"
        mounts += (f"{700 + n} 28 {number} /@{folder.split()[0]} {target} rw - btrfs /dev/{group}/{volume} "
                   f"rw,user={USER}\n")
        spaces += f"/media/{USER}/{folder} 4096 {n}00000 {n}0000 {n}000\n"
    for n, server in enumerate(SERVERS):
        mounts += f"{720 + n} 28 0:8{n} / /mnt/{VOLUMES[n]} rw - cifs //{server}/{USER} rw\n"
    add(root, "proc/self/mountinfo", mounts)
    add(root, ".facts/statvfs", spaces)


def plant_devices(root):
    power = "sys/devices/virtual/misc/uhid/0005:046D:B019.0003/power_supply"
    for n, owner in enumerate([*ADDRESSES, *SERIALS[:2], "0005:046D:B019.0003"]):
        supply = f"{power}/hid-{owner}-battery"
        for file, text in {"type": "Battery", "model_name": "K380", "capacity": str(n), "serial_number": owner,
                           **({"scope": "Device"} if n else {})}.items():
            put(root, f"{supply}/{file}", text + "\n")
        lead(root, f"sys/class/power_supply/hid-{owner}-battery", f"/{supply}")
    (root / power / f"hid-{ADDRESSES[0]}-battery" / "model_name").unlink()
    put(root, "sys/class/power_supply/BAT0/serial_number", SERIALS[20] + "\n")
    put(root, "sys/class/dmi/id/product_serial", SERIALS[2] + "\n")
    put(root, "sys/block/nvme0n1/wwid", NUMBERS[0] + "\n")
    for n, name in enumerate(["b259:0", "b254:0", "b254:1", "+dmi:id", "+input:input5"]):
        add(root, f"run/udev/data/{name}", f"E:ID_SERIAL_SHORT={SERIALS[3 + n]}\nE:ID_WWN={NUMBERS[n % 3][4:]}\n"
            f"E:MEMORY_DEVICE_7_SERIAL_NUMBER={SERIALS[8 + n]}\nE:MEMORY_DEVICE_7_ASSET_TAG={SERIALS[13 + n]}\n")
    add(root, "run/udev/data/b254:1", "".join(f"E:ID_SCSI_SERIAL={serial}\n" for serial in SERIALS) +
        f"E:ID_PART_ENTRY_UUID={UUIDS[-1]}\n")
    put(root, "proc/asound/cards",
        f" 0 [PCH            ]: HDA-Intel - HDA of {HOST}\n                      HDA at irq 1\n")


def mention(root):
    """All of them wherever nobody asks for them."""
    listed, known = " ".join(ALL), " ".join(KNOWN)
    for file in sorted(root.glob("etc/**/*")):
        if file.is_file() and file.name not in ("passwd", "group", "machine-id", "krb5.keytab"):
            add(root, file.relative_to(root), f"\n# {listed}\n; {listed}\nOWNER=\"{listed}\"\n")
    for file in sorted(root.glob("run/udev/data/*")):
        add(root, file.relative_to(root),
            f"E:NOTE={listed}\nS:disk/by-id/{listed}\nE:ID_VENDOR_NOTE={' '.join(UNMISTAKABLE)}\n")
    add(root, ".facts/hwdb", f"# {listed}\nusb:v046D ID_VENDOR_FROM_DATABASE=Maker {SERIALS[4]}\n")
    add(root, "proc/cpuinfo", f"Serial : {SERIALS[5]}\nnote : {' '.join(UNMISTAKABLE)}\n")
    # The last of them counts, by its number.
    for n, name in enumerate([USER, HOST, *STRANGERS], 7):
        put(root, f"etc/default/grub.d/{n}-{name}.cfg",
            f"GRUB_TIMEOUT={n}\nGRUB_CMDLINE_LINUX=\"root=UUID={UUIDS[n]}\"\n")
    for file in sorted(root.glob("sys/**/*")):
        if not file.is_file() or file.is_symlink() or file.stat().st_size == 0:
            continue
        if file.name in GIVEN and file.parent.name not in ("id", "dm"):
            file.write_text(file.read_text("utf-8").rstrip("\n") + f" of {known.title()} / {known}\n", "utf-8")
        elif file.name in MADE:
            file.write_text(file.read_text("utf-8").rstrip("\n") + " " + " ".join(UNMISTAKABLE) + "\n", "utf-8")


def planted(folder):
    root = machine.copy_of("notebook", pathlib.Path(folder))
    plant_accounts(root)
    plant_volumes(root)
    plant_devices(root)
    mention(root)
    home = root / "home" / STRANGERS[0] / UUIDS[20]
    home.mkdir(parents=True)
    shutil.move(root / "etc" / "login.defs", home / f"{HOST}.defs")
    lead(root, "etc/login.defs", f"../home/{STRANGERS[0]}/../{STRANGERS[0]}/./{UUIDS[20]}/{HOST}.defs")
    return root
