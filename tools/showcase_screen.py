"""The screen of a virtual X server, read from the file in which the server keeps it, and PNG files."""

import mmap
import struct
import time
import zlib

# Reading the file takes a millisecond where a screenshot program takes a hundred, so that a picture can be
# watched until it stands still. The file is an X window dump of 32 bits a pixel, blue first.
HEADER = struct.Struct(">25I")
HEADER_SIZE, BYTES_PER_LINE, COLOUR_COUNT = 0, 12, 19
BITS_PER_PIXEL = 11
BYTES_PER_COLOUR = 12


class Screen:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.bytes = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = HEADER.unpack_from(self.bytes)
        if header[BITS_PER_PIXEL] != 32:
            raise ValueError(f"{path}: not 32 bits a pixel")
        self.stride = header[BYTES_PER_LINE]
        self.start = header[HEADER_SIZE] + header[COLOUR_COUNT] * BYTES_PER_COLOUR

    def rows(self, left, top, width, height):
        """The pixels of a part of the screen, a bytes object for each row."""
        first = self.start + top * self.stride + left * 4
        return [self.bytes[at:at + width * 4] for at in range(first, first + height * self.stride, self.stride)]

    def settled(self, place, changed_from=None, still=0.2, seconds=20):
        """The rows of a place once they have stood still for so long and differ from those given.

        Raises TimeoutError when that does not come."""
        end = time.monotonic() + seconds
        shown, since = self.rows(*place), time.monotonic()
        while time.monotonic() < end:
            time.sleep(0.02)
            now = self.rows(*place)
            if now != shown:
                shown, since = now, time.monotonic()
            elif time.monotonic() - since >= still and shown != changed_from:
                return shown
        raise TimeoutError("the picture did not change, or did not come to rest")

    def wait_for(self, place, wanted, seconds=20):
        """Waits until a place shows the rows given. Raises TimeoutError when that does not come."""
        end = time.monotonic() + seconds
        while self.rows(*place) != wanted:
            if time.monotonic() > end:
                raise TimeoutError("an earlier picture did not come back")
            time.sleep(0.02)


def part_of(rows, left, top, width, height):
    return [row[left * 4:(left + width) * 4] for row in rows[top:top + height]]


def write_png(path, rows):
    """Writes rows of a Screen as an RGB picture."""
    lines = bytearray()
    for row in rows:
        line = bytearray(len(row) // 4 * 3)
        line[0::3], line[1::3], line[2::3] = row[2::4], row[1::4], row[0::4]
        lines += b"\0" + line

    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))

    size = struct.pack(">2I5B", len(rows[0]) // 4, len(rows), 8, 2, 0, 0, 0)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", size) + chunk(b"IDAT", zlib.compress(bytes(lines), 6)) +
                     chunk(b"IEND", b""))
