#!/usr/bin/env python3
"""Runs a command on a machine with file systems that never answer.

Usage: unshare --mount dead_mounts.py FOLDER COMMAND [ARGUMENT...]

Mounted in FOLDER: FAR and PORTAL, whose servers have stopped; DISKS, disks with a driver in user space that has
stopped; AUTO, a place where a stopped daemon should mount something. Without root there are only the first two.
"""

import ctypes
import fcntl
import os
import pathlib
import stat
import struct
import subprocess
import sys

FAR, PORTAL, AUTO = "far", "portal", "auto"
DISKS = [f"disk{number}" for number in range(6)]
# linux/mount.h
MS_REC, MS_PRIVATE = 1 << 14, 1 << 18
# linux/loop.h
LOOP_SET_FD, LOOP_SET_STATUS64, LOOP_CTL_GET_FREE, LO_FLAGS_AUTOCLEAR = 0x4C00, 0x4C04, 0x4C82, 4

libc = ctypes.CDLL(None, use_errno=True)


def mount(source, place, kind, options):
    pathlib.Path(place).mkdir(exist_ok=True)
    if libc.mount(os.fsencode(source), os.fsencode(place), os.fsencode(kind), 0, os.fsencode(options)) != 0:
        error = ctypes.get_errno()
        raise OSError(error, os.strerror(error), str(place))


def mount_dead(source, place, kind):
    """A server that has the channel open and reads no request from it, not even the first."""
    channel = os.open("/dev/fuse", os.O_RDWR)
    mount(source, place, kind, f"fd={channel},rootmode=40000,user_id={os.getuid()},group_id={os.getgid()}")


def mount_dead_disk(folder, name):
    """A disk in a file, whose device has a name that is no loop's, as these are not listed."""
    image, node = folder / f"{name}.image", folder / f"{name}.device"
    image.write_bytes(bytes(1 << 20))
    node.unlink(missing_ok=True)
    with open("/dev/loop-control", "rb") as control, open(image, "rb+") as file:
        number = fcntl.ioctl(control, LOOP_CTL_GET_FREE)
        os.mknod(node, stat.S_IFBLK | 0o600, os.makedev(7, number))
        with open(node, "rb+") as device:
            fcntl.ioctl(device, LOOP_SET_FD, file.fileno())
            # It goes with the mount.
            fcntl.ioctl(device, LOOP_SET_STATUS64, struct.pack("52xI176x", LO_FLAGS_AUTOCLEAR))
            mount_dead(node, folder / name, "fuseblk")


def mount_all(folder):
    libc.mount(None, b"/", None, MS_REC | MS_PRIVATE, None)
    mount_dead("host:/far", folder / FAR, "fuse.sshfs")
    mount_dead("portal", folder / PORTAL, "fuse.portal")
    if not os.access("/dev/loop-control", os.W_OK):
        return
    pipe = os.pipe()[1]
    mount("daemon", folder / AUTO, "autofs", f"fd={pipe},pgrp={os.getpgrp()},minproto=5,maxproto=5,direct")
    for name in DISKS:
        mount_dead_disk(folder, name)


if __name__ == "__main__":
    mount_all(pathlib.Path(sys.argv[1]))
    # Of its own session: the daemon's own processes would be let through.
    sys.exit(subprocess.run(sys.argv[2:], start_new_session=True, check=False).returncode)
